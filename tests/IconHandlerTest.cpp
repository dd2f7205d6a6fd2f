#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QTemporaryDir>
#include <QtTest>

namespace
{

const QString parse = "Failed to parse icon mapping json! ";
const QString invalid = "TarnisIconHandler::parseMappingTable: " + parse + "Invalid json.";
const QString noObject = "TarnisIconHandler::extractContextBaseMapping: " + parse + "Ivalid json.";
const QString noText =
    "TarnisIconHandler::extractOneContext: " + parse + "Expected relative path to be of type string.";
const QString noDirectory =
    "TarnisIconHandler::TarnisIconHandler: Unable to create object icon base path directory does not exist";

} // namespace

class IconHandlerTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;
    const QString table = "{\"arrow\": {\"defaultContext\": \"day/a b%.svg\", \"nightMode\": \"night/a.svg\","
                          "\"gone\": \"gone.svg\", \"folder\": \"day\"}, \"bad\": {\"x\": 1},"
                          "\"lonely\": {\"nightMode\": \"night/a.svg\"}}";

private Q_SLOTS:
    void initTestCase()
    {
        writeFile(directory.filePath("icons/day/a b%.svg"), "");
        writeFile(directory.filePath("icons/night/a.svg"), "");
    }

    void mappingTable_data()
    {
        using IconMap = TarnisIconHandler::IconMap;
        QTest::addColumn<QString>("text");
        QTest::addColumn<IconMap>("icons");
        QTest::addColumn<QStringList>("records");
        QTest::newRow("empty text") << "" << IconMap() << QStringList(invalid);
        QTest::newRow("no JSON") << "{\"a\": {}" << IconMap() << QStringList(invalid);
        QTest::newRow("array of objects") << "[{\"a\": {}}]" << IconMap() << QStringList(invalid);
        QTest::newRow("empty object") << "{}" << IconMap() << QStringList();
        QTest::newRow("verbatim") << "{\"\": {}, \"a\": {\"c\": \"/../x \", \"C\": \"\"}, \"A\": {\"\": \"\u65E5\"}}"
                                  << IconMap{{"", {}}, {"a", {{"c", "/../x "}, {"C", ""}}}, {"A", {{"", "\u65E5"}}}}
                                  << QStringList();
        QTest::newRow("aliases that are no objects")
            << "{\"a\": \"x\", \"b\": 1, \"c\": null, \"d\": [], \"e\": true, \"f\": {\"c\": \"p\"}}"
            << IconMap{{"a", {}}, {"b", {}}, {"c", {}}, {"d", {}}, {"e", {}}, {"f", {{"c", "p"}}}}
            << QStringList{noObject, noObject, noObject, noObject, noObject};
        QTest::newRow("contexts that are no strings")
            << "{\"a\": {\"b\": 1, \"c\": \"p\", \"d\": null, \"e\": {}}}" << IconMap{{"a", {{"", ""}, {"c", "p"}}}}
            << QStringList{noText, noText, noText};
    }

    void mappingTable()
    {
        QFETCH(QString, text);
        QFETCH(TarnisIconHandler::IconMap, icons);
        QFETCH(QStringList, records);
        const TarnisIconHandler handler(QString(), "{}");
        LogRecorder log;
        QCOMPARE(handler.parseMappingTable(text), icons);
        QCOMPARE(log.take(), records);
    }

    void lookup_data()
    {
        const QString base = directory.filePath("icons/");
        QTest::addColumn<QString>("alias");
        QTest::addColumn<QString>("context"); // null: not given
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("record");
        const QString unknown = "Unknown context ( \"defaultContext\" )";
        QTest::newRow("context") << "arrow"
                                 << "nightMode" << base + "night/a.svg" << QString();
        QTest::newRow("no context") << "arrow" << QString() << base + "day/a b%.svg" << QString();
        QTest::newRow("other context") << "arrow"
                                       << "NightMode" << base + "day/a b%.svg" << QString();
        QTest::newRow("folder") << "arrow"
                                << "folder" << base + "day" << QString();
        QTest::newRow("missing file") << "arrow"
                                      << "gone" << QString() << "Icon file \"" + base + "gone.svg\" does not exist";
        QTest::newRow("unknown alias") << "Arrow"
                                       << "nightMode" << QString() << "Unknown alias name ( \"Arrow\" )";
        QTest::newRow("empty alias") << ""
                                     << "nightMode" << QString() << QString();
        QTest::newRow("no default") << "lonely"
                                    << "other" << QString() << unknown;
        QTest::newRow("empty context of a bad member") << "bad"
                                                       << "" << base << QString();
        QTest::newRow("default of a bad member") << "bad"
                                                 << "x" << QString() << unknown;
    }

    void lookup()
    {
        QFETCH(QString, alias);
        QFETCH(QString, context);
        QFETCH(QString, path);
        QFETCH(QString, record);
        // However the base directory is written, one slash stands behind it.
        for (const char* base : {"icons", "icons/", "icons//", "./icons/../icons/."}) {
            LogRecorder log;
            const TarnisIconHandler handler(directory.filePath(base), table);
            log.take();
            const bool hasContext = !context.isNull();
            QCOMPARE(hasContext ? handler.getIconPath(alias, context) : handler.getIconPath(alias), path);
            const QStringList expected(record.isNull() ? QStringList()
                                                       : QStringList("TarnisIconHandler::getIconPath: " + record));
            QCOMPARE(log.take(), expected);
            QCOMPARE(hasContext ? handler.getIconPathAsFileUrl(alias, context) : handler.getIconPathAsFileUrl(alias),
                     path.isNull() ? QString() : "file:" + path);
            QCOMPARE(log.take(), expected);
        }
    }

    void baseDirectoryThatDoesNotExistMeansTheCurrentOne()
    {
        const QString before = QDir::currentPath();
        QDir::setCurrent(directory.filePath("icons"));
        LogRecorder log;
        const TarnisIconHandler missing("/no/such/directory", "");
        QCOMPARE(log.take(), (QStringList{noDirectory, invalid}));
        const TarnisIconHandler empty(QString(), table);
        const TarnisIconHandler elsewhere("/no/such/directory", table);
        const QString path = directory.filePath("icons/night/a.svg");
        QCOMPARE(empty.getIconPath("arrow", "nightMode"), path);
        QCOMPARE(elsewhere.getIconPath("arrow", "nightMode"), path);
        QDir::setCurrent(before);
    }

    void fileIsTestedOnEveryLookup()
    {
        const TarnisIconHandler handler(directory.filePath("icons"), "{\"a\": {\"defaultContext\": \"late.svg\"}}");
        LogRecorder log;
        const QString path = directory.filePath("icons/late.svg");
        for (const bool exists : {false, true, false}) {
            if (exists)
                writeFile(path, "");
            else
                QFile::remove(path);
            QCOMPARE(handler.getIconPath("a"), exists ? path : QString());
        }
    }

    void thousandsOfAliases()
    {
        constexpr int count = 5000;
        const auto alias = [](int number) { return "icon" + QString::number(number); };
        QJsonObject aliases;
        for (int number = 0; number < count; ++number) {
            writeFile(directory.filePath("many/" + alias(number)), "");
            aliases.insert(alias(number), QJsonObject{{"defaultContext", alias(number)}});
        }
        const TarnisIconHandler handler(directory.filePath("many"), QJsonDocument(aliases).toJson());
        for (int number = 0; number < count; ++number)
            QCOMPARE(handler.getIconPath(alias(number), "nightMode"), directory.filePath("many/" + alias(number)));
    }
};

QTEST_GUILESS_MAIN(IconHandlerTest)
#include "IconHandlerTest.moc"
