#pragma once

#include "ResourceCheck/qml/flow/FlowBuiltins.h"

namespace ResourceCheck
{

/// What the methods of arrays do with their elements.
class FlowArrays
{
public:
    explicit FlowArrays(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Calls the method of the arrays in `this`.
    void perform(const QString& name, const FlowCall& call);

    /// The slot for the elements of the array that the call returns.
    int result(const FlowCall& call);

    /// The slot for the elements that the call works on.
    int list(const FlowCall& call);

    /// Calls the functions in the slot with each of these elements. The results flow to the target. With an
    /// accumulator, it is the first argument.
    void iterate(const FlowCall& call, int callee, int target, int accumulator = -1);

private:
    int elements(const FlowCall& call);
    void reduce(const FlowCall& call);
    void add(const FlowCall& call);

    Flow& flow;
};

} // namespace ResourceCheck
