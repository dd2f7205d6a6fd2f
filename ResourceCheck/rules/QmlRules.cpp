#include "ResourceCheck/Project.h"
#include "ResourceCheck/qml/KnownNames.h"
#include "ResourceCheck/reading/ResourceNames.h"
#include "ResourceCheck/rules/Rule.h"
#include "ResourceCheck/rules/UseCheck.h"

#include <QSet>

#include <optional>

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

void checkCalls(const Project& project, const Report& report)
{
    if (!project.qml)
        return;
    for (const QmlFault& fault : project.qml->rejectedCalls())
        report(fault.place, fault.message);
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
    QSet<QString> reported; // the same code can be the origin of a name in several lookups
    for (const QmlUse& use : project.qml->uses()) {
        if (use.kind != kind)
            continue;
        UseCheck(use, known).run([&](const Place& place, const QString& message) {
            const QString key = QStringLiteral("%1:%2:%3 ").arg(place.path).arg(place.line).arg(place.column) + message;
            if (!reported.contains(key))
                report(place, message);
            reported.insert(key);
        });
    }
}

Rule::Check unknown(ResourceKind kind, std::optional<ResourceKind> otherKind = {})
{
    return [kind, otherKind](const Project& project, const Report& report) {
        checkUses(project, kind, report);
        if (otherKind)
            checkUses(project, *otherKind, report);
    };
}

} // namespace

QVector<Rule> qmlRules()
{
    return {
        {QStringLiteral("qml-syntax"), Severity::Error,
         QStringLiteral("The QML engine cannot load the file, and its lookups cannot be checked."), checkSyntax,
         QStringLiteral("Correct the code at this place or shortly before.")},
        {QStringLiteral("qml-call"), Severity::Error,
         QStringLiteral("The QML engine logs an error, and what the expression is for keeps its default."), checkCalls,
         QStringLiteral("Correct the name of the handler or its member, or pass the missing arguments.")},
        {QStringLiteral("qml-unknown-color"), Severity::Error,
         QStringLiteral("The lookup of an unknown color returns an empty text, which QML shows as black."),
         unknown(ResourceKind::Color), QStringLiteral("Correct the names or add the color to `colors.ini`.")},
        {QStringLiteral("qml-unknown-font"), Severity::Error,
         QStringLiteral("The lookup of an unknown font returns no family or the size 0, and Qt uses its own font."),
         unknown(ResourceKind::FontGroup, ResourceKind::FontSize),
         QStringLiteral("Correct the names or add the font group or size to `fonts.ini`.")},
        {QStringLiteral("qml-unknown-dimension"), Severity::Error,
         QStringLiteral("The lookup of an unknown dimension returns undefined, and the element has no size."),
         unknown(ResourceKind::Dimension),
         QStringLiteral("Correct the name or add the dimension to the file of each display.")},
        {QStringLiteral("qml-unknown-icon"), Severity::Error,
         QStringLiteral("An unknown icon is not shown; for an unknown context the default icon is shown."),
         unknown(ResourceKind::Icon, ResourceKind::IconContext),
         QStringLiteral("Correct the name or add the alias or context to a mapping table.")},
        {QStringLiteral("qml-unknown-text"), Severity::Error,
         QStringLiteral("The lookup of an unknown text returns undefined, and nothing or that word is shown."),
         unknown(ResourceKind::Text), QStringLiteral("Correct the name or add the text to `en.json`.")},
    };
}

} // namespace ResourceCheck
