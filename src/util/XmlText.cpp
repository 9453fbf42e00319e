#include "util/XmlText.h"

#include "util/TextUtilities.h"

#include <algorithm>
#include <cstdint>

namespace ZelInterchangeData {

namespace {

constexpr std::uint32_t firstSurrogate = 0xD800;
constexpr std::uint32_t lastSurrogate = 0xDFFF;
constexpr std::uint32_t lastCharacter = 0x10FFFF;

constexpr bool isForbidden(std::uint32_t character) noexcept
{
    return character == 0xFFFE || character == 0xFFFF;
}

constexpr bool isSurrogate(std::uint32_t character) noexcept
{
    return character >= firstSurrogate && character <= lastSurrogate;
}

/// Whether @p character is a control character that no XML document may contain.
constexpr bool isControl(std::uint32_t character) noexcept
{
    return character < 0x20 && character != '\t' && character != '\n' && character != '\r';
}

constexpr bool isAllowed(std::uint32_t character) noexcept
{
    return character <= lastCharacter && !isSurrogate(character) && !isForbidden(character) &&
           !isControl(character);
}

/// A character and the number of its bytes.
struct Decoded {
    std::uint32_t character = 0;
    std::size_t length = 0; // 0 if strict UTF-8 does not allow the sequence
};

/// The number of bytes in the sequence that @p lead begins; 0 if it begins none.
constexpr std::size_t lengthAfter(unsigned char lead) noexcept
{
    if (lead < 0x80) return 1;
    if (lead < 0xC0) return 0;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    return lead < 0xF8 ? 4 : 0;
}

/// The smallest character that needs @p length bytes.
constexpr std::uint32_t firstOfLength(std::size_t length) noexcept
{
    constexpr std::uint32_t firsts[] = {0, 0, 0x80, 0x800, 0x10000};
    return firsts[length];
}

/// The first character of @p text, which is not empty.
Decoded decode(std::string_view text) noexcept
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lengthAfter(lead);
    if (length <= 1) return {lead, length};
    if (text.size() < length) return {};
    std::uint32_t character = lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0U) != 0x80U) return {};
        character = character << 6 | (byte & 0x3FU);
    }
    const bool isOverlong = character < firstOfLength(length);
    if (isOverlong || isSurrogate(character) || character > lastCharacter) return {};
    return {character, length};
}

/// The value of @p digit in the number system of @p base; the base itself if it is no such digit.
constexpr std::uint32_t digitValue(char digit, std::uint32_t base) noexcept
{
    if (digit >= '0' && digit <= '9') return static_cast<std::uint32_t>(digit - '0');
    const char letter = static_cast<char>(digit | 0x20);
    if (base == 16 && letter >= 'a' && letter <= 'f')
        return static_cast<std::uint32_t>(letter - 'a' + 10);
    return base;
}

/// Whether @p text, which follows `&#`, begins with a number and a semicolon that refer to an
/// allowed character.
bool beginsWithNumber(std::string_view text) noexcept
{
    const std::uint32_t base = !text.empty() && text.front() == 'x' ? 16 : 10;
    if (base == 16) text.remove_prefix(1);
    std::uint32_t character = 0;
    std::size_t count = 0;
    for (; count < text.size(); ++count) {
        const std::uint32_t value = digitValue(text[count], base);
        if (value == base) break;
        character = std::min(character * base + value, lastCharacter + 1); // must not wrap
    }
    return count > 0 && text.substr(count, 1) == ";" && isAllowed(character);
}

/// Whether @p text, which begins with `&`, begins with a reference.
bool beginsWithReference(std::string_view text) noexcept
{
    return beginsWithEntity(text) || (text.substr(1, 1) == "#" && beginsWithNumber(text.substr(2)));
}

/// Whether the first character of @p text must be escaped in the value of an attribute.
bool needsEscape(std::string_view text) noexcept
{
    const char first = text.front();
    return first == '"' || first == '<' || (first == '&' && !beginsWithReference(text));
}

/// Keeps @p place as the first one, unless there is one already.
constexpr void note(std::size_t& first, std::size_t place) noexcept
{
    if (first == XmlFaults::none) first = place;
}

} // namespace

XmlFaults findXmlFaults(std::string_view text) noexcept
{
    XmlFaults faults;
    for (std::size_t place = 0; place < text.size();) {
        const std::string_view rest = text.substr(place);
        const auto [character, length] = decode(rest);
        if (length == 0) {
            note(faults.malformed, place);
        } else if (isForbidden(character)) {
            note(faults.forbidden, place);
        } else if (isControl(character)) {
            note(faults.control, place);
        } else if (needsEscape(rest)) {
            note(faults.unescaped, place);
        }
        place += std::max<std::size_t>(length, 1);
    }
    return faults;
}

} // namespace ZelInterchangeData
