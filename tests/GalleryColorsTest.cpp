// The gallery's pages that compare values: the colors of themes, and the dimensions of displays.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

namespace Tests
{

namespace
{

using Gallery::ColorCatalog;

// "Day 21.00:1 AA and AAA" for a pair, otherwise "Day" or "Day lacks Text".
QString describe(const ColorCatalog& colors, const Gallery::ColorCell& cell)
{
    if (!cell.missing.isEmpty())
        return cell.group + " lacks " + cell.missing;
    if (cell.background.isEmpty())
        return cell.group;
    const double ratio = colors.contrast(colors.backgroundColor(cell.group, cell.key), cell.group, cell.background);
    return QString("%1 %2 %3").arg(cell.group, colors.ratioText(ratio), colors.verdict(ratio));
}

QStringList describe(const ColorCatalog& colors, const QString& search)
{
    QStringList lines;
    for (const QVariant& variant : colors.rows(search)) {
        const auto row = variant.value<Gallery::ColorRow>();
        QStringList cells;
        for (const QVariant& cell : row.cells)
            cells.append(describe(colors, cell.value<Gallery::ColorCell>()));
        lines.append(row.title + ": " + cells.join(", "));
    }
    return lines;
}

} // namespace

class GalleryColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void themesAndPairsAreFoundAndJudged_data() { addRows({"colors", "settings", "search", "rows"}); }

    void themesAndPairsAreFoundAndJudged()
    {
        const GalleryFixture fixture;
        writeFile(fixture.path("colors.ini"), row()["colors"].toString().toUtf8());
        writeFile(fixture.path(".tarnis-check.ini"), row()["settings"].toString().toUtf8());
        Gallery::Session session(TarnisUi::directory(fixture.path()));
        session.waitForSource(10000);
        QCOMPARE(describe(session.catalogs.colors, row()["search"].toString()), rowTexts("rows"));
    }

    void openPageFollowsThePairsOfTheSettings()
    {
        const GalleryFixture fixture;
        writeFile(fixture.path("colors.ini"), "[Day]\nA=red\nB=blue\nC=white\n");
        GalleryWindow gallery(TarnisUi::directory(fixture.path()));
        gallery.session.view.setPage("Colors");
        const QString settings = fixture.path(".tarnis-check.ini");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("red"), 10000);
        for (const char background : {'B', 'C'}) {
            writeFile(settings, QByteArray("[Options]\ncontrast=Day/A:Day/") + background + '\n');
            QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains(QString("A on ") + background), 10000);
        }
        QVERIFY(QFile::remove(settings));
        QTRY_VERIFY_WITH_TIMEOUT(!gallery.text().contains("A on "), 10000);
    }

    void remarkableDimensionsAreFound_data() { addRows({"displays", "remarks"}); }

    void remarkableDimensionsAreFound()
    {
        const GalleryFixture fixture;
        const QVariantMap displays = row()["displays"].toObject().toVariantMap();
        for (auto display = displays.begin(); display != displays.end(); ++display)
            writeFile(fixture.path("dimensions/" + display.key() + ".ini"), "[A]\n" + display->toByteArray());
        Gallery::Session session(TarnisUi::directory(fixture.path()));
        session.waitForSource(10000);
        const Gallery::DimensionCatalog& dimensions = session.catalogs.dimensions;
        QStringList found;
        for (const QString& display : dimensions.displays()) {
            for (const QString& name : dimensions.names({})) {
                const QString remark = dimensions.remark(display, name);
                if (!remark.isEmpty())
                    found.append(display + ' ' + name + ": " + remark);
            }
        }
        QCOMPARE(found, rowTexts("remarks"));
    }

    void keysReachEverySwatchAndCopyItsExpression()
    {
        const GalleryFixture fixture;
        writeFile(fixture.path("colors.ini"), "[Day]\nA=red\nB=red\nC=red\n[Night]\nC=blue\nA=blue\n");
        GalleryWindow gallery(TarnisUi::directory(fixture.path()));
        gallery.session.view.setPage("Colors");
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("B is missing"), 10000);
        gallery.find("QQuickGridView")->forceActiveFocus(Qt::TabFocusReason);
        QSignalSpy copies(&gallery.session.view, &Gallery::View::copied);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Right, Qt::Key_Return, Qt::Key_Right, Qt::Key_Return,
                                  Qt::Key_Right, Qt::Key_Return, Qt::Key_Left, Qt::Key_Left, Qt::Key_Return})
            QTest::keyClick(gallery.window, key);
        const QStringList names{"Day, A", "Night, A", "Day, B", "Night, A"}; // Night lacks B
        QCOMPARE(copies.size(), names.size());
        for (int copy = 0; copy < copies.size(); ++copy)
            QCOMPARE(copies[copy][0].toString().remove('"'), "Ui.colors.getColor(" + names[copy] + ')');
    }

    void everyDimensionOfTheChosenDisplayIsDrawnToScaleAndFits()
    {
        GalleryWindow gallery(TarnisUi::directory(RESOURCES));
        gallery.window->resize(800, 480);
        gallery.session.view.setPage("Dimensions");
        gallery.session.view.setDisplay("1024x600");
        QTRY_VERIFY_WITH_TIMEOUT(gallery.text().contains("on 1024x600"), 10000);
        QQuickItem* list = gallery.window->findChild<QQuickItem*>("dimensions");
        const auto* box = gallery.window->findChild<QQuickItem*>("box");
        const QQuickItem* drawn = box->childItems().constFirst();
        QStringList boxes;
        for (int index = 0; index < list->property("count").toInt(); ++index) {
            list->setProperty("currentIndex", index);
            QVERIFY(drawn->width() > 0 && drawn->height() > 0);
            QVERIFY(box->boundingRect().contains(QRectF(drawn->x(), drawn->y(), drawn->width(), drawn->height())));
            const QSize pixels = (drawn->size() * box->property("divisor").toInt()).toSize();
            boxes.append(QString("%1x%2").arg(pixels.width()).arg(pixels.height()));
        }
        for (const char* expected : {"1024x600", "232x172", "96x66", "24x54"}) // screen, tile, key, height of a button
            QVERIFY2(boxes.contains(expected), expected);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryColorsTest>(argc, argv);
}

#include "GalleryColorsTest.moc"
