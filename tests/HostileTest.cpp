// The connectors against a service that answers anything that the bus carries. The service is this program in a second
// process.

#include "tests/support/Expectation.h"
#include "tests/support/HostileService.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QDBusConnectionInterface>
#include <QtTest>

#include <optional>

namespace Tests
{

namespace
{

constexpr int callCount = 40000;

const QMap<Scenario, QString> callErrors{
    {Scenario::RefusesWithAnError, "out of order"},
    {Scenario::LeavesTheBusWithoutAnswering, "Message recipient disconnected from message bus without replying"},
    {Scenario::DiesBeforeAnswering, "Message recipient disconnected from message bus without replying"},
    {Scenario::AnswersTooLate,
     "Did not receive a reply. Possible causes include: the remote application did not send a reply, the message bus "
     "security policy blocked the reply, the reply timeout expired, or the network connection was broken."},
};

Expectation expectationOf(const HostileCall& call)
{
    if (callErrors.contains(call.scenario))
        return Expectation::failure(call.getter, callErrors[call.scenario], {});
    if (call.body.isEmpty() || call.body.at(0).signature != "v")
        return Expectation::failure(call.getter, "Unexpected reply signature", {});
    return Expectation::of(call.getter, call.body.at(0));
}

// Qt appends to "Unexpected reply signature" what it found instead of a variant.
QStringList withoutFoundSignature(QStringList records)
{
    static const QRegularExpression found(": got .*, expected \\\\\"v\\\\\" \\(QDBusVariant\\)",
                                          QRegularExpression::DotMatchesEverythingOption);
    return records.replaceInStrings(found, QString());
}

} // namespace

class HostileTest : public QObject
{
    Q_OBJECT

    void startService(int number)
    {
        service.reset();
        service.emplace(QCoreApplication::applicationFilePath(),
                        QStringList{"serve", QString::number(seed), QString::number(number)});
        QCOMPARE(service->firstLine(), "ready");
    }

    static bool isServiceOnTheBus()
    {
        return QDBusConnection::systemBus().interface()->isServiceRegistered("Module.Tarnis").value();
    }

    // On a busy machine an answer may take longer than the library waits. Then the service begins again with this call,
    // and Qt Test ends the program if no answer is ever in time.
    Expectation answerOf(const HostileCall& call, int number, LogRecorder& log)
    {
        while (true) {
            signalCount = 0;
            const QString result = call.getter.ask(connectors);
            const QStringList records = withoutFoundSignature(log.take());
            const bool isLate = !records.filter(callErrors[Scenario::AnswersTooLate]).isEmpty();
            if (!isLate || call.scenario == Scenario::AnswersTooLate)
                return {result, records};
            startService(number);
        }
    }

    const uint seed = QCoreApplication::arguments().value(1, "1").toUInt();
    PrivateBus bus;
    const Connectors connectors{};
    std::optional<TestProcess> service;
    int signalCount = 0;

private Q_SLOTS:
    void everyAnswerGivesItsResultAndTheNextCallSucceeds()
    {
        startService(0);
        LogRecorder log;
        const auto count = [this] { ++signalCount; };
        connect(&connectors.resources, &DBusConnectorBase::dBusConnectionError, this, count);
        connect(&connectors.icons, &DBusConnectorBase::dBusConnectionError, this, count);
        for (int number = 0; number < callCount; ++number) {
            const HostileCall call(seed, number);
            const QString expected = expectationOf(call).text();
            const Expectation answer = answerOf(call, number, log);
            const QString found = answer.text();
            const QString place = QString("seed %1, call %2 to %3").arg(seed).arg(number).arg(call.getter.method);
            QVERIFY2(found == expected,
                     qPrintable(place + "\nfound " + found.left(1000) + "\nexpected " + expected.left(1000)));
            QCOMPARE(signalCount, answer.records.filter("syncCallHelper").size() / 2);
            if (call.scenario == Scenario::DiesBeforeAnswering)
                startService(number + 1);
            if (call.scenario == Scenario::LeavesTheBusWithoutAnswering)
                QTRY_VERIFY_WITH_TIMEOUT(isServiceOnTheBus(), 10000);
        }
    }
};

} // namespace Tests

// Tests::HostileTest [SEED]: runs the test with the seed (1).
// Tests::HostileTest serve SEED NUMBER: runs the service, from call NUMBER on.
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != "serve") {
        Tests::HostileTest test;
        return QTest::qExec(&test, {arguments.at(0)});
    }
    alarm(3600); // ends the service in any case
    Tests::HostileService service{arguments.value(2).toUInt(), arguments.value(3).toInt()};
    service.connect();
    puts("ready");
    fflush(stdout);
    service.run();
    return 0;
}

#include "HostileTest.moc"
