/// @file
/// What the program reports.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_REPORT_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_REPORT_H

#include "CueFile.h"

#include "ZelInterchangeData/i_ZelDataCaptions.h"

#include <string>
#include <vector>

namespace publish {

/// One line about the cues of @p file.
std::string describeFile(const CueFile& file, bool skipEmpty);

/// One line for each caption that breaks a recommended limit, in the packet's order: its start, and
/// every reason (too short, too many lines, overlap with a later one).
std::vector<std::string> describeCaptions(const ZelInterchangeData::i_ZelDataCaptions& captions);

/// One line with the packet's languages, which are those of the captions.
std::string describeLanguages(const ZelInterchangeData::i_ZelDataCaptions& captions);

} // namespace publish

#endif
