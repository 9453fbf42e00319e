/// @file
/// A part of a test in a process of its own.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CHILDPROCESS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CHILDPROCESS_H

#include <functional>
#include <string>

namespace ZelInterchangeData {

/// What a child reports when it found nothing wrong.
inline const std::string fine = "fine";

/// Calls @p body in a child process, where it may change what belongs to the process: its user, its
/// limits, its mounts. Returns what it reports, or "died" and the status if the process ends first.
std::string inChild(const std::function<std::string()>& body);

/// Makes this process run as a user without rights. Returns whether it does.
bool becomeNobody();

/// How many descriptors of this process are open.
std::size_t openDescriptors();

/// What a child reports when the machine refuses @p what. The reason is in errno.
std::string refusal(const std::string& what);

/// Expects that a child succeeded. Prints a refusal, so that CTest counts the test as skipped.
void expectFine(const std::string& said);

} // namespace ZelInterchangeData

#endif
