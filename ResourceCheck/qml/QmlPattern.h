#pragma once

#include "ResourceCheck/Finding.h"

#include <QStringList>

/// A text of which QML gives the literal pieces, with anything between them.
struct QmlPattern {
    static QmlPattern literal(const QString& text, const Place& place = {}) { return {{text}, place}; }
    static QmlPattern anything(const Place& place = {}) { return {{QString(), QString()}, place}; }

    QStringList pieces; // one: the text is known
    Place place;        // of the first literal piece, if there is one

    bool isLiteral() const { return pieces.size() == 1; }
    bool hasText() const;
    bool matches(const QString& text) const;

    /// With `*` for anything.
    QString text() const { return pieces.join(QLatin1Char('*')); }
};

/// One behind the other.
QmlPattern operator+(const QmlPattern& left, const QmlPattern& right);
