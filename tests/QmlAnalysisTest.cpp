#include "ResourceCheck/Project.h"
#include "ResourceCheck/qml/KnownNames.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/UseCheck.h"
#include "tests/support/TestProcess.h"

#include <QtTest>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

const QString cases = TEST_DATA "/QmlAnalysisTest/cases";
const QString frontEnd = "Gallery/qml/device";

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesBelow(const QString& directory)
{
    QStringList files;
    for (QDirIterator item(directory, QDir::Files, QDirIterator::Subdirectories); item.hasNext();)
        files.append(item.next());
    files.sort();
    return files;
}

// `path:line: message` for each finding of a rule for QML and for each name that depends on run-time values.
QStringList findings(const QString& directory)
{
    static const Resources resources("resources");
    Project project{resources, {}, {}, {}};
    project.qml.emplace(QStringList{directory});
    QStringList lines;
    const auto add = [&lines](const Place& place, const QString& message) {
        lines.append(place.path + ':' + QString::number(place.line) + ": " + message);
    };
    for (const Rule& rule : qmlRules())
        rule.check(project, add);
    for (const QmlFault& name : project.qml->names().undeterminable)
        add(name.place, name.message);
    return lines;
}

// Removes the first line for the place that contains the text. Returns whether there is one.
bool take(QStringList& lines, const QString& place, const QString& text)
{
    for (int index = 0; index < lines.size(); ++index) {
        if (lines.at(index).startsWith(place) && lines.at(index).contains(text)) {
            lines.removeAt(index);
            return true;
        }
    }
    return false;
}

// The lines of a list in the test data without the reasons behind them.
QStringList list(const QString& name)
{
    QStringList lines = readText(TEST_DATA "/QmlAnalysisTest/" + name).split('\n', Qt::SkipEmptyParts);
    return lines.replaceInStrings(QRegularExpression(" # .*"), QString());
}

QStringList namesOf(const Resources& resources, ResourceKind kind)
{
    QStringList names;
    const ResourceNames all(resources, kind);
    for (const ResourceName& resource : all.list())
        names.append(resource.name);
    return names;
}

} // namespace

class QmlAnalysisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codeHasTheFindingsThatItsCommentsName_data();
    void codeHasTheFindingsThatItsCommentsName();
    void everyMisspelledNameIsFound();
    void everyMissingResourceIsFound();
};

void QmlAnalysisTest::codeHasTheFindingsThatItsCommentsName_data()
{
    QTest::addColumn<QString>("directory");
    for (const QString& name : QDir(cases).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(name)) << cases + '/' + name;
}

// `// unknown TEXT` expects a finding in its line with the text, `// undeterminable` a name that is not followed.
void QmlAnalysisTest::codeHasTheFindingsThatItsCommentsName()
{
    QFETCH(QString, directory);
    QStringList found = findings(directory);
    QStringList missing;
    for (const QString& file : filesBelow(directory)) {
        int number = 0;
        for (const QString& line : readText(file).split('\n')) {
            const QString place = file + ':' + QString::number(++number) + ": ";
            for (const QString& comment : line.split(" // ").mid(1)) {
                if (comment.startsWith("unknown ") && !take(found, place, comment.mid(8)))
                    missing.append(place + comment);
                if (comment == "undeterminable" && !take(found, place, "depends on values at run time"))
                    missing.append(place + comment);
            }
        }
    }
    QCOMPARE(missing.join('\n'), QString());
    QCOMPARE(found.join('\n'), QString());
}

// Each quoted name in the front end of the sample is changed in turn. Those that are not lookups are listed.
void QmlAnalysisTest::everyMisspelledNameIsFound()
{
    const QTemporaryDir copy;
    QCOMPARE(QProcess::execute("cp", {"-r", frontEnd + "/.", copy.path()}), 0);
    const QStringList others = list("not-lookups.txt");
    const QRegularExpression literal("(?<!import )\"[^\"\\n]+\"");
    QStringList survivors;
    int count = 0;
    for (const QString& file : filesBelow(copy.path()).filter(".qml")) {
        const QString code = readText(file);
        for (auto found = literal.globalMatch(code); found.hasNext(); ++count) {
            const QRegularExpressionMatch match = found.next();
            writeFile(file, QString(code).insert(match.capturedEnd() - 1, "Zz").toUtf8());
            const QString name = QFileInfo(file).fileName() + ' ' + match.captured();
            if (findings(copy.path()).filter(QRegularExpression("unknown .*Zz")).isEmpty() && !others.contains(name))
                survivors.append(name);
        }
        writeFile(file, code.toUtf8());
    }
    QVERIFY(count > 100);
    QVERIFY2(survivors.isEmpty(), qPrintable(survivors.join('\n')));
}

// Each resource whose names the front end contains is left out in turn. Those that no lookup asks for are listed.
void QmlAnalysisTest::everyMissingResourceIsFound()
{
    const Resources resources("resources");
    const QmlUses qml({frontEnd});
    QStringList silent;
    int count = 0;
    for (const ResourceKind kind : {ResourceKind::Icon, ResourceKind::Text, ResourceKind::Dimension,
                                    ResourceKind::FontSize, ResourceKind::FontGroup, ResourceKind::Color}) {
        const QStringList names = namesOf(resources, kind);
        for (const QString& name : names) {
            const QStringList parts = hasGroupArgument(kind) ? name.split('/') : QStringList(name);
            const bool isInCode = qml.literals().contains(parts.first()) && qml.literals().contains(parts.last());
            const KnownNames known(QStringList(names).filter(QRegularExpression("^(?!\\Q" + name + "\\E$)")));
            bool isFound = !isInCode;
            for (const QmlUse& use : qml.uses()) {
                if (use.kind == kind && !isFound)
                    UseCheck(use, known).run([&](const Place&, const QString&) { isFound = true; });
            }
            count += isInCode ? 1 : 0;
            if (!isFound && !list("not-asked-for.txt").contains(kindName(kind) + ' ' + name))
                silent.append(kindName(kind) + ' ' + name);
        }
    }
    QVERIFY(count > 100);
    QVERIFY2(silent.isEmpty(), qPrintable(silent.join('\n')));
}

} // namespace Tests

QTEST_MAIN(Tests::QmlAnalysisTest)
#include "QmlAnalysisTest.moc"
