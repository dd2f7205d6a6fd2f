#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

#include <deque>
#include <map>
#include <tuple>

namespace ResourceCheck
{

class Flow;

/// The frames: one for each call of a function and for each object that is made from a component, as long as the
/// total stays in proportion to the size of the code. Beyond that, calls and objects share frames.
class FlowFrames
{
public:
    explicit FlowFrames(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Where a function is called from.
    struct Caller {
        const CodeOperation* operation;
        FlowFrame* frame;
        int element = -1; // the object that a function such as Array.map() passes
    };

    /// Calls the function with the slots as arguments. They are all that is passed if `isComplete`; otherwise the
    /// last slot has the arguments whose index is not known. A slot that is -1 is left out.
    void call(int function, const Caller& caller, int thisSlot, const std::vector<int>& arguments, bool isComplete,
              int result);

    /// Calls the function with arguments that are not known.
    void callUnknown(int function);

    /// The frame of a script, which is started when it is first needed. Null if the file is not a script.
    FlowFrame* module(const CodeFile& file);

    /// Adds a frame, which is not started.
    FlowFrame& make(const CodeUnit& unit, FlowFrame* parent, const FlowFrame* maker);

    /// Starts the code of the frame.
    void start(FlowFrame& frame);

    /// Whether the unit must not get a further frame of its own here.
    bool mustShare(const CodeUnit& unit, const FlowFrame* maker) const;

    bool isReached(const CodeUnit& unit) const { return reached.contains(&unit); }

    /// Limits the number of operations in all frames.
    void setLimit(qint64 operations) { operationLimit = operations; }

    /// The frame whose slots are those of the graph.
    FlowFrame* absolute() { return &absoluteFrame; }

private:
    FlowFrame& frameOfCall(const FlowObject& function, int number, const Caller& caller, size_t argumentCount,
                           bool isComplete);
    void passRest(int array, const std::vector<int>& arguments, size_t first, bool isComplete);

    Flow& flow;
    std::deque<FlowFrame> frames;
    FlowFrame absoluteFrame{nullptr, nullptr, nullptr, 0, 0, -1, -1, {}};
    std::map<std::tuple<int, const CodeOperation*, const FlowFrame*, int>, FlowFrame*> calls;
    QHash<const CodeUnit*, FlowFrame*> modules;
    QSet<const CodeUnit*> reached;
    qint64 operationCount = 0; // of all frames
    qint64 operationLimit = 0;
};

} // namespace ResourceCheck
