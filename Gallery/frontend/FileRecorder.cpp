#include "Gallery/frontend/FileRecorder.h"

#include "QmlHost/Fingerprint.h"
#include "ResourceFormat/QtVersion.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>
#include <QMutexLocker>
#include <QQmlEngine>

namespace Gallery
{

namespace
{

bool isPicture(const QString& path)
{
    return QImageReader::supportedImageFormats().contains(QFileInfo(path).suffix().toLower().toLatin1());
}

} // namespace

void FileRecorder::follow(QQmlEngine& engine)
{
#if QT_VERSION_MAJOR < 6
    engine.setUrlInterceptor(this);
#else
    engine.addUrlInterceptor(this);
#endif
}

QUrl FileRecorder::intercept(const QUrl& url, DataType type)
{
    static const QString modules = ResourceFormat::QtVersion::qmlModules();
    const QString path = QDir::cleanPath(url.toLocalFile());
    if (path.isEmpty() || path.startsWith(modules))
        return url;
    {
        const QMutexLocker locker(&mutex);
        paths.insert(path);
    }
    if (type != UrlString || url.hasFragment() || !isPicture(path))
        return url;
    QUrl versioned = url;
    versioned.setFragment(QString::number(qHash(QmlHost::Fingerprint::of({path}))));
    return versioned;
}

QStringList FileRecorder::files() const
{
    const QMutexLocker locker(&mutex);
    QStringList sorted = paths.values();
    sorted.sort();
    return sorted;
}

QByteArray FileRecorder::fingerprint(const QStringList& files)
{
    static const QStringList kinds{QStringLiteral("*.qml"), QStringLiteral("*.js"), QStringLiteral("*.mjs"),
                                   QStringLiteral("qmldir")};
    QStringList all = files;
    QStringList folders;
    for (const QString& file : files)
        folders.append(QFileInfo(file).path());
    folders.removeDuplicates();
    for (const QString& folder : qAsConst(folders)) {
        const QStringList names = QDir(folder).entryList(kinds, QDir::Files);
        for (const QString& name : names)
            all.append(folder + QLatin1Char('/') + name);
    }
    return QmlHost::Fingerprint::of(all);
}

} // namespace Gallery
