/// @file
/// One caption.

#ifndef ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONITEM_H
#define ZELINTERCHANGEDATA_CAPTIONS_ZELDATACAPTIONITEM_H

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "sets/LanguageTexts.h"
#include "sets/TextSummary.h"
#include "util/TimeSpan.h"

#include <string_view>
#include <utility>

namespace ZelInterchangeData {

/// The data of a caption. Copies share the texts.
class CaptionState {
public:
    using Summary = TextSummary;

    TimeSpan time;
    ZelAlignment_tags alignment = ZelAlignBottom;

    long long start() const noexcept { return time.start; }
    const LanguageTexts& texts() const noexcept { return texts_; }
    LanguageTexts& changeTexts() noexcept { return texts_; }
    /// Prefetches the texts.
    void prefetch() const noexcept { texts_.prefetch(); }
    /// Returns what i_ZelDataCaptionItem::isValid() returns.
    ZelDataResult_tags check(bool strict) const;

private:
    LanguageTexts texts_;
};

/// The caption item that the library makes. If memory runs out, its operations throw
/// `std::bad_alloc`.
class ZelDataCaptionItem : public i_ZelDataCaptionItem {
public:
    using State = CaptionState;

    ZelDataCaptionItem() = default;
    explicit ZelDataCaptionItem(CaptionState state) : state_(std::move(state)) {}
    ZelDataCaptionItem(const ZelDataCaptionItem&) = delete;
    /// Copies all fields except the last error, without checks.
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

    /// As setTextForLanguage().
    ZelDataResult_tags setCharacters(std::string_view text, std::string_view languageID);
    const CaptionState& state() const noexcept { return state_; }
    /// The code with which a copy of this item ends; leaves the last error that its
    /// getters would.
    ZelDataResult_tags checkCopy() const;
    /// As copyFrom(), with the same codes, last errors and half-copied state, but shares the texts:
    /// those of our own items were checked when they were set.
    ZelDataResult_tags copyOwn(const ZelDataCaptionItem& other);

private:
    CaptionState state_;
};

} // namespace ZelInterchangeData

#endif
