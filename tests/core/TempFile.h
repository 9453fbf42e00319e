/// @file
/// A path for a test to write to.

#ifndef ZELINTERCHANGEDATA_TESTS_CORE_TEMPFILE_H
#define ZELINTERCHANGEDATA_TESTS_CORE_TEMPFILE_H

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace ZelInterchangeData {

/// All bytes of the file at @p path.
inline std::string bytesOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// A path that no other test uses, in UTF-8 and with characters outside ASCII. The destructor removes what is
/// there.
class TempFile {
public:
    TempFile()
        : path_(::testing::TempDir() + "vid\u00E9o-\u65E5\u672C-" +
                std::to_string(std::random_device()()) + "-" +
                std::to_string(std::random_device()()))
    {
    }
    ~TempFile()
    {
        std::error_code ignored;
        std::filesystem::remove(systemPath(), ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::string& path() const { return path_; }
    bool exists() const { return std::filesystem::exists(systemPath()); }
    std::string bytes() const { return bytesOf(systemPath()); }
    void fill(const std::string& bytes) const
    {
        std::ofstream(systemPath(), std::ios::binary) << bytes;
    }

private:
    std::filesystem::path systemPath() const { return std::filesystem::u8path(path_); }

    std::string path_;
};

} // namespace ZelInterchangeData

#endif
