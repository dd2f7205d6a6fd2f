#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>
#include <optional>

namespace
{

// What a class adds to the meta-object of QObject, a line each.
QStringList describe(const QMetaObject& metaObject)
{
    QStringList lines(QString(metaObject.className()) + " : " + metaObject.superClass()->className());
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        const QMetaMethod method = metaObject.method(index);
        const char* kind = method.methodType() == QMetaMethod::Signal ? "signal " : "method ";
        lines.append(kind + QString(method.typeName()) + ' ' + method.methodSignature() + " ("
                     + method.parameterNames().join(", ") + ")"
                     + (method.access() == QMetaMethod::Public ? "" : " not public")
                     + (method.attributes() & QMetaMethod::Cloned ? " clone" : ""));
    }
    for (int index = metaObject.propertyOffset(); index < metaObject.propertyCount(); ++index) {
        const QMetaProperty property = metaObject.property(index);
        const bool isReadOnly = property.isReadable() && !property.isWritable() && !property.isResettable()
            && !property.isConstant() && !property.isFinal() && property.isScriptable() && property.isStored();
        lines.append(QString("property ") + property.typeName() + ' ' + property.name() + " notify "
                     + property.notifySignal().name() + (isReadOnly ? " read-only" : ""));
    }
    return lines;
}

// A catalogue that notes what it is asked.
class CountingTextManager : public TextManager
{
public:
    using TextManager::TextManager;

    QString getLanguageName() const override
    {
        calls.append("name");
        return "xx";
    }

    QList<QString> getAvailableUrls(const QString& filename) const override
    {
        calls.append("urls " + filename);
        return urls;
    }

    QString getText(const QString& url, const QString& language) const override
    {
        calls.append("text " + url + ' ' + language);
        return texts.value(url);
    }

    QStringList urls;
    QMap<QString, QString> texts;
    mutable QStringList calls;
};

} // namespace

class HandlerTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;

    QString file(const QString& name, const QByteArray& content) const
    {
        return writeFile(directory.filePath(name), content);
    }

private Q_SLOTS:
    void metaObjectIsTheInterfaceOfQml_data()
    {
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("colours") << QStringList{"TarnisColorHandler : QObject",
                                                "method QString getColor(QString,QString) (group, key)"}
                                 << describe(TarnisColorHandler::staticMetaObject);
        QTest::newRow("fonts") << QStringList{"TarnisFontHandler : QObject",
                                              "method QString getFontFamily(QString) (fontGroup)",
                                              "method double getFontPointSize(QString,QString) (fontGroup, sizeKey)"}
                               << describe(TarnisFontHandler::staticMetaObject);
        QTest::newRow("dimensions")
            << QStringList{"TarnisElementDimensionHandler : QObject", "signal void uiElementDimensionsChanged() ()",
                           "property QVariantMap uiElementDimensions notify uiElementDimensionsChanged read-only"}
            << describe(TarnisElementDimensionHandler::staticMetaObject);
        QTest::newRow("texts") << QStringList{"TarnisTextHandler : QObject", "signal void translatedTextsChanged() ()",
                                              "property QVariantMap translatedTexts notify translatedTextsChanged "
                                              "read-only"}
                               << describe(TarnisTextHandler::staticMetaObject);
        QTest::newRow("icons")
            << QStringList{"TarnisIconHandler : QObject",
                           "method QString getIconPath(QString,QString) (aliasName, context)",
                           "method QString getIconPath(QString) (aliasName) clone",
                           "method QString getIconPathAsFileUrl(QString,QString) (aliasName, context)",
                           "method QString getIconPathAsFileUrl(QString) (aliasName) clone"}
            << describe(TarnisIconHandler::staticMetaObject);
    }

    void metaObjectIsTheInterfaceOfQml()
    {
        QFETCH(QStringList, expected);
        QFETCH(QStringList, found);
        QCOMPARE(found, expected);
    }

    void colors()
    {
        const TarnisColorHandler colors(file("colors.ini", "[G]\nK=rgba(0, 0, 0, 1)\nE=\nN=no colour"));
        LogRecorder log;
        QCOMPARE(colors.getColor("G", "K"), QString("rgba(0, 0, 0, 1)"));
        QCOMPARE(colors.getColor("G", "N"), QString("no colour"));
        QVERIFY(colors.getColor("G", "E").isEmpty());
        QCOMPARE(log.take(), QStringList());
        for (const char* key : {"k", "a\"b\\\n", "k"}) {
            const QString color = colors.getColor("G", key);
            QVERIFY(color.isEmpty() && !color.isNull());
        }
        QVERIFY(!colors.getColor("g", "K").isNull());
        const QString record = "TarnisColorHandler::getColor: No color for key %1 in group %2 !";
        QCOMPARE(log.take(),
                 (QStringList{record.arg("\"k\"", "\"G\""), record.arg("\"a\\\"b\\\\\\n\"", "\"G\""),
                              record.arg("\"k\"", "\"G\""), record.arg("\"K\"", "\"g\"")}));
    }

    void fonts()
    {
        const TarnisFontHandler fonts(file("fonts.ini",
                                           "[Text]\nFamily=Some Font\nNormal=16\nHalf=12.5\nNone=0\n"
                                           "Minus=-8\nWord=big\n[Sizes]\nNormal=12\n[Empty]\nFamily="));
        // Run with several dots per inch.
        const double dotsPerInch = qEnvironmentVariableIntValue("QT_FONT_DPI");
        LogRecorder log;
        QCOMPARE(fonts.getFontFamily("Text"), QString("Some Font"));
        QVERIFY(!fonts.getFontFamily("Empty").isNull());
        QCOMPARE(fonts.getFontPointSize("Text", "Normal"), 72.0 / dotsPerInch * 16.0);
        QCOMPARE(fonts.getFontPointSize("Text", "Half"), 72.0 / dotsPerInch * 12.5);
        QCOMPARE(fonts.getFontPointSize("Text", "Minus"), 72.0 / dotsPerInch * -8.0);
        QCOMPARE(fonts.getFontPointSize("Sizes", "Normal"), 72.0 / dotsPerInch * 12.0);
        QCOMPARE(fonts.getFontPointSize("Text", "None"), 0.0);
        QCOMPARE(log.take(), QStringList());
        QVERIFY(fonts.getFontFamily("Sizes").isEmpty() && !fonts.getFontFamily("text").isNull());
        QCOMPARE(fonts.getFontPointSize("Sizes", "Large"), 0.0);
        QCOMPARE(fonts.getFontPointSize("Text", "Word"), 0.0);
        QCOMPARE(fonts.getFontPointSize("Text", "Family"), 0.0);
        const QString family = "TarnisFontHandler::getFontFamily: Unknown font group: ";
        const QString size = "TarnisFontHandler::getFontPointSize: ";
        QCOMPARE(log.take(),
                 (QStringList{family + "\"Sizes\"", family + "\"text\"",
                              size + "No font size for key \"Large\" in font group \"Sizes\"",
                              size + "Expected font size for key \"Word\" in font group \"Text\" to be a number!",
                              size + "Expected font size for key \"Family\" in font group \"Text\" to be a number!"}));
    }

    void nearestDisplaySize_data()
    {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QString>("path");
        const int most = std::numeric_limits<int>::max();
        QTest::newRow("equal, the first of two") << QSize(800, 480) << "first";
        QTest::newRow("nearer") << QSize(1000, 600) << "large";
        QTest::newRow("at equal distance, the first") << QSize(912, 540) << "first";
        QTest::newRow("turned") << QSize(600, 1024) << "first";
        QTest::newRow("further than an int") << QSize(most, most) << "huge";
        QTest::newRow("invalid") << QSize() << "least";
    }

    void nearestDisplaySize()
    {
        QFETCH(QSize, screen);
        QFETCH(QString, path);
        const int least = std::numeric_limits<int>::min();
        const int most = std::numeric_limits<int>::max();
        LogRecorder log; // the reader's, of files that are missing
        const TarnisElementDimensionHandler handler({{{800, 480}, "first"},
                                                     {{1024, 600}, "large"},
                                                     {{800, 480}, "second"},
                                                     {{least, least}, "beyond"},
                                                     {{most, least}, "wide"},
                                                     {{most, most - 9}, "huge"},
                                                     {{-1, -2}, "least"}});
        QCOMPARE(handler.nearestNeighbourScreenSize(screen).second, path);
    }

    void dimensionsFollowTheGeometry()
    {
        const QString small = file("small.ini", "top=1\n[Button]\nheight=48\nwidth=wide\n[a/b]\nc=1\n[a]\nb/c=2\n");
        const QString large = file("large.ini", "[Button]\nheight=64\n");
        TarnisElementDimensionHandler handler(
            {{{800, 480}, small}, {{1280, 800}, large}, {{3000, 100}, directory.filePath("none.ini")}});
        const QVariantMap smallMap{{"/top", 1}, {"Button/height", 48}, {"Button/width", 0}, {"a/b/c", 2}};
        QSignalSpy changed(&handler, &TarnisElementDimensionHandler::uiElementDimensionsChanged);
        handler.onScreenGeometryChanged({0, 0, 800, 480});
        QCOMPARE(handler.uiElementDimensions(), smallMap);
        const int loads = changed.count();
        handler.onScreenGeometryChanged({50, 60, 790, 470});
        QCOMPARE(changed.count(), loads);
        handler.onScreenGeometryChanged({0, 0, 1200, 800});
        QCOMPARE(changed.count(), loads + 1);
        QCOMPARE(handler.property("uiElementDimensions").toMap(), (QVariantMap{{"Button/height", 64}}));
        QCOMPARE(handler.uiElementDimensions().value("Button/height").userType(), int(QMetaType::Int));
        LogRecorder log;
        handler.onScreenGeometryChanged({0, 0, 3000, 100});
        handler.onScreenGeometryChanged({0, 0, 3000, 101});
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(changed.count(), loads + 2);
        QVERIFY(handler.uiElementDimensions().isEmpty());
    }

    void emptyListOfDisplaySizesLoadsNothing()
    {
        LogRecorder log;
        TarnisElementDimensionHandler handler({});
        QSignalSpy changed(&handler, &TarnisElementDimensionHandler::uiElementDimensionsChanged);
        handler.onScreenGeometryChanged({0, 0, 800, 480});
        QCOMPARE(changed.count(), 0);
        QVERIFY(handler.uiElementDimensions().isEmpty());
        QCOMPARE(log.take(), QStringList());
        handler.loadUiElementDimensions({QSize(1, 1), file("later.ini", "[G]\nk=1")});
        QCOMPARE(handler.uiElementDimensions(), (QVariantMap{{"G/k", 1}}));
    }

    void textsFollowTheLanguage()
    {
        file("en.json", "{}");
        CountingTextManager manager(directory.path(), "en");
        manager.urls = QStringList{"text://b", "text://a", "text://b", ""};
        manager.texts = {{"text://b", "B"}};
        std::optional<TarnisTextHandler> handler(manager);
        const QStringList calls{"name",    "urls en.json", "text text://b xx", "text text://a xx", "text text://b xx",
                                "text  xx"};
        QCOMPARE(manager.calls, calls);
        QCOMPARE(handler->translatedTexts(), (QVariantMap{{"text://a", ""}, {"text://b", "B"}, {"", ""}}));
        QSignalSpy changed(&*handler, &TarnisTextHandler::translatedTextsChanged);
        manager.setLanguage("en");
        manager.setLanguage("en");
        QCOMPARE(changed.count(), 2);
        QCOMPARE(manager.calls, calls + calls + calls);
        manager.urls.clear();
        Q_EMIT manager.languageReloaded();
        QCOMPARE(changed.count(), 3);
        QVERIFY(handler->property("translatedTexts").toMap().isEmpty());
        handler.reset();
        manager.calls.clear();
        Q_EMIT manager.languageReloaded();
        QCOMPARE(manager.calls, QStringList());
    }
};

QTEST_MAIN(HandlerTest)
#include "HandlerTest.moc"
