#pragma once

#include "tests/support/HostileCall.h"

#include <QElapsedTimer>

namespace Tests
{

/// Calls the module in every way that the bus lets through, from many connections at once. libdbus writes the calls.
class HostileCaller
{
public:
    HostileCaller(uint seed, int connectionCount, int mostInFlight)
        : random{std::mt19937(seed)}
        , depth(mostInFlight)
        , callers(connectionCount)
    {
        for (Caller& caller : callers)
            caller.bus = connect();
    }

    ~HostileCaller()
    {
        for (const Caller& caller : qAsConst(callers))
            disconnect(caller.bus);
    }
    Q_DISABLE_COPY(HostileCaller)

    /// Makes at least this many calls. In each round, one of the callers has as many calls in flight as the bus allows,
    /// and one in ten vanishes before the answers. Returns the number of calls.
    int run(int count)
    {
        int made = 0;
        while (made < count) {
            const int greedy = random.below(static_cast<int>(callers.size()));
            for (int number = 0; number < callers.size(); ++number) {
                const int calls = number == greedy ? depth : random.below(10);
                for (int call = 0; call < calls; ++call)
                    callers[number].owed += send(callers[number].bus);
                dbus_connection_flush(callers[number].bus);
                made += calls;
            }
            for (Caller& caller : callers) {
                if (random.below(10) == 0)
                    vanish(caller);
                else
                    awaitAnswers(caller);
            }
        }
        return made;
    }

private:
    struct Caller {
        DBusConnection* bus = nullptr;
        int owed = 0; // answers
    };

    static DBusConnection* connect()
    {
        DBusConnection* bus = dbus_connection_open_private(qgetenv("DBUS_SYSTEM_BUS_ADDRESS").constData(), nullptr);
        if (bus == nullptr || dbus_bus_register(bus, nullptr) == FALSE)
            qFatal("cannot connect to the bus");
        dbus_connection_set_exit_on_disconnect(bus, FALSE);
        return bus;
    }

    static void disconnect(DBusConnection* bus)
    {
        dbus_connection_close(bus);
        dbus_connection_unref(bus);
    }

    static void vanish(Caller& caller)
    {
        disconnect(caller.bus);
        caller = {connect()};
    }

    static void awaitAnswers(Caller& caller)
    {
        QElapsedTimer silence;
        for (silence.start(); caller.owed > 0 && !silence.hasExpired(60000);) {
            dbus_connection_read_write(caller.bus, 100);
            while (DBusMessage* message = dbus_connection_pop_message(caller.bus)) {
                caller.owed -= dbus_message_get_reply_serial(message) != 0 ? 1 : 0;
                dbus_message_unref(message);
                silence.start();
            }
            if (dbus_connection_get_is_connected(caller.bus) == FALSE)
                qFatal("the bus has cut the connection");
        }
        if (caller.owed > 0)
            qFatal("%d answers are missing", caller.owed);
    }

    // Returns the number of answers that it is owed: 0 or 1.
    int send(DBusConnection* bus)
    {
        DBusMessage* message = random.below(50) == 0
            ? dbus_message_new_signal("/Tarnis/IconProvider", "Interface.IconProvider", "getIconResourcesBasePath")
            : call();
        dbus_message_set_destination(message, "Module.Tarnis");
        const bool isAnswered = dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL && random.below(10) > 0;
        dbus_message_set_no_reply(message, isAnswered ? FALSE : TRUE);
        dbus_connection_send(bus, message, nullptr);
        dbus_message_unref(message);
        return isAnswered ? 1 : 0;
    }

    DBusMessage* call()
    {
        const Getter& getter = getters[random.below(5)];
        const bool isOfIcons = getter.method.startsWith("getIcon");
        QByteArray path = isOfIcons ? "/Tarnis/IconProvider" : "/Tarnis/DeviceUiResources";
        QByteArray interface = isOfIcons ? "Interface.IconProvider" : "Interface.DeviceUiResources";
        QByteArray member = getter.method.toUtf8();
        switch (random.below(20)) {
        case 0:
            path = hugePaths > 0 && random.below(10) == 0 ? '/' + QByteArray(1000000, 'x') : "/no/such/object";
            hugePaths -= path.size() > 1000 ? 1 : 0;
            break;
        case 1:
            interface = QByteArray("a.") + QByteArray(random.below(250) + 1, 'b');
            break;
        case 2:
            member = QByteArray(random.below(255) + 1, 'm');
            break;
        case 3:
            interface = "org.freedesktop.DBus.Properties", member = "GetAll";
            break;
        case 4:
            interface = "org.freedesktop.DBus.Introspectable", member = "Introspect";
            break;
        }
        DBusMessage* message =
            dbus_message_new_method_call(nullptr, path.constData(), interface.constData(), member.constData());
        return DBusValue::appendTo(message, arguments(getter));
    }

    QVector<DBusValue> arguments(const Getter& getter)
    {
        const bool needsName = getter.method == "getIconResourcesMappingTable";
        make.room = 200;
        switch (random.below(10)) {
        case 0:
            return {make.value(make.signature(3)), make.value(make.signature(2))};
        case 1:
            return {{"ah", {}, QVector<DBusValue>(random.below(mostFiles + 1), {"h", {}, {}})}};
        case 2:
            return {nestedVariant(mostNested)};
        case 3:
            return {{"s", make.text(), {}}};
        default:
            return needsName ? QVector<DBusValue>{{"s", "", {}}} : QVector<DBusValue>();
        }
    }

    static DBusValue nestedVariant(int levels)
    {
        return {"v", {}, {levels == 1 ? DBusValue{"i", 1, {}} : nestedVariant(levels - 1)}};
    }

    // The bus disconnects a caller that sends more.
    static constexpr int mostNested = 64;
    static constexpr int mostFiles = 16;

    Random random;
    DBusValueMaker<Random> make{random};
    const int depth;
    int hugePaths = 100;
    QVector<Caller> callers;
};

} // namespace Tests
