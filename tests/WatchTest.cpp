#include "tests/support/TestProcess.h"

#include <QtTest>

#include <cstdio>

namespace Tests
{

class WatchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesArePrintedHoweverTheFilesAreReplaced();
};

void WatchTest::changesArePrintedHoweverTheFilesAreReplaced()
{
    const QTemporaryDir parent;
    const QString directory = parent.filePath("resources");
    const QString colors = directory + "/colors.ini";
    const auto copySample = [&](const QString& name) {
        QCOMPARE(run("cp", {"-r", "resources", parent.filePath(name)}).exitStatus, 0);
    };
    copySample("resources");
    QFile sample(colors);
    QVERIFY(sample.open(QIODevice::ReadOnly));
    const QByteArray good = sample.readAll();
    const QByteArray bad = QByteArray(good).replace("Accent=#0b7a75", "Accent=rgb(1)");
    Child child;
    child.launch(RESOURCE_CHECK, {"--watch", directory});
    const auto isPrinted = [&child](const QByteArray& mark, const QByteArray& totals) {
        QByteArray lines;
        while (!lines.endsWith(totals + '\n') && (child.canReadLine() || child.waitForReadyRead(10000)))
            lines += child.readLine();
        return lines.count('\n') == (mark.isEmpty() ? 1 : 2) && lines.startsWith(mark) && lines.endsWith(totals + '\n');
    };
    const auto isFound = [&] { return isPrinted("+ " + colors.toUtf8() + ":17:8: error: ", "1 error, 0 warnings"); };
    const auto isRepaired = [&] { return isPrinted("- " + colors.toUtf8() + ":", "0 errors, 0 warnings"); };
    QVERIFY(isPrinted("", "0 errors, 0 warnings"));
    writeFile(colors, bad);
    QVERIFY(isFound());
    writeFile(colors, "; moved\n" + bad); // not a change
    QCOMPARE(rename(qPrintable(writeFile(parent.filePath("new"), good)), qPrintable(colors)), 0);
    QVERIFY(isRepaired());
    writeFile(colors, bad);
    QVERIFY(isFound());
    copySample("next");
    QVERIFY(QDir().rename(directory, parent.filePath("old")));
    QVERIFY(QDir().rename(parent.filePath("next"), directory));
    QVERIFY(isRepaired());
    QVERIFY(QDir().rename(directory, parent.filePath("next")));
    child.setReadChannel(QProcess::StandardError);
    QVERIFY(child.canReadLine() || child.waitForReadyRead(10000));
    QVERIFY(child.readLine().contains("is not a directory"));
    child.setReadChannel(QProcess::StandardOutput);
    QVERIFY(QDir().rename(parent.filePath("next"), directory));
    QVERIFY(isPrinted("", "0 errors, 0 warnings"));
    writeFile(colors, bad);
    QVERIFY(isFound());
    child.terminate();
    QVERIFY(child.waitForFinished(10000));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 1);
}

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::WatchTest)
#include "WatchTest.moc"
