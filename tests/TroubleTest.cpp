// Files that change under the feet of the library, and events at the worst of times.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <climits>
#include <cmath>
#include <functional>
#include <future>
#include <linux/capability.h>
#include <optional>
#include <random>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

// What the commands of the rows are made of; without IFS, a variable stays one word.
const QByteArray shellFunctions =
    "exec 2> /dev/null; set -f; IFS=;"
    "files() { mkdir $D; printf '[G]\\nk=1\\nl=2\\n' > $D/c.ini; printf '{\"k\": \"1\"}' > $D/en.json; : > $D/i.svg; };"
    "gone() { umount $D; chmod 700 $D; rm -rf $D; };"
    "each() { for F in $D/c.ini $D/en.json $D/i.svg; do eval $1; done; };"
    // Where mounting is refused, a limit and permissions stand in for a full and then read-only file system.
    "full() { mount --make-rprivate / && mount -t tmpfs -o size=16k none $D || { ulimit -f 16; trap '' XFSZ; };"
    "files; each 'yes \"; c\" >> $F'; mount -o remount,ro $D || chmod -R a-w $D; };";

// The directory, percent-encoded; what befalls it; then colour, dimension, text, icon; what is said of each INI file,
// and of the text file where that differs.
const Rows troubles{
    "d | : | 1,1,1,found",
    "d | each 'sed s/1/2/ $F > $D/n; mv $D/n $F' | 2,2,2,found",
    "d | each ': > $F' | ,,,found || $:1:1: illegal value",
    "d | each 'rm $F' | ,,, | Cannot read \"$\": No such file or directory",
    "d | each 'rm $F; mkdir -m 0 $F' | ,,,found | Cannot read \"$\": Not a regular file",
    // Without permissions, as opening it would be said.
    "d | each 'rm $F; mkfifo -m 0 $F' | ,,,found | Cannot read \"$\": Not a regular file",
    "d | each 'ln -sf /dev/zero $F' | ,,,found | Cannot read \"$\": Not a regular file",
    "d | each 'ln -sf /proc/self/mem $F' | ,,,found | Cannot read \"$\": Input/output error",
    "d | each 'rm $F; ln -s $F $F' | ,,, | Cannot read \"$\": Too many levels of symbolic links",
    "d | chmod 0 $D | ,,, | Cannot read \"$\": Permission denied",
    "d | rm -r $D; : > $D | ,,, | Cannot read \"$\": Not a directory",
    "d | full | 1,1,,found || $:1:11: garbage at the end of the document",
    "%20%0A%25%251%25n%22%7C%5C$D%C3%A9%20 | each 'chmod 0 $F' | ,,,found | Cannot read \"$\": Permission denied",
    ("%20%0A%25%251%25n%22%7C%5C$D%C3%A9%20 | each 'truncate -s -3 $F' | 1,1,,found "
     "| $:3: neither a comment, nor [group], nor key=value: \"l\" | $:1:8: unterminated string"),
    "%FF%C3 | : | ,,, | Cannot read \"$\": No such file or directory",
};

} // namespace

class TroubleTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;

    static void shell(const QString& command)
    {
        QCOMPARE(std::system(shellFunctions + command.toUtf8() + "; true"), 0);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir::setCurrent(directory.path());
        for (int number = 0; number < 8; ++number)
            writeFile(QString::number(number), "[G]\nn=" + QByteArray::number(number));
        writeFile("en.json", "{\"k\": \"en\"}");
        writeFile("de.json", "{\"k\": \"de\"}");
    }

    // Ends a test that waits for a FIFO or reads a device.
    void init() { alarm(60); }

    void troubleWithFilesEmptiesWhatTheyHeldAndIsSaidOnce_data() { addRows(troubles); }

    void troubleWithFilesEmptiesWhatTheyHeldAndIsSaidOnce()
    {
        const auto [name, trouble, answers, iniRecord, textRecord] = cells<5>();
        const QByteArray rawName = QByteArray::fromPercentEncoding(name.toUtf8());
        const QString path = directory.filePath(QFile::decodeName(rawName));
        const QString ini = path + "/c.ini";
        qputenv("D", directory.path().toUtf8() + '/' + rawName);
        shell("files");
        const auto end = qScopeGuard([] { shell("gone"); });
        LogRecorder log;
        const TarnisColorHandler colors(ini);
        const QJsonObject contexts{{"defaultContext", QFile::decodeName(rawName) + "/i.svg"}};
        const TarnisIconHandler icons(directory.path(), QJsonDocument(QJsonObject{{"i", contexts}}).toJson());
        TarnisElementDimensionHandler dimensions({});
        TextManager manager(path, "en");
        const TarnisTextHandler texts(manager);
        const auto load = [&] {
            manager.setLanguage("en");
            dimensions.loadUiElementDimensions({QSize(), ini});
            const QStringList found{TarnisColorHandler(ini).getColor("G", "k"),
                                    dimensions.uiElementDimensions().value("G/k").toString(),
                                    texts.translatedTexts().value("k").toString(), icons.getIconPathAsFileUrl("i")};
            return found.join(',').replace("file:" + path + "/i.svg", "found");
        };
        const QString before = load();
        shell(trouble);
        QCOMPARE(colors.getColor("G", "k"), before.section(',', 0, 0));
        log.take();
        QCOMPARE(load(), answers);
        QStringList expected{QString(textRecord.isEmpty() ? iniRecord : textRecord).replace('$', path + "/en.json"),
                             QString(iniRecord).replace('$', ini), QString(iniRecord).replace('$', ini)};
        expected.removeAll("");
        QCOMPARE(log.take().filter("platform.").replaceInStrings(QRegularExpression("^.*?: "), ""), expected);
        shell("gone; files");
        QCOMPARE(load(), before);
    }

    void fileThatIsReplacedAllTheTimeIsGoodOrNothing()
    {
        shell("mkfifo fifo");
        auto owner = std::async(std::launch::async, [] {
            const char* targets[] = {"0", "fifo", "0", ".", "0", "none"};
            bool isRight = true;
            for (int turn = 0; turn < 20000; ++turn)
                isRight &= symlink(targets[turn % 6], "next") == 0 && rename("next", "x.ini") == 0;
            return isRight;
        });
        LogRecorder log;
        int times[2] = {};
        while (owner.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
            const bool isGood = IniFileManager("x.ini", nullptr).getValueString("G", "n", "") == "0";
            QCOMPARE(log.take().filter("Cannot read \"x.ini\": ").size(), isGood ? 0 : 1);
            ++times[isGood];
        }
        QVERIFY(owner.get() && times[0] > 0 && times[1] > 0);
    }

    void stormOfEventsLeavesTheNearestSizeAndTheLanguage()
    {
        constexpr unsigned seed = 1;
        std::mt19937 random(seed);
        const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
        const auto coordinate = [&] {
            const int choices[] = {INT_MIN, INT_MAX, 0, static_cast<int>(random()), below(4096), below(4096)};
            return choices[below(6)];
        };
        QList<QPair<QSize, QString>> sizes;
        std::optional<TarnisElementDimensionHandler> dimensions;
        TextManager manager(".", "en");
        std::optional<TarnisTextHandler> texts[4];
        for (int step = 0; step < 100000; ++step) {
            const QByteArray place = QString("seed %1, step %2").arg(seed).arg(step).toUtf8();
            if (step % 256 == 0) {
                sizes.clear();
                for (int number = 0; number < 8; ++number)
                    sizes.append({{coordinate(), coordinate()}, QString::number(number)});
                dimensions.emplace(sizes);
            }
            // No QRect is as wide as INT_MIN.
            const QPoint corner(qMax(coordinate(), -INT_MAX), qMax(coordinate(), -INT_MAX));
            const auto distance = [&corner](const QSize& size) {
                return std::hypot(static_cast<long double>(size.width()) - corner.x(),
                                  static_cast<long double>(size.height()) - corner.y());
            };
            dimensions->onScreenGeometryChanged({QPoint(1, 1), corner});
            const auto& picked = sizes[dimensions->uiElementDimensions().value("G/n").toInt()];
            bool isNearest = dimensions->nearestNeighbourScreenSize({corner.x(), corner.y()}) == picked;
            // No more than what doubles are off at the greatest distance; of equal sizes the first.
            for (const auto& other : sizes) {
                isNearest &= distance(picked.first) <= distance(other.first) + 1e-5L;
                isNearest &= picked.first != other.first || picked.second <= other.second;
            }
            QVERIFY2(isNearest, place);
            if (below(16) != 0)
                continue;
            texts[below(4)].emplace(manager);
            texts[below(4)].reset();
            const QString language = below(2) == 0 ? "en" : "de";
            manager.setLanguage(language);
            for (const auto& handler : texts)
                QVERIFY2(!handler || handler->translatedTexts() == (QVariantMap{{"k", language}}), place);
        }
    }

    void signalsOfAnotherThreadAreHandledOnOnesOwn()
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

    void handlerMayBeDeletedByWhoeverHearsItsSignal()
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
        // Qt keeps from the message handler what is said while it runs.
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

int main(int argc, char* argv[])
{
    // What commands mount, nobody else sees; and but for this, root reads every file, whatever its permissions.
    unshare(CLONE_NEWNS);
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2];
    syscall(SYS_capget, &header, data);
    data[0].effective &= data[0].permitted &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    syscall(SYS_capset, &header, data);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    TroubleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TroubleTest.moc"
