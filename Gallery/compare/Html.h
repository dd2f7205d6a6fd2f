#pragma once

#include <QImage>
#include <QString>

/// Pieces of an HTML page from texts that nobody has checked.
namespace Gallery::Html
{

/// The text for an element or a quoted attribute. Control characters, also those that change the direction of the
/// text, become visible as `[U+202E]`; line breaks and tabs stay.
QString escaped(const QString& text);

/// An element with text. `attributes` is HTML, such as ` class="name"`.
QString element(const QString& name, const QString& attributes, const QString& text);

/// The picture as a part of the page. It has the size of the picture divided by `scale`.
QString image(const QImage& picture, const QString& alternativeText, const QString& cssClass, int scale = 1);

} // namespace Gallery::Html
