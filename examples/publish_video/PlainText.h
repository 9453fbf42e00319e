/// @file
/// Lines, blanks and the markup of subtitles.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PLAINTEXT_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PLAINTEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace publish {

/// Whether @p character is a blank or a tab.
constexpr bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// @p line without the blanks and tabs at its end.
std::string_view withoutBlanksAtEnd(std::string_view line);

/// Whether @p text consists of blanks, tabs and line feeds.
bool isNothingButBlanks(std::string_view text);

/// Calls @p take with each line of @p text, without its line feed. What follows the last line feed
/// is a line even if it is empty.
template <class Take>
void forEachLine(std::string_view text, Take take)
{
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        take(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    take(text);
}

/// Returns @p text without markup: removes tags (`<...>`) and override blocks (`{\...}`), with the
/// line feeds inside them; a `<` or `{\` that is never closed stays. In WebVTT, replaces the
/// entities `&amp; &lt; &gt; &nbsp; &lrm; &rlm;` outside of them with their characters, which are
/// not examined again. Then removes the blanks and tabs at the line ends. One pass, linear in the
/// length of the text.
std::string plainText(std::string_view text, bool isWebVtt);

} // namespace publish

#endif
