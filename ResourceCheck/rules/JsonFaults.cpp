#include "ResourceCheck/rules/JsonFaults.h"

#include <QHash>

void reportFault(const JsonFile& file, const Report& report)
{
    if (!file.fault().isNull())
        report(file.faultPlace(), file.fault());
}

void reportDuplicates(const JsonValue& object, const QString& kind, const Report& report)
{
    QHash<QString, int> firstLines;
    for (const JsonValue& member : object.members) {
        const auto first = firstLines.constFind(member.name);
        if (first == firstLines.constEnd()) {
            firstLines.insert(member.name, member.namePlace.line);
            continue;
        }
        report(member.namePlace,
               QStringLiteral("the %1 \"%2\" is in line %3 already; a device keeps one of them, not always the last")
                   .arg(kind, member.name, QString::number(*first)));
    }
}
