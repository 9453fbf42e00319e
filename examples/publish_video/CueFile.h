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
    /// Cues that contain only blanks; they are among the cues unless empty ones are skipped.
    std::size_t empty = 0;
    /// The latest end of a cue, including skipped ones; `std::nullopt` without cues.
    std::optional<long long> lastEnd;
};

/// All files of the command line.
struct CueFiles {
    std::vector<CueFile> captions;
    std::optional<CueFile> toc;
    std::optional<CueFile> screenText;
};

/// Makes a file's cues from its contents; throws PublishError if they are not UTF-8.
CueFile makeCueFile(const std::string& name, const std::string& bytes, const Options& options);

/// Reads every file that @p options name, and removes markup and skips empty cues if they say so;
/// throws PublishError.
CueFiles readCueFiles(const Options& options);

/// The latest end of a cue in all files; `std::nullopt` without cues.
std::optional<long long> lastEnd(const CueFiles& files);

} // namespace publish

#endif
