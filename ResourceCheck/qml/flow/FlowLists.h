#pragma once

#include "ResourceCheck/qml/flow/FlowCalls.h"

namespace ResourceCheck
{

class Flow;
struct FlowValue;

/// What functions do that turn objects and texts into arrays, and arrays into texts.
class FlowLists
{
public:
    explicit FlowLists(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// `Object.values` and `Object.entries`.
    void addValues(const FlowValue& objects, const FlowCall& call);
    void addEntries(const FlowValue& objects, const FlowCall& call);

    /// `Array.from` and `Array.of`.
    void make(const QString& name, const FlowCall& call);

    void split(const FlowCall& call);
    void join(const FlowCall& call);

    /// Adds the elements of the arrays in the slot to the arguments of the call, by index.
    void addArguments(int slot, FlowCall& call);

private:
    int elementCount(int object);

    Flow& flow;
};

} // namespace ResourceCheck
