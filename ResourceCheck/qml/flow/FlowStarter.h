#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

namespace ResourceCheck
{

class Flow;

/// Decides which code runs, and when.
class FlowStarter
{
public:
    explicit FlowStarter(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Makes the objects of the files that no other file makes objects of.
    void startFiles();

    /// Starts code that nothing in the front end starts: signal handlers, functions for others, other components.
    /// Nothing is known about its parameters. At last, nothing is known about what the front end compares with if no
    /// value reaches it, and members that objects lack are undefined. Returns whether there was any.
    bool startUnreached();

    /// Performs an operation that never changes, or adds the task for any other.
    void start(const CodeOperation& operation, FlowFrame& frame);

    /// A value is compared with the slot.
    void addComparison(int slot) { compared.insert(slot); }

private:
    void openToHost(int root);
    void startValue(const CodeOperation& operation, FlowFrame& frame);
    bool startUnreachedFile();
    bool startUnreachedObjects();
    bool startComparisons();

    Flow& flow;
    int firstUnseen = 0; // of the objects
    QSet<int> compared;
};

} // namespace ResourceCheck
