#include "ResourceCheck/Check.h"

#include "ResourceCheck/rules/Rule.h"

#include <algorithm>
#include <tuple>

namespace ResourceCheck
{

QVector<Finding> check(const Project& project, const QHash<QString, Severity>& severities, const Progress& progress)
{
    QVector<Finding> findings;
    int done = 0;
    for (const Rule& rule : allRules()) {
        const Severity severity = severities.value(rule.name, rule.severity);
        if (severity != Severity::Off) {
            rule.check(project, [&](const Place& place, const QString& message) {
                findings.append({rule.name, severity, place, message});
            });
        }
        progress(++done, allRules().size());
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return std::tie(left.place.path, left.place.line, left.place.column)
            < std::tie(right.place.path, right.place.line, right.place.column);
    });
    return findings;
}

} // namespace ResourceCheck
