#include "ResourceFormat/IniParser.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "benchmarks/Service.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScreen>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using namespace Benchmarks;
using namespace Tests;

namespace
{

// The sample device, extended to a thousand icons, and the service that publishes it.
class Device
{
public:
    Device()
    {
        if (run("cp", {"-r", RESOURCES "/.", directory.path()}).exitStatus != 0)
            qFatal("cannot copy the sample resources");
        QJsonObject table;
        for (int index = 0; index < 1000; ++index) {
            const QString name = QStringLiteral("icon-%1").arg(index, 4, 10, QLatin1Char('0'));
            table.insert(
                name, QJsonObject{{"defaultContext", "day/" + name + ".svg"}, {"nightMode", "night/" + name + ".svg"}});
        }
        writeFile(directory.filePath("icons/mapping.json"), QJsonDocument(table).toJson());
        writeFile(directory.filePath("icons/day/icon-0000.svg"), "<svg/>");
        service = std::make_unique<Service>(directory.path());
    }

    QString path(const QString& name) const { return directory.filePath(name); }

private:
    QTemporaryDir directory;
    std::unique_ptr<Service> service;
};

const Device& device()
{
    static const Device device;
    return device;
}

QByteArray read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

struct Connectors {
    TarnisDeviceUiResourcesDBusConnector deviceUiResources;
    TarnisIconProviderDBusConnector iconProvider;
};

struct Answers {
    explicit Answers(const Connectors& connectors)
        : colors(connectors.deviceUiResources.getColorIniFilePath())
        , fonts(connectors.deviceUiResources.getFontIniFilePath())
        , displaySizes(connectors.deviceUiResources.getSupportedDisplaySizes())
        , iconBase(connectors.iconProvider.getIconResourcesBasePath())
        , mappingTable(connectors.iconProvider.getIconResourcesMappingTable(QString()))
    {
    }

    QString colors;
    QString fonts;
    QList<QPair<QSize, QString>> displaySizes;
    QString iconBase;
    QString mappingTable;
};

struct Texts {
    Texts()
        : manager(device().path("texts"), "de")
        , handler(manager)
    {
    }

    TextManager manager;
    TarnisTextHandler handler;
};

void library(benchmark::State& state)
{
    device();
    for (auto _ : state) {
        const Connectors connectors;
        const Answers answers(connectors);
        const TarnisColorHandler colors(answers.colors, nullptr);
        const TarnisFontHandler fonts(answers.fonts, nullptr);
        const TarnisElementDimensionHandler dimensions(answers.displaySizes);
        const TarnisIconHandler icons(answers.iconBase, answers.mappingTable);
        const Texts texts;
        if (colors.getColor("Day", "Accent").isEmpty() || icons.getIconPath("icon-0000").isEmpty())
            qFatal("no answer");
    }
}
BENCHMARK(library)->UseRealTime();

QString dimensionFile()
{
    const TarnisDeviceUiResourcesDBusConnector connector;
    const TarnisElementDimensionHandler handler(connector.getSupportedDisplaySizes());
    return handler.nearestNeighbourScreenSize(QGuiApplication::primaryScreen()->size()).second;
}

void callAll()
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    for (const char* method : {"getColorIniFilePath", "getFontIniFilePath", "getSupportedScreenSizes"})
        bus.call(methodCall("DeviceUiResources", method));
    bus.call(methodCall("IconProvider", "getIconResourcesBasePath"));
    QDBusMessage table = methodCall("IconProvider", "getIconResourcesMappingTable");
    table << QString();
    if (bus.call(table).type() != QDBusMessage::ReplyMessage)
        qFatal("no answer");
}

void parseIni(const QString& path)
{
    benchmark::DoNotOptimize(ResourceFormat::IniParser(read(path)));
}

void parseJson(const QString& path)
{
    benchmark::DoNotOptimize(QJsonDocument::fromJson(read(path)));
}

// The bare parts, which every implementation needs: five calls, and reading and parsing the files.
void bare(benchmark::State& state)
{
    device();
    const QString dimensions = dimensionFile();
    for (auto _ : state) {
        callAll();
        for (const QString& path : {device().path("colors.ini"), device().path("fonts.ini"), dimensions})
            parseIni(path);
        for (const char* path : {"icons/mapping.json", "texts/de.json", "texts/en.json"})
            parseJson(device().path(path));
    }
}
BENCHMARK(bare)->UseRealTime();

// The parts of a start, measured separately.

template <typename Part>
void measure(const char* name, Part part)
{
    benchmark::RegisterBenchmark(name, [part](benchmark::State& state) {
        device();
        const Connectors connectors;
        const Answers answers(connectors);
        for (auto _ : state)
            part(connectors, answers);
    })->UseRealTime();
}

const bool areRegistered = [] {
    measure("part/connectors", [](const Connectors&, const Answers&) { const Connectors again; });
    measure("part/getters", [](const Connectors& connectors, const Answers&) { const Answers again(connectors); });
    measure("part/color handler", [](const Connectors&, const Answers& answers) {
        const TarnisColorHandler handler(answers.colors, nullptr);
    });
    measure("part/font handler",
            [](const Connectors&, const Answers& answers) { const TarnisFontHandler handler(answers.fonts, nullptr); });
    measure("part/dimension handler", [](const Connectors&, const Answers& answers) {
        const TarnisElementDimensionHandler handler(answers.displaySizes);
    });
    measure("part/icon handler", [](const Connectors&, const Answers& answers) {
        const TarnisIconHandler handler(answers.iconBase, answers.mappingTable);
    });
    measure("part/text manager and handler", [](const Connectors&, const Answers&) { const Texts texts; });
    measure("part/bare calls", [](const Connectors&, const Answers&) { callAll(); });
    return true;
}();

} // namespace
