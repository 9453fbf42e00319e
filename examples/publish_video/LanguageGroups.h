/// @file
/// Which languages share their times.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LANGUAGEGROUPS_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LANGUAGEGROUPS_H

#include "CaptionMerger.h"

#include <string>
#include <vector>

namespace publish {

/// Languages, each in one group.
using LanguageGroups = std::vector<std::vector<std::string>>;

/// Puts two languages into one group if more than half of the captions of the one that has fewer
/// have both. Files that were timed separately join only by chance. Groups and languages are in
/// alphabetical order.
LanguageGroups languageGroups(const std::vector<MergedCaption>& captions);

} // namespace publish

#endif
