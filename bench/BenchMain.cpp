#include <QGuiApplication>

#include <benchmark/benchmark.h>

// The benchmarks run inside an application object, as the program's code does,
// without a display.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
