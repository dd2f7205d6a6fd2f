#pragma once

#include "ResourceCheck/qml/flow/FlowObject.h"

namespace ResourceCheck
{

class Flow;

/// What the names in the code refer to that are not variables.
class FlowNames
{
public:
    explicit FlowNames(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// Performs the operation Name, as the QML engine looks for a name: types and imports, then ids, the elements of
    /// the model, the properties of the scope object and of the root in each component outwards, then global names.
    void connect(const CodeOperation& operation, FlowFrame& frame, int task);

    /// Performs the operation SetName.
    void assign(const CodeOperation& operation, FlowFrame& frame);

    /// Lets the handler with the name flow to the target, or the object that leads to it. Returns whether there is one.
    bool connectHandler(const QString& path, int target);

    /// Lets what the name of a type, module or script refers to flow to the target. Returns whether it is known.
    bool connectType(const CodeFile& file, const QStringList& name, int target);

    enum class Declared { No, Property, Signal };

    /// How the QML code declares the property of the instance.
    Declared declared(int object, int name);

private:
    bool connectInComponent(const CodeOperation& operation, FlowFrame& component, int scope, int target, int task);
    bool connectElement(const CodeOperation& operation, FlowFrame& component, int target, int task);
    bool isSignalParameter(int object, int name);
    bool isKnown(int object, int name);

    Flow& flow;
};

} // namespace ResourceCheck
