/// @file
/// Writes captions as a track.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_ZELDATAXMPCAPTIONFORMATTER_H
#define ZELINTERCHANGEDATA_CAPTIONS_ZELDATAXMPCAPTIONFORMATTER_H

#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "captions/ZelDataCaptions.h"
#include "sets/XmpFormatter.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

class i_ZelDataCaptionItem;

/// Appends the texts of @p item in the languages of @p languageIDs as markup to @p text and skips
/// languages without a text. Returns whether every language had one. Throws `std::bad_alloc` if
/// memory runs out, even if the item returns this as a code.
bool buildCaptionList(std::vector<std::string> languageIDs, const i_ZelDataCaptionItem& item,
                      std::string& text);

/// Writes the caption track: its styling, and one marker for each item.
class ZelDataXmpCaptionFormatter
    : public XmpTrackFormatter<i_ZelDataCaptionFormatter, i_ZelDataCaptions, ZelDataCaptions,
                               ZelDataXmpCaptionFormatter> {
public:
    ZelDataXmpCaptionFormatter();
    ~ZelDataXmpCaptionFormatter() override;

    ZelDataResult_tags setCaptions(const i_ZelDataCaptions& captions) override;
    ZelDataResult_tags getCaptions(i_ZelDataCaptions& captions) const override;

    /// Ends if an item cannot be copied.
    Ending checkTrack() const;
    std::optional<std::size_t> estimateTrack() const;
    void appendTrack(std::string& packet) const;
};

} // namespace ZelInterchangeData

#endif
