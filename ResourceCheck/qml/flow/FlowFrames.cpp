#include "ResourceCheck/qml/flow/FlowFrames.h"

#include "ResourceCheck/qml/flow/Flow.h"

namespace ResourceCheck
{

namespace
{

constexpr int maximumDepth = 16; // of objects in objects and of calls in calls

} // namespace

FlowFrame& FlowFrames::make(const CodeUnit& unit, FlowFrame* parent, const FlowFrame* maker)
{
    frames.push_back({&unit,
                      parent,
                      maker,
                      flow.graph.addSlots(unit.slotCount),
                      maker == nullptr ? 0 : maker->depth + 1,
                      -1,
                      -1,
                      {}});
    operationCount += static_cast<qint64>(unit.operations.size());
    reached.insert(&unit);
    return frames.back();
}

bool FlowFrames::mustShare(const CodeUnit& unit, const FlowFrame* maker) const
{
    if (maker != nullptr && (maker->depth >= maximumDepth || operationCount > operationLimit))
        return true;
    for (const FlowFrame* frame = maker; frame != nullptr; frame = frame->maker) {
        if (frame->unit == &unit)
            return true;
    }
    return false;
}

FlowFrame& FlowFrames::frameOfCall(const FlowObject& function, int number, const Caller& caller, size_t argumentCount,
                                   bool isComplete)
{
    const bool isShared = caller.frame == nullptr || mustShare(*function.unit, caller.frame);
    const auto key = isShared
        ? std::make_tuple(number, static_cast<const CodeOperation*>(nullptr), static_cast<const FlowFrame*>(nullptr),
                          -1)
        : std::make_tuple(number, caller.operation, static_cast<const FlowFrame*>(caller.frame), caller.element);
    FlowFrame*& frame = calls[key];
    if (frame == nullptr) {
        frame = &make(*function.unit, function.frame, isShared ? nullptr : caller.frame);
        frame->argumentCount = isShared || !isComplete ? -1 : static_cast<int>(argumentCount);
        start(*frame);
    }
    return *frame;
}

void FlowFrames::call(int function, const Caller& caller, int thisSlot, const std::vector<int>& arguments,
                      bool isComplete, int result)
{
    const FlowObject object = flow.objects.at(function);
    const FlowFrame& frame = frameOfCall(object, function, caller, arguments.size(), isComplete);
    if (object.unit->thisSlot >= 0 && thisSlot >= 0)
        flow.graph.connect(thisSlot, frame.firstSlot + object.unit->thisSlot);
    for (int index = 0; index < object.unit->parameters.size(); ++index) {
        const CodeParameter& parameter = object.unit->parameters.at(index);
        const int slot = frame.slot(parameter.slot);
        const auto first = static_cast<size_t>(index);
        if (parameter.isRest) {
            const int rest = flow.objects.named(FlowObject::Array, QString(), frame.firstSlot);
            passRest(rest, arguments, first, isComplete);
            flow.graph.addObject(slot, rest);
        } else if (first < arguments.size() && arguments[first] >= 0) {
            flow.graph.connect(arguments[first], slot);
        } else if (!isComplete && !arguments.empty() && arguments.back() >= 0) {
            flow.graph.connect(arguments.back(), slot);
        }
    }
    if (result >= 0)
        flow.graph.connect(frame.firstSlot + object.unit->resultSlot, result);
}

void FlowFrames::passRest(int array, const std::vector<int>& arguments, size_t first, bool isComplete)
{
    const size_t count = arguments.size() - (isComplete || arguments.empty() ? 0 : 1);
    for (size_t index = first; index < count; ++index) {
        const QString name = QString::number(static_cast<int>(index - first));
        if (arguments[index] >= 0)
            flow.graph.connect(arguments[index], flow.objects.member(array, flow.number(name)));
    }
    if (count < arguments.size() && arguments.back() >= 0)
        flow.graph.connect(arguments.back(), flow.objects.any(array));
}

void FlowFrames::callUnknown(int function)
{
    const FlowObject object = flow.objects.at(function);
    const FlowFrame& frame = frameOfCall(object, function, {nullptr, nullptr}, 0, false);
    for (const CodeParameter& parameter : object.unit->parameters)
        flow.graph.addUnknown(frame.slot(parameter.slot));
}

FlowFrame* FlowFrames::module(const CodeFile& file)
{
    if (file.unit == nullptr || file.unit->kind != CodeUnit::Module)
        return nullptr;
    FlowFrame*& frame = modules[file.unit.get()];
    if (frame == nullptr) {
        frame = &make(*file.unit, nullptr, nullptr);
        start(*frame);
    }
    return frame;
}

void FlowFrames::start(FlowFrame& frame)
{
    for (const CodeOperation& operation : frame.unit->operations)
        flow.starter.start(operation, frame);
}

} // namespace ResourceCheck
