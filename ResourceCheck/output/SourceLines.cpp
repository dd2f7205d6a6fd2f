#include "ResourceCheck/output/SourceLines.h"

#include "ResourceFormat/RegularFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace ResourceCheck
{

QString SourceLines::line(const Place& place)
{
    if (place.line < 1)
        return QString();
    auto file = files.constFind(place.path);
    if (file == files.constEnd()) {
        QString problem;
        const QByteArray content = ResourceFormat::RegularFile::readAll(place.path, problem);
        file = files.insert(place.path, QString::fromUtf8(content).split(QLatin1Char('\n')));
    }
    return file->value(place.line - 1);
}

void addFingerprints(QVector<Finding>& findings, const QString& directory)
{
    const QDir root(QDir(directory).absolutePath());
    SourceLines lines;
    QHash<QString, int> counts;
    for (Finding& finding : findings) {
        const QString text = lines.line(finding.place).simplified();
        // A finding in a whole file is known by its message.
        const QString content = text.isEmpty() ? QString(finding.message).remove(directory + QLatin1Char('/')) : text;
        const QString path = root.relativeFilePath(QDir::cleanPath(QFileInfo(finding.place.path).absoluteFilePath()));
        const QString identity = QStringList{finding.rule, path, content}.join(QChar(QChar::Null));
        const QString numbered = identity + QChar(QChar::Null) + QString::number(counts[identity]++);
        const QByteArray hash = QCryptographicHash::hash(numbered.toUtf8(), QCryptographicHash::Sha1);
        finding.fingerprint = QString::fromLatin1(hash.toHex());
    }
}

} // namespace ResourceCheck
