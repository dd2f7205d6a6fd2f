#include "Gallery/catalog/IconFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace Gallery
{

namespace
{

constexpr qint64 longestHead = 65536; // an editor may write a long comment before the first element

QString sizeText(const QString& width, const QString& height)
{
    if (width.isEmpty() || height.isEmpty())
        return QString();
    bool isNumber = false;
    width.toDouble(&isNumber);
    return QStringLiteral("%1 × %2%3").arg(width, height, isNumber ? QStringLiteral(" units") : QString());
}

void readSvg(QFile& file, IconFile& icon)
{
    QXmlStreamReader reader(file.read(longestHead));
    if (!reader.readNextStartElement())
        return;
    const QXmlStreamAttributes attributes = reader.attributes();
    const auto value = [&attributes](const char* name) {
        return attributes.value(QLatin1String(name)).toString().simplified();
    };
    static const QRegularExpression separator(QStringLiteral("[ ,]+"));
    icon.size = sizeText(value("width"), value("height"));
    icon.viewBox = value("viewBox").replace(separator, QStringLiteral(" "));
}

void readPixels(QFile& file, IconFile& icon)
{
    const QSize size = QImageReader(&file).size();
    if (size.isValid())
        icon.size = QStringLiteral("%1 × %2 px").arg(size.width()).arg(size.height());
}

} // namespace

IconFile IconFile::read(const QString& folder, const QString& name)
{
    IconFile icon;
    icon.name = name;
    QFile file(folder + QLatin1Char('/') + name);
    // Opening a FIFO would wait for its writer.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return icon;
    if (name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive))
        readSvg(file, icon);
    else
        readPixels(file, icon);
    return icon;
}

} // namespace Gallery
