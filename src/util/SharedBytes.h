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

/// Bytes that the owner that made them fills once and that are shared from then on: a copy costs a
/// count. Bytes and count are in one block of memory, so that reaching the bytes takes one step.
///
/// Different threads may use owners that share bytes, but each owner only from one thread at a
/// time.
class SharedBytes {
public:
    /// No bytes, and no memory.
    SharedBytes() noexcept = default;

    /// @p size uninitialised bytes, aligned for a `std::size_t`.
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
        // The last owner must see what the others did before they released the bytes.
        if (head_ != nullptr && head_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            head_->~Head();
            ::operator delete(head_);
        }
    }

    /// Prefetches the first @p size bytes.
    void prefetch(std::size_t size) const noexcept
    {
        ZelInterchangeData::prefetch(head_, sizeof(Head) + size);
    }

    /// The bytes; null when there are none.
    const std::byte* data() const noexcept
    {
        return head_ == nullptr ? nullptr : reinterpret_cast<const std::byte*>(head_ + 1);
    }
    /// The bytes, which must exist, to be filled before they are shared.
    std::byte* mutableData() noexcept { return reinterpret_cast<std::byte*>(head_ + 1); }

private:
    struct Head {
        std::atomic<std::size_t> owners{1};
    };

    Head* head_ = nullptr;
};

} // namespace ZelInterchangeData

#endif
