/// @file
/// Where a file writer writes.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_OUTPUTPATH_H

#include <cstddef>
#include <string>

namespace fuzz {

/// A path of one of several kinds: usually a file with some content, or one that cannot be opened.
/// The file is in a folder of this process, which is removed when the process ends.
class OutputPath {
public:
    explicit OutputPath(std::size_t kind);

    const std::string& text() const { return text_; }
    /// What the file contains now; for a path with a zero byte, what the file named by the part
    /// before it contains.
    std::string contents() const;
    /// Whether the file has the same contents as before.
    bool isUntouched() const { return contents() == before_; }

private:
    std::string text_;
    std::string before_;
};

} // namespace fuzz

#endif
