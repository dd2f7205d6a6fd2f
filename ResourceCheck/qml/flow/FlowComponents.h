#pragma once

#include "ResourceCheck/qml/flow/FlowCalls.h"

namespace ResourceCheck
{

class Flow;

/// What the functions of components, models, loaders and signals do.
class FlowComponents
{
public:
    explicit FlowComponents(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Calls the function, for example `createObject`. Returns whether it is one of them.
    bool perform(const QString& name, const FlowCall& call);

private:
    bool push(const FlowCall& call);
    void connectSignal(const FlowCall& call);
    void createObject(const FlowCall& call);
    void addElements(const QString& name, const FlowCall& call);
    void loadFile(size_t argumentIndex, const FlowCall& call, int result);

    Flow& flow;
};

} // namespace ResourceCheck
