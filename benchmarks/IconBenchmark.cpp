#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "benchmarks/Icons.h"

#include <KIconLoader>
#include <KIconTheme>
#include <QIcon>

#include <benchmark/benchmark.h>

using namespace Benchmarks;

namespace
{

const QVector<Icon>& icons()
{
    static const QVector<Icon> icons = [] {
        KIconTheme::forceThemeForTests(QStringLiteral("breeze"));
        return readIcons();
    }();
    return icons;
}

// Looks up the first `count` icons in turn.
template <typename Lookup>
void lookUpAll(benchmark::State& state, int count, Lookup lookup)
{
    int next = 0;
    for (auto _ : state) {
        if (!lookup(icons().at(next)))
            qFatal("does not find %s", qPrintable(icons().at(next).name));
        if (++next == count)
            next = 0;
    }
}

// Every icon was looked up before. QIcon keeps the last hundred.
template <typename Lookup>
void again(benchmark::State& state, Lookup lookup)
{
    constexpr int count = 50;
    for (const Icon& icon : icons().mid(0, count))
        lookup(icon);
    lookUpAll(state, count, lookup);
}

constexpr int firstTimes = 300;

// Looks up each icon for the first time. One lookup before them reads what is read only once.
template <typename Lookup>
void first(benchmark::State& state, Lookup lookup)
{
    lookup(icons().constLast());
    lookUpAll(state, firstTimes, lookup);
}

void useBreezeOfQt()
{
    QIcon::setThemeSearchPaths({breezeIcons}); // discards what was read of the theme
    QIcon::setThemeName(QStringLiteral("breeze"));
}

bool isInTheme(const Icon& icon)
{
    return !QIcon::fromTheme(icon.name).isNull();
}

bool isInLoader(const KIconLoader& loader, const Icon& icon)
{
    return !loader.iconPath(icon.name, KIconLoader::Toolbar, true).isEmpty();
}

bool isInHandler(const TarnisIconHandler& handler, const Icon& icon)
{
    return !handler.getIconPath(icon.alias).isEmpty();
}

void againLibrary(benchmark::State& state)
{
    const TarnisIconHandler handler(breezeIcons, readBreezeTable());
    again(state, [&handler](const Icon& icon) { return isInHandler(handler, icon); });
}
BENCHMARK(againLibrary)->Name("again/library");

void againExists(benchmark::State& state)
{
    again(state, [](const Icon& icon) { return QFile::exists(icon.path); });
}
BENCHMARK(againExists)->Name("again/exists");

// Looks up the thirty icons of the sample device.
template <typename Lookup>
void sample(benchmark::State& state, Lookup lookup)
{
    QFile file(QStringLiteral(RESOURCES "/icons/mapping.json"));
    file.open(QIODevice::ReadOnly);
    const QString table = QString::fromUtf8(file.readAll());
    const TarnisIconHandler handler(QStringLiteral(RESOURCES "/icons"), table);
    QVector<Icon> sampleIcons;
    for (const QString& alias : handler.parseMappingTable(table).keys())
        sampleIcons.append({alias, alias, handler.getIconPath(alias)});
    int next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(lookup(handler, sampleIcons.at(next)));
        if (++next == sampleIcons.size())
            next = 0;
    }
}

void sampleLibrary(benchmark::State& state)
{
    sample(state, isInHandler);
}
BENCHMARK(sampleLibrary)->Name("sample/library");

void sampleExists(benchmark::State& state)
{
    sample(state, [](const TarnisIconHandler&, const Icon& icon) { return QFile::exists(icon.path); });
}
BENCHMARK(sampleExists)->Name("sample/exists");

void againQIcon(benchmark::State& state)
{
    useBreezeOfQt();
    again(state, isInTheme);
}
BENCHMARK(againQIcon)->Name("again/QIcon");

void againKIconLoader(benchmark::State& state)
{
    const KIconLoader loader;
    again(state, [&loader](const Icon& icon) { return isInLoader(loader, icon); });
}
BENCHMARK(againKIconLoader)->Name("again/KIconLoader");

void firstLibrary(benchmark::State& state)
{
    const TarnisIconHandler handler(breezeIcons, readBreezeTable());
    first(state, [&handler](const Icon& icon) { return isInHandler(handler, icon); });
}
BENCHMARK(firstLibrary)->Name("first/library")->Iterations(firstTimes);

void firstQIcon(benchmark::State& state)
{
    useBreezeOfQt();
    first(state, isInTheme);
}
BENCHMARK(firstQIcon)->Name("first/QIcon")->Iterations(firstTimes);

void firstKIconLoader(benchmark::State& state)
{
    const KIconLoader loader;
    first(state, [&loader](const Icon& icon) { return isInLoader(loader, icon); });
}
BENCHMARK(firstKIconLoader)->Name("first/KIconLoader")->Iterations(firstTimes);

// The first icon of a process, including everything that must be read before it.

void startLibrary(benchmark::State& state)
{
    const QString table = readBreezeTable();
    lookUpAll(state, icons().size(),
              [&table](const Icon& icon) { return isInHandler(TarnisIconHandler(breezeIcons, table), icon); });
}
BENCHMARK(startLibrary)->Name("start/library");

void startQIcon(benchmark::State& state)
{
    lookUpAll(state, icons().size(), [](const Icon& icon) {
        useBreezeOfQt();
        return isInTheme(icon);
    });
}
BENCHMARK(startQIcon)->Name("start/QIcon");

void startKIconLoader(benchmark::State& state)
{
    lookUpAll(state, icons().size(), [](const Icon& icon) { return isInLoader(KIconLoader(), icon); });
}
BENCHMARK(startKIconLoader)->Name("start/KIconLoader");

} // namespace
