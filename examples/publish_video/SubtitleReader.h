/// @file
/// Reads SubRip (SRT) and WebVTT files as they occur in practice rather than as they should be.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_SUBTITLEREADER_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_SUBTITLEREADER_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace publish {

/// One cue; its end is after its start. Times are in milliseconds.
struct Cue {
    long long start = 0;
    long long end = 0;
    /// The lines joined by line feeds, without blanks and tabs at their ends.
    std::string text;
};

/// What a file contains.
struct Subtitles {
    /// Whether the first line says WEBVTT; the file is SRT otherwise.
    bool isWebVtt = false;
    /// In file order.
    std::vector<Cue> cues;
    /// The lines with an arrow that are not timing lines. Skips them and their text.
    std::size_t malformed = 0;
    /// The cues whose end is not after their start. Skips them.
    std::size_t withoutLength = 0;
};

/// Reads the contents of a file; `std::nullopt` if they are not strict UTF-8. Accepts a byte order
/// mark and line ends of all three kinds, and drops U+FFFE and U+FFFF.
///
/// A line with an arrow (`-->`) opens a cue whatever precedes it, so the reader need not understand
/// numbers, names, notes and styles. A blank line or the next arrow ends its text.
std::optional<Subtitles> readSubtitles(std::string_view bytes);

} // namespace publish

#endif
