// What the engines of a host share, and the life of their handlers.

#include "QmlHost/TarnisUi.h"
#include "tests/support/HostPage.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

#include <optional>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

namespace Tests
{

namespace
{

// One more screen of the platform, which is the primary one.
class PrimaryScreen : public QPlatformScreen
{
public:
    explicit PrimaryScreen(const QSize& screenSize)
        : size(screenSize)
    {
        QWindowSystemInterface::handleScreenAdded(this, true);
    }

    QRect geometry() const override { return {QPoint(), size}; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }

private:
    const QSize size;
};

// Qt deletes it.
struct Removal {
    void operator()(PrimaryScreen* screen) const { QWindowSystemInterface::handleScreenRemoved(screen); }
};

} // namespace

class QmlHostEngineTest : public QObject
{
    Q_OBJECT

    std::optional<ResourceCopy> resources;

private Q_SLOTS:
    void init() { resources.emplace(); }
    void cleanup() { resources.reset(); }

    void languageIsSharedByAllEngines()
    {
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        ui.setLanguage("fr");
        QVERIFY(ui.waitUntilReady(10000));
        const Page first(lookups);
        const Page second(lookups
                          + "property var names: [Ui.language].concat(Ui.languages)\n"
                            "function choose() { Ui.language = 'de' }");
        QCOMPARE(first["all"].toString(), resources->lookups("Annuler"));
        second.call("choose");
        QCOMPARE(first["all"].toString(), resources->lookups("Abbrechen"));
        QCOMPARE(second["names"].toStringList(), (QStringList{"de", "de", "de_AT", "en", "fr", "ja"}));
    }

    void enginesKeepTheUiThatTheyHave()
    {
        const ResourceCopy others;
        others.shell("paint colors.ini");
        TarnisUi first(TarnisUi::directory(resources->path));
        TarnisUi second(TarnisUi::directory(others.path));
        QVERIFY(first.waitUntilReady(10000) && second.waitUntilReady(10000));
        first.publish();
        Page page(lookups);
        second.publish();
        const Page later(lookups);
        QCOMPARE(later["color"].toString(), QString("#fe01fd"));
        page.load(lookups + "property bool isLoadedLater: true");
        QCOMPARE(page["color"].toString(), QString("#1f2a37"));
    }

    void handlersThatScriptsKeepStayAlive()
    {
        TarnisUi ui(TarnisUi::directory(resources->path));
        ui.publish();
        QVERIFY(ui.waitUntilReady(10000));
        Page page(lookups
                  + "property var kept\n"
                    "Component.onCompleted: kept = [Ui.colors, Ui.fonts, Ui.dimensions, Ui.icons, Ui.texts]\n"
                    "function look() { return [kept[0].getColor('Day', 'Text'), kept[1].getFontFamily('Text'), "
                    "kept[2].uiElementDimensions['Button/height'], kept[3].getIconPath('home').length > 0, "
                    "kept[4].translatedTexts['text://Button/Cancel']].join() }\n"
                    "function drop() { kept = [] }");
        int destroyed = 0;
        for (const QVariant& kept : page["kept"].toList())
            connect(kept.value<QObject*>(), &QObject::destroyed, [&destroyed] { ++destroyed; });
        for (const QString color : {"#fe01fd", "#fe01fe", "#1f2a37"}) {
            resources->shell("for f in *.ini dimensions/* texts/* icons/mapping.json; do sed -i s/xyz/xyz/ $f; done; "
                             "sed -i '/Day/,/Night/s/^Text=.*/Text="
                             + color + "/' colors.ini; echo >> icons/mapping.json");
            QTRY_COMPARE_WITH_TIMEOUT(page["color"].toString(), color, 10000);
            page.engine.collectGarbage();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        ui.setLanguage("de"); // old handlers do not follow it
        QCOMPARE(page.call("look").toString(), QString("#1f2a37,Inter,48,true,Cancel"));
        QCOMPARE(destroyed, 0);
        page.call("drop");
        page.engine.collectGarbage();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(destroyed, 5);
    }

    void primaryScreenIsFollowedAlsoWhenThereIsNoneForAWhile()
    {
        std::optional<TarnisUi> ui(std::in_place, TarnisUi::directory(resources->path));
        ui->publish();
        QVERIFY(ui->waitUntilReady(10000));
        const Page page(lookups + "property var fonts: Ui.fonts; property var dimensions: Ui.dimensions");
        const auto heightOn = [this](const char* display) {
            const QString path = resources->path + "/dimensions/" + display + ".ini";
            return QSettings(path, QSettings::IniFormat).value("Button/height").toInt();
        };
        auto* const fonts = page["fonts"].value<QObject*>();
        auto* const dimensions = page["dimensions"].value<QObject*>();
        std::unique_ptr<PrimaryScreen, Removal> screen(new PrimaryScreen({800, 480}));
        QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(800, 480));
        QVERIFY(page["fonts"].value<QObject*>() != fonts && page["dimensions"].value<QObject*>() != dimensions);
        QCOMPARE(page["height"].toInt(), heightOn("800x480"));
        std::unique_ptr<PrimaryScreen, Removal> other(new PrimaryScreen({1280, 800}));
        QCOMPARE(page["height"].toInt(), heightOn("1280x800"));
        other.reset();
        QCOMPARE(page["height"].toInt(), heightOn("800x480"));
        screen.reset();
        QWindowSystemInterface::handleScreenRemoved(QGuiApplication::primaryScreen()->handle());
        QVERIFY(QGuiApplication::primaryScreen() == nullptr);
        QCOMPARE(page["height"].toInt(), heightOn("800x480"));
        screen.reset(new PrimaryScreen({1024, 600}));
        QCOMPARE(page["height"].toInt(), heightOn("1024x600"));
        ui.reset();
        other.reset(new PrimaryScreen({800, 480})); // the engine lives longer than the host
        QCOMPARE(page["family"].toString(), QString("Inter"));
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    // Never deleted: the platform would remove its own screen once more.
    static const auto* const application = new QGuiApplication(argc, argv);
    Q_UNUSED(application)
    Tests::QmlHostEngineTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "QmlHostEngineTest.moc"
