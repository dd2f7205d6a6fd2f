#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "benchmarks/HeapUse.h"

#include <QJsonDocument>

#include <benchmark/benchmark.h>

#include <chrono>
#include <map>
#include <utility>

using namespace Benchmarks;

namespace
{

QByteArray makeTable(int64_t aliases, int64_t contexts)
{
    static const char* const contextNames[] = {"defaultContext", "nightMode", "pressed", "disabled"};
    QByteArray table = "{";
    for (int64_t alias = 0; alias < aliases; ++alias) {
        const QByteArray name = "icon-" + QByteArray::number(qlonglong(alias)).rightJustified(7, '0');
        table += (alias == 0 ? "\"" : ",\n\"") + name + "\": {";
        for (int64_t context = 0; context < contexts; ++context) {
            const QByteArray contextName = contextNames[context];
            table += (context == 0 ? "\"" : ", \"") + contextName + "\": \"" + contextName + "/" + name + ".svg\"";
        }
        table += "}";
    }
    return table + "}\n";
}

const QByteArray& table(const benchmark::State& state)
{
    static std::map<std::pair<int64_t, int64_t>, QByteArray> tables;
    QByteArray& text = tables[{state.range(0), state.range(1)}];
    if (text.isEmpty())
        text = makeTable(state.range(0), state.range(1));
    return text;
}

double secondsSince(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// The destruction of the map is not timed, because a device keeps the map.
void library(benchmark::State& state)
{
    const TarnisIconHandler handler(QString(), QStringLiteral("{}"));
    const QString text = QString::fromUtf8(table(state));
    {
        const HeapUse heap;
        const TarnisIconHandler::IconMap map = handler.parseMappingTable(text);
        state.counters["peak_bytes"] = static_cast<double>(heap.peakBytes());
    }
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        const TarnisIconHandler::IconMap map = handler.parseMappingTable(text);
        state.SetIterationTime(secondsSince(begin));
    }
}

void json(benchmark::State& state)
{
    const QByteArray& text = table(state);
    {
        const HeapUse heap;
        const QJsonDocument document = QJsonDocument::fromJson(text);
        state.counters["peak_bytes"] = static_cast<double>(heap.peakBytes());
    }
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
        state.SetIterationTime(secondsSince(begin));
    }
}

// The least that any reader into these maps takes: parsing, and filling the maps from strings that already exist.
void least(benchmark::State& state)
{
    const QByteArray& text = table(state);
    const TarnisIconHandler handler(QString(), QStringLiteral("{}"));
    const TarnisIconHandler::IconMap icons = handler.parseMappingTable(QString::fromUtf8(text));
    const auto copy = [](const QString& string) { return QString(string.constData(), string.size()); };
    for (auto _ : state) {
        const auto begin = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(QJsonDocument::fromJson(text));
        TarnisIconHandler::IconMap map;
        for (auto alias = icons.begin(); alias != icons.end(); ++alias) {
            TarnisIconHandler::ContextMap contexts;
            for (auto context = alias->begin(); context != alias->end(); ++context)
                contexts.insert(contexts.constEnd(), copy(context.key()), copy(*context));
            map.insert(map.constEnd(), copy(alias.key()), contexts);
        }
        state.SetIterationTime(secondsSince(begin));
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgsProduct({{100, 1000, 10000, 100000, 1000000}, {1, 4}})->UseManualTime();
}
BENCHMARK(library)->Apply(sizes);
BENCHMARK(json)->Apply(sizes);
BENCHMARK(least)->Apply(sizes);

} // namespace
