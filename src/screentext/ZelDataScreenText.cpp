#include "screentext/ZelDataScreenText.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createScreenTextData(i_ZelDataScreenText** out)
{
    return createObject<ZelDataScreenText>(out);
}

// Checking and repairing

/// The first finding of the items, in stored order.
ZelDataResult_tags ZelDataScreenText::checkItems(bool deep) const
{
    const auto& items = items_.all();
    const auto earliestLater = earliestLaterStarts(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (deep && failed(items[i]->isValid(true))) return items[i]->getLastError();
        long long start = 0;
        if (failed(items[i]->getStart(start))) return items[i]->getLastError();
        if (start > earliestLater[i]) return ZelData_WarnTiming;
    }
    return ZelData_Ok;
}

ZelDataResult_tags ZelDataScreenText::isValid(bool deep) const
{
    return store(guarded(
        [&] { return frameRate_.isInRange() ? checkItems(deep) : ZelData_InvalidArgument; }));
}

ZelDataResult_tags ZelDataScreenText::orderScreenTextItems()
{
    return store(guarded([&] {
        items_.order();
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataScreenText::makeScreenTextConsistent()
{
    if (failed(orderScreenTextItems())) return getLastError();
    frameRate_.repair();
    return store(ZelData_Ok);
}

// Properties

ZelDataResult_tags ZelDataScreenText::setFrameRate(unsigned long rate)
{
    return store(frameRate_.set(rate) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataScreenText::getFrameRate(unsigned long& rate) const
{
    rate = frameRate_.value;
    return store(ZelData_Ok);
}

// Items

ZelDataResult_tags ZelDataScreenText::clearScreenTextItems()
{
    items_.clear();
    reserved_.clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenText::addScreenTextItem(const i_ZelDataScreenTextItem& item)
{
    return store(guarded([&] {
        auto copy = copyItem(item, newItem());
        if (copy.item) items_.append(std::move(copy.item));
        return copy.code;
    }));
}

ZelDataResult_tags ZelDataScreenText::createScreenTextItem(i_ZelDataScreenTextItem** out) const
{
    return store(ZelDataUtilities::createScreenTextItemData(out));
}

ZelDataResult_tags ZelDataScreenText::removeScreenTextItemAt(unsigned long index)
{
    return store(items_.removeAt(index));
}

ZelDataResult_tags ZelDataScreenText::getScreenTextItemCount(unsigned long& count)
{
    count = items_.count();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataScreenText::getScreenTextItemAt(i_ZelDataScreenTextItem** out,
                                                          unsigned long index) const
{
    return store(guarded([&] { return items_.copyOut(out, index, newItem()); }));
}

ZelDataResult_tags
ZelDataScreenText::getScreenTextItems(std::vector<i_ZelDataScreenTextItem*>& items) const
{
    return store(guarded([&] { return items_.copyOutAll(items, newItem()); }));
}

} // namespace ZelInterchangeData
