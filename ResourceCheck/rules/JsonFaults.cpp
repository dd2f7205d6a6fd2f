#include "ResourceCheck/rules/JsonFaults.h"

#include <QHash>

namespace ResourceCheck
{

namespace
{

// Why the file is not a JSON object, if it is not.
void reportFault(const JsonFile& file, const Report& report)
{
    if (!file.fault().isNull())
        report(file.faultPlace(), file.fault());
}

// Each member of the object that does not have the type. `kind` is the noun for its members.
void reportOtherTypes(const JsonValue& object, JsonValue::Type type, const QString& kind, const Report& report)
{
    const QString typeName = type == JsonValue::Type::Object ? QStringLiteral("an object") : QStringLiteral("a string");
    for (const JsonValue& member : object.members) {
        if (member.type != type) {
            report(member.place,
                   QStringLiteral("the %1 \"%2\" is not %3; replace it with %3").arg(kind, member.name, typeName));
        }
    }
}

} // namespace

void reportTextFaults(const JsonFile& file, const Report& report)
{
    reportFault(file, report);
    reportOtherTypes(file.root(), JsonValue::Type::String, QStringLiteral("text"), report);
}

void reportTableFaults(const JsonFile& file, const Report& report)
{
    reportFault(file, report);
    reportOtherTypes(file.root(), JsonValue::Type::Object, QStringLiteral("alias"), report);
    for (const JsonValue& alias : file.root().members) {
        if (alias.type != JsonValue::Type::Object)
            continue;
        const QString kind = QStringLiteral("path of the alias \"%1\" for").arg(alias.name);
        reportOtherTypes(alias, JsonValue::Type::String, kind, report);
    }
}

void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report)
{
    QHash<QString, QString> firstLines;
    for (const JsonValue& member : object.members) {
        const QString first = firstLines.value(member.name);
        if (first.isNull()) {
            firstLines.insert(member.name, QString::number(member.namePlace.line));
        } else {
            report(member.namePlace,
                   QStringLiteral("duplicate %1 \"%2\", already in line %3; remove or rename one of them")
                       .arg(kind, member.name, first));
        }
    }
}

} // namespace ResourceCheck
