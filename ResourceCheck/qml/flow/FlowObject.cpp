#include "ResourceCheck/qml/flow/FlowObject.h"

namespace ResourceCheck
{

int FlowFrame::slot(CodeSlot slot) const
{
    const FlowFrame* frame = this;
    for (int level = slot.level; level > 0 && frame->parent != nullptr; --level)
        frame = frame->parent;
    return frame->firstSlot + slot.index;
}

} // namespace ResourceCheck
