/// @file
/// One entry of a table of contents.

#ifndef ZELINTERCHANGEDATA_TOC_ZELDATATOCITEM_H
#define ZELINTERCHANGEDATA_TOC_ZELDATATOCITEM_H

#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "sets/LanguageTexts.h"
#include "sets/TextSummary.h"
#include "util/SharedText.h"

#include <string_view>
#include <utility>

namespace ZelInterchangeData {

/// The data of an entry. Copies share titles and file name.
class TocEntryState {
public:
    using Summary = TextSummary;

    long long startTime = 0;
    unsigned long imageIndex = 0;
    unsigned long long imageOffset = 0;

    long long start() const noexcept { return startTime; }
    const LanguageTexts& texts() const noexcept { return titles_; }
    LanguageTexts& changeTexts() noexcept { return titles_; }

    /// Prefetches the texts.
    void prefetch() const noexcept
    {
        titles_.prefetch();
        imageFile_.prefetch();
    }

    std::string_view imageFile() const noexcept { return imageFile_.view(); }
    void setImageFile(std::string_view name) { imageFile_ = SharedText(name); }

private:
    LanguageTexts titles_;
    SharedText imageFile_;
};

/// The entry that the library makes.
class ZelDataTocItem : public i_ZelDataTocItem {
public:
    using State = TocEntryState;

    ZelDataTocItem() = default;
    explicit ZelDataTocItem(TocEntryState state) : state_(std::move(state)) {}
    ZelDataTocItem(const ZelDataTocItem&) = delete;
    /// Copies all fields except the last error, without checks.
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

    /// As setTextForLanguage().
    ZelDataResult_tags setCharacters(std::string_view text, std::string_view languageID);
    const TocEntryState& state() const noexcept { return state_; }
    /// The code with which a copy of this entry ends; leaves the last error that its
    /// getters would.
    ZelDataResult_tags checkCopy() const;
    /// As copyFrom(), with the same codes and last errors, but shares the strings: those of our own
    /// entries were checked when they were set.
    ZelDataResult_tags copyOwn(const ZelDataTocItem& other);

private:
    TocEntryState state_;
};

} // namespace ZelInterchangeData

#endif
