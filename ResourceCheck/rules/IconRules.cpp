#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceCheck/rules/JsonFaults.h"
#include "ResourceFormat/RegularFile.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QDirIterator>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{

template <void (*check)(const IconTable& table, const Report& report)>
void forEachTable(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables)
        check(table, report);
}

QVector<IconPath> pathsOf(const Project& project)
{
    QVector<IconPath> paths;
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases)
            paths += alias.paths;
    }
    return paths;
}

// With all their contexts, whatever the type of the path.
QVector<JsonValue> aliasesOf(const IconTable& table)
{
    QVector<JsonValue> aliases;
    for (const JsonValue& alias : table.file.root().members) {
        if (alias.type == JsonValue::Type::Object)
            aliases.append(alias);
    }
    return aliases;
}

QSet<QString> contextsOf(const JsonValue& alias)
{
    QSet<QString> contexts;
    for (const JsonValue& context : alias.members)
        contexts.insert(context.name);
    return contexts;
}

void checkJson(const IconTable& table, const Report& report)
{
    reportFault(table.file, report);
    reportOtherTypes(table.file.root(), JsonValue::Type::Object, QStringLiteral("alias"), report);
    for (const JsonValue& alias : aliasesOf(table)) {
        const QString kind = QStringLiteral("path of the alias \"%1\" for").arg(alias.name);
        reportOtherTypes(alias, JsonValue::Type::String, kind, report);
    }
}

void checkDuplicateAliases(const IconTable& table, const Report& report)
{
    reportDuplicates(table.file.root(), QStringLiteral("alias"), report);
}

void checkDuplicateContexts(const IconTable& table, const Report& report)
{
    for (const JsonValue& alias : aliasesOf(table))
        reportDuplicates(alias, QStringLiteral("context"), report);
}

void reportLacking(const IconTable& table, const QString& context, const QString& addition, const Report& report)
{
    for (const JsonValue& alias : aliasesOf(table)) {
        if (!contextsOf(alias).contains(context))
            report(alias.namePlace, QStringLiteral("the alias \"%1\" has no %2%3").arg(alias.name, context, addition));
    }
}

void checkDefault(const IconTable& table, const Report& report)
{
    reportLacking(table, TarnisIconHandler::defaultContextPathKey, QString(), report);
}

void checkMissingContexts(const IconTable& table, const Report& report)
{
    const QVector<JsonValue> aliases = aliasesOf(table);
    QMap<QString, int> counts;
    for (const JsonValue& alias : aliases) {
        for (const QString& context : contextsOf(alias))
            ++counts[context];
    }
    counts.remove(TarnisIconHandler::defaultContextPathKey);
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        const QString addition = QStringLiteral(", which %1 of %2 aliases have").arg(*count).arg(aliases.size());
        if (*count * 2 > aliases.size())
            reportLacking(table, count.key(), addition, report);
    }
}

bool isOutside(const QString& path)
{
    const QString cleaned = QDir::cleanPath(path);
    return path.startsWith(QLatin1Char('/')) || cleaned == QLatin1String("..")
        || cleaned.startsWith(QLatin1String("../"));
}

void checkInside(const Project& project, const Report& report)
{
    for (const IconPath& path : pathsOf(project)) {
        if (isOutside(path.path))
            report(path.place, QStringLiteral("\"%1\" is no path below the icon directory").arg(path.path));
    }
}

QFileInfo fileOf(const Project& project, const QString& path)
{
    return QFileInfo(project.resources.iconDirectory + QLatin1Char('/') + path);
}

bool isFileInside(const Project& project, const QString& path)
{
    return !isOutside(path) && fileOf(project, path).isFile();
}

// Those that are not hidden, as they are written, by their paths in one case of letters.
QMultiHash<QString, QString> filesBelow(const QString& directory)
{
    QMultiHash<QString, QString> files;
    for (QDirIterator iterator(directory, QDir::Files, QDirIterator::Subdirectories); iterator.hasNext();) {
        const QString path = iterator.next().mid(directory.size() + 1);
        files.insert(path.toCaseFolded(), path);
    }
    return files;
}

template <bool isCase>
void checkExistence(const Project& project, const Report& report)
{
    const QMultiHash<QString, QString> files = filesBelow(project.resources.iconDirectory);
    for (const IconPath& path : pathsOf(project)) {
        const QString other = files.value(QDir::cleanPath(path.path).toCaseFolded());
        if (isOutside(path.path) || other.isNull() == isCase || isFileInside(project, path.path))
            continue;
        const bool exists = fileOf(project, path.path).exists();
        const QString fault = exists ? QStringLiteral("is no file") : QStringLiteral("does not exist");
        const QString addition = isCase ? QStringLiteral(", but \"%1\" does").arg(other) : QString();
        report(path.place, QStringLiteral("\"%1\" %2%3").arg(path.path, fault, addition));
    }
}

// The reader of one format takes all of its family, whatever the file is called.
QByteArray familyOf(const QByteArray& format)
{
    static const QHash<QByteArray, QByteArray> families{
        {"jpg", "jpeg"}, {"svgz", "svg"}, {"cur", "ico"}, {"pgm", "pbm"}, {"ppm", "pbm"}};
    return families.value(format, format);
}

// Why the picture cannot be shown as what its name says it is; null if it can.
QString imageFault(const QFileInfo& file)
{
    static const QList<QByteArray> knownFormats = QImageReader::supportedImageFormats();
    const QByteArray suffix = file.suffix().toLower().toLatin1();
    QImageReader reader(file.filePath());
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    const QString formatName = QString::fromLatin1(format.toUpper());
    if (format.isEmpty())
        return QStringLiteral("is of no format that can be shown");
    if (knownFormats.contains(suffix) && familyOf(suffix) != familyOf(format))
        return QStringLiteral("is not what its name says, but %1").arg(formatName);
    // For its size the whole of an SVG is read; drawing it takes long and cannot fail.
    const bool isDrawable = !reader.size().isEmpty() && (familyOf(format) == "svg" || !reader.read().isNull());
    return isDrawable ? QString() : QStringLiteral("is a broken %1, or one without a size").arg(formatName);
}

void checkImages(const Project& project, const Report& report)
{
    // What Qt's readers have to say of a fault would stand among the findings.
    const QtMessageHandler handler =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QSet<QString> seen;
    for (const IconPath& path : pathsOf(project)) {
        const QFileInfo file = fileOf(project, path.path);
        // Many an icon is a link to another.
        const QString identity = file.canonicalFilePath() + QLatin1Char('.') + file.suffix();
        if (!isFileInside(project, path.path) || seen.contains(identity))
            continue;
        seen.insert(identity);
        const QString fault = imageFault(file);
        if (!fault.isNull())
            report(path.place, QStringLiteral("\"%1\" %2").arg(path.path, fault));
    }
    qInstallMessageHandler(handler);
}

void reportSame(const Project& project, const IconAlias& alias, const Report& report)
{
    QHash<QByteArray, QString> contexts;
    for (const IconPath& path : alias.paths) {
        if (!isFileInside(project, path.path))
            continue;
        QString problem;
        const QByteArray content = ResourceFormat::RegularFile::readAll(fileOf(project, path.path).filePath(), problem);
        const QString first = contexts.value(content, path.context);
        contexts.insert(content, first);
        if (first != path.context)
            report(path.place, QStringLiteral("the alias \"%1\" has this icon for %2 too").arg(alias.name, first));
    }
}

void checkSame(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases)
            reportSame(project, alias, report);
    }
}

// What the tables name, in whatever case of letters, or what links among it lead to.
QSet<QString> usedFiles(const Project& project, const QMultiHash<QString, QString>& files)
{
    QSet<QString> used;
    for (const IconPath& path : pathsOf(project)) {
        const QFileInfo file = fileOf(project, path.path);
        const QString inAnyCase = files.value(QDir::cleanPath(path.path).toCaseFolded());
        used.insert((file.exists() ? file : fileOf(project, inAnyCase)).canonicalFilePath());
    }
    return used;
}

void checkUnused(const Project& project, const Report& report)
{
    const QVector<IconTable>& tables = project.resources.iconTables;
    if (!std::all_of(tables.begin(), tables.end(), [](const IconTable& table) { return table.file.isSound(); }))
        return;
    const QMultiHash<QString, QString> files = filesBelow(project.resources.iconDirectory);
    const QSet<QString> used = usedFiles(project, files);
    const QDir directory(QFileInfo(project.resources.iconDirectory).canonicalFilePath());
    const QRegularExpression tableName(QStringLiteral("\\Amapping[^/]*\\.json\\z"));
    for (const QString& path : files) {
        const QFileInfo file = fileOf(project, path);
        if (!used.contains(directory.filePath(path)) && !file.isSymLink() && !tableName.match(path).hasMatch())
            report({file.filePath()}, QStringLiteral("is named in no mapping table"));
    }
}

} // namespace

QVector<Rule> iconRules()
{
    return {
        {QStringLiteral("icon-json"), Severity::Error,
         QStringLiteral("A device leaves out what is not of this form, and warns of it in the log."),
         forEachTable<checkJson>},
        {QStringLiteral("icon-duplicate-alias"), Severity::Error,
         QStringLiteral("Of several aliases under one name a device keeps one, not always the last."),
         forEachTable<checkDuplicateAliases>},
        {QStringLiteral("icon-duplicate-context"), Severity::Error,
         QStringLiteral("Of several contexts under one name a device keeps one, not always the last."),
         forEachTable<checkDuplicateContexts>},
        {QStringLiteral("icon-no-default"), Severity::Error,
         QStringLiteral("In a context that the alias does not list, no icon is shown."), forEachTable<checkDefault>},
        {QStringLiteral("icon-missing-file"), Severity::Error,
         QStringLiteral("An icon whose file does not exist is not shown."), checkExistence<false>},
        {QStringLiteral("icon-outside"), Severity::Error,
         QStringLiteral("Only what lies below the icon directory comes to the device with it."), checkInside},
        {QStringLiteral("icon-case"), Severity::Error,
         QStringLiteral("Capital letters count in the names of files: the icon is not shown."), checkExistence<true>},
        {QStringLiteral("icon-unreadable"), Severity::Error,
         QStringLiteral("A picture that cannot be read, or is not what its name says, is not shown as meant."),
         checkImages},
        {QStringLiteral("icon-missing-context"), Severity::Warning,
         QStringLiteral("The icon of the default context is shown among those of the missing one."),
         forEachTable<checkMissingContexts>},
        {QStringLiteral("icon-same"), Severity::Warning,
         QStringLiteral("The icon does not change when the context does."), checkSame},
        {QStringLiteral("icon-unused-file"), Severity::Warning,
         QStringLiteral("The file takes room on the device and is never shown."), checkUnused},
    };
}
