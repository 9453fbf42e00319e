/// @file
/// A plain check of strict UTF-8.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_STRICTTEXT_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_STRICTTEXT_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace fuzz {

/// A character of a text: its value and its number of bytes; 0 bytes if there is none.
struct Character {
    std::uint32_t value = 0;
    std::size_t size = 0;
};

/// The length of the sequence that begins with @p lead, up to four bytes; 0 if it is not a lead.
inline std::size_t announced(unsigned char lead)
{
    if (lead < 0x80) return 1;
    if (lead >> 5U == 0x06) return 2;
    if (lead >> 4U == 0x0E) return 3;
    return lead >> 3U == 0x1E ? 4 : 0;
}

/// The first character of @p text, decoded by arithmetic. Its value shows whether the form is the
/// shortest one, a surrogate or beyond the last code point.
inline Character firstCharacter(std::string_view text)
{
    static constexpr std::uint32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (text.empty()) return {};
    const std::size_t size = announced(static_cast<unsigned char>(text[0]));
    if (size == 0 || size > text.size()) return {};
    std::uint32_t value =
        static_cast<unsigned char>(text[0]) & (size == 1 ? 0x7FU : 0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if (next >> 6U != 2) return {};
        value = value << 6U | (next & 0x3FU);
    }
    const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < smallest[size] || isSurrogate || value > 0x10FFFF) return {};
    return {value, size};
}

/// Whether all of @p text is strict UTF-8.
inline bool isStrict(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t size = firstCharacter(text).size;
        if (size == 0) return false;
        text.remove_prefix(size);
    }
    return true;
}

/// The characters of @p text for which @p keeps(value) returns true. Drops bytes that are not
/// strict UTF-8.
template <class Keeps>
std::string filtered(std::string_view text, Keeps&& keeps)
{
    std::string kept;
    while (!text.empty()) {
        const Character character = firstCharacter(text);
        if (character.size != 0 && keeps(character.value)) kept += text.substr(0, character.size);
        text.remove_prefix(character.size == 0 ? 1 : character.size);
    }
    return kept;
}

/// Whether @p value is one of the two characters that no packet may contain.
inline bool isNoncharacter(std::uint32_t value)
{
    return value == 0xFFFE || value == 0xFFFF;
}

} // namespace fuzz

#endif
