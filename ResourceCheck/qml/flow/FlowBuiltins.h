#pragma once

#include "ResourceCheck/qml/flow/FlowCalls.h"
#include "ResourceCheck/qml/flow/FlowValue.h"

namespace ResourceCheck
{

class Flow;

/// What the functions of JavaScript, QML and Qt Quick do with values.
class FlowBuiltins
{
public:
    explicit FlowBuiltins(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Calls the function, for example `Object.keys`, or the method of texts, arrays and objects, for example `map`.
    void perform(const QString& name, const FlowCall& call);

    /// The values of an argument, or of `this`. The call is repeated when they change.
    FlowValue argument(const FlowCall& call, size_t index);
    FlowValue self(const FlowCall& call);

private:
    bool performOnObject(const QString& name, const FlowCall& call);
    void assign(const FlowCall& call);
    void callFunction(const QString& name, const FlowCall& call);

    Flow& flow;
};

} // namespace ResourceCheck
