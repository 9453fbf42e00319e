/// @file
/// One screen text.

#ifndef ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXTITEM_H
#define ZELINTERCHANGEDATA_SCREENTEXT_ZELDATASCREENTEXTITEM_H

#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "util/SharedText.h"
#include "util/TextUtilities.h"
#include "util/TimeSpan.h"

#include <utility>

namespace ZelInterchangeData {

class ScreenTextState;

/// A summary of all items of a collection.
struct ScreenTextSummary {
    /// The approximate number of bytes that all texts and file names take in the packet.
    std::size_t size = 0;

    /// Adds the next item.
    void add(const ScreenTextState& state) noexcept;
};

/// The data of a screen text. Copies share text and file name.
class ScreenTextState {
public:
    using Summary = ScreenTextSummary;

    TimeSpan time;
    unsigned long imageIndex = 0;
    unsigned long long imageOffset = 0;
    unsigned long groupId = 0;

    long long start() const noexcept { return time.start; }
    std::string_view text() const noexcept { return text_.view(); }
    void setText(std::string_view text) { text_ = SharedText(text); }
    std::string_view imageFile() const noexcept { return imageFile_.view(); }
    void setImageFile(std::string_view name) { imageFile_ = SharedText(name); }

    /// Prefetches the texts.
    void prefetch() const noexcept
    {
        text_.prefetch();
        imageFile_.prefetch();
    }

private:
    SharedText text_;
    SharedText imageFile_;
};

inline void ScreenTextSummary::add(const ScreenTextState& state) noexcept
{
    size += sizeWithEntities(state.text()) + state.imageFile().size();
}

/// The screen-text item that the library makes.
class ZelDataScreenTextItem : public i_ZelDataScreenTextItem {
public:
    using State = ScreenTextState;

    ZelDataScreenTextItem() = default;
    explicit ZelDataScreenTextItem(ScreenTextState state) : state_(std::move(state)) {}
    ZelDataScreenTextItem(const ZelDataScreenTextItem&) = delete;
    /// Copies all fields except the last error, without checks.
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

    /// As setText().
    ZelDataResult_tags setCharacters(std::string_view text);
    const ScreenTextState& state() const noexcept { return state_; }
    /// The code with which a copy of this item ends; leaves the last error that its
    /// getters would.
    ZelDataResult_tags checkCopy() const;
    /// As copyFrom(), with the same codes and last errors, but shares the strings: those of our own
    /// items were checked when they were set.
    ZelDataResult_tags copyOwn(const ZelDataScreenTextItem& other);

private:
    ScreenTextState state_;
};

} // namespace ZelInterchangeData

#endif
