/// @file
/// Computes the order of the exchange sort directly.

#include "bench/WrittenOrder.h"

#include <algorithm>

namespace ZelInterchangeData::bench {

namespace {

/// The number of ranks added so far that are below a given one.
class Counts {
public:
    explicit Counts(std::size_t ranks) : sums_(ranks + 1) {}

    void add(std::size_t rank)
    {
        for (std::size_t i = rank + 1; i < sums_.size(); i += lowestBit(i))
            ++sums_[i];
    }

    std::size_t below(std::size_t rank) const
    {
        std::size_t sum = 0;
        for (std::size_t i = rank; i > 0; i -= lowestBit(i))
            sum += sums_[i];
        return sum;
    }

private:
    static std::size_t lowestBit(std::size_t i) { return i & (~i + 1); }

    std::vector<std::size_t> sums_;
};

/// The items of one start. Each later item with a smaller start rotates them by one place.
struct Group {
    std::vector<std::size_t> members;
    std::size_t turns = 0;

    void turnUpTo(std::size_t total)
    {
        if (!members.empty()) {
            const auto places = static_cast<std::ptrdiff_t>((total - turns) % members.size());
            std::rotate(members.begin(), members.begin() + places, members.end());
        }
        turns = total;
    }
};

std::vector<long long> distinct(std::vector<long long> starts)
{
    std::sort(starts.begin(), starts.end());
    starts.erase(std::unique(starts.begin(), starts.end()), starts.end());
    return starts;
}

} // namespace

std::vector<std::size_t> writtenOrder(const std::vector<long long>& starts)
{
    const std::vector<long long> values = distinct(starts);
    std::vector<Group> groups(values.size());
    Counts counts(values.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        const auto found = std::lower_bound(values.begin(), values.end(), starts[i]);
        const auto rank = static_cast<std::size_t>(found - values.begin());
        groups[rank].turnUpTo(counts.below(rank));
        groups[rank].members.push_back(i);
        counts.add(rank);
    }
    std::vector<std::size_t> order;
    for (std::size_t rank = 0; rank < groups.size(); ++rank) {
        groups[rank].turnUpTo(counts.below(rank));
        order.insert(order.end(), groups[rank].members.begin(), groups[rank].members.end());
    }
    return order;
}

} // namespace ZelInterchangeData::bench
