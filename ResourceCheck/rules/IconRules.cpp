#include "Common/FileTools/RegularFile.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/Rule.h"
#include "ResourceCheck/rules/IconFiles.h"
#include "ResourceCheck/rules/ImageFile.h"
#include "ResourceCheck/rules/JsonFaults.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>

namespace
{

template <typename Function>
void forEachPath(const Project& project, const Function& function)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases) {
            for (const IconPath& path : alias.paths)
                function(path);
        }
    }
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

// Why the path does not stay in the icon directory; null if it does.
QString wayOut(const QString& path)
{
    if (path.startsWith(QLatin1Char('/')))
        return QStringLiteral("is absolute");
    const QString cleaned = QDir::cleanPath(path);
    const bool leaves = cleaned == QLatin1String("..") || cleaned.startsWith(QLatin1String("../"));
    return leaves ? QStringLiteral("leaves the icon directory") : QString();
}

QString absolute(const Project& project, const QString& path)
{
    return project.resources.iconDirectory + QLatin1Char('/') + path;
}

bool isFileInside(const Project& project, const QString& path)
{
    return wayOut(path).isNull() && QFileInfo(absolute(project, path)).isFile();
}

void checkJson(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        reportFault(table.file, report);
        for (const JsonValue& alias : table.file.root().members) {
            if (alias.type != JsonValue::Type::Object)
                report(alias.place, QStringLiteral("the alias \"%1\" is no object of contexts").arg(alias.name));
            for (const JsonValue& context : alias.members) {
                if (context.type != JsonValue::Type::String) {
                    report(context.place,
                           QStringLiteral("the context \"%1\" of the alias \"%2\" is no string")
                               .arg(context.name, alias.name));
                }
            }
        }
    }
}

void checkDuplicateAliases(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables)
        reportDuplicates(table.file.root(), QStringLiteral("alias"), report);
}

void checkDuplicateContexts(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const JsonValue& alias : aliasesOf(table))
            reportDuplicates(alias, QStringLiteral("context"), report);
    }
}

void checkDefault(const Project& project, const Report& report)
{
    const QString& required = TarnisIconHandler::defaultContextPathKey;
    for (const IconTable& table : project.resources.iconTables) {
        for (const JsonValue& alias : aliasesOf(table)) {
            if (!contextsOf(alias).contains(required))
                report(alias.namePlace, QStringLiteral("the alias \"%1\" has no %2").arg(alias.name, required));
        }
    }
}

void checkInside(const Project& project, const Report& report)
{
    forEachPath(project, [&](const IconPath& path) {
        const QString reason = wayOut(path.path);
        if (!reason.isNull())
            report(path.place, QStringLiteral("\"%1\" %2").arg(path.path, reason));
    });
}

// Hands over what names no file inside, with the file that it would name in another case of letters, if any.
template <typename Function>
void forEachDeadPath(const Project& project, const Function& function)
{
    const IconFiles files(project.resources.iconDirectory);
    forEachPath(project, [&](const IconPath& path) {
        if (wayOut(path.path).isNull() && !isFileInside(project, path.path))
            function(path, files.inOtherCase(path.path));
    });
}

void checkExistence(const Project& project, const Report& report)
{
    forEachDeadPath(project, [&](const IconPath& path, const QString& inOtherCase) {
        if (!inOtherCase.isNull())
            return;
        const bool exists = QFileInfo::exists(absolute(project, path.path));
        report(path.place,
               QStringLiteral("\"%1\" %2")
                   .arg(path.path, exists ? QStringLiteral("is no file") : QStringLiteral("does not exist")));
    });
}

void checkCase(const Project& project, const Report& report)
{
    forEachDeadPath(project, [&](const IconPath& path, const QString& inOtherCase) {
        if (!inOtherCase.isNull())
            report(path.place, QStringLiteral("\"%1\" does not exist, but \"%2\" does").arg(path.path, inOtherCase));
    });
}

void checkImages(const Project& project, const Report& report)
{
    QSet<QString> seen;
    forEachPath(project, [&](const IconPath& path) {
        if (!isFileInside(project, path.path))
            return;
        // Many an icon is a link to another.
        const QFileInfo file(absolute(project, path.path));
        const QString identity = file.canonicalFilePath() + QLatin1Char('.') + file.suffix();
        if (seen.contains(identity))
            return;
        seen.insert(identity);
        const QString fault = ImageFile::fault(file.filePath());
        if (!fault.isNull())
            report(path.place, QStringLiteral("\"%1\" %2").arg(path.path, fault));
    });
}

void checkMissingContexts(const QVector<JsonValue>& aliases, const Report& report)
{
    QHash<QString, int> counts;
    for (const JsonValue& alias : aliases) {
        for (const QString& context : contextsOf(alias))
            ++counts[context];
    }
    counts.remove(TarnisIconHandler::defaultContextPathKey);
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        if (*count * 2 <= aliases.size())
            continue;
        for (const JsonValue& alias : aliases) {
            if (!contextsOf(alias).contains(count.key())) {
                report(alias.namePlace,
                       QStringLiteral("the alias \"%1\" has no %2, which %3 of %4 aliases have")
                           .arg(alias.name, count.key(), QString::number(*count), QString::number(aliases.size())));
            }
        }
    }
}

void checkMissingContexts(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables)
        checkMissingContexts(aliasesOf(table), report);
}

void checkSameContent(const Project& project, const IconAlias& alias, const Report& report)
{
    QHash<QByteArray, QString> contexts;
    for (const IconPath& path : alias.paths) {
        QString problem;
        if (!isFileInside(project, path.path))
            continue;
        const QByteArray content = RegularFile::readAll(absolute(project, path.path), problem);
        const QString first = contexts.value(content, path.context);
        contexts.insert(content, first);
        if (first != path.context) {
            report(path.place,
                   QStringLiteral("the alias \"%1\" has the same icon for %2 and %3")
                       .arg(alias.name, first, path.context));
        }
    }
}

void checkSameContent(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        for (const IconAlias& alias : table.aliases)
            checkSameContent(project, alias, report);
    }
}

bool isMappingTable(const QString& path)
{
    return path.startsWith(QLatin1String("mapping")) && path.endsWith(QLatin1String(".json"))
        && !path.contains(QLatin1Char('/'));
}

void checkUnusedFiles(const Project& project, const Report& report)
{
    for (const IconTable& table : project.resources.iconTables) {
        if (!table.file.problem().isNull() || !table.file.fault().isNull())
            return;
    }
    const IconFiles files(project.resources.iconDirectory);
    const QDir directory(QFileInfo(project.resources.iconDirectory).canonicalFilePath());
    QSet<QString> used; // with what links lead to
    forEachPath(project, [&](const IconPath& path) {
        const QString file = directory.filePath(QDir::cleanPath(path.path));
        used.insert(file);
        used.insert(QFileInfo(file).canonicalFilePath());
        used.insert(directory.filePath(files.inOtherCase(path.path)));
    });
    for (const QString& path : files.paths()) {
        const QFileInfo file(directory.filePath(path));
        if (!isMappingTable(path) && !used.contains(file.filePath()) && !file.isSymLink())
            report({absolute(project, path)}, QStringLiteral("is named in no mapping table"));
    }
}

} // namespace

QVector<Rule> iconRules()
{
    return {
        {QStringLiteral("icon-json"), Severity::Error,
         QStringLiteral("A mapping table that is no JSON object gives no icon at all; an alias or a path of the wrong "
                        "type is left out, with a warning in the log."),
         checkJson},
        {QStringLiteral("icon-duplicate-alias"), Severity::Error,
         QStringLiteral("Of several aliases under one name a device keeps one, not always the last."),
         checkDuplicateAliases},
        {QStringLiteral("icon-duplicate-context"), Severity::Error,
         QStringLiteral("Of several contexts under one name a device keeps one, not always the last."),
         checkDuplicateContexts},
        {QStringLiteral("icon-no-default"), Severity::Error,
         QStringLiteral(
             "Where an alias does not list the context that is asked for, the default one stands in; without "
             "it there is no icon."),
         checkDefault},
        {QStringLiteral("icon-missing-file"), Severity::Error,
         QStringLiteral("An icon whose file does not exist is not shown."), checkExistence},
        {QStringLiteral("icon-outside"), Severity::Error,
         QStringLiteral("Paths start at the icon directory; what lies outside is not brought to the device with it."),
         checkInside},
        {QStringLiteral("icon-case"), Severity::Error,
         QStringLiteral("A device tells capital letters from small ones in the names of files: the icon is not shown."),
         checkCase},
        {QStringLiteral("icon-unreadable"), Severity::Error,
         QStringLiteral("An image that cannot be read, or is not what its name says, is not shown as it should."),
         checkImages},
        {QStringLiteral("icon-missing-context"), Severity::Warning,
         QStringLiteral("Where an alias lacks a context, the icon of the default one is shown among those of the "
                        "context."),
         checkMissingContexts},
        {QStringLiteral("icon-same"), Severity::Warning,
         QStringLiteral("An icon that is the same in two contexts does not change when the context does."),
         checkSameContent},
        {QStringLiteral("icon-unused-file"), Severity::Warning,
         QStringLiteral("A file that no mapping table names takes room on the device and is never shown."),
         checkUnusedFiles},
    };
}
