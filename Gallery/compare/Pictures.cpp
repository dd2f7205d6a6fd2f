#include "Gallery/compare/Pictures.h"

#include "ResourceFormat/QtVersion.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QImageReader>
#include <QPainter>

#include <algorithm>

namespace Gallery::Pictures
{

namespace
{

constexpr double lightMean = 140; // of 255

} // namespace

QImage icon(const QString& path, int pixels, QSize& size)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // as QML does
    size = reader.size();
    if (size.isValid())
        reader.setScaledSize(size.scaled(pixels, pixels, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

bool isLight(const QImage& icon)
{
    const QImage pixels = icon.convertToFormat(QImage::Format_ARGB32);
    double weights = 0;
    double lightness = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            weights += qAlpha(line[x]);
            lightness += qAlpha(line[x]) * static_cast<double>(qGray(line[x]));
        }
    }
    return lightness > lightMean * weights;
}

QImage fontSample(const QString& family, double pixels)
{
    QFont font(family);
    font.setPixelSize(std::max(1, qRound(pixels * sampleScale)));
    const QString text = QStringLiteral("Abgjß 0123");
    const QFontMetrics metrics(font);
    const int margin = 4 * sampleScale;
    QImage picture(metrics.horizontalAdvance(text) + 2 * margin, metrics.height() + 2 * margin, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.drawText(margin, margin + metrics.ascent(), text);
    painter.end();
    return picture.convertToFormat(QImage::Format_Grayscale8); // smaller
}

QString usedFamily(const QString& family)
{
    const bool isInstalled = ResourceFormat::QtVersion::fontFamilies().contains(family, Qt::CaseInsensitive);
    return isInstalled ? family : QFontInfo(QFont(family)).family();
}

} // namespace Gallery::Pictures
