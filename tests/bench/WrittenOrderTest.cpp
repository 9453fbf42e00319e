#include "bench/WrittenOrder.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <utility>

namespace ZelInterchangeData::bench {

namespace {

/// The exchange sort itself.
std::vector<std::size_t> exchanged(std::vector<long long> starts)
{
    std::vector<std::size_t> order(starts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (std::size_t i = 0; i < starts.size(); ++i) {
        for (std::size_t j = i + 1; j < starts.size(); ++j) {
            if (starts[j] < starts[i]) {
                std::swap(starts[i], starts[j]);
                std::swap(order[i], order[j]);
            }
        }
    }
    return order;
}

TEST(WrittenOrderTest, MatchesTheExchangeSortForRandomStarts)
{
    std::mt19937_64 engine(1);
    for (int round = 0; round < 5000; ++round) {
        std::vector<long long> starts(engine() % 24);
        const auto distinct = 1 + engine() % 12;
        for (long long& start : starts)
            start = static_cast<long long>(engine() % distinct);
        ASSERT_EQ(writtenOrder(starts), exchanged(starts)) << "round " << round;
    }
}

TEST(WrittenOrderTest, MatchesTheExchangeSortForLongGroups)
{
    std::mt19937_64 engine(2);
    for (const std::size_t distinct : {2U, 16U, 400U}) {
        std::vector<long long> starts(800);
        for (long long& start : starts)
            start = static_cast<long long>(engine() % distinct);
        EXPECT_EQ(writtenOrder(starts), exchanged(starts)) << distinct;
    }
}

TEST(WrittenOrderTest, RotatesEqualStartsThatASmallerOneFollows)
{
    EXPECT_EQ(writtenOrder({5, 5, 3}), (std::vector<std::size_t>{2, 1, 0}));
}

TEST(WrittenOrderTest, LeavesNonDecreasingStartsAsTheyAre)
{
    EXPECT_EQ(writtenOrder({1, 1, 2, 2, 2, 7}), (std::vector<std::size_t>{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(writtenOrder({}), std::vector<std::size_t>());
}

} // namespace

} // namespace ZelInterchangeData::bench
