// Faults that a device logs must have been announced by the checker: the names in front ends are misspelled and the
// resources are removed, one at a time. TARNIS_RECALL tells how many of the faults of each front end are tried, or
// `all`.

#include "tests/recall/Announcements.h"
#include "tests/recall/Device.h"
#include "tests/recall/Fault.h"
#include "tests/recall/Mutation.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

#include <cstdio>
#include <numeric>
#include <random>

namespace Tests
{

namespace
{

constexpr int usualFaults = 75; // of each front end

// The begins of the names of faults, from a list with a reason for each.
QStringList list(const QString& name)
{
    QStringList lines =
        QString::fromUtf8(Fault::readFile(TEST_DATA "/RecallTest/" + name)).split('\n', Qt::SkipEmptyParts);
    return lines.replaceInStrings(QRegularExpression(" # .*"), QString());
}

// Returns whether the list has the fault, and notes that.
bool isListed(const QStringList& list, const QString& fault, QSet<QString>& met)
{
    for (const QString& line : list) {
        if (fault == line || fault.startsWith(line + ' ')) {
            met.insert(line);
            return true;
        }
    }
    return false;
}

// The numbers of the faults to try.
QVector<int> selection(int count, int wanted)
{
    QVector<int> order(count);
    std::iota(order.begin(), order.end(), 0);
    std::mt19937 random(1);
    for (int index = count - 1; index > 0; --index)
        std::swap(order[index], order[static_cast<int>(random() % static_cast<unsigned int>(index + 1))]);
    return order.mid(0, wanted);
}

} // namespace

class RecallTest : public QObject
{
    Q_OBJECT

public:
    QString summary() const
    {
        return QString("recall: %1 of %2 faults that the device logs are announced (%3 tried); "
                       "the device reaches %4 of %5 names that are reported when misspelled")
            .arg(announced)
            .arg(logged)
            .arg(tried)
            .arg(reached)
            .arg(reported);
    }

private Q_SLOTS:
    void everyFaultThatADeviceLogsIsAnnounced_data();
    void everyFaultThatADeviceLogsIsAnnounced();
    void everyListedFaultIsLogged();

private:
    QString judge(const QString& fault, const QStringList& records, const Announcements& announcements);

    const bool isEach = qgetenv("TARNIS_RECALL") == "all";
    const int wanted = isEach ? -1 : qMax(usualFaults, qEnvironmentVariableIntValue("TARNIS_RECALL"));
    const QStringList notResources = list("not-resources.txt");
    QSet<QString> frontEnds;
    QSet<QString> met; // lines of the list
    int tried = 0;
    int logged = 0;
    int announced = 0;
    int reported = 0; // misspelled names
    int reached = 0;
};

void RecallTest::everyFaultThatADeviceLogsIsAnnounced_data()
{
    QTest::addColumn<QString>("frontEnd");
    QTest::newRow("sample") << "Gallery/qml/device";
    for (const QFileInfo& directory : QDir("tests/frontends").entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(directory.fileName())) << directory.filePath();
}

void RecallTest::everyFaultThatADeviceLogsIsAnnounced()
{
    QFETCH(QString, frontEnd);
    frontEnds.insert(QFileInfo(frontEnd).fileName());
    const QTemporaryDir copy;
    const QString qml = copy.filePath("qml");
    const QString resources = copy.filePath("resources");
    QCOMPARE(QProcess::execute("cp", {"-r", frontEnd, qml}), 0);
    QCOMPARE(QProcess::execute("cp", {"-r", "resources", resources}), 0);
    Announcements announcements(resources, qml);
    QCOMPARE(announcements.initial().join('\n'), QString());
    std::optional<Device> device(resources);
    QCOMPARE(device->records(qml + "/Main.qml").join('\n'), QString());

    const QVector<Mutation> inCode = misspellings(qml);
    const QVector<Mutation> mutations = inCode + removals(resources);
    QStringList surprises;
    for (const int index : selection(mutations.size(), wanted)) {
        const bool isInCode = index < inCode.size();
        const Mutation& mutation = mutations.at(index);
        const Fault fault(isInCode ? qml : resources, mutation);
        announcements.check(!isInCode);
        if (!device || !isInCode)
            device.emplace(resources);
        const QStringList records = device->records(qml + "/Main.qml");
        reported += isInCode && announcements.areThere() ? 1 : 0;
        reached += isInCode && announcements.areThere() && !records.isEmpty() ? 1 : 0;
        surprises += judge(QFileInfo(frontEnd).fileName() + '/' + mutation.name, records, announcements);
        if (!isInCode)
            device.reset();
    }
    surprises.removeAll(QString());
    QVERIFY2(surprises.isEmpty(), qPrintable(surprises.join('\n')));
}

// Counts the fault. Returns its name if a log record is not announced.
QString RecallTest::judge(const QString& fault, const QStringList& records, const Announcements& announcements)
{
    ++tried;
    if (records.isEmpty() || isListed(notResources, fault, met))
        return QString();
    ++logged;
    for (const QString& record : records) {
        if (announcements.announce(record))
            continue;
        qWarning("%s: %s", qPrintable(fault), qPrintable(record)); // at once, because a run can be long
        return fault;
    }
    ++announced;
    return QString();
}

// Only after all faults of a front end have been tried.
void RecallTest::everyListedFaultIsLogged()
{
    QStringList unknown = notResources;
    unknown.erase(std::remove_if(unknown.begin(), unknown.end(),
                                 [this](const auto& line) {
                                     return met.contains(line) || !frontEnds.contains(line.section('/', 0, 0));
                                 }),
                  unknown.end());
    QVERIFY2(!isEach || unknown.isEmpty(), qPrintable(unknown.join('\n')));
}

} // namespace Tests

int main(int argc, char* argv[])
{
    qputenv("QML_DISABLE_DISK_CACHE", "1"); // the files change faster than their times
    qputenv("QTEST_FUNCTION_TIMEOUT", "7200000");
    QQuickWindow::setSceneGraphBackend("software");
    const QGuiApplication application(argc, argv);
    Tests::RecallTest test;
    const int failures = QTest::qExec(&test, argc, argv);
    std::puts(qPrintable(test.summary()));
    return failures;
}

#include "RecallTest.moc"
