#include "ResourceCheck/Check.h"

#include "ResourceCheck/Rule.h"

#include <algorithm>
#include <tuple>

QVector<Finding> check(const Project& project, const QHash<QString, Severity>& severities)
{
    QVector<Finding> findings;
    for (const Rule& rule : allRules()) {
        const Severity severity = severities.value(rule.name, rule.severity);
        if (severity == Severity::Off)
            continue;
        rule.check(project, [&](const Place& place, const QString& message) {
            findings.append({rule.name, severity, place, message});
        });
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& left, const Finding& right) {
        return std::tie(left.place.path, left.place.line, left.place.column)
            < std::tie(right.place.path, right.place.line, right.place.column);
    });
    return findings;
}
