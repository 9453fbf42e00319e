/// @file
/// A few texts in one block of memory.

#ifndef ZELINTERCHANGEDATA_SETS_PACKEDTEXTS_H
#define ZELINTERCHANGEDATA_SETS_PACKEDTEXTS_H

#include "util/SharedBytes.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace ZelInterchangeData {

/// Texts by language ID, in ascending byte order; less than 4 GB in all. If memory runs out, an
/// operation throws `std::bad_alloc` and changes nothing.
///
/// All of them are in one block of memory that copies share, with room for another text like the one
/// that was set last. Copying only increments a count, and reading follows only one pointer. A text
/// that fits is added in place unless the block is shared; each other change copies all texts.
class PackedTexts {
public:
    /// A language ID and its text.
    struct Entry {
        std::string_view languageID;
        std::string_view text;
    };

    std::size_t count() const noexcept;
    /// The entry at @p index, which is below count(). Its views are valid until the texts change.
    Entry operator[](std::size_t index) const noexcept;
    /// The text for @p languageID, which is probably at @p likely; none if there is no such text.
    std::optional<std::string_view> find(std::string_view languageID,
                                         std::size_t likely = 0) const noexcept;
    /// The number of bytes in all IDs and texts.
    std::size_t byteCount() const noexcept;
    /// The number of bytes that adding a text of @p added bytes, including its ID, copies.
    std::size_t bytesWith(std::size_t added) const noexcept;

    /// Prefetches the texts if they are of usual length.
    void prefetch() const noexcept { bytes_.prefetch(224); }

    void clear() noexcept { bytes_ = SharedBytes(); }
    /// Stores a copy of @p text. Returns whether it replaced a text.
    bool set(std::string_view text, std::string_view languageID);
    /// Removes the text for @p languageID, which exists.
    void remove(std::string_view languageID);

private:
    std::size_t placeOf(std::string_view languageID) const noexcept;
    bool holds(std::size_t place, std::string_view languageID) const noexcept;
    bool hasRoomFor(const Entry& added) const noexcept;
    SharedBytes copyWithout(std::size_t place, std::size_t entries, std::size_t characters) const;

    SharedBytes bytes_;
};

} // namespace ZelInterchangeData

#endif
