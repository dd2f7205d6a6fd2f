// The connectors against tarnis-module, and handlers in a process that has no screen.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "tests/support/Getters.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <optional>

namespace
{

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

// Each element of the named interface in its order, with its attributes.
QStringList elements(const QByteArray& introspection, const QString& interfaceName)
{
    QStringList found;
    bool isWanted = false;
    QXmlStreamReader reader(introspection);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        QStringList attributes;
        for (const QXmlStreamAttribute& attribute : reader.attributes())
            attributes += attribute.name() + '=' + attribute.value();
        attributes.sort();
        if (reader.name() == "interface")
            isWanted = attributes.contains("name=" + interfaceName);
        if (isWanted)
            found += reader.name() + ' ' + attributes.join(' ');
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
        for (int getter = 0; getter < 5; ++getter)
            answers += connectors.ask(getter);
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

    void moduleAnswersWithItsDirectoryAsItIsAtTheTimeUntilSigterm()
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
            QVERIFY(log.take().join("").contains('"' + name + "\\\" is not the name of a mapping table"));
        }
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

    void moduleOffersWhatTheContractsSay()
    {
        startModule();
        for (const QString object : {"DeviceUiResources", "IconProvider"}) {
            const QDBusReply<QString> offer = QDBusConnection::systemBus().call(QDBusMessage::createMethodCall(
                "Module.Tarnis", "/Tarnis/" + object, "org.freedesktop.DBus.Introspectable", "Introspect"));
            QFile contract(RESOURCES "/../interfaces/Interface." + object + ".xml");
            QVERIFY(contract.open(QIODevice::ReadOnly));
            const QStringList expected = elements(contract.readAll(), "Interface." + object);
            QVERIFY(expected.size() > 2);
            QCOMPARE(elements(offer.value().toUtf8(), "Interface." + object), expected);
        }
    }

    void handlersWithoutAScreenSayIt()
    {
        directory.emplace();
        const QString path = writeFile(directory->filePath("x.ini"), "[G]\nk=16");
        LogRecorder log;
        QCOMPARE(TarnisFontHandler(path).getFontPointSize("G", "k"), 12.0);
        QVERIFY(TarnisElementDimensionHandler({{{1, 1}, path}}).uiElementDimensions().isEmpty());
        QCOMPARE(
            log.take().join('\n'),
            "TarnisFontHandler::TarnisFontHandler: Cannot read pointer to primary screen!\n"
            "critical TarnisElementDimensionHandler::TarnisElementDimensionHandler: Unable to get primary screen!");
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

QTEST_GUILESS_MAIN(ServiceTest)
#include "ServiceTest.moc"
