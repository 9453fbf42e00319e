/// @file
/// Copies of items, and the items that a collection returns.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMCOPIES_H
#define ZELINTERCHANGEDATA_SETS_ITEMCOPIES_H

#include "sets/Factory.h"
#include "util/Ending.h"

#include <memory>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A copy of an item, or null and the code of the failure.
template <class Item>
struct ItemCopy {
    std::unique_ptr<Item> item;
    ZelDataResult_tags code;
};

/// Copies @p source into an item that @p create, a factory, stores in its out-pointer.
template <class Item, class Create>
ItemCopy<Item> copyItem(const Item& source, Create&& create)
{
    auto [copy, created] = receive<Item>(std::forward<Create>(create));
    if (failed(created)) return {nullptr, created};
    if (copy == nullptr) return {nullptr, ZelData_InternalError};
    if (failed(copy->copyFrom(source))) return {nullptr, copy->getLastError()};
    return {std::move(copy), ZelData_Ok};
}

/// The items that a collection stores in a vector; deletes them at the end, even those stored
/// before the collection failed.
template <class Item>
class ReceivedItems {
public:
    ReceivedItems() = default;
    ReceivedItems(const ReceivedItems&) = delete;
    ReceivedItems& operator=(const ReceivedItems&) = delete;

    ~ReceivedItems()
    {
        for (Item* item : items_)
            delete item;
    }

    /// For the collection to fill.
    std::vector<Item*>& vector() noexcept { return items_; }

    /// The items, still owned by this object.
    const std::vector<Item*>& items() const noexcept { return items_; }

    /// Adds each item to @p target through @p add. Ends with the target's last error if that fails,
    /// and with #ZelData_InternalError at a null pointer.
    template <class Collection>
    Ending addTo(Collection& target, ZelDataResult_tags (Collection::*add)(const Item&)) const
    {
        for (const Item* item : items_) {
            if (item == nullptr) return ZelData_InternalError;
            if (failed((target.*add)(*item))) return target.getLastError();
        }
        return {};
    }

private:
    std::vector<Item*> items_;
};

} // namespace ZelInterchangeData

#endif
