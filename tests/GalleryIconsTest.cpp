// The gallery's page of icons: what it says about each icon in each context, and its search.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

namespace Tests
{

namespace
{

// The visible texts within an item, from the first to the last.
QStringList textsOf(const QQuickItem* item)
{
    QStringList texts;
    for (const QQuickItem* child : item->childItems()) {
        if (child->isVisible() && child->inherits("QQuickText"))
            texts.append(child->property("text").toString());
        texts.append(textsOf(child));
    }
    texts.removeAll(QString());
    return texts;
}

} // namespace

class GalleryIconsTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<GalleryWindow> gallery;

    void open(const QJsonObject& mapping)
    {
        QImage pixels(20, 10, QImage::Format_RGB32);
        pixels.fill(Qt::red);
        writeFile(fixture->path("icons/mapping.json"), QJsonDocument(mapping).toJson());
        QVERIFY(pixels.save(fixture->path("icons/pixels.png")));
        gallery.emplace(TarnisUi::directory(fixture->path()));
        gallery->session.view.setPage("Icons");
    }

    // What is said about an icon in each context, such as "defaultContext|20 × 10 px|pixels.png".
    QStringList said(const QString& alias) const
    {
        QStringList lines;
        for (const QQuickItem* item : gallery->items()) {
            const bool isContext = QString(item->metaObject()->className()).startsWith("IconContext_");
            if (isContext && item->property("alias").toString() == alias)
                lines.append(textsOf(item).join('|'));
        }
        return lines;
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init() { fixture.emplace(); }

    void cleanup()
    {
        gallery.reset();
        fixture.reset();
    }

    void marksAndFactsOfEachContext_data() { addRows({"files", "contexts", "said"}); }

    void marksAndFactsOfEachContext()
    {
        const QJsonObject files = row()["files"].toObject();
        for (auto file = files.begin(); file != files.end(); ++file)
            writeFile(fixture->path("icons/" + file.key()), file->toString().toUtf8());
        const QJsonObject both{{"defaultContext", "pixels.png"}, {"nightMode", "pixels.png"}};
        open({{"tested", row()["contexts"]}, {"both", both}});
        QTRY_COMPARE_WITH_TIMEOUT(said("tested"), rowTexts("said"), 10000);
        const QStringList unmarked{"defaultContext|20 × 10 px|pixels.png", "nightMode|20 × 10 px|pixels.png"};
        QTRY_COMPARE_WITH_TIMEOUT(said("both"), unmarked, 10000);
    }

    void searchFindsAliasesAndFileNames_data() { addRows({"search", "found", "sentence"}); }

    void searchFindsAliasesAndFileNames()
    {
        open({{"lamp", QJsonObject{{"defaultContext", "day/bulb.svg"}, {"nightMode", "night/moon.svg"}}},
              {"bell", QJsonObject{{"defaultContext", "day/alarm.svg"}}},
              {"Moonlight", QJsonObject{{"defaultContext", "pixels.png"}}}});
        gallery->session.view.setSearch(row()["search"].toString());
        const auto found = [this] {
            QStringList aliases;
            for (const QString alias : {"Moonlight", "bell", "lamp"}) {
                if (!said(alias).isEmpty())
                    aliases.append(alias);
            }
            return aliases;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(gallery->text().contains(row()["sentence"].toString()), qPrintable(gallery->text()),
                                  10000);
        QTRY_COMPARE_WITH_TIMEOUT(found(), rowTexts("found"), 10000);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryIconsTest>(argc, argv);
}

#include "GalleryIconsTest.moc"
