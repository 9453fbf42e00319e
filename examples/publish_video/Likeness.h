/// @file
/// How alike two words are.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LIKENESS_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LIKENESS_H

#include <cstddef>
#include <string_view>

namespace publish {

/// How many bytes are missing, added, wrong or exchanged with their neighbour, ignoring the case of
/// ASCII letters. Takes time in proportion to the product of the lengths; a word of more than 40
/// bytes is unlike any other.
std::size_t mistakesBetween(std::string_view a, std::string_view b);

/// Whether @p typed could be meant to be @p word: at most two mistakes, and one in three bytes.
bool isLike(std::string_view typed, std::string_view word);

} // namespace publish

#endif
