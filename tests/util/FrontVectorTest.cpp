#include "util/FrontVector.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace ZelInterchangeData {
namespace {

using Vector = FrontVector<std::shared_ptr<int>>;

std::vector<int> numbersIn(const Vector& vector)
{
    std::vector<int> numbers;
    for (const auto& number : vector)
        numbers.push_back(*number);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        EXPECT_EQ(numbers[i], *vector[i]);
    EXPECT_EQ(numbers.size(), vector.size());
    return numbers;
}

TEST(FrontVector, MatchesAVectorUnderRandomChanges)
{
    std::mt19937 random(3);
    Vector vector;
    std::vector<int> expected;
    for (int step = 0; step < 20000; ++step) {
        const auto kind = random() % 8;
        if (expected.empty() || kind < 3) {
            vector.emplace_back(std::make_shared<int>(step));
            expected.push_back(step);
        } else if (kind < 6) {
            vector.erase(0);
            expected.erase(expected.begin());
        } else if (kind == 6) {
            const std::size_t index = random() % expected.size();
            vector.erase(index);
            expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
        } else {
            Vector copy(vector);
            vector = Vector();
            ASSERT_EQ(0U, vector.size());
            vector = std::move(copy);
            ASSERT_EQ(0U,
                      copy.size()); // NOLINT(bugprone-use-after-move): it is empty, not undefined
        }
        ASSERT_EQ(expected, numbersIn(vector)) << "step " << step;
    }
}

TEST(FrontVector, ErasesAnywhereWithoutRoomForMore)
{
    for (std::size_t size = 1; size <= 16; ++size) {
        for (std::size_t fromFront = 0; fromFront < size; ++fromFront) {
            for (std::size_t index = 0; index < size - fromFront; ++index) {
                Vector vector;
                std::vector<int> expected;
                vector.reserve(size); // a sanitizer watches what follows the last element
                for (std::size_t i = 0; i < size; ++i) {
                    vector.emplace_back(std::make_shared<int>(static_cast<int>(i)));
                    if (i >= fromFront) expected.push_back(static_cast<int>(i));
                }
                for (std::size_t i = 0; i < fromFront; ++i)
                    vector.erase(0);
                vector.erase(index);
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(index));
                ASSERT_EQ(expected, numbersIn(vector)) << size << ' ' << fromFront << ' ' << index;
            }
        }
    }
}

TEST(FrontVector, AnErasedElementIsDestroyedAtOnce)
{
    Vector vector;
    for (int i = 0; i < 10; ++i)
        vector.emplace_back(std::make_shared<int>(i));
    for (const std::size_t index : {std::size_t{0}, std::size_t{4}, std::size_t{0}}) {
        const std::weak_ptr<int> erased = vector[index];
        vector.erase(index);
        EXPECT_TRUE(erased.expired());
    }
}

TEST(FrontVector, ErasingAllFromTheFrontMovesEachElementOnlyAFewTimes)
{
    struct Counted {
        explicit Counted(long* counter) : moves(counter) {}
        Counted() = default;
        Counted(Counted&& other) noexcept : moves(other.moves) { count(); }
        Counted& operator=(Counted&& other) noexcept
        {
            moves = other.moves;
            count();
            return *this;
        }
        ~Counted() = default;
        void count() const
        {
            if (moves != nullptr) ++*moves;
        }
        long* moves = nullptr;
    };
    constexpr long size = 10000;
    long moves = 0;
    FrontVector<Counted> vector;
    vector.reserve(size);
    for (long i = 0; i < size; ++i)
        vector.emplace_back(Counted(&moves));
    moves = 0;
    for (long i = 0; i < size; ++i)
        vector.erase(0);
    EXPECT_EQ(0U, vector.size());
    EXPECT_LT(moves, 4 * size);
}

} // namespace
} // namespace ZelInterchangeData
