/// @file
/// Values that are shared until one of their owners changes its own.

#ifndef ZELINTERCHANGEDATA_UTIL_COPYONWRITE_H
#define ZELINTERCHANGEDATA_UTIL_COPYONWRITE_H

#include <atomic>
#include <cstddef>
#include <utility>

namespace ZelInterchangeData {

/// Behaves like a separate @p Value. Copies share one value, so copying only increments a count,
/// whatever the size of the value. An owner that changes a shared value gets its own copy first.
///
/// You can use owners that share a value in different threads, each owner in one thread at a time.
template <class Value>
class CopyOnWrite {
public:
    CopyOnWrite() : shared_(new Shared) {}
    explicit CopyOnWrite(Value value) : shared_(new Shared(std::move(value))) {}

    CopyOnWrite(const CopyOnWrite& other) noexcept : shared_(other.shared_)
    {
        shared_->owners.fetch_add(1, std::memory_order_relaxed);
    }

    /// Afterwards, @p other can only be assigned to and destroyed.
    CopyOnWrite(CopyOnWrite&& other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}

    CopyOnWrite& operator=(CopyOnWrite other) noexcept
    {
        std::swap(shared_, other.shared_);
        return *this;
    }

    ~CopyOnWrite()
    {
        // The last owner must see what the others did before they released the value.
        if (shared_ != nullptr && shared_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): not twice, as in an optional's union.
            delete shared_;
        }
    }

    const Value& read() const noexcept { return shared_->value; }

    /// Returns the value, which this owner no longer shares. If memory runs out, it stays shared.
    Value& write()
    {
        if (isShared()) *this = CopyOnWrite(shared_->value);
        return shared_->value;
    }

    /// Resets the value to a default-constructed one; allocates memory only if it is shared.
    void reset()
    {
        if (isShared()) {
            *this = CopyOnWrite();
        } else {
            shared_->value = Value();
        }
    }

    bool isShared() const noexcept { return shared_->owners.load(std::memory_order_acquire) != 1; }

private:
    struct Shared {
        Shared() = default;
        explicit Shared(Value&& initial) : value(std::move(initial)) {}

        Value value{};
        std::atomic<std::size_t> owners{1};
    };

    Shared* shared_;
};

} // namespace ZelInterchangeData

#endif
