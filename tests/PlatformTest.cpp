#include "Common/IniTools/IniFileManager.h"
#include "Common/TextTools/LanguageDefinitions.h"
#include "Common/TextTools/TextManager.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace
{

QByteArray json(const QJsonObject& object)
{
    return QJsonDocument(object).toJson();
}

} // namespace

class PlatformTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;

private Q_SLOTS:
    void iniGrammar_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("entries"); // each group with its keys and values
        QTest::addColumn<QStringList>("faults");
        const auto row = [](const char* name, const QByteArray& content, const QString& entries,
                            const QStringList& faults = {}) { QTest::newRow(name) << content << entries << faults; };
        row("nothing", "", "");
        row("blanks, comments, line ends", "\n ; c\r\n#c=1\n[ G ]\r\n k = v w \r\n\tl=", "[G]k=v w,l=,");
        row("byte-order mark", "\xEF\xBB\xBF[G]\nk=v", "[G]k=v,");
        row("keys before the first group", "a=1\n[G]\nb=2", "[]a=1,[G]b=2,");
        row("values keep their text", "[G]\nc=#102030\na=x, y;z\\n\ne=a=b\nr=rgba(0, 0, 0, 1)",
            "[G]c=#102030,a=x, y;z\\n,e=a=b,r=rgba(0, 0, 0, 1),");
        row("quotes", "[G]\na=\" b \"\nb=\"\nc=\"\"\nd=\"x\" y\ne=\"\"q\"\"", "[G]a= b ,b=\",c=,d=\"x\" y,e=\"q\",");
        row("brackets in a group name", "[a[b]c]]\nk=v", "[a[b]c]]k=v,");
        row("group without keys, group entered again", "[A]\n[B]\nb=1\n[A]\na=2", "[A]a=2,[B]b=1,");
        row("case and other letters", "[G]\nk=1\nK=2\n[g]\n\xC3\xA4=\xE6\x97\xA5", "[G]k=1,K=2,[g]\u00E4=\u65E5,");
        row("key given again", "[G]\nk=1\nl=2\nk=3", "[G]k=3,l=2,",
            {"4: key \"k\" given again in group \"G\"; the last value holds"});
        row("neither, and empty key", "[G]\nword\n = v\nk=v", "[G]k=v,",
            {"2: neither a comment, nor [group], nor key=value: \"word\"", "3: empty key name"});
        row("group line without its end", "[G]\nk=1\n[H\nl=2\n[I] ; c\nm=3\n[J]\nn=4", "[G]k=1,[J]n=4,",
            {"3: group line without its end \"]\"; the entries up to the next group are left out",
             "5: group line without its end \"]\"; the entries up to the next group are left out"});
        row("no text", "[G]\na=\xFF\nb=1\nc=\xE6\x97", "[G]a=\uFFFD,b=1,c=\uFFFD,",
            {"2: bytes that are no UTF-8 text", "4: bytes that are no UTF-8 text"});
    }

    void iniGrammar()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, entries);
        QFETCH(QStringList, faults);
        const QString path = writeFile(directory.filePath("x.ini"), content);
        LogRecorder log;
        const IniFileManager file(path, nullptr);
        QStringList records;
        for (const QString& fault : qAsConst(faults))
            records.append("platform.ini IniFileManager::IniFileManager: " + path + ":" + fault);
        QCOMPARE(log.take(), records);
        QString found;
        for (const QString& group : file.getGroups()) {
            found += "[" + group + "]";
            for (const QString& key : file.getChildKeys(group)) {
                QVERIFY(file.contains(group, key));
                found += key + "=" + file.getValueString(group, key, "default") + ",";
            }
        }
        QCOMPARE(found, entries);
    }

    void iniValues()
    {
        const IniFileManager file(writeFile(directory.filePath("n.ini"),
                                            "[G]\na=12\nb=-3\nc=0x10\nd=1.5\ne=\n"
                                            "f=2147483648\ng=4 px"),
                                  "ISO-8859-1");
        QList<int> integers;
        for (const QString& key : file.getChildKeys("G"))
            integers.append(file.getValueInteger("G", key, 7));
        QCOMPARE(integers, (QList<int>{12, -3, 7, 7, 7, 7, 7}));
        QCOMPARE(file.getValue("G", "d", 7).toDouble(), 1.5);
        QCOMPARE(file.getValue("G", "none", 7), QVariant(7));
        QCOMPARE(file.getValueString("none", "a", "default"), QString("default"));
    }

    void unusableFilesAreSaidOnceAndNeverOpened_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no path") << ""
                                 << "No path";
        QTest::newRow("missing") << directory.filePath("missing") << "No such file or directory";
        QTest::newRow("directory") << directory.path() << "Not a regular file";
        QTest::newRow("FIFO") << directory.filePath("fifo") << "Not a regular file";
        QTest::newRow("device") << "/dev/zero"
                                << "Not a regular file";
    }

    void unusableFilesAreSaidOnceAndNeverOpened()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        mkfifo(qPrintable(directory.filePath("fifo")), S_IRUSR);
        LogRecorder log;
        const IniFileManager file(path, nullptr);
        QCOMPARE(log.take(),
                 QStringList("platform.ini IniFileManager::IniFileManager: Cannot read \"" + path + "\": " + reason));
        QVERIFY(file.getGroups().isEmpty());
    }

    void textsFallBack()
    {
        writeFile(directory.filePath("de_AT.json"), json({{"text://a", "a AT"}}));
        writeFile(directory.filePath("de.json"), json({{"text://a", "a de"}, {"text://b", "b de"}}));
        writeFile(directory.filePath("en.json"), json({{"text://a", "a"}, {"text://b", "b"}, {"text://c", ""}}));
        LogRecorder log;
        TextManager texts(directory.path(), "de_AT");
        QStringList found;
        for (const char* url : {"text://a", "text://b", "text://c", "text://d"})
            found.append(texts.getText(url, texts.getLanguageName()));
        QCOMPARE(found, (QStringList{"a AT", "b de", "", "text://d"}));
        QCOMPARE(texts.getText("text://a", "de"), QString("a de"));
        QCOMPARE(texts.getAvailableUrls(LanguageDefinitions::getSecondFallbackLanguageFilename()),
                 (QStringList{"text://a", "text://b", "text://c"}));
        QSignalSpy reloaded(&texts, &TextManagerBase::languageReloaded);
        writeFile(directory.filePath("de_AT.json"), json({{"text://a", "new"}}));
        texts.setLanguage("de_AT");
        QCOMPARE(reloaded.count(), 1);
        QCOMPARE(texts.getText("text://a", "de_AT"), QString("new"));
        QCOMPARE(log.take(), QStringList());
    }

    void faultyTextFilesAreSaidAndTheirGoodMembersKept_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("record");
        QTest::newRow("syntax") << QByteArray("{\n \"text://b\": }")
                                << "warnOfSyntax: %1:2:15: object is missing after a comma";
        QTest::newRow("no object") << QByteArray("[]") << "TextManager::readCatalogue: %1: not a JSON object";
        QTest::newRow("member") << json({{"text://a", "good"}, {"text://b", 1}})
                                << "TextManager::readCatalogue: %1: \"text://b\" is not a string";
    }

    void faultyTextFilesAreSaidAndTheirGoodMembersKept()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, record);
        const QString path = writeFile(directory.filePath("texts/fr.json"), content);
        writeFile(directory.filePath("texts/en.json"), json({{"text://a", "english"}}));
        LogRecorder log;
        const TextManager texts(directory.filePath("texts"), "fr");
        QCOMPARE(texts.getText("text://a", "fr"), QString(content.contains("good") ? "good" : "english"));
        QCOMPARE(log.take(), QStringList("platform.text " + record.arg(path)));
    }
};

QTEST_GUILESS_MAIN(PlatformTest)
#include "PlatformTest.moc"
