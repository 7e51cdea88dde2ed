#include "cli/CommandLine.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return runCommandLine(QCoreApplication::arguments(), out, err);
}
