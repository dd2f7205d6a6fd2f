#include <benchmark/benchmark.h>

#include <QGuiApplication>

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
