#include "Gallery/Catalogue.h"
#include "Gallery/GalleryView.h"
#include "Gallery/MessageLog.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QQmlApplicationEngine>
#include <QQmlProperty>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>

#include <optional>

namespace
{

// A page, a file that it shows, and an edit of it; but for texts, the colour #fe01fd appears.
const Rows edits{
    "Colours | colors.ini           | #0b7a75       | #fe01fd",
    "Icons   | icons/mapping.json   | day/alarm.svg | new.svg",
    "Icons   | icons/day/alarm.svg  | #1f2a37       | #fe01fd",
    "Texts   | texts/en.json        | \"Good\"      | \"Edited\"",
};
// A file and what is left of it; nothing: it is removed.
const Rows brokenFiles{
    "colors.ini         | [Day]\nAccent=#fe01fd\nBack",
    "icons/mapping.json | {\"home\": {",
    "texts/en.json      | {\"text://Air/Good\": \"G",
    "fonts.ini          |",
};
// Arguments, exit status, and the beginning of the message.
const Rows wrongUses{
    "--what        | 2 | Unknown option 'what'",
    "what --dump   | 2 | unexpected argument \"what\"",
    "--page x      | 2 | unknown page \"x\"; there are: Device, ",
    "--language x  | 2 | unknown language \"x\"; there are: de, de_AT, en, fr, ja",
    "--context x   | 2 | unknown context \"x\"; there are: defaultContext, nightMode",
    "--display 1x1 | 2 | unknown display size \"1x1\"; there are: 800x480, 1024x600, 1280x800",
    "--page Log    | 1 | no display to draw on",
    "--dump        | 1 | The service Module.Tarnis cannot be reached",
};

QJsonObject readJson(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return QJsonDocument::fromJson(file.readAll()).object();
}

// Every value below a name made of the names on the way to it.
void flatten(const QString& name, const QJsonValue& value, QVariantMap& flat)
{
    if (!value.isObject()) {
        flat.insert(name, value.toVariant());
        return;
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        flatten(name + '/' + member.key(), member.value(), flat);
}

// What a host on the smallest display must be given, read by other readers than those under test. The sample files
// hold nothing that the two read differently.
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

int count(const QImage& picture, QRgb color)
{
    const auto* pixels = reinterpret_cast<const QRgb*>(picture.constBits());
    return static_cast<int>(std::count(pixels, pixels + picture.sizeInBytes() / 4, color));
}

QList<QQuickItem*> itemsOf(const QQuickWindow& window)
{
    QList<QQuickItem*> items{window.contentItem()};
    for (int index = 0; index < items.size(); ++index)
        items += items.at(index)->childItems();
    return items;
}

} // namespace

class GalleryTest : public QObject
{
    Q_OBJECT

public:
    explicit GalleryTest(const QString& display)
        : display(display)
    {
    }

private:
    const QString display;
    PrivateBus bus;
    std::optional<TestProcess> module;
    std::optional<QProcess> gallery;
    std::optional<QTemporaryDir> directory;

    QString path(const QString& name) const { return directory->filePath(name); }

    void startModule(const QString& resources)
    {
        module.emplace(TARNIS_MODULE, QStringList{"--resources", resources});
        QVERIFY(module->firstLine().endsWith(resources));
    }

    // Opens the gallery's window on a copy of the sample resources.
    void startGallery(const QString& page)
    {
        QCOMPARE(run("cp", {"-r", QString(RESOURCES) + "/.", directory->path()}).exitStatus, 0);
        startModule(directory->path());
        gallery.emplace();
        gallery->start(TARNIS_GALLERY, {"--page", page});
    }

    static QImage screen()
    {
        return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
    }

    // The icon page from top to end, and back to the middle.
    static void scrollThrough(QQuickWindow& window, GalleryView& view)
    {
        const QList<QQuickItem*> items = itemsOf(window);
        const auto isGrid = [](QQuickItem* item) { return item->inherits("QQuickGridView"); };
        const auto found = std::find_if(items.begin(), items.end(), isGrid);
        QVERIFY(found != items.end());
        QQuickItem* grid = *found;
        auto* cells = grid->property("contentItem").value<QQuickItem*>();
        const int end = qRound(grid->property("contentHeight").toDouble() - grid->height());
        QVERIFY(end > 50000);
        for (int place = 0; place < end; place += qRound(grid->height())) {
            grid->setProperty("contentY", place);
            QCoreApplication::processEvents();
            QVERIFY(cells->childItems().size() > 20 && cells->childItems().size() < 500);
        }
        grid->setProperty("contentY", end / 2);
        view.reload();
        QCOMPARE(grid->property("contentY").toInt(), end / 2);
    }

    // Every page by the tab key.
    static void tabThrough(QQuickWindow& window, GalleryView& view)
    {
        for (const QString& page : view.pages) {
            view.setProperty("page", page);
            QTest::qWait(20); // the items of the page before go with the event loop
            QSet<QQuickItem*> reached;
            for (int tab = 0; tab < 30; ++tab) {
                QTest::keyClick(&window, Qt::Key_Tab);
                reached.insert(window.activeFocusItem());
            }
            for (QQuickItem* item : itemsOf(window)) {
                if (!item->isVisible() || !item->isEnabled() || !item->activeFocusOnTab())
                    continue;
                const bool isReached = std::any_of(reached.begin(), reached.end(), [item](QQuickItem* focused) {
                    return focused == item || item->isAncestorOf(focused);
                });
                QVERIFY2(isReached, qPrintable(page + item->metaObject()->className()));
                const QString name = item->inherits("QQuickAbstractButton")
                    ? item->property("text").toString()
                    : QQmlProperty(item, "Accessible.name", qmlContext(&window)).read().toString();
                QVERIFY2(!name.isEmpty(), item->metaObject()->className());
            }
        }
    }

private Q_SLOTS:
    void init() { directory.emplace(); }

    void cleanup()
    {
        if (gallery)
            gallery->kill();
        gallery.reset();
        module.reset();
        qputenv("DISPLAY", display.toUtf8());
    }

    void dumpEqualsAnIndependentReading_data() { addRows({"en", "de_AT", "ja"}); }

    void dumpEqualsAnIndependentReading()
    {
        const auto [language] = cells<1>();
        startModule(RESOURCES);
        qputenv("DISPLAY", "");
        const Outcome outcome = run(TARNIS_GALLERY, {"--dump", "--language", language});
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
        QVariantMap found;
        flatten("", QJsonDocument::fromJson(outcome.output).object(), found);
        const QVariantMap expected = expectedDump(RESOURCES, language);
        QVERIFY(expected.size() > 300);
        for (const QString& name : found.keys() + expected.keys())
            QVERIFY2(found.value(name) == expected.value(name), qPrintable(name));
    }

    void pictureHasTheColoursOfTheFile()
    {
        QByteArray colors("[Marks]\n");
        QList<QRgb> marks;
        for (QRgb mark = 0x123456; marks.size() < 40; mark += 0x010302) {
            colors += "Key" + QByteArray::number(marks.size()) + "=#" + QByteArray::number(mark, 16) + "\n";
            marks.append(0xFF000000 | mark);
        }
        writeFile(path("colors.ini"), colors);
        startModule(directory->path());
        run(TARNIS_GALLERY, {"--page", "Colours", "--screenshot", path("picture.png")});
        const QImage picture = QImage(path("picture.png")).convertToFormat(QImage::Format_RGB32);
        for (const QRgb mark : marks)
            QVERIFY2(count(picture, mark) > 4000, qPrintable(QString::number(mark, 16)));
    }

    void devicePageFollowsTheRealScreen()
    {
        startGallery("Device");
        // The header of the device in the colour Surface, beside its button: as high as the dimension file of the
        // display says.
        const auto headerHeight = [&] { return count(screen().copy(4, 0, 1, 800), 0xFFF9FBFC); };
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 76 - 2, 10000);
        QVERIFY(switchScreen(800, 480));
        QTRY_COMPARE_WITH_TIMEOUT(headerHeight(), 52 - 1, 10000);
        QVERIFY(switchScreen(1280, 800));
    }

    void editedFileIsSeen_data() { addRows(edits); }

    void editedFileIsSeen()
    {
        const auto [page, name, before, after] = cells<4>();
        startGallery(page);
        writeFile(path("icons/new.svg"),
                  "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 9 9\">"
                  "<rect width=\"9\" height=\"9\" fill=\"#fe01fd\"/></svg>");
        QImage drawn;
        QTRY_VERIFY_WITH_TIMEOUT(std::exchange(drawn, screen()) == screen() && count(drawn, 0xFFE4E8EC) > 1000, 10000);
        QCOMPARE(count(drawn, 0xFFFE01FD), 0);
        QCOMPARE(run("sed", {"-i", QString("s|%1|%2|").arg(before, after), path(name)}).exitStatus, 0);
        if (page == "Texts")
            QTRY_VERIFY_WITH_TIMEOUT(screen() != drawn, 2000);
        else
            QTRY_VERIFY_WITH_TIMEOUT(count(screen(), 0xFFFE01FD) > 20, 2000);
    }

    void brokenFileLeavesTheLastGoodViewAndIsSaid_data() { addRows(brokenFiles); }

    void brokenFileLeavesTheLastGoodViewAndIsSaid()
    {
        const auto [name, content] = cells<2>();
        startGallery("Colours");
        const QRgb accent = 0xFF0B7A75;
        const QRgb banner = 0xFFFDE7E7;
        QTRY_VERIFY_WITH_TIMEOUT(count(screen(), accent) > 4000, 10000);
        QCOMPARE(count(screen(), banner), 0);
        QFile::rename(path(name), path("kept"));
        if (!content.isEmpty())
            writeFile(path(name), content.toUtf8());
        QTRY_VERIFY_WITH_TIMEOUT(count(screen(), banner) > 1000, 5000);
        QVERIFY(count(screen(), accent) > 4000);
        QFile::remove(path(name));
        QFile::rename(path("kept"), path(name));
        QTRY_COMPARE_WITH_TIMEOUT(count(screen(), banner), 0, 5000);
    }

    void thousandsOfIconsNeedFewDelegatesKeepTheirPlaceAndAllIsReachedByKeyboard()
    {
        QJsonObject mapping;
        for (int number = 0; number < 9000; ++number)
            mapping.insert(QString("icon%1").arg(number), QJsonObject{{"defaultContext", "one.svg"}});
        writeFile(path("icons/mapping.json"), QJsonDocument(mapping).toJson());
        writeFile(path("icons/one.svg"), "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
        writeFile(path("colors.ini"), "[A]\nb=red\n");
        startModule(directory->path());
        MessageLog log;
        UiResources resources("en");
        Catalogue catalogue(resources);
        GalleryView view(resources, log);
        view.page = "Icons";
        resources.publish();
        qmlRegisterSingletonInstance("Tarnis", 1, 0, "Catalogue", &catalogue);
        qmlRegisterSingletonInstance("Tarnis", 1, 0, "View", &view);
        qmlRegisterSingletonInstance("Tarnis", 1, 0, "Log", &log);
        QQmlApplicationEngine engine(QUrl("qrc:/qml/Main.qml"));
        auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
        window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window));
        scrollThrough(*window, view);
        tabThrough(*window, view);
    }

    void everyPageIsPicturedAndAFailedLookupIsTold()
    {
        const QString copy = "cp -r $0/. $1 && cd $1 && rm dimensions/1*.ini texts/d*.json texts/fr.json";
        QCOMPARE(run("sh", {"-c", copy, RESOURCES, directory->path()}).exitStatus, 0);
        startModule(directory->path());
        const Outcome good = run(TARNIS_GALLERY, {"--screenshot-all", path("all")});
        QVERIFY2(good.exitStatus == 0, good.errors);
        QCOMPARE(QDir(path("all")).entryList({"*-800x480-en.png", "*-800x480-ja.png"}).size(), 18);
        QVERIFY(QFile::remove(path("icons/day/wifi.svg")));
        const Outcome bad = run(TARNIS_GALLERY, {"--screenshot", path("one.png")});
        QCOMPARE(bad.exitStatus, 1);
        QVERIFY(bad.errors.contains("wifi.svg"));
    }

    void wrongUseIsRefusedInASentence_data() { addRows(wrongUses); }

    void wrongUseIsRefusedInASentence()
    {
        const auto [arguments, status, message] = cells<3>();
        if (!message.startsWith("The service"))
            startModule(RESOURCES);
        if (message.startsWith("no display"))
            qputenv("DISPLAY", ":no");
        const Outcome outcome = run(TARNIS_GALLERY, arguments.split(' '));
        QCOMPARE(outcome.exitStatus, status.toInt());
        QVERIFY2(outcome.errors.contains("tarnis-gallery: " + message.toUtf8()), outcome.errors);
    }
};

int main(int argc, char* argv[])
{
    TestProcess server("Xvfb", {"-displayfd", "1", "-dpi", "96", "-screen", "0", "1280x800x24", "-nolisten", "tcp"});
    const QString display = ":" + server.firstLine();
    qputenv("DISPLAY", display.toUtf8());
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    GalleryTest test(display);
    return QTest::qExec(&test, argc, argv);
}

#include "GalleryTest.moc"
