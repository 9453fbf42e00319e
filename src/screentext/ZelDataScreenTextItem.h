/// @file
/// One screen text.

#ifndef ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXTITEM_H
#define ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXTITEM_H

#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "core/ImageReference.h"
#include "util/TimeSpan.h"

namespace ZelInterchangeData {

/// The screen-text item that the library makes.
class ZelDataScreenTextItem : public i_ZelDataScreenTextItem {
public:
    ZelDataScreenTextItem() = default;
    ZelDataScreenTextItem(const ZelDataScreenTextItem&) = delete;
    /// Copies all fields but the last error, without checks. Lets `std::bad_alloc` through and then
    /// leaves the item as it was.
    ZelDataScreenTextItem& operator=(const ZelDataScreenTextItem& other);

    ZelDataResult_tags isValid(bool deep) const override;
    ZelDataResult_tags clearText() override;
    ZelDataResult_tags setText(const std::string& text) override;
    ZelDataResult_tags setStart(long long start) override;
    ZelDataResult_tags setEnd(long long end) override;
    ZelDataResult_tags setDuration(long long duration) override;
    ZelDataResult_tags setImageFile(const std::string& name) override;
    ZelDataResult_tags setImageIndex(unsigned long index) override;
    ZelDataResult_tags setImageOffset(unsigned long long offset) override;
    ZelDataResult_tags setGroupId(unsigned long id) override;
    ZelDataResult_tags getText(std::string& text) const override;
    ZelDataResult_tags getStart(long long& start) const override;
    ZelDataResult_tags getEnd(long long& end) const override;
    ZelDataResult_tags getDuration(long long& duration) const override;
    ZelDataResult_tags getImageFile(std::string& name) const override;
    ZelDataResult_tags getImageIndex(unsigned long& index) const override;
    ZelDataResult_tags getImageOffset(unsigned long long& offset) const override;
    ZelDataResult_tags getGroupId(unsigned long& id) const override;

private:
    TimeSpan time_;
    std::string text_;
    ImageReference image_;
    unsigned long groupId_ = 0;
};

} // namespace ZelInterchangeData

#endif
