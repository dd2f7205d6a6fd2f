// The host library with directories.

#include "QmlHost/TarnisUi.h"
#include "tests/support/DataRows.h"
#include "tests/support/HostPage.h"

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
        QVERIFY(page["height"].toInt() > 0); // the other display sizes are good
    }

    void fileBehindALinkOutOfTheDirectoryIsNotRead_data() { addRows({"file", "isText"}); }

    void fileBehindALinkOutOfTheDirectoryIsNotRead()
    {
        const QString file = row()["file"].toString();
        const bool isText = row()["isText"].toBool();
        resources->shell("mv " + file + " ../outside; ln -s $PWD/../outside " + file);
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        const Page page(lookups);
        QVERIFY2(ui.problem().startsWith(resources->path + '/' + file + ": leads to "), qPrintable(ui.problem()));
        QCOMPARE(page["color"].toString(), QString(isText ? "#1f2a37" : ""));
        QCOMPARE(page["text"].toString(), QString(isText ? "" : "Cancel"));
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
};

} // namespace Tests

QTEST_MAIN(Tests::QmlHostDirectoryTest)
#include "QmlHostDirectoryTest.moc"
