/// @file
/// Bytes that many owners share.

#ifndef ZELINTERCHANGEDATA_UTIL_SHAREDBYTES_H
#define ZELINTERCHANGEDATA_UTIL_SHAREDBYTES_H

#include "util/Prefetch.h"

#include <atomic>
#include <cstddef>
#include <new>
#include <utility>

namespace ZelInterchangeData {

/// Bytes that are filled once, by the owner that made them, and from then on shared: a copy costs a
/// count. Bytes and count lie in one piece of memory, so that reaching them is one step.
///
/// Owners that share bytes may be used from different threads, each from one at a time.
class SharedBytes {
public:
    /// No bytes, and no memory.
    SharedBytes() noexcept = default;

    /// @p size bytes, aligned for a `std::size_t`, whose values are open.
    explicit SharedBytes(std::size_t size) : head_(new (::operator new(sizeof(Head) + size)) Head)
    {
    }

    SharedBytes(const SharedBytes& other) noexcept : head_(other.head_)
    {
        if (head_ != nullptr) head_->owners.fetch_add(1, std::memory_order_relaxed);
    }

    SharedBytes(SharedBytes&& other) noexcept : head_(std::exchange(other.head_, nullptr)) {}

    SharedBytes& operator=(SharedBytes other) noexcept
    {
        std::swap(head_, other.head_);
        return *this;
    }

    ~SharedBytes()
    {
        // The last owner must see what the others did before they let go.
        if (head_ != nullptr && head_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            head_->~Head();
            ::operator delete(head_);
        }
    }

    /// Has the first @p size bytes at hand when they are needed.
    void prefetch(std::size_t size) const noexcept
    {
        ZelInterchangeData::prefetch(head_, sizeof(Head) + size);
    }

    /// The bytes; null when there are none.
    std::byte* data() const noexcept
    {
        return head_ == nullptr ? nullptr : reinterpret_cast<std::byte*>(head_ + 1);
    }

private:
    struct Head {
        std::atomic<std::size_t> owners{1};
    };

    Head* head_ = nullptr;
};

} // namespace ZelInterchangeData

#endif
