/// @file
/// A text that copies share.

#ifndef ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H
#define ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H

#include "util/SharedBytes.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace ZelInterchangeData {

/// A text that never changes and that copies share. An empty one uses no memory.
class SharedText {
public:
    SharedText() noexcept = default;

    /// A copy of @p text.
    explicit SharedText(std::string_view text) : size_(text.size())
    {
        if (text.empty()) return;
        bytes_ = SharedBytes(text.size());
        text.copy(reinterpret_cast<char*>(bytes_.mutableData()), size_);
    }

    SharedText(const SharedText&) noexcept = default;
    /// Afterwards, @p other is empty.
    SharedText(SharedText&& other) noexcept
        : bytes_(std::move(other.bytes_)), size_(std::exchange(other.size_, 0))
    {
    }
    SharedText& operator=(SharedText other) noexcept
    {
        bytes_ = std::move(other.bytes_);
        size_ = other.size_;
        return *this;
    }
    ~SharedText() = default;

    /// The text, valid until this object is assigned to or destroyed.
    std::string_view view() const noexcept { return {characters(), size_}; }

    /// Prefetches the text.
    void prefetch() const noexcept { bytes_.prefetch(size_); }

private:
    const char* characters() const noexcept { return reinterpret_cast<const char*>(bytes_.data()); }

    SharedBytes bytes_;
    std::size_t size_ = 0;
};

} // namespace ZelInterchangeData

#endif
