/// @file
/// Items and collections of each kind from plain values, and back. A kind (`CaptionKind`, `TocKind`,
/// `ScreenTextKind`) gives the operations of one collection the names that all of them share here.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_ITEMS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_ITEMS_H

#include "support/Checks.h"

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A function that makes an item for a collection.
template <class Item>
using Maker = std::function<ZelDataResult_tags(Item**)>;

/// A new item that holds @p values.
template <class Kind>
std::unique_ptr<typename Kind::Item> newItem(const typename Kind::Values& values)
{
    auto item = make(Kind::makeItem);
    fill(*item, values);
    return item;
}

/// Adds items of @p values to @p collection, in order.
template <class Kind>
void addItems(typename Kind::Data& collection, const std::vector<typename Kind::Values>& values)
{
    for (const auto& item : values)
        EXPECT_EQ(ZelData_Ok, (collection.*Kind::add)(*newItem<Kind>(item)));
}

/// A new collection with items of @p values.
template <class Kind>
std::unique_ptr<typename Kind::Data>
newCollection(const std::vector<typename Kind::Values>& values = {})
{
    auto collection = make(Kind::makeData);
    addItems<Kind>(*collection, values);
    return collection;
}

/// What the items of @p collection hold, in stored order.
template <class Kind>
std::vector<typename Kind::Values> valuesOf(const typename Kind::Data& collection)
{
    std::vector<typename Kind::Item*> items;
    EXPECT_EQ(ZelData_Ok, (collection.*Kind::all)(items));
    std::vector<typename Kind::Values> values;
    for (typename Kind::Item* item : items) {
        const std::unique_ptr<typename Kind::Item> owned(item);
        values.push_back(contentsOf(*owned));
    }
    return values;
}

/// A collection of failing items that a test can reach.
template <class Kind, class FailingItem>
class CollectionOfFailing : public Kind::Made {
public:
    CollectionOfFailing()
    {
        this->maker = [this](typename Kind::Item** out) {
            *out = last_ = new FailingItem;
            return ZelData_Ok;
        };
    }
    /// Adds an item of @p values and returns the stored one.
    FailingItem& added(const typename Kind::Values& values)
    {
        if (failed((this->*Kind::add)(*newItem<Kind>(values))))
            throw std::runtime_error("the item was not added");
        return *last_;
    }

private:
    FailingItem* last_ = nullptr;
};

/// An item in which only a strict check finds something.
template <class Item>
class StrictlyChecked : public Item {
public:
    ZelDataResult_tags isValid(bool strict) const override
    {
        this->setLastError(strict ? ZelData_WarnItemGuidelines : ZelData_Ok);
        return this->getLastError();
    }
};

/// The texts of @p item by language.
template <class Item>
std::map<std::string, std::string> textsOf(const Item& item)
{
    std::map<std::string, std::string> texts;
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, item.getLanguageIDs(ids));
    for (const std::string& id : ids)
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(texts[id], id));
    return texts;
}

/// The languages that @p set lists, in their order.
inline std::vector<std::string> languagesOf(const i_ZelDataLanguage& set)
{
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, set.getOrderedLanguageIDs(ids));
    return ids;
}

template <class Collection>
unsigned long frameRateOf(const Collection& collection)
{
    unsigned long rate = 0;
    EXPECT_EQ(ZelData_Ok, collection.getFrameRate(rate));
    return rate;
}

/// Names the tests of a typed suite after their kinds.
struct KindName {
    template <class Kind>
    static std::string GetName(int /*index*/)
    {
        return Kind::name;
    }
};

} // namespace ZelInterchangeData

#endif
