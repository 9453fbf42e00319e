/// @file
/// A document without a finding that is an error can be written and read, and no other.

#include "hostile/HostileDocuments.h"
#include "hostile/Promise.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace ZelInterchangeData {
namespace {

using Findings = std::vector<ZelDataFinding>;

bool isError(const ZelDataFinding& finding)
{
    return severityOf(finding) == ZelDataFindingSeverity_Error;
}

/// All lines that describe @p findings.
std::string described(const Findings& findings)
{
    std::string lines;
    for (const ZelDataFinding& finding : findings)
        lines += describe(finding) + '\n';
    return lines;
}

/// What keeps @p document from being written and read; empty if nothing does.
std::string obstacleOf(const i_ZelInterchangeDataCore& document)
{
    std::string packet;
    if (document.writeString(packet, ZelDataFormat_Xmp, false) != ZelData_Ok) return "not written";
    const std::string fault = faultOf(packet);
    if (!fault.empty()) return fault;
    const auto model = modelOf(document);
    return model ? differenceOf(expectedOf(*model), readPacket(packet)) : "not read";
}

/// How many documents had which findings.
struct Counts {
    std::uint64_t all = 0;
    std::uint64_t clean = 0;
    std::uint64_t faulty = 0;
    std::uint64_t unreadable = 0;
};

void expectPromise(const i_ZelInterchangeDataCore& document, Counts& counts)
{
    ++counts.all;
    Findings findings;
    const auto code = findProblems(document, findings);
    const std::string obstacle = obstacleOf(document);
    if (code != ZelData_Ok) { // a set cannot even be copied
        ++counts.unreadable;
        EXPECT_EQ("not written", obstacle);
        return;
    }
    const bool hasError = std::any_of(findings.begin(), findings.end(), isError);
    EXPECT_EQ(hasError, !obstacle.empty()) << obstacle << '\n' << described(findings);
    ++(hasError ? counts.faulty : counts.clean);
}

class PromiseOfFindings : public ::testing::TestWithParam<std::uint64_t> {};

TEST_P(PromiseOfFindings, HoldsForHostileDocuments)
{
    Counts counts;
    const std::uint64_t last = promisedDocuments();
    for (std::uint64_t seed = GetParam() + 1; seed <= last; seed += promiseShares) {
        expectPromise(*hostileDocument(seed), counts);
        ASSERT_FALSE(HasFailure()) << "seed " << seed;
    }
    RecordProperty("clean", std::to_string(counts.clean));
    RecordProperty("faulty", std::to_string(counts.faulty));
    RecordProperty("unreadable", std::to_string(counts.unreadable));
    EXPECT_GE(counts.all, 40U) << "each share needs some documents";
    EXPECT_GT(counts.clean, counts.all / 5);
    EXPECT_GT(counts.faulty, counts.all / 5);
}

INSTANTIATE_TEST_SUITE_P(Share, PromiseOfFindings,
                         ::testing::Range(std::uint64_t{0}, promiseShares));

TEST(HostileDocuments, HaveEveryKindOfFindingThatOurDocumentCanHave)
{
    std::set<std::string> kinds;
    std::uint64_t unreadable = 0;
    for (std::uint64_t seed = 1; seed <= 5000; ++seed) {
        Findings findings;
        if (findProblems(*hostileDocument(seed), findings) != ZelData_Ok) ++unreadable;
        for (const ZelDataFinding& finding : findings)
            kinds.insert(toString(finding.kind));
    }
    std::set<std::string> expected;
    for (const auto kind :
         {ZelDataFinding_TooShort, ZelDataFinding_TooManyLines, ZelDataFinding_MissingText,
          ZelDataFinding_Overlap, ZelDataFinding_OutOfOrder, ZelDataFinding_HeaderMissing,
          ZelDataFinding_SizeMissing, ZelDataFinding_NotEscaped, ZelDataFinding_ControlCharacter,
          ZelDataFinding_NotStrictUtf8, ZelDataFinding_ForbiddenCharacter, ZelDataFinding_NoItems,
          ZelDataFinding_NoText, ZelDataFinding_EmptyText, ZelDataFinding_EntryMissing,
          ZelDataFinding_NotMilliseconds}) {
        expected.insert(toString(kind));
    }
    EXPECT_EQ(expected, kinds);
    EXPECT_GT(unreadable, 0U);
}

} // namespace
} // namespace ZelInterchangeData
