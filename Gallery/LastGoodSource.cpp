#include "Gallery/LastGoodSource.h"

#include "ResourceFormat/Directory.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/RegularFile.h"

#include <QFile>

#include <algorithm>

namespace Gallery
{

using namespace ResourceFormat;
using QmlHost::Answers;

namespace
{

// Sources do not answer with a mapping table that is not JSON, and not all of them tell the line of the fault.
void addMappingFault(const Directory& directory, QStringList& faults)
{
    const QString path = directory.mappingTable();
    QString unreadable;
    const QByteArray content = RegularFile::readAll(path, unreadable);
    const QString fault =
        unreadable.isNull() ? LastGoodFiles::jsonFault(path, content) : QStringLiteral("%1: %2").arg(path, unreadable);
    if (!fault.isNull())
        faults.append(fault);
}

// Without the sentences on a file whose fault is known: they are less exact.
QString join(const QStringList& faults, const QString& problem)
{
    const auto fileOf = [](const QString& text) { return text.section(QLatin1Char(':'), 0, 0); };
    QStringList others;
    for (const QString& sentence : problem.split(QStringLiteral("; "), Qt::SkipEmptyParts)) {
        const auto isOnSameFile = [&](const QString& fault) { return fileOf(fault) == fileOf(sentence); };
        if (std::none_of(faults.begin(), faults.end(), isOnSameFile))
            others.append(sentence);
    }
    return (faults + QStringList(others.join(QStringLiteral("; ")))).join(QLatin1Char('\n')).trimmed();
}

} // namespace

LastGoodSource::LastGoodSource(std::unique_ptr<QmlHost::Source> originalSource)
    : original(originalSource.release())
{
    original->setParent(this); // so that it moves to the worker thread, too
    connect(original, &Source::answered, this, &LastGoodSource::passOn);
}

void LastGoodSource::start()
{
    original->start();
}

void LastGoodSource::ask()
{
    original->ask();
}

void LastGoodSource::passOn(const Answers& answers, const QString& problem)
{
    Answers copied = answers;
    QStringList faults;
    if (answers.colorFile.isAnswered()) {
        const QString path = answers.colorFile.value;
        copied.setColorFile(files.update(path, files.copies().colorFile(), faults));
        if (!answers.icons.isAnswered())
            addMappingFault(Directory(QFileInfo(path).path()), faults);
    }
    if (answers.fontFile.isAnswered())
        copied.setFontFile(files.update(answers.fontFile.value, files.copies().fontFile(), faults));
    copyDimensions(copied, faults);
    copyTexts(copied, faults);
    Q_EMIT answered(copied, join(faults, problem));
}

void LastGoodSource::copyDimensions(Answers& answers, QStringList& faults)
{
    const QString folder = files.copies().dimensionFolder();
    auto displaySizes = answers.displaySizes.value;
    for (auto& [size, path] : displaySizes)
        path = files.update(path, QStringLiteral("%1/%2.ini").arg(folder, DisplaySize::toName(size)), faults);
    answers.setDisplaySizes(displaySizes);
}

void LastGoodSource::copyTexts(Answers& answers, QStringList& faults)
{
    if (!answers.textFolder.isAnswered())
        return;
    const Directory copies = files.copies();
    QStringList shown;
    for (const QFileInfo& file : Directory(QFileInfo(answers.textFolder.value).path()).languageFiles())
        shown.append(files.update(file.filePath(), copies.textFolder() + QLatin1Char('/') + file.fileName(), faults));
    for (const QFileInfo& copy : copies.languageFiles()) {
        if (!shown.contains(copy.filePath()))
            QFile::remove(copy.filePath());
    }
    answers.setTexts(copies.path());
}

} // namespace Gallery
