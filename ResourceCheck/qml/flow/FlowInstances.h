#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"
#include "ResourceCheck/qml/flow/FrontEnd.h"

#include <deque>

namespace ResourceCheck
{

class Flow;

/// Makes the objects of components.
class FlowInstances
{
public:
    explicit FlowInstances(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Makes the root object of a component and all objects in it. `element` is the slot with the element of the model
    /// that a delegate shows, or -1. Returns the root object.
    int instantiate(const CodeUnit& unit, FlowFrame* parent, const FlowFrame* maker, int element = -1);

    /// The only object of a singleton, or the one that represents all further objects of a component.
    int shared(const CodeUnit& unit);

private:
    FrontEnd::Type typeOf(const CodeObject& definition, const CodeFile& file);
    void instantiate(FlowFrame& frame, int root);
    void bind(int object, const CodeObject& definition, FlowFrame& frame);
    void bindGroup(int object, const CodeBinding& binding, FlowFrame& frame);
    void connectRequired(int object, const FlowFrame& frame);

    Flow& flow;
    std::deque<CodeOperation> ownOperations; // that are not in the code
    QHash<const CodeUnit*, int> sharedObjects;
    QHash<const CodeObject*, FrontEnd::Type> types; // of the definitions
};

} // namespace ResourceCheck
