#include "ResourceCheck/reading/ImageFault.h"

#include "ResourceCheck/MessageSilencer.h"

#include <QBuffer>
#include <QHash>
#include <QImage>
#include <QImageReader>

namespace ResourceCheck
{

namespace
{

// Qt reads all formats of a family with the same reader, whatever the suffix of the file.
QByteArray familyOf(const QByteArray& format)
{
    static const QHash<QByteArray, QByteArray> families{
        {"jpg", "jpeg"}, {"svgz", "svg"}, {"cur", "ico"}, {"pgm", "pbm"}, {"ppm", "pbm"}};
    return families.value(format, format);
}

} // namespace

QString imageFault(const QByteArray& content, const QByteArray& suffix)
{
    const MessageSilencer silencer; // Qt's readers log what the finding says anyway
    static const QList<QByteArray> knownFormats = QImageReader::supportedImageFormats();
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    const QString formatName = QString::fromLatin1(format.toUpper());
    if (format.isEmpty())
        return QStringLiteral("is not an image that Qt can read; save it as SVG or PNG");
    if (knownFormats.contains(suffix) && familyOf(suffix) != familyOf(format))
        return QStringLiteral("is a %1 image; rename or convert it").arg(formatName);
    // SvgReader reads SVG files: Qt would parse and measure the whole picture to find its size.
    const bool isDrawable =
        format == "svg" || (!reader.size().isEmpty() && (format == "svgz" || !reader.read().isNull()));
    return isDrawable ? QString()
                      : QStringLiteral("is a damaged %1 image, or has no size; save it again").arg(formatName);
}

} // namespace ResourceCheck
