/// @file
/// The items of a collection.

#ifndef ZELINTERCHANGEDATA_CORE_ITEMLIST_H
#define ZELINTERCHANGEDATA_CORE_ITEMLIST_H

#include "core/Factory.h"
#include "core/ItemCopies.h"
#include "core/ItemOrder.h"
#include "util/CopyOnWrite.h"
#include "util/ExactType.h"
#include "util/Prefetch.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// The items of a collection in their stored order.
///
/// An item of our own is kept as its bare state, and a copy of the list shares all states with it
/// until one of the two changes. A collection that makes other items, as a derived one may, has
/// them kept as they are; such a list is not copied.
///
/// @tparam Item the interface of the items.
/// @tparam Own our implementation of it. It has a `State` with a `start()`, is made from one, and
///         gives it with `state()`. What is worth knowing of all states together is the state's
///         `Summary`, to which each is added in stored order.
template <class Item, class Own>
class ItemList {
public:
    using State = typename Own::State;
    using Summary = typename State::Summary;

    ItemList() = default;
    ItemList(const ItemList&) = default;
    ~ItemList() = default;
    /// The items and what is known of them come together: when memory runs out, neither does.
    ItemList& operator=(ItemList other) noexcept
    {
        slots_ = std::move(other.slots_);
        summary_ = std::move(other.summary_);
        return *this;
    }

    unsigned long count() const noexcept { return slots_.read().size(); }

    void clear()
    {
        slots_.reset();
        summary_ = Summary();
    }

    /// Whether the item at @p index is one of our own.
    bool isOwn(unsigned long index) const noexcept { return !slots_.read()[index].foreign; }
    /// The state of the item at @p index, which is one of our own.
    const State& state(unsigned long index) const noexcept { return slots_.read()[index].state; }

    /// The state of the item at @p index, which is one of our own, to be changed.
    State& changeState(unsigned long index)
    {
        summary_.reset();
        return slots_.write()[index].state;
    }

    /// What is known of all items, which are our own.
    const Summary& summary()
    {
        if (!summary_) {
            Summary made;
            for (const Slot& slot : slots_.read())
                made.add(slot.state);
            summary_ = std::move(made);
        }
        return *summary_;
    }

    void append(std::unique_ptr<Item> item)
    {
        auto known = std::exchange(summary_, std::nullopt); // comes back when the item is in
        Slot slot;
        if (const auto* own = exactly<Own>(std::as_const(*item))) {
            slot.state = own->state();
            if (known) known->add(slot.state);
        } else {
            slot.foreign = std::move(item);
        }
        slots_.write().push_back(std::move(slot));
        summary_ = std::move(known);
    }

    /// What @p use, a callable for an item, gives for the item at @p index.
    template <class Use>
    auto use(unsigned long index, Use&& use) const
    {
        const Slot& slot = slots_.read()[index];
        if (slot.foreign) return use(std::as_const(*slot.foreign));
        const Own item(slot.state);
        return use(static_cast<const Item&>(item));
    }

    /// What @p change, a callable for an item that it may change, gives for the item at @p index.
    template <class Change>
    auto change(unsigned long index, Change&& change)
    {
        summary_.reset();
        Slot& slot = slots_.write()[index];
        if (slot.foreign) return change(*slot.foreign);
        Borrowed borrowed(slot.state);
        return change(static_cast<Item&>(borrowed.item));
    }

    std::vector<long long> starts() const
    {
        std::vector<long long> starts;
        starts.reserve(count());
        const Slots& slots = slots_.read();
        std::transform(slots.begin(), slots.end(), std::back_inserter(starts),
                       [](const Slot& slot) { return slot.start(); });
        return starts;
    }

    /// Calls @p visit with the state of each item, which is one of our own, in the order that
    /// order() would give them.
    template <class Visit>
    void visitOrdered(Visit&& visit) const
    {
        const auto places = exchangeOrder(starts());
        if (places.empty()) {
            for (const Slot& slot : slots_.read())
                visit(slot.state);
            return;
        }
        // The items lie anywhere in memory: what a later visit needs is called for in time.
        constexpr std::size_t ahead = 8;
        const auto& slots = slots_.read();
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i + 2 * ahead < places.size())
                prefetch(&slots[places[i + 2 * ahead]], sizeof(Slot));
            if (i + ahead < places.size()) slots[places[i + ahead]].state.prefetch();
            visit(slots[places[i]].state);
        }
    }

    /// Orders the items by start, as exchangeOrder() says.
    void order()
    {
        const auto places = exchangeOrder(starts());
        if (places.empty()) return;
        Slots ordered;
        ordered.reserve(places.size());
        const Slots& slots = slots_.read();
        std::transform(places.begin(), places.end(), std::back_inserter(ordered),
                       [&](std::size_t place) { return slots[place]; });
        summary_.reset();
        slots_ = CopyOnWrite<Slots>(std::move(ordered));
    }

    /// #ZelData_InvalidArgument when there is no item at @p index.
    ZelDataResult_tags removeAt(unsigned long index)
    {
        if (index >= count()) return ZelData_InvalidArgument;
        summary_.reset();
        Slots& slots = slots_.write();
        slots.erase(slots.begin() + static_cast<typename Slots::difference_type>(index));
        return ZelData_Ok;
    }

    /// Hands out a copy of the item at @p index, made by @p create, a factory, and owned by the
    /// caller. #ZelData_InvalidArgument when @p out cannot take one or there is no such item.
    template <class Create>
    ZelDataResult_tags copyOut(Item** out, unsigned long index, Create&& create) const
    {
        if (!isEmptyOutPointer(out) || index >= count()) return ZelData_InvalidArgument;
        auto copy = use(index, [&](const Item& item) { return copyItem(item, create); });
        *out = copy.item.release();
        return copy.code;
    }

    /// Replaces @p out with copies of all items, made by @p create and owned by the caller; empty
    /// when one fails.
    template <class Create>
    ZelDataResult_tags copyOutAll(std::vector<Item*>& out, Create&& create) const
    {
        out.clear();
        std::vector<std::unique_ptr<Item>> copies;
        copies.reserve(count());
        for (unsigned long i = 0; i < count(); ++i) {
            auto copy = use(i, [&](const Item& item) { return copyItem(item, create); });
            if (!copy.item) return copy.code;
            copies.push_back(std::move(copy.item));
        }
        out.reserve(copies.size());
        std::transform(copies.begin(), copies.end(), std::back_inserter(out),
                       [](std::unique_ptr<Item>& copy) { return copy.release(); });
        return ZelData_Ok;
    }

private:
    /// One item: our own as its state, any other as it is.
    struct Slot {
        long long start() const
        {
            if (!foreign) return state.start();
            long long start = 0;
            // Meant to be dropped: an item that cannot tell its start is ordered as one at 0.
            static_cast<void>(foreign->getStart(start));
            return start;
        }

        State state;
        std::shared_ptr<Item> foreign;
    };
    using Slots = std::vector<Slot>;

    /// An item with a state that is given back, changed, in the end.
    struct Borrowed {
        explicit Borrowed(State& from) : home(from), item(std::move(from)) {}
        Borrowed(const Borrowed&) = delete;
        Borrowed& operator=(const Borrowed&) = delete;
        ~Borrowed() { home = item.state(); }

        State& home;
        Own item;
    };

    CopyOnWrite<Slots> slots_;
    std::optional<Summary> summary_ = Summary(); // none while it is not known
};

} // namespace ZelInterchangeData

#endif
