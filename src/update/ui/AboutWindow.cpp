#include "update/ui/AboutWindow.h"

#include "platform/Picture.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

AboutWindow::AboutWindow()
{
    setObjectName(u"AboutWindow"_s);
    setWindowTitle(u"About"_s);
    setFixedSize(322, 235);

    Canvas1 = new QLabel(this);
    Canvas1->setPixmap(QPixmap::fromImage(Picture::resourceImage(u"bookIcon64"_s)));
    Canvas1->setFixedSize(65, 68);
    Canvas1->setAlignment(Qt::AlignCenter);
    StaticText1 = new QLabel(u"App Name"_s, this);
    StaticText2 = new QLabel(u"v1.0.8"_s, this);
    StaticText3 = new QLabel(u"Bookkeeping for one.\nMade by Fernwright."_s, this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(Canvas1, 0, Qt::AlignHCenter);
    for (QLabel* label : {StaticText1, StaticText2, StaticText3}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    QFont nameFont = StaticText1->font();
    nameFont.setBold(true);
    nameFont.setPointSize(nameFont.pointSize() + 4);
    StaticText1->setFont(nameFont);

    // Event_Open
    StaticText1->setText(u"Quillmark"_s);
    setWindowTitle(u"About Quillmark"_s);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}
