#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "tests/support/TestProcess.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Tests;

namespace
{

// A folder of English and German texts, as on a device.
class Texts
{
public:
    explicit Texts(int64_t count)
    {
        QByteArray english = "{";
        QByteArray german = "{";
        for (int64_t index = 0; index < count; ++index) {
            const QByteArray url =
                "text://Page" + QByteArray::number(int(index / 50)) + "/Label" + QByteArray::number(int(index % 50));
            english += (index == 0 ? "\"" : ",\n\"") + url + "\": \"Label\"";
            german += (index == 0 ? "\"" : ",\n\"") + url + "\": \"Beschriftung\"";
        }
        writeFile(directory.filePath("en.json"), english + "}");
        writeFile(directory.filePath("de.json"), german + "}");
    }

    QString path() const { return directory.path(); }

private:
    QTemporaryDir directory;
};

void library(benchmark::State& state)
{
    const Texts texts(state.range(0));
    const TextManager manager(texts.path(), QStringLiteral("de"));
    TarnisTextHandler handler(manager);
    for (auto _ : state)
        handler.updateTexts();
    if (handler.translatedTexts().size() != state.range(0))
        qFatal("the map has %d texts", handler.translatedTexts().size());
}

void fill(benchmark::State& state)
{
    const Texts texts(state.range(0));
    const TextManager manager(texts.path(), QStringLiteral("de"));
    const QStringList urls = manager.getAvailableUrls(QStringLiteral("en.json"));
    QStringList german;
    for (const QString& url : urls)
        german.append(manager.getText(url, QStringLiteral("de")));
    QVariantMap map;
    for (auto _ : state) {
        map = QVariantMap();
        for (int index = 0; index < urls.size(); ++index)
            map.insert(urls.at(index), german.at(index));
        benchmark::DoNotOptimize(map);
    }
}

BENCHMARK(library)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(fill)->RangeMultiplier(10)->Range(100, 100000);

} // namespace
