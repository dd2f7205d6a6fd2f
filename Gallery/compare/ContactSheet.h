#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

namespace Gallery
{

/// A picture of many pictures: a row for each language, and a column for each context of each display. Each picture has
/// its real proportions; all have the same scale, which is 1 or small enough for a sheet of at most 8000x8000 pixels.
class ContactSheet
{
public:
    /// Returns the picture for a display, a context and a language; null to give up.
    using Draw = std::function<QImage(const QString& display, const QString& context, const QString& language)>;

    ContactSheet(const QString& sheetTitle, const QStringList& displayNames, const QStringList& contextNames,
                 const QStringList& languageNames);

    /// Null if one of the pictures is null.
    QImage draw(const Draw& drawPicture);

    /// Where the picture of a display, a context and a language is.
    QRect cell(int display, int context, int language) const;

private:
    int columnX(int display, int context) const;
    int rowHeight() const;
    QSize pictureSize(int display) const;
    QSize sizeAt(double contentScale) const;
    void drawLabels(QPainter& painter) const;

    const QString title;
    const QStringList displays;
    const QStringList contexts;
    const QStringList languages;
    int labelWidth = 0; // of the languages
    double scale = 1;
};

} // namespace Gallery
