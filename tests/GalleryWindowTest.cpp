// What holds for the gallery's window on every page: keys, theme and size.

#include "tests/support/GalleryWindow.h"
#include "tests/support/GalleryFixture.h"

namespace Tests
{

class GalleryWindowTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<GalleryWindow> gallery;

    void open(const QString& resources)
    {
        gallery.emplace(TarnisUi::directory(resources));
        QVERIFY(QTest::qWaitForWindowActive(gallery->window, 10000));
        QVERIFY(gallery->session.ui.waitUntilReady(10000));
    }

    // The page is there when its title is; the event loop deletes the items of the previous one.
    void show(const QString& page)
    {
        gallery->session.view.setPage(page);
        QTest::qWait(20);
        QTRY_VERIFY_WITH_TIMEOUT(!gallery->session.catalogs.isReading(), 10000);
    }

    // The visible items of the gallery itself, without what scrolls or is clipped.
    QList<QQuickItem*> ownItems() const
    {
        QList<QQuickItem*> found;
        for (QQuickItem* item : gallery->items()) {
            bool isOwn = item->isVisible() && item->window() == gallery->window;
            for (QQuickItem* parent = item->parentItem(); isOwn && parent != nullptr; parent = parent->parentItem())
                isOwn = !parent->clip() || parent->objectName() == "navigation";
            if (isOwn)
                found.append(item);
        }
        return found;
    }

    // The visible item whose property has this value.
    QQuickItem* find(const char* property, const QString& value) const
    {
        for (QQuickItem* item : gallery->items()) {
            if (item->isVisible() && item->window() == gallery->window && item->property(property).toString() == value)
                return item;
        }
        return nullptr;
    }

    void click(const QQuickItem* item) const
    {
        const QPointF center(item->width() / 2, item->height() / 2);
        QTest::mouseClick(gallery->window, Qt::LeftButton, {}, item->mapToScene(center).toPoint());
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init() { fixture.emplace(); }

    void cleanup()
    {
        gallery.reset();
        fixture.reset();
    }

    void shortcutsSearchClearAndChoosePages()
    {
        open(RESOURCES);
        const QStringList pages{"Device", "Colors", "Fonts", "Dimensions", "Icons", "Texts", "Findings", "Log"};
        for (int number = pages.size(); number > 0; --number) {
            QTest::keyClick(gallery->window, static_cast<Qt::Key>(Qt::Key_0 + number), Qt::ControlModifier);
            QCOMPARE(gallery->session.view.page(), pages[number - 1]);
        }
        QTest::keyClick(gallery->window, Qt::Key_9, Qt::ControlModifier); // there is no ninth page
        QCOMPARE(gallery->session.view.page(), QString("Device"));
        show("Icons");
        gallery->session.view.setSearch("wifi");
        QTest::keyClick(gallery->window, Qt::Key_F, Qt::ControlModifier);
        const QQuickItem* search = gallery->find("QQuickTextField");
        QCOMPARE(gallery->window->activeFocusItem(), search);
        QCOMPARE(search->property("selectedText").toString(), QString("wifi"));
        QTest::keyClick(gallery->window, 'h');
        QCOMPARE(gallery->session.view.search(), QString("h"));
        QTest::keyClick(gallery->window, Qt::Key_Escape);
        QCOMPARE(gallery->session.view.search(), QString());
        QCOMPARE(search->property("text").toString(), QString());
    }

    void buttonSwitchesTheLookOfEveryPage()
    {
        open(RESOURCES);
        for (const QString page : {"Colors", "Fonts", "Dimensions", "Icons", "Texts", "Findings", "Log"}) {
            show(page);
            const QString theme = gallery->session.view.theme();
            const QQuickItem* button = nullptr;
            for (const QQuickItem* item : gallery->items()) {
                if (item->isVisible() && item->property("text").toString().endsWith(" theme"))
                    button = item->inherits("QQuickButton") ? item : button;
            }
            QTest::mouseClick(gallery->window, Qt::LeftButton, {}, button->mapToScene({9, 9}).toPoint());
            QCOMPARE(gallery->session.view.theme(), QString(theme == "light" ? "dark" : "light"));
            const QColor window = gallery->window->color();
            QCOMPARE(window.lightness() < 128, theme == "light");
            QTRY_VERIFY_WITH_TIMEOUT(countPixels(gallery->window->grabWindow(), window.rgb()) > 50000, 10000);
        }
    }

    void everyPageFits_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("theme");
        for (const QSize size : {QSize(800, 480), QSize(1280, 800), QSize(1920, 1080)}) {
            for (const QString& theme : Gallery::View::themes())
                QTest::addRow("%d %s", size.width(), qPrintable(theme)) << size << theme;
        }
    }

    void everyPageFits()
    {
        QFETCH(QSize, size);
        QFETCH(QString, theme);
        open(RESOURCES);
        gallery->session.view.setTheme(theme);
        gallery->window->resize(size);
        QTRY_COMPARE_WITH_TIMEOUT(gallery->window->contentItem()->size().toSize(), size, 10000);
        for (const QString& page : gallery->session.view.pages()) {
            show(page);
            QCOMPARE(gallery->window->size(), size); // stays as the user has chosen it
            for (const QQuickItem* item : ownItems()) {
                const QRectF place = item->mapRectToScene(item->boundingRect());
                const QString text = page + ": " + item->metaObject()->className() + item->property("text").toString();
                QVERIFY2(place.left() > -1 && place.right() < size.width() + 1, qPrintable(text));
            }
        }
    }

    void openListOfLanguagesShowsAllOfThemAndSwitches_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(480, 320), QSize(800, 480), QSize(1280, 800)})
            QTest::addRow("%d", size.width()) << size;
    }

    void openListOfLanguagesShowsAllOfThemAndSwitches()
    {
        QFETCH(QSize, size);
        open(RESOURCES);
        gallery->window->resize(size);
        QTRY_COMPARE_WITH_TIMEOUT(gallery->window->contentItem()->size().toSize(), size, 10000);
        QTRY_COMPARE_WITH_TIMEOUT(gallery->session.ui.languages().size(), 5, 10000);
        click(find("label", "Text language"));
        for (const QString label : {"de_AT", "ja", "en_XA: longer, accented", "ar_XB: right to left"}) {
            QTRY_VERIFY2_WITH_TIMEOUT(find("text", label) != nullptr, qPrintable(label), 10000);
            const QQuickItem* item = find("text", label);
            const QRectF place = item->mapRectToScene(item->boundingRect());
            QVERIFY2(QRectF(QPointF(), size).contains(place), qPrintable(label));
            for (const QQuickItem* part : gallery->items()) {
                if (part->isVisible() && part->inherits("QQuickText") && part->property("text").toString() == label)
                    QVERIFY2(!part->property("truncated").toBool(), qPrintable(label));
            }
        }
        click(find("text", "ar_XB: right to left"));
        QTRY_COMPARE_WITH_TIMEOUT(gallery->session.ui.language(), QString("ar_XB"), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(find("text", "ja") == nullptr, 10000); // the list is closed
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryWindowTest>(argc, argv);
}

#include "GalleryWindowTest.moc"
