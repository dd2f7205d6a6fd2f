// How the gallery's window follows the screen and the files of the resources.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/HostPage.h"

#include <QPixmap>
#include <QScreen>

namespace Tests
{

namespace
{

constexpr QRgb toolBarColor = 0xE4E8EC;
constexpr QRgb bannerColor = 0xFDE7E7;
constexpr QRgb editColor = 0xFE01FD; // used nowhere else

QImage screen()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

} // namespace

class GalleryLiveTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<ResourceCopy> resources;

private Q_SLOTS:
    void init()
    {
        resources.emplace();
        fixture.emplace();
    }

    void wholeDeviceIsShownAndFollowsTheSizeOfTheScreen()
    {
        fixture->startGallery(resources->path, "Device");
        // The header in the color Surface, without its line, and the lowest button in the color Accent.
        const auto headerHeight = [] {
            const QImage drawn = screen();
            return countPixels(drawn.copy(drawn.width() / 2, 0, 1, drawn.height()), 0xF9FBFC);
        };
        const auto isButtonShown = [] { return countPixels(screen(), 0x0B7A75) > 2000; };
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 64, 10000); // 76 at the scale at which the whole display fits
        QTRY_VERIFY_WITH_TIMEOUT(isButtonShown(), 10000);
        QVERIFY(switchScreen(800, 480));
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 40, 10000); // 52, likewise
        QTRY_VERIFY_WITH_TIMEOUT(isButtonShown(), 10000);
        QVERIFY(switchScreen(1280, 800));
    }

    void openPageFollowsEveryKindOfChange_data() { addRows({"isService", "page", "change", "showsEditColor"}); }

    void openPageFollowsEveryKindOfChange()
    {
        const bool isService = row()["isService"].toBool();
        resources->shell("ln -s $PWD ../link");
        const QString shown = resources->parent.filePath("link");
        if (isService)
            fixture->startModule(shown);
        fixture->startGallery(isService ? QString() : shown, row()["page"].toString());
        QImage drawn;
        int unchanged = 0; // pictures one after the other
        const auto isSettled = [&] {
            const QImage before = std::exchange(drawn, screen());
            unchanged = countPixels(drawn, toolBarColor) > 1000 && drawn == before ? unchanged + 1 : 0;
            return unchanged == 10;
        };
        QVERIFY(QTest::qWaitFor(isSettled, 10000));
        QCOMPARE(countPixels(drawn, editColor), 0);
        resources->shell(row()["change"].toString());
        const bool showsEditColor = row()["showsEditColor"].toBool();
        QTRY_VERIFY_WITH_TIMEOUT(showsEditColor ? countPixels(screen(), editColor) > 20 : screen() != drawn, 10000);
    }

    void brokenFileIsReportedAboveTheLastGoodView_data() { addRows({"file", "isRemoved", "content"}); }

    void brokenFileIsReportedAboveTheLastGoodView()
    {
        fixture->startModule(resources->path);
        fixture->startGallery(QString(), "Colors");
        const QRgb outline = 0xA9B6C2; // used nowhere else
        const QString file = resources->path + '/' + row()["file"].toString();
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(screen(), outline) > 4000, 10000);
        QCOMPARE(countPixels(screen(), bannerColor), 0);
        QVERIFY(QFile::rename(file, fixture->path("kept")));
        if (!row()["isRemoved"].toBool())
            writeFile(file, row()["content"].toString().toUtf8());
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(screen(), bannerColor) > 1000, 10000);
        QVERIFY(countPixels(screen(), outline) > 4000);
        QFile::remove(file);
        QVERIFY(QFile::rename(fixture->path("kept"), file));
        QTRY_COMPARE_WITH_TIMEOUT(countPixels(screen(), bannerColor), 0, 10000);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryLiveTest>(argc, argv);
}

#include "GalleryLiveTest.moc"
