// The gallery when the service hangs or restarts, when files are faulty, and how its controls act together.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"
#include "tests/support/HostPage.h"

namespace Tests
{

class GalleryTroubleTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<ResourceCopy> resources;

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init()
    {
        fixture.emplace();
        resources.emplace();
    }

    void cleanup()
    {
        fixture.reset();
        resources.reset();
    }

    void hangingServiceDoesNotFreezeTheWindow()
    {
        fixture->startModule(resources->path);
        fixture->signalModule(SIGSTOP);
        GalleryWindow gallery(TarnisUi::service(TarnisUi::Files::Followed));
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        QVERIFY2(gallery.text().contains("Waiting for the resources."), qPrintable(gallery.text()));
        gallery.session.view.setPage("Colors");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("Contrast against"), 10000);
        QCOMPARE(gallery.session.ui.problem(), QString()); // not even the first call has ended
        fixture->signalModule(SIGCONT);
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("#1f2a37"), 10000);
        fixture->signalModule(SIGSTOP);
        gallery.session.view.reload();
        gallery.session.view.setPage("Fonts");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("Text/Button"), 10000);
        QCOMPARE(gallery.session.ui.problem(), QString());
        fixture->signalModule(SIGCONT);
    }

    void faultOfAFileStaysReportedWhileTheServiceHangs()
    {
        fixture->startModule(resources->path);
        GalleryWindow gallery(TarnisUi::service(TarnisUi::Files::Followed));
        QVERIFY(gallery.session.ui.waitUntilReady(10000));
        fixture->signalModule(SIGSTOP);
        resources->shell("cp colors.ini ../good; echo Back >> colors.ini");
        const QString fault = resources->path + "/colors.ini:";
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains(fault), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("does not answer"), 10000);
        QVERIFY2(gallery.text().contains(fault), qPrintable(gallery.text()));
        resources->shell("mv ../good colors.ini");
        QTRY_VERIFY2_WITH_TIMEOUT(!gallery.text().contains(fault), qPrintable(gallery.text()), 10000);
        QVERIFY(gallery.text().contains("does not answer"));
        fixture->signalModule(SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(gallery.session.ui.problem(), QString(), 10000);
    }

    void restartedServiceIsNoticed()
    {
        fixture->startModule(resources->path);
        GalleryWindow gallery(TarnisUi::service(TarnisUi::Files::Followed));
        gallery.session.view.setPage("Colors");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("#1f2a37"), 10000);
        const ResourceCopy other;
        other.shell("paint colors.ini");
        fixture->startModule(other.path);
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("#fe01fd"), 10000);
        QCOMPARE(gallery.session.ui.problem(), QString());
    }

    void mountedDirectoryIsNoticed()
    {
        const QString obstacle = resources->becomeMountPoint();
        if (!obstacle.isNull())
            QSKIP(qPrintable(obstacle));
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        gallery.session.view.setPage("Colors");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("#1f2a37"), 10000);
        resources->unmount();
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains(resources->path + "/colors.ini"), 10000);
        QVERIFY2(gallery.text().contains("#1f2a37"), qPrintable(gallery.text()));
        resources->shell("sed -i s/#1f2a37/#fe01fd/ ../stored/colors.ini");
        resources->mount();
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("#fe01fd"), 10000);
        QCOMPARE(gallery.session.ui.problem(), QString());
        resources->unmount();
    }

    void eachFileIsJudgedByItself_data()
    {
        addRows({"isService", "page", "kept", "file", "isRemoved", "content", "message"});
    }

    void eachFileIsJudgedByItself()
    {
        const QString kept = row()["kept"].toString();
        const QString file = row()["file"].toString();
        fixture->startModule(resources->path);
        GalleryWindow gallery(row()["isService"].toBool() ? TarnisUi::service(TarnisUi::Files::Followed)
                                                          : TarnisUi::directory(resources->path));
        gallery.session.view.setPage(row()["page"].toString());
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains(kept), 10000);
        resources->shell("mv " + file + " ../good");
        if (!row()["isRemoved"].toBool())
            writeFile(resources->path + '/' + file, row()["content"].toString().toUtf8());
        const QString message = resources->path + '/' + file + row()["message"].toString();
        QTRY_VERIFY2_WITH_TIMEOUT(gallery.text().contains(message), qPrintable(gallery.text()), 10000);
        resources->shell("sed -i 's/\"Humidity\"/\"Edited\"/' texts/en.json");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.session.catalogs.texts.urls("Edited", false).size() == 1, 10000);
        QVERIFY2(gallery.text().contains(kept), qPrintable(gallery.text()));
        resources->shell("mv ../good " + file);
        QTRY_COMPARE_WITH_TIMEOUT(gallery.session.ui.problem(), QString(), 10000);
    }

    void faultyMappingTableIsAnnouncedOnce()
    {
        resources->shell("sed -i '1s/{/{\"wrong\": 1,/' icons/mapping.json");
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        gallery.session.view.setPage("Icons");
        const QString problem = resources->path
            + "/icons/mapping.json:1:11: the alias \"wrong\" is not an object; replace it with an object";
        QTRY_COMPARE_WITH_TIMEOUT(gallery.session.ui.problem(), problem, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("airQuality"), 10000);
        QCOMPARE(gallery.session.log.records(), QVariantList());
    }

    void arrowKeysInTheListOfPagesMoveThePage()
    {
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        gallery.window->findChild<QQuickItem*>("navigation")->forceActiveFocus(Qt::TabFocusReason);
        for (const QString page : {"Colors", "Fonts"}) {
            QTest::keyClick(gallery.window, Qt::Key_Down);
            QCOMPARE(gallery.session.view.page(), page);
        }
        QTest::keyClick(gallery.window, Qt::Key_Up);
        QCOMPARE(gallery.session.view.page(), QString("Colors"));
    }

    void searchBelongsToItsPageAndSurvivesSwitching()
    {
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        gallery.session.view.setPage("Icons");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("airQuality"), 10000);
        gallery.find("QQuickTextField")->forceActiveFocus();
        for (const char key : {'w', 'i', 'f', 'i'})
            QTest::keyClick(gallery.window, key);
        QTRY_VERIFY_WITH_TIMEOUT(!gallery.text().contains("airQuality"), 10000);
        gallery.session.view.setPage("Device");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("Humidity"), 10000);
        gallery.session.view.setPage("Icons");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("wifi") && !gallery.text().contains("airQuality"), 10000);
    }

    void devicePageTellsWhatADirectoryOfOnesOwnLacks_data() { addRows({"change", "message"}); }

    void devicePageTellsWhatADirectoryOfOnesOwnLacks()
    {
        resources->shell(row()["change"].toString());
        const GalleryWindow gallery(TarnisUi::directory(resources->path));
        QTRY_VERIFY2_WITH_TIMEOUT(gallery.text().contains(row()["message"].toString()), qPrintable(gallery.text()),
                                  10000);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryTroubleTest>(argc, argv);
}

#include "GalleryTroubleTest.moc"
