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
    std::string path;
    /// Empty for screen text.
    std::string language;
    std::vector<Cue> cues;
    std::vector<SkippedLines> malformed;
    std::vector<SkippedLines> withoutLength;
    /// Empty for a file without any cue.
    std::vector<SkippedLines> outside;
    /// How many cues contain only blanks; they are among the cues unless empty ones are skipped.
    std::size_t empty = 0;
    /// See encodingHint(); for a file without any cue, otherwise empty.
    std::string hint;
    /// The latest end of a cue, including skipped ones; `std::nullopt` without cues.
    std::optional<long long> lastEnd;
};

/// All files of the command line.
struct CueFiles {
    std::vector<CueFile> captions;
    std::optional<CueFile> toc;
    std::optional<CueFile> screenText;
};

/// Makes the cues of the file @p source, which messages call @p name, from its contents; throws
/// PublishError if they are not UTF-8.
CueFile makeCueFile(const LanguageFile& source, const std::string& name, const std::string& bytes,
                    const Options& options);

/// Reads every file that @p options name, and removes markup and skips empty cues if they say so;
/// throws PublishError.
CueFiles readCueFiles(const Options& options);

/// Every file of @p files, in the order of the fields.
std::vector<const CueFile*> allFiles(const CueFiles& files);

/// The latest end of a cue in all files; `std::nullopt` without cues.
std::optional<long long> lastEnd(const CueFiles& files);

} // namespace publish

#endif
