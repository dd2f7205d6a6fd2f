// Files that change or cannot be read while the library is using them.

#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/DataRows.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>

#include <atomic>
#include <future>
#include <linux/capability.h>
#include <sched.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Tests
{

class TroubleTest : public QObject
{
    Q_OBJECT

    QTemporaryDir directory;

    // Runs a command, which may use the functions of functions.sh.
    static void shell(const QString& command)
    {
        QCOMPARE(std::system(". " TEST_DATA "/TroubleTest/functions.sh; " + command.toUtf8() + "; true"), 0);
    }

private Q_SLOTS:
    void initTestCase() { QDir::setCurrent(directory.path()); }

    void fileTroubleLeavesNoOldAnswersAndOneRecordEach_data()
    {
        addRows({"directory", "trouble", "answers", "records"});
    }

    void fileTroubleLeavesNoOldAnswersAndOneRecordEach()
    {
        const QByteArray rawName = QByteArray::fromPercentEncoding(row()["directory"].toString().toUtf8());
        const QString name = QFile::decodeName(rawName);
        const QString path = directory.filePath(name);
        qputenv("D", directory.path().toUtf8() + '/' + rawName);
        shell("files");
        const auto end = qScopeGuard([] { shell("gone"); });
        LogRecorder log;
        const TarnisColorHandler oldColors(path + "/c.ini");
        const QJsonObject contexts{{"defaultContext", name + "/i.svg"}};
        const TarnisIconHandler icons(directory.path(), QJsonDocument(QJsonObject{{"i", contexts}}).toJson());
        TarnisElementDimensionHandler dimensions({});
        TextManager manager(path, "en");
        const TarnisTextHandler texts(manager);
        const auto load = [&] {
            manager.setLanguage("en");
            dimensions.loadUiElementDimensions({QSize(), path + "/c.ini"});
            return QVariantMap{{"color", TarnisColorHandler(path + "/c.ini").getColor("G", "k")},
                               {"dimension", dimensions.uiElementDimensions().value("G/k").toString()},
                               {"text", texts.translatedTexts().value("k").toString()},
                               {"icon", icons.getIconPathAsFileUrl("i").replace(path, "DIR")}};
        };
        const QVariantMap before = load();
        shell(row()["trouble"].toString());
        QCOMPARE(oldColors.getColor("G", "k"), before["color"].toString());
        log.take();
        QCOMPARE(toJson(load()), toJson(row()["answers"].toVariant()));
        QCOMPARE(log.take().filter("platform.").replaceInStrings(path, "DIR"), rowTexts("records"));
        shell("gone; files");
        QCOMPARE(load(), before);
    }

    void fileThatIsReplacedAllTheTimeIsGoodOrNothing()
    {
        shell("mkfifo fifo; printf '[G]\\nn=0' > 0");
        std::atomic_bool isEnough = false;
        auto owner = std::async(std::launch::async, [&isEnough] {
            const char* targets[] = {"0", "fifo", "0", ".", "0", "none"};
            bool isRight = true;
            for (int turn = 0; !isEnough; ++turn)
                isRight &= symlink(targets[turn % 6], "next") == 0 && rename("next", "x.ini") == 0;
            return isRight;
        });
        const auto end = qScopeGuard([&isEnough] { isEnough = true; });
        LogRecorder log;
        // Counts outcomes, because a busy machine may run only one of the two threads for a long time.
        for (int times[2] = {}; times[0] < 1000 || times[1] < 1000;) {
            const bool isGood = IniFileManager("x.ini", nullptr).getValueString("G", "n", "") == "0";
            QCOMPARE(log.take().filter("Cannot read \"x.ini\": ").size(), isGood ? 0 : 1);
            ++times[isGood];
        }
        isEnough = true;
        QVERIFY(owner.get());
    }
};

} // namespace Tests

int main(int argc, char* argv[])
{
    // Mounts of the commands stay invisible to others. Without its capabilities root cannot read every file either.
    unshare(CLONE_NEWNS);
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[2];
    syscall(SYS_capget, &header, data);
    data[0].effective &= data[0].permitted &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    syscall(SYS_capset, &header, data);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "minimal");
    const QGuiApplication application(argc, argv);
    Tests::TroubleTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "TroubleTest.moc"
