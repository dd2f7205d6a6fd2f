// What the gallery reports of the differences between two resource directories.

#include "Gallery/LastGoodSource.h"
#include "Gallery/compare/Comparison.h"
#include "QmlHost/TarnisUi.h"
#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"

#include <QStandardPaths>

namespace Tests
{

using Gallery::Comparison;
using Gallery::Snapshot;

namespace
{

Snapshot snapshot(const QString& directory)
{
    return Snapshot::of(std::make_unique<Gallery::LastGoodSource>(TarnisUi::directory(directory)));
}

// One line per change, such as `Changed Dimensions 800x480 Button/height: 48 -> 52`.
QStringList lines(const Comparison& comparison)
{
    QStringList lines;
    for (const Comparison::Change& change : comparison.changes()) {
        const auto text = [](const auto& value) { return value ? value->text : QString("none"); };
        const QStringList words{Comparison::title(change.type()), Comparison::title(change.kind), change.key.variant,
                                change.key.name};
        lines.append(
            QString("%1: %2 -> %3").arg(words.join(' ').simplified(), text(change.oldValue), text(change.newValue)));
    }
    return lines;
}

// The program that the user calls, without a display.
Outcome report(const QString& newDirectory, const QString& oldDirectory, const QString& file)
{
    const QStringList arguments{newDirectory, "--compare", oldDirectory, "--report", file};
    return run("env", QStringList{"-u", "DISPLAY", TARNIS_GALLERY} + arguments);
}

// What a script finds in the report when Chromium shows it. Chromium has no window and a new profile.
QJsonObject readInBrowser(const QString& folder, const QString& reportName, const QString& colorScheme)
{
    const QString profile = "--user-data-dir=" + folder + "/profile-" + colorScheme;
    const QString scheme = QString("--blink-settings=preferredColorScheme=%1").arg(colorScheme == "dark" ? 0 : 1);
    QFile::copy(TEST_DATA "/GalleryCompareTest/browser.html", folder + "/browser.html");
    const QString page = "file://" + folder + "/browser.html#" + reportName;
    const Outcome outcome =
        run("chromium",
            {"--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--allow-file-access-from-files", "--enable-logging=stderr", profile, scheme, "--dump-dom", page});
    const QString title = QString(outcome.output).section("<title>", 1).section("</title>", 0, 0);
    QJsonObject found = QJsonDocument::fromJson(QByteArray::fromPercentEncoding(title.toUtf8())).object();
    found["console"] = outcome.errors.contains("CONSOLE") ? QString(outcome.errors) : QString();
    return found;
}

} // namespace

class GalleryCompareTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;

    // Changes the copy of the sample resources, which is the working directory of the command.
    void change(const QString& command) const
    {
        fixture->copyResources();
        QCOMPARE(run("sh", {"-ec", "cd $0 && " + command, fixture->path()}).exitStatus, 0);
    }

private Q_SLOTS:
    void init() { fixture.emplace(); }

    void eachKindOfChangeIsFound_data() { addRows({"command", "changes", "exitStatus", "output"}); }

    void eachKindOfChangeIsFound()
    {
        change(row()["command"].toString());
        const Comparison comparison(snapshot(RESOURCES), snapshot(fixture->path()));
        QCOMPARE(lines(comparison), rowTexts("changes"));
        const Outcome outcome = report(fixture->path(), RESOURCES, fixture->path("report.html"));
        QVERIFY2(outcome.exitStatus == row()["exitStatus"].toInt(), outcome.errors);
        QVERIFY2((outcome.output + outcome.errors).contains(row()["output"].toString().toUtf8()), outcome.errors);
        const Comparison reversed(comparison.newSide(), comparison.oldSide());
        QCOMPARE(reversed.changes().size(), comparison.changes().size());
    }

    void wrongUseIsNotTakenForAChange_data() { addRows({"arguments", "exitStatus", "message"}); }

    void wrongUseIsNotTakenForAChange()
    {
        const Outcome outcome = run("env", QStringList{"-u", "DISPLAY", TARNIS_GALLERY} + rowTexts("arguments"));
        QCOMPARE(outcome.exitStatus, row()["exitStatus"].toInt());
        QVERIFY2(outcome.errors.contains(row()["message"].toString().toUtf8()), outcome.errors);
    }

    void reportShowsTheScreenWhereItDiffers()
    {
        change("sed -i 's/^height=52/height=90/' dimensions/800x480.ini; sed -i 's/<svg/<svg id=\"x\"/' "
               "icons/day/fan.svg");
        const QStringList arguments{fixture->path(), "--compare", RESOURCES, "--report", fixture->path("report.html")};
        QCOMPARE(run(TARNIS_GALLERY, arguments).exitStatus, 1);
        QFile file(fixture->path("report.html"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray html = file.readAll();
        QCOMPARE(html.count("class=\"screen\""), 2);
        for (const char* const text : {"alt=\"Old front end on 800x480\"", "alt=\"New front end on 800x480\"",
                                       "The front end looks the same on 1024x600, 1280x800.", "none at this size"})
            QVERIFY2(html.contains(text), text);
    }

    void pageFollowsBothDirectories()
    {
        fixture->copyResources();
        const QString oldDirectory = fixture->path("old");
        QCOMPARE(run("cp", {"-r", RESOURCES, oldDirectory}).exitStatus, 0);
        GalleryWindow window(TarnisUi::directory(fixture->path()),
                             [&](Gallery::Session& session) { session.compareWith(oldDirectory); });
        window.session.view.setPage("Compare");
        QTRY_VERIFY_WITH_TIMEOUT(window.text().contains("Nothing has changed."), 10000);
        const auto widen = [](const QString& directory, int width) {
            const QString command = QString("sed -i 's/^width=80.$/width=%1/' dimensions/800x480.ini").arg(width);
            QCOMPARE(run("sh", {"-c", "cd $0 && " + command, directory}).exitStatus, 0);
        };
        widen(fixture->path(), 801);
        QTRY_VERIFY_WITH_TIMEOUT(window.text().contains("801 px"), 10000);
        QVERIFY2(window.text().contains("800 px"), qPrintable(window.text()));
        widen(oldDirectory, 802);
        QTRY_VERIFY_WITH_TIMEOUT(window.text().contains("802 px"), 10000);
        QVERIFY2(!window.text().contains("800 px"), qPrintable(window.text()));
        writeFile(oldDirectory + "/texts/de.json", "{");
        QTRY_VERIFY_WITH_TIMEOUT(window.text().contains(oldDirectory + "/texts/de.json:1:"), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(window.text().contains("1 changed; not everything"), 10000);
    }

    void browserShowsHostileTextsAsTextsAndEveryPicture_data() { addRows({"background"}); }

    void browserShowsHostileTextsAsTextsAndEveryPicture()
    {
        if (QStandardPaths::findExecutable("chromium").isEmpty())
            QSKIP("chromium is not installed; scripts/test.sh installs it");
        QFile script(TEST_DATA "/GalleryCompareTest/hostile.sh");
        script.open(QIODevice::ReadOnly);
        change(script.readAll());
        const QString name = "<i>\"report\" & 'name'.html";
        QCOMPARE(report(fixture->path(), RESOURCES, fixture->path(name)).exitStatus, 1);
        const QJsonObject page = readInBrowser(fixture->path(), QUrl::toPercentEncoding(name), QTest::currentDataTag());
        QCOMPARE(page["console"].toString(), QString());
        QCOMPARE(page["links"].toArray(), QJsonArray({"#", "data:image/png;base64,"}));
        QCOMPARE(page["scripts"].toInt(), 0);
        QCOMPARE(page["pictures"].toInt(), 8); // of a font and of an icon on both sides, of two icons on one side
        QCOMPARE(page["brokenPictures"].toInt(), 0);
        QCOMPARE(page["background"], row()["background"]);
        QCOMPARE(page["swatches"].toVariant().toStringList().join('|'),
                 QString("rgb(11, 122, 117)|rgba(0, 0, 255, 0.2)|rgb(31, 42, 55)|rgb(31, 42, 55)"));
        QCOMPARE(page["heading"].toString(), QString("Resource changes"));
        const QJsonArray cells = page["cells"].toArray();
        for (const QString text : {"<img src=x onerror=alert(1)>\"&amp;", "[U+202E]gnp.exe[U+202C]", "%1 %2", "]]>-->"})
            QVERIFY2(cells.contains(text), QJsonDocument(page).toJson());
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryCompareTest>(argc, argv);
}

#include "GalleryCompareTest.moc"
