#include "ResourceCheck/Checker.h"

#include "ResourceCheck/Project.h"

namespace ResourceCheck
{

Checker::Checker(const QString& resourceDirectory, const QStringList& qmlDirectories, const Settings& settings)
    : directory(resourceDirectory)
    , qml(qmlDirectories)
    , how(settings)
{
}

QVector<Finding> Checker::findings(const Progress& progress, QmlNames* names) const
{
    Project project{Resources(directory), {}, how.contrastPairs, how.kept, how.maximumLengths};
    if (!qml.isEmpty())
        project.qml.emplace(qml, how.handlerNames.isEmpty() ? QmlUses::defaultHandlers() : how.handlerNames);
    if (names != nullptr && project.qml)
        *names = project.qml->names();
    QVector<Finding> findings = check(project, how.severities, progress);
    for (Finding& finding : findings)
        finding.severity = how.warningsAreErrors ? Severity::Error : finding.severity;
    return findings;
}

} // namespace ResourceCheck
