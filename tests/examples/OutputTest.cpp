/// @file
/// Where the program writes, and what it leaves there when it fails.

#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class OutputTest : public ProgramRunner {
protected:
    /// Runs @p script, where "$0" is the program and "$@" are its required options except the output.
    static RunResult shell(const std::string& script)
    {
        return runShell(script, {"--size", "1x1", "--length", "1"});
    }

    static void expectPacket(const std::string& text)
    {
        EXPECT_THAT(text, StartsWith("<?xml version=\"1.0\" encoding=\"utf-8\" ?><x:xmpmeta "));
        EXPECT_THAT(text, EndsWith("</x:xmpmeta>"));
    }
};

TEST_F(OutputTest, EarlierFileIsReplaced)
{
    write("out.xmp", std::string(100'000, 'x'));
    publish({});
    expectPacket(packet());
    EXPECT_EQ(names(), (std::vector<std::string>{"out.xmp"}));
}

TEST_F(OutputTest, EarlierFileStaysOnFailure)
{
    write("out.xmp", "old");
    expectFailure(run({}), "--length", {"out.xmp"});
    EXPECT_EQ(contentsOf(pathOf("out.xmp")), "old");
}

TEST_F(OutputTest, FileBeyondTheAllowedSizeIsAFailure)
{
    write("out.xmp", "old");
    const RunResult done = shell("ulimit -f 1; \"$0\" -o '" + pathOf("out.xmp") +
                                 "' \"$@\" --title '" + std::string(10'000, 't') + "'");
    expectFailure(done, "out.xmp", {"out.xmp"});
    EXPECT_EQ(contentsOf(pathOf("out.xmp")), "old");
}

TEST_F(OutputTest, FolderIsRefused)
{
    expectFailure(runAlone({"-o", pathOf("."), "--size", "1x1", "--length", "1"}), pathOf("."), {});
}

TEST_F(OutputTest, MissingFolderIsRefused)
{
    expectFailure(runAlone({"-o", pathOf("none/a"), "--size", "1x1", "--length", "1"}), "none/a",
                  {});
}

TEST_F(OutputTest, FileWithoutWritePermissionIsRefused)
{
    write("out.xmp", "old");
    fs::permissions(pathOf("out.xmp"), static_cast<fs::perms>(0444));
    // Permissions do not bind root, who replaces the file and keeps them.
    if (::geteuid() == 0) {
        publish({});
        expectPacket(packet());
    } else {
        expectFailure(run({"--length", "1"}), "out.xmp", {"out.xmp"});
        EXPECT_EQ(contentsOf(pathOf("out.xmp")), "old");
    }
    EXPECT_EQ(fs::status(pathOf("out.xmp")).permissions(), static_cast<fs::perms>(0444));
}

TEST_F(OutputTest, LinkStaysAndItsFileIsReplaced)
{
    write("real.xmp", "old");
    fs::create_symlink("real.xmp", pathOf("out.xmp"));
    publish({});
    EXPECT_TRUE(fs::is_symlink(pathOf("out.xmp")));
    expectPacket(contentsOf(pathOf("real.xmp")));
}

TEST_F(OutputTest, RelativeNameIsWrittenInTheCurrentFolder)
{
    const RunResult done = shell("cd '" + pathOf(".") + "' && \"$0\" -o out.xmp \"$@\"");
    EXPECT_EQ(done.status, 0) << done.err;
    expectPacket(packet());
}

TEST_F(OutputTest, LongFileNameIsWritten)
{
    const std::string name(255, 'n');
    EXPECT_EQ(runAlone({"-o", pathOf(name), "--size", "1x1", "--length", "1"}).status, 0);
    EXPECT_EQ(names(), (std::vector<std::string>{name}));
}

TEST_F(OutputTest, PipeIsWrittenDirectly)
{
    const RunResult done = shell("{ \"$0\" -o /dev/stdout \"$@\" || echo failed; } | cat");
    expectPacket(done.out);
    EXPECT_THAT(done.err,
                HasSubstr(std::to_string(done.out.size()) + " bytes written to /dev/stdout"));
}

TEST_F(OutputTest, NamedPipeIsWrittenDirectlyAndStays)
{
    const std::string pipe = pathOf("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const RunResult done = shell("cat '" + pipe + "' & \"$0\" -o '" + pipe + "' \"$@\"; wait");
    expectPacket(done.out);
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(names(), (std::vector<std::string>{"pipe"}));
}

TEST_F(OutputTest, OpenFileIsWrittenDirectly)
{
    const std::string file = write("out.xmp", "");
    const RunResult done = shell("\"$0\" -o /dev/stdout \"$@\" >'" + file + "'");
    EXPECT_EQ(done.status, 0) << done.err;
    expectPacket(packet());
    const RunResult more = shell("\"$0\" -o /dev/stdout \"$@\" >>'" + file + "'");
    EXPECT_EQ(more.status, 0) << more.err;
    EXPECT_THAT(packet(), HasSubstr("</x:xmpmeta><?xml "));
}

TEST_F(OutputTest, FullDeviceIsAFailureAndStays)
{
    expectFailure(runAlone({"-o", "/dev/full", "--size", "1x1", "--length", "1"}), "/dev/full", {});
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST_F(OutputTest, ClosedPipeIsAFailure)
{
    const std::string pipe = pathOf("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    // The reader closes its end at once; the packet is larger than the buffer of a pipe.
    const RunResult done =
        shell("true <'" + pipe + "' & \"$0\" -o '" + pipe + "' \"$@\" --title \"$(" +
              "head -c 100000 /dev/zero | tr '\\0' t)\"");
    expectFailure(done, "pipe", {"pipe"});
}

TEST_F(OutputTest, NullDeviceIsWrittenAndStays)
{
    EXPECT_EQ(runAlone({"-o", "/dev/null", "--size", "1x1", "--length", "1"}).status, 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

} // namespace
