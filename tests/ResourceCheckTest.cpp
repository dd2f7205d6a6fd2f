#include "ResourceCheck/Check.h"
#include "ResourceCheck/Project.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisColorHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisElementDimensionHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisFontHandler.h"
#include "TarnisLibrary/DeviceUiResourcesLibrary/TarnisTextHandler.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"
#include "tests/support/LogRecorder.h"
#include "tests/support/Rows.h"
#include "tests/support/TestProcess.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>

namespace
{

// Arguments, exit status, and a part of what is said.
const Rows calls{
    "                                                | 2 | DIR is missing",
    "nowhere                                         | 2 | nowhere",
    "--what resources                                | 2 | Unknown option 'what'",
    "--rule icon-sam=off resources                   | 2 | icon-sam",
    "--rule icon-same=maybe resources                | 2 | maybe",
    "--format xml resources                          | 2 | xml",
    "--contrast Day/Text resources                   | 2 | Day/Text",
    "--explain icon-same                             | 0 | icon-same=off",
    "resources                                       | 0 | ",
    "--contrast Day/Divider:Day/Surface resources    | 0 | contrast of Day/Divider on Day/Surface is 1.3",
    "--werror --contrast Day/Divider:Day/Surface resources | 1 | error: contrast",
    "--rule color-contrast=error --contrast Day/Divider:Day/Surface resources | 1 | error: contrast",
    "--summary --qml Gallery/qml resources           | 0 | unused-icon",
    "resolve resources icon home nightMode           | 0 | night/home.svg",
    "resolve resources icon home sepia               | 0 | day/home.svg",
    "resolve resources icon hone                     | 1 | Unknown alias",
    "resolve resources color Day Accent              | 0 | #0b7a75",
    "resolve resources font Text Normal              | 0 | 13.5",
    "resolve resources dimension 790x470 Tile/width  | 0 | 248",
    "resolve resources text text://Month/January de_AT | 0 | Jänner",
    "resolve resources text text://Month/January ja_JP | 0 | ja.json",
    "resolve resources text text://Nothing en        | 1 | ",
};
// What a record of the library tells, and the rules that must have told it before.
const std::vector<std::pair<QRegularExpression, QStringList>> announcements{
    {QRegularExpression("Cannot read \""), {"file-unreadable", "text-no-fallback"}},
    {QRegularExpression("^platform.ini .*:\\d+: "), {"ini-syntax"}},
    {QRegularExpression("^platform.text "), {"text-json"}},
    {QRegularExpression("Failed to parse icon mapping json!"), {"icon-json", "file-unreadable"}},
    {QRegularExpression("Unknown context"), {"icon-no-default", "icon-json"}},
    {QRegularExpression("Icon file .* does not exist"), {"icon-missing-file", "icon-outside", "icon-case"}},
    {QRegularExpression("Unknown font group"), {"font-family-missing"}},
    {QRegularExpression("to be a number!"), {"font-size-invalid"}},
};

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A small resource directory without a fault, file by file.
QMap<QString, QByteArray> goodFiles()
{
    QMap<QString, QByteArray> files;
    for (const QString name : {"colors.ini", "fonts.ini", "dimensions/800x480.ini", "texts/en.json", "texts/de.json",
                               "texts/de_AT.json", "icons/day/home.svg", "icons/night/home.svg"})
        files.insert(name, readFile("resources/" + name));
    files.insert("icons/mapping.json",
                 "{\n  \"home\": {\n    \"defaultContext\": \"day/home.svg\",\n"
                 "    \"night\": \"night/home.svg\"\n  }\n}\n");
    return files;
}

QByteArray damaged(QByteArray content, QRandomGenerator& random)
{
    static const QByteArrayList tokens{"[",  "]",    "=", "\"",  "{",   "}",     ":",  ",", "\n", "\xff",
                                       "\\", "null", "7", "../", "[ ]", "\"a\"", "\"", "x", " ",  QByteArray(1, '\0')};
    const int position = random.bounded(content.size() + 1);
    const int line = content.indexOf('\n', position) + 1;
    switch (random.bounded(5)) {
    case 0:
        return content.left(position);
    case 1:
        return content.remove(position, random.bounded(1, 9));
    case 2:
        return content.insert(line, content.mid(line, content.indexOf('\n', line) - line + 1));
    case 3:
        return content.replace(position, 1, content.mid(position, 1).toUpper());
    default:
        return content.insert(position, tokens.at(random.bounded(tokens.size())));
    }
}

QVector<ResourceFormat::IniEntry> entriesOf(const QString& path)
{
    return ResourceFormat::IniParser(readFile(path), *QTextCodec::codecForName("UTF-8")).entries();
}

void lookUpEverything(const QString& directory)
{
    const TarnisColorHandler colors(directory + "/colors.ini");
    for (const IniEntry& entry : entriesOf(directory + "/colors.ini"))
        colors.getColor(entry.group, entry.key);
    const TarnisFontHandler fonts(directory + "/fonts.ini");
    QMap<QString, QSet<QString>> sizes;
    for (const IniEntry& entry : entriesOf(directory + "/fonts.ini"))
        sizes[entry.group].insert(entry.key);
    for (auto group = sizes.begin(); group != sizes.end(); ++group) {
        fonts.getFontFamily(group.key());
        for (const QString& key : group->subtract({"Family"}))
            fonts.getFontPointSize(group.key(), key);
    }
    TarnisElementDimensionHandler({}).loadUiElementDimensions({QSize(), directory + "/dimensions/800x480.ini"});
    const QByteArray table = readFile(directory + "/icons/mapping.json");
    const TarnisIconHandler icons(directory + "/icons", QString::fromUtf8(table));
    const QJsonObject aliases = QJsonDocument::fromJson(table).object();
    for (const QString& alias : aliases.keys()) {
        icons.getIconPath(alias);
        for (const QString& context : aliases[alias].toObject().keys())
            context == "defaultContext" ? QString() : icons.getIconPath(alias, context);
    }
    const TextManager texts(directory + "/texts", QFile::exists(directory + "/texts/de_AT.json") ? "de_AT" : "de");
    const TarnisTextHandler handler(texts);
}

QByteArrayList linesOf(const QByteArray& text)
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
    void everyRecordIsAnnounced();
};

// expected.txt holds all that is to be found: place, severity and rule, without the messages.
void ResourceCheckTest::everyRuleFindsItsFault()
{
    QByteArray expected;
    for (const QString twin : {"tests/broken-twin/", "tests/unreadable-twin/"}) {
        const Outcome outcome = run(RESOURCE_CHECK, {"--qml", twin + "qml", twin + "resources"});
        QCOMPARE(outcome.exitStatus, 1);
        const QRegularExpression message(": (error|warning): .* (\\[[a-z-]+\\])");
        const QString found = QString::fromUtf8(outcome.output).remove(twin).replace(message, ": \\1 \\2");
        QCOMPARE(linesOf(found.toUtf8()), linesOf(readFile(twin + "expected.txt")));
        expected += found.toUtf8();
    }
    for (const QByteArray& rule : linesOf(run(RESOURCE_CHECK, {"--list-rules"}).output))
        QVERIFY2(expected.contains('[' + rule.left(rule.indexOf(' ')) + ']'), rule);
}

void ResourceCheckTest::formatsAgree()
{
    const auto runAs = [](const QString& format) {
        return run(RESOURCE_CHECK, {"--format", format, "tests/broken-twin/resources"}).output;
    };
    const int count = linesOf(runAs("text")).size();
    QCOMPARE(QJsonDocument::fromJson(runAs("json")).array().size(), count);
    const QByteArray sarif = runAs("sarif");
    QCOMPARE(QJsonDocument::fromJson(sarif)["runs"][0]["results"].toArray().size(), count);
    const QTemporaryDir directory;
    const Outcome validation = run("tests/validate-sarif.py", {writeFile(directory.filePath("a.sarif"), sarif)});
    QVERIFY2(validation.exitStatus == 0, validation.output + validation.errors);
}

void ResourceCheckTest::call_data()
{
    addRows(calls);
}

void ResourceCheckTest::call()
{
    const auto [arguments, status, text] = cells<3>();
    const Outcome outcome = run(RESOURCE_CHECK, arguments.split(' ', Qt::SkipEmptyParts));
    QCOMPARE(outcome.exitStatus, status.toInt());
    const QByteArray said = outcome.output + outcome.errors;
    QVERIFY2(QString::fromUtf8(said).contains(text), said);
}

// Whatever is done to the files: what the library will log was an error at the desk.
void ResourceCheckTest::everyRecordIsAnnounced()
{
    const QTemporaryDir directory;
    const QMap<QString, QByteArray> files = goodFiles();
    QRandomGenerator random(1);
    const LogRecorder recorder;
    int records = 0;
    for (int round = 0; round < 1000; ++round) {
        for (auto file = files.begin(); file != files.end(); ++file)
            writeFile(directory.filePath(file.key()), file.value());
        for (int faults = random.bounded(1, 4); faults > 0; --faults) {
            const QString name = files.keys().at(random.bounded(files.size()));
            const QString path = directory.filePath(name);
            if (random.bounded(20) == 0)
                QFile::remove(path);
            else
                writeFile(path, damaged(readFile(path), random));
        }
        QHash<QString, int> errors;
        for (const Finding& finding : check({Resources(directory.path()), {}, {}, {}}, {}))
            errors[finding.rule] += finding.severity == Severity::Error ? 1 : 0;
        LogRecorder::take();
        lookUpEverything(directory.path());
        QStringList log = LogRecorder::take();
        records += log.size();
        const QByteArray context = "round " + QByteArray::number(round) + "\n" + log.join('\n').toUtf8();
        for (const auto& [record, rules] : announcements) {
            int announced = 0;
            for (const QString& rule : rules)
                announced += errors.value(rule);
            const int before = log.size();
            log = log.filter(QRegularExpression("^(?!.*(" + record.pattern() + "))"));
            QVERIFY2(before - log.size() <= announced, context);
        }
        QVERIFY2(log.isEmpty(), context);
    }
    QVERIFY(records > 500);
}

QTEST_MAIN(ResourceCheckTest)
#include "ResourceCheckTest.moc"
