#include "tests/support/DataRows.h"
#include "tests/support/TestProcess.h"

namespace Tests
{

class ResourceCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatsAgree();
    void call_data();
    void call();
};

void ResourceCheckTest::formatsAgree()
{
    const auto runAs = [](const QString& format) {
        return run(RESOURCE_CHECK, {"--format", format, "tests/rules/icon-json/fault"}).output;
    };
    const int count = runAs("text").count('\n');
    QVERIFY(count > 3);
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
