/// @file
/// Merges the texts of several languages into captions.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CAPTIONMERGER_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CAPTIONMERGER_H

#include "CueFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace publish {

/// The text of a caption in one language.
struct LanguageText {
    std::string language;
    std::string text;
    /// Where it comes from: the index of its file, and that of its cue there.
    std::size_t file = 0;
    std::size_t cue = 0;
};

/// A caption under construction.
struct MergedCaption {
    long long start = 0;
    long long end = 0;
    /// In the order of the files.
    std::vector<LanguageText> texts;
};

/// Makes captions from the cues of @p files, file by file: a cue joins the first caption so far
/// that has the same start and end and no text in its language; if there is none, it starts a new
/// caption.
std::vector<MergedCaption> mergeCaptions(const std::vector<CueFile>& files);

} // namespace publish

#endif
