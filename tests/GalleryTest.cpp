#include "tests/support/TestProcess.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <optional>

namespace
{

constexpr double dotsPerInch = 96.0;

QJsonObject readJson(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

// Another reader than the one under test. The sample files hold nothing that the two read differently.
QMap<QString, QString> readIni(const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
    QMap<QString, QString> entries;
    for (const QString& key : settings.allKeys())
        entries.insert(key, settings.value(key).toString());
    return entries;
}

QJsonObject nested(const QJsonObject& object, const QString& group, const QString& key, const QJsonValue& value)
{
    QJsonObject result = object;
    QJsonObject members = result.value(group).toObject();
    members.insert(key, value);
    result.insert(group, members);
    return result;
}

// What a host on the smallest display must be given.
QJsonObject expectedDump(const QString& directory, const QString& language)
{
    QJsonObject colors;
    const QMap<QString, QString> colorFile = readIni(directory + "/colors.ini");
    for (auto entry = colorFile.begin(); entry != colorFile.end(); ++entry)
        colors = nested(colors, entry.key().section('/', 0, 0), entry.key().section('/', 1), entry.value());
    QJsonObject families;
    QJsonObject sizes;
    const QMap<QString, QString> fontFile = readIni(directory + "/fonts.ini");
    for (auto entry = fontFile.begin(); entry != fontFile.end(); ++entry) {
        const QString group = entry.key().section('/', 0, 0);
        const QString key = entry.key().section('/', 1);
        if (key == "Family")
            families.insert(group, entry.value());
        else
            sizes = nested(sizes, group, key, 72.0 / dotsPerInch * entry.value().toDouble());
    }
    QJsonObject dimensions;
    const QMap<QString, QString> dimensionFile = readIni(directory + "/dimensions/800x480.ini");
    for (auto entry = dimensionFile.begin(); entry != dimensionFile.end(); ++entry)
        dimensions.insert(entry.key(), entry.value().toInt());
    QJsonObject icons;
    const QJsonObject mapping = readJson(directory + "/icons/mapping.json");
    for (const QString& alias : mapping.keys()) {
        const QJsonObject contexts = mapping.value(alias).toObject();
        for (const QString& context : contexts.keys())
            icons = nested(icons, alias, context, "file:" + directory + "/icons/" + contexts.value(context).toString());
    }
    QJsonObject texts = readJson(directory + "/texts/en.json");
    for (const QString& fallback : {language.section('_', 0, 0), language}) {
        const QJsonObject translated = readJson(directory + "/texts/" + fallback + ".json");
        for (const QString& url : translated.keys())
            texts.insert(url, translated.value(url));
    }
    return {{"colors", colors},         {"fontFamilies", families}, {"fontPointSizes", sizes},
            {"dimensions", dimensions}, {"icons", icons},           {"texts", texts}};
}

} // namespace

class GalleryTest : public QObject
{
    Q_OBJECT

private:
    PrivateBus bus;
    std::optional<TestProcess> module;
    std::optional<TestProcess> screen;
    QTemporaryDir directory;

    void startModule(const QString& resources)
    {
        module.emplace(TARNIS_MODULE, QStringList{"--resources", resources});
        QVERIFY(module->firstLine().endsWith(resources));
    }

    QImage screenshot()
    {
        screen.emplace("Xvfb", QStringList{"-displayfd", "1", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
        qputenv("DISPLAY", ":" + screen->firstLine().toUtf8());
        // Qt Quick's pixmap cache and Qt's bus thread hold memory until the process ends. The dumps are checked for
        // leaks.
        qputenv("ASAN_OPTIONS", "detect_leaks=0");
        const Outcome outcome = run(TARNIS_GALLERY, {"--screenshot", directory.filePath("picture.png")});
        if (outcome.exitStatus != 0)
            qWarning("%s", outcome.errors.constData());
        return QImage(directory.filePath("picture.png"));
    }

private Q_SLOTS:
    void init()
    {
        qunsetenv("ASAN_OPTIONS");
        qunsetenv("QT_QPA_PLATFORM");
        module.reset();
    }

    void dumpEqualsAnIndependentReading_data()
    {
        QTest::addColumn<QString>("language");
        for (const char* language : {"en", "de_AT", "ja", "xx"})
            QTest::newRow(language) << language;
    }

    void dumpEqualsAnIndependentReading()
    {
        QFETCH(QString, language);
        startModule(RESOURCES);
        const Outcome outcome = run(TARNIS_GALLERY, {"--dump", "--language", language});
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
        const QJsonObject found = QJsonDocument::fromJson(outcome.output).object();
        const QJsonObject expected = expectedDump(RESOURCES, language);
        for (const QString& part : expected.keys()) {
            QVERIFY(!expected.value(part).toObject().isEmpty());
            QCOMPARE(found.value(part), expected.value(part));
        }
        QCOMPARE(found.keys(), expected.keys());
    }

    void pictureHasTheColoursOfTheFile()
    {
        constexpr int count = 40;
        QByteArray colors("[Marks]\n");
        for (int number = 0; number < count; ++number)
            colors +=
                "Key" + QByteArray::number(number) + "=#" + QByteArray::number(0x123456 + 0x010302 * number, 16) + "\n";
        writeFile(directory.filePath("colors.ini"), colors);
        startModule(directory.path());
        const QImage picture = screenshot();
        QHash<QRgb, int> pixels;
        QList<QRgb> order;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (++pixels[picture.pixel(x, y)] == 1)
                    order.append(picture.pixel(x, y));
            }
        }
        int last = -1;
        for (int number = 0; number < count; ++number) {
            const QRgb mark = 0xFF123456 + 0x010302 * number;
            QVERIFY2(pixels.value(mark) >= 2000, qPrintable(QString::number(mark, 16)));
            QVERIFY(order.indexOf(mark) > last);
            last = order.indexOf(mark);
        }
    }

    void withoutServiceItSaysSoAndStillDraws()
    {
        const Outcome outcome = run(TARNIS_GALLERY, {"--dump"});
        QCOMPARE(outcome.exitStatus, 1);
        QVERIFY(outcome.errors.contains("tarnis-gallery: The service Module.Tarnis cannot be reached"));
        QVERIFY(QJsonDocument::fromJson(outcome.output).object().value("colors").toObject().isEmpty());
        const QImage picture = screenshot();
        QVERIFY(picture.width() >= 1280 && picture.height() > 100);
    }

    void wrongUsageIsRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("unknown option") << QStringList{"--what"};
        QTest::newRow("stray argument") << QStringList{"what", "--dump"};
    }

    void wrongUsageIsRefused()
    {
        QFETCH(QStringList, arguments);
        qputenv("QT_QPA_PLATFORM", "minimal");
        const Outcome outcome = run(TARNIS_GALLERY, arguments);
        QCOMPARE(outcome.exitStatus, 2);
        QVERIFY(outcome.errors.contains("tarnis-gallery: ") && outcome.errors.contains("what"));
    }
};

QTEST_GUILESS_MAIN(GalleryTest)
#include "GalleryTest.moc"
