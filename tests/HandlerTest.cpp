// The handlers, and the readers of files beneath them, on a screen of their own.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QJSEngine>
#include <QMetaMethod>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <climits>
#include <optional>
#include <sys/stat.h>

namespace
{

// A table; the map that it becomes; how often it is logged, by which function, what.
const Rows iconTables{
    " | () | 1 | parseMappingTable | Invalid json.",
    "{'a': {} | () | 1 | parseMappingTable | Invalid json.",
    "[{'a': {}}] | () | 1 | parseMappingTable | Invalid json.",
    "{} | ()",
    "{'': {}, 'a': {'c': '/../x ', 'C': ''}, 'A': {'': '_'}} "
    "| (('', ())('A', (('', '_')))('a', (('C', '')('c', '/../x '))))",
    "{'a': 'x', 'b': 1, 'c': null, 'd': {'c': 'p'}} | (('a', ())('b', ())('c', ())('d', (('c', 'p')))) "
    "| 3 | extractContextBaseMapping | Ivalid json.",
    "{'a': {'b': 1, 'c': 'p', 'd': null, 'e': {}}} | (('a', (('', '')('c', 'p')))) "
    "| 3 | extractOneContext | Expected relative path to be of type string.",
};
// An expression of QML, its result, and the record that it leaves; "DIR" is the directory of the test.
const Rows expressions{
    "TarnisColorHandler.getColor('G', 'K') | rgba(0, 0, 0, 1)",
    "TarnisColorHandler.getColor('G', 'E') |",
    "TarnisColorHandler.getColor('G', 'k') || No color for key \"k\" in group \"G\" !",
    "TarnisColorHandler.getColor('g', 'a\"b\\\\\\n') || No color for key \"a\\\"b\\\\\\n\" in group \"g\" !",
    "TarnisFontHandler.getFontFamily('T') | Some Font",
    "TarnisFontHandler.getFontFamily('E') || Unknown font group: \"E\"",
    "TarnisFontHandler.getFontPointSize('T', 'Normal') * dotsPerInch / 72 | 16",
    "TarnisFontHandler.getFontPointSize('T', 'Half') * dotsPerInch / 72 | 12.5",
    "TarnisFontHandler.getFontPointSize('T', 'Large') | 0 | No font size for key \"Large\" in font group \"T\"",
    ("TarnisFontHandler.getFontPointSize('T', 'Word') "
     "| 0 | Expected font size for key \"Word\" in font group \"T\" to be a number!"),
    "TarnisIconHandler.getIconPath('arrow') | DIR/icons/day/a b%.svg",
    "TarnisIconHandler.getIconPath('arrow', 'nightMode') | DIR/icons/night/a.svg",
    "TarnisIconHandler.getIconPath('arrow', 'NightMode') | DIR/icons/day/a b%.svg",
    "TarnisIconHandler.getIconPath('arrow', 'folder') | DIR/icons/day",
    "TarnisIconHandler.getIconPath('arrow', 'gone') || Icon file \"DIR/icons/gone.svg\" does not exist",
    "TarnisIconHandler.getIconPath('Arrow', 'nightMode') || Unknown alias name ( \"Arrow\" )",
    "TarnisIconHandler.getIconPath('', 'nightMode') |",
    "TarnisIconHandler.getIconPath('lonely', 'other') || Unknown context ( \"defaultContext\" )",
    "TarnisIconHandler.getIconPath('bad', '') | DIR/icons/",
    "TarnisIconHandler.getIconPath('bad', 'x') || Unknown context ( \"defaultContext\" )",
    "TarnisIconHandler.getIconPathAsFileUrl('arrow') | file:DIR/icons/day/a b%.svg",
    "TarnisIconHandler.getIconPathAsFileUrl('arrow', 'nightMode') | file:DIR/icons/night/a.svg",
    "TarnisIconHandler.getIconPathAsFileUrl('Arrow') || Unknown alias name ( \"Arrow\" )",
};
// A name; the bytes of the file, with $ for the end of a line; its groups and values; its faults.
const Rows iniFiles{
    "nothing |",
    "blanks, comments, line ends | $ ; c\r$#c=1$[ G ]\r$ k = v w \r$$\tl= | [G]k=v w,l=,",
    "byte-order mark | \u00EF\u00BB\u00BF[G]$k=v | [G]k=v,",
    "keys before the first group | a=1$[G]$b=2 | []a=1,[G]b=2,",
    "values keep their text | [G]$c=#102030$a=x, y;z\\n$$e=a=b | [G]c=#102030,a=x, y;z\\n,e=a=b,",
    "quotes | [G]$a=\" b \"$b=\"$c=\"\"$d=\"x\" y$e=\"\"q\"\" | [G]a= b ,b=\",c=,d=\"x\" y,e=\"q\",",
    "brackets in a group name | [a[b]c]]$k=v | [a[b]c]]k=v,",
    "group without keys, group entered again | [A]$[B]$b=1$[A]$a=2 | [A]a=2,[B]b=1,",
    "case and other letters | [G]$k=1$K=2$[g]$\u00C3\u00A4=\u00C3\u00B6 | [G]k=1,K=2,[g]\u00E4=\u00F6,",
    "key given again | [G]$k=1$l=2$k=3 | [G]k=3,l=2, "
    "| :4: key \"k\" given again in group \"G\"; the last value holds",
    "neither, and empty key | [G]$word$ = v$k=v | [G]k=v, "
    "| :2: neither a comment, nor [group], nor key=value: \"word\" :3: empty key name",
    "group line without its end | [G]$k=1$[H$l=2$[I] ; c$m=3$[J]$n=4 | [G]k=1,[J]n=4, "
    "| :3: group line without its end \"]\"; the entries up to the next group are left out "
    ":5: group line without its end \"]\"; the entries up to the next group are left out",
    "no text | [G]$a=\u00FF$b=1$c=\u00E6\u0097 | [G]a=\uFFFD,b=1,c=\uFFFD, "
    "| :2: bytes that are no UTF-8 text :4: bytes that are no UTF-8 text",
};
// A language, its texts, and the record that it leaves.
const Rows languages{
    "en    | A,B,,d",
    "de    | A de,B de,,d",
    "de_AT | A AT,B de,,d",
    "fr    | A,B,,d    | warnOfSyntax: DIR/fr.json:2:8: object is missing after a comma",
    "it    | A,B,,d    | TextManager::readCatalogue: DIR/it.json: not a JSON object",
    "es    | good,B,,d | TextManager::readCatalogue: DIR/es.json: \"b\" is not a string",
    "xx    | A,B,,d    | TextManager::readCatalogue: Cannot read \"DIR/xx.json\": No such file or directory",
};
using DisplaySizes = QList<QPair<QSize, QString>>;

// What a class adds to the meta-object of QObject.
QString describe(const QMetaObject& type)
{
    QStringList lines(QString(type.className()) + " : " + type.superClass()->className());
    for (int index = type.methodOffset(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        lines.append(QString(method.methodType() == QMetaMethod::Signal ? "signal " : "method ") + method.typeName()
                     + ' ' + method.methodSignature() + ' ' + method.parameterNames().join(',')
                     + (method.access() == QMetaMethod::Public ? "" : " not public")
                     + (method.attributes() & QMetaMethod::Cloned ? " clone" : ""));
    }
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        const bool isReadOnly = property.isReadable() && !property.isWritable() && !property.isResettable()
            && !property.isConstant() && !property.isFinal() && property.isScriptable() && property.isStored();
        lines.append(QString(isReadOnly ? "read-only " : "property ") + property.typeName() + ' ' + property.name()
                     + ' ' + property.notifySignal().name());
    }
    return lines.join("; ");
}

// A catalogue that notes what it is asked.
struct CountingTextManager : TextManager {
    using TextManager::TextManager;

    QString getLanguageName() const override { return noted("name", QString(" xx")); }
    QList<QString> getAvailableUrls(const QString& filename) const override { return noted("urls " + filename, urls); }
    QString getText(const QString& url, const QString& name) const override { return noted(url + name, url.toUpper()); }

    QStringList urls{"b", "a", "b", ""};
    mutable QStringList calls;

    template <typename Answer>
    Answer noted(const QString& call, const Answer& answer) const
    {
        calls.append(call);
        return answer;
    }
};

} // namespace

class HandlerTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;
    const QString table = "{\"arrow\": {\"defaultContext\": \"day/a b%.svg\", \"nightMode\": \"night/a.svg\","
                          "\"gone\": \"gone.svg\", \"folder\": \"day\"}, \"bad\": {\"x\": 1},"
                          "\"lonely\": {\"nightMode\": \"night/a.svg\"}}";

    // All records, with the directory of the test as "DIR".
    QString records() const { return LogRecorder::take().join('\n').replace(directory.path(), "DIR"); }

private Q_SLOTS:
    void initTestCase() { QDir::setCurrent(directory.path()); }

    void metaObjectsAreTheInterfaceOfQml()
    {
        const QStringList found{
            describe(TarnisColorHandler::staticMetaObject), describe(TarnisFontHandler::staticMetaObject),
            describe(TarnisElementDimensionHandler::staticMetaObject), describe(TarnisTextHandler::staticMetaObject),
            describe(TarnisIconHandler::staticMetaObject)};
        QCOMPARE(found.join('\n'),
                 "TarnisColorHandler : QObject; method QString getColor(QString,QString) group,key\n"
                 "TarnisFontHandler : QObject; method QString getFontFamily(QString) fontGroup; "
                 "method double getFontPointSize(QString,QString) fontGroup,sizeKey\n"
                 "TarnisElementDimensionHandler : QObject; signal void uiElementDimensionsChanged() ; "
                 "read-only QVariantMap uiElementDimensions uiElementDimensionsChanged\n"
                 "TarnisTextHandler : QObject; signal void translatedTextsChanged() ; "
                 "read-only QVariantMap translatedTexts translatedTextsChanged\n"
                 "TarnisIconHandler : QObject; method QString getIconPath(QString,QString) aliasName,context; "
                 "method QString getIconPath(QString) aliasName clone; "
                 "method QString getIconPathAsFileUrl(QString,QString) aliasName,context; "
                 "method QString getIconPathAsFileUrl(QString) aliasName clone");
    }

    void expressionsOfQml_data() { addRows(expressions); }

    void expressionsOfQml()
    {
        const auto [expression, result, record] = cells<3>();
        writeFile("icons/day/a b%.svg", "");
        writeFile("icons/night/a.svg", "");
        QObject owner;
        QJSEngine engine;
        LogRecorder log;
        const QString fonts = writeFile("f.ini", "[T]\nFamily=Some Font\nNormal=16\nHalf=12.5\nWord=big\n[E]\nk=");
        new TarnisColorHandler(writeFile("c.ini", "[G]\nK=rgba(0, 0, 0, 1)\nE="), &owner);
        new TarnisFontHandler(fonts, &owner);
        // However the base directory is written, one slash stands behind it.
        new TarnisIconHandler(directory.filePath("icons//"), table, &owner);
        for (QObject* handler : owner.children())
            engine.globalObject().setProperty(handler->metaObject()->className(), engine.newQObject(handler));
        engine.globalObject().setProperty("dotsPerInch", qEnvironmentVariableIntValue("QT_FONT_DPI"));
        log.take();
        QCOMPARE(engine.evaluate(expression).toString().replace(directory.path(), "DIR"), result);
        const QString function = expression.section('(', 0, 0).replace('.', "::").remove("AsFileUrl");
        QCOMPARE(records(), record.isEmpty() ? "" : function + ": " + record);
    }

    void nearestDisplaySizeIsTheFirstAtTheLeastDistance()
    {
        LogRecorder log; // the reader's, of files that are missing
        const DisplaySizes near{{{800, 480}, "first"}, {{1024, 600}, "big"}, {{800, 480}, "second"}, {{-1, -2}, "no"}};
        const DisplaySizes far{
            {{INT_MIN, INT_MIN}, "beyond"}, {{INT_MAX, INT_MIN}, "wide"}, {{INT_MAX, INT_MAX - 9}, "huge"}};
        const TarnisElementDimensionHandler handler(near + far);
        QStringList found;
        // Equal to two, nearer to one, as near to one as to the other, turned, further away than an int, invalid.
        for (const QSize screen :
             {QSize(800, 480), QSize(1000, 600), QSize(912, 540), QSize(600, 1024), QSize(INT_MAX, INT_MAX), QSize()})
            found.append(handler.nearestNeighbourScreenSize(screen).second);
        QCOMPARE(found.join(' '), "first big first first huge no");
    }

    void dimensionsFollowTheScreen()
    {
        writeFile("low", "t=1\n[B]\nh=-48\na=wide\nb=1.5\nc=0x10\nd=\ne=4 px\nf=2147483648\n[a/b]\nc=1\n[a]\nb/c=2");
        writeFile("high", "[Button]\nheight=64\n");
        LogRecorder log;
        QVERIFY(TarnisElementDimensionHandler({}).uiElementDimensions().isEmpty());
        TarnisElementDimensionHandler handler({{{800, 480}, "low"}, {{1280, 800}, "high"}, {{3000, 100}, "none"}});
        QSignalSpy changed(&handler, &TarnisElementDimensionHandler::uiElementDimensionsChanged);
        QCOMPARE(handler.uiElementDimensions(), (QVariantMap{{"Button/height", 64}}));
        QCOMPARE(handler.uiElementDimensions().value("Button/height").userType(), int(QMetaType::Int));
        QVERIFY(switchScreen(1100, 700));
        QTRY_COMPARE(QGuiApplication::primaryScreen()->size(), QSize(1100, 700));
        QCOMPARE(changed.count(), 0);
        QVERIFY(switchScreen(800, 480));
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(QJsonDocument::fromVariant(handler.property("uiElementDimensions")).toJson(QJsonDocument::Compact),
                 "{\"/t\":1,\"B/a\":0,\"B/b\":0,\"B/c\":0,\"B/d\":0,\"B/e\":0,\"B/f\":0,\"B/h\":-48,\"a/b/c\":2}");
        handler.onScreenGeometryChanged({0, 0, 3000, 100});
        handler.onScreenGeometryChanged({50, 60, 3000, 101});
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(changed.count(), 2);
        QVERIFY(handler.uiElementDimensions().isEmpty());
    }

    void textsFollowTheLanguage()
    {
        writeFile("en.json", "{}");
        CountingTextManager manager(directory.path(), "en");
        std::optional<TarnisTextHandler> handler(manager);
        QSignalSpy changed(&*handler, &TarnisTextHandler::translatedTextsChanged);
        for (int load = 0; load < 3; ++load) {
            QCOMPARE(manager.calls.join(';'), "name;urls en.json;b xx;a xx;b xx; xx");
            QCOMPARE(handler->translatedTexts(), (QVariantMap{{"a", "A"}, {"b", "B"}, {"", ""}}));
            QCOMPARE(changed.count(), load);
            manager.calls.clear();
            manager.setLanguage("en");
        }
        manager.urls.clear();
        Q_EMIT manager.languageReloaded();
        QVERIFY(handler->property("translatedTexts").toMap().isEmpty());
        handler.reset();
        manager.calls.clear();
        Q_EMIT manager.languageReloaded();
        QCOMPARE(manager.calls, QStringList());
    }

    void iconTable_data() { addRows(iconTables); }

    void iconTable()
    {
        const auto [table, icons, times, function, fault] = cells<5>();
        const TarnisIconHandler handler(QString(), "{}");
        LogRecorder log;
        QString found;
        QDebug(&found).nospace() << handler.parseMappingTable(QString(table).replace('\'', '"'));
        QCOMPARE(found.remove("QMap").replace('"', '\''), icons);
        const QString record = "TarnisIconHandler::%1: Failed to parse icon mapping json! %2";
        QCOMPARE(log.take().join(""), record.arg(function, fault).repeated(times.toInt()));
    }

    void iconDirectoryThatDoesNotExistMeansTheCurrentOne()
    {
        writeFile("night/a.svg", "");
        LogRecorder log;
        const TarnisIconHandler missing("/no/such/directory", table);
        const QString record = "Unable to create object icon base path directory does not exist";
        QCOMPARE(log.take().value(0), "TarnisIconHandler::TarnisIconHandler: " + record);
        QCOMPARE(missing.getIconPath("arrow", "nightMode"), directory.filePath("night/a.svg"));
        QCOMPARE(TarnisIconHandler(QString(), table).getIconPath("arrow", "nightMode"),
                 directory.filePath("night/a.svg"));
        QVERIFY(!records().contains(record));
    }

    void thousandsOfIconsAreLookedForAgainOnEveryLookup()
    {
        QJsonObject table;
        for (int number = 0; number < 5000; ++number) {
            const QString alias = "icon" + QString::number(number);
            table.insert(alias, QJsonObject{{"defaultContext", alias}});
        }
        LogRecorder log;
        const TarnisIconHandler icons(directory.path(), QJsonDocument(table).toJson());
        for (const QString& alias : table.keys()) {
            QCOMPARE(icons.getIconPath(alias), "");
            const QString path = writeFile(directory.filePath(alias), "");
            QCOMPARE(icons.getIconPath(alias), path);
            QFile::remove(path);
            QCOMPARE(icons.getIconPath(alias), "");
        }
    }

    void iniGrammar_data() { addRows(iniFiles); }

    void iniGrammar()
    {
        const auto [name, content, entries, faults] = cells<4>();
        writeFile("x.ini", content.toLatin1().replace('$', '\n'));
        LogRecorder log;
        const IniFileManager file("x.ini", nullptr);
        QCOMPARE(log.take().join(' ').remove("platform.ini IniFileManager::IniFileManager: x.ini"), faults);
        QString found;
        for (const QString& group : file.getGroups()) {
            found += "[" + group + "]";
            for (const QString& key : file.getChildKeys(group))
                found += key + "=" + file.getValueString(group, key, "default") + ",";
        }
        QCOMPARE(found, entries);
    }

    void iniReaderTakesTheCodecAndTheDefaults()
    {
        const IniFileManager reader(writeFile("latin.ini", "[G]\nk=\xE4"), "ISO-8859-1");
        QCOMPARE(reader.getValueString("G", "k", "default"), "\u00E4");
        QCOMPARE(reader.getValueString("g", "k", "default"), "default");
        QCOMPARE(reader.getValue("G", "K", 7), QVariant(7));
        QCOMPARE(reader.getValueInteger("G", "k", 7), 7);
    }

    void unusableFilesAreSaidOnceAndNeverOpened()
    {
        mkfifo("fifo", S_IRUSR);
        LogRecorder log;
        for (const char* path : {"", "none", ".", "fifo", "/dev/zero"})
            QVERIFY(IniFileManager(path, nullptr).getGroups().isEmpty());
        QCOMPARE(records().remove("platform.ini IniFileManager::IniFileManager: Cannot read "),
                 "\"\": No path\n\"none\": No such file or directory\n\".\": Not a regular file\n"
                 "\"fifo\": Not a regular file\n\"/dev/zero\": Not a regular file");
    }

    void textsFallBackFromAbsentAndFaultyOnes_data() { addRows(languages); }

    void textsFallBackFromAbsentAndFaultyOnes()
    {
        const auto [language, expected, record] = cells<3>();
        writeFile("en.json", "{\"a\": \"A\", \"b\": \"B\", \"c\": \"\"}");
        writeFile("de.json", "{\"a\": \"A de\", \"b\": \"B de\"}");
        writeFile("de_AT.json", "{\"a\": \"A AT\"}");
        writeFile("fr.json", "{\n \"b\": }");
        writeFile("it.json", "[]");
        writeFile("es.json", "{\"a\": \"good\", \"b\": 1}");
        LogRecorder log;
        TextManager texts(directory.path(), language);
        QStringList found;
        for (const char* url : {"a", "b", "c", "d"})
            found.append(texts.getText(url, texts.getLanguageName()));
        QCOMPARE(found.join(','), expected);
        QCOMPARE(records(), record.isEmpty() ? "" : "platform.text " + record);
        writeFile("en.json", "{\"a\": \"new\"}");
        texts.setLanguage("en");
        QCOMPARE(texts.getText("a", texts.getLanguageName()), "new");
        QCOMPARE(texts.getAvailableUrls("en.json"), QStringList("a"));
    }
};

int main(int argc, char* argv[])
{
    TestProcess server("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    qputenv("DISPLAY", ":" + server.firstLine().toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    HandlerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HandlerTest.moc"
