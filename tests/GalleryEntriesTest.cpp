// What the gallery's pages say when there is nothing to show, and what a click on an entry copies.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QClipboard>
#include <QQmlContext>
#include <QQmlExpression>

namespace Tests
{

class GalleryEntriesTest : public QObject
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

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init() { fixture.emplace(); }

    void cleanup()
    {
        gallery.reset();
        fixture.reset();
    }

    void emptyFilesGiveASentenceOnEveryPage_data() { addRows({"page", "sentence"}); }

    void emptyFilesGiveASentenceOnEveryPage()
    {
        writeFile(fixture->path("icons/mapping.json"), "{}");
        writeFile(fixture->path("texts/en.json"), "{}");
        for (const char* file : {"colors.ini", "fonts.ini", "dimensions/800x480.ini"})
            writeFile(fixture->path(file), {});
        open(fixture->path());
        show(row()["page"].toString());
        const QString sentence = row()["sentence"].toString();
        QTRY_VERIFY2_WITH_TIMEOUT(gallery->text().contains(sentence), qPrintable(gallery->text()), 10000);
    }

    void emptyDirectoryGivesTheSentencesAndNamesWhatIsMissing_data() { addRows({"page", "sentence"}); }

    void emptyDirectoryGivesTheSentencesAndNamesWhatIsMissing()
    {
        open(fixture->path());
        show(row()["page"].toString());
        gallery->session.findings.start();
        const QString sentence = row()["sentence"].toString();
        QTRY_VERIFY2_WITH_TIMEOUT(gallery->text().contains(sentence), qPrintable(gallery->text()), 10000);
        for (const QString missing : {"colors.ini does not exist", "fonts.ini does not exist",
                                      "dimensions contains no dimension file", "icons/mapping.json does not exist"})
            QVERIFY2(gallery->text().contains(fixture->path(missing)), qPrintable(gallery->text()));
        fixture->copyResources();
        QTRY_COMPARE_WITH_TIMEOUT(gallery->session.ui.problem(), QString(), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(!gallery->text().contains(sentence), 10000);
    }

    void onlyControlOfAPageMayAppearLater()
    {
        open(RESOURCES);
        QQmlComponent component(&gallery->engine);
        component.setData("import QtQuick 2.15\nimport 'qrc:/qml/blocks'\nPage {\n"
                          "controls: Item { objectName: 'control'; width: 10; height: 10; visible: false }\n"
                          "Item { objectName: 'content'; anchors.fill: parent }\n}",
                          QUrl());
        const std::unique_ptr<QQuickItem> page(qobject_cast<QQuickItem*>(component.create()));
        QVERIFY2(page != nullptr, qPrintable(component.errorString()));
        page->setParentItem(gallery->window->contentItem());
        page->setSize({400, 300});
        const auto contentPlace = [&] {
            return page->findChild<QQuickItem*>("content")->mapToItem(page.get(), {}).y();
        };
        QCOMPARE(contentPlace(), 0.0);
        page->findChild<QQuickItem*>("control")->setVisible(true);
        QTRY_COMPARE_WITH_TIMEOUT(contentPlace(), 8 + 10 + 8.0, 10000); // with the margins
        QVERIFY(page->findChild<QQuickItem*>("control")->isVisible());
    }

    void clickCopiesAValidExpression_data() { addRows({"page", "search", "expression", "value"}); }

    void clickCopiesAValidExpression()
    {
        open(RESOURCES);
        show(row()["page"].toString());
        gallery->session.view.setSearch(row()["search"].toString());
        const QString expression = row()["expression"].toString();
        const auto entry = [&]() -> QQuickItem* {
            for (QQuickItem* item : gallery->items()) {
                if (item->isVisible() && item->property("expression").toString() == expression)
                    return item;
            }
            return nullptr;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(entry() != nullptr, qPrintable(gallery->text()), 10000);
        QTest::mouseClick(gallery->window, Qt::LeftButton, {}, entry()->mapToScene({20, 10}).toPoint());
        QCOMPARE(QGuiApplication::clipboard()->text(), expression);
        QQmlExpression copied(qmlContext(gallery->window), gallery->window, QGuiApplication::clipboard()->text());
        const QString value = copied.evaluate().toString();
        QVERIFY2(!copied.hasError(), qPrintable(copied.error().toString()));
        QVERIFY2(value.endsWith(row()["value"].toString()), qPrintable(value));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryEntriesTest>(argc, argv);
}

#include "GalleryEntriesTest.moc"
