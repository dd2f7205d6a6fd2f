#include "QmlHost/DirectorySource.h"

#include "ResourceFormat/PublishedResources.h"

#include <QDir>

namespace
{

QString readAll(const ResourceFormat::Directory& directory, QmlHost::Answers& answers)
{
    const ResourceFormat::PublishedResources resources(directory);
    QString problems[5];
    QStringList found;
    answers.setColorFile(resources.colorFile(problems[0]));
    answers.setFontFile(resources.fontFile(problems[1]));
    answers.setDisplaySizes(resources.displaySizes(found));
    const QString iconFolder = resources.iconFolder(problems[2]);
    const QString mappingTable = resources.mappingTable(QString(), problems[3]);
    answers.setIcons(iconFolder, mappingTable, true);
    if (!resources.textFolder(problems[4]).isNull())
        answers.setTexts(directory.path());
    for (const QString& problem : problems) {
        if (!problem.isEmpty())
            found.append(problem);
    }
    return found.join(QStringLiteral("; "));
}

} // namespace

namespace QmlHost
{

DirectorySource::DirectorySource(const QString& directoryPath)
    : path(QDir(directoryPath).absolutePath())
    , watcher(this) // as a child it moves to the worker thread
{
    connect(&watcher, &DirectoryWatcher::changed, this, &DirectorySource::ask);
}

DirectorySource::~DirectorySource() = default;

void DirectorySource::start()
{
    ask();
}

void DirectorySource::ask()
{
    if (isStopRequested())
        return;
    const ResourceFormat::Directory directory(path);
    watcher.watchResources(directory); // before the reading, so that no change in between is missed
    Answers answers;
    QString problem = QDir(path).exists() ? readAll(directory, answers) : path + QStringLiteral(" is not a directory");
    if (problem.isEmpty() && !watcher.problem().isEmpty())
        problem = QStringLiteral("%1: changes are not followed: %2").arg(path, watcher.problem());
    // Hosts need not wait for a directory without resources. Later, what was there stays.
    if (!hasAnswered && !answers.isAnyAnswered() && QDir(path).exists())
        answers.setNoTexts(path);
    hasAnswered = hasAnswered || answers.isAnyAnswered();
    Q_EMIT answered(answers, problem);
}

} // namespace QmlHost
