/// @file
/// The global allocation functions of a test program whose memory can run out.

#include "support/FailingAllocation.h"

#include <cstdlib>

namespace {

using ZelInterchangeData::FailingAllocation;
using ZelInterchangeData::Shortage;

thread_local std::size_t grantedAllocations = FailingAllocation::unlimited;
thread_local Shortage currentShortage = Shortage::Lasting;
thread_local std::size_t allocations = 0;
thread_local long long liveBlocks = 0;

void begin(std::size_t granted, Shortage shortage) noexcept
{
    grantedAllocations = granted;
    currentShortage = shortage;
    allocations = 0;
}

bool isRefused(std::size_t index) noexcept
{
    return currentShortage == Shortage::Once ? index == grantedAllocations
                                             : index >= grantedAllocations;
}

void* allocate(std::size_t size) noexcept
{
    if (isRefused(allocations++)) return nullptr;
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

// The array forms forward to those for one object; a sanitizer's own would not.

void* operator new[](std::size_t size)
{
    return ::operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return ::operator new(size, tag);
}

void operator delete[](void* block) noexcept
{
    release(block);
}

void operator delete[](void* block, std::size_t) noexcept
{
    release(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    release(block);
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

FailingAllocation::FailingAllocation(std::size_t granted, Shortage shortage) noexcept
{
    begin(granted, shortage);
}

FailingAllocation::~FailingAllocation()
{
    begin(unlimited, Shortage::Lasting);
}

std::size_t FailingAllocation::count() const noexcept
{
    return allocations;
}

bool FailingAllocation::failed() const noexcept
{
    return allocations > grantedAllocations;
}

long long liveAllocations() noexcept
{
    return liveBlocks;
}

} // namespace ZelInterchangeData
