// The front end on the page Device: how it follows its files and gets the input of the user.

#include "tests/support/DataRows.h"
#include "tests/support/FrontEndFiles.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QQmlContext>
#include <QQmlEngine>

namespace Tests
{

class GalleryFrontEndTest : public QObject
{
    Q_OBJECT

    std::optional<FrontEndFiles> files;
    std::optional<GalleryWindow> gallery;

    void open(const QString& file)
    {
        gallery.emplace(TarnisUi::directory(RESOURCES),
                        [&](Gallery::Session& session) { session.setFrontEnd(files->path + '/' + file); });
        QVERIFY(QTest::qWaitForWindowActive(gallery->window, 10000));
        QVERIFY(gallery->session.ui.waitUntilReady(10000));
    }

    Gallery::FrontEnd& frontEnd() const { return *gallery->session.preview.frontEnd(); }

    bool isShown(const QString& text) const { return gallery->text().contains(text); }

    QObject* object(const char* name) const
    {
        return qmlContext(frontEnd().root())->contextProperty(name).value<QObject*>();
    }

    void click(const QPoint& inFrontEnd) const
    {
        const QQuickItem* view = gallery->find("Gallery::FrontEndView");
        const double scale = view->width() / frontEnd().window()->width();
        const QPointF place = view->mapToScene(QPointF(inFrontEnd) * scale);
        QTest::mouseClick(gallery->window, Qt::LeftButton, Qt::NoModifier, place.toPoint());
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init() { files.emplace(); }

    void cleanup()
    {
        gallery.reset();
        files.reset();
    }

    void everyKindOfSavedFileIsShown_data() { addRows({"change", "text", "color"}); }

    void everyKindOfSavedFileIsShown()
    {
        open("Window.qml");
        QVERIFY2(isShown("part 1") && isShown("script 1"), qPrintable(gallery->text()));
        const QRgb color = QColor(row()["color"].toString()).rgb();
        files->shell(row()["change"].toString());
        QTRY_VERIFY2_WITH_TIMEOUT(isShown(row()["text"].toString()), qPrintable(gallery->text()), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(frontEnd().picture(), color) >= 400, 10000);
        QCOMPARE(gallery->session.preview.problem(), QString());
    }

    void faultIsReportedAboveTheLastGoodView_data() { addRows({"file", "content", "message"}); }

    void faultIsReportedAboveTheLastGoodView()
    {
        open("Window.qml");
        const QPointer<QQuickWindow> shown = frontEnd().window();
        const QString file = row()["file"].toString();
        files->shell("cp " + file + " good");
        files->write(file, row()["content"].toString());
        const QString message = files->path + '/' + row()["message"].toString();
        QTRY_VERIFY2_WITH_TIMEOUT(isShown(message), qPrintable(gallery->text()), 10000);
        QVERIFY2(isShown("part 1") && isShown("script 1"), qPrintable(gallery->text()));
        QCOMPARE(frontEnd().window(), shown.data());
        files->shell("mv good " + file);
        QTRY_VERIFY2_WITH_TIMEOUT(!isShown(message), qPrintable(gallery->text()), 10000);
        QVERIFY(shown.isNull());
    }

    void brokenFirstVersionIsReportedInsteadOfABlankPage()
    {
        files->write("Window.qml", "import QtQuick 2.15\nItem { Missing {} }\n");
        open("Window.qml");
        QVERIFY2(isShown(files->path + "/Window.qml:2: Missing is not a type"), qPrintable(gallery->text()));
        files->write("Missing.qml", "import QtQuick 2.15\nText { text: 'no longer missing' }\n");
        QTRY_VERIFY2_WITH_TIMEOUT(isShown("no longer missing"), qPrintable(gallery->text()), 10000);
        QVERIFY(!isShown("Window.qml:2"));
    }

    void whatTheUserChangedSurvivesUntilReset_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("Window") << "Window.qml";
        QTest::newRow("Item") << "Item.qml";
    }

    void whatTheUserChangedSurvivesUntilReset()
    {
        QFETCH(QString, file);
        open(file);
        QVERIFY(gallery->find("Gallery::FrontEndView")->width() < 1200); // scaled down
        click({200, 450});
        click({600, 450});
        QTRY_VERIFY_WITH_TIMEOUT(frontEnd().root()->findChild<QObject*>("inner") != nullptr, 10000);
        click({200, 550});
        for (const char key : {'t', 'y', 'p', 'e', 'd'})
            QTest::keyClick(gallery->window, key);
        QTRY_COMPARE_WITH_TIMEOUT(object("field")->property("text").toString(), QString("typed"), 10000);
        QTest::qWait(200); // by now the gallery has seen the objects that have come since
        frontEnd().root()->findChild<QObject*>("inner")->setProperty("checked", true);
        object("list")->setProperty("contentY", 30);
        click({1000, 450});
        QTRY_VERIFY2_WITH_TIMEOUT(isShown("the question") && isShown("clicked 1"), qPrintable(gallery->text()), 10000);

        files->shell("sed -i 's/part 1/part 2/' parts/Part.qml");
        QTRY_VERIFY_WITH_TIMEOUT(isShown("part 2"), 10000);
        QVERIFY2(isShown("the question") && isShown("clicked 1"), qPrintable(gallery->text()));
        QCOMPARE(object("list")->property("contentY").toInt(), 30);
        QCOMPARE(object("option")->property("checked").toBool(), true);
        QCOMPARE(frontEnd().root()->findChild<QObject*>("inner")->property("checked").toBool(), true);
        QCOMPARE(object("field")->property("text").toString(), QString("typed"));
        QTest::keyClick(gallery->window, Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(!isShown("the question"), 10000);

        gallery->session.preview.reset();
        QVERIFY2(isShown("clicked 0"), qPrintable(gallery->text()));
        QCOMPARE(object("list")->property("contentY").toInt(), 0);
        QCOMPARE(object("option")->property("checked").toBool(), false);
    }

    void changedSourceWinsOverTheUser()
    {
        open("Window.qml");
        click({200, 450});
        QTRY_VERIFY_WITH_TIMEOUT(isShown("clicked 1"), 10000);
        files->shell("sed -i 's/count: 0/count: 7/' Window.qml");
        QTRY_VERIFY2_WITH_TIMEOUT(isShown("clicked 7"), qPrintable(gallery->text()), 10000);
    }

    void displayContextAndLanguageSwitchInPlace()
    {
        open("Item.qml");
        const QPointer<QObject> root = frontEnd().root();
        gallery->session.view.setContext("nightMode");
        QVERIFY2(isShown("context nightMode"), qPrintable(gallery->text()));
        gallery->session.view.setDisplay("800x480");
        QCOMPARE(root->property("width").toInt(), 800);
        QVERIFY2(isShown("800 x 480 px, shown at 100 %"), qPrintable(gallery->text()));
        gallery->session.ui.setLanguage("ar");
        QCOMPARE(root->property("mirrored").toBool(), true);
        gallery->session.ui.setLanguage("de");
        QCOMPARE(root->property("mirrored").toBool(), false);
        QVERIFY(!root.isNull());
    }

    void messagesOfTheFrontEndAreLogged()
    {
        open("Window.qml");
        gallery->session.view.setPage("Log");
        QTRY_VERIFY_WITH_TIMEOUT(isShown("the front end is there"), 10000);
        QCOMPARE(gallery->session.log.takeNew(), QStringList()); // not a failed lookup
    }

    void hundredReloadsLeaveNoEngineBehind()
    {
        open("Window.qml");
        QList<QPointer<QQmlEngine>> engines;
        for (int reload = 0; reload < 100; ++reload) {
            engines.append(qmlEngine(frontEnd().root()));
            gallery->session.preview.reload();
            QCoreApplication::processEvents();
        }
        QCOMPARE(engines.count(QPointer<QQmlEngine>()), 100);
        QVERIFY(isShown("part 1"));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryFrontEndTest>(argc, argv);
}

#include "GalleryFrontEndTest.moc"
