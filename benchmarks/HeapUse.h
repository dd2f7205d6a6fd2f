#pragma once

#include <cstdint>

namespace Benchmarks
{

/// Counts what this thread allocates from the heap during the object's life. Only one object may exist at a time.
class HeapUse
{
public:
    HeapUse();
    ~HeapUse();
    HeapUse(const HeapUse&) = delete;
    HeapUse& operator=(const HeapUse&) = delete;

    int64_t allocations() const;

    /// The largest growth of the heap since the object was created, in bytes.
    int64_t peakBytes() const;
};

} // namespace Benchmarks
