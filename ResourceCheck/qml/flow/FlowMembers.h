#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

namespace ResourceCheck
{

class Flow;
struct FlowValue;

/// What reading and writing the members of objects does.
class FlowMembers
{
public:
    explicit FlowMembers(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// target = base.name, where the operation is in the code.
    void get(const FlowValue& base, int name, int target, const CodeOperation& operation, FlowFrame* frame);

    /// target = base[key]; all members if the key is not known.
    void getAt(const FlowValue& base, const FlowValue& key, int target, const CodeOperation& operation,
               FlowFrame* frame);

    /// base.name = source
    void set(const FlowValue& base, int name, int source);

    /// base[key] = source
    void setAt(const FlowValue& base, const FlowValue& key, int source);

    /// target = one element of the arrays, the models and the texts of base.
    void elements(const FlowValue& base, int target);

    /// target = one key of the objects of base.
    void keys(const FlowValue& base, int target);

    /// Copies all members of the objects of base to the object.
    void spread(const FlowValue& base, int object);

private:
    void write(int object, int name, int source);
    bool passUndefined(const FlowValue& base, int target);

    Flow& flow;
};

} // namespace ResourceCheck
