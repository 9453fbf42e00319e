/// @file
/// The order of timed items.

#ifndef ZELINTERCHANGEDATA_SETS_ITEMORDER_H
#define ZELINTERCHANGEDATA_SETS_ITEMORDER_H

#include <cstddef>
#include <vector>

namespace ZelInterchangeData {

/// For each start the smallest of those after it; the largest number where none follows.
std::vector<long long> earliestLaterStarts(std::vector<long long> starts);

/// For each item, the place of the first later one that starts before the item's bound; the number
/// of items when there is none. Takes n log n steps.
std::vector<std::size_t> firstLaterStartsBelow(const std::vector<long long>& bounds,
                                               const std::vector<long long>& starts);

/// The order that an exchange sort gives items with @p starts: the place of the item that comes
/// first, then of the second, and so on. Empty when the items are in order already.
///
/// The exchange sort compares each item with every later one and exchanges the two when the later
/// start is smaller. Deliberate: this sort, and not a stable one; otherwise items with equal starts
/// that an earlier start jumped over would keep their order in the packet instead of changing
/// places. This function finds the same order in n log n steps.
std::vector<std::size_t> exchangeOrder(const std::vector<long long>& starts);

} // namespace ZelInterchangeData

#endif
