#pragma once

#include "ResourceCheck/qml/QmlPattern.h"
#include "ResourceCheck/qml/flow/FlowCalls.h"
#include "ResourceCheck/qml/flow/FlowValue.h"

namespace ResourceCheck
{

class Flow;

/// Texts that QML builds from others or compares.
class FlowTexts
{
public:
    explicit FlowTexts(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// The sums of the texts of both values.
    FlowValue sum(const FlowValue& left, const FlowValue& right);

    /// Calls the method of the texts in `this`.
    void change(const QString& method, const FlowCall& call);

    /// Adds the letters of the texts with these numbers to the target.
    void addLetters(const FlowValue& own, const FlowValue& numbers, int target);

    /// The value if it differs from the other one (`Without`) or equals it (`Only`). Nothing if the other one is empty.
    FlowValue restricted(const FlowValue& value, const FlowValue& other, CodeAction action);

    /// Whether the value may be `undefined`.
    bool isUndefined(const FlowValue& value) const;

private:
    void addResult(const QString& method, int text, const QVector<QmlPattern>& arguments, int target);
    bool isKnown(const FlowValue& value, CodeAction action) const;

    Flow& flow;
};

} // namespace ResourceCheck
