/// @file
/// Copies of items, and of all that a collection hands out.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMCOPIES_H
#define ZELINTERCHANGEDATA_SETS_ITEMCOPIES_H

#include "sets/Factory.h"
#include "util/Ending.h"

#include <memory>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// A copy of an item; when it is null, the code that making it ended with.
template <class Item>
struct ItemCopy {
    std::unique_ptr<Item> item;
    ZelDataResult_tags code = ZelData_Ok;
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

/// The items that a collection hands out through its vector. Deletes them at the end, including
/// those that a collection handed out before it failed.
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

    /// Adds each item to @p target through @p add. Ends with the target's last error when that
    /// fails, and with #ZelData_InternalError at a null pointer.
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
