/// @file
/// See CaptionMerger.h.

#include "CaptionMerger.h"

#include <cstddef>
#include <map>
#include <utility>

namespace publish {

namespace {

/// The captions that share one start and end.
struct Simultaneous {
    std::vector<std::size_t> captions;
    /// For each language, how many captions have a text in it. These are always the first ones,
    /// because a language fills the first caption without a text in it.
    std::map<std::string, std::size_t> filled;
};

class CaptionMerger {
public:
    void take(const Cue& cue, LanguageText text)
    {
        Simultaneous& same = simultaneous_[{cue.start, cue.end}];
        const std::size_t position = same.filled[text.language]++;
        if (position == same.captions.size()) {
            same.captions.push_back(captions_.size());
            captions_.push_back({cue.start, cue.end, {}});
        }
        captions_[same.captions[position]].texts.push_back(std::move(text));
    }

    std::vector<MergedCaption> captions() && { return std::move(captions_); }

private:
    std::vector<MergedCaption> captions_;
    std::map<std::pair<long long, long long>, Simultaneous> simultaneous_;
};

} // namespace

std::vector<MergedCaption> mergeCaptions(const std::vector<CueFile>& files)
{
    CaptionMerger merger;
    for (std::size_t file = 0; file != files.size(); ++file) {
        const CueFile& source = files[file];
        for (std::size_t at = 0; at != source.cues.size(); ++at) {
            const Cue& cue = source.cues[at];
            merger.take(cue, {source.language, cue.text, file, at});
        }
    }
    return std::move(merger).captions();
}

} // namespace publish
