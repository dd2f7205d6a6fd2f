// The controls of the gallery's window: keys, lists of choices, filters and banners.

#include "Gallery/Screenshots.h"
#include "tests/support/DataRows.h"
#include "tests/support/FrontEndFiles.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <atomic>

namespace Tests
{

namespace
{

// Counts the questions and never answers.
class SilentSource : public QmlHost::Source
{
public:
    explicit SilentSource(std::atomic<int>& questionCount)
        : questions(questionCount)
    {
    }

    void start() override { }
    void ask() override { ++questions; }

private:
    std::atomic<int>& questions;
};

} // namespace

class GalleryControlsTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<GalleryWindow> gallery;

    void open(std::unique_ptr<QmlHost::Source> source, const QString& qmlFile = QString())
    {
        gallery.emplace(std::move(source), [&](Gallery::Session& session) {
            if (!qmlFile.isEmpty())
                session.setFrontEnd(qmlFile);
        });
        QVERIFY(QTest::qWaitForWindowActive(gallery->window, 10000));
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

    // Chooses a value with the keyboard.
    void choose(const QString& label, const QString& value) const
    {
        QQuickItem* choice = find("label", label);
        choice->forceActiveFocus(Qt::TabFocusReason);
        for (int step = 0; step < 5 && choice->property("value").toString() != value; ++step)
            QTest::keyClick(gallery->window, Qt::Key_Down);
        QCOMPARE(choice->property("value").toString(), value);
    }

    // The rows of the page Log, such as "2 × text".
    QStringList shownMessages() const
    {
        QStringList messages;
        for (const QQuickItem* item : gallery->items()) {
            if (item->isVisible() && item->property("expression").isValid()) {
                const auto* content = item->property("contentItem").value<QQuickItem*>();
                const QString count = content->childItems().constFirst()->property("text").toString();
                messages.append(count + ' ' + item->property("expression").toString());
            }
        }
        return messages;
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init() { fixture.emplace(); }

    void cleanup()
    {
        gallery.reset();
        fixture.reset();
    }

    void refreshKeyAsksTheSourceOnEveryPageAndWhileTyping()
    {
        std::atomic<int> questions{0};
        open(std::make_unique<SilentSource>(questions));
        int presses = 0;
        for (const QString& page : gallery->session.view.pages()) {
            gallery->session.view.setPage(page);
            QTest::keyClick(gallery->window, Qt::Key_F, Qt::ControlModifier);
            QTest::keyClick(gallery->window, Qt::Key_F5);
            ++presses;
            QTRY_VERIFY2_WITH_TIMEOUT(questions == presses, qPrintable(page), 10000);
        }
    }

    void keysMoveInEveryListAndCopy_data() { addRows({"page", "keys", "copied"}); }

    void keysMoveInEveryListAndCopy()
    {
        open(TarnisUi::directory(RESOURCES));
        gallery->session.view.setPage(row()["page"].toString());
        const auto list = [this]() -> QQuickItem* {
            for (QQuickItem* item : gallery->items()) {
                const bool isList = item->inherits("QQuickListView") || item->inherits("QQuickGridView");
                if (isList && item->isVisible() && item->objectName() != "navigation")
                    return item;
            }
            return nullptr;
        };
        QTRY_VERIFY_WITH_TIMEOUT(list() != nullptr && list()->property("count").toInt() > 3, 10000);
        list()->forceActiveFocus(Qt::TabFocusReason);
        QSignalSpy copies(&gallery->session.view, &Gallery::View::copied);
        for (const QString& key : rowTexts("keys"))
            QTest::keySequence(gallery->window, QKeySequence(key));
        QStringList copied;
        for (const QList<QVariant>& copy : copies)
            copied.append(copy.constFirst().toString());
        QCOMPARE(copied.join('\n'), rowTexts("copied").join('\n'));
    }

    void logIsFiltered_data() { addRows({"source", "severity", "search", "shown"}); }

    void logIsFiltered()
    {
        std::atomic<int> questions{0};
        open(std::make_unique<SilentSource>(questions));
        QMessageLogger("TarnisLibrary/a.cpp", 1, "f").critical("one");
        QMessageLogger("Common/a.cpp", 1, "f").warning("two");
        QMessageLogger("file:///a.qml", 1, "f").info("three");
        QMessageLogger("file:///a.qml", 1, "f").critical("four");
        QMessageLogger("Gallery/a.cpp", 1, "f").critical("five"); // that of the gallery is not shown
        QMessageLogger("Common/a.cpp", 1, "f").warning("two");
        gallery->session.view.setPage("Log");
        QTRY_COMPARE_WITH_TIMEOUT(shownMessages(), QStringList({"2 × two", "1 × four", "1 × three", "1 × one"}), 10000);
        choose("Source of the messages", row()["source"].toString());
        choose("Severity of the messages", row()["severity"].toString());
        gallery->session.view.setSearch(row()["search"].toString());
        QTRY_COMPARE_WITH_TIMEOUT(shownMessages(), rowTexts("shown"), 10000);
    }

    void pictureOfAnUnfinishedComparisonIsIncomplete()
    {
        std::atomic<int> questions{0};
        gallery.emplace(std::make_unique<SilentSource>(questions),
                        [](Gallery::Session& session) { session.compareWith(RESOURCES); });
        gallery->session.view.setPage("Compare");
        Gallery::Screenshots screenshots(*gallery->window, gallery->session);
        const QString picture = fixture->path("picture.png");
        QVERIFY(screenshots.take(picture));
        QCOMPARE(screenshots.incomplete(), QStringList(picture));
    }

    void bannerStandsAboveTheLastGoodFrontEnd()
    {
        const FrontEndFiles files;
        open(TarnisUi::directory(RESOURCES), files.path + "/Window.qml");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->find("Gallery::FrontEndView") != nullptr, 10000);
        const QQuickItem* view = gallery->find("Gallery::FrontEndView");
        QTRY_VERIFY_WITH_TIMEOUT(view->width() > 500, 10000);
        const qreal wholeHeight = view->height();
        files.write("parts/Part.qml", "import QtQuick 2.15\nText { text: }\n");
        QTRY_VERIFY_WITH_TIMEOUT(!gallery->session.preview.problem().isEmpty(), 10000);
        const QString fault = gallery->session.preview.problem();
        QVERIFY(find("text", fault) != nullptr);
        const QQuickItem* banner = find("text", fault);
        const qreal bannerEnd = banner->mapRectToScene(banner->boundingRect()).bottom();
        QTRY_VERIFY_WITH_TIMEOUT(view->mapToScene({0, 0}).y() > bannerEnd, 10000);
        QVERIFY(view->height() < wholeHeight && view->height() > wholeHeight - 100);
        QTRY_VERIFY_WITH_TIMEOUT(countPixels(gallery->window->grabWindow(), 0x0000ff) > 20, 10000); // its picture
        files.write("parts/Part.qml", "import QtQuick 2.15\nText { text: 'part 3' }\n");
        QTRY_VERIFY_WITH_TIMEOUT(find("text", fault) == nullptr && view->height() == wholeHeight, 10000);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryControlsTest>(argc, argv);
}

#include "GalleryControlsTest.moc"
