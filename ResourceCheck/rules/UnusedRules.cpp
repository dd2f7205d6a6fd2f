#include "ResourceCheck/Project.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace
{

using Patterns = QHash<QString, QmlPattern>; // by their texts, so that each is there once

// What the QML asks for beyond its literals.
Patterns patternsOf(const QmlUses& qml, ResourceKind kind)
{
    Patterns patterns;
    for (const QmlUse& use : qml.uses()) {
        if (use.kind != kind)
            continue;
        for (const QmlPattern& key : use.keys) {
            if (key.isLiteral() && qml.literals().contains(key.text()))
                continue;
            for (const QmlPattern& group : use.groups) {
                if (group.hasText() || key.hasText())
                    patterns.insert(use.name(group, key).text(), use.name(group, key));
            }
        }
    }
    return patterns;
}

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
    const QSet<QString>& literals = project.qml->literals();
    const Patterns patterns = patternsOf(*project.qml, kind);
    const auto isUsed = [&](const ResourceName& resource) {
        const QString& name = resource.name;
        return literals.contains(resource.key) || literals.contains(name)
            || std::any_of(patterns.begin(), patterns.end(), [&](const auto& pattern) { return pattern.matches(name); })
            || std::any_of(kept.begin(), kept.end(), [&](const auto& one) { return one.match(name).hasMatch(); });
    };
    const ResourceNames resources(project.resources, kind);
    for (const ResourceName& resource : resources.list()) {
        if (!isUsed(resource))
            report(resource.place, QStringLiteral("the %1 \"%2\" is not used").arg(what, resource.name));
    }
}

void checkColors(const Project& project, const Report& report)
{
    checkUnused(project, report, ResourceKind::Color, QStringLiteral("colour"));
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
         QStringLiteral("A colour that nothing shows is still read at every start."), checkColors},
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
