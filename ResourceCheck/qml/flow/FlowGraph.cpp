#include "ResourceCheck/qml/flow/FlowGraph.h"

#include <utility>

namespace ResourceCheck
{

int FlowGraph::addSlots(int count)
{
    const size_t first = slots.size();
    slots.resize(first + static_cast<size_t>(count));
    return static_cast<int>(first);
}

bool FlowGraph::addText(int slot, int text)
{
    const bool hasGrown = this->slot(slot).value.addText(text, texts);
    if (hasGrown)
        grown(slot);
    return hasGrown;
}

void FlowGraph::addObject(int slot, int object)
{
    if (this->slot(slot).value.addObject(object))
        grown(slot);
}

void FlowGraph::addUnknown(int slot)
{
    if (this->slot(slot).value.addUnknown())
        grown(slot);
}

void FlowGraph::add(int slot, const FlowValue& value)
{
    if (this->slot(slot).value.add(value, texts))
        grown(slot);
}

void FlowGraph::connect(int source, int target)
{
    Slot& from = slot(source);
    Slot& to = slot(target);
    if (source == target || !isNew(flows, source, target))
        return;
    from.targets.push_back(target);
    if (!from.value.isEmpty() && to.value.add(from.value, texts))
        grown(target);
}

void FlowGraph::watch(int slot, int task)
{
    if (!isNew(watches, slot, task))
        return;
    this->slot(slot).tasks.push_back(task);
    if (!value(slot).isEmpty())
        makeDue(task);
}

void FlowGraph::makeDue(int task)
{
    if (static_cast<size_t>(task) >= isDue.size())
        isDue.resize(static_cast<size_t>(task) + 1);
    if (!isDue[static_cast<size_t>(task)]) {
        isDue[static_cast<size_t>(task)] = true;
        dueTasks.push_back(task);
    }
}

int FlowGraph::nextTask()
{
    while (!grownSlots.empty()) {
        const int number = grownSlots.front();
        grownSlots.pop_front();
        slot(number).isQueued = false;
        for (const int target : slot(number).targets)
            add(target, slot(number).value);
        for (const int task : slot(number).tasks)
            makeDue(task);
    }
    if (dueTasks.empty())
        return -1;
    const int task = dueTasks.front();
    dueTasks.pop_front();
    isDue[static_cast<size_t>(task)] = false;
    return task;
}

bool FlowGraph::isNew(QSet<quint64>& pairs, int from, int to)
{
    const quint64 pair = static_cast<quint64>(from) << 32U | static_cast<quint32>(to);
    const int size = pairs.size();
    pairs.insert(pair);
    return pairs.size() > size;
}

void FlowGraph::grown(int number)
{
    if (!std::exchange(slot(number).isQueued, true))
        grownSlots.push_back(number);
}

} // namespace ResourceCheck
