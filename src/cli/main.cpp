#include "cli/CommandLine.h"

#include <QGuiApplication>
#include <QTextStream>

#include <memory>

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    // Charts and PDFs need fonts, and so an application of the GUI, but never a
    // display; every other command starts faster with the core's.
    // What the platform says as it starts (a desktop session without a runtime
    // folder, say) concerns no command, so it isn't printed.
    std::unique_ptr<QCoreApplication> application;
    if (commandDraws(arguments)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        application = std::make_unique<QGuiApplication>(argc, argv);
        qInstallMessageHandler(previous);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QTextStream out(stdout);
    QTextStream err(stderr);
    return runCommandLine(QCoreApplication::arguments(), out, err);
}
