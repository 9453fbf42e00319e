/// @file
/// For LD_PRELOAD: replaces `operator new` with one that can be made to fail, and counts the blocks
/// that are alive.

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> granted{-1}; // no limit
std::atomic<long> failing{-1}; // none
std::atomic<long> alive{0};

void* blockOrNull(std::size_t size) noexcept
{
    if (granted == 0) return nullptr;
    if (granted > 0) --granted;
    if (failing >= 0 && failing-- == 0) return nullptr;
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block != nullptr) ++alive;
    return block;
}

} // namespace

extern "C" {

/// Grants that many allocations and no more; any number below 0 grants all.
void failing_new_grant(long allocations)
{
    granted = allocations;
}

/// Lets one allocation fail, after that many others; any number below 0 lets none fail.
void failing_new_fail(long after)
{
    failing = after;
}

/// The number of blocks that are alive.
long failing_new_alive()
{
    return alive;
}
}

void* operator new(std::size_t size)
{
    void* const block = blockOrNull(size);
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return blockOrNull(size);
}

void operator delete(void* block) noexcept
{
    if (block != nullptr) --alive;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    operator delete(block);
}
