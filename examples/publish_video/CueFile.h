/// @file
/// One subtitle file of the command line, read and cleaned.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CUEFILE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CUEFILE_H

#include "Options.h"
#include "SubtitleReader.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace publish {

/// The cues of one file that become items, and what happened to the others.
struct CueFile {
    /// As on the command line, for messages.
    std::string name;
    /// Empty for screen text.
    std::string language;
    std::vector<Cue> cues;
    std::size_t malformed = 0;
    std::size_t withoutLength = 0;
    /// Cues that contain nothing but blanks; they are among the cues unless empty ones are skipped.
    std::size_t empty = 0;
    /// The largest end of a cue, skipped ones included; `std::nullopt` without any.
    std::optional<long long> lastEnd;
};

/// All files of the command line.
struct CueFiles {
    std::vector<CueFile> captions;
    std::optional<CueFile> toc;
    std::optional<CueFile> screenText;
};

/// Makes a file's cues from its contents; throws PublishError when they are not UTF-8.
CueFile makeCueFile(const std::string& name, const std::string& bytes, const Options& options);

/// Reads every file that @p options name, removes markup and skips empty cues where they ask for
/// it; throws PublishError.
CueFiles readCueFiles(const Options& options);

/// The largest end of a cue in all files; `std::nullopt` without any.
std::optional<long long> lastEnd(const CueFiles& files);

} // namespace publish

#endif
