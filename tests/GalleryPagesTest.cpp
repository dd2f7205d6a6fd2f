// The gallery's pages, built in the process of the test.

#include "Gallery/Session.h"
#include "tests/support/GalleryFixture.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QQmlApplicationEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>

namespace Tests
{

class GalleryPagesTest : public QObject
{
    Q_OBJECT

    GalleryFixture fixture;
    std::optional<Gallery::Session> session;
    std::optional<QQmlApplicationEngine> engine;
    QQuickWindow* window = nullptr;

    QList<QQuickItem*> items() const
    {
        QList<QQuickItem*> found{window->contentItem()};
        for (int index = 0; index < found.size(); ++index)
            found += found.at(index)->childItems();
        return found;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QJsonObject mapping;
        for (int number = 0; number < 9000; ++number)
            mapping.insert(QString("icon%1").arg(number), QJsonObject{{"defaultContext", "one.svg"}});
        writeFile(fixture.path("icons/mapping.json"), QJsonDocument(mapping).toJson());
        writeFile(fixture.path("icons/one.svg"), "<svg xmlns='http://www.w3.org/2000/svg'/>");
        writeFile(fixture.path("colors.ini"), "[A]\nb=red\n");
        fixture.startModule(fixture.path());
        session.emplace("en");
        session->publish();
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        engine.emplace(QUrl("qrc:/qml/Main.qml"));
        window = qobject_cast<QQuickWindow*>(engine->rootObjects().value(0));
        QVERIFY(window != nullptr);
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    void thousandsOfIconsNeedFewDelegatesAndKeepTheirPlaceOnReload()
    {
        session->view.setPage("Icons");
        const QList<QQuickItem*> all = items();
        const auto isGrid = [](const QQuickItem* item) { return item->inherits("QQuickGridView"); };
        QVERIFY(std::any_of(all.begin(), all.end(), isGrid));
        QQuickItem* grid = *std::find_if(all.begin(), all.end(), isGrid);
        const auto* cells = grid->property("contentItem").value<QQuickItem*>();
        const int end = qRound(grid->property("contentHeight").toDouble() - grid->height());
        QVERIFY(end > 50000);
        for (int place = 0; place < end; place += qRound(grid->height())) {
            grid->setProperty("contentY", place);
            QCoreApplication::processEvents();
            QVERIFY(cells->childItems().size() > 20 && cells->childItems().size() < 500);
        }
        grid->setProperty("contentY", end / 2);
        session->view.reload();
        QCOMPARE(grid->property("contentY").toInt(), end / 2);
    }

    void tabKeyReachesEveryControlAndEachHasAName_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : session->view.pages())
            QTest::newRow(qPrintable(page)) << page;
    }

    void tabKeyReachesEveryControlAndEachHasAName()
    {
        QFETCH(QString, page);
        session->view.setPage(page);
        QTest::qWait(20); // the event loop deletes the items of the previous page
        QSet<QQuickItem*> reached;
        for (int tab = 0; tab < 30; ++tab) {
            QTest::keyClick(window, Qt::Key_Tab);
            for (QQuickItem* item = window->activeFocusItem(); item != nullptr; item = item->parentItem())
                reached.insert(item);
        }
        for (QQuickItem* item : items()) {
            const bool isTabStop = item->isVisible() && item->isEnabled() && item->activeFocusOnTab();
            QVERIFY2(!isTabStop || reached.contains(item), item->metaObject()->className());
            const QString name = item->inherits("QQuickAbstractButton")
                ? item->property("text").toString()
                : QQmlProperty(item, "Accessible.name", qmlContext(window)).read().toString();
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
