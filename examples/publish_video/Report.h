/// @file
/// What the program reports about a packet.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_REPORT_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_REPORT_H

#include "Problems.h"

#include <cstddef>
#include <string>
#include <vector>

namespace publish {

/// The captions of one language.
struct LanguageCount {
    std::string language;
    /// The captions with a text in the language, and those without.
    std::size_t captions = 0;
    std::size_t missing = 0;
};

/// What is in the packet, and what is wrong with it.
struct Report {
    std::string output;
    std::size_t bytes = 0;
    std::size_t captions = 0;
    /// The captions with texts in several languages.
    std::size_t joined = 0;
    /// In alphabetical order.
    std::vector<LanguageCount> languages;
    /// More than one group if files were timed separately.
    LanguageGroups groups;
    std::size_t entries = 0;
    std::size_t screenTexts = 0;
    /// The cues without text that --skip-empty left out.
    std::size_t skipped = 0;
    std::vector<Problem> problems;
};

/// Everything except the number of bytes. Throws PublishError.
Report makeReport(const Options& options, const CueFiles& files,
                  const std::vector<MergedCaption>& merged,
                  const ZelInterchangeData::i_ZelDataCaptions& captions);

/// The report for people: each kind of problem with the first three places, or with all.
std::string reportText(const Report& report, bool isVerbose);

/// The report for programs, with all places, as JSON.
std::string reportJson(const Report& report);

} // namespace publish

#endif
