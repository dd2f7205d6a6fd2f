#include "tests/recall/Announcements.h"

#include "ResourceCheck/Check.h"
#include "ResourceCheck/rules/Record.h"
#include "ResourceCheck/rules/Rule.h"

#include <QRegularExpression>

#include <algorithm>

namespace Tests
{

using namespace ResourceCheck;

namespace
{

// Rules that announce no record are switched off. Those that draw pictures are slow.
QHash<QString, Severity> relevantRules()
{
    QHash<QString, Severity> severities;
    for (const Rule& rule : allRules()) {
        const bool isAnnouncing = std::any_of(allRecords().begin(), allRecords().end(), [&](const Record& record) {
            return record.rules.contains(rule.name) && !rule.name.startsWith("svg-") && rule.name != "icon-unreadable";
        });
        severities[rule.name] = isAnnouncing ? Severity::Error : Severity::Off;
    }
    return severities;
}

QVector<QRegularExpression> recordPatterns()
{
    QVector<QRegularExpression> patterns;
    for (const Record& record : allRecords())
        patterns.append(QRegularExpression(record.pattern()));
    return patterns;
}

} // namespace

Announcements::Announcements(const QString& resourceDirectory, const QString& frontEnd)
    : resources(resourceDirectory)
    , qml(frontEnd)
    , initialProject{Resources(resources), QmlUses({qml}), {}, {}}
    , known(findings(initialProject))
{
}

QStringList Announcements::initial() const
{
    return known.values();
}

void Announcements::check(bool areResourcesChanged)
{
    const Project project = areResourcesChanged ? Project{Resources(resources), initialProject.qml, {}, {}}
                                                : Project{initialProject.resources, QmlUses({qml}), {}, {}};
    rules.clear();
    for (const QString& finding : findings(project)) {
        if (!known.contains(finding))
            rules.insert(finding.section(' ', 0, 0));
    }
}

bool Announcements::announce(const QString& logged) const
{
    static const QVector<QRegularExpression> patterns = recordPatterns();
    for (int index = 0; index < patterns.size(); ++index) {
        const QStringList& announcing = allRecords().at(index).rules;
        if (patterns.at(index).match(logged).hasMatch())
            return rules.intersects(QSet<QString>(announcing.begin(), announcing.end()));
    }
    return areThere();
}

QSet<QString> Announcements::findings(const Project& project)
{
    static const QHash<QString, Severity> severities = relevantRules();
    QSet<QString> texts;
    for (const Finding& finding : ResourceCheck::check(project, severities))
        texts.insert(finding.rule + ' ' + finding.message);
    return texts;
}

} // namespace Tests
