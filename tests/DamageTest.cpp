// The checker and a device on damaged resource directories.

#include "ResourceCheck/Checker.h"
#include "ResourceCheck/output/JsonOutput.h"
#include "tests/support/Announcements.h"
#include "tests/support/DamagedDirectory.h"

#include <QElapsedTimer>
#include <QtTest>

#include <optional>
#include <sys/resource.h>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

// Of those that have ended.
rusage usageOfChildren()
{
    rusage usage = {};
    getrusage(RUSAGE_CHILDREN, &usage);
    return usage;
}

// In milliseconds.
qint64 processorTimeOfChildren()
{
    const rusage usage = usageOfChildren();
    return (usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1000
        + (usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1000;
}

} // namespace

/// The checker announces whatever a device logs, and nothing crashes.
class DamageTest : public QObject
{
    Q_OBJECT

public:
    /// Of the damaged directories with these numbers. If a program is given, it is the checker, and the most time and
    /// memory that it needs are printed.
    DamageTest(quint32 first, quint32 last, quint32 seed, const QString& checker)
        : firstNumber(first)
        , lastNumber(last)
        , seedNumber(seed)
        , program(checker)
    {
    }

private:
    QJsonArray findings()
    {
        const QString qml = parent.filePath("qml");
        if (program.isEmpty())
            return QJsonDocument::fromJson(jsonOutput(Checker(directory, {qml}).findings())).array();
        const qint64 before = processorTimeOfChildren();
        QElapsedTimer timer;
        timer.start();
        const Outcome outcome = run(program, {"--format", "json", "--qml", qml, directory});
        time = qMax(time, timer.elapsed());
        processorTime = qMax(processorTime, processorTimeOfChildren() - before);
        const QJsonDocument document = QJsonDocument::fromJson(outcome.output);
        if ((outcome.exitStatus != 0 && outcome.exitStatus != 1) || !document.isArray())
            QTest::qFail("the checker fails: " + outcome.errors.left(4000), __FILE__, __LINE__);
        return document.array();
    }

    const quint32 firstNumber;
    const quint32 lastNumber;
    const quint32 seedNumber;
    const QString program;
    const QTemporaryDir parent;
    const QString directory = parent.filePath("resources");
    const DamagedDirectory::Entries sample = DamagedDirectory::read("resources");
    DamagedDirectory::Entries content; // of the directory
    std::optional<Device> device;
    int recordCount = 0;
    qint64 time = 0;
    qint64 processorTime = 0;

private Q_SLOTS:
    void initTestCase()
    {
        const ResourceLookups names = ResourceLookups::in("resources");
        writeFile(parent.filePath("qml/Names.qml"), names.qml());
        writeFile(parent.filePath("outside"), "[Day]\nText=#102030\n");
        QDir().mkdir(directory);
        device.emplace(directory, names);
    }

    void checkerAnnouncesWhatTheDeviceLogs_data()
    {
        QTest::addColumn<quint32>("number");
        for (quint32 number = firstNumber; number <= lastNumber; ++number)
            QTest::newRow(qPrintable(QString::number(number))) << number;
    }

    void checkerAnnouncesWhatTheDeviceLogs()
    {
        QFETCH(quint32, number);
        const DamagedDirectory damaged(sample, seedNumber, number);
        damaged.replace(directory, std::exchange(content, damaged.content()));
        const Announcements announcements(directory, findings());
        const QVector<DeviceRecord> records = device->run(announcements.filesWith({"svg-bomb", "svg-size"}));
        recordCount += records.size();
        const QStringList missing = announcements.missing(records);
        QVERIFY2(missing.isEmpty(), qPrintable("not announced:\n" + missing.join('\n').left(4000)));
        QVERIFY(device->isServiceAlive());
    }

    void cleanupTestCase()
    {
        device.reset();
        std::printf("%d records\n", recordCount);
        if (!program.isEmpty())
            std::printf("%lld ms, %lld ms of processor time, %ld MB\n", time, processorTime,
                        usageOfChildren().ru_maxrss / 1024);
    }
};

} // namespace Tests

// Tests::DamageTest [FIRST LAST [SEED [CHECKER]]]: the damages from number 1 to 500 of seed 1, and the checker in this
// process, are the default.
int main(int argc, char* argv[])
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "120000"); // for one directory, in milliseconds
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    Tests::DamageTest test(arguments.value(1, "1").toUInt(), arguments.value(2, "500").toUInt(),
                           arguments.value(3, "1").toUInt(), arguments.value(4));
    return QTest::qExec(&test, {arguments.at(0)});
}
#include "DamageTest.moc"
