/// @file
/// The order of timed items.

#ifndef ZELINTERCHANGEDATA_CORE_ITEMORDER_H
#define ZELINTERCHANGEDATA_CORE_ITEMORDER_H

#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// The starts of @p items, a vector of pointers to items, in order.
template <class Items>
std::vector<long long> startsOf(const Items& items)
{
    std::vector<long long> starts(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        static_cast<void>(
            items[i]->getStart(starts[i])); // an item of our own always knows its start
    }
    return starts;
}

/// For each item the smallest start of those after it; the largest number where none follows.
template <class Items>
std::vector<long long> earliestLaterStarts(const Items& items)
{
    std::vector<long long> earliest = startsOf(items);
    long long smallest = std::numeric_limits<long long>::max();
    for (auto start = earliest.rbegin(); start != earliest.rend(); ++start) {
        const long long smallestWithThis = *start < smallest ? *start : smallest;
        *start = std::exchange(smallest, smallestWithThis);
    }
    return earliest;
}

/// Orders @p items by start with an exchange sort. It is meant to be this sort and no stable one:
/// another one would put items with equal starts in another order, and so change the packet.
template <class Items>
void orderByStart(Items& items)
{
    std::vector<long long> starts = startsOf(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        for (std::size_t j = i + 1; j < items.size(); ++j) {
            if (starts[j] < starts[i]) {
                std::swap(starts[i], starts[j]);
                std::swap(items[i], items[j]);
            }
        }
    }
}

} // namespace ZelInterchangeData

#endif
