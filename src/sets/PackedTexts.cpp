#include "sets/PackedTexts.h"

#include "util/ShortText.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <utility>

namespace ZelInterchangeData {

namespace {

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

/// The shared bytes: what is used of them, what there is room for, the spans in the order of their IDs,
/// and the characters in the order in which they were added.
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
    void insert(std::size_t place, const PackedTexts::Entry& entry) noexcept
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

SharedBytes emptyBlock(std::size_t entries, std::size_t characters)
{
    SharedBytes bytes(sizeof(Block) + entries * sizeof(Span) + characters);
    new (bytes.mutableData()) Block{
        {0, 0}, {static_cast<std::uint32_t>(entries), static_cast<std::uint32_t>(characters)}};
    return bytes;
}

std::size_t charactersOf(const PackedTexts::Entry& entry) noexcept
{
    return entry.languageID.size() + entry.text.size();
}

} // namespace

std::size_t PackedTexts::count() const noexcept
{
    return bytes_.data() == nullptr ? 0 : Block::in(bytes_).used.entries;
}

std::size_t PackedTexts::byteCount() const noexcept
{
    return bytes_.data() == nullptr ? 0 : Block::in(bytes_).used.characters;
}

std::size_t PackedTexts::bytesWith(std::size_t added) const noexcept
{
    return sizeof(Block) + (count() + 1) * sizeof(Span) + byteCount() + added;
}

PackedTexts::Entry PackedTexts::operator[](std::size_t index) const noexcept
{
    const Block& block = Block::in(bytes_);
    const auto [begin, textBegin, end] = block.spans()[index];
    const char* const characters = block.characters();
    return {{characters + begin, textBegin - begin}, {characters + textBegin, end - textBegin}};
}

/// The index of the text for @p languageID, or the one that a new text would get.
std::size_t PackedTexts::placeOf(std::string_view languageID) const noexcept
{
    std::size_t first = 0;
    std::size_t last = count();
    while (first != last) {
        const std::size_t middle = first + (last - first) / 2;
        if (compareShort((*this)[middle].languageID, languageID) < 0) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first;
}

bool PackedTexts::holds(std::size_t place, std::string_view languageID) const noexcept
{
    return place < count() && compareShort((*this)[place].languageID, languageID) == 0;
}

std::optional<std::string_view> PackedTexts::find(std::string_view languageID,
                                                  std::size_t likely) const noexcept
{
    const std::size_t place = holds(likely, languageID) ? likely : placeOf(languageID);
    if (!holds(place, languageID)) return std::nullopt;
    return (*this)[place].text;
}

/// Whether @p added can be inserted in place.
bool PackedTexts::hasRoomFor(const Entry& added) const noexcept
{
    if (bytes_.data() == nullptr || bytes_.isShared()) return false;
    const auto& [used, room] = Block::in(bytes_);
    return used.entries < room.entries && room.characters - used.characters >= charactersOf(added);
}

/// A copy of the bytes with room for @p entries and @p characters, but without the entry at @p place.
SharedBytes PackedTexts::copyWithout(std::size_t place, std::size_t entries,
                                     std::size_t characters) const
{
    SharedBytes copy = emptyBlock(entries, characters);
    Block& block = Block::in(copy);
    for (std::size_t i = 0; i < count(); ++i) {
        if (i != place) block.insert(block.used.entries, (*this)[i]);
    }
    return copy;
}

bool PackedTexts::set(std::string_view text, std::string_view languageID)
{
    const Entry added{languageID, text};
    const std::size_t place = placeOf(languageID);
    const bool replaces = holds(place, languageID);
    if (!replaces && hasRoomFor(added)) {
        Block::in(bytes_).insert(place, added);
        return false;
    }
    // With room for another text like this one, although that may be somewhat longer.
    const std::size_t spare = charactersOf(added) + charactersOf(added) / 2;
    SharedBytes changed = copyWithout(replaces ? place : count(), count() + 2,
                                      byteCount() + charactersOf(added) + spare);
    Block::in(changed).insert(place, added);
    bytes_ = std::move(changed);
    return replaces;
}

void PackedTexts::remove(std::string_view languageID)
{
    const std::size_t place = placeOf(languageID);
    if (count() == 1) {
        clear();
    } else {
        bytes_ = copyWithout(place, count() - 1, byteCount() - charactersOf((*this)[place]));
    }
}

} // namespace ZelInterchangeData
