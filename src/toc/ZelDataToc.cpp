#include "toc/ZelDataToc.h"

#include "sets/ItemTexts.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createTocData(i_ZelDataToc** out)
{
    return createObject<ZelDataToc>(out);
}

// Checking and repairing

/// Checks one entry; no later one starts before @p earliestLater.
Ending ZelDataToc::checkItem(const i_ZelDataTocItem& item, bool deep,
                             const std::vector<std::string>& listed, long long earliestLater)
{
    if (deep && failed(item.isValid(true))) return item.getLastError();
    if (const Ending ending = findMissingText(item, listed)) return ending;
    long long start = 0;
    if (failed(item.getStart(start))) return item.getLastError();
    if (start > earliestLater) return ZelData_WarnTiming;
    return {};
}

/// Returns the code of the first problem of the entries, in stored order.
ZelDataResult_tags ZelDataToc::checkItems(bool deep) const
{
    const auto listed = languageIDs(); // a caller's item may change the list
    const Ending ending =
        items_.checkAll([&](const i_ZelDataTocItem& item, long long earliestLater) {
            return checkItem(item, deep, listed, earliestLater);
        });
    return ending.value_or(ZelData_Ok);
}

ZelDataResult_tags ZelDataToc::isValid(bool deep) const
{
    return store(guarded(
        [&] { return frameRate_.isInRange() ? checkItems(deep) : ZelData_InvalidArgument; }));
}

ZelDataResult_tags ZelDataToc::orderTocItems()
{
    return store(guarded([&] { return items_.order().value_or(ZelData_Ok); }));
}

ZelDataResult_tags ZelDataToc::makeTocConsistent()
{
    return store(guarded([&] {
        const auto listed = languageIDs(); // a caller's item may change the list
        if (const Ending ending = orderAndFillMissingTexts(items_, listed)) return *ending;
        frameRate_.repair();
        return ZelData_Ok;
    }));
}

// Properties

ZelDataResult_tags ZelDataToc::setFrameRate(unsigned long rate)
{
    return store(frameRate_.set(rate) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataToc::getFrameRate(unsigned long& rate) const
{
    rate = frameRate_.value;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataToc::setImageFile(const std::string& name)
{
    return store(guardedCopy(imageFile_, name));
}

ZelDataResult_tags ZelDataToc::getImageFile(std::string& name) const
{
    return store(guardedCopy(name, imageFile_));
}

// Entries

ZelDataResult_tags ZelDataToc::clearTocItems()
{
    return store(guarded([&] {
        items_.clear();
        languages().clear(); // the languages are those of the entries
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataToc::addTocItem(const i_ZelDataTocItem& item)
{
    return store(guarded([&] {
        if (const auto* own = exactly<ZelDataTocItem>(item); own && exactly<ZelDataToc>(*this)) {
            return addOwnWithLanguages(*own, items_);
        }
        auto copy = copyItem(item, newItem());
        if (!copy.item) return copy.code;
        return addWithLanguages(*copy.item, [&] { items_.append(std::move(copy.item)); });
    }));
}

ZelDataResult_tags ZelDataToc::createTocItem(i_ZelDataTocItem** out) const
{
    return store(ZelDataUtilities::createTocItemData(out));
}

ZelDataResult_tags ZelDataToc::removeTocItemAt(unsigned long index)
{
    return store(guarded([&] { return items_.removeAt(index); }));
}

/// Deliberate: removes only the texts; otherwise, entries or the listed language would be removed
/// as well.
ZelDataResult_tags ZelDataToc::removeTocItemsForLanguage(const std::string& languageID)
{
    return store(guarded([&] { return removeTexts(items_, languageID); }));
}

ZelDataResult_tags ZelDataToc::getTocItemCount(unsigned long& count)
{
    count = items_.count();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataToc::getTocItemAt(i_ZelDataTocItem** out, unsigned long index) const
{
    return store(guarded([&] { return items_.copyOut(out, index, newItem()); }));
}

ZelDataResult_tags ZelDataToc::getTocItems(std::vector<i_ZelDataTocItem*>& items) const
{
    return store(guarded([&] { return items_.copyOutAll(items, newItem()); }));
}

ZelDataResult_tags ZelDataToc::getTocItemsForLanguage(std::vector<i_ZelDataTocItem*>& /*items*/,
                                                      const std::string& /*languageID*/) const
{
    return store(ZelData_NotImplemented);
}

} // namespace ZelInterchangeData
