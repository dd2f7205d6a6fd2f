#pragma once

#include "ResourceCheck/qml/flow/FlowGraph.h"
#include "ResourceCheck/qml/flow/FlowObject.h"

#include <deque>
#include <map>
#include <tuple>

namespace ResourceCheck
{

/// The objects of the analysis and the slots of their members.
class FlowObjects
{
public:
    explicit FlowObjects(FlowGraph& flowGraph)
        : graph(flowGraph)
    {
    }

    FlowObject& at(int object) { return objects[static_cast<size_t>(object)]; }
    int size() const { return static_cast<int>(objects.size()); }
    int add(const FlowObject& object);

    /// The object that represents all that the operation makes in the frame.
    int made(const CodeOperation* operation, const FlowFrame* frame, const FlowObject& object);

    /// The object that has no members of its own, for example a handler or a function of QML.
    int named(FlowObject::Kind kind, const QString& path, int name = -1, int owner = -1);

    /// What the qualifier of an import refers to: the script if `script` is not null.
    int imported(const CodeFile& file, int qualifier, FlowFrame* script);

    /// The component of a file.
    int component(const CodeUnit& unit);

    /// The slot of the member. A member that does not exist yet is added.
    int member(int object, int name);

    /// The slot with the values of all members.
    int all(int object);

    /// The slot for values of members whose name is not known.
    int any(int object);

private:
    FlowGraph& graph;
    std::deque<FlowObject> objects;
    QHash<QPair<const CodeOperation*, const FlowFrame*>, int> madeObjects;
    std::map<std::tuple<FlowObject::Kind, int, int, QString>, int> namedObjects;
    QHash<QPair<const void*, int>, int> importedObjects;
};

} // namespace ResourceCheck
