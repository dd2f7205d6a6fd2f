// How the gallery's window follows the screen and the files of the resources.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"

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

private Q_SLOTS:
    void init() { fixture.emplace(); }

    void devicePageFollowsTheSizeOfTheScreen()
    {
        fixture->startGallery("Device");
        // The device's header in the color Surface, left of its button, is as high as the dimension file says.
        const auto headerHeight = [] { return countPixels(screen().copy(4, 0, 1, 800), 0xF9FBFC); };
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 76 - 2, 10000);
        QVERIFY(switchScreen(800, 480));
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 52 - 1, 10000);
        QVERIFY(switchScreen(1280, 800));
    }

    void openPageShowsAnEditedFile_data() { addRows({"page", "file", "before", "after", "showsEditColor"}); }

    void openPageShowsAnEditedFile()
    {
        fixture->startGallery(row()["page"].toString());
        writeFile(fixture->path("icons/new.svg"),
                  "<svg xmlns='http://www.w3.org/2000/svg'><rect width='9' height='9' fill='#fe01fd'/></svg>");
        QImage drawn;
        QTRY_VERIFY_WITH_TIMEOUT(std::exchange(drawn, screen()) == screen() && countPixels(drawn, toolBarColor) > 1000,
                                 10000);
        QCOMPARE(countPixels(drawn, editColor), 0);
        const QString edit = QString("s|%1|%2|").arg(row()["before"].toString(), row()["after"].toString());
        QCOMPARE(run("sed", {"-i", edit, fixture->path(row()["file"].toString())}).exitStatus, 0);
        const bool showsEditColor = row()["showsEditColor"].toBool();
        QTRY_VERIFY_WITH_TIMEOUT(showsEditColor ? countPixels(screen(), editColor) > 20 : screen() != drawn, 2000);
    }

    void brokenFileIsReportedAboveTheLastGoodView_data() { addRows({"file", "isRemoved", "content"}); }

    void brokenFileIsReportedAboveTheLastGoodView()
    {
        fixture->startGallery("Colors");
        const QRgb accent = 0x0B7A75;
        const QString file = fixture->path(row()["file"].toString());
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(screen(), accent) > 4000, 10000);
        QCOMPARE(countPixels(screen(), bannerColor), 0);
        QVERIFY(QFile::rename(file, fixture->path("kept")));
        if (!row()["isRemoved"].toBool())
            writeFile(file, row()["content"].toString().toUtf8());
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(screen(), bannerColor) > 1000, 5000);
        QVERIFY(countPixels(screen(), accent) > 4000);
        QFile::remove(file);
        QVERIFY(QFile::rename(fixture->path("kept"), file));
        QTRY_COMPARE_WITH_TIMEOUT(countPixels(screen(), bannerColor), 0, 5000);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryLiveTest>(argc, argv);
}

#include "GalleryLiveTest.moc"
