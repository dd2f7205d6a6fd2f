#include "ResourceCheck/Checker.h"
#include "ResourceCheck/rules/Rule.h"
#include "tests/support/QmlRewrites.h"
#include "tests/support/TestProcess.h"

#include <QGuiApplication>
#include <QtTest>

#include <cstdio>

using Rewrite = QString (*)(const QString& code);
Q_DECLARE_METATYPE(Rewrite)

namespace Tests
{

using namespace QmlRewrites;
using namespace ResourceCheck;

namespace
{

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// Moves each component that other files use by its name only and that imports no other directory.
int moveComponents(const QString& directory)
{
    const QStringList names = QDir(directory).entryList({"*.qml"});
    QString all = readText(directory + "/qmldir");
    for (const QString& name : names)
        all += readText(directory + '/' + name);
    int count = 0;
    for (const QString& name : names) {
        const QString path = directory + '/' + name;
        const QString code = readText(path).remove("import \".\"\n");
        const bool isUsed = QRegularExpression("\\b" + name.chopped(4) + " \\{").match(all).hasMatch();
        const bool isFree = !code.contains("import \"") && !all.contains(QRegularExpression("[\" ]" + name));
        const QString content = isUsed && isFree ? "import \"..\"\n" + code : "import \"moved\"\n" + readText(path);
        QFile::remove(path);
        writeFile(directory + (isUsed && isFree ? "/moved/" : "/") + name, content.toUtf8());
        count += isUsed && isFree ? 1 : 0;
    }
    return count;
}

int rewriteFiles(const QString& directory, Rewrite rewrite)
{
    int count = 0;
    for (QDirIterator item(directory, {"*.qml"}, QDir::Files, QDirIterator::Subdirectories); item.hasNext();) {
        const QString code = readText(item.next());
        const QString other = rewrite(code);
        count += other != code ? 1 : 0;
        writeFile(item.filePath(), other.toUtf8());
    }
    return count;
}

// Inserts letters into every third text.
QString misspelled(const QString& code)
{
    int number = 0;
    return replaced(code, literal,
                    [&](const QString& text) { return ++number % 3 == 0 ? QString(text).insert(1, "Zz") : text; });
}

QStringList findings(const QString& directory)
{
    Settings settings;
    for (const Rule& rule : allRules())
        settings.severities[rule.name] = rule.name.startsWith("qml-") ? Severity::Error : Severity::Off;
    QStringList lines;
    for (const Finding& finding : Checker("resources", {directory}, settings).findings())
        lines.append(' ' + finding.message.section(';', 0, 0).remove(directory + '/'));
    return lines;
}

} // namespace

class QmlRewriteTest : public QObject
{
    Q_OBJECT

public:
    QString summary() const
    {
        return QString("%1 files rewritten: the %2 findings are the same").arg(allRewritten).arg(allFindings);
    }

private:
    int allRewritten = 0;
    int allFindings = 0;

private Q_SLOTS:
    void codeWrittenDifferentlyHasTheSameFindings_data();
    void codeWrittenDifferentlyHasTheSameFindings();
};

void QmlRewriteTest::codeWrittenDifferentlyHasTheSameFindings_data()
{
    QTest::addColumn<Rewrite>("rewrite");
    QTest::addColumn<QString>("knownDifferences");
    QTest::newRow("texts in properties of the root") << Rewrite([](const QString& code) {
        return heldByRoot(code, "rewritten%1", "property string rewritten%1: %2;");
    }) << "";
    QTest::newRow("texts returned by functions of the root") << Rewrite([](const QString& code) {
        return heldByRoot(code, "rewritten%1()", "function rewritten%1() { return %2 }");
    }) << "";
    QTest::newRow("texts in constants of a binding") << Rewrite(inConstant) << "";
    QTest::newRow("texts split by +") << Rewrite(splitTexts) << "";
    QTest::newRow("line breaks and comments") << Rewrite(reformatted) << "";
    QTest::newRow("carriage returns") << Rewrite([](const QString& code) {
        return QString(code).replace("\n", "\r\n");
    }) << "";
    QTest::newRow("qualified import") << Rewrite(withQualifier) << "";
    QTest::newRow("components in another directory") << Rewrite(nullptr) << "";
}

void QmlRewriteTest::codeWrittenDifferentlyHasTheSameFindings()
{
    QFETCH(Rewrite, rewrite);
    const QDir::Filters folders = QDir::Dirs | QDir::NoDotAndDotDot;
    QFileInfoList frontEnds = QDir("tests/frontends").entryInfoList(folders);
    frontEnds.append(QFileInfo("Gallery/qml/device"));
    const int sound = frontEnds.size();
    frontEnds += QDir(TEST_DATA "/QmlAnalysisTest/cases").entryInfoList(folders);
    int count = 0;
    int rewritten = 0;
    QStringList differences;
    for (int index = 0; index < frontEnds.size(); ++index) {
        const QFileInfo& frontEnd = frontEnds.at(index);
        const QTemporaryDir copy;
        QCOMPARE(QProcess::execute("cp", {"-r", frontEnd.filePath() + "/.", copy.path()}), 0);
        if (index < sound)
            rewriteFiles(copy.path(), misspelled);
        QStringList missing = findings(copy.path());
        count += missing.size();
        rewritten += rewrite != nullptr ? rewriteFiles(copy.path(), rewrite) : moveComponents(copy.path());
        for (const QString& line : findings(copy.path()))
            differences += missing.removeOne(line) ? QStringList() : QStringList('+' + frontEnd.fileName() + line);
        for (const QString& line : qAsConst(missing))
            differences += '-' + frontEnd.fileName() + line;
    }
    QVERIFY(count > 100);
    QVERIFY(rewritten > 0);
    allFindings += count;
    allRewritten += rewritten;
    QFETCH(QString, knownDifferences);
    QStringList known = knownDifferences.split('\n', Qt::SkipEmptyParts);
    known.sort();
    differences.sort();
    QCOMPARE(differences.join('\n'), known.join('\n'));
}

} // namespace Tests

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    Tests::QmlRewriteTest test;
    const int failures = QTest::qExec(&test, argc, argv);
    std::puts(qPrintable(test.summary()));
    return failures;
}

#include "QmlRewriteTest.moc"
