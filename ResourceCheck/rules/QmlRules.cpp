#include "ResourceCheck/Project.h"
#include "ResourceCheck/qml/KnownNames.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"

#include <algorithm>

namespace ResourceCheck
{

namespace
{

void checkSyntax(const Project& project, const Report& report)
{
    if (!project.qml)
        return;
    for (const QmlFault& fault : project.qml->faults())
        report(fault.place, fault.message);
}

QString messageFor(const QmlUse& use, const QmlPattern& name, const KnownNames& names)
{
    const QString nearest = names.nearest(name);
    const QString advice = nearest.isNull() ? QStringLiteral("add it or correct the name")
                                            : QStringLiteral("did you mean \"%1\"?").arg(nearest);
    return QStringLiteral("unknown %1 \"%2\"; %3").arg(kindName(use.kind), name.text(), advice);
}

// Checks groups and keys separately: not every group has to have every key.
void checkUse(const QmlUse& use, const KnownNames& names, const Report& report)
{
    const auto exists = [&](const QmlPattern& group, const QmlPattern& key) {
        return (!group.hasText() && !key.hasText()) || names.contains(use.name(group, key));
    };
    const auto hasSomeGroup = [&](const QmlPattern& key) {
        return std::any_of(use.groups.begin(), use.groups.end(), [&](const auto& group) { return exists(group, key); });
    };
    const auto hasSomeKey = [&](const QmlPattern& group) {
        return std::any_of(use.keys.begin(), use.keys.end(), [&](const auto& key) { return exists(group, key); });
    };
    const QmlPattern& firstGroup = use.groups.first();
    bool isSomeKnown = false;
    for (const QmlPattern& key : use.keys) {
        if (hasSomeGroup(key)) {
            isSomeKnown = true;
            continue;
        }
        const bool isGroupWrong = !key.hasText() || !exists(firstGroup, QmlPattern::anything());
        report(isGroupWrong ? firstGroup.place : key.place, messageFor(use, use.name(firstGroup, key), names));
    }
    for (const QmlPattern& group : use.groups) {
        if (isSomeKnown && !hasSomeKey(group))
            report(group.place, messageFor(use, use.name(group, use.keys.first()), names));
    }
}

void checkUses(const Project& project, ResourceKind kind, const Report& report)
{
    const ResourceNames resources(project.resources, kind);
    if (!project.qml || !resources.isComplete())
        return;
    QStringList names;
    for (const ResourceName& resource : resources.list())
        names.append(resource.name);
    const KnownNames known(names);
    for (const QmlUse& use : project.qml->uses()) {
        if (use.kind == kind)
            checkUse(use, known, report);
    }
}

Rule::Check unknown(const QVector<ResourceKind>& kinds)
{
    return [kinds](const Project& project, const Report& report) {
        for (const ResourceKind kind : kinds)
            checkUses(project, kind, report);
    };
}

} // namespace

QVector<Rule> qmlRules()
{
    return {
        {QStringLiteral("qml-syntax"), Severity::Error,
         QStringLiteral("The QML engine cannot load the file, and its lookups cannot be checked."), checkSyntax,
         QStringLiteral("Correct the code at this place or shortly before.")},
        {QStringLiteral("qml-unknown-color"), Severity::Error,
         QStringLiteral("The lookup of an unknown color returns an empty text, which QML shows as black."),
         unknown({ResourceKind::Color}), QStringLiteral("Correct the names or add the color to `colors.ini`.")},
        {QStringLiteral("qml-unknown-font"), Severity::Error,
         QStringLiteral("The lookup of an unknown font returns no family or the size 0, and Qt uses its own font."),
         unknown({ResourceKind::FontGroup, ResourceKind::FontSize}),
         QStringLiteral("Correct the names or add the font group or size to `fonts.ini`.")},
        {QStringLiteral("qml-unknown-dimension"), Severity::Error,
         QStringLiteral("The lookup of an unknown dimension returns undefined, and the element has no size."),
         unknown({ResourceKind::Dimension}),
         QStringLiteral("Correct the name or add the dimension to the file of each display.")},
        {QStringLiteral("qml-unknown-icon"), Severity::Error,
         QStringLiteral("An unknown icon is not shown; for an unknown context the default icon is shown."),
         unknown({ResourceKind::Icon, ResourceKind::IconContext}),
         QStringLiteral("Correct the name or add the alias or context to a mapping table.")},
        {QStringLiteral("qml-unknown-text"), Severity::Error,
         QStringLiteral("The lookup of an unknown text returns undefined, and nothing or that word is shown."),
         unknown({ResourceKind::Text}), QStringLiteral("Correct the name or add the text to `en.json`.")},
    };
}

} // namespace ResourceCheck
