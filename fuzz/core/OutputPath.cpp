/// @file
/// See OutputPath.h.

#include "core/OutputPath.h"

#include "support/Require.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fuzz {

namespace {

/// A folder of this process, in memory where the system has such a place.
class Folder {
public:
    Folder()
    {
        const std::filesystem::path memory = "/dev/shm";
        const auto base =
            std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
        path_ = base / "zel-fuzz-XXXXXX";
        require(mkdtemp(path_.data()) != nullptr, "no folder can be made");
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::string& path() const { return path_; }

private:
    std::string path_;
};

std::string pathOf(std::size_t kind)
{
    static const Folder folder;
    std::string file = folder.path() + "/packet.xmp";
    switch (kind % 8) {
    case 0:
        return {};
    case 1:
        return folder.path();
    case 2:
        return folder.path() + "/missing/packet.xmp";
    case 3:
        return file + '\0' + "tail";
    default:
        return file;
    }
}

} // namespace

OutputPath::OutputPath(std::size_t kind) : text_(pathOf(kind))
{
    if (kind % 8 >= 3) std::ofstream(text_.c_str(), std::ios::binary) << "before";
    before_ = contents();
}

std::string OutputPath::contents() const
{
    if (!std::filesystem::is_regular_file(text_.c_str())) return "no file";
    std::ifstream in(text_.c_str(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

} // namespace fuzz
