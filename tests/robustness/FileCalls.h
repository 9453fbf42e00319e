/// @file
/// Records the system's calls for files, and makes one of them fail.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FILECALLS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_FILECALLS_H

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace ZelInterchangeData {

/// While an object exists, the calls that open, close, flush and rename files and change who may use
/// them go through it, in this test program and in the libraries that it loads. Only one may exist
/// at a time.
class FileCalls {
public:
    static constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

    /// Makes @p times calls fail with the error number @p error, from the one with the index
    /// @p failing on, counted from 0. A call to close a file closes it first.
    explicit FileCalls(std::size_t failing = none, int error = 0, std::size_t times = 1);
    ~FileCalls();
    FileCalls(const FileCalls&) = delete;
    FileCalls& operator=(const FileCalls&) = delete;

    /// The names of the calls so far.
    [[nodiscard]] std::vector<std::string> names() const;
    /// The permissions that a file had when fchmod() was called.
    [[nodiscard]] unsigned permissionsBefore() const;
};

} // namespace ZelInterchangeData

#endif
