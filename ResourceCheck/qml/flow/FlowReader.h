#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

namespace ResourceCheck
{

class Flow;
struct FlowValue;

/// What reading a member of an object gives, depending on the kind of the object.
class FlowReader
{
public:
    explicit FlowReader(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// target = object.name, where the operation is in the code.
    void read(int object, int name, int target, const CodeOperation& operation, FlowFrame* frame);

    /// target = the member of the modules with the paths; `*` stands for the module itself.
    void import(const FlowValue& paths, int name, int target, const CodeOperation& operation, FlowFrame& frame);

private:
    void readInstance(int object, int name, int target);
    void readHandlers(const QString& path, const QString& name, int target, const CodeOperation& operation,
                      const FlowFrame* frame);
    void readMap(int member, const QString& name, const CodeOperation& operation, const FlowFrame& frame);
    void readBuiltin(const QString& path, const QString& name, int target);
    void readModule(FlowFrame& frame, int name, int target);

    Flow& flow;
};

} // namespace ResourceCheck
