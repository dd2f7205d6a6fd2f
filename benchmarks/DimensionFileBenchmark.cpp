#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "tests/support/TestProcess.h"

#include <KConfig>
#include <KConfigGroup>

#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Tests;

namespace
{

// A file of 50 to 100,000 keys with 50 keys in each group, written as designers write it.
class DimensionFile
{
public:
    explicit DimensionFile(int64_t keys)
    {
        QByteArray content = "; Dimensions in pixels\n";
        for (int64_t key = 0; key < keys; ++key) {
            if (key % 50 == 0)
                content += "\n[Element" + QByteArray::number(qlonglong(key / 50)) + "]\n";
            content +=
                "dimension" + QByteArray::number(qlonglong(key % 50)) + "=" + QByteArray::number(int(key % 997)) + "\n";
        }
        filePath = writeFile(directory.filePath("1280x800.ini"), content);
    }

    const QString& path() const { return filePath; }

    // QSettings parses a file again only after its time has changed.
    void touch()
    {
        const timespec times[] = {{0, UTIME_OMIT}, {++time, 0}};
        utimensat(AT_FDCWD, filePath.toLocal8Bit().constData(), times, 0);
    }

private:
    QTemporaryDir directory;
    QString filePath;
    time_t time = 0;
};

template <typename Load>
void load(benchmark::State& state, Load load)
{
    DimensionFile file(state.range(0));
    for (auto _ : state) {
        file.touch();
        const QVariantMap dimensions = load(file.path());
        if (dimensions.size() != state.range(0))
            qFatal("read %d dimensions", dimensions.size());
    }
}

void library(benchmark::State& state)
{
    TarnisElementDimensionHandler handler({});
    load(state, [&handler](const QString& path) {
        handler.loadUiElementDimensions({QSize(1280, 800), path});
        return handler.uiElementDimensions();
    });
}

void qSettings(benchmark::State& state)
{
    load(state, [](const QString& path) {
        QVariantMap dimensions;
        const QSettings settings(path, QSettings::IniFormat);
        for (const QString& key : settings.allKeys())
            dimensions.insert(key, settings.value(key).toInt());
        return dimensions;
    });
}

void kConfig(benchmark::State& state)
{
    load(state, [](const QString& path) {
        QVariantMap dimensions;
        const KConfig config(path, KConfig::SimpleConfig);
        for (const QString& groupName : config.groupList()) {
            const QMap<QString, QString> entries = config.entryMap(groupName);
            for (auto entry = entries.begin(); entry != entries.end(); ++entry)
                dimensions.insert(groupName + '/' + entry.key(), entry->toInt());
        }
        return dimensions;
    });
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    for (const int size : {50, 500, 5000, 100000})
        benchmark->Arg(size);
}
BENCHMARK(library)->Apply(sizes);
BENCHMARK(qSettings)->Name("QSettings")->Apply(sizes);
BENCHMARK(kConfig)->Name("KConfig")->Apply(sizes);

} // namespace
