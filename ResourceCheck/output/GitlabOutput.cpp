#include "ResourceCheck/output/GitlabOutput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace ResourceCheck
{

QByteArray gitlabOutput(const QVector<Finding>& findings)
{
    QJsonArray array;
    for (const Finding& finding : findings) {
        const bool isError = finding.severity == Severity::Error;
        const QJsonObject begin{{QStringLiteral("begin"), std::max(1, finding.place.line)}};
        array.append(
            QJsonObject{{QStringLiteral("description"), finding.message},
                        {QStringLiteral("check_name"), finding.rule},
                        {QStringLiteral("fingerprint"), finding.fingerprint},
                        {QStringLiteral("severity"), isError ? QStringLiteral("major") : QStringLiteral("minor")},
                        {QStringLiteral("location"),
                         QJsonObject{{QStringLiteral("path"), finding.place.path}, {QStringLiteral("lines"), begin}}}});
    }
    return QJsonDocument(array).toJson();
}

} // namespace ResourceCheck
