// The connectors against a service that answers anything that the bus carries. The service is this program once more;
// what it answers to call number N is made of the seed and N alone, so that the test knows what is right.

#include "tests/support/Expectation.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QDBusConnectionInterface>
#include <QtTest>

#include <array>
#include <optional>
#include <random>
#include <unistd.h>

namespace
{

constexpr int answers = 20000;                     // and a good one after each
constexpr int hugeArray = 32 * 1024 * 1024 - 4096; // what the bus lets through in one message

class Random
{
public:
    Random(uint seed, int number)
        : engine(seed * 1000003U + static_cast<uint>(number))
    {
    }
    int below(int end) { return static_cast<int>(engine() % static_cast<uint>(end)); }
    qint64 bits() { return static_cast<qint64>((quint64(engine()) << 32U) | engine()); }

private:
    std::mt19937 engine;
};

struct Plan {
    enum Kind { Answer, Error, Twice, Late, Disconnect, Death, Successor };

    Plan(uint seed, int number)
        : random(seed, number)
        , getter(random.below(5))
    {
        if (number % 20000 == 200)
            body = {make.record({"ay", QByteArray(hugeArray, 'x'), {}}, false)};
        else if (number % 2 == 1)
            body = {make.record(make.value(getter == 4 ? "a((ii)s)" : "s"), false)};
        else
            makeBody();
        if (number % 20000 == 100)
            kind = Late;
        else if (number % 4000 == 300)
            kind = Death;
        else if (number % 2 == 0 && make.isOneIn(100))
            kind = make.oneOf(std::array{Error, Twice, Disconnect, Successor});
    }

    void makeBody()
    {
        const bool isVariant = !make.isOneIn(10);
        if (isVariant)
            body = {make.answer()};
        for (int more = isVariant && !make.isOneIn(10) ? 0 : random.below(3); more > 0; --more)
            body.append(make.value(make.signature(2)));
    }

    Random random;
    DBusValueMaker<Random> make{random};
    int getter;
    Kind kind = Answer;
    QVector<DBusValue> body;
};

Expectation expect(const Plan& plan)
{
    const auto fail = [&plan](const char* error) { return Expectation::failure(getters[plan.getter], error, {}); };
    if (plan.kind == Plan::Error)
        return fail("out of order");
    if (plan.kind == Plan::Disconnect || plan.kind == Plan::Death)
        return fail("Message recipient disconnected from message bus without replying");
    if (plan.kind == Plan::Late)
        return fail("Did not receive a reply. Possible causes include: the remote application did not send a reply, "
                    "the message bus security policy blocked the reply, the reply timeout expired, or the network "
                    "connection was broken.");
    if (plan.body.isEmpty() || plan.body.at(0).signature != "v")
        return fail("Unexpected reply signature"); // and what was found
    return Expectation::of(getters[plan.getter], plan.body.at(0));
}

// One connection to the bus at a time, which owns the module's name.
class HostileService
{
public:
    HostileService(uint seed, int number)
        : seed(seed)
        , number(number)
    {
        connect();
    }

    // Until the test ends it.
    void run()
    {
        while (dbus_connection_read_write(bus, -1) == TRUE) {
            while (DBusMessage* call = dbus_connection_pop_message(bus)) {
                if (dbus_message_get_type(call) == DBUS_MESSAGE_TYPE_METHOD_CALL)
                    answer(call, Plan(seed, number++));
                dbus_message_unref(call);
            }
        }
    }

private:
    void connect()
    {
        bus = dbus_connection_open_private(qgetenv("DBUS_SYSTEM_BUS_ADDRESS").constData(), nullptr);
        if (bus == nullptr || dbus_bus_register(bus, nullptr) == FALSE)
            qFatal("no bus");
        dbus_connection_set_exit_on_disconnect(bus, FALSE);
        dbus_bus_request_name(bus, "Module.Tarnis", DBUS_NAME_FLAG_ALLOW_REPLACEMENT | DBUS_NAME_FLAG_REPLACE_EXISTING,
                              nullptr);
    }

    void answer(DBusMessage* call, const Plan& plan)
    {
        DBusConnection* const before = bus;
        if (plan.kind == Plan::Death)
            _exit(0);
        if (plan.kind == Plan::Late)
            QThread::msleep(5300);
        if (plan.kind == Plan::Successor)
            connect(); // from now on calls come there
        if (plan.kind == Plan::Error)
            send(before, dbus_message_new_error(call, "Test.Error", "out of order"));
        else if (plan.kind != Plan::Disconnect)
            send(before, DBusValue::appendTo(dbus_message_new_method_return(call), plan.body));
        if (plan.kind == Plan::Twice)
            send(before, DBusValue::appendTo(dbus_message_new_method_return(call), plan.body));
        if (plan.kind == Plan::Successor || plan.kind == Plan::Disconnect) {
            dbus_connection_close(before);
            dbus_connection_unref(before);
        }
        if (plan.kind == Plan::Disconnect)
            connect();
    }

    static void send(DBusConnection* bus, DBusMessage* reply)
    {
        dbus_connection_send(bus, reply, nullptr);
        dbus_connection_flush(bus);
        dbus_message_unref(reply);
    }

    DBusConnection* bus = nullptr;
    uint seed;
    int number;
};

} // namespace

class HostileTest : public QObject
{
    Q_OBJECT

    void startService(int number)
    {
        service.reset();
        service.emplace(QCoreApplication::applicationFilePath(),
                        QStringList{"serve", QString::number(seed), QString::number(number)});
        QCOMPARE(service->firstLine(), QString("ready"));
    }

    void waitForService() const
    {
        QTRY_VERIFY(QDBusConnection::systemBus().interface()->isServiceRegistered("Module.Tarnis").value());
    }

    // What Qt found instead of a variant is Qt's to say.
    static QStringList withoutFoundSignature(QStringList records)
    {
        static const QRegularExpression found(": got .*, expected \\\\\"v\\\\\" \\(QDBusVariant\\)",
                                              QRegularExpression::DotMatchesEverythingOption);
        return records.replaceInStrings(found, QString());
    }

    const uint seed;
    PrivateBus bus;
    const Connectors connectors{};
    std::optional<TestProcess> service;

public:
    explicit HostileTest(uint seed)
        : seed(seed)
    {
    }

private Q_SLOTS:
    void everyAnswerGivesAnAllowedResultAndTheNextOneIsTaken()
    {
        startService(0);
        LogRecorder log;
        int signalCount = 0;
        const auto count = [&signalCount] { ++signalCount; };
        connect(&connectors.resources, &DBusConnectorBase::dBusConnectionError, this, count);
        connect(&connectors.icons, &DBusConnectorBase::dBusConnectionError, this, count);
        for (int number = 0; number < 2 * answers; ++number) {
            const Plan plan(seed, number);
            const Expectation expected = expect(plan);
            const QString result = connectors.ask(plan.getter);
            const QByteArray place = "seed " + QByteArray::number(seed) + ", answer " + QByteArray::number(number)
                + " to " + getters[plan.getter].method.toUtf8();
            QVERIFY2(result == expected.result && result.isNull() == expected.result.isNull(),
                     place + " gives " + Getter::quoted(result.left(200)).toUtf8() + ", not "
                         + Getter::quoted(expected.result.left(200)).toUtf8());
            const QStringList records = withoutFoundSignature(log.take());
            QVERIFY2(records == expected.records,
                     place + " leaves " + records.join('\n').toUtf8() + ", not "
                         + expected.records.join('\n').toUtf8());
            QCOMPARE(std::exchange(signalCount, 0), records.filter("syncCallHelper").size() / 2);
            if (plan.kind == Plan::Death)
                startService(number + 1);
            if (plan.kind == Plan::Disconnect)
                waitForService();
        }
    }
};

// HostileTest [SEED]: tests with the seed (1). HostileTest serve SEED NUMBER: is the service, from call NUMBER on.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != "serve") {
        HostileTest test(arguments.value(1, "1").toUInt());
        return QTest::qExec(&test, {arguments.at(0)});
    }
    alarm(3600); // whatever happens, it ends
    HostileService service(arguments.value(2).toUInt(), arguments.value(3).toInt());
    puts("ready");
    fflush(stdout);
    service.run();
    return 0;
}

#include "HostileTest.moc"
