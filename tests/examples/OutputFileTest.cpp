/// @file
/// Replacing a file.

#include "OutputFile.h"

#include "PublishError.h"
#include "examples/ProgramRunner.h"

#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

using publish::PublishError;
using publish::replaceableFile;
using publish::ReplacementFile;
using publish::writeDirectly;

namespace {

class OutputFileTest : public ProgramRunner {};

void fill(const ReplacementFile& file, const std::string& bytes)
{
    std::ofstream stream(file.path(), std::ios::binary);
    stream << bytes;
}

TEST_F(OutputFileTest, RegularFileIsReplaceable)
{
    const fs::path file = write("a", "");
    EXPECT_EQ(replaceableFile(file), fs::canonical(file));
}

TEST_F(OutputFileTest, MissingFileIsReplaceable)
{
    EXPECT_EQ(replaceableFile(pathOf("a")), fs::canonical(pathOf(".")) / "a");
}

TEST_F(OutputFileTest, LinksAreFollowed)
{
    write("a", "");
    fs::create_symlink("a", pathOf("b"));
    fs::create_symlink(pathOf("b"), pathOf("c"));
    EXPECT_EQ(replaceableFile(pathOf("c")), fs::canonical(pathOf("a")));
}

TEST_F(OutputFileTest, LinkToAMissingFileIsFollowed)
{
    fs::create_symlink("a", pathOf("b"));
    EXPECT_EQ(replaceableFile(pathOf("b")), fs::canonical(pathOf(".")) / "a");
}

TEST_F(OutputFileTest, LinksInACircleAreRefused)
{
    fs::create_symlink("b", pathOf("a"));
    fs::create_symlink("a", pathOf("b"));
    EXPECT_THROW(replaceableFile(pathOf("a")), PublishError);
}

TEST_F(OutputFileTest, FoldersAreRefused)
{
    EXPECT_THROW(replaceableFile(pathOf(".")), PublishError);
    EXPECT_THROW(replaceableFile(pathOf("none/")), PublishError);
    EXPECT_THROW(replaceableFile(pathOf("none/a")), PublishError);
}

TEST_F(OutputFileTest, DevicesPipesAndOpenFilesAreNotReplaceable)
{
    ASSERT_EQ(::mkfifo(pathOf("pipe").c_str(), 0600), 0);
    EXPECT_EQ(replaceableFile(pathOf("pipe")), std::nullopt);
    EXPECT_EQ(replaceableFile("/dev/null"), std::nullopt);
    const int open = ::open(write("a", "").c_str(), O_WRONLY);
    ASSERT_GE(open, 0);
    EXPECT_EQ(replaceableFile("/proc/self/fd/" + std::to_string(open)), std::nullopt);
    EXPECT_EQ(replaceableFile("/dev/fd/" + std::to_string(open)), std::nullopt);
    ::close(open);
}

TEST_F(OutputFileTest, UnusedReplacementIsRemoved)
{
    {
        const ReplacementFile file(pathOf("a"), "a");
        EXPECT_EQ(names().size(), 1U);
    }
    EXPECT_TRUE(names().empty());
}

TEST_F(OutputFileTest, ReplacementReplacesTheFile)
{
    write("a", "old");
    ReplacementFile file(pathOf("a"), "a");
    fill(file, "newer");
    EXPECT_EQ(file.size(), 5U);
    EXPECT_EQ(contentsOf(pathOf("a")), "old");
    file.replace();
    EXPECT_EQ(contentsOf(pathOf("a")), "newer");
    EXPECT_EQ(names(), (std::vector<std::string>{"a"}));
}

TEST_F(OutputFileTest, ReplacementKeepsThePermissions)
{
    write("a", "old");
    fs::permissions(pathOf("a"), static_cast<fs::perms>(0640));
    ReplacementFile(pathOf("a"), "a").replace();
    EXPECT_EQ(fs::status(pathOf("a")).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(OutputFileTest, NewFileHasThePermissionsOfNewFiles)
{
    const mode_t mask = ::umask(027);
    ReplacementFile(pathOf("a"), "a").replace();
    ::umask(mask);
    EXPECT_EQ(fs::status(pathOf("a")).permissions(), static_cast<fs::perms>(0640));
}

TEST_F(OutputFileTest, FailedReplacementLeavesEverythingAsItWas)
{
    fs::create_directory(pathOf("a"));
    write("a/inside", "x");
    {
        ReplacementFile file(pathOf("a"), "a");
        EXPECT_THROW(file.replace(), PublishError);
    }
    EXPECT_EQ(names(), (std::vector<std::string>{"a"}));
    EXPECT_EQ(contentsOf(pathOf("a/inside")), "x");
}

TEST_F(OutputFileTest, ReplacementInAMissingFolderFails)
{
    EXPECT_THROW(ReplacementFile(pathOf("none/a"), "a"), PublishError);
}

TEST_F(OutputFileTest, DirectWritingReportsAFullDevice)
{
    EXPECT_THROW(writeDirectly("/dev/full", "x"), PublishError);
    EXPECT_NO_THROW(writeDirectly("/dev/null", "x"));
}

TEST_F(OutputFileTest, DirectWritingMakesNoFile)
{
    EXPECT_THROW(writeDirectly(pathOf("none"), "x"), PublishError);
    EXPECT_TRUE(names().empty());
}

} // namespace
