// The gallery's pages of texts and fonts, and the languages that it makes up.

#include "Gallery/PseudoLanguage.h"
#include "Gallery/catalog/GlyphCoverage.h"
#include "Gallery/catalog/TextTable.h"
#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

namespace Tests
{

namespace
{

const QString url = "text://Test/Text";

// Writes the texts, by language, as the only text of their files.
void writeTexts(const QString& folder, const QJsonObject& texts)
{
    for (auto text = texts.begin(); text != texts.end(); ++text)
        writeFile(folder + '/' + text.key() + ".json", QJsonDocument(QJsonObject{{url, text.value()}}).toJson());
}

// Each run of a letter counts as one, with and without accents.
QString skeleton(const QString& text)
{
    QString letters = text.normalized(QString::NormalizationForm_D);
    letters.remove(QRegularExpression("\\p{M}"));
    return letters.replace(QRegularExpression("(\\p{L})\\1+"), "\\1");
}

} // namespace

class GalleryTextsTest : public QObject
{
    Q_OBJECT

    GalleryFixture fixture;
    std::optional<GalleryWindow> gallery;

private Q_SLOTS:
    void pseudoTextsKeepWhatATranslatorKeeps_data() { addRows({"text", "kept", "mirrored"}); }

    void pseudoTextsKeepWhatATranslatorKeeps()
    {
        QString text = row()["text"].toString();
        QString longer = Gallery::PseudoLanguage::lengthened(text);
        QCOMPARE(skeleton(longer), '[' + skeleton(text) + ']');
        int place = 0;
        for (const QString& kept : rowTexts("kept")) {
            place = longer.indexOf(kept, place);
            QVERIFY2(place >= 0, qPrintable(kept));
            longer.remove(place, kept.size());
            text.remove(text.indexOf(kept), kept.size());
        }
        QVERIFY2(!longer.contains(QRegularExpression("[a-pr-zA-PR-Z]")), qPrintable(longer));
        QVERIFY(longer.size() >= 1.3 * text.size() && longer.size() <= 1.4 * text.size());
        QCOMPARE(Gallery::PseudoLanguage::mirrored(row()["text"].toString()), row()["mirrored"].toString());
    }

    void missingAndIdenticalTextsAreMarked_data() { addRows({"language", "texts", "mark"}); }

    void missingAndIdenticalTextsAreMarked()
    {
        const QTemporaryDir folder;
        for (const QString language : {"en", "en_GB", "de", "de_AT"})
            writeFile(folder.filePath(language + ".json"), "{}");
        writeTexts(folder.path(), row()["texts"].toObject());
        const auto table = Gallery::TextTable::read(folder.path(), {"en", "en_GB", "de", "de_AT"});
        QCOMPARE(table.urls, QStringList(url));
        const Gallery::TextCell cell = table.column(row()["language"].toString())->cells.at(0);
        const QString mark = QString(cell.isMissing ? "missing" : "") + (cell.isIdentical ? "identical" : "");
        QCOMPARE(mark, row()["mark"].toString());
    }

    void coverageNamesTheCharactersThatTheFamilyLacks_data() { addRows({"text", "missing", "undrawn"}); }

    void coverageNamesTheCharactersThatTheFamilyLacks()
    {
        const QTemporaryDir folder;
        writeTexts(folder.path(), {{"en", row()["text"]}});
        const QRawFont family = Gallery::GlyphCoverage::rawFont("Inter");
        QCOMPARE(family.familyName(), QString("Inter"));
        const auto table = Gallery::TextTable::read(folder.path(), {"en"});
        const auto coverage = Gallery::GlyphCoverage::of(family, *table.column("en"));
        QCOMPARE(coverage.missing, rowTexts("missing"));
        QCOMPARE(coverage.undrawn, row()["undrawn"].toInt());
        const bool needsSubstitute = coverage.missing.size() > coverage.undrawn;
        QCOMPARE(!coverage.substitutes.isEmpty(), needsSubstitute);
        QVERIFY(!coverage.substitutes.contains("Inter"));
    }

    void pageShowsMissingTextsOnlyAndSearchesThem()
    {
        fixture.copyResources();
        const QString lose =
            "cd $0/texts && sed -i /Button.Save/d ja.json && sed -i '/Room.Stairs/d; /Home.Title/d' fr.json";
        QCOMPARE(run("sh", {"-c", lose, fixture.path()}).exitStatus, 0);
        QQuickWindow::setSceneGraphBackend("software");
        gallery.emplace(TarnisUi::directory(fixture.path()));
        QVERIFY(QTest::qWaitForWindowActive(gallery->window));
        gallery->session.view.setPage("Texts");
        const QString summary = "49 texts in 5 languages, 3 missing, 7 identical to English";
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains(summary), 10000);
        const QQuickItem* missingOnly = gallery->find("QQuickCheckBox");
        QTest::mouseClick(gallery->window, Qt::LeftButton, {}, missingOnly->mapToScene({10, 10}).toPoint());
        const auto shownUrls = [this] {
            const QRegularExpression urls("^text://.*$", QRegularExpression::MultilineOption);
            QStringList found;
            for (auto matches = urls.globalMatch(gallery->text()); matches.hasNext();)
                found.append(matches.next().captured());
            found.removeDuplicates();
            return found.join(' ');
        };
        QTRY_COMPARE_WITH_TIMEOUT(shownUrls(), QString("text://Button/Save text://Home/Title text://Room/Stairs"),
                                  10000);
        gallery->session.view.setSearch("TREPPE");
        QTRY_COMPARE_WITH_TIMEOUT(shownUrls(), QString("text://Room/Stairs"), 10000);
        gallery->session.view.setSearch("Settings");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("Nothing matches"), 10000);
    }

    void pseudoLanguagesAreOfferedBesideTheRealOnes()
    {
        const QStringList real{"de", "de_AT", "en", "fr", "ja"};
        QCOMPARE(gallery->session.ui.languages(), real);
        QCOMPARE(gallery->session.catalogs.texts.pseudoLanguages(), (QStringList{"en_XA", "ar_XB"}));
        gallery->session.log.takeNew();
        gallery->session.view.setPage("Device");
        gallery->session.ui.setLanguage("ar_XB");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("\u202eHumidity\u202c"), 10000);
        gallery->session.ui.setLanguage("en_XA");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("[Ĥûṁîď"), 10000);
        writeFile(fixture.path("texts/en_XA.json"), "{\"text://Home/Humidity\": \"written by hand\"}");
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("written by hand"), 10000);
        QVERIFY(gallery->session.ui.languages().contains("en_XA"));
        QFile::remove(fixture.path("texts/en_XA.json"));
        QTRY_VERIFY_WITH_TIMEOUT(gallery->text().contains("[Ĥûṁîď"), 10000);
        QCOMPARE(gallery->session.ui.languages(), real);
        QCOMPARE(gallery->session.log.takeNew(), QStringList());
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryTextsTest>(argc, argv);
}

#include "GalleryTextsTest.moc"
