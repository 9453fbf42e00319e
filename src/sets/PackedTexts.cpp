#include "sets/PackedTexts.h"

#include "util/ShortText.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <utility>

namespace ZelInterchangeData {

namespace {

std::size_t charactersOf(const PackedTexts::Entry& entry) noexcept
{
    return entry.languageID.size() + entry.text.size();
}

/// The room to leave for another text after one of @p characters: it may be somewhat longer.
std::size_t spareFor(std::size_t characters) noexcept
{
    constexpr std::size_t most = 256; // longer than most captions
    return std::min(characters + characters / 2, most);
}

} // namespace

SharedBytes PackedTexts::emptyBlock(std::size_t entries, std::size_t characters)
{
    SharedBytes bytes(sizeof(Block) + entries * sizeof(Span) + characters);
    new (bytes.mutableData()) Block{
        {0, 0}, {static_cast<std::uint32_t>(entries), static_cast<std::uint32_t>(characters)}};
    return bytes;
}

std::size_t PackedTexts::byteCount() const noexcept
{
    return bytes_.data() == nullptr ? 0 : Block::in(bytes_).used.characters;
}

std::size_t PackedTexts::bytesWith(std::size_t added) const noexcept
{
    return sizeof(Block) + (count() + 1) * sizeof(Span) + byteCount() + added;
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
    if (holds(likely, languageID)) return (*this)[likely].text;
    const std::size_t place = placeOf(languageID);
    if (!holds(place, languageID)) return std::nullopt;
    return (*this)[place].text;
}

std::size_t PackedTexts::sizeAt(std::size_t place) const noexcept
{
    return charactersOf((*this)[place]);
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
    SharedBytes changed =
        replaces ? copyWithout(place, count(), byteCount() - sizeAt(place) + charactersOf(added))
                 : copyWithout(count(), count() + 2,
                               byteCount() + charactersOf(added) + spareFor(charactersOf(added)));
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
        bytes_ = copyWithout(place, count() - 1, byteCount() - sizeAt(place));
    }
}

} // namespace ZelInterchangeData
