#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

#include <map>
#include <tuple>

namespace ResourceCheck
{

class Flow;

/// A call that is being performed.
struct FlowCall {
    const CodeOperation* operation;
    FlowFrame* frame;
    int task;
    int thisSlot; // -1 without `this`
    std::vector<int> arguments;
    bool isComplete; // otherwise the last argument is what arrays contain, without a known index
    int target;
};

/// What calls do.
class FlowCalls
{
public:
    explicit FlowCalls(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Performs the operation Call or New.
    void perform(const CodeOperation& operation, FlowFrame& frame, int task);

    /// Calls everything in the slot that can be called.
    void callAll(int callee, const FlowCall& call, int element = -1);

    /// Calls the functions among the arguments, as code that is not known may do.
    void release(const FlowCall& call);

    /// A slot for intermediate values of the call.
    int scratch(const FlowCall& call, int number);

    static bool isArrayMethod(const QString& name);
    static bool isInstanceMethod(const QString& name);

private:
    void callObject(int object, const FlowCall& call, int element);
    void callBuiltin(const QString& name, FlowCall call);
    void emitSignal(const FlowObject& signal, const FlowCall& call);
    void construct(int object, const FlowCall& call);

    Flow& flow;
    std::map<std::tuple<const CodeOperation*, const FlowFrame*, int>, int> scratchSlots;
};

} // namespace ResourceCheck
