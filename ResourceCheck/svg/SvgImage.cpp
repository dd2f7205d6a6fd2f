#include "ResourceCheck/svg/SvgImage.h"

#include "ResourceCheck/MessageSilencer.h"

#include <QBuffer>
#include <QImageReader>

namespace ResourceCheck
{

QString SvgImage::fault(const QString& url)
{
    const MessageSilencer silencer; // Qt's readers log what the finding says anyway
    const QString marker = QStringLiteral("base64,");
    const int begin = url.lastIndexOf(marker);
    QByteArray data;
    if (begin >= 0)
        data = QByteArray::fromBase64(QStringView(url).mid(begin + marker.size()).toLatin1());
    QBuffer buffer(&data);
    QImageReader reader(&buffer);
    if (reader.format().startsWith("svg"))
        return QStringLiteral("the embedded image is an SVG file, which is not checked; insert its elements directly");
    constexpr qint64 maximumPixels = qint64{4096} * 4096;
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > maximumPixels)
        return QStringLiteral("the embedded image is larger than 4096 x 4096 pixels; scale it down");
    const bool isGood = reader.canRead() && !reader.read().isNull();
    return isGood ? QString() : QStringLiteral("the embedded image is damaged; embed it again as PNG in base64");
}

} // namespace ResourceCheck
