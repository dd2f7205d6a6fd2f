#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "benchmarks/HeapUse.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <limits>

using namespace Benchmarks;

namespace
{

using DisplaySizes = QList<QPair<QSize, QString>>;

DisplaySizes makeSizes(int64_t count)
{
    DisplaySizes sizes;
    for (int index = 0; index < count; ++index)
        sizes.append({QSize(320 + 16 * index, 240 + 10 * index), QString::number(index)});
    return sizes;
}

void library(benchmark::State& state)
{
    TarnisElementDimensionHandler handler(makeSizes(state.range(0)));
    QRect geometry(0, 0, 1280, 800);
    handler.onScreenGeometryChanged(geometry);
    {
        const HeapUse heap;
        handler.onScreenGeometryChanged(geometry);
        state.counters["allocations"] = static_cast<double>(heap.allocations());
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(geometry);
        handler.onScreenGeometryChanged(geometry);
    }
}

void loop(benchmark::State& state)
{
    const DisplaySizes sizes = makeSizes(state.range(0));
    QRect geometry(0, 0, 1280, 800);
    QPair<QSize, QString> current;
    for (auto _ : state) {
        benchmark::DoNotOptimize(geometry);
        int nearest = 0;
        double leastDistance = std::numeric_limits<double>::infinity();
        for (int index = 0; index < sizes.size(); ++index) {
            const QSize size = sizes.at(index).first;
            const double dx = double(size.width()) - geometry.width();
            const double dy = double(size.height()) - geometry.height();
            const double distance = std::sqrt(dx * dx + dy * dy);
            if (distance < leastDistance) {
                leastDistance = distance;
                nearest = index;
            }
        }
        if (sizes.at(nearest) != current)
            current = sizes.at(nearest);
    }
}

BENCHMARK(library)->RangeMultiplier(10)->Range(1, 1000);
BENCHMARK(loop)->RangeMultiplier(10)->Range(1, 1000);

} // namespace
