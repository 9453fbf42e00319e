/// @file
/// What the author of the files probably did not want.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PROBLEMS_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_PROBLEMS_H

#include "CaptionMerger.h"
#include "CueFile.h"
#include "LanguageGroups.h"
#include "Options.h"

#include "ZelInterchangeData/i_ZelDataCaptions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace publish {

/// A kind of problem.
struct ProblemKind {
    /// For programs.
    const char* id;
    /// For people: one, and several.
    const char* one;
    const char* several;
};

/// Where a problem is.
struct Place {
    /// As on the command line.
    std::string path;
    /// Empty for screen text.
    std::string language;
    /// The line in the file, from 1; 0 for the whole file.
    std::size_t line = 0;
    /// In the form of the file; empty without a cue.
    std::string start;
    std::string end;
    std::optional<long long> startMs;
    std::optional<long long> endMs;
    /// The first words.
    std::string text;
    /// What the kind does not say; may be empty.
    std::string detail;
};

/// All problems of one kind, in the order of the files.
struct Problem {
    const ProblemKind* kind = nullptr;
    std::vector<Place> places;
};

/// What the problems are found in.
struct Published {
    const Options& options;
    const CueFiles& files;
    const std::vector<MergedCaption>& merged;
    /// The same captions, in the same order.
    const ZelInterchangeData::i_ZelDataCaptions& captions;
    const LanguageGroups& groups;
};

/// The problems, without kinds that have no place. Throws PublishError.
std::vector<Problem> problemsOf(const Published& published);

} // namespace publish

#endif
