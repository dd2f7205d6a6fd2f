// The connectors against tarnis-module.

#include "tests/support/DataRows.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/ModuleFixture.h"

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

    ModuleFixture service;
    const Connectors& connectors = service.connectors;

private Q_SLOTS:
    void cleanup() { service.stopModule(); }

    void absentServiceFailsEveryCallUntilItReturns()
    {
        for (int restart = 0; restart < 2; ++restart) {
            LogRecorder log;
            QStringList records;
            for (const Getter& getter : getters)
                records += getter.recordsOfFailure("The name Module.Tarnis was not provided by any .service files", {});
            QCOMPARE(service.ask(), QStringList({{}, {}, {}, {}, ""}));
            QCOMPARE(log.take(), records);
            service.startModule();
            QCOMPARE(connectors.resources.getFontIniFilePath(), service.path("fonts.ini"));
            service.stopModule();
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
        service.startModule();
        const QString size = "%1 " + service.path("dimensions/%1.ini;");
        QStringList expected{service.path("fonts.ini"), service.path("colors.ini"), service.path("icons"),
                             "{\"a\": {}}\n", size.arg("800x480") + size.arg("800x600") + size.arg("1024x600")};
        QCOMPARE(service.ask(), expected);
        QCOMPARE(connectors.icons.getIconResourcesMappingTable("night"), "{ }\n");
        service.shell("rm dimensions/800x600.ini");
        expected.last().remove(size.arg("800x600"));
        QCOMPARE(service.ask(), expected);
        LogRecorder log;
        for (const QString name : {".night", "x/../../../etc/passwd", "../\u00FC\u65E5"}) {
            QVERIFY(connectors.icons.getIconResourcesMappingTable(name).isNull());
            QVERIFY(log.take().join("").contains('"' + name + "\\\" is not a valid mapping table name"));
        }
        service.module->process().terminate();
        QVERIFY(service.module->process().waitForFinished(10000));
        QVERIFY(service.module->process().exitStatus() == QProcess::NormalExit
                && service.module->process().exitCode() == 0);
    }

    void badFileIsAnsweredWithAnErrorThatNamesIt_data() { addRows({"file", "damage", "failing", "reason"}); }

    void badFileIsAnsweredWithAnErrorThatNamesIt()
    {
        service.startModule();
        QStringList expected = service.ask();
        for (int getter = 0; getter < 5; ++getter) {
            if (rowTexts("failing").contains(getters[getter].method))
                expected[getter] = "";
        }
        const QString file = row()["file"].toString();
        service.shell("F=" + file + "; " + row()["damage"].toString());
        LogRecorder log;
        QCOMPARE(service.ask(), expected);
        const QString record = log.take().value(0);
        QVERIFY2(record.contains(service.path(file)), qPrintable(record));
        QVERIFY2(record.contains(row()["reason"].toString()), qPrintable(record));
    }

    void moduleOffersTheInterfacesOfTheContracts()
    {
        service.startModule();
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
        service.startModule();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const Outcome outcome = run(TARNIS_MODULE, rowTexts("arguments"));
        QCOMPARE(outcome.exitStatus, row()["status"].toInt());
        QVERIFY2(outcome.errors.contains(row()["message"].toString().toUtf8()), outcome.errors);
    }
};

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::ServiceTest)
#include "ServiceTest.moc"
