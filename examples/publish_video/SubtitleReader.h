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
    /// The number of the timing line in the file, from 1.
    std::size_t line = 0;
    /// The number of the text's last line if that holds nothing but digits and a timing line
    /// follows at once: a blank line is missing, and the digits are the number of the next cue.
    /// Otherwise 0.
    std::size_t swallowedNumber = 0;
    /// The number of the text's first line that begins with a time and has an arrow of another form,
    /// such as `->`; 0 if there is none.
    std::size_t swallowedTiming = 0;
};

/// A cue, or other lines, that are left out.
struct SkippedLines {
    /// The number of the first line, which is a cue's timing line, in the file, from 1.
    std::size_t line = 0;
    /// How that line begins: see firstWords().
    std::string words;
};

/// What a file contains.
struct Subtitles {
    /// Whether the first line says WEBVTT; the file is SRT otherwise.
    bool isWebVtt = false;
    /// In file order.
    std::vector<Cue> cues;
    /// The lines with an arrow that are not timing lines, and those outside a cue that begin with a
    /// time and have an arrow of another form. Skips them and their text.
    std::vector<SkippedLines> malformed;
    /// The cues whose end is not after their start. Skips them.
    std::vector<SkippedLines> withoutLength;
    /// The other lines outside a cue, except blank lines, numbers, the line before a timing line, and
    /// the header, notes, styles and regions of WebVTT. Skips them.
    std::vector<SkippedLines> outside;
};

/// @p time in milliseconds, at least 0, as subtitle files write it: `00:00:39.200`, always with a
/// point.
std::string timeText(long long time);

/// How many lines @p text has; what follows the last line end is a line even if it is empty.
std::size_t countOfLines(std::string_view text);

/// Reads the contents of a file; `std::nullopt` if they are not strict UTF-8. Accepts a byte order
/// mark and line ends of all three kinds, and drops U+FFFE and U+FFFF.
///
/// A line with an arrow (`-->`) opens a cue whatever precedes it. A blank line or the next arrow ends
/// its text.
std::optional<Subtitles> readSubtitles(std::string_view bytes);

} // namespace publish

#endif
