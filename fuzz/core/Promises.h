/// @file
/// What is promised of findings.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_PROMISES_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_PROMISES_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "support/Require.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace fuzz {

using Findings = std::vector<ZelInterchangeData::ZelDataFinding>;

/// Requires that @p finding has a name and a description of one line.
inline void requireDescription(const ZelInterchangeData::ZelDataFinding& finding)
{
    const std::string line = ZelInterchangeData::describe(finding);
    const bool isOneLine = std::none_of(line.begin(), line.end(), [](char character) {
        return static_cast<unsigned char>(character) < ' ';
    });
    require(isOneLine, "a finding has more than one line");
    const std::string unknown = toString(static_cast<decltype(finding.kind)>(0));
    require(toString(finding.kind) != unknown, "a finding has no name");
}

/// The findings of @p set; nothing if a set of a document cannot be copied.
template <class Set>
std::optional<Findings> problemsOf(const Set& set)
{
    Findings findings;
    if (findProblems(set, findings) != ZelInterchangeData::ZelData_Ok) return std::nullopt;
    for (const auto& finding : findings)
        requireDescription(finding);
    return findings;
}

inline bool hasErrors(const Findings& findings)
{
    return std::any_of(findings.begin(), findings.end(), [](const auto& finding) {
        return severityOf(finding) == ZelInterchangeData::ZelDataFindingSeverity_Error;
    });
}

/// Requires that the findings of our own collection agree with isValid().
template <class Set>
void requireAgreement(const Set& set)
{
    const auto findings = problemsOf(set);
    require(findings.has_value(), "a collection cannot be checked");
    const auto expected =
        findings->empty() ? ZelInterchangeData::ZelData_Ok : codeOf(findings->front());
    require(set.isValid(true) == expected, "isValid() and findProblems() disagree");
}

/// For a header, isValid() looks for missing sizes only.
inline void requireAgreement(const ZelInterchangeData::i_ZelDataHeader& header)
{
    const auto findings = problemsOf(header);
    require(findings.has_value(), "a header cannot be checked");
    const auto found = std::find_if(findings->begin(), findings->end(), [](const auto& finding) {
        return finding.kind == ZelInterchangeData::ZelDataFinding_SizeMissing;
    });
    const auto expected =
        found == findings->end() ? ZelInterchangeData::ZelData_Ok : codeOf(*found);
    require(header.isValid() == expected, "isValid() and findProblems() disagree");
}

/// Requires that our own document can be written if it can be checked and no finding is an error.
inline void requireAgreement(const ZelInterchangeData::i_ZelInterchangeDataCore& document)
{
    const auto findings = problemsOf(document);
    if (!findings || hasErrors(*findings)) return;
    std::string packet;
    require(document.writeString(packet, ZelInterchangeData::ZelDataFormat_Xmp, false) ==
                ZelInterchangeData::ZelData_Ok,
            "writeString() and findProblems() disagree");
}

} // namespace fuzz

#endif
