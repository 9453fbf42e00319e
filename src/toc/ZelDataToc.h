/// @file
/// The table of contents of a document.

#ifndef ZELINTERCHANGEDATA_TOC_ZELDATATOC_H
#define ZELINTERCHANGEDATA_TOC_ZELDATATOC_H

#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"
#include "sets/FrameRate.h"
#include "sets/ItemList.h"
#include "sets/LanguageListOwner.h"
#include "toc/ZelDataTocItem.h"
#include "util/Ending.h"

namespace ZelInterchangeData {

/// The table that the library makes. Removing an absent language is an error here.
class ZelDataToc : public LanguageListOwner<i_ZelDataToc, ZelData_NotFound> {
public:
    using Items = ItemList<i_ZelDataTocItem, ZelDataTocItem>;

    ZelDataResult_tags isValid(bool deep) const override;
    ZelDataResult_tags makeTocConsistent() override;

    ZelDataResult_tags setFrameRate(unsigned long rate) override;
    ZelDataResult_tags getFrameRate(unsigned long& rate) const override;
    ZelDataResult_tags setImageFile(const std::string& name) override;
    ZelDataResult_tags getImageFile(std::string& name) const override;

    ZelDataResult_tags clearTocItems() override;
    ZelDataResult_tags addTocItem(const i_ZelDataTocItem& item) override;
    ZelDataResult_tags createTocItem(i_ZelDataTocItem** out) const override;
    ZelDataResult_tags removeTocItemAt(unsigned long index) override;
    ZelDataResult_tags removeTocItemsForLanguage(const std::string& languageID) override;
    ZelDataResult_tags getTocItemCount(unsigned long& count) override;
    ZelDataResult_tags getTocItemAt(i_ZelDataTocItem** out, unsigned long index) const override;
    ZelDataResult_tags getTocItems(std::vector<i_ZelDataTocItem*>& items) const override;
    ZelDataResult_tags getTocItemsForLanguage(std::vector<i_ZelDataTocItem*>& items,
                                              const std::string& languageID) const override;

    /// As copyFrom(), with the same codes, last errors and half-copied state, but shares the
    /// entries: those of our own tables were checked when they were added.
    ZelDataResult_tags copyOwn(const ZelDataToc& other);
    const Items& items() const noexcept { return items_; }
    const std::string& imageFile() const noexcept { return imageFile_; }
    using LanguageListOwner::languageIDs;

    /// Orders the entries by start, as makeTocConsistent() does.
    ZelDataResult_tags orderTocItems();

protected:
    FrameRate frameRate_;

private:
    static Ending checkItem(const i_ZelDataTocItem& item, bool deep,
                            const std::vector<std::string>& listed, long long earliestLater);
    ZelDataResult_tags checkItems(bool deep) const;
    /// createTocItem() as a callable.
    auto newItem() const
    {
        return [this](i_ZelDataTocItem** out) { return createTocItem(out); };
    }

    std::string imageFile_;
    Items items_;
};

} // namespace ZelInterchangeData

#endif
