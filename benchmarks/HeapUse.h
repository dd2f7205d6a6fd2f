#pragma once

#include <cstdint>

namespace Benchmarks
{

/// Counts what this thread takes from the heap during the object's life. Have one at a time.
class HeapUse
{
public:
    HeapUse();
    ~HeapUse();
    HeapUse(const HeapUse&) = delete;
    HeapUse& operator=(const HeapUse&) = delete;

    int64_t allocations() const;

    /// By how much the heap was larger at its largest than at the begin, in bytes.
    int64_t peakBytes() const;
};

} // namespace Benchmarks
