/// @file
/// A file system that is soon full.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SMALLFILESYSTEM_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_SMALLFILESYSTEM_H

#include <cstddef>
#include <string>

namespace ZelInterchangeData {

/// Makes the file at @p path hold @p bytes.
void put(const std::string& path, const std::string& bytes);

/// Gives this process a file system of its own at @p folder that holds 16 KiB. Returns
/// nothing, or a refusal.
std::string mountSmallFileSystem(const std::string& folder);

/// Fills the file system at @p folder, which is empty, but for @p left bytes.
void fillUp(const std::string& folder, std::size_t left);

} // namespace ZelInterchangeData

#endif
