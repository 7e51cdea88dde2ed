#include <QCoreApplication>

#include <benchmark/benchmark.h>

// The benchmarks run inside an application object, as the program's code does.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
