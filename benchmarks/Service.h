#pragma once

#include "tests/support/TestProcess.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace Benchmarks
{

/// The service on a private bus, which is the system bus of this process.
struct Service {
    explicit Service(const QString& resources)
        : module(TARNIS_MODULE, {"--resources", resources})
    {
        if (module.firstLine().isEmpty())
            qFatal("tarnis-module did not start");
    }

    Tests::PrivateBus bus;
    Tests::TestProcess module;
};

inline QDBusMessage methodCall(const QString& object, const QString& method)
{
    return QDBusMessage::createMethodCall("Module.Tarnis", "/Tarnis/" + object, "Interface." + object, method);
}

} // namespace Benchmarks
