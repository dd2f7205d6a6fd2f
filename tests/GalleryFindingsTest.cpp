// The gallery's pages Findings, Log and Icons on files with faults.

#include "Gallery/catalog/IconFile.h"
#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"
#include "tests/support/GalleryWindow.h"
#include "tests/support/HostPage.h"

#include <QClipboard>

namespace Tests
{

class GalleryFindingsTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;
    std::optional<ResourceCopy> resources;

    /// Clicks the visible button with a text that begins like this, as soon as there is one.
    static void click(const GalleryWindow& gallery, const QString& text)
    {
        QQuickItem* button = nullptr;
        const auto isFound = [&] {
            for (QQuickItem* item : gallery.items()) {
                const bool isWanted = item->isVisible() && item->property("text").toString().startsWith(text);
                button = isWanted && item->inherits("QQuickAbstractButton") ? item : button;
            }
            return button != nullptr && button->height() > 0;
        };
        QVERIFY2(QTest::qWaitFor(isFound, 10000), qPrintable(gallery.text()));
        const QPointF center = button->mapToScene({button->width() / 2, button->height() / 2});
        QTest::mouseClick(gallery.window, Qt::LeftButton, {}, center.toPoint());
    }

private Q_SLOTS:
    static void initTestCase() { QQuickWindow::setSceneGraphBackend("software"); }

    void init()
    {
        fixture.emplace();
        resources.emplace();
    }

    void cleanup()
    {
        fixture.reset();
        resources.reset();
    }

    void findingsFollowTheFiles_data() { addRows({"isService", "fault", "repair", "message"}); }

    void findingsFollowTheFiles()
    {
        if (row()["isService"].toBool())
            fixture->startModule(resources->path);
        GalleryWindow gallery(row()["isService"].toBool() ? TarnisUi::service(TarnisUi::Files::Followed)
                                                          : TarnisUi::directory(resources->path));
        gallery.session.view.setPage("Findings");
        QTRY_VERIFY2_WITH_TIMEOUT(gallery.text().contains("No findings."), qPrintable(gallery.text()), 10000);
        resources->shell("cp -r . ../good; " + row()["fault"].toString());
        const QString message = row()["message"].toString();
        QTRY_VERIFY2_WITH_TIMEOUT(gallery.text().contains(message), qPrintable(gallery.text()), 10000);
        QVERIFY(gallery.session.findings.errors() + gallery.session.findings.warnings() > 0);
        resources->shell(row()["repair"].toString());
        QTRY_VERIFY2_WITH_TIMEOUT(gallery.text().contains("No findings."), qPrintable(gallery.text()), 10000);
    }

    void clickOpensTheFileInTheEditor_data() { addRows({"command", "arguments", "problem"}); }

    void clickOpensTheFileInTheEditor()
    {
        resources->shell(
            "cd ..; mkdir bin; mv resources 'bin/a b{line}'; cd bin;"
            "rm 'a b{line}/.tarnis-check.ini'; printf '[Day]\\nText = nothing\\n' > 'a b{line}/colors.ini';"
            "printf '#!/bin/sh\\nprintf \"%%s\\\\n\" \"$@\" > %s/part; mv %s/part %s/written\\n' $PWD $PWD "
            "$PWD > editor; chmod +x editor");
        const QString folder = resources->parent.filePath("bin");
        GalleryWindow gallery(TarnisUi::directory(folder + "/a b{line}"));
        gallery.session.findings.setEditor(Gallery::Editor(row()["command"].toString().replace("BIN", folder)));
        gallery.session.view.setPage("Findings");
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        click(gallery, "error colors.ini 2:8");
        const QString problem = row()["problem"].toString().replace("BIN", folder);
        QTRY_COMPARE_WITH_TIMEOUT(gallery.session.findings.problem(), problem, 10000);
        QVERIFY(gallery.text().contains(problem));
        if (!problem.isEmpty())
            return;
        QFile written(folder + "/written");
        QTRY_VERIFY_WITH_TIMEOUT(written.exists(), 10000);
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QString arguments = rowTexts("arguments").join('\n').replace("BIN", folder);
        QCOMPARE(QString::fromUtf8(written.readAll()), arguments + '\n');
    }

    void logNamesTheOriginalFile()
    {
        resources->shell("echo nothing >> fonts.ini");
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        gallery.session.view.setPage("Log");
        QTRY_VERIFY_WITH_TIMEOUT(!gallery.session.log.records().isEmpty(), 10000);
        const QVariantMap record = gallery.session.log.records().constFirst().toMap();
        QVERIFY2(record["text"].toString().startsWith(resources->path + "/fonts.ini:"),
                 qPrintable(record["text"].toString()));
        QCOMPARE(record["source"].toString(), QString("platform"));
        QCOMPARE(record["severity"].toString(), QString("warning"));
    }

    void iconFileTellsItsSize_data() { addRows({"file", "content", "size", "viewBox"}); }

    void iconFileTellsItsSize()
    {
        const QString base64 = "base64:";
        const QString content = row()["content"].toString();
        writeFile(fixture->path(row()["file"].toString()),
                  content.startsWith(base64) ? QByteArray::fromBase64(content.mid(base64.size()).toLatin1())
                                             : content.toUtf8());
        const Gallery::IconFile icon = Gallery::IconFile::read(fixture->path(), row()["file"].toString());
        QCOMPARE(icon.size, row()["size"].toString());
        QCOMPARE(icon.viewBox, row()["viewBox"].toString());
    }

    void iconsAreShownInAllContextsAndMarked()
    {
        writeFile(resources->path + "/icons/mapping.json",
                  R"({"home": {"defaultContext": "day/home.svg"},
                      "wifi": {"defaultContext": "day/lost.svg", "nightMode": "night/wifi.svg"}})");
        GalleryWindow gallery(TarnisUi::directory(resources->path));
        gallery.session.view.setPage("Icons");
        QVERIFY(QTest::qWaitForWindowActive(gallery.window, 10000));
        const QString home = "Ui.icons.getIconPathAsFileUrl(\"home\", \"nightMode\")";
        click(gallery, home);
        QCOMPARE(QGuiApplication::clipboard()->text(), home);
        const int textsPerMark = 2; // of the mark and of its label
        QTRY_COMPARE_WITH_TIMEOUT(gallery.text().count("\nmissing"), textsPerMark, 10000);
        QCOMPARE(gallery.text().count("\ndefault stands in"), textsPerMark);
        QCOMPARE(gallery.session.catalogs.icons.aliases("night/WIFI"), QStringList("wifi"));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryFindingsTest>(argc, argv);
}

#include "GalleryFindingsTest.moc"
