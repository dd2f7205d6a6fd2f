#include "ResourceCheck/output/SarifOutput.h"

#include "ResourceCheck/rules/Rule.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace ResourceCheck
{

namespace
{

QJsonObject object(const char* name, const QJsonValue& value)
{
    return {{QLatin1String(name), value}};
}

// The other levels have the names of the severities.
QString level(Severity severity)
{
    return severity == Severity::Off ? QStringLiteral("none") : severityName(severity);
}

QJsonObject descriptor(const Rule& rule)
{
    return {{QStringLiteral("id"), rule.name},
            {QStringLiteral("shortDescription"), object("text", rule.reason)},
            {QStringLiteral("help"),
             QJsonObject{{QStringLiteral("text"), rule.remedy}, {QStringLiteral("markdown"), rule.remedy}}},
            {QStringLiteral("defaultConfiguration"), object("level", level(rule.severity))}};
}

QJsonObject artifact(const QString& path)
{
    const QLatin1String scheme(path.startsWith(QLatin1Char('/')) ? "file://" : "");
    return object("uri", scheme + QString::fromLatin1(QUrl::toPercentEncoding(path, "/")));
}

QJsonObject location(const Place& place)
{
    QJsonObject physical{{QStringLiteral("artifactLocation"), artifact(place.path)}};
    QJsonObject region;
    if (place.line > 0)
        region.insert(QStringLiteral("startLine"), place.line);
    if (place.column > 0)
        region.insert(QStringLiteral("startColumn"), place.column);
    if (!region.isEmpty())
        physical.insert(QStringLiteral("region"), region);
    return object("physicalLocation", physical);
}

QJsonObject fix(const QString& path, const Replacement& repair)
{
    const QJsonObject region{{QStringLiteral("startLine"), repair.startLine},
                             {QStringLiteral("startColumn"), repair.startColumn},
                             {QStringLiteral("endLine"), repair.endLine},
                             {QStringLiteral("endColumn"), repair.endColumn}};
    QJsonObject replacement{{QStringLiteral("deletedRegion"), region}};
    if (!repair.text.isEmpty())
        replacement.insert(QStringLiteral("insertedContent"), object("text", repair.text));
    const QJsonObject change{{QStringLiteral("artifactLocation"), artifact(path)},
                             {QStringLiteral("replacements"), QJsonArray{replacement}}};
    return object("artifactChanges", QJsonArray{change});
}

QJsonObject result(const Finding& finding, const QStringList& ruleNames)
{
    QJsonObject result{{QStringLiteral("ruleId"), finding.rule},
                       {QStringLiteral("ruleIndex"), ruleNames.indexOf(finding.rule)},
                       {QStringLiteral("level"), level(finding.severity)},
                       {QStringLiteral("message"), object("text", finding.message)},
                       {QStringLiteral("partialFingerprints"), object("ruleAndLine/v1", finding.fingerprint)},
                       {QStringLiteral("locations"), QJsonArray{location(finding.place)}}};
    for (const Replacement& repair : finding.repairs)
        result.insert(QStringLiteral("fixes"), QJsonArray{fix(finding.place.path, repair)});
    if (finding.isAccepted) {
        const QLatin1String state(*finding.isAccepted ? "unchanged" : "new");
        result.insert(QStringLiteral("baselineState"), state);
    }
    return result;
}

} // namespace

QByteArray sarifOutput(const QVector<Finding>& findings)
{
    QStringList names;
    QJsonArray rules;
    for (const Rule& rule : allRules()) {
        names.append(rule.name);
        rules.append(descriptor(rule));
    }
    QJsonArray results;
    for (const Finding& finding : findings)
        results.append(result(finding, names));
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("tarnis-resource-check")},
                             {QStringLiteral("version"), QCoreApplication::applicationVersion()},
                             {QStringLiteral("rules"), rules}};
    const QJsonObject run{{QStringLiteral("tool"), object("driver", driver)},
                          {QStringLiteral("columnKind"), QStringLiteral("utf16CodeUnits")},
                          {QStringLiteral("results"), results}};
    const QJsonObject log{{QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
                          {QStringLiteral("version"), QStringLiteral("2.1.0")},
                          {QStringLiteral("runs"), QJsonArray{run}}};
    return QJsonDocument(log).toJson();
}

} // namespace ResourceCheck
