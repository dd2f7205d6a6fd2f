#include "ResourceCheck/Check.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Record.h"
#include "ResourceCheck/rules/Rule.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/TestProcess.h"

#include <QtTest>

#include <algorithm>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

using Files = QMap<QString, QByteArray>; // by their paths in the resource directory

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A small resource directory without a fault.
Files goodFiles()
{
    Files files{{"icons/mapping.json",
                 "{\n\"home\": {\n\"defaultContext\": \"day/home.svg\",\n"
                 "\"night\": \"night/home.svg\"\n}\n}\n"}};
    for (const QString name : {"colors.ini", "fonts.ini", "dimensions/800x480.ini", "texts/en.json", "texts/de.json",
                               "texts/de_AT.json", "icons/day/home.svg", "icons/night/home.svg"})
        files.insert(name, readFile("resources/" + name));
    return files;
}

// Breaks off, loses some bytes, has a duplicate line, a capital letter or a wrong token.
QByteArray damaged(const QByteArray& content, QRandomGenerator& random)
{
    static const QByteArrayList tokens{"[",  "]",    "=", "\"",  "{",   "}",     ":",  ",", "\n", "\xff",
                                       "\\", "null", "7", "../", "[ ]", "\"a\"", "\"", "x", " ",  QByteArray(1, '\0')};
    const int position = random.bounded(content.size() + 1);
    const int line = content.indexOf('\n', position) + 1;
    const QByteArray copy = content.mid(line, content.indexOf('\n', line) - line + 1);
    const QByteArrayList results{content.left(position), QByteArray(content).remove(position, random.bounded(1, 9)),
                                 QByteArray(content).insert(line, copy),
                                 QByteArray(content).replace(position, 1, content.mid(position, 1).toUpper()),
                                 QByteArray(content).insert(position, tokens.at(random.bounded(tokens.size())))};
    return results.at(random.bounded(results.size()));
}

void writeWithFaults(const QDir& directory, Files files, QRandomGenerator& random)
{
    const QStringList names = files.keys();
    for (int faults = random.bounded(1, 4); faults > 0; --faults) {
        QByteArray& content = files[names.at(random.bounded(names.size()))];
        content = damaged(content, random);
    }
    for (const QString& name : names)
        writeFile(directory.filePath(name), files.value(name));
    if (random.bounded(10) == 0)
        QFile::remove(directory.filePath(names.at(random.bounded(names.size()))));
}

void lookUpEverything(const QString& directory)
{
    const Resources resources(directory);
    const TarnisColorHandler colors(resources.colors.path());
    for (const ResourceFormat::IniEntry& entry : resources.colors.content().entries())
        colors.getColor(entry.group, entry.key);
    const TarnisFontHandler fonts(resources.fonts.path());
    for (const QString& group : resources.fonts.content().groups()) {
        QStringList keys = resources.fonts.content().keys(group);
        keys.isEmpty() ? QString() : fonts.getFontFamily(group);
        keys.removeAll(TarnisFontHandler::familyKey);
        for (const QString& key : qAsConst(keys))
            fonts.getFontPointSize(group, key);
    }
    TarnisElementDimensionHandler({}).loadUiElementDimensions({QSize(), directory + "/dimensions/800x480.ini"});
    const QByteArray table = readFile(directory + "/icons/mapping.json");
    const TarnisIconHandler icons(directory + "/icons", QString::fromUtf8(table));
    // Like a string, the table ends at a null character.
    const QJsonObject aliases = QJsonDocument::fromJson(table.left(table.indexOf('\0'))).object();
    for (const QString& alias : aliases.keys()) {
        icons.getIconPath(alias);
        for (const QString& context : aliases[alias].toObject().keys())
            context == "defaultContext" ? QString() : icons.getIconPath(alias, context);
    }
    const TextManager texts(directory + "/texts", QFile::exists(directory + "/texts/de_AT.json") ? "de_AT" : "de");
    const TarnisTextHandler handler(texts);
}

// The records for which the checker has not reported enough errors.
QStringList unannounced(QStringList records, const QVector<Finding>& findings)
{
    QMap<QStringList, QStringList> patterns; // by the rules of which one must have reported an error for each record
    for (const Record& record : allRecords())
        patterns[record.rules].append(record.pattern());
    patterns.remove({});
    for (auto kind = patterns.constBegin(); kind != patterns.constEnd(); ++kind) {
        const auto announces = [&](const Finding& finding) {
            return finding.severity == Severity::Error && kind.key().contains(finding.rule);
        };
        const QStringList others = records.filter(QRegularExpression("^(?!.*(" + kind->join('|') + "))"));
        if (records.size() - others.size() <= std::count_if(findings.begin(), findings.end(), announces))
            records = others;
    }
    return records;
}

} // namespace

class ParityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyDocumentedRecordHasARuleOrAReason();
    void checkerAnnouncesWhatTheLibraryLogs();
};

void ParityTest::everyDocumentedRecordHasARuleOrAReason()
{
    const QString page = QString::fromUtf8(readFile("docs/log-records.md")).replace("PATH", "x.json");
    QStringList documented;
    for (const QString& section : {page.section("\n## ", 1, 1), page.section("\n## ", 3, 3)}) {
        for (const QString& line : section.split('\n').filter(QRegularExpression("^\\| `")))
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

void ParityTest::checkerAnnouncesWhatTheLibraryLogs()
{
    const QTemporaryDir directory;
    const Files files = goodFiles();
    QRandomGenerator random(1);
    const LogRecorder recorder;
    int count = 0;
    for (int round = 0; round < 1000; ++round) {
        writeWithFaults(QDir(directory.path()), files, random);
        const QVector<Finding> findings = check({Resources(directory.path()), {}, {}, {}}, {});
        lookUpEverything(directory.path());
        const QStringList records = LogRecorder::take();
        count += records.size();
        const QString surprise = unannounced(records, findings).join('\n');
        QVERIFY2(surprise.isEmpty(), qPrintable("round " + QString::number(round) + ": " + surprise));
    }
    QVERIFY(count > 500);
}

} // namespace Tests

QTEST_MAIN(Tests::ParityTest)
#include "ParityTest.moc"
