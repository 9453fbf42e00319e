/// @file
/// Memory that runs out at a chosen allocation: the global allocation functions of this test
/// program.

#include "xml/FailingAllocation.h"

#include <cstdlib>
#include <limits>

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();
thread_local std::size_t grantedAllocations = unlimited;
thread_local long long liveBlocks = 0;

void* allocate(std::size_t size) noexcept
{
    if (grantedAllocations == 0) return nullptr;
    if (grantedAllocations != unlimited) --grantedAllocations;
    void* block = std::malloc(size != 0 ? size : 1);
    if (block != nullptr) ++liveBlocks;
    return block;
}

void release(void* block) noexcept
{
    if (block != nullptr) --liveBlocks;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size)
{
    void* block = allocate(size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept
{
    release(block);
}

namespace ZelInterchangeData {

FailingAllocation::FailingAllocation(std::size_t granted) noexcept
{
    grantedAllocations = granted;
}

FailingAllocation::~FailingAllocation()
{
    grantedAllocations = unlimited;
}

long long liveAllocations() noexcept
{
    return liveBlocks;
}

} // namespace ZelInterchangeData
