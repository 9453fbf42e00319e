/// @file
/// A few texts in one block of memory.

#ifndef ZELINTERCHANGEDATA_SETS_PACKEDTEXTS_H
#define ZELINTERCHANGEDATA_SETS_PACKEDTEXTS_H

#include "util/SharedBytes.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ZelInterchangeData {

/// Texts by language ID, in ascending byte order; less than 4 GB in all. If memory runs out, an
/// operation throws `std::bad_alloc` and changes nothing.
///
/// All of them are in one block of memory that copies share, with room for another text like the one
/// that was added last, unless that is long. Copying only increments a count, and reading follows
/// only one pointer. A text that fits is added in place unless the block is shared; each other change
/// copies all texts.
class PackedTexts {
public:
    /// A language ID and its text.
    struct Entry {
        std::string_view languageID;
        std::string_view text;
    };

    std::size_t count() const noexcept
    {
        return bytes_.data() == nullptr ? 0 : Block::in(bytes_).used.entries;
    }
    /// The entry at @p index, which is below count(). Its views are valid until the texts change.
    Entry operator[](std::size_t index) const noexcept
    {
        const Block& block = Block::in(bytes_);
        const auto& [begin, textBegin, end] = block.spans()[index];
        const char* const characters = block.characters();
        return {{characters + begin, textBegin - begin}, {characters + textBegin, end - textBegin}};
    }
    /// The text for @p languageID; none if there is no such text. Looks first at place @p likely.
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
    /// Numbers of entries, and of characters in all IDs and texts.
    struct Counts {
        std::uint32_t entries;
        std::uint32_t characters;
    };

    /// Where an entry's ID begins among the characters, where its text does, and where that ends.
    struct Span {
        std::uint32_t begin;
        std::uint32_t textBegin;
        std::uint32_t end;
    };

    /// The shared bytes: how much of them is used, how much there is room for, the spans in the order
    /// of their IDs, and the characters in the order in which they were added.
    struct Block {
        Counts used;
        Counts room;

        static const Block& in(const SharedBytes& bytes) noexcept
        {
            return *reinterpret_cast<const Block*>(bytes.data());
        }
        static Block& in(SharedBytes& bytes) noexcept
        {
            return *reinterpret_cast<Block*>(bytes.mutableData());
        }

        const Span* spans() const noexcept { return reinterpret_cast<const Span*>(this + 1); }
        Span* spans() noexcept { return reinterpret_cast<Span*>(this + 1); }
        const char* characters() const noexcept
        {
            return reinterpret_cast<const char*>(spans() + room.entries);
        }
        char* characters() noexcept { return reinterpret_cast<char*>(spans() + room.entries); }

        /// Inserts @p entry, for which there is room, at @p place.
        void insert(std::size_t place, const Entry& entry) noexcept
        {
            Span* const spans = this->spans();
            std::copy_backward(spans + place, spans + used.entries, spans + used.entries + 1);
            spans[place].begin = used.characters;
            append(entry.languageID);
            spans[place].textBegin = used.characters;
            append(entry.text);
            spans[place].end = used.characters;
            ++used.entries;
        }

    private:
        void append(std::string_view text) noexcept
        {
            used.characters +=
                static_cast<std::uint32_t>(text.copy(characters() + used.characters, text.size()));
        }
    };

    static SharedBytes emptyBlock(std::size_t entries, std::size_t characters);
    std::size_t placeOf(std::string_view languageID) const noexcept;
    bool holds(std::size_t place, std::string_view languageID) const noexcept;
    /// The number of bytes in the ID and the text at @p place.
    std::size_t sizeAt(std::size_t place) const noexcept;
    bool hasRoomFor(const Entry& added) const noexcept;
    SharedBytes copyWithout(std::size_t place, std::size_t entries, std::size_t characters) const;

    SharedBytes bytes_;
};

} // namespace ZelInterchangeData

#endif
