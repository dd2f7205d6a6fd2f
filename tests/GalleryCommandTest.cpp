// What the gallery prints, draws and answers when it is called from the command line.

#include "tests/support/DataRows.h"
#include "tests/support/GalleryFixture.h"

#include <QSettings>
#include <QTcpServer>

namespace Tests
{

namespace
{

QJsonObject readJson(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

// Inserts every value below a name that is made of the names on the way to it.
void flatten(const QString& name, const QJsonValue& value, QVariantMap& flat)
{
    const QJsonObject members = value.toObject();
    if (!value.isObject())
        flat.insert(name, value.toVariant());
    for (auto member = members.begin(); member != members.end(); ++member)
        flatten(name + '/' + member.key(), member.value(), flat);
}

// The answers for the smallest display, read with QSettings instead of the readers under test. Both read the sample
// files in the same way.
QVariantMap expectedDump(const QString& directory, const QString& language)
{
    QVariantMap expected;
    const QSettings colors(directory + "/colors.ini", QSettings::IniFormat);
    for (const QString& key : colors.allKeys())
        expected.insert("/colors/" + key, colors.value(key).toString());
    const QSettings fonts(directory + "/fonts.ini", QSettings::IniFormat);
    for (const QString& key : fonts.allKeys()) {
        if (key.endsWith("/Family"))
            expected.insert("/fontFamilies/" + key.section('/', 0, 0), fonts.value(key).toString());
        else
            expected.insert("/fontPointSizes/" + key, 72.0 / 96.0 * fonts.value(key).toDouble());
    }
    const QSettings dimensions(directory + "/dimensions/800x480.ini", QSettings::IniFormat);
    for (const QString& key : dimensions.allKeys())
        expected.insert("/dimensions/" + key, dimensions.value(key).toDouble());
    QVariantMap icons;
    flatten("/icons", readJson(directory + "/icons/mapping.json"), icons);
    for (auto icon = icons.begin(); icon != icons.end(); ++icon)
        expected.insert(icon.key(), "file:" + directory + "/icons/" + icon.value().toString());
    for (const QString& name : {QString("en"), language.section('_', 0, 0), language})
        flatten("/texts", readJson(directory + "/texts/" + name + ".json"), expected);
    return expected;
}

} // namespace

class GalleryCommandTest : public QObject
{
    Q_OBJECT

    std::optional<GalleryFixture> fixture;

private Q_SLOTS:
    void init() { fixture.emplace(); }

    void dumpAgreesWithAnIndependentReadingOfTheFiles_data() { addRows({"language", "isService"}); }

    void dumpAgreesWithAnIndependentReadingOfTheFiles()
    {
        const QString language = row()["language"].toString();
        const bool isService = row()["isService"].toBool();
        if (isService)
            fixture->startModule(RESOURCES);
        const QStringList bus{"-u", "DISPLAY", isService ? "QT_FONT_DPI=96" : "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/no"};
        const QStringList command{TARNIS_GALLERY, "--dump", "--language", language};
        const QStringList directory = isService ? QStringList() : QStringList(RESOURCES);
        const Outcome outcome = run("env", bus + command + directory);
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
        QVariantMap found;
        flatten("", QJsonDocument::fromJson(outcome.output).object(), found);
        const QVariantMap expected = expectedDump(RESOURCES, language);
        QVERIFY(expected.size() > 300);
        for (const QString& name : found.keys() + expected.keys())
            QVERIFY2(found.value(name) == expected.value(name), qPrintable(name));
    }

    void withoutTheServiceNoTextsAreReadFromTheWorkingDirectory()
    {
        const Outcome outcome = run("env", {"-C", RESOURCES "/texts", TARNIS_GALLERY, "--dump"});
        QCOMPARE(outcome.exitStatus, 1);
        const QJsonObject answers = QJsonDocument::fromJson(outcome.output).object();
        QCOMPARE(answers["texts"], QJsonValue(QJsonObject()));
    }

    void pictureOfThePageColorsShowsEveryColorOfTheFile()
    {
        const QRgb first = 0x123456;
        const QRgb step = 0x010302;
        const QRgb end = first + 40 * step;
        QByteArray colors("[Marks]\n");
        for (QRgb mark = first; mark < end; mark += step)
            colors += QByteArray("KeyN=#N\n").replace("N", QByteArray::number(mark, 16));
        fixture->copyResources(); // without a banner, all colors fit into the window
        writeFile(fixture->path("colors.ini"), colors);
        fixture->startModule(fixture->path());
        run(TARNIS_GALLERY, {"--page", "Colors", "--screenshot", fixture->path("picture.png")});
        const QImage picture(fixture->path("picture.png"));
        for (QRgb mark = first; mark < end; mark += step)
            QVERIFY2(countPixels(picture, mark) > 4000, qPrintable(QString::number(mark, 16)));
    }

    void everyPageIsDrawnInEachDisplaySizeAndLanguageAndAFailedLookupIsReported()
    {
        fixture->copyResources();
        const QString keepTwoDisplaysAndLanguages = "cd $0 && rm dimensions/12*.ini texts/d*.json texts/fr.json";
        QCOMPARE(run("sh", {"-c", keepTwoDisplaysAndLanguages, fixture->path()}).exitStatus, 0);
        fixture->startModule(fixture->path());
        const Outcome good = run(TARNIS_GALLERY, {"--screenshot-all", fixture->path("all")});
        QVERIFY2(good.exitStatus == 0, good.errors);
        QSet<QByteArray> pictures;
        const QDir all(fixture->path("all"));
        for (const QString& name : all.entryList({"*-800x480-en.png", "*-800x480-ja.png", "*-1024x600-*.png"})) {
            QFile file(all.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const int before = pictures.size();
            pictures.insert(file.readAll());
            QVERIFY2(pictures.size() > before, qPrintable(name + " equals another picture"));
        }
        QCOMPARE(pictures.size(), 40);
        QVERIFY(QFile::remove(fixture->path("icons/day/wifi.svg")));
        const Outcome bad = run(TARNIS_GALLERY, {"--screenshot", fixture->path("one.png")});
        QCOMPARE(bad.exitStatus, 1);
        QVERIFY2(bad.errors.contains("wifi.svg"), bad.errors);
    }

    void themeOfTheCommandLineIsShown()
    {
        const QString picture = fixture->path("picture.png");
        for (const QString theme : {"light", "dark"}) {
            run(TARNIS_GALLERY, {RESOURCES, "--theme", theme, "--page", "Log", "--screenshot", picture});
            const int light = countPixels(QImage(picture), 0xffffff);
            const int dark = countPixels(QImage(picture), 0x14181d);
            QVERIFY2(theme == "light" ? light > 500000 : dark > 500000, qPrintable(theme));
        }
    }

    void incompletePictureIsReported()
    {
        QTcpServer silent; // the system accepts connections, but nobody answers
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        const QString image = "import QtQuick 2.15\nImage { source: 'http://localhost:%1/' }\n";
        const QString qml = writeFile(fixture->path("Waiting.qml"), image.arg(silent.serverPort()).toUtf8());
        const QString picture = fixture->path("picture.png");
        const Outcome outcome = run(TARNIS_GALLERY, {RESOURCES, "--qml", qml, "--screenshot", picture});
        QVERIFY2(outcome.exitStatus == 3, outcome.errors);
        QVERIFY2(outcome.errors.contains("picture.png: the page was not complete"), outcome.errors);
        QVERIFY(!QImage(picture).isNull());
    }

    void wrongUseIsRefusedInASentence_data()
    {
        addRows({"arguments", "isServiceRunning", "isScreenThere", "exitStatus", "message"});
    }

    void wrongUseIsRefusedInASentence()
    {
        if (row()["isServiceRunning"].toBool())
            fixture->startModule(RESOURCES);
        const QString display = row()["isScreenThere"].toBool() ? qgetenv("DISPLAY") : ":no";
        const Outcome outcome = run("env", QStringList{"DISPLAY=" + display, TARNIS_GALLERY} + rowTexts("arguments"));
        QCOMPARE(outcome.exitStatus, row()["exitStatus"].toInt());
        const QString message = "tarnis-gallery: " + row()["message"].toString();
        QVERIFY2(outcome.errors.contains(message.toUtf8()), outcome.errors);
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    return Tests::runGalleryTest<Tests::GalleryCommandTest>(argc, argv);
}

#include "GalleryCommandTest.moc"
