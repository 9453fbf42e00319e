/// @file
/// The checked operations of an entry.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDTOCITEM_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDTOCITEM_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A view of an entry that throws where an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataTocItem for what an operation does.
template <class Object>
class ZelDataCheckedTocItem : public ZelDataCheckedObject<ZelDataCheckedTocItem<Object>, Object> {
    using Base = ZelDataCheckedObject<ZelDataCheckedTocItem<Object>, Object>;
    using Interface = i_ZelDataTocItem;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataTocItem
    /// @{
    ZelDataCheckedTocItem isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    ZelDataCheckedTocItem clearText() const
    {
        return this->run("clearText", &Interface::clearText);
    }
    ZelDataCheckedTocItem setTextForLanguage(const std::string& text,
                                             const std::string& languageID) const
    {
        return this->run("setTextForLanguage", &Interface::setTextForLanguage, text, languageID);
    }
    ZelDataCheckedTocItem setStart(long long start) const
    {
        return this->run("setStart", &Interface::setStart, start);
    }
    ZelDataCheckedTocItem setImageFile(const std::string& name) const
    {
        return this->run("setImageFile", &Interface::setImageFile, name);
    }
    ZelDataCheckedTocItem setImageIndex(unsigned long index) const
    {
        return this->run("setImageIndex", &Interface::setImageIndex, index);
    }
    ZelDataCheckedTocItem setImageOffset(unsigned long long offset) const
    {
        return this->run("setImageOffset", &Interface::setImageOffset, offset);
    }
    ZelDataCheckedTocItem removeTextForLanguage(const std::string& languageID) const
    {
        return this->run("removeTextForLanguage", &Interface::removeTextForLanguage, languageID);
    }
    std::vector<std::string> getLanguageIDs() const
    {
        return this->get("getLanguageIDs", &Interface::getLanguageIDs);
    }
    std::string getTextForLanguage(const std::string& languageID) const
    {
        std::string text;
        this->require("getTextForLanguage", this->object().getTextForLanguage(text, languageID));
        return text;
    }
    long long getStart() const { return this->get("getStart", &Interface::getStart); }
    std::string getImageFile() const { return this->get("getImageFile", &Interface::getImageFile); }
    unsigned long getImageIndex() const
    {
        return this->get("getImageIndex", &Interface::getImageIndex);
    }
    unsigned long long getImageOffset() const
    {
        return this->get("getImageOffset", &Interface::getImageOffset);
    }
    ZelDataCheckedTocItem copyFrom(const i_ZelDataTocItem& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source));
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedTocItem<i_ZelDataTocItem> checked(i_ZelDataTocItem& object) noexcept
{
    return ZelDataCheckedTocItem<i_ZelDataTocItem>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedTocItem<const i_ZelDataTocItem>
checked(const i_ZelDataTocItem& object) noexcept
{
    return ZelDataCheckedTocItem<const i_ZelDataTocItem>(object);
}

} // namespace ZelInterchangeData

#endif
