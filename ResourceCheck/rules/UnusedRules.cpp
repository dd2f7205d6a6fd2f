#include "ResourceCheck/Project.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace ResourceCheck
{

namespace
{

using Patterns = QHash<QString, QmlPattern>; // by their texts, so that each is listed once

// The names that the QML looks up in addition to its literals.
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
                if (use.isUndeterminable || group.hasText() || key.hasText())
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

void checkUnused(const Project& project, ResourceKind kind, const Report& report)
{
    if (!project.qml || !project.qml->faults().isEmpty()) // QML that could not be read may use anything
        return;
    QVector<QRegularExpression> kept;
    for (const QString& pattern : project.kept + project.qml->declaredNames())
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
        if (!isUsed(resource)) {
            report(resource.place,
                   QStringLiteral("the %1 \"%2\" is not used; remove it or keep it with the keep option")
                       .arg(kindName(kind), resource.name));
        }
    }
}

Rule::Check unused(ResourceKind kind)
{
    return [kind](const Project& project, const Report& report) { checkUnused(project, kind, report); };
}

} // namespace

QVector<Rule> unusedRules()
{
    return {
        {QStringLiteral("unused-color"), Severity::Warning,
         QStringLiteral("A color that is never shown is read at every start."), unused(ResourceKind::Color),
         QStringLiteral("Remove the color. If QML makes its name at run time, keep it with the option `keep`.")},
        {QStringLiteral("unused-font"), Severity::Warning,
         QStringLiteral("A font size that is never shown is read at every start."), unused(ResourceKind::FontSize),
         QStringLiteral("Remove the size. If QML makes its name at run time, keep it with the option `keep`.")},
        {QStringLiteral("unused-dimension"), Severity::Warning,
         QStringLiteral("A dimension that no element uses is read for each display and kept in memory."),
         unused(ResourceKind::Dimension),
         QStringLiteral("Remove the dimension. If QML makes its name at run time, keep it with the option `keep`.")},
        {QStringLiteral("unused-icon"), Severity::Warning,
         QStringLiteral("An icon that is never shown takes up space, and its alias is read at every start."),
         unused(ResourceKind::Icon),
         QStringLiteral("Remove the alias. If QML makes its name at run time, keep it with the option `keep`.")},
        {QStringLiteral("unused-text"), Severity::Warning,
         QStringLiteral("A text that is never shown is translated in vain and kept in memory."),
         unused(ResourceKind::Text),
         QStringLiteral("Remove the text. If QML makes its name at run time, keep it with the option `keep`.")},
    };
}

} // namespace ResourceCheck
