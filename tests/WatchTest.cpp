#include "tests/support/TestProcess.h"

#include <QtTest>

#include <cstdio>

namespace Tests
{

namespace
{

void copySample(const QString& path)
{
    QCOMPARE(run("cp", {"-r", "resources", path}).exitStatus, 0);
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Waits for the totals. Whether one line with the mark, if any, comes before them.
bool isPrinted(Child& child, const QByteArray& mark, const QByteArray& totals)
{
    QByteArray lines;
    while (!lines.endsWith(totals + '\n') && (child.canReadLine() || child.waitForReadyRead(10000)))
        lines += child.readLine();
    return lines.count('\n') == (mark.isEmpty() ? 1 : 2) && lines.startsWith(mark) && lines.endsWith(totals + '\n');
}

} // namespace

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
    copySample(directory);
    const QByteArray good = contentOf(colors);
    const QByteArray bad = QByteArray(good).replace("Accent=#0b7a75", "Accent=rgb(1)");
    Child child;
    child.launch(RESOURCE_CHECK, {"--watch", directory});
    const auto isFound = [&] {
        return isPrinted(child, "+ " + colors.toUtf8() + ":17:8: error: ", "1 error, 0 warnings");
    };
    const auto isRepaired = [&] { return isPrinted(child, "- " + colors.toUtf8() + ":", "0 errors, 0 warnings"); };
    QVERIFY(isPrinted(child, "", "0 errors, 0 warnings"));
    writeFile(colors, bad);
    QVERIFY(isFound());
    writeFile(colors, "; moved\n" + bad); // not a change
    QCOMPARE(rename(qPrintable(writeFile(parent.filePath("new"), good)), qPrintable(colors)), 0);
    QVERIFY(isRepaired());
    writeFile(colors, bad);
    QVERIFY(isFound());
    copySample(parent.filePath("next"));
    QVERIFY(QDir().rename(directory, parent.filePath("old")));
    QVERIFY(QDir().rename(parent.filePath("next"), directory));
    QVERIFY(isRepaired());
    QVERIFY(QDir().rename(directory, parent.filePath("next")));
    child.setReadChannel(QProcess::StandardError);
    QVERIFY(child.canReadLine() || child.waitForReadyRead(10000));
    QVERIFY(child.readLine().contains("is not a directory"));
    child.setReadChannel(QProcess::StandardOutput);
    QVERIFY(QDir().rename(parent.filePath("next"), directory));
    QVERIFY(isPrinted(child, "", "0 errors, 0 warnings"));
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
