/// @file
/// Where a file writer writes.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H

#include <cstddef>
#include <string>

namespace fuzz {

/// A path of one of several kinds: a file with something in it, mostly, or one that cannot be
/// opened. The file lies in a folder of this process, which goes with it.
class OutputPath {
public:
    explicit OutputPath(std::size_t kind);

    const std::string& text() const { return text_; }
    /// What the file holds now; that of the part before a zero byte, too.
    std::string contents() const;
    /// Whether the file holds what it held before.
    bool isUntouched() const { return contents() == before_; }

private:
    std::string text_;
    std::string before_;
};

} // namespace fuzz

#endif
