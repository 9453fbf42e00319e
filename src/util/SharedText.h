/// @file
/// A text that copies share.

#ifndef ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H
#define ZELINTERCHANGEDATA_UTIL_SHAREDTEXT_H

#include "util/SharedBytes.h"

#include <string_view>

namespace ZelInterchangeData {

/// A text that never changes and that copies share. An empty one takes no memory.
class SharedText {
public:
    SharedText() noexcept = default;

    /// A copy of @p text.
    explicit SharedText(std::string_view text)
        : bytes_(text.empty() ? SharedBytes() : SharedBytes(text.size())), size_(text.size())
    {
        text.copy(characters(), size_);
    }

    /// The text, as long as this object is not assigned to.
    std::string_view view() const noexcept { return {characters(), size_}; }

    /// Has the text at hand when it is read.
    void prefetch() const noexcept { bytes_.prefetch(size_); }

private:
    char* characters() const noexcept { return reinterpret_cast<char*>(bytes_.data()); }

    SharedBytes bytes_;
    std::size_t size_ = 0;
};

} // namespace ZelInterchangeData

#endif
