#include "app/App.h"
#include "platform/ui/DesktopServices.h"
#include "update/BuildVersion.h"

#include <QApplication>
#include <QIcon>
#include <QTimer>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillmark"));
    QApplication::setApplicationVersion(buildVersion());
    // The desktop finds the installed .desktop file and icon by this name.
    QApplication::setDesktopFileName(QStringLiteral("app.quillmark.Quillmark"));
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("app.quillmark.Quillmark"), QIcon(QStringLiteral(":/pictures/bookIcon128.png"))));
    QApplication::setQuitOnLastWindowClosed(false);
    installDesktopServices();
    QTimer::singleShot(0, &App::Event_Open);
    return application.exec();
}
