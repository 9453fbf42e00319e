/// @file
/// A vector whose first element can be removed quickly.

#ifndef ZELINTERCHANGEDATA_UTIL_FRONTVECTOR_H
#define ZELINTERCHANGEDATA_UTIL_FRONTVECTOR_H

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Like `std::vector`, but erasing the first element takes constant time on average: the others are
/// not moved until half of the space is free. An element is destroyed only after it was removed, so
/// its destructor finds the vector intact.
template <class Value>
class FrontVector {
public:
    FrontVector() = default;
    FrontVector(const FrontVector&) = default;
    FrontVector(FrontVector&& other) noexcept
        : values_(std::move(other.values_)), front_(std::exchange(other.front_, 0))
    {
    }
    FrontVector& operator=(FrontVector other) noexcept
    {
        values_.swap(other.values_);
        std::swap(front_, other.front_);
        return *this;
    }
    ~FrontVector() = default;

    std::size_t size() const noexcept { return values_.size() - front_; }
    const Value& operator[](std::size_t index) const noexcept { return values_[front_ + index]; }
    Value& operator[](std::size_t index) noexcept { return values_[front_ + index]; }

    auto begin() const noexcept { return values_.begin() + offset(front_); }
    auto end() const noexcept { return values_.end(); }
    auto begin() noexcept { return values_.begin() + offset(front_); }
    auto end() noexcept { return values_.end(); }

    void reserve(std::size_t size) { values_.reserve(front_ + size); }
    template <class... Arguments>
    void emplace_back(Arguments&&... arguments)
    {
        if (values_.capacity() == 0) values_.reserve(16); // so that the first ones do not move
        values_.emplace_back(std::forward<Arguments>(arguments)...);
    }

    void erase(std::size_t index)
    {
        [[maybe_unused]] const Value erased = std::exchange((*this)[index], Value());
        const auto gap = begin() + offset(index);
        if (index > size() / 2) {
            values_.erase(gap);
            return;
        }
        std::move_backward(begin(), gap, gap + 1);
        *begin() = Value();
        ++front_;
        if (2 * front_ >= values_.size()) eraseFront();
    }

private:
    void eraseFront()
    {
        values_.erase(values_.begin(), begin());
        front_ = 0;
    }

    static std::ptrdiff_t offset(std::size_t index) noexcept
    {
        return static_cast<std::ptrdiff_t>(index);
    }

    std::vector<Value> values_;
    std::size_t front_ = 0; // the elements before this one were removed
};

} // namespace ZelInterchangeData

#endif
