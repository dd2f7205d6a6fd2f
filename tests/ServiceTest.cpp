// The connectors against the service: tarnis-module, and this program once more in its place.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisDeviceUiResourcesDBusConnector.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconProviderDBusConnector.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <iostream>
#include <optional>
#include <unistd.h>

namespace
{

using DisplaySizes = QList<QPair<QSize, QString>>;

// What the service answers, and what the getters make of it: a text or sizes (null: not that), or an error.
struct Scenario {
    QVariantList answer;
    QString text = {};
    QString sizes = {};
    QString recordError = {};
    QString callError = {};
};

QVariant record(const QVariant& value, const QString& error = QString())
{
    DBusReply reply;
    error.isNull() ? reply.setValue(value) : reply.setError(7, error);
    return QVariant::fromValue(QDBusVariant(QVariant::fromValue(reply)));
}

const QString wrongRecord = "Unexpected D-Bus reply record: found signature \"%1\", expected \"(bisv)\"";
const QString wrongReply = "Unexpected reply signature: got %1, expected \"v\" (QDBusVariant)";
const QString noReply =
    "Did not receive a reply. Possible causes include: the remote application did not send a reply, the message bus "
    "security policy blocked the reply, the reply timeout expired, or the network connection was broken.";
const DisplaySizes threeSizes{{{800, 480}, "/b"}, {{-1, 0}, ""}, {{800, 480}, "/a"}};
const QMap<QString, Scenario> scenarios{
    {"text", {{record("/x/y.ini")}, "/x/y.ini"}},
    {"empty text", {{record("")}, ""}},
    {"number", {{record(-42)}, "-42"}},
    {"boolean", {{record(true)}, "true"}},
    {"byte array", {{record(QByteArray("bytes"))}, "bytes"}},
    {"two values", {{record("first"), "second"}, "first"}},
    {"array of strings", {{record(QStringList{"one"})}}},
    {"structure", {{record(QSize(1, 2))}}},
    {"dictionary", {{record(QVariantMap{{"key", 1}})}}},
    {"variant", {{record(QVariant::fromValue(QDBusVariant("inner")))}}},
    {"object path", {{record(QVariant::fromValue(QDBusObjectPath("/x")))}}},
    {"array of numbers", {{record(QVariant::fromValue(QList<int>{1, 2}))}}},
    {"array of other structures", {{record(QVariant::fromValue(QList<QSize>{{1, 2}}))}}},
    {"no sizes", {{record(QVariant::fromValue(DisplaySizes()))}, {}, ""}},
    {"sizes", {{record(QVariant::fromValue(threeSizes))}, {}, "800x480 /b;-1x0 ;800x480 /a;"}},
    {"error record", {{record("", "no \"such\" file")}, {}, {}, "no \"such\" file"}},
    {"other record", {{QVariant::fromValue(QDBusVariant(QSize(1, 2)))}, {}, {}, wrongRecord.arg("(ii)")}},
    {"no record", {{QVariant::fromValue(QDBusVariant("text"))}, {}, {}, wrongRecord.arg("")}},
    {"no variant", {{"text"}, {}, {}, {}, wrongReply.arg("\"s\" (QString)")}},
    {"nothing", {{}, {}, {}, {}, wrongReply.arg("\"<empty signature>\"")}},
    {"D-Bus error", {{}, {}, {}, {}, "out of order"}},
    {"death", {{record("")}, "", {}, {}, "Message recipient disconnected from message bus without replying"}},
    {"silence", {{record("")}, "", {}, {}, noReply}},
};

const QString convert = "TarnisDeviceUiResourcesDBusConnector::convertDBusReplyToString: ";
const QString icons = "TarnisIconProviderDBusConnector::";
const QString lastMethod = "getSupportedScreenSizes";
// The methods that the getters call, who logs their failure, and what they are to fetch.
const QString getters[][3] = {
    {"getFontIniFilePath", convert, "path to fonts ini file"},
    {"getColorIniFilePath", convert, "path to colors ini file"},
    {"getIconResourcesBasePath", icons + "getIconResourcesBasePath: ", "base path to icon resources"},
    {"getIconResourcesMappingTable", icons + "getIconResourcesMappingTable: ", "mapping table"},
    {lastMethod, "TarnisDeviceUiResourcesDBusConnector::getSupportedDisplaySizes: ", "supported display sizes"},
};

// The records that calls of all getters leave, without the backslashes of their quotation.
QStringList expectedRecords(const Scenario& scenario)
{
    QStringList records;
    for (const auto& [method, function, subject] : getters) {
        const bool isLast = method == lastMethod;
        QString error = scenario.recordError;
        if (!(isLast ? scenario.sizes : scenario.text).isNull())
            continue;
        if (!scenario.callError.isNull()) {
            error = "D-Bus call to method " + method + " failed: " + scenario.callError + '!';
            for (int time = 0; time < 2; ++time)
                records += "DBusConnectorBase::syncCallHelper: \"" + error + '"';
        }
        const QString failed = "Fetching %1 failed with the follwoing error: \"" + error + '"';
        const QString mismatch = isLast ? "Unable to extract %1 from dbus reply" : "Expected %1 to be of type string!";
        records += function + (error.isNull() ? mismatch : failed).arg(subject);
    }
    return records;
}

const Rows wrongAddresses{
    "       | Object | Some.Interface | system  | Module.",
    "Tarnis |        | Some.Interface | system  | /Tarnis/",
    "Tarnis | Object | single         | system  | single",
    "Tarnis | Object |                | system  | interface",
    "Tarnis | Object | Some.Interface | session | No connection to the D-Bus (qt_default_session_bus): ",
};
// What is not answered, the file and the command that spoils it, and the reason in the record.
const Rows badFiles{
    "fonts      | fonts.ini              | rm $F               | does not exist",
    "colors     | colors.ini             | rm $F; mkdir $F     | is not a regular file",
    "colors     | colors.ini             | rm $F; mkfifo $F    | is not a regular file",
    "sizes      | dimensions/800x480.ini | rm $F; mkdir $F     | is not a regular file",
    "sizes      | dimensions/800X480.ini | touch $F            | is not named WIDTHxHEIGHT.ini",
    "sizes      | dimensions/0x480.ini   | touch $F            | is not named WIDTHxHEIGHT.ini",
    "sizes      | dimensions             | rm -r $F            | holds no dimension file",
    "base table | icons                  | rm -r $F            | is not a directory",
    "table      | icons/mapping.json     | rm $F               | does not exist",
    "table      | icons/mapping.json     | echo '{\"a\":' > $F | unterminated object",
    "table      | icons/mapping.json     | echo '[]' > $F      | not a JSON object",
};
// Exit status, what the message names, and the arguments.
const Rows departures{
    "2 | tarnis-module: --resources | ",
    "2 | tarnis-module: Unknown option 'what' | --what",
    "3 | tarnis-module: no such directory: /no/such | --resources /no/such",
    "3 | tarnis-module: no such directory: /dev/null | --resources /dev/null",
    "4 | /no/bus | --session --resources /tmp",
    "5 | tarnis-module: cannot own the bus name Module.Tarnis | --resources /tmp",
};

struct FakeService : QDBusVirtualObject {
    QString introspect(const QString& /*path*/) const override { return QString(); }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const bool isLast = message.member() == lastMethod;
        if (scenario == "death" && isLast)
            _exit(0);
        if (scenario == "silence" && isLast)
            return true;
        if (scenario == "D-Bus error")
            return connection.send(message.createErrorReply("Test.Error", "out of order"));
        const QVariant echo = record(message.signature() + ':' + message.arguments().value(0).toString());
        return connection.send(
            message.createReply(scenario == "echo" ? QVariantList{echo} : scenarios[scenario].answer));
    }

    const QString scenario = QCoreApplication::arguments().last();
};

int serve()
{
    qDBusRegisterMetaType<DBusReply>();
    qDBusRegisterMetaType<QList<QSize>>();
    qDBusRegisterMetaType<QPair<QSize, QString>>();
    qDBusRegisterMetaType<DisplaySizes>();
    FakeService service;
    QDBusConnection bus = QDBusConnection::systemBus();
    bus.registerVirtualObject("/", &service, QDBusConnection::SubPath);
    bus.registerService("Module.Tarnis");
    std::cout << "ready" << std::endl;
    QTimer::singleShot(60000, QCoreApplication::instance(), SLOT(quit()));
    return QCoreApplication::exec();
}

} // namespace

class ServiceTest : public QObject
{
    Q_OBJECT

    static TestProcess serve(const QString& scenario)
    {
        return {QCoreApplication::applicationFilePath(), {"serve", scenario}};
    }

    // What the getters give, in their order.
    QStringList ask() const
    {
        QStringList answers{resources.getFontIniFilePath(), resources.getColorIniFilePath(),
                            icons.getIconResourcesBasePath(), icons.getIconResourcesMappingTable(""), ""};
        for (const auto& [size, path] : resources.getSupportedDisplaySizes())
            answers.last() += QString("%1x%2 %3;").arg(size.width()).arg(size.height()).arg(path);
        return answers;
    }

    // Calls every getter, and compares results, records and signals with what the scenario says.
    void compareGetters(const Scenario& scenario) const
    {
        LogRecorder log;
        QSignalSpy resourceErrors(&resources, &DBusConnectorBase::dBusConnectionError);
        QSignalSpy iconErrors(&icons, &DBusConnectorBase::dBusConnectionError);
        const QStringList answers = ask();
        QCOMPARE(answers, QStringList({scenario.text, scenario.text, scenario.text, scenario.text, scenario.sizes}));
        for (int index = 0; index < 4; ++index)
            QCOMPARE(answers[index].isNull(), scenario.text.isNull());
        const QStringList records = expectedRecords(scenario);
        QCOMPARE(log.take().replaceInStrings("\\", ""), records);
        QCOMPARE(resourceErrors.count() + iconErrors.count(), records.filter("syncCallHelper").count() / 2);
        QVERIFY(icons.isDBusInterfaceValid() && icons.getInvalidDBusInterfaceMessage().isEmpty());
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
    const TarnisDeviceUiResourcesDBusConnector resources;
    const TarnisIconProviderDBusConnector icons;
    std::optional<QTemporaryDir> directory;
    std::optional<TestProcess> module;

private Q_SLOTS:
    void cleanup() { module.reset(); }

    void answerBecomesTheResultOrTheErrorOfEveryGetter_data()
    {
        QTest::addColumn<QString>("scenario");
        for (const QString& scenario : scenarios.keys())
            QTest::newRow(qPrintable(scenario)) << scenario;
    }

    void answerBecomesTheResultOrTheErrorOfEveryGetter()
    {
        QFETCH(QString, scenario);
        const TestProcess service = serve(scenario);
        compareGetters(scenarios[scenario]);
    }

    void absentServiceFailsEveryCallUntilItReturns()
    {
        compareGetters({{}, {}, {}, {}, "The name Module.Tarnis was not provided by any .service files"});
        for (int restart = 0; restart < 2; ++restart) {
            const TestProcess service = serve("text");
            QCOMPARE(resources.getFontIniFilePath(), "/x/y.ini");
        }
    }

    void illegalNameOrMissingBusFailsEveryCall_data() { addRows(wrongAddresses); }

    void illegalNameOrMissingBusFailsEveryCall()
    {
        const auto [module, object, interfaceName, bus, message] = cells<5>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const auto mode = bus == "system" ? DBusConnectorBase::SystemBus : DBusConnectorBase::SessionBus;
        const DBusConnectorBase connector(module, object, interfaceName, nullptr, mode);
        QVERIFY(!connector.isDBusInterfaceValid());
        const QString found = connector.getInvalidDBusInterfaceMessage();
        QVERIFY2(found.contains(message), qPrintable(found));
        LogRecorder log;
        QSignalSpy errors(&connector, &DBusConnectorBase::dBusConnectionError);
        const ErrorContainer error = connector.syncCallHelper("call").getError();
        QCOMPARE(error.getErrorCode(), ErrorContainer::getDefaultErrorCode());
        QCOMPARE(error.getErrorMessage(), found);
        const QString record = "DBusConnectorBase::syncCallHelper: \"" + found + '"';
        QCOMPARE(log.take().replaceInStrings("\\", "").join(""), record.repeated(2));
        QCOMPARE(errors.count(), 1);
    }

    void tableNameGoesToTheServiceUnchanged()
    {
        const TestProcess service = serve("echo");
        for (const QString& name : {QString(), QString("night"), QString::fromUtf8("../ü日")})
            QCOMPARE(icons.getIconResourcesMappingTable(name), "s:" + name);
        QCOMPARE(icons.getIconResourcesBasePath(), QString(":"));
    }

    void moduleAnswersWithItsDirectoryAsItIsAtTheTimeUntilSigterm()
    {
        startModule();
        const QString size = "%1 " + directory->filePath("dimensions/%1.ini;");
        QStringList expected{directory->filePath("fonts.ini"), directory->filePath("colors.ini"),
                             directory->filePath("icons"), "{\"a\": {}}\n",
                             size.arg("800x480") + size.arg("800x600") + size.arg("1024x600")};
        QCOMPARE(ask(), expected);
        QCOMPARE(icons.getIconResourcesMappingTable("night"), "{ }\n");
        shell("rm dimensions/800x600.ini");
        expected.last().remove(size.arg("800x600"));
        QCOMPARE(ask(), expected);
        LogRecorder log;
        for (const QString name : {".night", "x/../../../etc/passwd"})
            QVERIFY(icons.getIconResourcesMappingTable(name).isNull());
        QCOMPARE(log.take().filter("\\\" is not the name of a mapping table").size(), 2);
        module->process().terminate();
        QVERIFY(module->process().waitForFinished(10000));
        QVERIFY(module->process().exitStatus() == QProcess::NormalExit && module->process().exitCode() == 0);
    }

    void moduleAnswersForABadFileWithAnErrorThatNamesIt_data() { addRows(badFiles); }

    void moduleAnswersForABadFileWithAnErrorThatNamesIt()
    {
        const auto [unanswered, name, damage, reason] = cells<4>();
        startModule();
        QStringList expected = ask();
        for (const QString& question : unanswered.split(' '))
            expected[QStringList{"fonts", "colors", "base", "table", "sizes"}.indexOf(question)] = "";
        shell("F=" + name + "; " + damage);
        LogRecorder log;
        QCOMPARE(ask(), expected);
        const QString record = log.take().value(0);
        QVERIFY2(record.contains(directory->filePath(name)) && record.contains(reason), qPrintable(record));
    }

    void moduleSaysWhyItLeaves_data() { addRows(departures); }

    void moduleSaysWhyItLeaves()
    {
        const auto [status, message, arguments] = cells<3>();
        startModule();
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/no/bus");
        const Outcome outcome = run(TARNIS_MODULE, arguments.split(' ', Qt::SkipEmptyParts));
        QCOMPARE(outcome.exitStatus, status.toInt());
        QVERIFY2(outcome.errors.contains(message.toUtf8()), outcome.errors);
    }
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "serve") == 0)
        return serve();
    ServiceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ServiceTest.moc"
