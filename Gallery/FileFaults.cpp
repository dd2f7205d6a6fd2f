#include "Gallery/FileFaults.h"

#include "ResourceCheck/rules/JsonFaults.h"
#include "ResourceFormat/IniParser.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace
{

using namespace ResourceCheck;

QStringList jsonFaults(const JsonFile& file, void (*reportFaults)(const JsonFile& file, const Report& report))
{
    QStringList faults;
    reportFaults(file, [&faults](const Place& place, const QString& message) {
        faults.append(QStringLiteral("%1:%2:%3: %4").arg(place.path).arg(place.line).arg(place.column).arg(message));
    });
    return faults;
}

QJsonObject membersOfType(const QJsonObject& object, QJsonValue::Type type)
{
    QJsonObject members;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (member->type() == type)
            members.insert(member.key(), *member);
    }
    return members;
}

} // namespace

namespace Gallery::FileFaults
{

QStringList ofIni(const QString& path, const QByteArray& content)
{
    QStringList faults;
    const ResourceFormat::IniParser parser(content);
    for (const ResourceFormat::IniParser::Fault& fault : parser.faults())
        faults.append(QStringLiteral("%1:%2: %3").arg(path).arg(fault.line).arg(fault.reason));
    return faults;
}

QStringList ofTexts(const QString& path, const QByteArray& content)
{
    return jsonFaults(JsonFile(path, content), reportTextFaults);
}

QStringList ofMappingTable(const QString& path, const QByteArray& content)
{
    return jsonFaults(JsonFile(path, content), reportTableFaults);
}

QString soundPart(const QString& mappingTable)
{
    QJsonObject aliases =
        membersOfType(QJsonDocument::fromJson(mappingTable.toUtf8()).object(), QJsonValue::Type::Object);
    for (auto alias = aliases.begin(); alias != aliases.end(); ++alias)
        *alias = membersOfType(alias->toObject(), QJsonValue::Type::String);
    return QString::fromUtf8(QJsonDocument(aliases).toJson());
}

} // namespace Gallery::FileFaults
