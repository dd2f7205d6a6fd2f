#include "ResourceCheck/KnownNames.h"
#include "ResourceCheck/Project.h"
#include "ResourceCheck/ResourceNames.h"
#include "ResourceCheck/Rule.h"

#include <algorithm>

namespace
{

// Checks one question, part by part: two parts that are right need not fit each other in every case.
class UseCheck
{
public:
    UseCheck(const QmlUse& use, const KnownNames& names, const QString& what, const Report& report)
        : use(use)
        , names(names)
        , what(what)
        , report(report)
    {
    }

    void run() const
    {
        const auto isKnown = [this](const QmlPattern& key) { return hasSomeGroup(key); };
        for (const QmlPattern& key : use.keys) {
            if (!isKnown(key))
                reportUnknown(use.groups.first(), key, isGroupWrong(key));
        }
        if (std::none_of(use.keys.begin(), use.keys.end(), isKnown))
            return;
        for (const QmlPattern& group : use.groups) {
            if (!hasSomeKey(group))
                reportUnknown(group, use.keys.first(), true);
        }
    }

private:
    bool exists(const QmlPattern& group, const QmlPattern& key) const
    {
        return (!group.hasText() && !key.hasText()) || names.contains(use.name(group, key));
    }

    bool hasSomeGroup(const QmlPattern& key) const
    {
        return std::any_of(use.groups.begin(), use.groups.end(),
                           [this, &key](const QmlPattern& group) { return exists(group, key); });
    }

    bool hasSomeKey(const QmlPattern& group) const
    {
        return std::any_of(use.keys.begin(), use.keys.end(),
                           [this, &group](const QmlPattern& key) { return exists(group, key); });
    }

    bool isGroupWrong(const QmlPattern& key) const
    {
        return !key.hasText() || !exists(use.groups.first(), QmlPattern::anything());
    }

    void reportUnknown(const QmlPattern& group, const QmlPattern& key, bool isGroupWrong) const
    {
        const QmlPattern name = use.name(group, key);
        const QString nearest = names.nearest(name);
        QString message = QStringLiteral("no %1 \"%2\"").arg(what, name.text());
        if (!nearest.isNull())
            message += QStringLiteral("; did you mean \"%1\"?").arg(nearest);
        report(isGroupWrong ? group.place : key.place, message);
    }

    const QmlUse& use;
    const KnownNames& names;
    const QString& what;
    const Report& report;
};

void checkUses(const Project& project, const Report& report, ResourceKind kind, const QString& what)
{
    if (!project.qml)
        return;
    const ResourceNames resources(project.resources, kind);
    if (!resources.isComplete)
        return;
    QStringList names;
    for (const ResourceName& resource : resources.list)
        names.append(resource.name);
    const KnownNames known(names);
    for (const QmlUse& use : project.qml->uses()) {
        if (use.kind == kind)
            UseCheck(use, known, what, report).run();
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
    checkUses(project, report, ResourceKind::Color, QStringLiteral("color"));
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
         QStringLiteral("A color that does not exist is an empty text, for which QML takes black."), checkColors},
        {QStringLiteral("qml-unknown-font"), Severity::Error,
         QStringLiteral("A font that does not exist has no family and the size 0, for which Qt takes its own."),
         checkFonts},
        {QStringLiteral("qml-unknown-dimension"), Severity::Error,
         QStringLiteral("A dimension that does not exist is undefined, and what is laid out by it has no size."),
         checkDimensions},
        {QStringLiteral("qml-unknown-icon"), Severity::Error,
         QStringLiteral("An icon that does not exist has no path and is not shown; for a context that does not exist "
                        "the default icon is."),
         checkIcons},
        {QStringLiteral("qml-unknown-text"), Severity::Error,
         QStringLiteral("A text that does not exist is undefined, so its place stays empty or shows that word."),
         checkTexts},
    };
}
