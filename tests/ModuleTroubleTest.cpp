// tarnis-module, whose files, log, bus and users are in trouble.

#include "tests/support/DataRows.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/ModuleFixture.h"

#include <atomic>
#include <future>
#include <unistd.h>

namespace Tests
{

class ModuleTroubleTest : public QObject
{
    Q_OBJECT

    // Whether the process runs the module and has a connection, which may still be waiting for the other side.
    static bool isConnecting(qint64 process)
    {
        QFile command(QString("/proc/%1/cmdline").arg(process)); // that of the test before the module is executed
        if (!command.open(QIODevice::ReadOnly) || !command.readAll().contains("--resources"))
            return false;
        const QDir descriptors(QString("/proc/%1/fd").arg(process));
        for (const QFileInfo& descriptor : descriptors.entryInfoList(QDir::Files | QDir::System)) {
            if (descriptor.symLinkTarget().contains("socket:"))
                return true;
        }
        return false;
    }

    static void compareEnd(QProcess& process, int status)
    {
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished(10000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), status);
    }

    ModuleFixture service;

private Q_SLOTS:
    void init() { service.startModule(); }
    void cleanup() { service.stopModule(); }

    void badDimensionFileIsLeftOutAndLoggedOncePerChange_data() { addRows({"damage", "leftOut"}); }

    void badDimensionFileIsLeftOutAndLoggedOncePerChange()
    {
        const QStringList expected = service.ask();
        QCOMPARE(service.takeErrors(), QStringList());
        service.shell("cd dimensions; " + row()["damage"].toString());
        const QStringList record("tarnis-module: left out: " + row()["leftOut"].toString());
        QCOMPARE(service.ask(), expected);
        QCOMPARE(service.ask(), expected);
        QCOMPARE(service.takeErrors(), record);
        service.shell("mkdir aside; cd dimensions; for F in *; do case $F in 800x*|1024x*) ;; *) mv \"$F\" ../aside; "
                      "esac; done");
        QCOMPARE(service.ask(), expected);
        service.shell("mv aside/* dimensions");
        QCOMPARE(service.ask(), expected);
        QCOMPARE(service.takeErrors(), record);
    }

    void goodLinksAndTheLargestTableAreAnswered()
    {
        service.shell("mv fonts.ini shared; ln -s shared fonts.ini; ln -sf $PWD/shared colors.ini; "
                      "cd icons; mkdir ../tables; mv mapping.json ../tables; ln -s ../tables/mapping.json; "
                      "head -c $((16777216 - 10)) /dev/zero | tr '\\0' ' ' >> mapping.json");
        const QString size = "%1 " + service.path("dimensions/%1.ini;");
        const QString table = "{\"a\": {}}\n" + QString(16777216 - 10, ' ');
        const QStringList expected{service.path("fonts.ini"), service.path("colors.ini"), service.path("icons"), table,
                                   size.arg("800x480") + size.arg("800x600") + size.arg("1024x600")};
        QVERIFY(service.ask() == expected);
        service.shell("cd ..; mv resources elsewhere; ln -s elsewhere resources");
        service.shell("ln -sf $PWD/shared colors.ini; cd icons; echo '{}' > mapping.json");
        QCOMPARE(service.ask().mid(0, 3), expected.mid(0, 3));
    }

    // A FIFO that is opened in place of a file would stop the module for good, and any of them could be switched
    // between the check and the opening.
    void fileThatIsSwitchedAllTheTimeStopsNothing()
    {
        service.shell("mkfifo fifo; cp icons/mapping.json 0; echo '{\"secret\": {}}' > ../secret");
        const QByteArray file = service.path("icons/mapping.json").toUtf8();
        std::atomic<bool> isOver{false};
        auto owner = std::async(std::launch::async, [&] {
            const QByteArray next = file + ".next";
            const char* const targets[] = {"../0", "../fifo", "../0", "../../secret", "../0", "none"};
            for (int turn = 0; !isOver; ++turn) {
                if (symlink(targets[turn % 6], next.constData()) != 0
                    || rename(next.constData(), file.constData()) != 0)
                    return false;
            }
            return true;
        });
        const auto stop = qScopeGuard([&] { isOver = true; });
        LogRecorder log;
        int times[2] = {};
        for (int call = 0; call < 4000; ++call) {
            const QString table = service.connectors.icons.getIconResourcesMappingTable("");
            QVERIFY2(table.isNull() || table == "{\"a\": {}}\n", qPrintable(table));
            QVERIFY(log.take().filter("D-Bus call to method").isEmpty()); // there is an answer
            ++times[table.isNull() ? 1 : 0];
        }
        isOver = true;
        QVERIFY(owner.get() && times[0] > 0 && times[1] > 0);
    }

    void sigtermEndsItInEveryState_data() { addRows({"isStarting", "isBusStopped"}); }

    void sigtermEndsItInEveryState()
    {
        const auto resume = qScopeGuard([&] { service.bus.daemon.sendSignal(SIGCONT); });
        if (row()["isBusStopped"].toBool())
            service.bus.daemon.sendSignal(SIGSTOP);
        Child child;
        if (row()["isStarting"].toBool()) {
            child.launch(TARNIS_MODULE, {"--resources", service.path()});
            QTRY_VERIFY_WITH_TIMEOUT(isConnecting(child.processId()), 10000);
        }
        QProcess& process = row()["isStarting"].toBool() ? child : service.module->process();
        process.terminate();
        compareEnd(process, 0);
    }

    void lostBusEndsIt()
    {
        const QByteArray address = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
        PrivateBus bus; // of the module alone
        TestProcess module(TARNIS_MODULE, {"--resources", service.path()}, service.path("errors"));
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
        QCOMPARE(module.firstLine(), "Module.Tarnis publishes " + service.path());
        bus.daemon.process().kill();
        compareEnd(module.process(), 4);
        QFile errors(service.path("errors"));
        QVERIFY(errors.open(QIODevice::ReadOnly));
        QCOMPARE(errors.readAll(), QByteArray("tarnis-module: lost the connection to the D-Bus\n"));
    }

    // With a long path, an error that quotes it would be too large for the bus, which would cut the connection.
    void nameAsLargeAsTheBusAllowsStopsNothing()
    {
        service.stopModule();
        const QString directory = service.path(QString(200, 'd'));
        service.shell("mkdir -p " + directory + "/icons; cp colors.ini " + directory);
        TestProcess module(TARNIS_MODULE, {"--resources", directory});
        constexpr int size = 32 * 1024 * 1024 - 220; // with the rest of the message
        QVERIFY(service.connectors.icons.getIconResourcesMappingTable(QString(size, 'x')).isNull());
        QCOMPARE(service.connectors.resources.getColorIniFilePath(), directory + "/colors.ini");
    }

    void fullLogStopsNothing()
    {
        service.stopModule();
        service.shell("touch dimensions/bad.ini");
        Child module;
        module.setStandardOutputFile("/dev/full");
        module.setStandardErrorFile("/dev/full");
        module.launch(TARNIS_MODULE, {"--resources", service.path()});
        QTRY_COMPARE_WITH_TIMEOUT(service.connectors.resources.getColorIniFilePath(), service.path("colors.ini"),
                                  10000);
        for (int call = 0; call < 3; ++call)
            QCOMPARE(service.connectors.resources.getSupportedDisplaySizes().size(), 3);
        module.terminate();
        compareEnd(module, 0);
    }
};

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::ModuleTroubleTest)
#include "ModuleTroubleTest.moc"
