/// @file
/// Where a file writer writes.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H

#include <cstddef>
#include <string>

namespace fuzz {

/// A path of one of several kinds: usually a file with some content, or one that cannot be opened.
/// The file is in a folder of this process, which is removed with it.
class OutputPath {
public:
    explicit OutputPath(std::size_t kind);

    const std::string& text() const { return text_; }
    /// What the file holds now; for a path with a zero byte, the file named by the part before it.
    std::string contents() const;
    /// Whether the file holds what it held before.
    bool isUntouched() const { return contents() == before_; }

private:
    std::string text_;
    std::string before_;
};

} // namespace fuzz

#endif
