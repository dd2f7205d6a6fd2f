#include "ResourceCheck/Checker.h"
#include "ResourceCheck/rules/Record.h"
#include "ResourceCheck/rules/Rule.h"
#include "tests/support/TestProcess.h"

#include <QtTest>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

const QString folder = "tests/rules/";

// A comment `expect 8 RULE` announces a finding in column 8 of the next line without such a comment, and `expect file
// RULE` one in the whole file.
void readComments(const QString& name, const QByteArray& content, QStringList& expected)
{
    static const QRegularExpression comment("(?:;|//|<!--) expect (file|\\d+) ([a-z-]+)");
    QStringList waiting;
    int line = 0;
    for (const QString& text : QString::fromUtf8(content).split('\n')) {
        ++line;
        const QRegularExpressionMatch match = comment.match(text);
        if (match.captured(1) == "file")
            expected.append(name + ' ' + match.captured(2));
        else if (match.hasMatch())
            waiting.append(match.captured(1) + ' ' + match.captured(2));
        while (!match.hasMatch() && !waiting.isEmpty())
            expected.append(name + ':' + QString::number(line) + ':' + waiting.takeFirst());
    }
}

// The findings that the comments of the files announce, and the lines of the file `expected` for files that cannot have
// comments.
QStringList expectedFindings(const QString& directory)
{
    QStringList expected;
    QDirIterator files(directory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString name = file.fileName().mid(directory.size() + 1);
        if (name == "expected")
            expected += QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
        else
            readComments(name, file.readAll(), expected);
    }
    expected.sort();
    return expected;
}

// Checks the sound resources with the files of the case added to them, and after `setup.sh` of the case, if any.
QStringList actualFindings(const QString& directory)
{
    const QTemporaryDir copy;
    const QString path = copy.path();
    const QString prepare = "cp -a tests/sound-resources/. \"$0\"/. \"$1\"; cd \"$1\"; chmod -R a+rX .;"
                            "[ ! -e setup.sh ] || . ./setup.sh; rm -f setup.sh expected";
    if (run("sh", {"-ec", prepare, directory, path}).exitStatus != 0)
        return {"cannot prepare " + directory};
    Settings settings;
    if (const QString problem = settings.readFileOf(path); !problem.isNull())
        return {problem};
    const QStringList qml = QFileInfo::exists(path + "/qml") ? QStringList(path + "/qml") : QStringList();
    QStringList actual;
    for (const Finding& finding : Checker(path, qml, settings).findings()) {
        QString place = finding.place.path.mid(path.size() + 1);
        for (const int number : {finding.place.line, finding.place.column})
            place += number > 0 ? ':' + QString::number(number) : QString();
        actual.append(place + ' ' + finding.rule);
    }
    actual.sort();
    return actual;
}

} // namespace

/// Each rule has a folder with a directory `fault`, in which it finds something, and a directory `sound`, in which it
/// finds nothing although it nearly could.
class RulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findings_data();
    void findings();
    void everyFolderIsOfARule();
    void everyDocumentedRecordHasARuleOrAReason();
};

void RulesTest::findings_data()
{
    QTest::addColumn<QString>("rule");
    for (const Rule& rule : allRules())
        QTest::newRow(qPrintable(rule.name)) << rule.name;
}

void RulesTest::findings()
{
    QFETCH(QString, rule);
    QVERIFY2(!findRule(rule)->remedy.isEmpty(), "the rule has no remedy");
    for (const QString kind : {"fault", "sound"}) {
        const QString directory = folder + rule + '/' + kind;
        QVERIFY2(QFileInfo(directory).isDir(), qPrintable(directory + " is missing"));
        const QStringList expected = expectedFindings(directory);
        QCOMPARE(!expected.filter(QRegularExpression(' ' + rule + '$')).isEmpty(), kind == "fault");
        QCOMPARE(actualFindings(directory), expected);
    }
}

void RulesTest::everyFolderIsOfARule()
{
    for (const QString& name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QVERIFY2(findRule(name) != nullptr, qPrintable(name));
}

void RulesTest::everyDocumentedRecordHasARuleOrAReason()
{
    QFile file("docs/log-records.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString page = QString::fromUtf8(file.readAll()).replace("PATH", "x.json");
    QStringList documented;
    for (const int number : {1, 3, 4}) { // of the sections with records
        const QStringList lines = page.section("\n## ", number, number).split('\n');
        for (const QString& line : lines.filter(QRegularExpression("^\\| `")))
            documented.append(line.section('`', 1, 1));
    }
    QVERIFY(documented.size() > 20);
    for (const Record& record : allRecords()) {
        QVERIFY2(record.rules.isEmpty() != record.reason.isEmpty(), qPrintable(record.text));
        for (const QString& rule : record.rules)
            QVERIFY2(findRule(rule) != nullptr, qPrintable(rule));
        documented = documented.filter(QRegularExpression("^(?!.*" + record.pattern() + ")"));
    }
    QVERIFY2(documented.isEmpty(), qPrintable(documented.join('\n')));
}

} // namespace Tests

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    const QGuiApplication application(argc, argv);
    Tests::RulesTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "RulesTest.moc"
