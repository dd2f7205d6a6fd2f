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

namespace
{

// A table; the map that it becomes; how often it is logged, by which function, what.
const Rows iconTables{
    "{'a': {} | () | 1 | parseMappingTable | Invalid json.",
    "[{'a': {}}] | () | 1 | parseMappingTable | Invalid json.",
    "{'': {}, 'a': {'c': '/../x ', 'C': ''}, 'A': {}} | (('', ())('A', ())('a', (('C', '')('c', '/../x '))))",
    "{'a': 'x', 'b': 1, 'd': {'c': 'p'}} | (('a', ())('b', ())('d', (('c', 'p')))) "
    "| 2 | extractContextBaseMapping | Ivalid json.",
    "{'a': {'b': 1, 'c': 'p', 'd': {}}} | (('a', (('', '')('c', 'p')))) "
    "| 2 | extractOneContext | Expected relative path to be of type string.",
};
// An expression of QML, its result, and the record that it leaves; "DIR" is the directory of the test.
const Rows expressions{
    "TarnisColorHandler.getColor('G', 'K') | rgba(0, 0, 0, 1)",
    "TarnisColorHandler.getColor('G', 'E') |",
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
    "en    | {'':'','a':'A','b':'B'}",
    "de    | {'':'','a':'A de','b':'B de'}",
    "de_AT | {'':'','a':'A AT','b':'B de'}",
    "fr    | {'':'','a':'A','b':'B'}    | warnOfSyntax: DIR/fr.json:2:8: object is missing after a comma",
    "it    | {'':'','a':'A','b':'B'}    | TextManager::readCatalogue: DIR/it.json: not a JSON object",
    "es    | {'':'','a':'good','b':'B'} | TextManager::readCatalogue: DIR/es.json: 'b' is not a string",
};

// What a class adds to the meta-object of QObject.
QString describe(const QMetaObject& type)
{
    QStringList members;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index)
        members += QString(type.method(index).typeName()) + ' ' + type.method(index).methodSignature();
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        members += QString(property.isWritable() ? "writable " : "read-only ") + property.typeName() + ' '
            + property.name() + ' ' + property.notifySignal().name();
    }
    return members.join("; ");
}

QString toJson(const QVariant& value)
{
    return QString(QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact)).replace('"', '\'');
}

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
        QCOMPARE(describe(TarnisColorHandler::staticMetaObject), "QString getColor(QString,QString)");
        QCOMPARE(describe(TarnisFontHandler::staticMetaObject),
                 "QString getFontFamily(QString); double getFontPointSize(QString,QString)");
        QCOMPARE(describe(TarnisElementDimensionHandler::staticMetaObject),
                 "void uiElementDimensionsChanged(); "
                 "read-only QVariantMap uiElementDimensions uiElementDimensionsChanged");
        QCOMPARE(describe(TarnisTextHandler::staticMetaObject),
                 "void translatedTextsChanged(); read-only QVariantMap translatedTexts translatedTextsChanged");
        QCOMPARE(describe(TarnisIconHandler::staticMetaObject),
                 "QString getIconPath(QString,QString); QString getIconPath(QString); "
                 "QString getIconPathAsFileUrl(QString,QString); QString getIconPathAsFileUrl(QString)");
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
        QCOMPARE(toJson(handler.property("uiElementDimensions")),
                 "{'/t':1,'B/a':0,'B/b':0,'B/c':0,'B/d':0,'B/e':0,'B/f':0,'B/h':-48,'a/b/c':2}");
        handler.onScreenGeometryChanged({0, 0, 3000, 100});
        handler.onScreenGeometryChanged({50, 60, 3000, 101});
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(changed.count(), 2);
        QVERIFY(handler.uiElementDimensions().isEmpty());
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
        LogRecorder log;
        QVERIFY(IniFileManager("", nullptr).getGroups().isEmpty());
        QCOMPARE(records(), "platform.ini IniFileManager::IniFileManager: Cannot read \"\": No path");
    }

    void textsFollowTheLanguageAndFallBackFromFaultyOnes_data() { addRows(languages); }

    void textsFollowTheLanguageAndFallBackFromFaultyOnes()
    {
        const auto [language, expected, record] = cells<3>();
        writeFile("en.json", "{\"a\": \"A\", \"b\": \"B\", \"\": \"\"}");
        writeFile("de.json", "{\"a\": \"A de\", \"b\": \"B de\", \"unknown to en\": \"\"}");
        writeFile("de_AT.json", "{\"a\": \"A AT\"}");
        writeFile("fr.json", "{\n \"b\": }");
        writeFile("it.json", "[]");
        writeFile("es.json", "{\"a\": \"good\", \"b\": 1}");
        LogRecorder log;
        TextManager manager(directory.path(), language);
        const TarnisTextHandler handler(manager);
        QCOMPARE(toJson(handler.property("translatedTexts")), expected);
        QCOMPARE(records().replace('"', '\''), record.isEmpty() ? "" : "platform.text " + record);
        QCOMPARE(manager.getText("unknown to en", "en"), "unknown to en");
        QSignalSpy changed(&handler, &TarnisTextHandler::translatedTextsChanged);
        writeFile("en.json", "{\"a\": \"new\"}");
        manager.setLanguage("en");
        QCOMPARE(handler.translatedTexts(), (QVariantMap{{"a", "new"}}));
        QCOMPARE(changed.count(), 1);
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
