// The host library with the real service.

#include "QmlHost/TarnisUi.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "tests/support/HostPage.h"
#include "tests/support/RecordCounter.h"

#include <optional>

namespace Tests
{

class QmlHostServiceTest : public QObject
{
    Q_OBJECT

    PrivateBus bus;
    std::optional<TestProcess> module;
    std::optional<ResourceCopy> resources;

    void startModule()
    {
        module.emplace(TARNIS_MODULE, QStringList{"--resources", resources->path});
        QVERIFY(module->firstLine().endsWith(resources->path));
    }

private Q_SLOTS:
    void init() { resources.emplace(); }

    void cleanup()
    {
        module.reset();
        resources.reset();
    }

    void everyEngineGetsEmptyLookupsAndThenTheAnswers()
    {
        const RecordCounter counter;
        TarnisUi ui;
        ui.publish();
        const Page first(lookups);
        QCOMPARE(first["all"].toString(), QString(",,0,,,,false"));
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("Module.Tarnis does not answer"), 10000);
        QVERIFY(!ui.waitUntilReady(1));
        startModule();
        QVERIFY(ui.waitUntilReady(10000));
        const Page second(lookups);
        for (const Page* page : {&first, &second})
            QCOMPARE((*page)["all"].toString(), resources->lookups("Cancel"));
        QCOMPARE(ui.problem(), QString());
        QCOMPARE(counter.recordsOfLookups.load(), 0);
    }

    void stoppedServiceBlocksNothingNotEvenTheEnd()
    {
        startModule();
        module->sendSignal(SIGSTOP);
        const RecordCounter counter;
        {
            TarnisUi ui;
            ui.publish();
            const Page page(lookups);
            QVERIFY(!ui.waitUntilReady(100)); // usually the first call is in progress by then
            QCOMPARE(ui.problem(), QString());
        }
        QCOMPARE(counter.failedCalls.load(), 0); // the end did not wait until the call failed
        TarnisUi ui;
        QVERIFY(!ui.waitUntilReady(100));
        module->sendSignal(SIGCONT);
        QVERIFY(ui.waitUntilReady(10000));
    }

    void hungServiceIsAskedAgainAsSoonAsItAnswers()
    {
        startModule();
        const RecordCounter counter;
        TarnisUi ui;
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        module->sendSignal(SIGSTOP);
        resources->shell("sed -i s/#1f2a37/#fe01fd/ colors.ini");
        ui.askAgain();
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("Module.Tarnis does not answer"), 10000);
        module->sendSignal(SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QCOMPARE(ui.problem(), QString());
        QCOMPARE(counter.failedCalls.load(),
                 0); // the answer to the first call is enough: no other one had to be repeated
    }

    void fileEditedWhileTheServiceHangsIsShown()
    {
        startModule();
        TarnisUi ui(TarnisUi::service(TarnisUi::Files::Followed));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        module->sendSignal(SIGSTOP);
        for (const QString color : {"#fe01fd", "#fe01fe", "#fe01ff"}) {
            resources->shell("sed -i '/Day/,/Night/s/^Text=.*/Text=" + color + "/' colors.ini");
            QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), color, 10000);
            if (color == "#fe01fe")
                module.reset(); // gone
        }
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel").replace("#1f2a37", "#fe01ff"));
    }

    void onlyWhatARestartedServiceChangesIsReadAgain()
    {
        startModule();
        TarnisUi ui;
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups + "property QtObject ui: Ui");
        auto* const object = page["ui"].value<QObject*>();
        QSignalSpy colors(object, SIGNAL(colorsChanged()));
        QSignalSpy icons(object, SIGNAL(iconsChanged()));
        QSignalSpy texts(object, SIGNAL(textsChanged()));
        startModule(); // the old one is killed
        resources->shell("sed -i 's/\"Cancel\"/\"Away\"/' texts/en.json");
        ui.askAgain();
        QTRY_COMPARE_WITH_TIMEOUT(page["text"].toString(), QString("Away"), 10000);
        resources->shell("sed -i s/#1f2a37/#fe01fd/ colors.ini");
        startModule();
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QCOMPARE((QList<qsizetype>{colors.count(), icons.count(), texts.count()}), (QList<qsizetype>{1, 0, 1}));
    }

    void filesOfTheServiceAreFollowedOnRequest()
    {
        startModule();
        TarnisUi ui(TarnisUi::service(TarnisUi::Files::Followed));
        QVERIFY(ui.waitUntilReady(10000));
        QSignalSpy changes(&ui, &TarnisUi::answersChanged);
        resources->shell("echo >> icons/day/home.svg");
        QVERIFY(changes.wait(10000));
        const ResourceCopy other;
        module.emplace(TARNIS_MODULE, QStringList{"--resources", other.path});
        QTRY_VERIFY_WITH_TIMEOUT(ui.answers().colorFile.value.startsWith(other.path), 10000);
        other.shell("echo >> icons/day/home.svg");
        QVERIFY(changes.wait(10000));
    }

    void failedQuestionKeepsWhatWasThereAndIsRepeated()
    {
        startModule();
        TarnisUi ui;
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups + "property string problem: Ui.problem");
        resources->shell("mv icons/mapping.json away; sed -i s/#1f2a37/#fe01fd/ colors.ini");
        ui.askAgain();
        QTRY_VERIFY_WITH_TIMEOUT(page["problem"].toString().contains("the icon mapping table;"), 10000);
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel").replace("#1f2a37", "#fe01fd"));
        resources->shell("mv away icons/mapping.json");
        QTRY_COMPARE_WITH_TIMEOUT(page["problem"].toString(), QString(), 10000);
    }

    // The last one: this process never gets another bus.
    void lostBusIsReported()
    {
        startModule();
        TarnisUi ui;
        QVERIFY(ui.waitUntilReady(10000));
        const TarnisIconProviderDBusConnector oldConnector;
        QVERIFY(oldConnector.isDBusInterfaceValid());
        bus.daemon.process().kill();
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("is lost, and this process cannot reconnect"), 10000);
        QVERIFY(ui.isReady());
        const QString address = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS").section(',', 0, 0);
        const TestProcess restartedBus("dbus-daemon",
                                       {"--config-file", TEST_BUS_CONFIGURATION, "--nofork", "--nopidfile",
                                        "--print-address", "--address=" + address});
        QVERIFY(restartedBus.firstLine().startsWith(address));
        const TarnisIconProviderDBusConnector newConnector;
        for (const TarnisIconProviderDBusConnector* connector : {&oldConnector, &newConnector}) {
            QVERIFY(!connector->isDBusInterfaceValid());
            const QString message = connector->getInvalidDBusInterfaceMessage();
            QVERIFY2(message.contains(QRegularExpression("^No connection to the D-Bus \\(.+\\): .")),
                     qPrintable(message));
        }
        TarnisUi later;
        QTRY_VERIFY_WITH_TIMEOUT(later.problem().contains("no connection to the D-Bus ("), 10000);
    }
};

} // namespace Tests

QTEST_MAIN(Tests::QmlHostServiceTest)
#include "QmlHostServiceTest.moc"
