#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"
#include "ResourceCheck/reading/Place.h"

#include <map>

namespace ResourceCheck
{

class Flow;
struct FlowValue;

/// Reads of members that objects of JavaScript lack. They give `undefined`.
class FlowMissing
{
public:
    explicit FlowMissing(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// The operation reads the member of the objects in `base` into the target. The name is written at the place. If
    /// it is a value, `origin` is its text.
    void note(const CodeOperation& operation, int name, const FlowValue& base, int target, const Place& place,
              int origin = -1);

    /// Gives `undefined` to the targets of an operation if none of the objects that it reads has the member. Members
    /// that only some of them have are optional. Returns whether anything is new.
    bool start();

private:
    struct Read {
        bool mayExist = false;
        QSet<int> objects;
        std::map<std::pair<int, int>, Place> targets; // by slot and origin
    };

    bool has(int object, int name);

    Flow& flow;
    std::map<std::pair<const CodeOperation*, int>, Read> reads; // by the names of the members
};

} // namespace ResourceCheck
