#include <QApplication>

#include <benchmark/benchmark.h>

// Window benchmarks draw on the offscreen platform unless told otherwise, so
// they measure the program's painting rather than a display server.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
