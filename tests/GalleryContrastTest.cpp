// Whether every text of the gallery can be read on what is drawn behind it.

#include "ResourceFormat/Contrast.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"
#include "tests/support/HostPage.h"

namespace Tests
{

class GalleryContrastTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<ResourceCopy> resources;
    std::optional<GalleryWindow> gallery;

    // Those that are built bit by bit, between events.
    QList<QQuickItem*> loaders() const
    {
        QList<QQuickItem*> found;
        for (QQuickItem* item : gallery->items()) {
            constexpr int loading = 2; // Loader.Loading
            if (item->inherits("QQuickLoader") && item->property("status").toInt() == loading)
                found.append(item);
        }
        return found;
    }

    // Waits until the page is complete; the event loop deletes the items of the previous one.
    void settle()
    {
        QTest::qWait(20);
        QTRY_VERIFY_WITH_TIMEOUT(!gallery->session.catalogs.isReading() && loaders().isEmpty(), 10000);
    }

    // The part of the item that is inside the window and all clipping items.
    QRect shownPart(const QQuickItem* item) const
    {
        QRectF shown(QPointF(), gallery->window->size());
        for (const QQuickItem* part = item; part != nullptr; part = part->parentItem()) {
            if (part == item || part->clip())
                shown &= part->mapRectToScene(part->boundingRect());
        }
        return shown.toAlignedRect();
    }

    // Between the lines and letters, the background shows through.
    static QColor mostFrequent(const QImage& picture)
    {
        QHash<QRgb, int> counts;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                ++counts[picture.pixel(x, y)];
        }
        const auto isRarer = [&](QRgb first, QRgb second) { return counts[first] < counts[second]; };
        const QList<QRgb> colors = counts.keys();
        return *std::max_element(colors.begin(), colors.end(), isRarer);
    }

    // One line for each text that cannot be read. `judged` is the number of texts. A picture that was taken during the
    // layout shows a text in another place than it has afterwards, so take another one.
    QStringList unreadable(int& judged) const
    {
        const QImage picture = gallery->window->grabWindow();
        QStringList found;
        judged = 0;
        for (const QQuickItem* item : gallery->items()) {
            const QString text = item->property("text").toString();
            const QRect place = shownPart(item);
            if (item->window() != gallery->window || !item->isVisible() || !item->inherits("QQuickText")
                || text.isEmpty() || text.startsWith("<font") // drawn in a color of the resources
                || place.width() < 8 || place.height() < 8)
                continue;
            const auto color = item->property("color").value<QColor>();
            const QColor behind = mostFrequent(picture.copy(place));
            const double ratio = ResourceFormat::Contrast::ratio(color, behind);
            ++judged;
            if (ratio < ResourceFormat::Contrast::minimumAA)
                found.append(QString("\"%1\" %2 on %3 has %4:1").arg(text, color.name(), behind.name()).arg(ratio));
        }
        return found;
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init()
    {
        fixture.emplace();
        resources.emplace();
    }

    void cleanup()
    {
        gallery.reset();
        resources.reset();
        fixture.reset();
    }

    // Their colors are not yet those of the theme.
    void halfBuiltIconsAreNotShown()
    {
        gallery.emplace(TarnisUi::directory(resources->path));
        QVERIFY(gallery->session.ui.waitUntilReady(10000));
        gallery->session.view.setPage("Icons");
        int judged = 0;
        do {
            QCoreApplication::processEvents();
            for (const QQuickItem* loader : loaders()) {
                for (const QQuickItem* part : loader->childItems()) {
                    ++judged;
                    QVERIFY(!part->isVisible());
                }
            }
        } while (!loaders().isEmpty());
        QVERIFY(judged > 0);
        QVERIFY2(gallery->text().contains("view box"), qPrintable(gallery->text()));
    }

    void openListsCanBeRead()
    {
        gallery.emplace(TarnisUi::directory(resources->path));
        QVERIFY(gallery->session.ui.waitUntilReady(10000));
        gallery->session.view.setPage("Log");
        settle();
        int lists = 0;
        for (QQuickItem* item : gallery->items()) {
            if (!item->isVisible() || !item->inherits("QQuickComboBox"))
                continue;
            auto* const popup = item->property("popup").value<QObject*>();
            for (const QString& theme : Gallery::View::themes()) {
                gallery->session.view.setTheme(theme);
                QMetaObject::invokeMethod(popup, "open");
                QTRY_VERIFY_WITH_TIMEOUT(popup->property("opened").toBool(), 10000);
                int judged = 0;
                QStringList found;
                QTRY_VERIFY2_WITH_TIMEOUT((found = unreadable(judged)).isEmpty(),
                                          qPrintable(theme + '\n' + found.join('\n')), 10000);
                QMetaObject::invokeMethod(popup, "close");
                QTRY_VERIFY_WITH_TIMEOUT(!popup->property("visible").toBool(), 10000);
            }
            ++lists;
        }
        QCOMPARE(lists, 5);
    }

    void everyTextCanBeReadBeforeAndAfterASwitchOfTheTheme_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(800, 480), QSize(1280, 800), QSize(1920, 1080)})
            QTest::addRow("%d", size.width()) << size;
    }

    void everyTextCanBeReadBeforeAndAfterASwitchOfTheTheme()
    {
        QFETCH(QSize, size);
        resources->shell(
            "rm icons/day/wifi.svg; sed -i 's/^Text *=.*/Text=wrong/' colors.ini; sed -i 2d texts/de.json");
        gallery.emplace(TarnisUi::directory(resources->path),
                        [](Gallery::Session& session) { session.compareWith(RESOURCES); });
        gallery->window->resize(size);
        QVERIFY(QTest::qWaitForWindowActive(gallery->window, 10000));
        QTRY_VERIFY_WITH_TIMEOUT(gallery->session.ui.isReady() && gallery->session.comparison->revision() > 0, 10000);
        gallery->session.findings.start();
        QTRY_VERIFY_WITH_TIMEOUT(gallery->session.findings.revision() > 0, 10000);
        for (const QString& page : gallery->session.view.pages()) {
            gallery->session.view.setPage(page);
            for (const QString theme : {"light", "dark", "light"}) {
                gallery->session.view.setTheme(theme);
                settle();
                int judged = 0;
                QStringList found;
                QTRY_VERIFY2_WITH_TIMEOUT((found = unreadable(judged)).isEmpty(),
                                          qPrintable(page + ' ' + theme + '\n' + found.join('\n')), 10000);
                QVERIFY2(judged > 15, qPrintable(page));
            }
        }
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryContrastTest>(argc, argv);
}

#include "GalleryContrastTest.moc"
