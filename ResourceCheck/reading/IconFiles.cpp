#include "ResourceCheck/reading/IconFiles.h"

#include "ResourceCheck/reading/ImageFault.h"
#include "ResourceCheck/svg/SvgReader.h"
#include "ResourceFormat/RegularFile.h"

#include <QCryptographicHash>
#include <QImageReader>
#include <QSet>
#include <QThreadPool>

#include <atomic>
#include <functional>

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

// Performs the task with each number below the count, on all processors.
void performAll(size_t count, const std::function<void(size_t number)>& task)
{
    std::atomic<size_t> next{0};
    const auto performOthers = [count, &task, &next] {
        for (size_t number = next++; number < count; number = next++)
            task(number);
    };
    QThreadPool threads;
    for (int thread = 0; thread < threads.maxThreadCount(); ++thread)
        threads.start(performOthers);
    threads.waitForDone();
}

// QFileInfo keeps what it has asked the system, also for its copies.
void askSystem(const IconDirectory& icons, const QVector<IconPath>& paths)
{
    QSet<QString> asked;
    std::vector<QFileInfo> files;
    for (const IconPath& path : paths) {
        if (!IconDirectory::isOutside(path.path) && !asked.contains(path.path))
            files.push_back(icons.file(path.path));
        asked.insert(path.path);
    }
    performAll(files.size(), [&files](size_t number) {
        if (files[number].isFile())
            files[number].canonicalFilePath();
    });
}

} // namespace

IconFiles::IconFiles(const IconDirectory& icons, const QVector<IconPath>& paths)
{
    askSystem(icons, paths);
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
    performAll(files.size(), [this](size_t number) { read(files[number]); });
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
