#include "toc/ZelDataTocItem.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "sets/Factory.h"
#include "util/GuardedCopy.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createTocItemData(i_ZelDataTocItem** out)
{
    return createObject<ZelDataTocItem>(out);
}

ZelDataTocItem& ZelDataTocItem::operator=(const ZelDataTocItem& other)
{
    if (&other != this) state_ = other.state_;
    return *this;
}

/// An entry is always valid: its languages and titles were checked when they were set. Deliberate:
/// the flag has no effect; otherwise, a deep check could reject an entry.
ZelDataResult_tags ZelDataTocItem::isValid(bool /*deep*/) const
{
    return store(ZelData_Ok);
}

// Titles

ZelDataResult_tags ZelDataTocItem::clearText()
{
    state_.changeTexts().clear();
    return store(ZelData_Ok);
}

/// Deliberate: replacing a title returns a warning; an error would stop callers that let warnings
/// pass.
ZelDataResult_tags ZelDataTocItem::setTextForLanguage(const std::string& text,
                                                      const std::string& languageID)
{
    return setCharacters(text, languageID);
}

ZelDataResult_tags ZelDataTocItem::setCharacters(std::string_view text, std::string_view languageID)
{
    const auto checked = LanguageTexts::check(text, languageID);
    if (failed(checked)) return store(checked);
    return store(guarded([&] { return state_.changeTexts().set(text, languageID); }));
}

ZelDataResult_tags ZelDataTocItem::getTextForLanguage(std::string& text,
                                                      const std::string& languageID) const
{
    return store(guarded([&] { return state_.texts().get(text, languageID); }));
}

ZelDataResult_tags ZelDataTocItem::removeTextForLanguage(const std::string& languageID)
{
    return store(guarded([&] { return state_.changeTexts().remove(languageID); }));
}

ZelDataResult_tags ZelDataTocItem::getLanguageIDs(std::vector<std::string>& ids) const
{
    return store(guarded([&] { return state_.texts().getLanguageIDs(ids); }));
}

// Start and thumbnail

ZelDataResult_tags ZelDataTocItem::setStart(long long start)
{
    if (start < 0) return store(ZelData_InvalidArgument);
    state_.startTime = start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::getStart(long long& start) const
{
    start = state_.startTime;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::setImageFile(const std::string& name)
{
    return store(guarded([&] {
        state_.setImageFile(name);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataTocItem::getImageFile(std::string& name) const
{
    return store(guardedCopy(name, state_.imageFile()));
}

ZelDataResult_tags ZelDataTocItem::setImageIndex(unsigned long index)
{
    state_.imageIndex = index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::getImageIndex(unsigned long& index) const
{
    index = state_.imageIndex;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::setImageOffset(unsigned long long offset)
{
    state_.imageOffset = offset;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::getImageOffset(unsigned long long& offset) const
{
    offset = state_.imageOffset;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
