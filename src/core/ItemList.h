/// @file
/// The owned items of a collection.

#ifndef ZELINTERCHANGEDATA_CORE_ITEMLIST_H
#define ZELINTERCHANGEDATA_CORE_ITEMLIST_H

#include "core/Factory.h"
#include "core/ItemCopies.h"
#include "core/ItemOrder.h"

#include <memory>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Owns items in their stored order. @p create is always a factory that takes an out-pointer.
template <class Item>
class ItemList {
public:
    using Items = std::vector<std::unique_ptr<Item>>;

    unsigned long count() const noexcept { return items_.size(); }
    /// All items, for walking over them.
    const Items& all() const noexcept { return items_; }

    void clear() noexcept { items_.clear(); }
    void append(std::unique_ptr<Item> item) { items_.push_back(std::move(item)); }
    void order() { orderByStart(items_); }

    /// #ZelData_InvalidArgument when there is no item at @p index.
    ZelDataResult_tags removeAt(unsigned long index)
    {
        if (index >= count()) return ZelData_InvalidArgument;
        items_.erase(items_.begin() + static_cast<typename Items::difference_type>(index));
        return ZelData_Ok;
    }

    /// Hands out a copy of the item at @p index, owned by the caller. #ZelData_InvalidArgument when
    /// @p out cannot take one or there is no such item.
    template <class Create>
    ZelDataResult_tags copyOut(Item** out, unsigned long index, Create&& create) const
    {
        if (!isEmptyOutPointer(out) || index >= count()) return ZelData_InvalidArgument;
        auto copy = copyItem(*items_[index], create);
        *out = copy.item.release();
        return copy.code;
    }

    /// Replaces @p out with copies of all items, owned by the caller; empty when one fails.
    template <class Create>
    ZelDataResult_tags copyOutAll(std::vector<Item*>& out, Create&& create) const
    {
        out.clear();
        Items copies;
        copies.reserve(items_.size());
        for (const auto& item : items_) {
            auto copy = copyItem(*item, create);
            if (!copy.item) return copy.code;
            copies.push_back(std::move(copy.item));
        }
        out.reserve(copies.size());
        for (auto& copy : copies)
            out.push_back(copy.release());
        return ZelData_Ok;
    }

private:
    Items items_;
};

} // namespace ZelInterchangeData

#endif
