// The host library with the real service on a private bus, and with directories.

#include "QmlHost/TarnisUi.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <optional>

namespace
{

// An engine with one object, whose bindings are properties.
class Page
{
public:
    explicit Page(const QByteArray& members)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQml 2.15\nimport Tarnis 1.0\nQtObject { " + members + " }", QUrl());
        object.reset(component.create());
        if (object == nullptr)
            qFatal("%s", qPrintable(component.errorString()));
    }

    QVariant operator[](const char* property) const { return object->property(property); }
    QVariant call(const char* function) const
    {
        QVariant result;
        QMetaObject::invokeMethod(object.get(), function, Q_RETURN_ARG(QVariant, result));
        return result;
    }

    QQmlEngine engine;

private:
    std::unique_ptr<QObject> object;
};

const QByteArray lookups =
    "property string color: Ui.colors.getColor('Day', 'Text')\n"
    "property string family: Ui.fonts.getFontFamily('Text')\n"
    "property double points: Ui.fonts.getFontPointSize('Text', 'Button')\n"
    "property var height: Ui.dimensions.uiElementDimensions['Button/height']\n"
    "property string icon: Ui.icons.getIconPathAsFileUrl('home') + Ui.icons.getIconPath('home', 'nightMode')\n"
    "property var text: Ui.texts.translatedTexts['text://Button/Cancel']\n"
    "property string all: [color, family, points, height, icon, text, Ui.ready].join()\n";

// What is done to a copy of the resources, and the color that the page shows then.
const Rows changes{
    "sed -i s/#1f2a37/#fe01fd/ colors.ini                                                    | #fe01fd", // renames over
    "printf '[Day]\\nText=#fe01fd\\n' > colors.ini                                           | #fe01fd",
    "cp -r . ../new; mv ../resources ../old; sed -i s/#1f2a37/#fe01fd/ ../new/colors.ini; mv ../new ../resources | #fe01fd",
    "rm colors.ini; sleep 0.2; printf '[Day]\\nText=#fe01fd\\n' > colors.ini                 | #fe01fd",
    "printf '[Day]\\nText=#fe01fd\\n' > ../linked.ini; ln -sf ../linked.ini colors.ini; sleep 0.3; "
    "printf '[Day]\\nText=#fe01fc\\n' > ../linked.ini                                        | #fe01fc",
    "cp -r . ../other; rm -r ../resources; sed -i s/#1f2a37/#fe01fd/ ../other/colors.ini; ln -s other ../resources | #fe01fd",
};

} // namespace

class QmlHostTest : public QObject
{
    Q_OBJECT

    PrivateBus bus;
    std::optional<TestProcess> module;
    std::optional<QTemporaryDir> parent;
    QString resources;

    void startModule() { module.emplace(TARNIS_MODULE, QStringList{"--resources", resources}); }

    static QString expected(const QString& directory, const QString& text)
    {
        return QString("#1f2a37,Inter,15,48,file:%1/icons/day/home.svg%1/icons/night/home.svg,%2,true")
            .arg(directory, text);
    }

private Q_SLOTS:
    void init()
    {
        parent.emplace();
        resources = parent->filePath("resources");
        QCOMPARE(run("cp", {"-r", RESOURCES, resources}).exitStatus, 0);
    }

    void cleanup()
    {
        module.reset();
        parent.reset();
    }

    void lookupsBeforeTheFirstAnswerAreEmptyAndQuiet()
    {
        TarnisUi ui;
        ui.publish();
        const Page page(lookups);
        QCOMPARE(page["all"].toString(), QString(",,0,,,,false"));
    }

    void everyEngineFollowsTheServiceAndTheLanguage()
    {
        TarnisUi ui;
        ui.publish();
        const Page first(lookups);
        QTRY_VERIFY_WITH_TIMEOUT(!ui.problem().isEmpty(), 10000);
        QVERIFY(!ui.waitUntilReady(1));
        startModule();
        QVERIFY(ui.waitUntilReady(10000));
        const Page second(lookups);
        for (const Page* page : {&first, &second})
            QCOMPARE((*page)["all"].toString(), expected(resources, "Cancel"));
        QCOMPARE(ui.problem(), QString());
        QCOMPARE(ui.languages(), (QStringList{"de", "de_AT", "en", "fr", "ja"}));
        ui.setLanguage("de");
        for (const Page* page : {&first, &second})
            QCOMPARE((*page)["all"].toString(), expected(resources, "Abbrechen"));
    }
};

QTEST_MAIN(QmlHostTest)
#include "QmlHostTest.moc"
