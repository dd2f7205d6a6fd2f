#include "ResourceCheck/reading/IconFiles.h"

#include "ResourceCheck/reading/ImageFault.h"
#include "ResourceCheck/svg/SvgReader.h"
#include "ResourceFormat/RegularFile.h"

#include <QCryptographicHash>
#include <QImageReader>
#include <QSet>
#include <QThreadPool>

#include <atomic>

namespace ResourceCheck
{

namespace
{

QByteArray suffixOf(const QFileInfo& file)
{
    return file.suffix().toLower().toLatin1();
}

// Qt looks at the content of a file whose suffix it does not know.
bool canBeSvg(const QFileInfo& file)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    const QByteArray suffix = suffixOf(file);
    return suffix == "svg" || !formats.contains(suffix);
}

} // namespace

IconFiles::IconFiles(const IconDirectory& icons, const QVector<IconPath>& paths)
{
    QHash<QString, size_t> known; // by what links lead to, and suffix
    QSet<QString> svgFiles;
    for (const IconPath& path : paths) {
        if (numbers.contains(path.path) || !icons.contains(path.path))
            continue;
        const QFileInfo file = icons.file(path.path);
        const QString target = file.canonicalFilePath();
        const QString identity = target + QLatin1Char('.') + file.suffix();
        if (!known.contains(identity)) {
            const bool isChecked = canBeSvg(file) && !svgFiles.contains(target);
            if (isChecked)
                svgFiles.insert(target);
            known.insert(identity, files.size());
            files.push_back({file, isChecked, {}, {}, {}});
        }
        numbers.insert(path.path, known.value(identity));
    }
    std::atomic<size_t> next{0};
    const auto readOthers = [this, &next] {
        for (size_t number = next++; number < files.size(); number = next++)
            read(files[number]);
    };
    QThreadPool threads;
    for (int thread = 0; thread < threads.maxThreadCount(); ++thread)
        threads.start(readOthers);
    threads.waitForDone();
}

const IconFiles::File* IconFiles::find(const QString& relativePath) const
{
    const auto number = numbers.constFind(relativePath);
    return number == numbers.constEnd() ? nullptr : &files[*number];
}

QVector<SvgFault> IconFiles::svgFaults() const
{
    QVector<SvgFault> faults;
    for (const File& file : files)
        faults += file.svgFaults;
    return faults;
}

void IconFiles::read(File& file)
{
    QString problem; // a file that cannot be read is not an image
    const QByteArray content = ResourceFormat::RegularFile::readAll(file.info.filePath(), problem);
    if (file.isChecked)
        file.svgFaults = SvgReader(file.info.filePath(), content).faults();
    file.imageFault = imageFault(content, suffixOf(file.info));
    file.digest = QCryptographicHash::hash(content, QCryptographicHash::Sha1);
}

} // namespace ResourceCheck
