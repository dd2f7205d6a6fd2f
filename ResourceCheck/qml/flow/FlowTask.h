#pragma once

namespace ResourceCheck
{

struct CodeOperation;
struct FlowFrame;

/// Work that is repeated when the slots it depends on have grown.
struct FlowTask {
    const CodeOperation* operation = nullptr; // to perform
    FlowFrame* frame = nullptr;
    int object = -1; // otherwise: whose components are made into objects
    int name = -1;   // the property with the components
};

} // namespace ResourceCheck
