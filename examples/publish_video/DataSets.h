/// @file
/// Fills the library's data sets.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_DATASETS_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_DATASETS_H

#include "CaptionMerger.h"
#include "CueFile.h"
#include "Options.h"

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <memory>
#include <vector>

namespace publish {

/// The header: the texts, the frame size and the video's length, which is that of the options,
/// otherwise the end of the last cue. Throws PublishError if there is neither.
std::unique_ptr<ZelInterchangeData::i_ZelDataHeader>
makeHeader(const ZelInterchangeData::i_ZelInterchangeDataCore& document, const Options& options,
           const CueFiles& files);

/// The captions @p merged, in that order, in the font of the options.
std::unique_ptr<ZelInterchangeData::i_ZelDataCaptions>
makeCaptions(const ZelInterchangeData::i_ZelInterchangeDataCore& document, const Options& options,
             const std::vector<MergedCaption>& merged);

/// One entry for each cue of @p file.
std::unique_ptr<ZelInterchangeData::i_ZelDataToc>
makeToc(const ZelInterchangeData::i_ZelInterchangeDataCore& document, const CueFile& file);

/// One item for each cue of @p file, tied to the entry of @p toc that is current when it starts.
std::unique_ptr<ZelInterchangeData::i_ZelDataScreenText>
makeScreenText(const ZelInterchangeData::i_ZelInterchangeDataCore& document, const CueFile& file,
               const std::optional<CueFile>& toc);

} // namespace publish

#endif
