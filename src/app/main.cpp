#include "app/App.h"
#include "platform/ui/DesktopServices.h"
#include "update/BuildVersion.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillmark"));
    QApplication::setApplicationVersion(buildVersion());
    QApplication::setQuitOnLastWindowClosed(false);
    installDesktopServices();
    QTimer::singleShot(0, &App::Event_Open);
    return application.exec();
}
