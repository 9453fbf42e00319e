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

/// Bytes that copies share: copying only increments a count. Only the owner of bytes that are not
/// shared may change them. Bytes and count are in one block of memory, so reading the bytes follows
/// only one pointer.
///
/// You can use owners that share bytes in different threads, each owner in one thread at a time.
class SharedBytes {
public:
    /// No bytes; allocates nothing.
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
        if (head_ != nullptr && isLastRelease()) {
            head_->~Head();
            ::operator delete(head_);
        }
    }

    /// Prefetches the first @p size bytes.
    void prefetch(std::size_t size) const noexcept
    {
        ZelInterchangeData::prefetch(head_, sizeof(Head) + size);
    }

    /// The bytes; null if there are none.
    const std::byte* data() const noexcept
    {
        return head_ == nullptr ? nullptr : reinterpret_cast<const std::byte*>(head_ + 1);
    }
    /// Whether there are bytes that another owner has, too.
    bool isShared() const noexcept
    {
        return head_ != nullptr && head_->owners.load(std::memory_order_acquire) != 1;
    }
    /// The bytes, which must exist and not be shared, to be filled or changed.
    std::byte* mutableData() noexcept { return reinterpret_cast<std::byte*>(head_ + 1); }

private:
    struct Head {
        std::atomic<std::size_t> owners{1};
    };

    /// Releases the bytes for one owner. Returns whether it was the last one, which must see what the
    /// others did before they released them. If there is only one owner, does not count down, which
    /// takes longer: nobody else can copy from it.
    bool isLastRelease() const noexcept
    {
        return head_->owners.load(std::memory_order_acquire) == 1 ||
               head_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1;
    }

    Head* head_ = nullptr;
};

} // namespace ZelInterchangeData

#endif
