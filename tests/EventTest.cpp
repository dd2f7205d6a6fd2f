// Events that come in great numbers, from another thread, or while the library is at work.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QScreen>
#include <QtTest>

#include <climits>
#include <cmath>
#include <functional>
#include <future>
#include <optional>
#include <random>

namespace Tests
{

namespace
{

// Allows for the rounding error of doubles at the greatest distance. Of equal sizes the first must be picked.
bool isAtLeastAsNear(const QPair<QSize, QString>& picked, const QPair<QSize, QString>& other, const QPoint& corner)
{
    const auto distance = [&corner](const QSize& size) {
        return std::hypot(static_cast<long double>(size.width()) - corner.x(),
                          static_cast<long double>(size.height()) - corner.y());
    };
    return distance(picked.first) <= distance(other.first) + 1e-5L
        && (picked.first != other.first || picked.second <= other.second);
}

} // namespace

class EventTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;

public:
    static void initMain() { qputenv("QT_QPA_PLATFORM", "minimal"); }

private Q_SLOTS:
    // Dimension file N holds the number N.
    void initTestCase()
    {
        QDir::setCurrent(directory.path());
        for (int number = 0; number < 8; ++number)
            writeFile(QString::number(number), "[G]\nn=" + QByteArray::number(number));
        writeFile("en.json", R"({"k": "en"})");
        writeFile("de.json", R"({"k": "de"})");
    }

    void stormOfScreenChangesLeavesTheNearestDisplaySize()
    {
        std::mt19937 random(1);
        const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
        const auto coordinate = [&] {
            const int choices[] = {INT_MIN, INT_MAX, 0, static_cast<int>(random()), below(4096), below(4096)};
            return choices[below(6)];
        };
        for (int round = 0; round < 400; ++round) {
            QList<QPair<QSize, QString>> sizes;
            for (int number = 0; number < 8; ++number)
                sizes.append({{coordinate(), coordinate()}, QString::number(number)});
            TarnisElementDimensionHandler handler(sizes);
            for (int step = 0; step < 250; ++step) {
                // A QRect cannot be as wide as INT_MIN.
                const QPoint corner(qMax(coordinate(), -INT_MAX), qMax(coordinate(), -INT_MAX));
                handler.onScreenGeometryChanged({QPoint(1, 1), corner});
                const auto& picked = sizes[handler.uiElementDimensions().value("G/n").toInt()];
                const QByteArray place = QString("round %1, step %2").arg(round).arg(step).toUtf8();
                QVERIFY2(handler.nearestNeighbourScreenSize({corner.x(), corner.y()}) == picked, place);
                for (const auto& other : sizes)
                    QVERIFY2(isAtLeastAsNear(picked, other, corner), place);
            }
        }
    }

    void stormOfLanguagesReachesEveryHandler()
    {
        std::mt19937 random(1);
        TextManager manager(".", "en");
        std::optional<TarnisTextHandler> handlers[4];
        for (int step = 0; step < 6250; ++step) {
            handlers[random() % 4].emplace(manager);
            handlers[random() % 4].reset();
            const QString language = random() % 2 == 0 ? "en" : "de";
            manager.setLanguage(language);
            for (const auto& handler : handlers)
                QVERIFY2(!handler || handler->translatedTexts() == (QVariantMap{{"k", language}}),
                         "step " + QByteArray::number(step));
        }
    }

    void signalsOfAnotherThreadAreHandledInTheThreadOfTheHandler()
    {
        std::optional<TextManager> manager(std::in_place, ".", "en");
        const TarnisTextHandler texts(*manager);
        std::optional<TarnisTextHandler> deleted(*manager);
        const TarnisElementDimensionHandler dimensions({{{1, 1}, "0"}, {{4000, 4000}, "1"}});
        QSignalSpy textsChanged(&texts, &TarnisTextHandler::translatedTextsChanged);
        QSignalSpy dimensionsChanged(&dimensions, &TarnisElementDimensionHandler::uiElementDimensionsChanged);
        std::async(std::launch::async, [&manager] {
            Q_EMIT manager->languageReloaded();
            Q_EMIT QGuiApplication::primaryScreen()->geometryChanged({0, 0, 4000, 4000});
        }).wait();
        QCOMPARE(textsChanged.count() + dimensionsChanged.count(), 0);
        deleted.reset();
        QCoreApplication::processEvents();
        manager.reset();
        QCOMPARE(textsChanged.count(), 1);
        QCOMPARE(texts.translatedTexts(), (QVariantMap{{"k", "en"}}));
        QCOMPARE(dimensions.uiElementDimensions(), (QVariantMap{{"G/n", 1}}));
    }

    void handlerMayBeDeletedByAReceiverOfItsSignal()
    {
        TextManager manager(".", "en");
        auto* texts = new TarnisTextHandler(manager);
        connect(texts, &TarnisTextHandler::translatedTextsChanged, [&texts] { delete std::exchange(texts, nullptr); });
        const TarnisTextHandler later(manager);
        manager.setLanguage("de");
        QVERIFY(texts == nullptr);
        QCOMPARE(later.translatedTexts(), (QVariantMap{{"k", "de"}}));
        auto* dimensions = new TarnisElementDimensionHandler({{{1, 1}, "0"}, {{4000, 4000}, "1"}});
        connect(dimensions, &TarnisElementDimensionHandler::uiElementDimensionsChanged,
                [&dimensions] { delete std::exchange(dimensions, nullptr); });
        dimensions->onScreenGeometryChanged({0, 0, 4000, 4000});
        QVERIFY(dimensions == nullptr);
    }

    void messageHandlerMayAskTheLibrary()
    {
        const TarnisColorHandler colors("0");
        TextManager manager(".", "en");
        const TarnisTextHandler texts(manager);
        static QStringList heard;
        static std::function<QString()> ask;
        ask = [&] { return colors.getColor("G", "n") + colors.getColor("", "") + manager.getText("k", "de"); };
        // Qt does not pass on to the message handler what is logged while it runs.
        const auto listen = [](QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
            heard += {text, ask()};
        };
        const QtMessageHandler previous = qInstallMessageHandler(listen);
        colors.getColor("b", "a");
        manager.setLanguage("xx");
        const QString other = manager.getText("k", "yy");
        qInstallMessageHandler(previous);
        QCOMPARE(other, "en");
        QCOMPARE(heard.join('\n'),
                 "No color for key \"a\" in group \"b\" !\n0de\n"
                 "Cannot read \"./xx.json\": No such file or directory\n0de\n"
                 "Cannot read \"./yy.json\": No such file or directory\n0de");
        QCOMPARE(texts.translatedTexts(), (QVariantMap{{"k", "en"}}));
    }
};

} // namespace Tests

QTEST_MAIN(Tests::EventTest)
#include "EventTest.moc"
