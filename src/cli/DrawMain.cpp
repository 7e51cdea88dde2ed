// quillmark-draw: the command line with the verbs that draw, which
// quillmark-cli hands over to it.
#include "cli/DrawingVerbs.h"

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    // Charts and PDFs need fonts, and so an application of the GUI, but never
    // a display. What the platform says as it starts (a desktop session
    // without a runtime folder, say) concerns no command, so it isn't printed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(previous);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return runCommandLine(QCoreApplication::arguments(), out, err, drawingVerbs());
}
