#pragma once

#include "ResourceCheck/reading/Place.h"

#include <QStringList>

namespace ResourceCheck
{

/// A text of which QML gives the literal pieces, with any text between them.
struct QmlPattern {
    static QmlPattern literal(const QString& text, const Place& place = {}) { return {{text}, place, false}; }
    static QmlPattern anything(const Place& place = {}) { return {{QString(), QString()}, place, false}; }
    static QmlPattern undefined(const Place& place = {})
    {
        return {{QStringLiteral("undefined")}, place, false, false, true};
    }

    QStringList pieces; // a single piece is the whole text
    Place place;        // of the first literal piece if there is one
    /// Whether the pieces may never meet, because several texts on each side of a `+` may depend on each other.
    bool isUncertain = false;
    bool isPart = false;      // of the text that the code has at the place
    bool isUndefined = false; // the value that JavaScript calls so, which the code at the place gives

    bool isLiteral() const { return pieces.size() == 1; }
    bool hasText() const;
    bool matches(const QString& text) const;

    /// With `*` between the pieces.
    QString text() const { return pieces.join(QLatin1Char('*')); }
};

/// Concatenates two patterns.
QmlPattern operator+(const QmlPattern& left, const QmlPattern& right);

} // namespace ResourceCheck
