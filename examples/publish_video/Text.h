/// @file
/// Strict UTF-8, and the characters that no packet may contain.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_TEXT_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace publish {

/// Whether @p character is an ASCII digit.
constexpr bool isDigit(char character)
{
    return '0' <= character && character <= '9';
}

/// Whether @p character is an ASCII letter.
constexpr bool isLetter(char character)
{
    return ('a' <= character && character <= 'z') || ('A' <= character && character <= 'Z');
}

/// @p character, or its small letter if it is an ASCII capital.
constexpr char lowerCase(char character)
{
    return 'A' <= character && character <= 'Z' ? static_cast<char>(character + 'a' - 'A')
                                                : character;
}

/// The length of the longest beginning of @p text that is UTF-8 as isStrictUtf8() wants it.
std::size_t lengthOfStrictUtf8(std::string_view text);

/// How many characters of @p text, which is strict UTF-8, have several bytes.
std::size_t countOfLongCharacters(std::string_view text);

/// Whether @p text is UTF-8 without surrogates, overlong forms and values above U+10FFFF.
/// ZelDataUtilities::verifyUtf8Format() accepts all three.
bool isStrictUtf8(std::string_view text);

/// @p text, which is strict UTF-8, without U+FFFE and U+FFFF.
std::string withoutNoncharacters(std::string_view text);

/// Converts an argument, which is strict UTF-8, for the packet: replaces each tab and line feed
/// with a blank, and drops other control characters (C0, DEL, C1), U+FFFE and U+FFFF.
std::string argumentText(std::string_view argument);

/// @p text for a message: on one line, with `\x..` for control characters and bytes that are not
/// UTF-8.
std::string printable(std::string_view text);

/// @p word as you type it in a POSIX shell, with quotes if it needs them.
std::string forShell(const std::string& word);

/// The two hexadecimal digits of @p byte.
std::string hexadecimal(char byte);

/// @p parts with @p separator between each two.
std::string joined(const std::vector<std::string>& parts, std::string_view separator);

/// The beginning of @p text for a message: printable, on one line, and at most 40 characters; "..."
/// follows if there is more.
std::string firstWords(std::string_view text);

} // namespace publish

#endif
