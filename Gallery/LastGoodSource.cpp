#include "Gallery/LastGoodSource.h"

#include "Gallery/PseudoLanguage.h"
#include "QmlHost/Fingerprint.h"
#include "ResourceCheck/Settings.h"
#include "ResourceFormat/Directory.h"
#include "ResourceFormat/DisplaySize.h"
#include "ResourceFormat/PublishedResources.h"
#include "ResourceFormat/RegularFile.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace Gallery
{

using namespace ResourceFormat;
using QmlHost::Answers;

namespace
{

// With the line, which PublishedResources does not tell.
QStringList faultsOfTable(const Directory& directory)
{
    QString unreadable;
    const QByteArray content = RegularFile::readAll(directory.mappingTable(), unreadable);
    return unreadable.isNull() ? FileFaults::ofMappingTable(directory.mappingTable(), content) : QStringList();
}

// Why the parts that are not answered are missing. A source may tell only that they are.
QStringList faultsOfMissingParts(const Answers& answers, const Directory& directory)
{
    const PublishedResources resources(directory);
    QString problems[4];
    QStringList faults;
    if (!answers.colorFile.isAnswered())
        resources.colorFile(problems[0]);
    if (!answers.fontFile.isAnswered())
        resources.fontFile(problems[1]);
    if (!answers.icons.isAnswered()) {
        resources.iconFolder(problems[2]);
        faults = faultsOfTable(directory);
        if (faults.isEmpty())
            resources.mappingTable(QString(), problems[3]);
    }
    QStringList leftOut; // also if other display sizes are answered
    resources.displaySizes(leftOut);
    faults += leftOut;
    std::copy_if(std::begin(problems), std::end(problems), std::back_inserter(faults),
                 [](const QString& problem) { return !problem.isNull(); });
    return faults;
}

// The checker's settings name pairs of colors. They stay beside the colors. Returns the path of the copy.
QString copySettings(const QString& from, const QString& to)
{
    const QString name = QLatin1Char('/') + ResourceCheck::Settings::fileName();
    QString missing;
    QString uncopied;
    const QByteArray content = RegularFile::readAll(from + name, missing);
    QFile copy(to + name);
    if (!missing.isNull())
        copy.remove();
    else if (RegularFile::readAll(copy.fileName(), uncopied) == content && uncopied.isNull())
        return copy.fileName();
    else if (copy.open(QIODevice::WriteOnly))
        copy.write(content);
    return copy.fileName();
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
    if (!answers.directory().isEmpty() && answers.directory() != directory) {
        directory = answers.directory();
        judgedTable = QString(); // the messages contain the path
        originals.clear();
    }
    Answers copied = answers;
    QStringList faults;
    const Directory copies = files.copies();
    const QString settings = copySettings(directory, copies.path());
    if (answers.colorFile.isAnswered()) {
        copied.setColorFile(files.update(answers.colorFile.value, copies.colorFile(), FileFaults::ofIni, faults));
        copied.colorFile.fingerprint += QmlHost::Fingerprint::of({settings});
    }
    if (answers.fontFile.isAnswered())
        copied.setFontFile(files.update(answers.fontFile.value, copies.fontFile(), FileFaults::ofIni, faults));
    copyDimensions(copied, faults);
    judgeMappingTable(copied, faults);
    copyTexts(copied, faults);
    if (!directory.isEmpty())
        faults += faultsOfMissingParts(answers, Directory(directory));
    Q_EMIT answered(copied, join(faults, problem));
    if (!directory.isEmpty())
        Q_EMIT filesRead(directory, files.copies().path());
}

void LastGoodSource::copyDimensions(Answers& answers, QStringList& faults)
{
    const QString folder = files.copies().dimensionFolder();
    const auto copyOf = [&folder](const QSize& size) {
        return QStringLiteral("%1/%2.ini").arg(folder, DisplaySize::toName(size));
    };
    auto displaySizes = answers.displaySizes.value;
    for (auto& [size, path] : displaySizes) {
        originals.insert(path, size);
        path = files.update(path, copyOf(size), FileFaults::ofIni, faults);
    }
    // A source leaves out a file that has become bad. Its name is in the problem or in the faults of missing parts.
    for (auto file = originals.cbegin(); file != originals.cend(); ++file) {
        const QPair<QSize, QString> shown(*file, copyOf(*file));
        if (answers.displaySizes.isAnswered() && !displaySizes.contains(shown) && QFile::exists(file.key()))
            displaySizes.append(shown);
    }
    std::sort(displaySizes.begin(), displaySizes.end(), [](const auto& left, const auto& right) {
        return qMakePair(left.first.width(), left.first.height())
            < qMakePair(right.first.width(), right.first.height());
    });
    answers.setDisplaySizes(displaySizes);
}

void LastGoodSource::copyTexts(Answers& answers, QStringList& faults)
{
    if (!answers.textFolder.isAnswered())
        return;
    const Directory copies = files.copies();
    QStringList shown;
    for (const QFileInfo& file : Directory(QFileInfo(answers.textFolder.value).path()).languageFiles()) {
        shown.append(files.update(file.filePath(), copies.textFolder() + QLatin1Char('/') + file.fileName(),
                                  FileFaults::ofTexts, faults));
    }
    shown += PseudoLanguage::writeFiles(copies.textFolder(), shown);
    for (const QFileInfo& copy : copies.languageFiles()) {
        if (!shown.contains(copy.filePath()))
            QFile::remove(copy.filePath());
    }
    const QStringList languages = answers.languages; // without the pseudo languages
    answers.setTexts(copies.path());
    answers.languages = languages;
}

// Everybody who reads a faulty table logs its faults, so nobody gets it.
void LastGoodSource::judgeMappingTable(Answers& answers, QStringList& faults)
{
    if (!answers.icons.isAnswered())
        return;
    QString& table = answers.icons.value.second;
    if (table != judgedTable) {
        judgedTable = table;
        tableFaults = FileFaults::ofMappingTable(Directory(directory).mappingTable(), table.toUtf8());
    }
    faults += tableFaults;
    if (tableFaults.isEmpty())
        goodTable = table;
    else
        table = goodTable.isNull() ? FileFaults::soundPart(table) : goodTable;
}

} // namespace Gallery
