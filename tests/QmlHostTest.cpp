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

#include <atomic>
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

// Counts the records of a failed call to the service, and those that the library logs on the main thread.
struct Log {
    Log() { failedCalls = recordsOfLookups = 0; }
    ~Log() { qInstallMessageHandler(previous); }

    inline static std::atomic_int failedCalls, recordsOfLookups;

private:
    static void record(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text)
    {
        if (text.startsWith("\"D-Bus call to method"))
            ++failedCalls;
        else if (QThread::currentThread() == qApp->thread() && QByteArray(context.category) == "default")
            ++recordsOfLookups;
    }

    const QtMessageHandler previous = qInstallMessageHandler(record);
};

const QByteArray lookups =
    "property string color: Ui.colors.getColor('Day', 'Text')\n"
    "property string family: Ui.fonts.getFontFamily('Text')\n"
    "property double points: Ui.fonts.getFontPointSize('Text', 'Button')\n"
    "property var height: Ui.dimensions.uiElementDimensions['Button/height']\n"
    "property string icon: Ui.icons.getIconPathAsFileUrl('home') + Ui.icons.getIconPath('home', 'nightMode')\n"
    "property var text: Ui.texts.translatedTexts['text://Button/Cancel']\n"
    "property string all: [color, family, points, height, icon, text, Ui.ready].join()\n";

// How the text color of a copy of the resources becomes #fe01fd; in some cases it is first missing.
const Rows changes{
    "renamed over | | sed -i s/#1f2a37/#fe01fd/ colors.ini",
    "written | | paint colors.ini",
    "emptied | : > colors.ini | paint colors.ini",
    "other folder | | cp -r . ../new; paint ../new/colors.ini; mv $PWD ../old; mv ../new $PWD",
    "link to folder | cp -r . ../new; : > ../new/colors.ini; rm -r $PWD; ln -s new $PWD | paint ../new/colors.ini",
    "link to file | : > ../shared; ln -sf ../shared colors.ini | paint ../shared",
};

} // namespace

class QmlHostTest : public QObject
{
    Q_OBJECT

    PrivateBus bus;
    std::optional<TestProcess> module;
    std::optional<QTemporaryDir> parent;
    QString resources;

    void startModule()
    {
        module.emplace(TARNIS_MODULE, QStringList{"--resources", resources});
        QVERIFY(module->firstLine().endsWith(resources));
    }

    void shell(const QString& commands) const
    {
        const QString paint = "paint() { printf '[Day]\\nText=#fe01fd\\n' > $1; }; ";
        QCOMPARE(run("sh", {"-ec", "cd '" + resources + "'; " + paint + commands}).exitStatus, 0);
    }

    void signalModule(int signal) { ::kill(static_cast<pid_t>(module->process().processId()), signal); }

    QString expected(const QString& text) const
    {
        return QString("#1f2a37,Inter,15,48,file:%1/icons/day/home.svg%1/icons/night/home.svg,%2,true")
            .arg(resources, text);
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

    void everyEngineGetsEmptyLookupsAndThenTheAnswers()
    {
        const Log log;
        TarnisUi ui;
        ui.publish();
        const Page first(lookups);
        QCOMPARE(first["all"].toString(), QString(",,0,,,,false"));
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("Module.Tarnis does not answer"), 10000);
        QVERIFY(!ui.waitUntilReady(1));
        startModule();
        QVERIFY(ui.waitUntilReady(10000));
        const Page second(lookups);
        for (const Page* page : {&first, &second})
            QCOMPARE((*page)["all"].toString(), expected("Cancel"));
        QCOMPARE(ui.problem(), QString());
        QCOMPARE(Log::recordsOfLookups.load(), 0);
    }

    void languageIsSharedByAllEngines()
    {
        TarnisUi ui(TarnisUi::directory(resources));
        ui.publish();
        ui.setLanguage("fr");
        QVERIFY(ui.waitUntilReady(10000));
        const Page first(lookups);
        const Page second(lookups
                          + "property var names: [Ui.language].concat(Ui.languages)\n"
                            "function choose() { Ui.language = 'de' }");
        QCOMPARE(first["all"].toString(), expected("Annuler"));
        second.call("choose");
        QCOMPARE(first["all"].toString(), expected("Abbrechen"));
        QCOMPARE(second["names"].toStringList(), (QStringList{"de", "de", "de_AT", "en", "fr", "ja"}));
    }

    void textsComeFromTheHostIfItHasThem()
    {
        writeFile(parent->filePath("own/en.json"), "{\"text://Button/Cancel\": \"Away\"}");
        writeFile(parent->filePath("own/de.json"), "{\"text://Button/Cancel\": \"Weg\"}");
        TextManager manager(parent->filePath("own"), "en");
        TarnisUi ui(TarnisUi::directory(resources), &manager);
        ui.publish();
        const Page page(lookups + "property string language: Ui.language");
        QCOMPARE(page["text"].toString(), QString("Away"));
        manager.setLanguage("de");
        QVERIFY(ui.waitUntilReady(10000));
        QCOMPARE(page["all"].toString(), expected("Weg"));
        QCOMPARE(page["language"].toString(), QString("de"));
    }

    void stoppedServiceBlocksOnlyTheEndAndForOneCall()
    {
        startModule();
        signalModule(SIGSTOP);
        const Log log;
        {
            TarnisUi ui;
            ui.publish();
            const Page page(lookups);
            QVERIFY(!ui.waitUntilReady(100)); // by then the first call is under way
            QCOMPARE(ui.problem(), QString());
        }
        QCOMPARE(Log::failedCalls.load(), 2); // one call leaves two records
        TarnisUi ui;
        ui.publish();
        const Page page(lookups);
        QVERIFY(!ui.waitUntilReady(100));
        signalModule(SIGCONT);
        QVERIFY(ui.waitUntilReady(10000));
        QCOMPARE(page["all"].toString(), expected("Cancel"));
    }

    void onlyWhatARestartedServiceChangesIsReadAgain()
    {
        startModule();
        TarnisUi ui;
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups + "property QtObject ui: Ui");
        auto* const object = page["ui"].value<QObject*>();
        QSignalSpy colors(object, SIGNAL(colorsChanged()));
        QSignalSpy icons(object, SIGNAL(iconsChanged()));
        QSignalSpy texts(object, SIGNAL(textsChanged()));
        startModule(); // the old one is killed
        shell("sed -i 's/\"Cancel\"/\"Away\"/' texts/en.json");
        ui.askAgain();
        QTRY_COMPARE_WITH_TIMEOUT(page["text"].toString(), QString("Away"), 10000);
        shell("sed -i s/#1f2a37/#fe01fd/ colors.ini");
        startModule();
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QCOMPARE((QList<int>{colors.count(), icons.count(), texts.count()}), (QList<int>{1, 0, 1}));
    }

    void failedQuestionKeepsWhatWasThereAndIsRepeated()
    {
        startModule();
        TarnisUi ui;
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups + "property string problem: Ui.problem");
        shell("mv icons/mapping.json away; sed -i s/#1f2a37/#fe01fd/ colors.ini");
        ui.askAgain();
        QTRY_VERIFY_WITH_TIMEOUT(page["problem"].toString().contains("the icon mapping table;"), 10000);
        QCOMPARE(page["all"].toString(), expected("Cancel").replace("#1f2a37", "#fe01fd"));
        shell("mv away icons/mapping.json");
        QTRY_COMPARE_WITH_TIMEOUT(page["problem"].toString(), QString(), 10000);
    }

    void directoryIsFollowedHoweverItChanges_data() { addRows(changes); }

    void directoryIsFollowedHoweverItChanges()
    {
        const auto [change, removal, commands] = cells<3>();
        TarnisUi ui(TarnisUi::directory(resources));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        QCOMPARE(page["all"].toString(), expected("Cancel"));
        if (!removal.isEmpty()) {
            shell(removal);
            QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString(), 10000);
        }
        shell(commands);
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), QString(), 10000);
    }

    void directoryMayAppearLaterAndNamesItsFaults()
    {
        const QString path = parent->filePath("later");
        TarnisUi ui(TarnisUi::directory(path));
        ui.publish();
        const Page page(lookups);
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), path + " is not a directory", 10000);
        shell("touch dimensions/large.ini; mv $PWD ../later");
        QVERIFY(ui.waitUntilReady(10000));
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), path + "/dimensions/large.ini is not named WIDTHxHEIGHT.ini", 10000);
        QCOMPARE(page["color"].toString(), QString("#1f2a37"));
        QCOMPARE(page["height"], QVariant());
    }

    void handlersThatScriptsKeepStayAlive()
    {
        TarnisUi ui(TarnisUi::directory(resources));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        Page page(lookups
                  + "property var kept\n"
                    "Component.onCompleted: kept = [Ui.colors, Ui.fonts, Ui.dimensions, Ui.icons, Ui.texts]\n"
                    "function look() { return [kept[0].getColor('Day', 'Text'), kept[1].getFontFamily('Text'), "
                    "kept[2].uiElementDimensions['Button/height'], kept[3].getIconPath('home').length > 0, "
                    "kept[4].translatedTexts['text://Button/Cancel']].join() }\n"
                    "function drop() { kept = [] }");
        int destroyed = 0;
        for (const QVariant& kept : page["kept"].toList())
            connect(kept.value<QObject*>(), &QObject::destroyed, [&destroyed] { ++destroyed; });
        for (const QString color : {"#fe01fd", "#fe01fe", "#1f2a37"}) {
            shell("for f in *.ini dimensions/* texts/* icons/mapping.json; do sed -i s/xyz/xyz/ $f; done; "
                  "sed -i '/Day/,/Night/s/^Text=.*/Text="
                  + color + "/' colors.ini; echo >> icons/mapping.json");
            QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), color, 10000);
            page.engine.collectGarbage();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        ui.setLanguage("de"); // old handlers do not follow it
        QCOMPARE(page.call("look").toString(), QString("#1f2a37,Inter,48,true,Cancel"));
        QCOMPARE(destroyed, 0);
        page.call("drop");
        page.engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(destroyed, 5);
    }

    void newPrimaryScreenGetsNewFontsAndDimensions()
    {
        std::optional<TarnisUi> ui(std::in_place, TarnisUi::directory(resources));
        ui->publish();
        QVERIFY(ui->waitUntilReady(10000));
        const Page page(lookups + "property var fonts: Ui.fonts; property var dimensions: Ui.dimensions");
        const auto handlers = [&page] {
            return QList<QObject*>{page["fonts"].value<QObject*>(), page["dimensions"].value<QObject*>()};
        };
        const QList<QObject*> before = handlers();
        Q_EMIT qGuiApp->primaryScreenChanged(QGuiApplication::primaryScreen());
        QVERIFY(handlers().at(0) != before.at(0) && handlers().at(1) != before.at(1));
        QCOMPARE(page["all"].toString(), expected("Cancel"));
        ui.reset();
        Q_EMIT qGuiApp->primaryScreenChanged(QGuiApplication::primaryScreen()); // the engine lives longer than the host
        QCOMPARE(page["family"].toString(), QString("Inter"));
    }

    // The last one: this process never gets another bus.
    void lostBusIsReported()
    {
        startModule();
        TarnisUi ui;
        QVERIFY(ui.waitUntilReady(10000));
        bus.daemon.process().kill();
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("this process cannot reconnect"), 10000);
        QVERIFY(ui.isReady());
        TarnisUi later;
        QTRY_COMPARE_WITH_TIMEOUT(later.problem(), ui.problem(), 10000);
    }
};

QTEST_MAIN(QmlHostTest)
#include "QmlHostTest.moc"
