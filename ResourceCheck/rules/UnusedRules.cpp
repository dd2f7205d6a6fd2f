#include "ResourceCheck/Project.h"
#include "ResourceCheck/ResourceNames.h"
#include "ResourceCheck/Rule.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{

// What the QML names of one kind, in one way or another.
class UsedNames
{
public:
    UsedNames(const QmlUses& qml, ResourceKind kind)
        : literals(qml.literals())
    {
        for (const QmlUse& use : qml.uses()) {
            if (use.kind != kind)
                continue;
            for (const QmlPattern& key : use.keys) {
                // The most are of this kind and need no pattern.
                if (!key.isLiteral() || !literals.contains(key.text()))
                    addPatterns(use, key);
            }
        }
    }

    bool contain(const ResourceName& resource) const
    {
        return literals.contains(resource.key) || literals.contains(resource.name)
            || std::any_of(patterns.begin(), patterns.end(),
                           [&resource](const QmlPattern& pattern) { return pattern.matches(resource.name); });
    }

private:
    void addPatterns(const QmlUse& use, const QmlPattern& key)
    {
        for (const QmlPattern& group : use.groups) {
            const QmlPattern name = use.name(group, key);
            if (name.isLiteral())
                literals.insert(name.text());
            else if (group.hasText() || key.hasText())
                patterns.insert(name.text(), name);
        }
    }

    QSet<QString> literals;
    QHash<QString, QmlPattern> patterns; // by their texts, so that each is there once
};

QRegularExpression wildcard(const QString& pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QStringLiteral("\\*"), QStringLiteral(".*")).replace(QStringLiteral("\\?"), QStringLiteral("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression),
                              QRegularExpression::DotMatchesEverythingOption);
}

void checkUnused(const Project& project, const Report& report, ResourceKind kind, const QString& what)
{
    if (!project.qml || !project.qml->faults().isEmpty()) // what is used where QML could not be read is not known
        return;
    QVector<QRegularExpression> kept;
    for (const QString& pattern : project.kept)
        kept.append(wildcard(pattern));
    const UsedNames used(*project.qml, kind);
    for (const ResourceName& resource : ResourceNames(project.resources, kind).list) {
        const auto matches = [&resource](const QRegularExpression& pattern) {
            return pattern.match(resource.name).hasMatch();
        };
        if (!used.contain(resource) && std::none_of(kept.begin(), kept.end(), matches))
            report(resource.place, QStringLiteral("the %1 \"%2\" is not used").arg(what, resource.name));
    }
}

void checkColors(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::Color, QStringLiteral("color"));
}

void checkFonts(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::FontSize, QStringLiteral("font size"));
}

void checkDimensions(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::Dimension, QStringLiteral("dimension"));
}

void checkIcons(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::Icon, QStringLiteral("icon"));
}

void checkTexts(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::Text, QStringLiteral("text"));
}

} // namespace

QVector<Rule> unusedRules()
{
    return {
        {QStringLiteral("unused-color"), Severity::Warning,
         QStringLiteral("A color that nothing shows is still read at every start."), checkColors},
        {QStringLiteral("unused-font"), Severity::Warning,
         QStringLiteral("A font size that nothing shows is still read at every start."), checkFonts},
        {QStringLiteral("unused-dimension"), Severity::Warning,
         QStringLiteral("A dimension that nothing is laid out by is still read for every display and kept in memory."),
         checkDimensions},
        {QStringLiteral("unused-icon"), Severity::Warning,
         QStringLiteral("An icon that nothing shows takes room on the device, and its alias is read at every start."),
         checkIcons},
        {QStringLiteral("unused-text"), Severity::Warning,
         QStringLiteral("A text that nothing shows is translated for nothing and kept in memory."), checkTexts},
    };
}
