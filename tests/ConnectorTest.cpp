#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "TarnisLibrary/TarnisDefinitions.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QSignalSpy>
#include <QtTest>

#include <optional>

namespace
{

using DisplaySizes = QList<QPair<QSize, QString>>;

struct Connectors {
    TarnisDeviceUiResourcesDBusConnector resources;
    TarnisIconProviderDBusConnector icons;
};

struct TextGetter {
    QString method;
    QString function;
    QString failure;
    QString noText;
    QString (*get)(const Connectors&);
};

const QString conversion = "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ";
const TextGetter textGetters[] = {
    {"getFontIniFilePath", conversion, "Fetching path to fonts ini file failed with the follwoing error: ",
     "Expected path to fonts ini file to be of type string!",
     [](const Connectors& connectors) { return connectors.resources.getFontIniFilePath(); }},
    {"getColorIniFilePath", conversion, "Fetching path to colors ini file failed with the follwoing error: ",
     "Expected path to colors ini file to be of type string!",
     [](const Connectors& connectors) { return connectors.resources.getColorIniFilePath(); }},
    {"getIconResourcesBasePath", "TarnisIconProviderDBusConnector::getIconResourcesBasePath: ",
     "Fetching base path to icon resources failed with the follwoing error: ",
     "Expected base path to icon resources to be of type string!",
     [](const Connectors& connectors) { return connectors.icons.getIconResourcesBasePath(); }},
    {"getIconResourcesMappingTable", "TarnisIconProviderDBusConnector::getIconResourcesMappingTable: ",
     "Fetching mapping table failed with the follwoing error: ", "Expected mapping table to be of type string!",
     [](const Connectors& connectors) { return connectors.icons.getIconResourcesMappingTable("night"); }},
};
const QString sizes = "TarnisDeviceUiResourcesDBusConnector::getSupportedDisplaySizes: ";
const QString sizesFailure = sizes + "Fetching supported display sizes failed with the follwoing error: ";

QString quoted(const QString& text)
{
    QString result;
    QDebug(&result).nospace() << text;
    return result;
}

QStringList failedCall(const QString& text, const QString& getterRecord)
{
    const QString record = "DBusConnectorBase::syncCallHelper: " + quoted(text);
    return {record, record, getterRecord + quoted(text)};
}

QString callText(const QString& method, const QString& reason)
{
    return "D-Bus call to method " + method + " failed: " + reason + "!";
}

} // namespace

// Every getter fails on this side of the record: results, records and signal.
static void compareFailures(const std::function<QString(const QString& method)>& textOfFailure)
{
    LogRecorder log;
    const Connectors connectors;
    QSignalSpy resourceErrors(&connectors.resources, &DBusConnectorBase::dBusConnectionError);
    QSignalSpy iconErrors(&connectors.icons, &DBusConnectorBase::dBusConnectionError);
    for (const TextGetter& getter : textGetters) {
        QVERIFY(getter.get(connectors).isNull());
        QCOMPARE(log.take(), failedCall(textOfFailure(getter.method), getter.function + getter.failure));
    }
    QCOMPARE(connectors.resources.getSupportedDisplaySizes(), DisplaySizes());
    QCOMPARE(log.take(), failedCall(textOfFailure("getSupportedScreenSizes"), sizesFailure));
    QCOMPARE(resourceErrors.count(), 3);
    QCOMPARE(iconErrors.count(), 2);
}

class ConnectorTest : public QObject
{
    Q_OBJECT

private:
    void startService()
    {
        service.emplace(FAKE_SERVICE, QStringList());
        QCOMPARE(service->firstLine(), QString("ready"));
    }

    static void play(const QString& scenario)
    {
        QDBusMessage message = QDBusMessage::createMethodCall("Module.Tarnis", "/", "Test.Control", "play");
        message.setArguments({scenario});
        QCOMPARE(QDBusConnection::systemBus().call(message).type(), QDBusMessage::ReplyMessage);
    }

    PrivateBus bus;
    std::optional<TestProcess> service;

private Q_SLOTS:
    void cleanup() { service.reset(); }

    void namesAreTheSameObjectOnEveryCall()
    {
        QCOMPARE(&TarnisDefinitions::getModuleName(), &TarnisDefinitions::getModuleName());
        QCOMPARE(TarnisDefinitions::getModuleName(), QString("Tarnis"));
    }

    void answeredRecordBecomesTheResult_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("text");              // null: the value is no text
        QTest::addColumn<QString>("error");             // of the record
        QTest::addColumn<DisplaySizes>("displaySizes"); // of an invalid size: the value is no size list
        const DisplaySizes noList{{QSize(), "none"}};
        const auto row = [&](const char* scenario, const QString& text, const DisplaySizes& displaySizes) {
            QTest::newRow(scenario) << scenario << text << QString() << displaySizes;
        };
        row("text", "/x/y.ini", noList);
        row("empty text", "", noList);
        row("number", "-42", noList);
        row("boolean", "true", noList);
        row("byte array", "bytes", noList);
        row("two values", "first", noList);
        for (const char* container : {"array of strings", "structure", "dictionary", "variant", "object path",
                                      "array of numbers", "array of other structures"})
            row(container, QString(), noList);
        row("sizes", QString(), {{{800, 480}, "/b"}, {{-1, 0}, ""}, {{800, 480}, "/a"}});
        row("no sizes", QString(), {});
        const auto errorRow = [&](const char* scenario, const QString& error) {
            QTest::newRow(scenario) << scenario << QString() << error << DisplaySizes();
        };
        errorRow("error record", "no \"such\" file");
        errorRow("other record", "Unexpected D-Bus reply record: found signature \"(is)\", expected \"(bisv)\"");
        errorRow("no record", "Unexpected D-Bus reply record: found signature \"\", expected \"(bisv)\"");
    }

    void answeredRecordBecomesTheResult()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, text);
        QFETCH(QString, error);
        QFETCH(DisplaySizes, displaySizes);
        startService();
        play(scenario);
        LogRecorder log;
        const Connectors connectors;
        QSignalSpy resourceErrors(&connectors.resources, &DBusConnectorBase::dBusConnectionError);
        QSignalSpy iconErrors(&connectors.icons, &DBusConnectorBase::dBusConnectionError);
        for (const TextGetter& getter : textGetters) {
            const QString result = getter.get(connectors);
            QCOMPARE(result, text);
            QCOMPARE(result.isNull(), text.isNull());
            const QString record = error.isNull() ? getter.noText : getter.failure + quoted(error);
            QCOMPARE(log.take(), text.isNull() ? QStringList(getter.function + record) : QStringList());
        }
        const DisplaySizes result = connectors.resources.getSupportedDisplaySizes();
        if (!error.isNull()) {
            QCOMPARE(log.take(), QStringList(sizesFailure + quoted(error)));
        } else if (!displaySizes.isEmpty() && displaySizes.constFirst().second == "none") {
            QCOMPARE(log.take(), QStringList(sizes + "Unable to extract supported display sizes from dbus reply"));
            displaySizes.clear();
        }
        QCOMPARE(result, displaySizes);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(resourceErrors.count() + iconErrors.count(), 0);
    }

    void failedCallIsLoggedTwiceAndOnceByTheGetter_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("reason");
        QTest::newRow("D-Bus error") << "D-Bus error"
                                     << "out of order";
        QTest::newRow("no variant") << "no variant"
                                    << "Unexpected reply signature: got \"s\" (QString), expected \"v\" (QDBusVariant)";
        QTest::newRow("nothing")
            << "nothing"
            << "Unexpected reply signature: got \"<empty signature>\", expected \"v\" (QDBusVariant)";
    }

    void failedCallIsLoggedTwiceAndOnceByTheGetter()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, reason);
        startService();
        play(scenario);
        compareFailures([&](const QString& method) { return callText(method, reason); });
    }

    void absentServiceFailsEveryCallUntilItReturns()
    {
        compareFailures([](const QString& method) {
            return callText(method, "The name Module.Tarnis was not provided by any .service files");
        });
        const Connectors connectors;
        for (int restart = 0; restart < 2; ++restart) {
            startService();
            play("text");
            QCOMPARE(connectors.resources.getFontIniFilePath(), QString("/x/y.ini"));
            service.reset();
        }
    }

    void lostAnswerFailsTheCall_data()
    {
        QTest::addColumn<QString>("scenario");
        QTest::addColumn<QString>("reason");
        QTest::newRow("death in the middle of the call")
            << "death"
            << "Message recipient disconnected from message bus without replying";
        QTest::newRow("silence past the time limit")
            << "silence"
            << "Did not receive a reply. Possible causes include: the remote application did not send a reply, the "
               "message bus security policy blocked the reply, the reply timeout expired, or the network connection "
               "was broken.";
    }

    void lostAnswerFailsTheCall()
    {
        QFETCH(QString, scenario);
        QFETCH(QString, reason);
        startService();
        play(scenario);
        LogRecorder log;
        const TarnisDeviceUiResourcesDBusConnector resources;
        QCOMPARE(resources.getSupportedDisplaySizes(), DisplaySizes());
        QCOMPARE(log.take(), failedCall(callText("getSupportedScreenSizes", reason), sizesFailure));
    }

    void illegalNamesMakeTheInterfaceInvalid_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("namedInMessage");
        QTest::newRow("legal") << QStringList{"Tarnis", "Object", "Some.Interface"} << QString();
        QTest::newRow("module") << QStringList{"", "Object", "Some.Interface"} << "Module.";
        QTest::newRow("object") << QStringList{"Tarnis", "", "Some.Interface"} << "/Tarnis/";
        QTest::newRow("interface") << QStringList{"Tarnis", "Object", "single"} << "single";
        QTest::newRow("no interface") << QStringList{"Tarnis", "Object", ""} << "interface";
    }

    void illegalNamesMakeTheInterfaceInvalid()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, namedInMessage);
        const DBusConnectorBase connector(names[0], names[1], names[2], nullptr, DBusConnectorBase::SystemBus);
        QCOMPARE(connector.isDBusInterfaceValid(), namedInMessage.isNull());
        const QString message = connector.getInvalidDBusInterfaceMessage();
        QVERIFY2(message.contains(namedInMessage) && message.isEmpty() == namedInMessage.isNull(), qPrintable(message));
    }

    void tableNameGoesToTheServiceUnchanged()
    {
        startService();
        play("echo");
        const TarnisIconProviderDBusConnector icons;
        for (const QString& name : {QString(), QString("night"), QString::fromUtf8("../ü日")})
            QCOMPARE(icons.getIconResourcesMappingTable(name), "s:" + name);
        QCOMPARE(icons.getIconResourcesBasePath(), QString(":"));
    }
};

class UnconnectedBusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isSaidByEveryGetter()
    {
        QTRY_VERIFY(!QDBusConnection::systemBus().isConnected());
        const Connectors connectors;
        QVERIFY(!connectors.icons.isDBusInterfaceValid());
        const QString message = connectors.icons.getInvalidDBusInterfaceMessage();
        QVERIFY2(message.startsWith("No connection to the D-Bus (qt_default_system_bus): "), qPrintable(message));
        compareFailures([&](const QString&) { return QString(message); });
    }
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const int failures = QTest::qExec(std::make_unique<ConnectorTest>().get(), argc, argv);
    // The bus of the first test is gone, and Qt connects a process to the system bus only once.
    UnconnectedBusTest unconnectedBusTest;
    return failures + QTest::qExec(&unconnectedBusTest);
}

#include "ConnectorTest.moc"
