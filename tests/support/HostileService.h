#pragma once

#include "tests/support/HostileCall.h"

#include <QThread>

namespace Tests
{

/// Owns the module's name on the bus and treats each call as its HostileCall says, from call `number` on.
struct HostileService {
    uint seed;
    int number;
    DBusConnection* bus = nullptr;

    /// Opens a connection, which takes over the name.
    void connect()
    {
        bus = dbus_connection_open_private(qgetenv("DBUS_SYSTEM_BUS_ADDRESS").constData(), nullptr);
        if (bus == nullptr || dbus_bus_register(bus, nullptr) == FALSE)
            qFatal("cannot connect to the bus");
        dbus_connection_set_exit_on_disconnect(bus, FALSE);
        dbus_bus_request_name(bus, "Module.Tarnis", DBUS_NAME_FLAG_ALLOW_REPLACEMENT | DBUS_NAME_FLAG_REPLACE_EXISTING,
                              nullptr);
    }

    /// Runs until the test ends the process.
    void run()
    {
        while (dbus_connection_read_write(bus, -1) == TRUE) {
            while (DBusMessage* message = dbus_connection_pop_message(bus)) {
                if (dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL)
                    play(HostileCall(seed, number++), message);
                dbus_message_unref(message);
            }
        }
    }

private:
    void play(const HostileCall& call, DBusMessage* message)
    {
        switch (call.scenario) {
        case Scenario::AnswersTooLate:
            QThread::msleep(lateInMilliseconds);
            return answer(call, message);
        case Scenario::AnswersTwice:
            answer(call, message);
            return answer(call, message);
        case Scenario::RefusesWithAnError:
            return send(dbus_message_new_error(message, "Test.Error", "out of order"));
        case Scenario::LeavesTheBusWithoutAnswering:
            leave();
            return connect();
        case Scenario::DiesBeforeAnswering:
            _exit(0);
        case Scenario::HandsItsNameToASuccessor: {
            HostileService successor{seed, number};
            successor.connect();
            answer(call, message);
            leave();
            bus = successor.bus;
            return;
        }
        case Scenario::Answers:
            return answer(call, message);
        }
    }

    void answer(const HostileCall& call, DBusMessage* message)
    {
        send(DBusValue::appendTo(dbus_message_new_method_return(message), call.body));
    }

    void send(DBusMessage* reply)
    {
        dbus_connection_send(bus, reply, nullptr);
        dbus_connection_flush(bus);
        dbus_message_unref(reply);
    }

    void leave()
    {
        dbus_connection_close(bus);
        dbus_connection_unref(bus);
    }
};

} // namespace Tests
