// The page Device: how the front end follows display, context and language, and how large it is drawn.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QQmlContext>
#include <QQmlEngine>

namespace Tests
{

class GalleryDeviceTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<GalleryWindow> gallery;

    void clickButton(const QString& text) const
    {
        for (QQuickItem* item : gallery->items()) {
            if (item->isVisible() && item->inherits("QQuickButton") && item->property("text").toString() == text) {
                const QPointF center(item->width() / 2, item->height() / 2);
                QTest::mouseClick(gallery->window, Qt::LeftButton, {}, item->mapToScene(center).toPoint());
                return;
            }
        }
        QFAIL(qPrintable("no button " + text));
    }

    QObject* root() const { return gallery->session.preview.frontEnd()->root(); }

    qreal x(const char* name) const { return root()->findChild<QQuickItem*>(name)->x(); }

    int drawn(QRgb color) const { return countPixels(gallery->window->grabWindow(), color); }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init()
    {
        fixture.emplace();
        writeFile(fixture->path("texts/en.json"), "{\"text://A/Yes\": \"Yes\"}");
        writeFile(fixture->path("texts/de.json"), "{\"text://A/Yes\": \"Ja\"}");
        for (const char* display : {"640x480", "1280x800", "1600x300"})
            writeFile(fixture->path(QString("dimensions/%1.ini").arg(display)), "[A]\nb=1\n");
        gallery.emplace(TarnisUi::directory(fixture->path()), [](Gallery::Session& session) {
            session.setFrontEnd(TEST_DATA "/GalleryDeviceTest/FrontEnd.qml");
        });
        QVERIFY(QTest::qWaitForWindowActive(gallery->window, 10000));
        QTRY_VERIFY2_WITH_TIMEOUT(gallery->text().contains("defaultContext Yes"), qPrintable(gallery->text()), 10000);
    }

    void cleanup()
    {
        gallery.reset();
        fixture.reset();
    }

    void everyChoiceChangesTheSameFrontEnd()
    {
        const QPointer<QObject> before = root();
        const QPointer<QQmlEngine> engine = qmlEngine(before);
        gallery->session.ui.setLanguage("de");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("defaultContext Ja"), 10000);
        gallery->session.view.setContext("nightMode");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("nightMode Ja"), 10000);
        gallery->session.view.setDisplay("640x480");
        QTRY_COMPARE_WITH_TIMEOUT(before->property("width").toInt(), 640, 10000);
        QCOMPARE(before->property("height").toInt(), 480);
        QCOMPARE(root(), before.data());
        QVERIFY(!engine.isNull() && qmlEngine(root()) == engine);
    }

    void rightToLeftPseudoLanguageMirrorsTheLayout()
    {
        QVERIFY(x("first") == 0 && x("second") == 100);
        gallery->session.ui.setLanguage("ar_XB");
        QTRY_VERIFY_WITH_TIMEOUT(x("first") == 100 && x("second") == 0, 10000);
        gallery->session.ui.setLanguage("en_XA");
        QTRY_VERIFY_WITH_TIMEOUT(x("first") == 0 && x("second") == 100, 10000);
    }

    void frontEndIsScaledDownOrScrolls_data() { addRows({"window", "display", "isScaled"}); }

    void frontEndIsScaledDownOrScrolls()
    {
        const QJsonArray window = row()["window"].toArray();
        gallery->window->resize(window[0].toInt(), window[1].toInt());
        QTRY_COMPARE_WITH_TIMEOUT(gallery->window->contentItem()->width(), window[0].toDouble(), 10000);
        gallery->session.view.setDisplay(row()["display"].toString());
        const QQuickItem* view = gallery->find("Gallery::FrontEndView");
        QQuickItem* area = view->parentItem()->parentItem()->parentItem();
        const QSizeF room = area->size() - QSizeF(2, 2); // within the frame
        const QSizeF device(root()->property("width").toInt(), root()->property("height").toInt());
        const QSizeF fitting = device.scaled(room, Qt::KeepAspectRatio);
        const bool isScaled = row()["isScaled"].toBool();
        const QString size = QString("%1 x %2 px, shown at ").arg(device.width()).arg(device.height());
        const auto says = [&](double scale) {
            return gallery->text().contains(size + QString::number(qRound(100 * scale)) + " %");
        };

        const double scale = isScaled ? fitting.width() / device.width() : 1;
        QVERIFY((scale < 1) == isScaled);
        QCOMPARE(view->size().toSize(), (device * scale).toSize());
        QVERIFY2(says(scale), qPrintable(gallery->text()));
        const double pixels = 10000 * scale * scale;
        QTRY_VERIFY_WITH_TIMEOUT(qAbs(drawn(0xfe01fd) - pixels) < 0.06 * pixels, 10000);

        clickButton("1:1");
        QCOMPARE(view->size().toSize(), device.toSize());
        QVERIFY2(says(1), qPrintable(gallery->text()));
        QTRY_COMPARE_WITH_TIMEOUT(drawn(0xfe01fd), 10000, 10000);
        const QSizeF hidden = device - room;
        area->setProperty("contentX", hidden.width());
        area->setProperty("contentY", hidden.height());
        const bool hasMoved = hidden.width() > 100 || hidden.height() > 100;
        QTRY_COMPARE_WITH_TIMEOUT(drawn(0xfe01fd) == 0, isScaled && hasMoved, 10000);

        clickButton("Fit");
        QCOMPARE(view->size().toSize(), (device * scale).toSize());
        QVERIFY2(says(scale), qPrintable(gallery->text()));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryDeviceTest>(argc, argv);
}

#include "GalleryDeviceTest.moc"
