#pragma once

#include "ResourceCheck/qml/QmlPattern.h"
#include "ResourceCheck/qml/flow/FlowObject.h"

#include <map>
#include <tuple>

namespace ResourceCheck
{

class Flow;

/// Makes the objects that Qt Quick makes from the values of properties: delegates, the content of a `Loader`.
class FlowDelegates
{
public:
    explicit FlowDelegates(Flow& ownFlow)
        : flow(ownFlow)
    {
    }

    /// The slot of the member. If it is a property that Qt Quick makes objects from, they are made.
    int member(int object, int name);

    /// Makes the objects from the values of the property that are there now.
    void perform(int object, int name, int task);

    /// Makes an object from the component and assigns the members of the objects in `properties` to it. Returns it.
    int make(int component, int owner, int properties = -1);

    /// Makes an object of the file.
    void makeFromFile(const QmlPattern& path, int owner, int result);

private:
    void makeDelegates(int component, int owner, int task);
    void makeDelegate(int component, int owner, int element, int slot);

    Flow& flow;
    std::map<std::tuple<int, int, int>, int> made; // objects by component, owner and element
    std::map<std::pair<int, int>, std::pair<int, int>> elementSlots;
};

} // namespace ResourceCheck
