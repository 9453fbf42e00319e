#include "sets/ItemOrder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <numeric>
#include <utility>

namespace ZelInterchangeData {

namespace {

using Places = std::vector<std::size_t>;

/// Counts at places, and the sum of all counts before a place (a Fenwick tree).
class PrefixCounts {
public:
    /// Prepares @p size places with counts of zero.
    void clear(std::size_t size) { sums_.assign(size, 0); }

    void add(std::size_t place)
    {
        for (std::size_t i = place + 1; i < sums_.size(); i += lowestBit(i)) {
            ++sums_[i];
        }
    }

    std::size_t before(std::size_t place) const
    {
        std::size_t sum = 0;
        for (std::size_t i = place; i > 0; i -= lowestBit(i)) {
            sum += sums_[i];
        }
        return sum;
    }

private:
    static constexpr std::size_t lowestBit(std::size_t i) noexcept { return i & (~i + 1); }

    Places sums_;
};

/// An item's start, relative to the smallest one, in the upper half of the bits, and its place in
/// the lower half.
using Packed = std::uint64_t;

constexpr unsigned placeBits = 32;
constexpr Packed greatestHalf = 0xFFFFFFFF;

/// Orders @p items by the byte at @p shift alone; those with equal bytes keep their order.
void orderByByte(std::vector<Packed>& items, std::vector<Packed>& scratch, unsigned shift)
{
    std::array<std::size_t, 256> next{}; // where the next item with each byte goes
    for (const Packed item : items) {
        ++next[item >> shift & 0xFF];
    }
    std::size_t sum = 0;
    for (std::size_t& place : next) {
        sum += std::exchange(place, sum);
    }
    for (const Packed item : items) {
        scratch[next[item >> shift & 0xFF]++] = item;
    }
    items.swap(scratch);
}

/// The order of a stable sort for starts that are at most @p range above @p least. It sorts byte by
/// byte (a radix sort): starts differ in few bytes, and no comparison has to be predicted.
Places packedOrder(const std::vector<long long>& starts, long long least, Packed range)
{
    std::vector<Packed> items(starts.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const Packed above = static_cast<Packed>(starts[i]) - static_cast<Packed>(least);
        items[i] = above << placeBits | i;
    }
    std::vector<Packed> scratch(starts.size());
    for (unsigned shift = 0; range >> shift != 0; shift += 8) {
        orderByByte(items, scratch, placeBits + shift);
    }
    Places order(starts.size());
    std::transform(items.begin(), items.end(), order.begin(),
                   [](Packed item) { return static_cast<std::size_t>(item & greatestHalf); });
    return order;
}

/// The order of a stable sort.
Places stableOrder(const std::vector<long long>& starts)
{
    const auto [least, greatest] = std::minmax_element(starts.begin(), starts.end());
    const Packed range = static_cast<Packed>(*greatest) - static_cast<Packed>(*least);
    if (range <= greatestHalf && starts.size() <= greatestHalf) {
        return packedOrder(starts, *least, range);
    }
    Places order(starts.size()); // for starts that are weeks apart
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(starts[a], a) < std::pair(starts[b], b);
    });
    return order;
}

/// For each item, how many earlier items have a smaller start. @p order is the stable order.
Places smallerBefore(const std::vector<long long>& starts, const Places& order)
{
    Places rank(order.size()); // the number of the item's group of equal starts
    std::size_t groups = 1;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (starts[order[i]] != starts[order[i - 1]]) ++groups;
        rank[order[i]] = groups - 1;
    }
    PrefixCounts met;
    met.clear(groups);
    for (std::size_t& each : rank) {
        const std::size_t smaller = met.before(each);
        met.add(each);
        each = smaller;
    }
    return rank;
}

/// Puts groups of equal starts in the order of the exchange sort, one after the other.
///
/// Each smaller start that the sort meets after some members takes the place of the first of them,
/// which moves to the end: it rotates the group by one. A new member joins at the end. So the group
/// is a ring with a head, rotation moves the head, and a member joins before it.
class GroupArranger {
public:
    /// @param counts for each item, how many smaller starts come before it.
    explicit GroupArranger(const Places& counts) : counts_(counts) {}

    /// Arranges one group, the members from @p first to @p last in stored order; @p total starts of
    /// all items are smaller.
    void arrange(Places::iterator first, Places::iterator last, std::size_t total)
    {
        members_.assign(first, last);
        // The members that precede the head, a gap, and the others at the end of the range.
        auto head = first;
        auto afterGap = last;
        for (std::size_t i = 0; i < members_.size(); ++i) {
            const auto place = i == 0 ? first : turned(first, head, i, countBetween(i - 1, i));
            if (place < head) {
                afterGap = std::move_backward(place, head, afterGap);
            } else {
                const auto next = afterGap + (place - head);
                std::move(afterGap, next, head);
                afterGap = next;
            }
            *place = members_[i];
            head = place + 1;
        }
        const std::size_t afterLast = total - counts_[members_.back()];
        std::rotate(first, turned(first, head, members_.size(), afterLast), last);
    }

private:
    /// How many smaller starts there are between two members.
    std::size_t countBetween(std::size_t a, std::size_t b) const
    {
        return counts_[members_[b]] - counts_[members_[a]];
    }

    /// The head of a ring of @p size members from @p first after @p steps steps.
    static Places::iterator turned(Places::iterator first, Places::iterator head, std::size_t size,
                                   std::size_t steps)
    {
        const auto place = (static_cast<std::size_t>(head - first) + steps) % size;
        return first + static_cast<std::ptrdiff_t>(place);
    }

    const Places& counts_;
    Places members_;
};

} // namespace

std::vector<long long> earliestLaterStarts(std::vector<long long> starts)
{
    long long smallest = std::numeric_limits<long long>::max();
    for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
        const long long smallestWithThis = std::min(*start, smallest);
        *start = std::exchange(smallest, smallestWithThis);
    }
    return starts;
}

std::vector<std::size_t> firstLaterStartsBelow(const std::vector<long long>& bounds,
                                               const std::vector<long long>& starts)
{
    Places found(starts.size(), starts.size());
    // The later items that start before all items between them and the current one, furthest first,
    // so in ascending order of start. Before any other later item, there is one of these that
    // starts no later.
    Places candidates;
    for (std::size_t i = starts.size(); i-- > 0;) {
        const auto notBelow =
            std::partition_point(candidates.begin(), candidates.end(),
                                 [&](std::size_t place) { return starts[place] < bounds[i]; });
        if (notBelow != candidates.begin()) found[i] = *(notBelow - 1);
        while (!candidates.empty() && starts[candidates.back()] >= starts[i])
            candidates.pop_back();
        candidates.push_back(i);
    }
    return found;
}

std::vector<std::size_t> exchangeOrder(const std::vector<long long>& starts)
{
    if (std::is_sorted(starts.begin(), starts.end())) return {};
    Places order = stableOrder(starts);
    const auto isTie = [&](std::size_t a, std::size_t b) { return starts[a] == starts[b]; };
    auto group = std::adjacent_find(order.begin(), order.end(), isTie);
    if (group == order.end()) return order;
    const Places counts = smallerBefore(starts, order);
    GroupArranger arranger(counts);
    while (group != order.end()) {
        const auto next = std::find_if(
            group, order.end(), [&](std::size_t place) { return starts[place] != starts[*group]; });
        arranger.arrange(group, next, static_cast<std::size_t>(group - order.begin()));
        group = std::adjacent_find(next, order.end(), isTie);
    }
    return order;
}

} // namespace ZelInterchangeData
