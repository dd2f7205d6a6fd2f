// What needs neither a bus nor a screen: the platform's readers of INI files and text catalogs, and
// handlers in a process without a screen.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "tests/support/DataRows.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

namespace Tests
{

class PlatformTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;

private Q_SLOTS:
    void initTestCase() { QDir::setCurrent(directory.path()); }

    void iniReaderFollowsTheGrammar_data() { addRows({"text", "groups", "records"}); }

    void iniReaderFollowsTheGrammar()
    {
        writeFile("x.ini", row()["text"].toString().toUtf8());
        LogRecorder log;
        const IniFileManager file("x.ini", nullptr);
        QCOMPARE(log.take(), rowTexts("records"));
        QVariantList groups;
        for (const QString& group : file.getGroups()) {
            QVariantList entries{group};
            for (const QString& key : file.getChildKeys(group))
                entries.append(QVariant(QStringList{key, file.getValueString(group, key, "default")}));
            groups.append(QVariant(entries));
        }
        QCOMPARE(toJson(groups), toJson(row()["groups"].toVariant()));
    }

    void bytesThatAreNotTextAreReplacedAndReported()
    {
        writeFile("x.ini", "[G]\na=\xFF\nb=1\nc=\xE6\x97");
        LogRecorder log;
        const IniFileManager file("x.ini", nullptr);
        QCOMPARE(log.take(),
                 QStringList({"platform.ini x.ini:2: bytes that are not valid UTF-8 text",
                              "platform.ini x.ini:4: bytes that are not valid UTF-8 text"}));
        QCOMPARE(file.getChildKeys("G"), QStringList({"a", "b", "c"}));
        const auto value = [&file](const char* key) { return file.getValueString("G", key, "default"); };
        QCOMPARE(QStringList({value("a"), value("b"), value("c")}), QStringList({"\uFFFD", "1", "\uFFFD"}));
    }

    void iniReaderUsesTheCodecAndTheDefaults()
    {
        const IniFileManager reader(writeFile("latin.ini", "[G]\nk=\xE4"), "ISO-8859-1");
        QCOMPARE(reader.getValueString("G", "k", "default"), "\u00E4");
        QCOMPARE(reader.getValueString("g", "k", "default"), "default");
        QCOMPARE(reader.getValue("G", "K", 7), QVariant(7));
        QCOMPARE(reader.getValueInteger("G", "k", 7), 7);
        LogRecorder log;
        QVERIFY(IniFileManager("", nullptr).getGroups().isEmpty());
        QCOMPARE(log.take(), QStringList("platform.ini Cannot read \"\": The path is empty"));
    }

    void textsFollowTheLanguageAndFallBack_data() { addRows({"language", "texts", "records"}); }

    void textsFollowTheLanguageAndFallBack()
    {
        QCOMPARE(run("cp", {"-r", TEST_DATA "/PlatformTest/texts/.", directory.path()}).exitStatus, 0);
        LogRecorder log;
        TextManager manager(directory.path(), row()["language"].toString());
        const TarnisTextHandler handler(manager);
        QCOMPARE(toJson(handler.property("translatedTexts")), toJson(row()["texts"].toVariant()));
        QCOMPARE(log.take().replaceInStrings(directory.path(), "DIR"), rowTexts("records"));
        QCOMPARE(manager.getText("unknown to en", "en"), "unknown to en");
        QSignalSpy changed(&handler, &TarnisTextHandler::translatedTextsChanged);
        writeFile("en.json", R"({"a": "new"})");
        manager.setLanguage("en");
        QCOMPARE(handler.translatedTexts(), (QVariantMap{{"a", "new"}}));
        QCOMPARE(changed.count(), 1);
    }

    void handlersWithoutAScreenLogItAndUseDefaults()
    {
        const QString path = writeFile("x.ini", "[G]\nk=16");
        LogRecorder log;
        QCOMPARE(TarnisFontHandler(path).getFontPointSize("G", "k"), 12.0);
        QVERIFY(TarnisElementDimensionHandler({{{1, 1}, path}}).uiElementDimensions().isEmpty());
        const QStringList expected{
            "TarnisFontHandler::TarnisFontHandler: Cannot read pointer to primary screen!",
            "critical TarnisElementDimensionHandler::TarnisElementDimensionHandler: Unable to get primary screen!"};
        QCOMPARE(log.take(), expected);
    }
};

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::PlatformTest)
#include "PlatformTest.moc"
