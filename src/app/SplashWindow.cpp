#include "app/SplashWindow.h"

#include "app/Windows.h"
#include "mainwindow/SummaryWindow.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

SplashWindow::SplashWindow()
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::FramelessWindowHint)
{
    setObjectName(u"SplashWindow"_s);
    setFixedSize(428, 168);

    Canvas1 = new QLabel(this);
    Canvas1->setPixmap(QPixmap(u":/pictures/bookIcon128.png"_s));
    Canvas1->setFixedSize(128, 128);
    AppNameLabel = new QLabel(u"App Name"_s, this);
    AppNameLabel->setAlignment(Qt::AlignCenter);
    AppNameLabel->setText(u"Quillmark"_s);
    QFont nameFont = AppNameLabel->font();
    nameFont.setPointSize(nameFont.pointSize() * 2);
    nameFont.setBold(true);
    AppNameLabel->setFont(nameFont);
    StaticText1 = new QLabel(u"Bookkeeping for one.\nMade by Fernwright."_s, this);
    StaticText1->setAlignment(Qt::AlignCenter);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(Canvas1);
    auto* text = new QVBoxLayout;
    text->addStretch();
    text->addWidget(AppNameLabel);
    text->addWidget(StaticText1);
    text->addStretch();
    layout->addLayout(text, 1);

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    Timer1 = new QTimer(this);
    Timer1->setSingleShot(true);
    Timer1->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &SplashWindow::Timer1_Action);
    Timer1->start();
}

void SplashWindow::Timer1_Action()
{
    Q_EMIT finished();
    close();
}
