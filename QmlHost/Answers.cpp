#include "QmlHost/Answers.h"

#include "QmlHost/Fingerprint.h"
#include "ResourceFormat/Directory.h"
#include "ResourceFormat/Language.h"

#include <QDirIterator>

namespace
{

template <typename Value>
void complete(QmlHost::Answers::Part<Value>& part, const QmlHost::Answers::Part<Value>& earlier)
{
    if (!part.isAnswered())
        part = earlier;
}

QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    return files;
}

} // namespace

namespace QmlHost
{

void Answers::setColorFile(const QString& path)
{
    if (!path.isEmpty())
        colorFile = {path, Fingerprint::of({path})};
}

void Answers::setFontFile(const QString& path)
{
    if (!path.isEmpty())
        fontFile = {path, Fingerprint::of({path})};
}

void Answers::setDisplaySizes(const QList<QPair<QSize, QString>>& sizes)
{
    QStringList files;
    for (const auto& size : sizes)
        files.append(size.second);
    if (!sizes.isEmpty())
        displaySizes = {sizes, Fingerprint::of(files)};
}

void Answers::setIcons(const QString& folder, const QString& mappingTable, bool includesFiles)
{
    if (!folder.isEmpty() && !mappingTable.isEmpty())
        icons = {{folder, mappingTable}, Fingerprint::of(includesFiles ? filesBelow(folder) : QStringList())};
}

void Answers::setTexts(const QString& resourceDirectory)
{
    const ResourceFormat::Directory directory(resourceDirectory);
    const QFileInfoList files = directory.languageFiles();
    if (files.isEmpty())
        return;
    QStringList paths;
    languages.clear();
    for (const QFileInfo& file : files) {
        paths.append(file.filePath());
        languages.append(ResourceFormat::Language::ofFile(file.fileName()));
    }
    textFolder = {directory.textFolder(), Fingerprint::of(paths)};
}

void Answers::setNoTexts(const QString& resourceDirectory)
{
    textFolder = {ResourceFormat::Directory(resourceDirectory).textFolder(), Fingerprint::of({})};
}

void Answers::renew(bool includesIconFiles)
{
    setColorFile(colorFile.value);
    setFontFile(fontFile.value);
    setDisplaySizes(displaySizes.value);
    setIcons(icons.value.first, icons.value.second, includesIconFiles);
    if (textFolder.isAnswered())
        setTexts(QFileInfo(textFolder.value).path());
}

QString Answers::directory() const
{
    for (const QString& path : {colorFile.value, fontFile.value, icons.value.first, textFolder.value}) {
        if (!path.isEmpty())
            return QFileInfo(path).path();
    }
    return QString();
}

bool Answers::isAnyAnswered() const
{
    return colorFile.isAnswered() || fontFile.isAnswered() || displaySizes.isAnswered() || icons.isAnswered()
        || textFolder.isAnswered();
}

bool Answers::operator==(const Answers& other) const
{
    return colorFile == other.colorFile && fontFile == other.fontFile && displaySizes == other.displaySizes
        && icons == other.icons && textFolder == other.textFolder;
}

void Answers::complete(const Answers& earlier)
{
    if (!textFolder.isAnswered())
        languages = earlier.languages;
    ::complete(colorFile, earlier.colorFile);
    ::complete(fontFile, earlier.fontFile);
    ::complete(displaySizes, earlier.displaySizes);
    ::complete(icons, earlier.icons);
    ::complete(textFolder, earlier.textFolder);
}

} // namespace QmlHost
