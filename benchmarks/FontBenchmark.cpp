#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"

#include <benchmark/benchmark.h>

namespace
{

const QString fontGroup = QStringLiteral("Text");
const QString sizeKey = QStringLiteral("Normal");
const QString size = QStringLiteral("16");

void getColor(benchmark::State& state)
{
    const TarnisColorHandler handler(QStringLiteral(RESOURCES "/fonts.ini"), nullptr);
    for (auto _ : state)
        benchmark::DoNotOptimize(handler.getColor(fontGroup, sizeKey));
}
BENCHMARK(getColor);

void getFontFamily(benchmark::State& state)
{
    const TarnisFontHandler handler(QStringLiteral(RESOURCES "/fonts.ini"), nullptr);
    for (auto _ : state)
        benchmark::DoNotOptimize(handler.getFontFamily(fontGroup));
}
BENCHMARK(getFontFamily);

void getFontPointSize(benchmark::State& state)
{
    const TarnisFontHandler handler(QStringLiteral(RESOURCES "/fonts.ini"), nullptr);
    if (handler.getFontPointSize(fontGroup, sizeKey) == 0.0)
        qFatal("the sample's font size is missing");
    for (auto _ : state)
        benchmark::DoNotOptimize(handler.getFontPointSize(fontGroup, sizeKey));
}
BENCHMARK(getFontPointSize);

void toDouble(benchmark::State& state)
{
    bool isNumber = false;
    for (auto _ : state) {
        benchmark::DoNotOptimize(size.toDouble(&isNumber));
        benchmark::DoNotOptimize(isNumber);
    }
}
BENCHMARK(toDouble);

} // namespace
