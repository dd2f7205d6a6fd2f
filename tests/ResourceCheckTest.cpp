#include "tests/support/DataRows.h"
#include "tests/support/TestProcess.h"

namespace Tests
{

class ResourceCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatsAgree();
    void fingerprintsSurviveMovedLines();
    void fixChangesNothingElse();
    void baselineAcceptsOldFindings();
    void printedSettingsGiveTheSameSettings();
    void terminalShowsThePlace();
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
    QCOMPARE(QJsonDocument::fromJson(runAs("gitlab")).array().size(), count);
    const QByteArray sarif = runAs("sarif");
    QCOMPARE(QJsonDocument::fromJson(sarif)["runs"][0]["results"].toArray().size(), count);
    const QTemporaryDir directory;
    const Outcome validation = run("tests/validate-sarif.py", {writeFile(directory.filePath("a.sarif"), sarif)});
    QVERIFY2(validation.exitStatus == 0, validation.output + validation.errors);
}

void ResourceCheckTest::fingerprintsSurviveMovedLines()
{
    const QTemporaryDir directory;
    const auto fingerprints = [&directory](const QByteArray& colors) {
        writeFile(directory.filePath("colors.ini"), colors);
        const QByteArray report = run(RESOURCE_CHECK, {"--format", "gitlab", directory.path()}).output;
        QStringList list;
        for (const QJsonValue finding : QJsonDocument::fromJson(report).array()) {
            if (finding["check_name"].toString() == "color-invalid")
                list.append(finding["fingerprint"].toString());
        }
        return list;
    };
    const QStringList before = fingerprints("[Day]\nText=a\nBack=b\n[Night]\nText=a\n");
    QCOMPARE(QSet<QString>(before.begin(), before.end()).size(), 3);
    QCOMPARE(fingerprints("; moved\n\n[Day]\n  Text=a\nBack=b\n[Night]\nText=a\n"), before);
    QCOMPARE(fingerprints("[Day]\nText=c\nBack=b\n").filter(before.at(1)).size(), 1);
}

void ResourceCheckTest::fixChangesNothingElse()
{
    const QTemporaryDir directory;
    const QString texts =
        writeFile(directory.filePath("texts/en.json"),
                  "{ \"a\": \" x\\n\",\r\n\t\"b\": \"😀\\\\n\", \"c\":\"z\\u00a0\",\"c\" : \"z \" }\r\n");
    const QString table = writeFile(directory.filePath("icons/mapping.json"),
                                    "{\"a\": {\"defaultContext\": \"day/Home.svg\", \"night\": \"x\"}}");
    const QString colors = writeFile(directory.filePath("colors.ini"), "A=red\nA=red\nA=blue\nA=blue\n\nA = blue");
    writeFile(directory.filePath("icons/day/home.svg"), "<svg width='1' height='1'><rect/></svg>");
    QVERIFY(QFile::setPermissions(texts, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    const auto content = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = content(texts) + content(table) + content(colors);
    const QByteArray diff = run(RESOURCE_CHECK, {"--fix", "--dry-run", directory.path()}).output;
    QCOMPARE(content(texts) + content(table) + content(colors), before);
    const QString patch = writeFile(directory.filePath(".diff"), diff);
    const QByteArray fixed = "{ \"a\": \"x\",\r\n\t\"b\": \"😀\\\\n\", \"c\":\"z\",\"c\" : \"z\" }\r\n"
                             "{\"a\": {\"defaultContext\": \"day/home.svg\", \"night\": \"x\"}}"
                             "A=red\nA=blue\n\n";
    const QTemporaryDir other;
    QCOMPARE(run("cp", {"-r", directory.path(), other.filePath("a b")}).exitStatus, 0);
    const QByteArray sarif = run(RESOURCE_CHECK, {"--format", "sarif", other.filePath("a b")}).output;
    const QString log = writeFile(other.filePath("a.sarif"), sarif);
    for (const char* script : {"tests/validate-sarif.py", "tests/apply-sarif.py"}) {
        const Outcome outcome = run(script, {log});
        QVERIFY2(outcome.exitStatus == 0, outcome.errors);
    }
    run(RESOURCE_CHECK, {"--fix", directory.path()});
    QCOMPARE(run("diff", {"-r", directory.path(), other.filePath("a b")}).output, QByteArray());
    QCOMPARE(content(texts) + content(table) + content(colors), fixed);
    QVERIFY(!QFile::permissions(texts).testFlag(QFile::ReadGroup));
    QVERIFY(QFile::permissions(texts) & QFile::ReadOther);
    QVERIFY2(diff.contains("-A=red\n") && diff.contains("day/home.svg") && diff.contains("+{ \"a\": \"x\",\r\n"), diff);
    QCOMPARE(run(RESOURCE_CHECK, {"--fix", "--dry-run", directory.path()}).output, QByteArray());
}

void ResourceCheckTest::baselineAcceptsOldFindings()
{
    const QTemporaryDir directory;
    const QString file = directory.filePath(".baseline");
    const auto check = [&](const QByteArray& colors, const QStringList& options) {
        writeFile(directory.filePath("colors.ini"), colors);
        return run(RESOURCE_CHECK, options + QStringList{"--baseline", file, directory.path()});
    };
    QCOMPARE(check("[Day]\nText=a\n", {}).exitStatus, 2);
    QCOMPARE(check("[Day]\nText=a\n", {"--update-baseline"}).exitStatus, 0);
    const Outcome moved = check("\n[Day]\nText=a\n", {});
    QCOMPARE(moved.output + moved.errors, QByteArray());
    QCOMPARE(moved.exitStatus, 0);
    const Outcome added = check("[Day]\nText=a\nBack=b\n", {});
    QCOMPARE(added.exitStatus, 1);
    QCOMPARE(added.output.count('\n'), 1);
    const QJsonDocument sarif = QJsonDocument::fromJson(check("[Day]\nText=a\nBack=b\n", {"--format", "sarif"}).output);
    QStringList states;
    for (const QJsonValue result : sarif["runs"][0]["results"].toArray())
        states.append(result["baselineState"].toString());
    QCOMPARE(states.count("new"), 1);
    QVERIFY(states.count("unchanged") > 1);
    check("[Day]\nText=a\nBack=b\n", {"--update-baseline"});
    for (const QString& path : {QString("."), QString("./"), "../" + QFileInfo(directory.path()).fileName()}) {
        const Outcome same = run("env", {"-C", directory.path(), RESOURCE_CHECK, "--baseline", file, path});
        QCOMPARE(same.output + same.errors, QByteArray());
    }
    const Outcome repaired = check("[Day]\nText=#a00\n", {});
    QCOMPARE(repaired.exitStatus, 1);
    QVERIFY2(repaired.errors.contains("a finding is repaired"), repaired.errors);
}

void ResourceCheckTest::printedSettingsGiveTheSameSettings()
{
    const QTemporaryDir directory;
    const QStringList options{"--rule",
                              "icon-same=error",
                              "--werror",
                              "--keep",
                              "Day/*",
                              "--max-length",
                              "text://A=9",
                              "--contrast",
                              "Day/A:Day/B",
                              "--id",
                              "ui.colors=TarnisColorHandler"};
    const QByteArray printed = run(RESOURCE_CHECK, options + QStringList{"--print-config", directory.path()}).output;
    QVERIFY2(printed.contains("\nicon-same=error\n") && printed.contains("\nkeep=Day/*\n"), printed);
    writeFile(directory.filePath(".tarnis-check.ini"), printed);
    QCOMPARE(run(RESOURCE_CHECK, {"--print-config", directory.path()}).output, printed);
}

void ResourceCheckTest::terminalShowsThePlace()
{
    const QString command = RESOURCE_CHECK " tests/rules/color-invalid/fault";
    const QByteArray shown = run("script", {"-qec", command, "/dev/null"}).output;
    QVERIFY2(shown.contains("\n    Accent=#12345\r\n           ^\r\n"), shown);
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
