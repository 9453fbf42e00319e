/// @file
/// The checked operations of an entry.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDTOCITEM_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDTOCITEM_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include <string>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of an entry that throws if an operation fails.
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

    /// See i_ZelDataTocItem::isValid().
    ZelDataCheckedTocItem isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool deep) const
    {
        return this->isGoodCode("isValid", this->object().isValid(deep));
    }
    /// See i_ZelDataTocItem::clearText().
    ZelDataCheckedTocItem clearText() const
    {
        return this->run("clearText", &Interface::clearText);
    }
    /// See i_ZelDataTocItem::setTextForLanguage().
    ZelDataCheckedTocItem setTextForLanguage(const std::string& text,
                                             const std::string& languageID) const
    {
        return this->run("setTextForLanguage", &Interface::setTextForLanguage, text, languageID);
    }
    /// See i_ZelDataTocItem::setStart().
    ZelDataCheckedTocItem setStart(long long start) const
    {
        return this->run("setStart", &Interface::setStart, start);
    }
    /// See i_ZelDataTocItem::setImageFile().
    ZelDataCheckedTocItem setImageFile(const std::string& name) const
    {
        return this->run("setImageFile", &Interface::setImageFile, name);
    }
    /// See i_ZelDataTocItem::setImageIndex().
    ZelDataCheckedTocItem setImageIndex(unsigned long index) const
    {
        return this->run("setImageIndex", &Interface::setImageIndex, index);
    }
    /// See i_ZelDataTocItem::setImageOffset().
    ZelDataCheckedTocItem setImageOffset(unsigned long long offset) const
    {
        return this->run("setImageOffset", &Interface::setImageOffset, offset);
    }
    /// See i_ZelDataTocItem::removeTextForLanguage().
    ZelDataCheckedTocItem removeTextForLanguage(const std::string& languageID) const
    {
        return this->run("removeTextForLanguage", &Interface::removeTextForLanguage, languageID);
    }
    /// See i_ZelDataTocItem::getLanguageIDs().
    std::vector<std::string> getLanguageIDs() const
    {
        return this->get("getLanguageIDs", &Interface::getLanguageIDs);
    }
    /// See i_ZelDataTocItem::getTextForLanguage().
    std::string getTextForLanguage(const std::string& languageID) const
    {
        std::string text;
        this->require("getTextForLanguage", this->object().getTextForLanguage(text, languageID),
                      languageID);
        return text;
    }
    /// See i_ZelDataTocItem::getStart().
    long long getStart() const { return this->get("getStart", &Interface::getStart); }
    /// See i_ZelDataTocItem::getImageFile().
    std::string getImageFile() const { return this->get("getImageFile", &Interface::getImageFile); }
    /// See i_ZelDataTocItem::getImageIndex().
    unsigned long getImageIndex() const
    {
        return this->get("getImageIndex", &Interface::getImageIndex);
    }
    /// See i_ZelDataTocItem::getImageOffset().
    unsigned long long getImageOffset() const
    {
        return this->get("getImageOffset", &Interface::getImageOffset);
    }
    /// See i_ZelDataTocItem::copyFrom().
    ZelDataCheckedTocItem copyFrom(const i_ZelDataTocItem& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source), source);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedTocItem, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "copyFrom") return reasonOfCopy(this->object(), call);
        const std::string known = reasonOfTime(*this, call);
        return known.empty() ? reasonOfText(*this, call) : known;
    }
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
