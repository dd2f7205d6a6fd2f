#pragma once

#include "ResourceCheck/qml/QmlPattern.h"

#include <QHash>
#include <QPair>

#include <vector>

namespace ResourceCheck
{

/// Numbers for texts. A text is identified by its pattern and its origin, because a fault is reported at the literal.
class CodeTexts
{
public:
    /// Adds a literal of the code.
    int add(const QString& text, const Place& place, bool isNumber = false);

    /// The number of a text that was built from others.
    int number(const QmlPattern& pattern);

    const QmlPattern& pattern(int number) const { return patterns.at(static_cast<size_t>(number)).pattern; }

    /// Whether the text is a numeric literal.
    bool isNumber(int number) const { return patterns.at(static_cast<size_t>(number)).isNumber; }

private:
    struct Entry {
        QmlPattern pattern;
        bool isNumber;
    };
    std::vector<Entry> patterns;
    QHash<QString, int> numbers; // of built texts
};

} // namespace ResourceCheck
