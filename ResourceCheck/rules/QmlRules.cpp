#include "ResourceCheck/qml/KnownNames.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"

#include <algorithm>

namespace
{

QString messageFor(const QmlPattern& name, const KnownNames& names, const QString& what)
{
    const QString nearest = names.nearest(name);
    const QString message = QStringLiteral("no %1 \"%2\"").arg(what, name.text());
    return nearest.isNull() ? message : message + QStringLiteral("; did you mean \"%1\"?").arg(nearest);
}

// Part by part: two parts that are right need not fit each other in every case.
void checkUse(const QmlUse& use, const KnownNames& names, const QString& what, const Report& report)
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
        report(isGroupWrong ? firstGroup.place : key.place, messageFor(use.name(firstGroup, key), names, what));
    }
    for (const QmlPattern& group : use.groups) {
        if (isSomeKnown && !hasSomeKey(group))
            report(group.place, messageFor(use.name(group, use.keys.first()), names, what));
    }
}

void checkUses(const Project& project, const Report& report, ResourceKind kind, const QString& what)
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
            checkUse(use, known, what, report);
    }
}

void checkSyntax(const Project& project, const Report& report)
{
    if (!project.qml)
        return;
    for (const QmlFault& fault : project.qml->faults())
        report(fault.place, fault.message);
}

void checkColors(const Project& project, const Report& report)
{
    checkUses(project, report, ResourceKind::Color, QStringLiteral("colour"));
}

void checkFonts(const Project& project, const Report& report)
{
    checkUses(project, report, ResourceKind::FontGroup, QStringLiteral("font"));
    checkUses(project, report, ResourceKind::FontSize, QStringLiteral("font size"));
}

void checkDimensions(const Project& project, const Report& report)
{
    checkUses(project, report, ResourceKind::Dimension, QStringLiteral("dimension"));
}

void checkIcons(const Project& project, const Report& report)
{
    checkUses(project, report, ResourceKind::Icon, QStringLiteral("icon"));
    checkUses(project, report, ResourceKind::IconContext, QStringLiteral("icon with the context"));
}

void checkTexts(const Project& project, const Report& report)
{
    checkUses(project, report, ResourceKind::Text, QStringLiteral("text"));
}

} // namespace

QVector<Rule> qmlRules()
{
    return {
        {QStringLiteral("qml-syntax"), Severity::Error,
         QStringLiteral("A file that the QML engine cannot read shows nothing, and here its uses are not seen."),
         checkSyntax},
        {QStringLiteral("qml-unknown-color"), Severity::Error,
         QStringLiteral("A colour that does not exist is an empty text, for which QML takes black."), checkColors},
        {QStringLiteral("qml-unknown-font"), Severity::Error,
         QStringLiteral("A font that does not exist has no family and the size 0, for which Qt takes its own."),
         checkFonts},
        {QStringLiteral("qml-unknown-dimension"), Severity::Error,
         QStringLiteral("A dimension that does not exist is undefined, and what is laid out by it has no size."),
         checkDimensions},
        {QStringLiteral("qml-unknown-icon"), Severity::Error,
         QStringLiteral("An icon that does not exist is not shown; for a context that does not exist the default one "
                        "is."),
         checkIcons},
        {QStringLiteral("qml-unknown-text"), Severity::Error,
         QStringLiteral("A text that does not exist is undefined, so its place stays empty or shows that word."),
         checkTexts},
    };
}
