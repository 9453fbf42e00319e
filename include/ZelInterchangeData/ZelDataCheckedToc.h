/// @file
/// The checked operations of a table of contents.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDTOC_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDTOC_H

#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a table of contents that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataToc for what an operation does.
template <class Object>
class ZelDataCheckedToc : public ZelDataCheckedLanguage<ZelDataCheckedToc<Object>, Object> {
    using Base = ZelDataCheckedLanguage<ZelDataCheckedToc<Object>, Object>;
    using Interface = i_ZelDataToc;

public:
    using Base::Base;
    using Base::copyFrom;

    /// @name Operations of i_ZelDataToc
    /// @{

    /// See i_ZelDataToc::isValid().
    ZelDataCheckedToc isValid(bool deep) const
    {
        return this->run("isValid", &Interface::isValid, deep);
    }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood(bool deep) const
    {
        return this->isGoodCode("isValid", this->object().isValid(deep));
    }
    /// See i_ZelDataToc::makeTocConsistent().
    ZelDataCheckedToc makeTocConsistent() const
    {
        return this->run("makeTocConsistent", &Interface::makeTocConsistent);
    }
    /// See i_ZelDataToc::setFrameRate().
    ZelDataCheckedToc setFrameRate(unsigned long rate) const
    {
        return this->run("setFrameRate", &Interface::setFrameRate, rate);
    }
    /// See i_ZelDataToc::getFrameRate().
    unsigned long getFrameRate() const
    {
        return this->get("getFrameRate", &Interface::getFrameRate);
    }
    /// See i_ZelDataToc::setImageFile().
    ZelDataCheckedToc setImageFile(const std::string& name) const
    {
        return this->run("setImageFile", &Interface::setImageFile, name);
    }
    /// See i_ZelDataToc::getImageFile().
    std::string getImageFile() const { return this->get("getImageFile", &Interface::getImageFile); }
    /// See i_ZelDataToc::clearTocItems().
    ZelDataCheckedToc clearTocItems() const
    {
        return this->run("clearTocItems", &Interface::clearTocItems);
    }
    /// See i_ZelDataToc::addTocItem().
    ZelDataCheckedToc addTocItem(const i_ZelDataTocItem& item) const
    {
        return this->run("addTocItem", &Interface::addTocItem, item);
    }
    /// See i_ZelDataToc::createTocItem().
    std::unique_ptr<i_ZelDataTocItem> createTocItem() const
    {
        return this->make("createTocItem", &Interface::createTocItem);
    }
    /// See i_ZelDataToc::removeTocItemAt().
    ZelDataCheckedToc removeTocItemAt(unsigned long index) const
    {
        return this->run("removeTocItemAt", &Interface::removeTocItemAt, index);
    }
    /// See i_ZelDataToc::removeTocItemsForLanguage().
    ZelDataCheckedToc removeTocItemsForLanguage(const std::string& languageID) const
    {
        return this->run("removeTocItemsForLanguage", &Interface::removeTocItemsForLanguage,
                         languageID);
    }
    /// See i_ZelDataToc::getTocItemCount(), which is not const. A const view therefore
    /// calls getTocItems(), which copies all items: its time is in proportion to their number. If
    /// you need the items, too, count those.
    unsigned long getTocItemCount() const
    {
        if constexpr (std::is_const_v<Object>)
            return static_cast<unsigned long>(getTocItems().size());
        else
            return this->get("getTocItemCount", &Interface::getTocItemCount);
    }
    /// See i_ZelDataToc::getTocItemAt().
    std::unique_ptr<i_ZelDataTocItem> getTocItemAt(unsigned long index) const
    {
        return this->make("getTocItemAt", &Interface::getTocItemAt, index);
    }
    /// See i_ZelDataToc::getTocItems().
    std::vector<std::unique_ptr<i_ZelDataTocItem>> getTocItems() const
    {
        return this->makeAll("getTocItems", &Interface::getTocItems);
    }
    /// See i_ZelDataToc::getTocItemsForLanguage().
    std::vector<std::unique_ptr<i_ZelDataTocItem>>
    getTocItemsForLanguage(const std::string& languageID) const
    {
        return this->makeAll("getTocItemsForLanguage", &Interface::getTocItemsForLanguage,
                             languageID);
    }
    /// See i_ZelDataToc::copyFrom().
    ZelDataCheckedToc copyFrom(const i_ZelDataToc& source) const
    {
        return this->done("copyFrom", this->object().copyFrom(source), source);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedToc, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "isValid") return reasonOfProblem<i_ZelDataToc>(this->object(), call);
        if (call.is("getTocItemAt", ZelData_InvalidArgument) ||
            call.is("removeTocItemAt", ZelData_InvalidArgument))
            return asking(this->object(), [&] { return reasonOfIndex(call, getTocItemCount()); });
        const std::string known = reasonOfFrameRate(call);
        return known.empty() ? this->reasonOfList(call) : known;
    }
};

/// The checked operations of @p object.
inline ZelDataCheckedToc<i_ZelDataToc> checked(i_ZelDataToc& object) noexcept
{
    return ZelDataCheckedToc<i_ZelDataToc>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedToc<const i_ZelDataToc> checked(const i_ZelDataToc& object) noexcept
{
    return ZelDataCheckedToc<const i_ZelDataToc>(object);
}

} // namespace ZelInterchangeData

#endif
