// A service in the place of tarnis-module that answers every call by the scenario that the test names.

#include "Common/DBusTools/DBusReply.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QSize>
#include <QTimer>

#include <cstdio>
#include <unistd.h>

namespace
{

using NumberAndText = QPair<int, QString>;
using DisplaySize = QPair<QSize, QString>;

// The values of good reply records.
const QHash<QString, QVariant> values{
    {"text", "/x/y.ini"},
    {"empty text", ""},
    {"number", -42},
    {"boolean", true},
    {"byte array", QByteArray("bytes")},
    {"array of strings", QStringList{"one"}},
    {"structure", QSize(1, 2)},
    {"dictionary", QVariantMap{{"key", 1}}},
    {"variant", QVariant::fromValue(QDBusVariant("inner"))},
    {"object path", QVariant::fromValue(QDBusObjectPath("/x"))},
    {"array of numbers", QVariant::fromValue(QList<int>{1, 2})},
    {"array of other structures", QVariant::fromValue(QList<NumberAndText>{{1, "one"}})},
    {"sizes", QVariant::fromValue(QList<DisplaySize>{{{800, 480}, "/b"}, {{-1, 0}, ""}, {{800, 480}, "/a"}})},
    {"no sizes", QVariant::fromValue(QList<DisplaySize>())},
};

QVariant variantOf(const QVariant& content)
{
    return QVariant::fromValue(QDBusVariant(content));
}

QVariant record(const QVariant& value)
{
    DBusReply reply;
    reply.setValue(value);
    return variantOf(QVariant::fromValue(reply));
}

QVariant errorRecord()
{
    DBusReply reply;
    reply.setError(7, "no \"such\" file");
    return variantOf(QVariant::fromValue(reply));
}

class FakeService : public QDBusVirtualObject
{
public:
    QString introspect(const QString& /*path*/) const override { return QString(); }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        lifetime.start();
        if (message.interface() == "Test.Control") {
            scenario = message.arguments().constFirst().toString();
            return connection.send(message.createReply());
        }
        if (scenario == "death")
            _exit(0);
        return scenario == "silence" || connection.send(answer(message));
    }

    // It outlives neither its bus nor a test that forgot it.
    QTimer lifetime;

private:
    QDBusMessage answer(const QDBusMessage& message) const
    {
        if (scenario == "D-Bus error")
            return message.createErrorReply("Test.Error", "out of order");
        if (scenario == "error record")
            return message.createReply(errorRecord());
        if (scenario == "other record")
            return message.createReply(variantOf(QVariant::fromValue(NumberAndText(1, "one"))));
        if (scenario == "no record")
            return message.createReply(variantOf("text"));
        if (scenario == "no variant")
            return message.createReply("text");
        if (scenario == "nothing")
            return message.createReply();
        if (scenario == "two values")
            return message.createReply(QVariantList{record("first"), "second"});
        if (scenario == "echo")
            return message.createReply(record(message.signature() + ':' + message.arguments().value(0).toString()));
        return message.createReply(record(values.value(scenario)));
    }

    QString scenario;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    qDBusRegisterMetaType<DBusReply>();
    qDBusRegisterMetaType<NumberAndText>();
    qDBusRegisterMetaType<QList<NumberAndText>>();
    qDBusRegisterMetaType<DisplaySize>();
    qDBusRegisterMetaType<QList<DisplaySize>>();
    FakeService service;
    QObject::connect(&service.lifetime, &QTimer::timeout, QCoreApplication::instance(), &QCoreApplication::quit);
    service.lifetime.start(30000);
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.registerVirtualObject("/", &service, QDBusConnection::SubPath);
    if (!bus.registerService("Module.Tarnis"))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return QCoreApplication::exec();
}
