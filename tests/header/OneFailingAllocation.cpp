/// @file
/// The global allocation functions of this test program.

#include "header/OneFailingAllocation.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr long none = -1;

/// How many allocations succeed before the failing one; `none` when none is to fail.
thread_local long successesLeft = none;
thread_local bool wasReached = false;

void* allocate(std::size_t size) noexcept
{
    if (successesLeft != none && successesLeft-- == 0) {
        wasReached = true;
        return nullptr;
    }
    return std::malloc(size != 0 ? size : 1);
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = allocate(size);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

namespace ZelInterchangeData {

OneFailingAllocation::OneFailingAllocation(long index) noexcept
{
    wasReached = false;
    successesLeft = index;
}

OneFailingAllocation::~OneFailingAllocation()
{
    successesLeft = none;
}

bool OneFailingAllocation::failed() const noexcept
{
    return wasReached;
}

} // namespace ZelInterchangeData
