/// @file
/// The replaced operator new and delete of this test program.

#include "util/AllocationWatch.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

constexpr long unlimited = std::numeric_limits<long>::max();

long allowedCalls = unlimited;
long calls = 0;

void* allocate(std::size_t size)
{
    if (calls++ >= allowedCalls) return nullptr;
    return std::malloc(size == 0 ? 1 : size);
}

void watch(long allowed)
{
    calls = 0;
    allowedCalls = allowed;
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

AllocationWatch::AllocationWatch(long allowed)
{
    watch(allowed);
}

AllocationWatch::~AllocationWatch()
{
    watch(unlimited);
}

long AllocationWatch::count() const
{
    return calls;
}

} // namespace ZelInterchangeData
