#include "benchmarks/HeapUse.h"

#include <algorithm>
#include <malloc.h>

using namespace Benchmarks;

extern "C" {
void* __libc_malloc(size_t size);
void __libc_free(void* memory);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* memory, size_t size);
}

namespace
{

thread_local bool isCounting = false;
thread_local int64_t allocationCount = 0;
thread_local int64_t currentBytes = 0;
thread_local int64_t highestBytes = 0;

void* added(void* memory)
{
    if (isCounting && memory != nullptr) {
        ++allocationCount;
        currentBytes += static_cast<int64_t>(malloc_usable_size(memory));
        highestBytes = std::max(highestBytes, currentBytes);
    }
    return memory;
}

void removing(void* memory)
{
    if (isCounting && memory != nullptr)
        currentBytes -= static_cast<int64_t>(malloc_usable_size(memory));
}

} // namespace

HeapUse::HeapUse()
{
    allocationCount = currentBytes = highestBytes = 0;
    isCounting = true;
}

HeapUse::~HeapUse()
{
    isCounting = false;
}

int64_t HeapUse::allocations() const
{
    return allocationCount;
}

int64_t HeapUse::peakBytes() const
{
    return highestBytes;
}

extern "C" {

void* malloc(size_t size)
{
    return added(__libc_malloc(size));
}

void free(void* memory)
{
    removing(memory);
    __libc_free(memory);
}

void* calloc(size_t count, size_t size)
{
    return added(__libc_calloc(count, size));
}

void* realloc(void* memory, size_t size)
{
    removing(memory);
    return added(__libc_realloc(memory, size));
}
}
