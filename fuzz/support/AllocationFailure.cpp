/// @file
/// See AllocationFailure.h.

#include "support/AllocationFailure.h"

#include <cstdlib>
#include <new>

namespace {

// Of one thread each: whoever runs the target has threads of its own.
thread_local fuzz::FailurePlan plan;
thread_local std::size_t failures = 0;
thread_local long long blocks = 0;

bool failsNow() noexcept
{
    if (!plan.isOn) return false;
    if (plan.granted != 0) {
        --plan.granted;
        return false;
    }
    plan.isOn = plan.isSticky;
    ++failures;
    return true;
}

void* allocate(std::size_t size) noexcept
{
    if (failsNow()) return nullptr;
    void* block = std::malloc(size != 0 ? size : 1);
    if (block != nullptr) ++blocks;
    return block;
}

void release(void* block) noexcept
{
    if (block != nullptr) --blocks;
    std::free(block);
}

} // namespace

// The forms for arrays end in the others here; a sanitizer's own would not.

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

void* operator new[](std::size_t size)
{
    return ::operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return allocate(size);
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

namespace fuzz {

AllocationFailure::AllocationFailure(const FailurePlan& wanted) noexcept
{
    failures = 0;
    plan = wanted;
}

AllocationFailure::~AllocationFailure()
{
    plan = {};
}

std::size_t AllocationFailure::count() const noexcept
{
    return failures;
}

long long liveBlocks() noexcept
{
    return blocks;
}

} // namespace fuzz
