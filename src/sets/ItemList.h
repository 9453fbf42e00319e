/// @file
/// The items of a collection.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMLIST_H
#define ZELINTERCHANGEDATA_SETS_ITEMLIST_H

#include "sets/Factory.h"
#include "sets/ItemCopies.h"
#include "sets/ItemOrder.h"
#include "util/CopyOnWrite.h"
#include "util/Ending.h"
#include "util/ExactType.h"
#include "util/FrontVector.h"
#include "util/Prefetch.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// The items of a collection in their stored order.
///
/// An item of our own is stored as its bare state, and a copy of the list shares all states with it
/// until one of the two changes. Other items, which a derived collection may create, are stored as
/// they are, and copies of the list share them.
///
/// The class of such an item is a caller's, and any of its operations may change its collection. An
/// operation of the list that calls one therefore holds on to the items that it works on; a change
/// creates new ones.
///
/// @tparam Item the interface of the items.
/// @tparam Own our implementation of it. It has a `State` with a `start()`, can be constructed from
///         one, and returns it from `state()`. The state's `Summary` summarises all states, added
///         in stored order.
template <class Item, class Own>
class ItemList {
public:
    using State = typename Own::State;
    using Summary = typename State::Summary;

    ItemList() = default;
    ItemList(const ItemList&) = default;
    ~ItemList() = default;
    /// Replaces items and summary together: if memory runs out, neither.
    ItemList& operator=(ItemList other) noexcept
    {
        slots_ = std::move(other.slots_);
        summary_ = std::move(other.summary_);
        isSummaryKnown_ = other.isSummaryKnown_;
        return *this;
    }

    unsigned long count() const noexcept
    {
        return static_cast<unsigned long>(slots_.read().size());
    }

    void clear()
    {
        slots_.reset();
        summary_ = Summary();
        isSummaryKnown_ = true;
    }

    /// The state of the item at @p index, which is one of our own.
    const State& state(unsigned long index) const noexcept { return slots_.read()[index].state; }

    /// The same, for changing it.
    State& changeState(unsigned long index)
    {
        isSummaryKnown_ = false;
        return slots_.write()[index].state;
    }

    /// Whether all items are our own.
    bool areOwn() const
    {
        const Slots& slots = slots_.read();
        return std::none_of(slots.begin(), slots.end(),
                            [](const Slot& slot) { return slot.foreign != nullptr; });
    }

    /// The summary of all items, which are our own.
    const Summary& summary() const
    {
        if (!isSummaryKnown_) {
            summary_ = Summary();
            for (const Slot& slot : slots_.read())
                summary_.add(slot.state);
            isSummaryKnown_ = true;
        }
        return summary_;
    }

    /// Appends an item of our own that has @p state.
    void append(const State& state)
    {
        const bool wasKnown = std::exchange(isSummaryKnown_, false); // until the item is in
        if (wasKnown) summary_.add(state);
        slots_.write().emplace_back(state);
        isSummaryKnown_ = wasKnown;
    }

    void append(std::unique_ptr<Item> item)
    {
        if (const auto* own = exactly<Own>(std::as_const(*item))) {
            append(own->state());
        } else {
            slots_.write().emplace_back(std::move(item));
        }
    }

    /// Appends a copy of @p item, as copyItem() and append() would if the factory made one of our own,
    /// but without making one. Calls @p announce with its state first.
    template <class Announce>
    ZelDataResult_tags appendCopyOf(const Own& item, Announce&& announce)
    {
        const auto copied = item.checkCopy();
        if (failed(copied)) return copied;
        announce(item.state());
        append(item.state());
        return ZelData_Ok;
    }

    /// Calls @p changeState with the state of each item that is one of our own, and @p changeItem
    /// with each other item, until a call ends. #ZelData_InternalError if an item changed this
    /// list.
    template <class ChangeState, class ChangeItem>
    Ending changeAll(ChangeState&& changeState, ChangeItem&& changeItem)
    {
        return rework([&](Slots& slots) { return changeEach(slots, changeState, changeItem); });
    }

    /// The same in the order that order() would put them in.
    template <class ChangeState, class ChangeItem>
    Ending orderAndChangeAll(ChangeState&& changeState, ChangeItem&& changeItem)
    {
        return rework([&](Slots& slots) {
            orderByStart(slots);
            return changeEach(slots, changeState, changeItem);
        });
    }

    /// Calls @p check, which may end the loop, with each item and the earliest start after it.
    template <class Check>
    Ending checkAll(Check&& check) const
    {
        const auto held = slots_;
        const auto earliestLater = earliestLaterStarts(startsOf(held.read()));
        for (std::size_t i = 0; i < earliestLater.size(); ++i) {
            const Ending ending = use(
                held.read()[i], [&](const Item& item) { return check(item, earliestLater[i]); });
            if (ending) return ending;
        }
        return {};
    }

    /// Calls @p visit with the state of each item, which is one of our own, in the order that
    /// order() would put them in.
    template <class Visit>
    void visitOrdered(Visit&& visit) const
    {
        const Slots& slots = slots_.read();
        const auto places = exchangeOrder(startsOf(slots));
        if (places.empty()) {
            for (const Slot& slot : slots)
                visit(slot.state);
            return;
        }
        // The items are scattered in memory, so this prefetches what a later visit needs.
        constexpr std::size_t ahead = 8;
        const Slot* const first = &slots[0];
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i + 2 * ahead < places.size())
                prefetch(first + places[i + 2 * ahead], sizeof(Slot));
            if (i + ahead < places.size()) first[places[i + ahead]].state.prefetch();
            visit(first[places[i]].state);
        }
    }

    /// Orders the items by start, as exchangeOrder() does. #ZelData_InternalError if an item
    /// changed this list.
    Ending order()
    {
        return rework([](Slots& slots) -> Ending {
            orderByStart(slots);
            return {};
        });
    }

    /// #ZelData_InvalidArgument if there is no item at @p index.
    ZelDataResult_tags removeAt(unsigned long index)
    {
        if (index >= count()) return ZelData_InvalidArgument;
        isSummaryKnown_ = false;
        slots_.write().erase(index);
        return ZelData_Ok;
    }

    /// Stores in @p out a copy of the item at @p index, which the factory @p create makes and the
    /// caller owns. #ZelData_InvalidArgument if @p out cannot accept one or there is no such item.
    template <class Create>
    ZelDataResult_tags copyOut(Item** out, unsigned long index, Create&& create) const
    {
        if (!isEmptyOutPointer(out) || index >= count()) return ZelData_InvalidArgument;
        const auto held = slots_;
        auto copy =
            use(held.read()[index], [&](const Item& item) { return copyItem(item, create); });
        *out = copy.item.release();
        return copy.code;
    }

    /// Replaces @p out with copies of all items, which @p create makes and the caller owns; empties
    /// it if one fails.
    template <class Create>
    ZelDataResult_tags copyOutAll(std::vector<Item*>& out, Create&& create) const
    {
        out.clear();
        const auto held = slots_;
        std::vector<std::unique_ptr<Item>> copies;
        copies.reserve(held.read().size());
        for (const Slot& slot : held.read()) {
            auto copy = use(slot, [&](const Item& item) { return copyItem(item, create); });
            if (!copy.item) return copy.code;
            copies.push_back(std::move(copy.item));
        }
        out.reserve(copies.size());
        std::transform(copies.begin(), copies.end(), std::back_inserter(out),
                       [](std::unique_ptr<Item>& copy) { return copy.release(); });
        return ZelData_Ok;
    }

private:
    /// One item: the state of our own, or any other as it is.
    struct Slot {
        Slot() = default;
        explicit Slot(const State& own) : state(own) {}
        explicit Slot(std::unique_ptr<Item> item) : foreign(std::move(item)) {}

        long long start() const
        {
            if (!foreign) return state.start();
            long long start = 0;
            // Deliberate: ignores a failure; otherwise an item that cannot return its start would
            // stop the operation instead of counting as one that starts at 0.
            static_cast<void>(foreign->getStart(start));
            return start;
        }

        State state;
        std::shared_ptr<Item> foreign;
    };
    using Slots = FrontVector<Slot>;

    /// Applies @p change, which may end, to a copy of the slots and replaces the slots with it. If
    /// memory runs out before that, our own items are unchanged.
    template <class Change>
    Ending rework(Change&& change)
    {
        const auto before = slots_;
        Slots slots(before.read());
        const Ending ending = change(slots);
        if (&slots_.read() != &before.read()) return ZelData_InternalError;
        slots_ = CopyOnWrite<Slots>(std::move(slots));
        isSummaryKnown_ = false;
        return ending;
    }

    template <class ChangeState, class ChangeItem>
    static Ending changeEach(Slots& slots, ChangeState& changeState, ChangeItem& changeItem)
    {
        for (Slot& slot : slots) {
            const Ending ending =
                slot.foreign ? changeItem(*slot.foreign) : changeState(slot.state);
            if (ending) return ending;
        }
        return {};
    }

    static void orderByStart(Slots& slots)
    {
        const auto places = exchangeOrder(startsOf(slots));
        if (places.empty()) return;
        Slots ordered;
        ordered.reserve(places.size());
        for (const std::size_t place : places)
            ordered.emplace_back(std::move(slots[place]));
        slots = std::move(ordered);
    }

    /// Returns what @p use, a callable for an item, returns for the one in @p slot.
    template <class Use>
    static auto use(const Slot& slot, Use&& use)
    {
        if (slot.foreign) return use(std::as_const(*slot.foreign));
        const Own item(slot.state);
        return use(static_cast<const Item&>(item));
    }

    static std::vector<long long> startsOf(const Slots& slots)
    {
        std::vector<long long> starts;
        starts.reserve(slots.size());
        std::transform(slots.begin(), slots.end(), std::back_inserter(starts),
                       [](const Slot& slot) { return slot.start(); });
        return starts;
    }

    CopyOnWrite<Slots> slots_;
    mutable Summary summary_;
    mutable bool isSummaryKnown_ = true;
};

} // namespace ZelInterchangeData

#endif
