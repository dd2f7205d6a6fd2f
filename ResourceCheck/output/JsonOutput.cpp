#include "ResourceCheck/output/JsonOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ResourceCheck
{

QByteArray jsonOutput(const QVector<Finding>& findings)
{
    QJsonArray array;
    for (const Finding& finding : findings) {
        array.append(QJsonObject{{QStringLiteral("rule"), finding.rule},
                                 {QStringLiteral("severity"), severityName(finding.severity)},
                                 {QStringLiteral("path"), finding.place.path},
                                 {QStringLiteral("line"), finding.place.line},
                                 {QStringLiteral("column"), finding.place.column},
                                 {QStringLiteral("message"), finding.message}});
    }
    return QJsonDocument(array).toJson();
}

} // namespace ResourceCheck
