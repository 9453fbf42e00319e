/// @file
/// A text that copies share.

#ifndef ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H
#define ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H

#include "util/SharedBytes.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace ZelInterchangeData {

/// A text that never changes and that copies share. A short one uses no memory of its own.
class SharedText {
public:
    SharedText() noexcept = default;

    /// A copy of @p text.
    explicit SharedText(std::string_view text) : size_(text.size())
    {
        if (!isShort()) bytes_ = SharedBytes(size_);
        text.copy(isShort() ? short_.data() : reinterpret_cast<char*>(bytes_.mutableData()), size_);
    }

    SharedText(const SharedText&) noexcept = default;
    /// Afterwards, @p other is empty.
    SharedText(SharedText&& other) noexcept
        : bytes_(std::move(other.bytes_)), size_(std::exchange(other.size_, 0)),
          short_(other.short_)
    {
    }
    SharedText& operator=(SharedText other) noexcept
    {
        bytes_ = std::move(other.bytes_);
        size_ = other.size_;
        short_ = other.short_;
        return *this;
    }
    ~SharedText() = default;

    /// The text, valid until this object is assigned to, moved or destroyed.
    std::string_view view() const noexcept
    {
        return {isShort() ? short_.data() : reinterpret_cast<const char*>(bytes_.data()), size_};
    }

    /// Prefetches the text.
    void prefetch() const noexcept
    {
        if (!isShort()) bytes_.prefetch(size_);
    }

private:
    bool isShort() const noexcept { return size_ <= short_.size(); }

    SharedBytes bytes_;
    std::size_t size_ = 0;
    std::array<char, 16> short_{}; // a file name, or a version number
};

} // namespace ZelInterchangeData

#endif
