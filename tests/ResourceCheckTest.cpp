#include "tests/support/DataRows.h"
#include "tests/support/TestProcess.h"

#include <algorithm>

namespace Tests
{

namespace
{

QByteArrayList sortedLines(const QByteArray& text)
{
    QByteArrayList lines = text.split('\n');
    lines.removeAll("");
    std::sort(lines.begin(), lines.end());
    return lines;
}

} // namespace

class ResourceCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRuleFindsItsFault();
    void formatsAgree();
    void call_data();
    void call();
};

// expected.txt lists the place, severity and rule of each finding, without the message.
void ResourceCheckTest::everyRuleFindsItsFault()
{
    QByteArray allFindings;
    for (const QString twin : {"tests/broken-twin/", "tests/unreadable-twin/"}) {
        const Outcome outcome = run(RESOURCE_CHECK, {"--qml", twin + "qml", twin + "resources"});
        QCOMPARE(outcome.exitStatus, 1);
        QFile expected(twin + "expected.txt");
        QVERIFY(expected.open(QIODevice::ReadOnly));
        const QRegularExpression message(": (error|warning): .* (\\[[a-z-]+\\])");
        const QString findings = QString::fromUtf8(outcome.output).remove(twin).replace(message, ": \\1 \\2");
        QCOMPARE(sortedLines(findings.toUtf8()), sortedLines(expected.readAll()));
        allFindings += findings.toUtf8();
    }
    const QByteArrayList rules = sortedLines(run(RESOURCE_CHECK, {"--list-rules"}).output);
    QVERIFY(!rules.isEmpty());
    for (const QByteArray& rule : rules)
        QVERIFY2(allFindings.contains('[' + rule.left(rule.indexOf(' ')) + ']'), rule);
}

void ResourceCheckTest::formatsAgree()
{
    const auto runAs = [](const QString& format) {
        return run(RESOURCE_CHECK, {"--format", format, "tests/broken-twin/resources"}).output;
    };
    const int count = sortedLines(runAs("text")).size();
    QCOMPARE(QJsonDocument::fromJson(runAs("json")).array().size(), count);
    const QByteArray sarif = runAs("sarif");
    QCOMPARE(QJsonDocument::fromJson(sarif)["runs"][0]["results"].toArray().size(), count);
    const QTemporaryDir directory;
    const Outcome validation = run("tests/validate-sarif.py", {writeFile(directory.filePath("a.sarif"), sarif)});
    QVERIFY2(validation.exitStatus == 0, validation.output + validation.errors);
}

void ResourceCheckTest::call_data()
{
    addRows({"environment", "arguments", "exitStatus", "says"});
}

// The environment is given as arguments of env(1). The program says nothing if "says" is empty.
void ResourceCheckTest::call()
{
    const QString command =
        row()["environment"].toString() + ' ' + RESOURCE_CHECK + ' ' + row()["arguments"].toString();
    const Outcome outcome = run("env", command.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(outcome.exitStatus, row()["exitStatus"].toInt());
    const QByteArray said = outcome.output + outcome.errors;
    const QByteArray expected = row()["says"].toString().toUtf8();
    QVERIFY2(expected.isEmpty() ? said.isEmpty() : said.contains(expected), said);
}

} // namespace Tests

QTEST_GUILESS_MAIN(Tests::ResourceCheckTest)
#include "ResourceCheckTest.moc"
