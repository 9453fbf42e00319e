/// @file
/// One caption.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONITEM_H
#define ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONITEM_H

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "core/LanguageTexts.h"
#include "util/TimeSpan.h"

namespace ZelInterchangeData {

/// The caption item that the library makes. Exhausted memory passes through as `std::bad_alloc`.
class ZelDataCaptionItem : public i_ZelDataCaptionItem {
public:
    ZelDataCaptionItem() = default;
    ZelDataCaptionItem(const ZelDataCaptionItem&) = delete;
    /// Copies all fields but the last error, without checks.
    ZelDataCaptionItem& operator=(const ZelDataCaptionItem& other);

    ZelDataResult_tags isValid(bool strict) const override;
    ZelDataResult_tags clearText() override;
    ZelDataResult_tags setTextForLanguage(const std::string& text,
                                          const std::string& languageID) override;
    ZelDataResult_tags setStart(long long start) override;
    ZelDataResult_tags setEnd(long long end) override;
    ZelDataResult_tags setDuration(long long duration) override;
    ZelDataResult_tags setAlignment(ZelAlignment_tags alignment) override;
    ZelDataResult_tags removeTextForLanguage(const std::string& languageID) override;
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override;
    ZelDataResult_tags getTextForLanguage(std::string& text,
                                          const std::string& languageID) const override;
    ZelDataResult_tags getStart(long long& start) const override;
    ZelDataResult_tags getEnd(long long& end) const override;
    ZelDataResult_tags getDuration(long long& duration) const override;
    ZelDataResult_tags getAlignment(ZelAlignment_tags& alignment) const override;

private:
    TimeSpan time_;
    ZelAlignment_tags alignment_ = ZelAlignBottom;
    LanguageTexts texts_;
};

} // namespace ZelInterchangeData

#endif
