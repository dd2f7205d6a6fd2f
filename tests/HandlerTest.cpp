// The handlers as QML uses them, on a screen of their own.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "tests/support/DataRows.h"
#include "tests/support/IconMap.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QJSEngine>
#include <QScreen>

namespace Tests
{

namespace
{

// What a class adds to the meta-object of QObject.
QStringList membersOf(const QMetaObject& type)
{
    QStringList members;
    for (int index = type.methodOffset(); index < type.methodCount(); ++index)
        members += QString(type.method(index).typeName()) + ' ' + type.method(index).methodSignature();
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        members += QString(property.isWritable() ? "writable " : "read-only ") + property.typeName() + ' '
            + property.name() + ' ' + property.notifySignal().name();
    }
    return members;
}

} // namespace

class HandlerTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;
    const QString mappingTable = R"({
        "arrow": {"defaultContext": "day/a b%.svg", "nightMode": "night/a.svg", "gone": "gone.svg", "folder": "day"},
        "bad": {"x": 1}, "lonely": {"nightMode": "night/a.svg"}
    })";

private Q_SLOTS:
    void initTestCase() { QDir::setCurrent(directory.path()); }

    void qmlSeesTheseMembersAndNoOthers_data() { addRows({"members"}); }

    void qmlSeesTheseMembersAndNoOthers()
    {
        QMap<QString, const QMetaObject*> types;
        for (const QMetaObject* type : {&TarnisColorHandler::staticMetaObject, &TarnisFontHandler::staticMetaObject,
                                        &TarnisElementDimensionHandler::staticMetaObject,
                                        &TarnisTextHandler::staticMetaObject, &TarnisIconHandler::staticMetaObject})
            types[type->className()] = type;
        QCOMPARE(membersOf(*types.value(row()["name"].toString(), &QObject::staticMetaObject)), rowTexts("members"));
    }

    void lookupInQmlGivesTheResultAndTheRecord_data() { addRows({"lookup", "result", "records"}); }

    void lookupInQmlGivesTheResultAndTheRecord()
    {
        writeFile("icons/day/a b%.svg", "");
        writeFile("icons/night/a.svg", "");
        QObject owner;
        QJSEngine engine;
        LogRecorder log;
        const QString fonts = writeFile("f.ini", "[T]\nFamily=Some Font\nNormal=16\nHalf=12.5\nWord=big\n[E]\nk=");
        new TarnisColorHandler(writeFile("c.ini", "[G]\nK=rgba(0, 0, 0, 1)\nE="), &owner);
        new TarnisFontHandler(fonts, &owner);
        // However many slashes end the base directory, paths have one there.
        new TarnisIconHandler(directory.filePath("icons//"), mappingTable, &owner);
        for (QObject* handler : owner.children())
            engine.globalObject().setProperty(handler->metaObject()->className(), engine.newQObject(handler));
        engine.globalObject().setProperty("dotsPerInch", qEnvironmentVariableIntValue("QT_FONT_DPI"));
        log.take();
        const QString result = engine.evaluate(row()["lookup"].toString()).toString();
        QCOMPARE(QString(result).replace(directory.path(), "DIR"), row()["result"].toString());
        QCOMPARE(log.take().replaceInStrings(directory.path(), "DIR"), rowTexts("records"));
    }

    // QML does not tell the two apart, C++ does.
    void missingColorOrFontFamilyIsAnEmptyButNotANullText()
    {
        const LogRecorder log;
        const QString file = writeFile("empty.ini", "[G]\n");
        const QString color = TarnisColorHandler(file).getColor("G", "k");
        const QString family = TarnisFontHandler(file).getFontFamily("G");
        QVERIFY(color.isEmpty() && !color.isNull());
        QVERIFY(family.isEmpty() && !family.isNull());
    }

    void dimensionsFollowTheScreen()
    {
        writeFile("low", "t=1\n[B]\nh=-48\na=wide\nb=1.5\nc=0x10\ng=\ne=4 px\nf=2147483648\n[a/b]\nc=1\n[a]\nb/c=2");
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
        const QVariantMap expected{{"/t", 1},  {"B/a", 0}, {"B/b", 0},   {"B/c", 0},  {"B/g", 0},
                                   {"B/e", 0}, {"B/f", 0}, {"B/h", -48}, {"a/b/c", 2}};
        QCOMPARE(toJson(handler.property("uiElementDimensions")), toJson(expected));
        handler.onScreenGeometryChanged({0, 0, 3000, 100});
        handler.onScreenGeometryChanged({50, 60, 3000, 101});
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(changed.count(), 2);
        QVERIFY(handler.uiElementDimensions().isEmpty());
    }

    void mappingTableKeepsItsGoodEntries_data() { addRows({"table", "icons", "records"}); }

    void mappingTableKeepsItsGoodEntries()
    {
        const TarnisIconHandler handler(QString(), "{}");
        LogRecorder log;
        const TarnisIconHandler::IconMap icons = handler.parseMappingTable(row()["table"].toString());
        QCOMPARE(writeMappingTable(icons), toJson(row()["icons"].toVariant()));
        QCOMPARE(log.take(), rowTexts("records"));
    }

    void missingIconDirectoryIsReplacedByTheCurrentOne()
    {
        writeFile("night/a.svg", "");
        LogRecorder log;
        const TarnisIconHandler missing("/no/such/directory", mappingTable);
        const QString record = "TarnisIconHandler::TarnisIconHandler: Unable to create object icon base path directory "
                               "does not exist";
        QCOMPARE(log.take().value(0), record);
        QCOMPARE(missing.getIconPath("arrow", "nightMode"), directory.filePath("night/a.svg"));
        const TarnisIconHandler unnamed(QString(), mappingTable);
        QCOMPARE(unnamed.getIconPath("arrow", "nightMode"), directory.filePath("night/a.svg"));
        QVERIFY(!log.take().contains(record));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    Tests::TestProcess server("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    qputenv("DISPLAY", ":" + server.firstLine().toUtf8());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    Tests::HandlerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "HandlerTest.moc"
