// The host library with directories, and the life of its handlers.

#include "QmlHost/TarnisUi.h"
#include "tests/support/DataRows.h"
#include "tests/support/HostPage.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include <optional>

namespace Tests
{

class QmlHostDirectoryTest : public QObject
{
    Q_OBJECT

    std::optional<ResourceCopy> resources;

private Q_SLOTS:
    void init() { resources.emplace(); }
    void cleanup() { resources.reset(); }

    void languageIsSharedByAllEngines()
    {
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        ui.setLanguage("fr");
        QVERIFY(ui.waitUntilReady(10000));
        const Page first(lookups);
        const Page second(lookups
                          + "property var names: [Ui.language].concat(Ui.languages)\n"
                            "function choose() { Ui.language = 'de' }");
        QCOMPARE(first["all"].toString(), resources->lookups("Annuler"));
        second.call("choose");
        QCOMPARE(first["all"].toString(), resources->lookups("Abbrechen"));
        QCOMPARE(second["names"].toStringList(), (QStringList{"de", "de", "de_AT", "en", "fr", "ja"}));
    }

    void textsComeFromTheHostIfItHasThem()
    {
        writeFile(resources->parent.filePath("own/en.json"), "{\"text://Button/Cancel\": \"Away\"}");
        writeFile(resources->parent.filePath("own/de.json"), "{\"text://Button/Cancel\": \"Weg\"}");
        TextManager manager(resources->parent.filePath("own"), "en");
        TarnisUi ui(TarnisUi::directory(resources->path), &manager);
        ui.publish();
        const Page page(lookups + "property string language: Ui.language");
        QCOMPARE(page["text"].toString(), QString("Away"));
        manager.setLanguage("de");
        QVERIFY(ui.waitUntilReady(10000));
        QCOMPARE(page["all"].toString(), resources->lookups("Weg"));
        QCOMPARE(page["language"].toString(), QString("de"));
    }

    void directoryIsFollowedHoweverItChanges_data() { addRows({"removal", "change"}); }

    void directoryIsFollowedHoweverItChanges()
    {
        const QString removal = row()["removal"].toString();
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel"));
        if (!removal.isEmpty()) {
            resources->shell(removal);
            QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString(), 10000);
        }
        resources->shell(row()["change"].toString());
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), QString(), 10000);
    }

    void mountedDirectoryIsNoticed()
    {
        const QString obstacle = resources->becomeMountPoint();
        if (!obstacle.isNull())
            QSKIP(qPrintable(obstacle));
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        resources->unmount();
        QTRY_VERIFY_WITH_TIMEOUT(ui.problem().contains("colors.ini does not exist"), 10000);
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel"));
        resources->shell("paint ../stored/colors.ini");
        resources->mount();
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QCOMPARE(ui.problem(), QString());
        resources->unmount();
    }

    void directoryMayAppearLaterAndNamesItsFaults()
    {
        const QString path = resources->parent.filePath("later");
        TarnisUi ui(TarnisUi::directory(path));
        ui.publish();
        const Page page(lookups);
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), path + " is not a directory", 10000);
        resources->shell("touch dimensions/large.ini; mv $PWD ../later");
        QVERIFY(ui.waitUntilReady(10000));
        QTRY_COMPARE_WITH_TIMEOUT(ui.problem(), path + "/dimensions/large.ini is not named WIDTHxHEIGHT.ini", 10000);
        QCOMPARE(page["color"].toString(), QString("#1f2a37"));
        QCOMPARE(page["height"], QVariant());
    }

    void handlersThatScriptsKeepStayAlive()
    {
        TarnisUi ui(TarnisUi::directory(resources->path));
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
            resources->shell("for f in *.ini dimensions/* texts/* icons/mapping.json; do sed -i s/xyz/xyz/ $f; done; "
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

    void hostLimitsTheDisplaySizeAndSeesTheAnswersBeforeQmlIsTold()
    {
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups + "function look() { return Ui.colors.getColor('Day', 'Text') }");
        for (const auto& [size, path] : ui.answers().displaySizes.value) {
            ui.setDisplaySize(size);
            QCOMPARE(page["height"].toInt(), QSettings(path, QSettings::IniFormat).value("Button/height").toInt());
        }
        ui.setDisplaySize({1, 1}); // not supported
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel"));
        QStringList seen;
        connect(&ui, &TarnisUi::answersChanged, [&] {
            seen += {ui.answers().colorFile.value, page["color"].toString(), page.call("look").toString()};
        });
        resources->shell("paint colors.ini");
        QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), QString("#fe01fd"), 10000);
        QCOMPARE(seen, (QStringList{resources->path + "/colors.ini", "#1f2a37", "#fe01fd"}));
    }

    void newPrimaryScreenGetsNewFontsAndDimensions()
    {
        std::optional<TarnisUi> ui(std::in_place, TarnisUi::directory(resources->path));
        ui->publish();
        QVERIFY(ui->waitUntilReady(10000));
        const Page page(lookups + "property var fonts: Ui.fonts; property var dimensions: Ui.dimensions");
        const auto handlers = [&page] {
            return QList<QObject*>{page["fonts"].value<QObject*>(), page["dimensions"].value<QObject*>()};
        };
        const QList<QObject*> before = handlers();
        Q_EMIT qGuiApp->primaryScreenChanged(QGuiApplication::primaryScreen());
        QVERIFY(handlers().at(0) != before.at(0) && handlers().at(1) != before.at(1));
        QCOMPARE(page["all"].toString(), resources->lookups("Cancel"));
        ui.reset();
        Q_EMIT qGuiApp->primaryScreenChanged(QGuiApplication::primaryScreen()); // the engine lives longer than the host
        QCOMPARE(page["family"].toString(), QString("Inter"));
    }
};

} // namespace Tests

QTEST_MAIN(Tests::QmlHostDirectoryTest)
#include "QmlHostDirectoryTest.moc"
