#include "util/TextList.h"

#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ZelInterchangeData {
namespace {

using Texts = std::vector<std::string>;

std::string numbered(std::size_t number)
{
    return "a text too long for any string without memory, number " + std::to_string(number);
}

TextList listOf(std::size_t count)
{
    TextList list;
    for (std::size_t i = 0; i < count; ++i)
        list.append(numbered(i));
    return list;
}

TEST(TextList, MatchesAVectorUnderRandomChanges)
{
    std::mt19937 random(7);
    TextList list;
    Texts expected;
    for (int step = 0; step < 50000; ++step) {
        const std::string text = "text " + std::to_string(random() % 60);
        const auto found = std::find(expected.begin(), expected.end(), text);
        ASSERT_EQ(found != expected.end(), list.contains(text)) << "step " << step;
        switch (random() % 64) {
        case 0:
            list.clear();
            expected.clear();
            break;
        case 1:
            std::shuffle(expected.begin(), expected.end(), random);
            list = TextList(expected);
            break;
        case 2: {
            const std::size_t count = random() % 60;
            list.truncate(count);
            if (count < expected.size()) expected.resize(count);
            break;
        }
        default:
            if (random() % 3 == 0) {
                EXPECT_EQ(found != expected.end(), list.remove(text));
                if (found != expected.end()) expected.erase(found);
            } else { // possibly a duplicate
                list.append(text);
                expected.push_back(text);
            }
        }
        ASSERT_EQ(expected, list.texts()) << "step " << step;
    }
}

TEST(TextList, RemovingOneOfTwoIdenticalTextsLeavesTheOther)
{
    TextList list = listOf(40);
    list.append(numbered(3));
    EXPECT_TRUE(list.remove(numbered(3)));
    EXPECT_TRUE(list.contains(numbered(3)));
    EXPECT_EQ(numbered(3), list.texts().back());
    EXPECT_TRUE(list.remove(numbered(3)));
    EXPECT_FALSE(list.contains(numbered(3)));
}

TEST(TextList, ACopyIsIndependent)
{
    TextList list = listOf(40);
    const TextList copy(list);
    list.clear();
    EXPECT_TRUE(copy.contains(numbered(39)));
    EXPECT_FALSE(list.contains(numbered(39)));
}

TEST(TextList, WithoutMemoryNothingIsAppended)
{
    for (std::size_t count = 0; count < 40; ++count) {
        const TextList original = listOf(count);
        TextList list(original); // without room for more
        const Texts before = list.texts();
        const std::string text = numbered(count);
        std::size_t granted = 0;
        while (runsOutOfMemory(granted, [&] { list.append(text); })) {
            EXPECT_EQ(before, list.texts());
            EXPECT_FALSE(list.contains(text)) << count << " texts, " << granted << " granted";
            ++granted;
        }
        EXPECT_LT(0U, granted);
        EXPECT_TRUE(list.contains(text));
    }
}

TEST(TextList, TellsWhatIsAtAPlace)
{
    const TextList list({"de", "en", "en-US"});
    EXPECT_TRUE(list.isAt(1, "en"));
    EXPECT_FALSE(list.isAt(0, "en"));
    EXPECT_FALSE(list.isAt(2, "en"));
    EXPECT_FALSE(list.isAt(3, "en"));
}

} // namespace
} // namespace ZelInterchangeData
