#include "ResourceCheck/qml/QmlUses.h"

#include "ResourceCheck/qml/Handlers.h"
#include "ResourceCheck/qml/flow/Flow.h"

#include <algorithm>
#include <tuple>

namespace ResourceCheck
{

namespace
{

// The comment is on the line of the lookup or on the line before.
bool isDeclared(const FrontEnd& frontEnd, const Place& place)
{
    const auto file = frontEnd.files().find(place.path);
    if (file == frontEnd.files().end())
        return false;
    const QVector<CodeDeclaration>& declarations = file->second.declarations;
    return std::any_of(declarations.begin(), declarations.end(), [&place](const CodeDeclaration& declaration) {
        return declaration.position.line == place.line || declaration.position.line + 1 == place.line;
    });
}

} // namespace

QHash<QString, QString> QmlUses::defaultHandlers()
{
    return Handlers::defaultNames();
}

QmlUses::QmlUses(const QStringList& directories, const QHash<QString, QString>& handlers)
{
    FrontEnd frontEnd;
    for (const QString& directory : directories)
        frontEnd.readDirectory(directory);
    Flow flow(frontEnd, handlers);
    flow.run();
    useList = flow.uses.uses();
    rejectedList = flow.uses.faults();
    literalSet = frontEnd.tables.literals;
    faultList = frontEnd.faults();
    count(frontEnd);
}

void QmlUses::count(const FrontEnd& frontEnd)
{
    using Name = std::tuple<QString, int, int, ResourceKind>;
    std::map<Name, bool> undeterminableNames;
    for (QmlUse& use : useList) {
        const bool isKnown = !use.isUndeterminable || isDeclared(frontEnd, use.place);
        use.isUndeterminable = !isKnown;
        bool& isUndeterminable = undeterminableNames[{use.place.path, use.place.line, use.place.column, use.kind}];
        isUndeterminable |= !isKnown;
    }
    allNames.count = static_cast<int>(undeterminableNames.size());
    for (const auto& [name, isUndeterminable] : undeterminableNames) {
        const auto& [path, line, column, kind] = name;
        if (isUndeterminable) {
            allNames.undeterminable.append(
                {{path, line, column},
                 QStringLiteral("the name of the %1 depends on values at run time").arg(kindName(kind))});
        }
    }
    for (const auto& [path, file] : frontEnd.files()) {
        for (const CodeDeclaration& declaration : file.declarations)
            declaredList += declaration.patterns;
    }
}

} // namespace ResourceCheck
