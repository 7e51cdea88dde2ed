#include "app/SplashWindow.h"

#include "platform/Picture.h"
#include "update/Server.h"
#include "update/StartupGlobals.h"
#include "update/VersionCheckSocket.h"
#include "update/ui/newVersionWindow.h"
#include "widgets/ProgressWheel.h"

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
    Canvas1->setPixmap(QPixmap::fromImage(Picture::resourceImage(u"bookIcon128"_s)));
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
    StaticText11 = new QLabel(u"Checking for newer version..."_s, this);
    StaticText11->setAlignment(Qt::AlignCenter);
    ProgressWheel1 = new ProgressWheel(this);
    ProgressWheel1->setAccessibleName(StaticText11->text());
    VersionCheckSocket1 = new VersionCheckSocket(this);
    connect(VersionCheckSocket1, &VersionCheckSocket::newerVersion, this, [this](const QString& offer) {
        auto* window = new newVersionWindow(offer);
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->show();
        offerWindow = window;
    });

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(Canvas1);
    auto* text = new QVBoxLayout;
    text->addStretch();
    text->addWidget(AppNameLabel);
    text->addWidget(StaticText1);
    auto* checking = new QHBoxLayout;
    checking->addStretch();
    checking->addWidget(ProgressWheel1);
    checking->addWidget(StaticText11);
    checking->addStretch();
    text->addLayout(checking);
    text->addStretch();
    layout->addLayout(text, 1);

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());

    Timer1 = new QTimer(this);
    Timer1->setSingleShot(true);
    Timer1->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, &SplashWindow::Timer1_Action);
    Timer1->start();
    Event_Open();
}

void SplashWindow::Event_Open()
{
    StaticText11->setVisible(!StartupGlobals::AppStoreVersion);
    ProgressWheel1->setVisible(!StartupGlobals::AppStoreVersion);
    if (!StartupGlobals::AppStoreVersion)
        VersionCheck::doVersionCheck(*VersionCheckSocket1, serverAddress(u"/VersionInfo/QuillmarkVersion.txt"));
}

void SplashWindow::Timer1_Action()
{
    Q_EMIT finished();
    if (offerWindow) {
        offerWindow->raise();
        offerWindow->activateWindow();
    }
    close();
}
