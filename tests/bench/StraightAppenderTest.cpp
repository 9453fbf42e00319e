#include "bench/StraightAppender.h"

#include "bench/LibraryRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace ZelInterchangeData::bench {

namespace {

/// @p packet with "now" as its date, because the two are written at different times.
std::string dateMasked(std::string packet)
{
    const std::string start = "dc:date=\"";
    const auto from = packet.find(start);
    EXPECT_NE(from, std::string::npos);
    const auto value = from + start.size();
    const auto end = packet.find('"', value);
    EXPECT_GE(end - value, 20U) << "the date is too short";
    return packet.replace(value, end - value, "now");
}

void expectSameBytes(const Document& document)
{
    const Sets sets = fill(document);
    const std::string ours = dateMasked(write(*set(sets)));
    const std::string straight = dateMasked(appendPacket(inWrittenOrder(document)));
    ASSERT_EQ(ours.size(), straight.size());
    const auto differing = std::mismatch(ours.begin(), ours.end(), straight.begin());
    const auto place = static_cast<std::size_t>(differing.first - ours.begin());
    EXPECT_EQ(place, ours.size()) << "library:  " << ours.substr(place, 80)
                                  << "\nappender: " << straight.substr(place, 80);
}

/// Size, order and pair of languages.
class StraightAppender : public testing::TestWithParam<std::tuple<std::size_t, Order, Pair>> {};

TEST_P(StraightAppender, WritesTheLibrarysBytes)
{
    const auto [size, order, pair] = GetParam();
    expectSameBytes(makeDocument(size, order, pair));
}

TEST_P(StraightAppender, StaysWithinTheSizeThatEveryWriterReserves)
{
    const auto [size, order, pair] = GetParam();
    const Document document = makeDocument(size, order, pair);
    EXPECT_LE(appendPacket(document).size(), roomFor(document));
}

std::string caseName(const testing::TestParamInfo<StraightAppender::ParamType>& info)
{
    const auto [size, order, pair] = info.param;
    return std::to_string(size) + std::string(nameOf(order)) +
           (pair == Pair::enDe ? "EnDe" : "EnJa");
}

INSTANTIATE_TEST_SUITE_P(Documents, StraightAppender,
                         testing::Combine(testing::Values(1, 20, 100, 1000),
                                          testing::ValuesIn(allOrders),
                                          testing::ValuesIn(allPairs)),
                         caseName);

TEST(StraightAppenderTest, DropsControlCharactersOfItemTextsAsTheLibraryDoes)
{
    Document document = makeDocument(20, Order::tied, Pair::enDe);
    document.captions[3].texts[0] = "a\tb\rc\x01"
                                    "d\ne<&>\"'";
    document.captions[4].texts = {"", "\t\r"};
    document.entries[0].titles[0] = "tab\there & \x1F"
                                    "there";
    document.screenTexts[2].text = "\x02\"quoted\"\x03";
    expectSameBytes(document);
}

TEST(StraightAppenderTest, WritesLongNumbersAndManyKeywordsAsTheLibraryDoes)
{
    Document document = makeDocument(20, Order::shuffled, Pair::enJa);
    document.header.keywords = {"a&b", "", "c"};
    document.header.contentNames = {"<1>", "2", "3"};
    document.captions[0].start = 9007199254740993;
    document.screenTexts[0].thumbnail.offset = 18446744073709551615U;
    expectSameBytes(document);
}

TEST(StraightAppenderTest, WritesADocumentWithoutItemsAsTheLibraryDoes)
{
    Document document = makeDocument(20, Order::ascending, Pair::enDe);
    document.entries.clear();
    document.screenTexts.clear();
    expectSameBytes(document);
}

TEST(StraightAppenderTest, CaptionsTakeAboutAsManyBytesAsTheBenchmarkStates)
{
    const std::string packet = appendPacket(makeDocument(1000, Order::shuffled, Pair::enDe));
    EXPECT_NEAR(static_cast<double>(packet.size()) / 1000, 530, 40);
}

TEST(DocumentsTest, TheSameArgumentsGiveTheSameDocument)
{
    const auto packet = [] {
        return dateMasked(appendPacket(makeDocument(100, Order::shuffled, Pair::enJa)));
    };
    EXPECT_EQ(packet(), packet());
}

TEST(DocumentsTest, OrdersMatchTheirNames)
{
    const auto starts = [](Order order) {
        std::vector<long long> all;
        for (const Caption& caption : makeDocument(1000, order, Pair::enDe).captions)
            all.push_back(caption.start);
        return all;
    };
    const auto ascending = starts(Order::ascending);
    EXPECT_TRUE(std::is_sorted(ascending.begin(), ascending.end()));
    const auto reversed = starts(Order::reversed);
    EXPECT_TRUE(std::is_sorted(reversed.rbegin(), reversed.rend()));
    auto shuffled = starts(Order::shuffled);
    EXPECT_NE(shuffled, ascending);
    std::sort(shuffled.begin(), shuffled.end());
    EXPECT_EQ(shuffled, ascending);
    auto tied = starts(Order::tied);
    std::sort(tied.begin(), tied.end());
    EXPECT_EQ(std::unique(tied.begin(), tied.end()) - tied.begin(), 16);
}

} // namespace

} // namespace ZelInterchangeData::bench
