#include "core/ItemOrder.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ZelInterchangeData {

namespace {

using Places = std::vector<std::size_t>;

/// Counts at places, with sums of all counts before a place (a Fenwick tree).
class PrefixCounts {
public:
    explicit PrefixCounts(std::size_t size) : sums_(size + 1)
    {
        while (highestStep_ * 2 <= size)
            highestStep_ *= 2;
    }

    /// One at each place, where nothing was counted yet.
    void addOneEach()
    {
        for (std::size_t i = 1; i < sums_.size(); ++i) {
            sums_[i] = lowestBit(i);
        }
    }

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

    /// Takes one off the place whose count makes the sum exceed @p count, and gives the place.
    std::size_t take(std::size_t count)
    {
        std::size_t place = 0;
        for (std::size_t step = highestStep_; step > 0; step /= 2) {
            if (place + step >= sums_.size()) continue;
            if (sums_[place + step] <= count) {
                place += step;
                count -= sums_[place];
            } else {
                --sums_[place + step];
            }
        }
        return place;
    }

private:
    static constexpr std::size_t lowestBit(std::size_t i) noexcept { return i & (~i + 1); }

    Places sums_;
    std::size_t highestStep_ = 1;
};

/// The order of a stable sort.
Places stableOrder(const std::vector<long long>& starts)
{
    std::vector<std::pair<long long, std::size_t>> keyed(starts.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        keyed[i] = {starts[i], i};
    }
    std::sort(keyed.begin(), keyed.end());
    Places order(starts.size());
    std::transform(keyed.begin(), keyed.end(), order.begin(),
                   [](const auto& item) { return item.second; });
    return order;
}

/// For each item how many earlier ones have a smaller start. @p order is the stable one.
Places smallerBefore(const std::vector<long long>& starts, const Places& order)
{
    Places rank(order.size()); // the number of the item's group of equal starts
    std::size_t groups = 1;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (starts[order[i]] != starts[order[i - 1]]) ++groups;
        rank[order[i]] = groups - 1;
    }
    PrefixCounts met(groups);
    for (std::size_t& each : rank) {
        const std::size_t smaller = met.before(each);
        met.add(each);
        each = smaller;
    }
    return rank;
}

/// Lays @p places open: entry i was inserted at places[i] of the i entries before it. Gives the final
/// place of each entry.
Places finalPlaces(Places places)
{
    PrefixCounts free(places.size());
    free.addOneEach();
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        *place = free.take(*place);
    }
    return places;
}

/// Puts one group of equal starts, the members from @p first to @p last in stored order, in the order of
/// the exchange sort.
///
/// Each smaller start that the sort meets after some members takes the place of the first of them, which
/// goes behind the others: it rotates the group by one. A new member joins at the end. So the group is a
/// ring with a head, rotation moves the head, and a member joins before it. @p counts tells how many
/// smaller starts come before a member, @p total how many there are.
void arrangeGroup(Places::iterator first, Places::iterator last, const Places& counts,
                  std::size_t total)
{
    const auto size = static_cast<std::size_t>(last - first);
    Places joined(size); // where in the ring, cut at the first member, each member was inserted
    std::size_t head = 0;
    for (std::size_t i = 1; i < size; ++i) {
        head = (head + counts[first[static_cast<std::ptrdiff_t>(i)]] -
                counts[first[static_cast<std::ptrdiff_t>(i - 1)]]) %
               i;
        joined[i] = head == 0 ? i : head++;
    }
    head = (head + total - counts[*(last - 1)]) % size;
    const Places ring = finalPlaces(std::move(joined));
    const Places members(first, last);
    for (std::size_t i = 0; i < size; ++i) {
        first[static_cast<std::ptrdiff_t>((ring[i] + size - head) % size)] = members[i];
    }
}

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
    // The later items that start before all that stand between: the furthest first, so with ascending
    // starts. Any other one has such an item before it that starts no later.
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
    while (group != order.end()) {
        const auto next = std::find_if(
            group, order.end(), [&](std::size_t place) { return starts[place] != starts[*group]; });
        arrangeGroup(group, next, counts, static_cast<std::size_t>(group - order.begin()));
        group = std::adjacent_find(next, order.end(), isTie);
    }
    return order;
}

} // namespace ZelInterchangeData
