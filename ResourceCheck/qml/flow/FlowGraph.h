#pragma once

#include "ResourceCheck/qml/flow/FlowValue.h"

#include <QSet>

#include <deque>

namespace ResourceCheck
{

/// Slots, the flows between them and the tasks that depend on them.
class FlowGraph
{
public:
    explicit FlowGraph(CodeTexts& textTable)
        : texts(textTable)
    {
    }

    /// Adds empty slots and returns the number of the first one.
    int addSlots(int count);

    const FlowValue& value(int slot) const { return slots[static_cast<size_t>(slot)].value; }

    bool addText(int slot, int text); // returns whether the slot has grown
    void addObject(int slot, int object);
    void addUnknown(int slot);
    void add(int slot, const FlowValue& value);

    /// Everything that `source` holds flows to `target`, also what it gets later.
    void connect(int source, int target);

    /// The task is due whenever the slot has grown.
    void watch(int slot, int task);

    void makeDue(int task);

    /// Lets values flow until a task is due. Returns it, or -1 at the fixed point.
    int nextTask();

private:
    struct Slot {
        FlowValue value;
        std::vector<int> targets;
        std::vector<int> tasks;
        bool isQueued = false;
    };

    Slot& slot(int number) { return slots[static_cast<size_t>(number)]; }
    void grown(int number);
    static bool isNew(QSet<quint64>& pairs, int from, int to);

    CodeTexts& texts;
    std::vector<Slot> slots;
    QSet<quint64> flows;
    QSet<quint64> watches;
    std::vector<bool> isDue; // by task
    std::deque<int> grownSlots;
    std::deque<int> dueTasks;
};

} // namespace ResourceCheck
