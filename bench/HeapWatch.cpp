/// @file
/// The replaced allocation functions. The missing forms (aligned and non-throwing) are counted too,
/// because the standard library's versions call these.

#include "bench/HeapWatch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

struct Counters {
    bool watching = false;
    std::size_t allocations = 0;
    // Signed: what was allocated before the watch may be released during it.
    std::int64_t held = 0;
    std::int64_t peak = 0;
};

Counters counters;

void* countedOrNull(void* memory) noexcept
{
    if (counters.watching && memory != nullptr) {
        ++counters.allocations;
        counters.held += static_cast<std::int64_t>(malloc_usable_size(memory));
        counters.peak = std::max(counters.peak, counters.held);
    }
    return memory;
}

void* counted(void* memory)
{
    if (memory == nullptr) throw std::bad_alloc();
    return countedOrNull(memory);
}

void* alignedMemory(std::size_t size, std::align_val_t alignment)
{
    const auto step = static_cast<std::size_t>(alignment);
    return std::aligned_alloc(step, (size + step - 1) / step * step);
}

void release(void* memory) noexcept
{
    if (counters.watching) counters.held -= static_cast<std::int64_t>(malloc_usable_size(memory));
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size)
{
    return counted(std::malloc(size));
}

void* operator new[](std::size_t size)
{
    return counted(std::malloc(size));
}

void* operator new(std::size_t size, std::align_val_t alignment)
{
    return counted(alignedMemory(size, alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return counted(alignedMemory(size, alignment));
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return countedOrNull(std::malloc(size));
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return countedOrNull(std::malloc(size));
}

void operator delete(void* memory) noexcept
{
    release(memory);
}

void operator delete[](void* memory) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::align_val_t /*alignment*/) noexcept
{
    release(memory);
}

void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    release(memory);
}

void operator delete[](void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept
{
    release(memory);
}

namespace ZelInterchangeData::bench {

HeapWatch::HeapWatch()
{
    counters = {};
    counters.watching = true;
}

HeapWatch::~HeapWatch()
{
    counters.watching = false;
}

HeapUse HeapWatch::use() const
{
    return {counters.allocations, static_cast<std::size_t>(counters.peak)};
}

} // namespace ZelInterchangeData::bench
