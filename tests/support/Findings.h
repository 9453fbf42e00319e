/// @file
/// Compares what findProblems() finds, and makes it fail.

#ifndef ZELINTERCHANGEDATA_TESTS_SUPPORT_FINDINGS_H
#define ZELINTERCHANGEDATA_TESTS_SUPPORT_FINDINGS_H

#include "ZelInterchangeData/ZelDataFindings.h"
#include "support/FailingAllocation.h"
#include "support/fakes/Failing.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace ZelInterchangeData {

using Findings = std::vector<ZelDataFinding>;

inline auto fieldsOf(const ZelDataFinding& finding)
{
    return std::tie(finding.kind, finding.subject, finding.item, finding.start, finding.language,
                    finding.property, finding.component, finding.value, finding.limit,
                    finding.laterItem, finding.laterStart);
}

inline bool operator==(const ZelDataFinding& a, const ZelDataFinding& b)
{
    return fieldsOf(a) == fieldsOf(b);
}

inline void PrintTo(const ZelDataFinding& finding, std::ostream* out)
{
    *out << describe(finding) << " [value " << finding.value << " limit " << finding.limit << ']';
}

/// A finding of @p kind about @p subject itself.
inline ZelDataFinding findingIn(ZelDataFinding_tags kind, ZelDataFindingSubject_tags subject,
                                const std::string& property = {})
{
    ZelDataFinding finding;
    finding.kind = kind;
    finding.subject = subject;
    finding.property = property;
    return finding;
}

/// A finding of @p kind about the item at @p item, which starts at @p start.
inline ZelDataFinding findingAt(ZelDataFinding_tags kind, ZelDataFindingSubject_tags subject,
                                std::size_t item, long long start)
{
    ZelDataFinding finding;
    finding.kind = kind;
    finding.subject = subject;
    finding.item = static_cast<unsigned long>(item);
    finding.start = start;
    return finding;
}

inline ZelDataFinding limited(ZelDataFinding finding, long long value, long long limit)
{
    finding.value = value;
    finding.limit = limit;
    return finding;
}

inline ZelDataFinding inLanguage(ZelDataFinding finding, const std::string& language)
{
    finding.language = language;
    return finding;
}

/// @p finding with the later item that its value refers to.
inline ZelDataFinding withLater(ZelDataFinding finding, std::size_t item, long long start)
{
    finding.laterItem = static_cast<unsigned long>(item);
    finding.laterStart = start;
    return limited(finding, finding.value, start);
}

/// An item that is stored before one that starts earlier.
inline ZelDataFinding outOfOrder(ZelDataFindingSubject_tags subject, std::size_t item,
                                 long long start, std::size_t later, long long laterStart)
{
    const auto finding = findingAt(ZelDataFinding_OutOfOrder, subject, item, start);
    return withLater(limited(finding, start, laterStart), later, laterStart);
}

/// All that is wrong with @p collection.
template <class Collection>
Findings findingsOf(const Collection& collection)
{
    Findings findings(1); // must be replaced
    EXPECT_EQ(ZelData_Ok, findProblems(collection, findings));
    return findings;
}

/// The same, one line each.
template <class Collection>
std::vector<std::string> linesOf(const Collection& collection)
{
    std::vector<std::string> lines;
    for (const ZelDataFinding& finding : findingsOf(collection))
        lines.push_back(describe(finding));
    return lines;
}

/// The code that isValid(true) must return for @p findings.
inline ZelDataResult_tags codeFor(const Findings& findings)
{
    return findings.empty() ? ZelData_Ok : codeOf(findings.front());
}

/// Expects of many random collections that findProblems() finds what must be found and agrees with
/// isValid(true). @p next returns a collection and what must be found in it. At least a tenth of the
/// collections are valid, and less than @p mostValid of them.
template <class Next>
void expectAgreement(double mostValid, const Next& next)
{
    constexpr int rounds = 100000;
    int valid = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto [collection, expected] = next();
        const Findings findings = findingsOf(*collection);
        ASSERT_EQ(expected, findings) << "round " << round;
        ASSERT_EQ(collection->isValid(true), codeFor(findings)) << "round " << round;
        valid += findings.empty() ? 1 : 0;
    }
    EXPECT_GT(valid, rounds / 10);
    EXPECT_LT(valid, rounds * mostValid);
}

/// Expects that @p code is what findProblems() gives for @p collection, and nothing is found.
template <class Collection>
void expectNoAnswer(ZelDataResult_tags code, const Collection& collection)
{
    Findings findings = {findingAt(ZelDataFinding_NoDuration, ZelDataFindingSubject_Caption, 7, 8)};
    const Findings before = findings;
    EXPECT_EQ(code, findProblems(collection, findings));
    EXPECT_EQ(before, findings);
}

/// Expects of @p collection, a fake whose objects @p prepare arms, that findProblems() passes each
/// way of failing on. A failing call returns one code and keeps another, which is success.
template <class Collection, class Fake>
void expectFailuresPass(const Collection& collection, const std::string& operation, int nth,
                        const std::function<void(const std::function<void(Fake&)>&)>& prepare)
{
    SCOPED_TRACE(operation + " number " + std::to_string(nth));
    prepare([&](Fake& fake) { fake.failAt(operation, ZelData_NoData, ZelData_Ok, nth); });
    expectNoAnswer(ZelData_NoData, collection);
    prepare([&](Fake& fake) { fake.failAt(operation, ZelData_WarnTiming, ZelData_Ok, nth); });
    expectNoAnswer(ZelData_WarnTiming, collection);
    prepare([&](Fake& fake) { fake.throwAt(operation, std::bad_alloc(), nth); });
    expectNoAnswer(ZelData_OutOfMemory, collection);
    prepare([&](Fake& fake) { fake.throwAt(operation, std::runtime_error("own"), nth); });
    expectNoAnswer(ZelData_InternalError, collection);
}

/// Makes each allocation of findProblems() fail in turn, and expects that it reports each failure.
template <class Collection>
void expectMemoryFailuresPass(const Collection& collection)
{
    const Findings all = findingsOf(collection);
    ASSERT_FALSE(all.empty());
    std::size_t granted = 0;
    for (;; ++granted) {
        SCOPED_TRACE("allocations granted: " + std::to_string(granted));
        Findings findings;
        const long long before = liveAllocations();
        ZelDataResult_tags code = ZelData_NoData;
        ASSERT_FALSE(runsOutOfMemory(granted, [&] { code = findProblems(collection, findings); }));
        if (code == ZelData_Ok) {
            EXPECT_EQ(all, findings);
            break;
        }
        ASSERT_EQ(ZelData_OutOfMemory, code);
        EXPECT_TRUE(findings.empty());
        EXPECT_EQ(before, liveAllocations());
    }
    EXPECT_GT(granted, 0U);
}

} // namespace ZelInterchangeData

#endif
