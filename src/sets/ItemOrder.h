/// @file
/// The order of timed items.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMORDER_H
#define ZELINTERCHANGEDATA_SETS_ITEMORDER_H

#include <cstddef>
#include <vector>

namespace ZelInterchangeData {

/// For each start, the smallest one after it, or the largest number if none follows.
std::vector<long long> earliestLaterStarts(std::vector<long long> starts);

/// For each item, the place of the first later one that starts before the item's bound; the number
/// of items if there is none. Takes n log n steps.
std::vector<std::size_t> firstLaterStartsBelow(const std::vector<long long>& bounds,
                                               const std::vector<long long>& starts);

/// The order that an exchange sort gives items with @p starts: the place of the item that comes
/// first, then of the second, and so on. Empty if the items are in order already.
///
/// The exchange sort compares each item with every later one and exchanges the two if the later
/// start is smaller. Deliberate: this sort, and not a stable one; otherwise, items with equal
/// starts would keep their order in the packet when a smaller start passes them. This function
/// finds the same order in n log n steps. Within groups of equal starts it also moves items, at most
/// √(2n) for each on average.
std::vector<std::size_t> exchangeOrder(const std::vector<long long>& starts);

} // namespace ZelInterchangeData

#endif
