/// @file
/// Runs a target over inputs from files, with any compiler.
///
///     replay FOLDER [FOLDER…]
///
/// Every file in the folders is one input. A folder that does not exist has none. Without any
/// input, the program fails; otherwise, that would look like a success.

#include "support/Target.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::is_directory(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.is_regular_file()) files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

/// Names the input first, so that the last line before a finding says which one it was.
void replay(const std::filesystem::path& file)
{
    std::printf("%s\n", file.filename().c_str());
    std::fflush(stdout);
    std::ifstream in(file, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(in), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int count, char** arguments)
{
    std::size_t inputs = 0;
    for (int i = 1; i < count; ++i) {
        for (const auto& file : filesIn(arguments[i])) {
            replay(file);
            ++inputs;
        }
    }
    std::printf("%zu inputs\n", inputs);
    return inputs == 0 ? 1 : 0;
}
