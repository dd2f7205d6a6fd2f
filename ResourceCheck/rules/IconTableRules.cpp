#include "ResourceCheck/Project.h"
#include "ResourceCheck/rules/JsonFaults.h"
#include "ResourceCheck/rules/Rule.h"
#include "TarnisLibrary/IconProviderLibrary/TarnisIconHandler.h"

#include <QMap>
#include <QSet>

namespace ResourceCheck
{

namespace
{

Rule::Check forEachTable(void (*check)(const IconTable& table, const Report& report))
{
    return [check](const Project& project, const Report& report) {
        for (const IconTable& table : project.resources.iconTables)
            check(table, report);
    };
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
    reportTableFaults(table.file, report);
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

void checkDefault(const IconTable& table, const Report& report)
{
    const QString& context = TarnisIconHandler::defaultContextPathKey;
    for (const JsonValue& alias : aliasesOf(table)) {
        if (!contextsOf(alias).contains(context)) {
            report(alias.namePlace,
                   QStringLiteral("the alias \"%1\" has no context \"%2\"; add it").arg(alias.name, context));
        }
    }
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
        for (const JsonValue& alias : aliases) {
            if (*count * 2 <= aliases.size() || contextsOf(alias).contains(count.key()))
                continue;
            report(alias.namePlace,
                   QStringLiteral("the alias \"%1\" has no context \"%2\", but %3 of %4 aliases have it; add it")
                       .arg(alias.name, count.key(), QString::number(*count), QString::number(aliases.size())));
        }
    }
}

} // namespace

QVector<Rule> iconTableRules()
{
    return {
        {QStringLiteral("icon-json"), Severity::Error,
         QStringLiteral("A device skips everything that does not have the expected form and logs a warning."),
         forEachTable(checkJson),
         QStringLiteral("The mapping table is a JSON object of aliases. Each alias is an object, and each of its "
                        "contexts is the path of a file as a string.")},
        {QStringLiteral("icon-duplicate-alias"), Severity::Error,
         QStringLiteral("A device keeps only one of several aliases with the same name, not always the last."),
         forEachTable(checkDuplicateAliases), QStringLiteral("Rename or remove one of the aliases.")},
        {QStringLiteral("icon-duplicate-context"), Severity::Error,
         QStringLiteral("A device keeps only one of several contexts with the same name, not always the last."),
         forEachTable(checkDuplicateContexts), QStringLiteral("Rename or remove one of the contexts.")},
        {QStringLiteral("icon-no-default"), Severity::Error,
         QStringLiteral("No icon is shown in a context that the alias does not list."), forEachTable(checkDefault),
         QStringLiteral("Add `\"defaultContext\": \"PATH\"` to the alias.")},
        {QStringLiteral("icon-missing-context"), Severity::Warning,
         QStringLiteral("In the missing context the icon of the default context is shown among the others."),
         forEachTable(checkMissingContexts),
         QStringLiteral("Add the context to the alias, if the icon must look different there. The rule reports an "
                        "alias if more than half of all aliases have the context.")},
    };
}

} // namespace ResourceCheck
