#include "ResourceCheck/output/RuleOutput.h"

#include "ResourceCheck/rules/Record.h"
#include "ResourceCheck/rules/Rule.h"

namespace ResourceCheck
{

QByteArray ruleList()
{
    constexpr int nameWidth = 32;
    constexpr int severityWidth = 8;
    QByteArray list;
    for (const Rule& rule : allRules()) {
        list += QStringLiteral("%1%2%3\n")
                    .arg(rule.name, -nameWidth)
                    .arg(severityName(rule.severity), -severityWidth)
                    .arg(rule.reason)
                    .toUtf8();
    }
    return list;
}

QByteArray rulePage()
{
    QString page =
        QStringLiteral("# Rules of the checker\n\n"
                       "This page shows users of [the checker](tools.md#the-checker) what each rule finds and how "
                       "to repair it.\n`./scripts/rules-page.sh` generates it from the rules in the program.\n");
    for (const Rule& rule : allRules()) {
        page += QStringLiteral("\n## %1\n\nSeverity: %2. %3\n\n%4\n")
                    .arg(rule.name, severityName(rule.severity), rule.reason, rule.remedy);
    }
    return page.toUtf8();
}

QByteArray recordTable()
{
    QString table = QStringLiteral("| Record | Written by | Announced by |\n|---|---|---|\n");
    for (const Record& record : allRecords()) {
        QStringList links;
        for (const QString& rule : record.rules)
            links.append(QStringLiteral("[`%1`](checker-rules.md#%1)").arg(rule));
        const QString announcement =
            links.isEmpty() ? QStringLiteral("no rule: it %1").arg(record.reason) : links.join(QStringLiteral(", "));
        table += QStringLiteral("| `%1` | %2 | %3 |\n").arg(record.text, record.origin, announcement);
    }
    return table.toUtf8();
}

QByteArray explanation(const Rule& rule)
{
    return QStringLiteral("%1 (%2)\n\n%3\n\n%4\n\nTo silence it: --rule %1=off, or in DIR/.tarnis-check.ini:\n"
                          "[Rules]\n%1=off\n")
        .arg(rule.name, severityName(rule.severity), rule.reason, rule.remedy)
        .toUtf8();
}

} // namespace ResourceCheck
