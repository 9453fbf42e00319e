/// @file
/// One entry of a table of contents.

#ifndef ZELINTERCHANGEDATA_TOC_ZELDATATOCITEM_H
#define ZELINTERCHANGEDATA_TOC_ZELDATATOCITEM_H

#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "core/ImageReference.h"
#include "core/LanguageTexts.h"
#include "util/TimeSpan.h"

namespace ZelInterchangeData {

/// The entry that the library makes.
class ZelDataTocItem : public i_ZelDataTocItem {
public:
    ZelDataTocItem() = default;
    ZelDataTocItem(const ZelDataTocItem&) = delete;
    /// Copies all fields but the last error, without checks. Lets `std::bad_alloc` through and then
    /// leaves the entry as it was.
    ZelDataTocItem& operator=(const ZelDataTocItem& other);

    ZelDataResult_tags isValid(bool deep) const override;
    ZelDataResult_tags clearText() override;
    ZelDataResult_tags setTextForLanguage(const std::string& text,
                                          const std::string& languageID) override;
    ZelDataResult_tags setStart(long long start) override;
    ZelDataResult_tags setImageFile(const std::string& name) override;
    ZelDataResult_tags setImageIndex(unsigned long index) override;
    ZelDataResult_tags setImageOffset(unsigned long long offset) override;
    ZelDataResult_tags removeTextForLanguage(const std::string& languageID) override;
    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override;
    ZelDataResult_tags getTextForLanguage(std::string& text,
                                          const std::string& languageID) const override;
    ZelDataResult_tags getStart(long long& start) const override;
    ZelDataResult_tags getImageFile(std::string& name) const override;
    ZelDataResult_tags getImageIndex(unsigned long& index) const override;
    ZelDataResult_tags getImageOffset(unsigned long long& offset) const override;

private:
    TimeSpan time_; // an entry has no duration
    ImageReference image_;
    LanguageTexts texts_;
};

} // namespace ZelInterchangeData

#endif
