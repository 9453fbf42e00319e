/// @file
/// An ordered list of texts.

#ifndef ZELINTERCHANGEDATA_UTIL_TEXTLIST_H
#define ZELINTERCHANGEDATA_UTIL_TEXTLIST_H

#include "util/ShortText.h"

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ZelInterchangeData {

/// Texts in the order in which they were appended. contains() takes log n steps. If memory runs
/// out, an operation throws `std::bad_alloc` and changes nothing.
class TextList {
public:
    TextList() = default;
    explicit TextList(std::vector<std::string> texts);
    TextList(const TextList&) = default;
    TextList(TextList&&) noexcept = default;
    TextList& operator=(const TextList& other);
    TextList& operator=(TextList&& other) noexcept;
    ~TextList() = default;

    const std::vector<std::string>& texts() const noexcept { return texts_; }
    bool contains(std::string_view text) const;
    /// Whether @p text is at @p place, which may be beyond the end.
    bool isAt(std::size_t place, std::string_view text) const noexcept
    {
        return place < texts_.size() && compareShort(texts_[place], text) == 0;
    }

    void clear() noexcept;
    void append(std::string_view text);
    /// Removes the first identical text; returns false if there is none.
    bool remove(std::string_view text);
    /// Removes all texts but the first @p count, if there are that many.
    void truncate(std::size_t count) noexcept;

private:
    std::vector<std::string> texts_;
    std::multiset<std::string, std::less<>> index_; // all texts, or none if there are only a few
};

} // namespace ZelInterchangeData

#endif
