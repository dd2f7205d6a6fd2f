// The gallery's pages, built in the process of the test.

#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlProperty>

namespace Tests
{

class GalleryPagesTest : public QObject
{
    Q_OBJECT

    GalleryFixture fixture;
    std::optional<GalleryWindow> gallery;

private Q_SLOTS:
    void initTestCase()
    {
        QJsonObject mapping;
        for (int number = 0; number < 9000; ++number)
            mapping.insert(QString("icon%1").arg(number), QJsonObject{{"defaultContext", "one.svg"}});
        writeFile(fixture.path("icons/mapping.json"), QJsonDocument(mapping).toJson());
        writeFile(fixture.path("icons/one.svg"), "<svg xmlns='http://www.w3.org/2000/svg'/>");
        writeFile(fixture.path("colors.ini"), "[A]\nb=red\n");
        QQuickWindow::setSceneGraphBackend("software");
        gallery.emplace(TarnisUi::directory(fixture.path()));
        QVERIFY(QTest::qWaitForWindowActive(gallery->window));
        QVERIFY(gallery->session.ui.waitUntilReady(10000));
    }

    void thousandsOfIconsNeedFewDelegatesAndKeepTheirPlaceOnReload()
    {
        gallery->session.view.setPage("Icons");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->find("QQuickGridView") != nullptr, 10000);
        QQuickItem* grid = gallery->find("QQuickGridView");
        const auto* cells = grid->property("contentItem").value<QQuickItem*>();
        const int end = qRound(grid->property("contentHeight").toDouble() - grid->height());
        QVERIFY(end > 50000);
        for (int place = 0; place < end; place += 10 * qRound(grid->height())) {
            grid->setProperty("contentY", place);
            QCoreApplication::processEvents();
            QVERIFY(cells->childItems().size() > 5 && cells->childItems().size() < 100);
        }
        grid->setProperty("contentY", end / 2);
        QSignalSpy changes(&gallery->session.catalogs.icons, &Gallery::Catalog::changed);
        writeFile(fixture.path("icons/one.svg"), "<svg xmlns='http://www.w3.org/2000/svg' width='9'/>");
        QVERIFY(changes.wait(10000));
        QCOMPARE(grid->property("contentY").toInt(), end / 2);
    }

    void tabKeyReachesEveryControlAndEachHasAName_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : gallery->session.view.pages())
            QTest::newRow(qPrintable(page)) << page;
    }

    void tabKeyReachesEveryControlAndEachHasAName()
    {
        QFETCH(QString, page);
        gallery->session.view.setPage(page);
        QTest::qWait(20); // the event loop deletes the items of the previous page
        QSet<QQuickItem*> reached;
        for (int tab = 0; tab < 30; ++tab) {
            QTest::keyClick(gallery->window, Qt::Key_Tab);
            for (QQuickItem* item = gallery->window->activeFocusItem(); item != nullptr; item = item->parentItem())
                reached.insert(item);
        }
        for (QQuickItem* item : gallery->items()) {
            const bool isTabStop = item->isVisible() && item->isEnabled() && item->activeFocusOnTab();
            QVERIFY2(!isTabStop || reached.contains(item), item->metaObject()->className());
            const QString name = item->inherits("QQuickAbstractButton")
                ? item->property("text").toString()
                : QQmlProperty(item, "Accessible.name", qmlContext(gallery->window)).read().toString();
            QVERIFY2(!isTabStop || !name.isEmpty(), item->metaObject()->className());
        }
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryPagesTest>(argc, argv);
}

#include "GalleryPagesTest.moc"
