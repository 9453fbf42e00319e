/// @file
/// See Text.h.

#include "Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace publish {

namespace {

/// The sequences that begin with a byte of one range: their length and the range of the second
/// byte.
struct Lead {
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char secondFirst;
    unsigned char secondLast;
};

/// The narrow second ranges exclude overlong forms (E0, F0), surrogates (ED) and values above
/// U+10FFFF (F4).
constexpr Lead leads[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F}};

unsigned char byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

bool isBetween(unsigned char byte, unsigned char first, unsigned char last)
{
    return first <= byte && byte <= last;
}

const Lead* leadOf(unsigned char byte)
{
    const auto* const end = std::end(leads);
    const auto* const found = std::find_if(std::begin(leads), end, [&](const Lead& lead) {
        return isBetween(byte, lead.first, lead.last);
    });
    return found != end ? found : nullptr;
}

/// The length of the sequence at @p at; 0 if there is none.
std::size_t sequenceLength(std::string_view text, std::size_t at)
{
    const Lead* lead = leadOf(byteAt(text, at));
    if (lead == nullptr || lead->length > text.size() - at) return 0;
    if (lead->length > 1 && !isBetween(byteAt(text, at + 1), lead->secondFirst, lead->secondLast))
        return 0;
    for (std::size_t next = at + 2; next < at + lead->length; ++next)
        if (!isBetween(byteAt(text, next), 0x80, 0xBF)) return 0;
    return lead->length;
}

/// Whether @p character, one whole sequence, is U+FFFE or U+FFFF.
bool isNoncharacter(std::string_view character)
{
    return character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF";
}

/// Whether @p character, one whole sequence, is a control character: C0, DEL or C1.
bool isControl(std::string_view character)
{
    const unsigned char first = byteAt(character, 0);
    if (character.size() == 1) return first < 0x20 || first == 0x7F;
    return first == 0xC2 && byteAt(character, 1) < 0xA0;
}

/// The character at @p at: one whole sequence, or one byte if there is none.
std::string_view characterAt(std::string_view text, std::size_t at)
{
    const std::size_t length = sequenceLength(text, at);
    return text.substr(at, length == 0 ? 1 : length);
}

bool isPlainInAShell(char character)
{
    constexpr std::string_view plain = "._-/+,:@%=";
    return isLetter(character) || isDigit(character) || (character & 0x80) != 0 ||
           plain.find(character) != std::string_view::npos;
}

} // namespace

std::size_t lengthOfStrictUtf8(std::string_view text)
{
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t length = sequenceLength(text, at);
        if (length == 0) break;
        at += length;
    }
    return at;
}

std::size_t countOfLongCharacters(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return static_cast<unsigned char>(byte) >= 0xC2; // the first byte of such a character
    }));
}

bool isStrictUtf8(std::string_view text)
{
    return lengthOfStrictUtf8(text) == text.size();
}

std::string withoutNoncharacters(std::string_view text)
{
    std::string kept;
    kept.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view character = characterAt(text, at);
        if (!isNoncharacter(character)) kept += character;
        at += character.size();
    }
    return kept;
}

std::string argumentText(std::string_view argument)
{
    std::string kept;
    for (std::size_t at = 0; at < argument.size();) {
        const std::string_view character = characterAt(argument, at);
        if (character == "\t" || character == "\n")
            kept += ' ';
        else if (!isControl(character) && !isNoncharacter(character))
            kept += character;
        at += character.size();
    }
    return kept;
}

std::string printable(std::string_view text)
{
    std::string shown;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view character = characterAt(text, at);
        if (isStrictUtf8(character) && !isControl(character))
            shown += character;
        else
            for (const char byte : character)
                shown += "\\x" + hexadecimal(byte);
        at += character.size();
    }
    return shown;
}

std::string forShell(const std::string& word)
{
    if (!word.empty() && std::all_of(word.begin(), word.end(), isPlainInAShell)) return word;
    std::string quoted = "'";
    for (const char character : word)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

std::string hexadecimal(char byte)
{
    constexpr char digits[] = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return {digits[value / 16], digits[value % 16]};
}

std::string joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string text;
    for (const std::string& part : parts)
        text.append(&part == parts.data() ? std::string_view() : separator).append(part);
    return text;
}

std::string firstWords(std::string_view text)
{
    constexpr int most = 40;
    std::size_t end = 0;
    std::size_t blank = 0;
    for (int count = 0; end < text.size() && count != most; ++count) {
        end += characterAt(text, end).size();
        if (text.substr(end, 1) == " " || text.substr(end, 1) == "\n") blank = end;
    }
    const bool isWhole = end == text.size();
    // Cuts between words, unless the last one is long.
    if (!isWhole && blank > end / 2) end = blank;
    std::string words(text.substr(0, end));
    for (const char control : {'\n', '\t'})
        std::replace(words.begin(), words.end(), control, ' ');
    return printable(words) + (isWhole ? "" : "...");
}

} // namespace publish
