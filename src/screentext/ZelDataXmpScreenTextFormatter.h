/// @file
/// Writes screen text as a track.

#ifndef ZELINTERCHANGEDATA_SCREENTEXT_ZELDATAXMPSCREENTEXTFORMATTER_H
#define ZELINTERCHANGEDATA_SCREENTEXT_ZELDATAXMPSCREENTEXTFORMATTER_H

#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"
#include "screentext/ZelDataScreenText.h"
#include "sets/XmpFormatter.h"

namespace ZelInterchangeData {

/// Writes the screen-text track: its properties, and one marker for each item.
class ZelDataXmpScreenTextFormatter
    : public XmpTrackFormatter<i_ZelDataScreenTextFormatter, i_ZelDataScreenText, ZelDataScreenText,
                               ZelDataXmpScreenTextFormatter> {
public:
    ZelDataXmpScreenTextFormatter();
    ~ZelDataXmpScreenTextFormatter() override;

    ZelDataResult_tags setScreenText(const i_ZelDataScreenText& screenText) override;
    ZelDataResult_tags getScreenText(i_ZelDataScreenText& screenText) const override;

    std::optional<std::size_t> estimateTrack() const;
    void appendTrack(std::string& packet) const;
};

} // namespace ZelInterchangeData

#endif
