// tarnis-module with hostile callers, which are this program in a second process.

#include "tests/support/HostileCaller.h"
#include "tests/support/ModuleFixture.h"

#include <grp.h>

namespace Tests
{

class CallerTest : public QObject
{
    Q_OBJECT

public:
    CallerTest(int callCount, int mostInFlight)
        : count(callCount)
        , depth(mostInFlight)
    {
    }

private:
    static QString busConfiguration(int mostInFlight)
    {
        QFile configuration(TEST_BUS_CONFIGURATION);
        configuration.open(QIODevice::ReadOnly);
        const QString limits("<limit name=\"max_replies_per_connection\">%1</limit>"
                             "<limit name=\"max_outgoing_unix_fds\">%2</limit>");
        // A bus whose queue of files is full rejects all calls. The policy of the system bus lets no files through.
        return QString::fromUtf8(configuration.readAll())
            .replace("</busconfig>", limits.arg(mostInFlight).arg(1000000) + "</busconfig>");
    }

    // In megabytes.
    double memory()
    {
        QFile status(QString("/proc/%1/status").arg(service->module->process().processId()));
        status.open(QIODevice::ReadOnly);
        static const QRegularExpression resident("VmRSS:\\s*(\\d+)");
        return resident.match(status.readAll()).captured(1).toDouble() / 1024;
    }

    // Returns the milliseconds until the answer.
    static qint64 callProperly()
    {
        QElapsedTimer timer;
        timer.start();
        const auto call = QDBusMessage::createMethodCall("Module.Tarnis", "/Tarnis/DeviceUiResources",
                                                         "Interface.DeviceUiResources", "getColorIniFilePath");
        const QDBusMessage answer = QDBusConnection::systemBus().call(call, QDBus::Block, patience);
        if (answer.signature() != "v")
            QTest::qFail(qPrintable("a good call fails: " + answer.errorMessage()), __FILE__, __LINE__);
        return timer.elapsed();
    }

    // Returns the longest time that a good call needs meanwhile.
    qint64 flood(int calls, const QString& user)
    {
        Child callers;
        callers.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        callers.launch(QCoreApplication::applicationFilePath(),
                       {"flood", QString::number(calls), QString::number(depth), user});
        qint64 longest = 0;
        while (!callers.waitForFinished(1) && callers.state() != QProcess::NotRunning && !QTest::currentTestFailed())
            longest = qMax(longest, callProperly());
        if (callers.exitStatus() != QProcess::NormalExit || callers.exitCode() != 0)
            QTest::qFail("the callers fail", __FILE__, __LINE__);
        made += callers.readAllStandardOutput().trimmed().toInt();
        return longest;
    }

    static constexpr int patience = 60000; // milliseconds; a busy machine is no fault of the module

    const int count;
    const int depth;
    const QTemporaryDir parent;
    std::optional<ModuleFixture> service;
    int made = 0;

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":quarantine_size_mb=1"); // which would count as memory
        service.emplace(writeFile(parent.filePath("bus.conf"), busConfiguration(depth).toUtf8()));
        service->startModule();
        QVERIFY(run("cp", {"-r", RESOURCES "/.", service->path()}).exitStatus == 0);
    }

    void floodStopsNothingAndLeavesNoMemoryBehind_data()
    {
        QTest::addColumn<QString>("user");
        QTest::newRow("callers with the user of the module") << QString();
        if (getuid() == 0)
            QTest::newRow("callers with another user") << QString("nobody");
    }

    void floodStopsNothingAndLeavesNoMemoryBehind()
    {
        QFETCH(QString, user);
        flood(count / 4, user);
        const double before = memory();
        made = 0;
        const qint64 longest = flood(count, user);
        const qint64 next = callProperly();
        const double after = memory();
        std::printf(
            "%d calls: %.1f MB before, %.1f MB after; a good call took at most %lld ms, and %lld ms after them\n", made,
            before, after, longest, next);
        QVERIFY2(made >= count && after < before + 16, qPrintable(QString::number(after - before)));
        QCOMPARE(service->takeErrors(), QStringList());
    }

    // Unlike SIGTERM, it leaves the time for a search for leaks.
    void moduleEndsWithoutAReportOfASanitizer()
    {
        service->bus.daemon.process().kill();
        QVERIFY(service->module->process().waitForFinished(30000));
        QCOMPARE(service->takeErrors(), QStringList("tarnis-module: lost the connection to the D-Bus"));
        QCOMPARE(service->module->process().exitCode(), 4);
    }
};

} // namespace Tests

// Tests::CallerTest [COUNT [IN_FLIGHT]]: makes at least COUNT (20,000) calls for each user.
// Tests::CallerTest flood COUNT IN_FLIGHT USER: is the callers.
int main(int argc, char* argv[])
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "7200000"); // for all calls, in milliseconds
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) != "flood") {
        Tests::CallerTest test(arguments.value(1, "20000").toInt(), arguments.value(2, "128").toInt());
        return QTest::qExec(&test, {arguments.at(0)});
    }
    alarm(7200); // ends the callers in any case
    constexpr uid_t nobody = 65534;
    if (!arguments.value(4).isEmpty() && (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0))
        return 1;
    Tests::HostileCaller callers(1, 200, arguments.value(3).toInt());
    std::printf("%d\n", callers.run(arguments.value(2).toInt()));
    return 0;
}

#include "CallerTest.moc"
