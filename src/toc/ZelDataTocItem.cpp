#include "toc/ZelDataTocItem.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "core/Factory.h"
#include "util/GuardedCopy.h"

#include <utility>

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createTocItemData(i_ZelDataTocItem** out)
{
    return createObject<ZelDataTocItem>(out);
}

ZelDataTocItem& ZelDataTocItem::operator=(const ZelDataTocItem& other)
{
    if (&other == this) return *this;
    LanguageTexts texts(other.texts_);
    ImageReference image(other.image_);
    std::swap(texts_, texts);
    std::swap(image_, image);
    time_ = other.time_;
    return *this;
}

/// The flag is meant to change nothing: an entry has no parts, and a second answer would
/// tell callers that it has.
ZelDataResult_tags ZelDataTocItem::isValid(bool /*deep*/) const
{
    for (const auto& [languageID, text] : texts_.all()) {
        if (failed(LanguageTexts::check(text, languageID))) return store(ZelData_InvalidItem);
    }
    return store(ZelData_Ok);
}

// Titles

ZelDataResult_tags ZelDataTocItem::clearText()
{
    texts_.clear();
    return store(ZelData_Ok);
}

/// Replacing a title is meant to be a warning and no error: callers that look for errors go on.
ZelDataResult_tags ZelDataTocItem::setTextForLanguage(const std::string& text,
                                                      const std::string& languageID)
{
    return store(guarded([&] { return texts_.set(text, languageID); }));
}

ZelDataResult_tags ZelDataTocItem::getTextForLanguage(std::string& text,
                                                      const std::string& languageID) const
{
    return store(guarded([&] { return texts_.get(text, languageID); }));
}

ZelDataResult_tags ZelDataTocItem::removeTextForLanguage(const std::string& languageID)
{
    return store(texts_.remove(languageID));
}

ZelDataResult_tags ZelDataTocItem::getLanguageIDs(std::vector<std::string>& ids) const
{
    return store(guarded([&] { return texts_.getLanguageIDs(ids); }));
}

// Start and thumbnail

ZelDataResult_tags ZelDataTocItem::setStart(long long start)
{
    return store(time_.setStart(start) ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataTocItem::getStart(long long& start) const
{
    start = time_.start;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::setImageFile(const std::string& name)
{
    return store(guardedCopy(image_.file, name));
}

ZelDataResult_tags ZelDataTocItem::getImageFile(std::string& name) const
{
    return store(guardedCopy(name, image_.file));
}

ZelDataResult_tags ZelDataTocItem::setImageIndex(unsigned long index)
{
    image_.index = index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::getImageIndex(unsigned long& index) const
{
    index = image_.index;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::setImageOffset(unsigned long long offset)
{
    image_.offset = offset;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataTocItem::getImageOffset(unsigned long long& offset) const
{
    offset = image_.offset;
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
