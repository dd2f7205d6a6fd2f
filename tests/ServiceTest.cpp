// The connectors against tarnis-module.

#include "tests/support/DataRows.h"
#include "tests/support/Getters.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <optional>

namespace Tests
{

namespace
{

// The elements of the named interface in their order, each with its attributes in alphabetical order.
QStringList elements(const QString& introspection, const QString& interfaceName)
{
    static const QRegularExpression element("<(\\w[^>]*?)/?>");
    const QString members = introspection.section("<interface name=\"" + interfaceName + "\">", 1);
    QStringList found;
    for (auto match = element.globalMatch(members.section("</interface>", 0, 0)); match.hasNext();) {
        QStringList words = match.next().captured(1).split(' ');
        words.sort();
        found += words.join(' ');
    }
    return found;
}

} // namespace

class ServiceTest : public QObject
{
    Q_OBJECT

    // What the getters give, in their order.
    QStringList ask() const
    {
        QStringList answers;
        for (const Getter& getter : getters)
            answers += getter.ask(connectors);
        return answers;
    }

    void startModule()
    {
        directory.emplace();
        shell("mkdir icons dimensions; touch fonts.ini colors.ini; cd dimensions; touch 1024x600.ini 800x600.ini "
              "x.txt 800x480.ini; cd ../icons; echo '{\"a\": {}}' > mapping.json; echo '{ }' > mapping.night.json");
        module.emplace(TARNIS_MODULE, QStringList{"--resources", directory->path()});
        QCOMPARE(module->firstLine(), "Module.Tarnis publishes " + directory->path());
    }

    // Runs a command of the shell in the resource directory.
    void shell(const QString& command) const
    {
        QCOMPARE(run("sh", {"-c", "cd $0 && " + command, directory->path()}).exitStatus, 0);
    }

    PrivateBus bus;
    const Connectors connectors{};
    std::optional<QTemporaryDir> directory;
    std::optional<TestProcess> module;

private Q_SLOTS:
    void cleanup() { module.reset(); }

    void absentServiceFailsEveryCallUntilItReturns()
    {
        for (int restart = 0; restart < 2; ++restart) {
            LogRecorder log;
            QStringList records;
            for (const Getter& getter : getters)
                records += getter.recordsOfFailure("The name Module.Tarnis was not provided by any .service files", {});
            QCOMPARE(ask(), QStringList({{}, {}, {}, {}, ""}));
            QCOMPARE(log.take(), records);
            startModule();
            QCOMPARE(connectors.resources.getFontIniFilePath(), directory->filePath("fonts.ini"));
            module.reset();
        }
    }

    void illegalNameOrMissingBusFailsEveryCall_data() { addRows({"module", "object", "interface", "bus", "message"}); }

    void illegalNameOrMissingBusFailsEveryCall()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const auto mode = row()["bus"] == "system" ? DBusConnectorBase::SystemBus : DBusConnectorBase::SessionBus;
        const DBusConnectorBase connector(row()["module"].toString(), row()["object"].toString(),
                                          row()["interface"].toString(), nullptr, mode);
        QVERIFY(!connector.isDBusInterfaceValid());
        const QString message = connector.getInvalidDBusInterfaceMessage();
        QVERIFY2(message.contains(row()["message"].toString()), qPrintable(message));
        LogRecorder log;
        QSignalSpy errors(&connector, &DBusConnectorBase::dBusConnectionError);
        const ErrorContainer error = connector.syncCallHelper("call").getError();
        QCOMPARE(error.getErrorCode(), -1);
        QCOMPARE(error.getErrorMessage(), message);
        const QString record = "DBusConnectorBase::syncCallHelper: " + Getter::quoted(message);
        QCOMPARE(log.take(), QStringList({record, record}));
        QCOMPARE(errors.count(), 1);
    }

    void moduleAnswersFromTheCurrentFilesUntilSigterm()
    {
        startModule();
        const QString size = "%1 " + directory->filePath("dimensions/%1.ini;");
        QStringList expected{directory->filePath("fonts.ini"), directory->filePath("colors.ini"),
                             directory->filePath("icons"), "{\"a\": {}}\n",
                             size.arg("800x480") + size.arg("800x600") + size.arg("1024x600")};
        QCOMPARE(ask(), expected);
        QCOMPARE(connectors.icons.getIconResourcesMappingTable("night"), "{ }\n");
        shell("rm dimensions/800x600.ini");
        expected.last().remove(size.arg("800x600"));
        QCOMPARE(ask(), expected);
        LogRecorder log;
        for (const QString name : {".night", "x/../../../etc/passwd", "../\u00FC\u65E5"}) {
            QVERIFY(connectors.icons.getIconResourcesMappingTable(name).isNull());
            QVERIFY(log.take().join("").contains('"' + name + "\\\" is not a valid mapping table name"));
        }
        module->process().terminate();
        QVERIFY(module->process().waitForFinished(10000));
        QVERIFY(module->process().exitStatus() == QProcess::NormalExit && module->process().exitCode() == 0);
    }

    void badFileIsAnsweredWithAnErrorThatNamesIt_data() { addRows({"file", "damage", "failing", "reason"}); }

    void badFileIsAnsweredWithAnErrorThatNamesIt()
    {
        startModule();
        QStringList expected = ask();
        for (int getter = 0; getter < 5; ++getter) {
            if (rowTexts("failing").contains(getters[getter].method))
                expected[getter] = "";
        }
        const QString file = row()["file"].toString();
        shell("F=" + file + "; " + row()["damage"].toString());
        LogRecorder log;
        QCOMPARE(ask(), expected);
        const QString record = log.take().value(0);
        QVERIFY2(record.contains(directory->filePath(file)), qPrintable(record));
        QVERIFY2(record.contains(row()["reason"].toString()), qPrintable(record));
    }

    void moduleOffersTheInterfacesOfTheContracts()
    {
        startModule();
        for (const QString object : {"DeviceUiResources", "IconProvider"}) {
            const QDBusReply<QString> offer = QDBusConnection::systemBus().call(QDBusMessage::createMethodCall(
                "Module.Tarnis", "/Tarnis/" + object, "org.freedesktop.DBus.Introspectable", "Introspect"));
            QFile contract(RESOURCES "/../interfaces/Interface." + object + ".xml");
            QVERIFY(contract.open(QIODevice::ReadOnly));
            const QStringList expected = elements(contract.readAll(), "Interface." + object);
            QVERIFY(expected.size() > 2);
            QCOMPARE(elements(offer.value(), "Interface." + object), expected);
        }
    }

    void moduleExitsWithAStatusAndAMessage_data() { addRows({"arguments", "status", "message"}); }

    void moduleExitsWithAStatusAndAMessage()
    {
        startModule();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const Outcome outcome = run(TARNIS_MODULE, rowTexts("arguments"));
        QCOMPARE(outcome.exitStatus, row()["status"].toInt());
        QVERIFY2(outcome.errors.contains(row()["message"].toString().toUtf8()), outcome.errors);
    }
};

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::ServiceTest)
#include "ServiceTest.moc"
