#include "bench/RatioReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace ZelInterchangeData::bench {

namespace {

Case caseOf(std::size_t size, Order order, double write)
{
    Case result;
    result.size = size;
    result.order = order;
    result.bytes = size * 500;
    result.times = {1, 1, write, write + 3, 5, 6, 10, 20, 30, 40};
    result.heap = {size * 2, size * 1000};
    return result;
}

Row rowOf(const Results& results, const std::string& measure)
{
    const auto rows = ratioRows(results);
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const Row& row) { return row.measure == measure; });
    EXPECT_NE(found, rows.end()) << measure;
    return found == rows.end() ? Row{} : *found;
}

TEST(RatioReportTest, TakesTheWorstCase)
{
    const Results results{
        {caseOf(100, Order::tied, 4), caseOf(100, Order::shuffled, 9)}, {}, {}, {}, {}};
    const Row row = rowOf(results, "write ÷ straight appender");
    EXPECT_EQ(row.measured, "0.90 (N = 100, shuffled, en+de)");
    EXPECT_EQ(row.verdict, Verdict::met);
    EXPECT_EQ(rowOf(results, "fill + set + write + release ÷ pugixml").measured,
              "0.60 (N = 100, shuffled, en+de)");
    EXPECT_EQ(rowOf(results, "fill ÷ straight appender").measured, "0.10 (N = 100, tied, en+de)");
    EXPECT_EQ(
        rowOf(results, "fill through the C face ÷ the C++ calls, each text made a string").measured,
        "1.20 (N = 100, tied, en+de)");
    EXPECT_EQ(rowOf(results, "allocations per caption in a write").measured,
              "2.00 (N = 100, tied, en+de)");
    EXPECT_EQ(rowOf(results, "peak heap in a write ÷ bytes out").measured,
              "2.00 (N = 100, tied, en+de)");
}

TEST(RatioReportTest, ARatioAboveItsLimitIsMissed)
{
    const Results results{{caseOf(100, Order::tied, 21)}, {}, {}, {}, {}};
    EXPECT_EQ(rowOf(results, "write ÷ straight appender").verdict, Verdict::missed);
    EXPECT_EQ(rowOf(results, "write ÷ pugixml (build and save)").verdict, Verdict::missed);
}

TEST(RatioReportTest, TheExponentOfQuadraticGrowthIsTwo)
{
    const Results results{
        {caseOf(1000, Order::reversed, 1), caseOf(100000, Order::reversed, 1e4)}, {}, {}, {}, {}};
    const Row row = rowOf(results, "growth from N = 1,000 to 100,000, exponent, reversed");
    EXPECT_EQ(row.measured, "2.00 (en+de)");
    EXPECT_EQ(row.verdict, Verdict::missed);
}

TEST(RatioReportTest, ComparesTheGrowthWithTheAppenders)
{
    const auto rowFor = [](double write) {
        Case large = caseOf(100000, Order::reversed, write);
        large.times.appender = 1000; // a hundredfold: linear
        return rowOf({{caseOf(1000, Order::reversed, 1), large}, {}, {}, {}, {}},
                     "growth exponent minus the appender's");
    };
    EXPECT_EQ(rowFor(10).measured, "-0.50 (reversed, en+de)");
    EXPECT_EQ(rowFor(10).verdict, Verdict::met);
    EXPECT_EQ(rowFor(1000).measured, "0.50 (reversed, en+de)");
    EXPECT_EQ(rowFor(1000).verdict, Verdict::missed);
}

TEST(RatioReportTest, ColdWritesAreThoseOfTheSmallestSize)
{
    const char* const measure = "write ÷ straight appender, other writers in between";
    Results results;
    results.cases = {caseOf(1000, Order::tied, 21)};
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::notMeasured);
    results.cases.push_back(caseOf(100, Order::tied, 1));
    results.cases.back().cold = {1.2, 1};
    EXPECT_EQ(rowOf(results, measure).measured, "1.20 (N = 100, tied, en+de)");
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::met);
    results.cases.back().cold = {1.4, 1};
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::missed);
}

TEST(RatioReportTest, ChecksAllocationsOfAHeaderAndOfACaption)
{
    Results results;
    const auto verdicts = [&] {
        return std::pair(rowOf(results, "allocations in a write of a header alone").verdict,
                         rowOf(results, "allocations per caption while filling").verdict);
    };
    EXPECT_EQ(verdicts(), std::pair(Verdict::notMeasured, Verdict::notMeasured));
    results.allocations = Allocations{12, 3.3};
    EXPECT_EQ(verdicts(), std::pair(Verdict::met, Verdict::missed));
    results.allocations = Allocations{13, 3.2};
    EXPECT_EQ(verdicts(), std::pair(Verdict::missed, Verdict::met));
}

TEST(RatioReportTest, ShowsTheSizeOfTheLibrary)
{
    Results results;
    const char* const measure = "shared library with the C face, stripped, KiB";
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::notMeasured);
    results.librarySize = 400 * 1024 + 1024;
    EXPECT_EQ(rowOf(results, measure).measured, "401.00");
#ifdef __x86_64__
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::missed);
    results.librarySize = 400 * 1024;
    EXPECT_EQ(rowOf(results, measure).verdict, Verdict::met);
#endif
}

TEST(RatioReportTest, GrowthOverOtherSizesIsNotMeasured)
{
    const Results results{
        {caseOf(100, Order::tied, 1), caseOf(1000, Order::tied, 1)}, {}, {}, {}, {}};
    EXPECT_EQ(rowOf(results, "growth from N = 1,000 to 100,000, exponent, tied").verdict,
              Verdict::notMeasured);
}

TEST(RatioReportTest, ChecksTheShareOfTheAppendersGainAndShowsTheGain)
{
    Results results;
    results.threads = ThreadGains{1.6, 2.0};
    EXPECT_EQ(rowOf(results, "two threads: gain ÷ the appender's gain").verdict, Verdict::missed);
    const Row gain = rowOf(results, "two threads, own documents");
    EXPECT_EQ(gain.measured, "1.60 × (appender 2.00 ×)");
    EXPECT_EQ(gain.verdict, Verdict::shown);
}

TEST(RatioReportTest, ChecksTextsOnlyByTheMultipleOfThePlainLoop)
{
    Results results;
    results.texts = {{"ASCII", 1e9, 3},
                     {"Latin", 1e9, 0.5},
                     {"CJK", 1e9, 1},
                     {"captions", 1e9, 2},
                     {"entities", 1e9, 2}};
    EXPECT_EQ(rowOf(results, "UTF-8 check, short ASCII texts").verdict, Verdict::shown);
    EXPECT_EQ(rowOf(results, "UTF-8 check, short ASCII texts: multiple of the plain loop").verdict,
              Verdict::met);
    EXPECT_EQ(rowOf(results, "UTF-8 check, short Latin texts: multiple of the plain loop").verdict,
              Verdict::missed);
}

} // namespace

} // namespace ZelInterchangeData::bench
