/// @file
/// What belongs to the whole process and not to a library.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_PROCESSSTATE_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_PROCESSSTATE_H

#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {

/// Names and values.
using ProcessState = std::vector<std::pair<std::string, std::string>>;

/// The state at this moment: the locales of C and C++, the environment, the folder, the umask, user and
/// groups, threads, signals and their handlers, limits and timers, open descriptors, the floating-point
/// environment, the standard streams, and the handlers of C++.
ProcessState processState();

/// The names and values that differ; empty when none does.
std::string difference(const ProcessState& before, const ProcessState& after);

} // namespace ZelInterchangeData

#endif
