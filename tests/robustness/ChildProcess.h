/// @file
/// A part of a test in a process of its own.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CHILDPROCESS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CHILDPROCESS_H

#include <functional>
#include <string>

namespace ZelInterchangeData {

/// What a child says when it got through without a finding.
inline const std::string fine = "fine";

/// What @p body says, called in a child process, so that it may change what belongs to the process:
/// its user, its limits, its mounts. "died" and the reason when it does not get so far.
std::string inChild(const std::function<std::string()>& body);

/// How many descriptors of this process are open.
std::size_t openDescriptors();

/// What a child says when the machine does not let it do @p what; errno says why.
std::string refusal(const std::string& what);

/// Expects that a child was fine. A refusal is printed, which makes CTest call the test skipped.
void expectFine(const std::string& said);

} // namespace ZelInterchangeData

#endif
