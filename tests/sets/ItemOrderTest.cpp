/// @file
/// Compares the order of timed items with the exchange sort that defines it.

#include "sets/ItemOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

namespace ZelInterchangeData {
namespace {

using Starts = std::vector<long long>;
using Places = std::vector<std::size_t>;

Places inPlace(std::size_t size)
{
    Places places(size);
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

/// The definition: each item swaps places with each later one that starts earlier.
Places exchanged(Starts starts)
{
    Places places = inPlace(starts.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        for (std::size_t j = i + 1; j < starts.size(); ++j) {
            if (starts[j] < starts[i]) {
                std::swap(starts[i], starts[j]);
                std::swap(places[i], places[j]);
            }
        }
    }
    return places;
}

Places ordered(const Starts& starts)
{
    const Places places = exchangeOrder(starts);
    return places.empty() ? inPlace(starts.size()) : places;
}

Starts randomStarts(std::mt19937& random, std::size_t size, long long distinct)
{
    std::uniform_int_distribution<long long> start(0, distinct - 1);
    Starts starts(size);
    for (long long& each : starts) {
        each = start(random);
    }
    return starts;
}

TEST(ExchangeOrder, ItemsInOrderStayWhereTheyAre)
{
    EXPECT_TRUE(exchangeOrder({}).empty());
    EXPECT_TRUE(exchangeOrder({7}).empty());
    EXPECT_TRUE(exchangeOrder({1, 1, 2, 2, 3}).empty());
}

TEST(ExchangeOrder, TiesThatASmallerStartJumpsOverAreRotated)
{
    EXPECT_EQ((Places{2, 1, 0}), exchangeOrder({5, 5, 3}));
    EXPECT_EQ((Places{1, 0}), exchangeOrder({2, 1}));
}

TEST(ExchangeOrder, EveryBitOfTheDistanceBetweenStartsCounts)
{
    for (int bit = 0; bit < 63; ++bit) {
        const long long distance = 1LL << bit;
        EXPECT_EQ((Places{2, 1, 0}), exchangeOrder({distance, distance - 1, distance - 2})) << bit;
        EXPECT_EQ((Places{2, 0, 1}), exchangeOrder({distance - 1, distance, -1})) << bit;
    }
}

TEST(ExchangeOrder, MatchesTheExchangeSortForRandomStarts)
{
    std::mt19937 random(20);
    for (int round = 0; round < 20000; ++round) {
        const Starts starts =
            randomStarts(random, random() % 24, 1 + static_cast<long long>(random() % 10));
        ASSERT_EQ(exchanged(starts), ordered(starts)) << "round " << round;
    }
}

TEST(ExchangeOrder, MatchesTheExchangeSortForLongGroupsOfTies)
{
    std::mt19937 random(21);
    for (const long long distinct : {1, 2, 3, 10, 100, 100000}) {
        const Starts starts = randomStarts(random, 700, distinct);
        EXPECT_EQ(exchanged(starts), ordered(starts)) << distinct << " starts";
    }
}

TEST(ExchangeOrder, MatchesTheExchangeSortForOneGroupOfEachSize)
{
    for (std::size_t size = 2; size <= 140; ++size) {
        for (std::size_t place = 1; place <= size; ++place) {
            Starts starts(size, 255);
            starts.insert(starts.begin() + static_cast<std::ptrdiff_t>(place), 0);
            ASSERT_EQ(exchanged(starts), ordered(starts)) << size << ' ' << place;
        }
        Starts descending(size);
        std::iota(descending.rbegin(), descending.rend(), 0);
        ASSERT_EQ(exchanged(descending), ordered(descending)) << size;
        descending.front() = descending[1]; // one tie, so as many groups as the others
        ASSERT_EQ(exchanged(descending), ordered(descending)) << size;
    }
}

TEST(ExchangeOrder, HandlesExtremeStarts)
{
    constexpr long long largest = std::numeric_limits<long long>::max();
    constexpr long long smallest = std::numeric_limits<long long>::min();
    const Starts starts{largest, 0, smallest, largest, smallest, -1};
    EXPECT_EQ(exchanged(starts), ordered(starts));
}

TEST(ExchangeOrder, TwoAlternatingStartsDoNotTakeQuadraticTime)
{
    // A million items: comparing all pairs would take 500 billion steps.
    Starts starts(1000000);
    for (std::size_t i = 0; i < starts.size(); ++i) {
        starts[i] = i % 2 == 0 ? 1 : 0;
    }
    const Places places = exchangeOrder(starts);
    ASSERT_EQ(starts.size(), places.size());
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
        return starts[a] < starts[b];
    }));
}

TEST(EarliestLaterStarts, AreTheSmallestOfThoseThatFollow)
{
    constexpr long long none = std::numeric_limits<long long>::max();
    EXPECT_EQ((Starts{1, 1, 3, none}), earliestLaterStarts({5, 2, 1, 3}));
    EXPECT_EQ((Starts{none}), earliestLaterStarts({4}));
    EXPECT_TRUE(earliestLaterStarts({}).empty());
}

/// The definition: compares each item with each later one.
Places firstBelow(const Starts& bounds, const Starts& starts)
{
    Places found;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        std::size_t j = i + 1;
        while (j < starts.size() && starts[j] >= bounds[i])
            ++j;
        found.push_back(std::min(j, starts.size()));
    }
    return found;
}

TEST(FirstLaterStartsBelow, AreTheNearestAndNotTheSmallest)
{
    EXPECT_EQ((Places{2, 3, 3, 4}), firstLaterStartsBelow({4, 2, 3, 9}, {9, 5, 3, 1}));
    EXPECT_EQ((Places{2, 2}), firstLaterStartsBelow({7, 0}, {0, 7})); // not below its bound
    EXPECT_EQ((Places{1, 2}), firstLaterStartsBelow({8, 0}, {0, 7}));
    EXPECT_TRUE(firstLaterStartsBelow({}, {}).empty());
}

TEST(FirstLaterStartsBelow, MatchTheDefinition)
{
    std::mt19937 random(22);
    for (int round = 0; round < 20000; ++round) {
        const auto size = static_cast<std::size_t>(random() % 12);
        const long long distinct = 1 + static_cast<long long>(random() % 12);
        const Starts starts = randomStarts(random, size, distinct);
        const Starts bounds = randomStarts(random, size, distinct + 2);
        ASSERT_EQ(firstBelow(bounds, starts), firstLaterStartsBelow(bounds, starts));
    }
}

TEST(FirstLaterStartsBelow, DoNotTakeQuadraticTime)
{
    // A million items without any: comparing all pairs would take 500 billion steps.
    const std::size_t size = 1000000;
    Starts starts(size);
    std::iota(starts.begin(), starts.end(), 1);
    EXPECT_EQ(Places(size, size), firstLaterStartsBelow(starts, starts));
    std::reverse(starts.begin(), starts.end());
    EXPECT_EQ(Places(size, size), firstLaterStartsBelow(Starts(size, 1), starts));
}

} // namespace
} // namespace ZelInterchangeData
