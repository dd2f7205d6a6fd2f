#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "benchmarks/Service.h"

#include <QDBusInterface>

#include <benchmark/benchmark.h>

using namespace Benchmarks;
using namespace Tests;

namespace
{

const Service& service()
{
    static const Service service(RESOURCES);
    return service;
}

void library(benchmark::State& state)
{
    service();
    const TarnisDeviceUiResourcesDBusConnector connector;
    for (auto _ : state) {
        if (connector.getColorIniFilePath().isEmpty())
            qFatal("no answer");
    }
}
BENCHMARK(library)->UseRealTime();

void call(benchmark::State& state)
{
    service();
    const QDBusConnection bus = QDBusConnection::systemBus();
    for (auto _ : state) {
        const QDBusMessage answer =
            bus.call(methodCall("DeviceUiResources", "getColorIniFilePath"), QDBus::Block, 5000);
        if (answer.type() != QDBusMessage::ReplyMessage)
            qFatal("no answer");
    }
}
BENCHMARK(call)->UseRealTime();

void qDBusInterface(benchmark::State& state)
{
    service();
    for (auto _ : state) {
        QDBusInterface object("Module.Tarnis", "/Tarnis/DeviceUiResources", "Interface.DeviceUiResources",
                              QDBusConnection::systemBus());
        if (object.call("getColorIniFilePath").type() != QDBusMessage::ReplyMessage)
            qFatal("no answer");
    }
}
BENCHMARK(qDBusInterface)->Name("QDBusInterface")->UseRealTime();

} // namespace
