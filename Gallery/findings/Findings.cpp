#include "Gallery/findings/Findings.h"

#include "ResourceCheck/Checker.h"

#include <QDir>

#include <algorithm>

namespace Gallery
{

using ResourceCheck::Finding;
using ResourceCheck::Severity;

namespace
{

bool contains(const Finding& finding, const QString& file, const QString& search)
{
    const QStringList texts{file, finding.rule, finding.message};
    return !texts.filter(search, Qt::CaseInsensitive).isEmpty();
}

QVariantMap row(const Finding& finding, const QString& file, const QString& message)
{
    return {{QStringLiteral("file"), file},
            {QStringLiteral("path"), finding.place.path},
            {QStringLiteral("line"), finding.place.line},
            {QStringLiteral("column"), finding.place.column},
            {QStringLiteral("severity"), ResourceCheck::severityName(finding.severity)},
            {QStringLiteral("rule"), finding.rule},
            {QStringLiteral("message"), message}};
}

QVariantMap heading(const Finding& first, const QString& file, int count)
{
    return {{QStringLiteral("isHeading"), true},
            {QStringLiteral("file"), file},
            {QStringLiteral("path"), first.place.path},
            {QStringLiteral("count"), count}};
}

} // namespace

Findings::Findings()
{
    connect(this, &Findings::checked, this, &Findings::finish, Qt::QueuedConnection);
    thread.setMaxThreadCount(1);
}

void Findings::setEditor(const Editor& fileEditor)
{
    editor = fileEditor;
}

void Findings::setQmlDirectories(const QStringList& directories)
{
    qmlDirectories = directories;
}

void Findings::start()
{
    if (!std::exchange(isStarted, true))
        run();
}

void Findings::check(const QString& resourceDirectory)
{
    if (resourceDirectory.isEmpty())
        return;
    directory = resourceDirectory;
    isOutdated = isBusy;
    run();
}

void Findings::checkAgain()
{
    check(QString(directory));
}

void Findings::run()
{
    if (!isStarted || isBusy || directory.isEmpty())
        return;
    isBusy = true;
    thread.start([this, path = directory, qml = qmlDirectories] {
        ResourceCheck::Settings settings;
        const QString problem = settings.readFileOf(path);
        const QVector<Finding> found = ResourceCheck::Checker(path, qml, settings).findings();
        Q_EMIT checked(found, problem);
    });
}

void Findings::finish(const QVector<Finding>& newFindings, const QString& newProblem)
{
    isBusy = false;
    if (std::exchange(isOutdated, false)) {
        run();
        return;
    }
    findings = newFindings;
    settingsProblem = newProblem;
    ++currentRevision;
    Q_EMIT changed();
}

int Findings::errors() const
{
    return count(Severity::Error);
}

int Findings::warnings() const
{
    return count(Severity::Warning);
}

int Findings::count(Severity severity) const
{
    return static_cast<int>(std::count_if(findings.begin(), findings.end(),
                                          [severity](const Finding& finding) { return finding.severity == severity; }));
}

int Findings::revision() const
{
    return currentRevision;
}

bool Findings::isRunning() const
{
    return isBusy;
}

QString Findings::problem() const
{
    return editorProblem.isEmpty() ? settingsProblem : editorProblem;
}

QVariantList Findings::rows(const QString& severity, const QString& search) const
{
    QVariantList all;
    for (auto first = findings.begin(); first != findings.end();) {
        const auto end = std::find_if(first, findings.end(), [&first](const Finding& finding) {
            return finding.place.path != first->place.path;
        });
        const QString file = fileName(first->place.path);
        QVariantList ofFile;
        for (auto finding = first; finding != end; ++finding) {
            const bool isWanted = severity.isEmpty() || ResourceCheck::severityName(finding->severity) == severity;
            if (isWanted && contains(*finding, file, search))
                ofFile.append(row(*finding, file, QString(finding->message).remove(directory + QLatin1Char('/'))));
        }
        if (!ofFile.isEmpty())
            all += QVariantList{heading(*first, file, ofFile.size())} + ofFile;
        first = end;
    }
    return all;
}

// Relative to the directory if the file is in it.
QString Findings::fileName(const QString& path) const
{
    const QString relative = QDir(directory).relativeFilePath(path);
    return relative.startsWith(QLatin1String("..")) ? path : relative;
}

void Findings::open(const QString& path, int line, int column)
{
    editorProblem = editor.open(path, line, column);
    Q_EMIT changed();
}

} // namespace Gallery
