#include "Gallery/compare/ContactSheet.h"

#include "ResourceFormat/DisplaySize.h"

#include <QFontMetrics>

#include <algorithm>

namespace Gallery
{

namespace
{

constexpr int longestSide = 8000;
constexpr int margin = 32;
constexpr int gap = 24;
constexpr int titlePixels = 56;
constexpr int labelPixels = 32;
constexpr int scaleLine = margin + titlePixels + 2 * labelPixels; // baselines
constexpr int displayLine = scaleLine + 3 * labelPixels;
constexpr int contextLine = displayLine + labelPixels * 3 / 2;
constexpr int headerHeight = contextLine + labelPixels;
const QColor paper(0xE9, 0xED, 0xF1);
const QColor ink(0x14, 0x20, 0x2B);
const QColor edge(0x8A, 0x97, 0xA3);

QFont fontOf(int pixels, bool isBold)
{
    QFont font;
    font.setPixelSize(pixels);
    font.setBold(isBold);
    return font;
}

QString elided(const QString& text, const QFont& font, int width)
{
    return QFontMetrics(font).elidedText(text, Qt::ElideRight, width);
}

} // namespace

ContactSheet::ContactSheet(const QString& sheetTitle, const QStringList& displayNames, const QStringList& contextNames,
                           const QStringList& languageNames)
    : title(sheetTitle)
    , displays(displayNames)
    , contexts(contextNames)
    , languages(languageNames)
{
    const QFontMetrics metrics(fontOf(labelPixels, true));
    for (const QString& language : languages)
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(language));
    const QSize labels = sizeAt(0);
    const QSize pictures = sizeAt(1) - labels;
    const auto fitting = [](int available, int needed) { return available / static_cast<double>(std::max(needed, 1)); };
    scale = std::min({1.0, fitting(longestSide - labels.width(), pictures.width()),
                      fitting(longestSide - labels.height(), pictures.height())});
}

QImage ContactSheet::draw(const Draw& drawPicture)
{
    QImage sheet(sizeAt(scale), QImage::Format_RGB32);
    sheet.fill(paper);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    drawLabels(painter);
    for (int display = 0; display < displays.size(); ++display) {
        for (int context = 0; context < contexts.size(); ++context) {
            for (int language = 0; language < languages.size(); ++language) {
                QImage picture = drawPicture(displays.at(display), contexts.at(context), languages.at(language));
                if (picture.isNull())
                    return QImage();
                const QRect place = cell(display, context, language);
                picture.setDevicePixelRatio(1);
                if (picture.size() != place.size())
                    picture = picture.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                painter.fillRect(place.adjusted(-1, -1, 1, 1), edge);
                painter.drawImage(place.topLeft(), picture);
            }
        }
    }
    return sheet;
}

QRect ContactSheet::cell(int display, int context, int language) const
{
    return {QPoint(columnX(display, context), headerHeight + language * (rowHeight() + gap)), pictureSize(display)};
}

int ContactSheet::columnX(int display, int context) const
{
    int x = 2 * margin + labelWidth + context * (pictureSize(display).width() + gap);
    for (int before = 0; before < display; ++before)
        x += contexts.size() * (pictureSize(before).width() + gap) + gap;
    return x;
}

int ContactSheet::rowHeight() const
{
    int height = 0;
    for (int display = 0; display < displays.size(); ++display)
        height = std::max(height, pictureSize(display).height());
    return height;
}

QSize ContactSheet::pictureSize(int display) const
{
    const QSize size = ResourceFormat::DisplaySize::fromName(displays.at(display));
    return {static_cast<int>(size.width() * scale), static_cast<int>(size.height() * scale)};
}

QSize ContactSheet::sizeAt(double contentScale) const
{
    ContactSheet sheet(*this);
    sheet.scale = contentScale;
    const int right = sheet.columnX(displays.size() - 1, contexts.size()) - gap + margin;
    const int rows = static_cast<int>(languages.size());
    return {right, headerHeight + rows * (sheet.rowHeight() + gap) - gap + margin};
}

void ContactSheet::drawLabels(QPainter& painter) const
{
    const QFont bold = fontOf(labelPixels, true);
    const QFont normal = fontOf(labelPixels, false);
    const int width = sizeAt(scale).width() - 2 * margin;
    painter.setPen(ink);
    painter.setFont(fontOf(titlePixels, true));
    painter.drawText(margin, margin + titlePixels, elided(title, painter.font(), width));
    painter.setFont(normal);
    const QString scaleText = QStringLiteral("Scale %1 %").arg(scale * 100, 0, 'f', scale < 1 ? 1 : 0);
    painter.drawText(margin, scaleLine, scaleText);
    for (int display = 0; display < displays.size(); ++display) {
        painter.setFont(bold);
        painter.drawText(columnX(display, 0), displayLine, displays.at(display));
        painter.setFont(normal);
        for (int context = 0; context < contexts.size(); ++context) {
            const QString label = elided(contexts.at(context), normal, pictureSize(display).width());
            painter.drawText(columnX(display, context), contextLine, label);
        }
    }
    painter.setFont(bold);
    for (int language = 0; language < languages.size(); ++language)
        painter.drawText(margin, cell(0, 0, language).top() + labelPixels, languages.at(language));
}

} // namespace Gallery
