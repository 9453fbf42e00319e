/// @file
/// How a target reports a finding.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_REQUIRE_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_REQUIRE_H

#include <cstdio>
#include <cstdlib>
#include <string>

namespace fuzz {

/// Prints @p finding to standard error and ends the process. The program that runs the target keeps
/// the input.
[[noreturn]] inline void report(const std::string& finding)
{
    std::fprintf(stderr, "finding: %s\n", finding.c_str());
    std::abort();
}

/// Reports @p finding unless @p holds.
inline void require(bool holds, const char* finding)
{
    if (!holds) report(finding);
}

/// Reports @p finding with both texts unless they are equal.
inline void requireEqual(const std::string& expected, const std::string& actual,
                         const char* finding)
{
    if (expected == actual) return;
    report(std::string(finding) + "\n  expected: " + expected + "\n  actual:   " + actual);
}

} // namespace fuzz

#endif
