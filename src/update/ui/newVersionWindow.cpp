#include "update/ui/newVersionWindow.h"

#include "platform/BlockingServices.h"
#include "platform/Picture.h"
#include "update/Server.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

newVersionWindow::newVersionWindow(const QString& offer, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
{
    setObjectName(u"newVersionWindow"_s);
    setWindowTitle(QString());
    setFixedSize(457, 147);
    setWindowModality(Qt::ApplicationModal);

    Canvas1 = new QLabel(this);
    Canvas1->setPixmap(QPixmap::fromImage(Picture::resourceImage(u"bookIcon64"_s)));
    Canvas1->setAccessibleName(u"Quillmark"_s);
    StaticText1 = new QLabel(offer, this);
    StaticText1->setWordWrap(true);
    // Made in the order they stand, which is the order Tab takes.
    PushButton2 = new QPushButton(u"Download Later"_s, this);
    PushButton1 = new QPushButton(u"Download Now"_s, this);
    PushButton1->setDefault(true);
    connect(PushButton1, &QPushButton::clicked, this, &newVersionWindow::PushButton1_Action);
    connect(PushButton2, &QPushButton::clicked, this, &newVersionWindow::PushButton2_Action);

    auto* layout = new QHBoxLayout(this);
    layout->addWidget(Canvas1, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout;
    column->addWidget(StaticText1, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(PushButton2);
    buttons->addWidget(PushButton1);
    column->addLayout(buttons);
    layout->addLayout(column, 1);

    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void newVersionWindow::PushButton1_Action()
{
    ShowURL(serverAddress(u"/fernwright.zip"));
    close();
}

void newVersionWindow::PushButton2_Action()
{
    close();
}
