#pragma once

#include "ResourceCheck/qml/code/CodeTexts.h"

#include <vector>

namespace ResourceCheck
{

/// What a slot may hold: texts, objects and values that are not known. It only ever grows.
struct FlowValue {
    /// More texts than this become one pattern.
    static constexpr size_t maximumTexts = 256;

    std::vector<int> texts;   // numbers in CodeTexts, ascending
    std::vector<int> objects; // numbers, ascending
    bool isUnknown = false;   // it may also hold anything else
    bool isOfHost = false;    // it may also hold texts of the host, which choose among what QML has for them
    bool isWide = false;      // the only text is a pattern that covers all texts

    bool isEmpty() const { return texts.empty() && objects.empty() && !isUnknown && !isOfHost; }

    // Each returns whether the value has grown.
    bool addText(int text, CodeTexts& table);
    bool addObject(int object);
    bool addUnknown();
    bool add(const FlowValue& other, CodeTexts& table);

private:
    void widen(CodeTexts& table);
    bool cover(const QmlPattern& pattern, CodeTexts& table);
};

} // namespace ResourceCheck
