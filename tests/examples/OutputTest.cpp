/// @file
/// Where the program writes, and what it leaves there when it fails.

#include "Preview.h"
#include "examples/ProgramRunner.h"

#include <gmock/gmock.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
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
                HasSubstr("/dev/stdout: " + std::to_string(done.out.size()) + " bytes written\n"));
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

TEST_F(OutputTest, HyphenIsStandardOutput)
{
    const RunResult done = shell("cd '" + pathOf(".") + "' && \"$0\" -o - \"$@\"");
    EXPECT_EQ(done.status, 0);
    expectPacket(done.out);
    EXPECT_THAT(done.err, StartsWith("standard output: " + std::to_string(done.out.size()) +
                                     " bytes written\n"));
    EXPECT_TRUE(names().empty());
}

TEST_F(OutputTest, StandardOutputThatCannotBeWrittenIsAFailure)
{
    const std::string cause = "standard output: cannot be written: ";
    expectFailure(shell("\"$0\" -o - \"$@\" >/dev/full"), cause + "No space left on device", {});
    expectFailure(shell("\"$0\" -o - \"$@\" >&-"), cause + "Bad file descriptor", {});
}

TEST_F(OutputTest, FullDiskIsNamed)
{
    expectFailure(runAlone({"-o", "/dev/full", "--size", "1x1", "--length", "1"}),
                  "/dev/full: cannot be written: No space left on device", {});
}

TEST_F(OutputTest, FileToReadIsNotOverwrittenUnderAnyName)
{
    const std::string cues = "00:01.000 --> 00:02.000\nx\n";
    const std::string film = write("film.srt", cues);
    fs::create_symlink("film.srt", pathOf("link"));
    fs::create_hard_link(film, pathOf("twin"));
    const std::vector<std::string> left{"film.srt", "link", "twin"};
    const auto refusal = [](const std::string& option, const std::string& file) {
        return option + ": " + file + " is an input file, ";
    };
    for (const std::string& name : {film, pathOf("./film.srt"), pathOf("link"), pathOf("twin")}) {
        expectFailure(runAlone({"-o", name, "--size", "1x1", "en=" + film}),
                      refusal("--output", name) + film, left);
        expectFailure(runAlone({"-o", name, "--size", "1x1", "--toc", film}),
                      refusal("--output", name), left);
        expectFailure(runAlone({"-o", name, "--size", "1x1", "--screen-text", film}),
                      refusal("--output", name), left);
        for (const std::string option : {"--report", "--preview"})
            expectFailure(run({option, name, "en=" + film}), refusal(option, name), left);
    }
    expectFailure(shell("\"$0\" -o - \"$@\" en='" + film + "' >>'" + film + "'"),
                  refusal("--output", "standard output"), left);
    EXPECT_EQ(contentsOf(film), cues);
}

TEST_F(OutputTest, PreviewHoldsThePacketThatWasWrittenAndTheReport)
{
    const std::string page = pathOf("page.html");
    const std::string report = pathOf("report.json");
    const auto expected = [&](const std::string& packet) {
        return publish::previewPage(packet, contentsOf(report));
    };
    EXPECT_EQ(run({"--length", "1", "--report", report, "--preview", page}).status, 0);
    EXPECT_EQ(contentsOf(page), expected(contentsOf(pathOf("out.xmp"))));
    const RunResult printed = run({"--length", "1", "--preview", "-"});
    EXPECT_EQ(printed.out, expected(contentsOf(pathOf("out.xmp"))));
    const RunResult both =
        shell("\"$0\" -o - --report '" + report + "' --preview '" + page + "' \"$@\"");
    EXPECT_EQ(contentsOf(page), expected(both.out));
}

TEST_F(OutputTest, PreviewThatCannotBeWrittenIsAFailure)
{
    const RunResult done = run({"--length", "1", "--preview", "/dev/full"});
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(done.err, HasSubstr("publish_video: /dev/full: cannot be written: No space left"));
    EXPECT_EQ(names(), (std::vector<std::string>{"out.xmp"}));
}

TEST_F(OutputTest, DeviceMayBeReadAndWritten)
{
    EXPECT_EQ(
        runAlone({"-o", "/dev/null", "--size", "1x1", "--length", "1", "en=/dev/null"}).status, 0);
}

TEST_F(OutputTest, PacketReportAndPreviewAreThreeFiles)
{
    const std::string named = "is the file of --output";
    expectFailure(run({"--length", "1", "--report", pathOf("./out.xmp")}), named, {});
    expectFailure(
        shell("cd '" + pathOf(".") + "' && \"$0\" -o out.xmp --report \"$PWD/out.xmp\" \"$@\""),
        named, {});
    expectFailure(shell("\"$0\" -o - --report - \"$@\""), named, {});
    expectFailure(shell("\"$0\" -o - --report /dev/stdout \"$@\""), named, {});
    const std::string page = pathOf("page");
    expectFailure(run({"--length", "1", "--preview", page, "--report", pathOf("./page")}),
                  "--preview: " + page + " is the file of --report", {});
    write("out.xmp", "old");
    fs::create_hard_link(pathOf("out.xmp"), pathOf("twin"));
    for (const std::string option : {"--report", "--preview"})
        expectFailure(run({"--length", "1", option, pathOf("twin")}), named, {"out.xmp", "twin"});
    EXPECT_EQ(contentsOf(pathOf("out.xmp")), "old");
}

TEST_F(OutputTest, LinksToAMissingFileAreThatFile)
{
    fs::create_symlink("new.xmp", pathOf("link"));
    fs::create_symlink("link", pathOf("longer"));
    const std::vector<std::string> left{"link", "longer"};
    const auto runWith = [&](const std::string& output, const std::string& report) {
        return runAlone(
            {"-o", output, "--size", "1x1", "--length", "1", "--report", pathOf(report)});
    };
    expectFailure(runWith(pathOf("new.xmp"), "longer"), "is the file of --output", left);
    expectFailure(runWith(pathOf("longer"), "new.xmp"), "is the file of --output", left);
    expectFailure(runWith(pathOf("longer"), "link"), "is the file of --output", left);
    fs::create_symlink("circle", pathOf("circle"));
    EXPECT_EQ(runWith(pathOf("circle"), "new.xmp").status, 2);
}

/// The program as another user, because permissions do not bind root.
const std::string asOrdinaryUser =
    "user=; [ \"$(id -u)\" != 0 ] || user='setpriv --reuid 65534 --regid 65534 --clear-groups'; ";

TEST_F(OutputTest, FolderWhoseParentsCannotBeSearchedIsWritten)
{
    if (runShell(asOrdinaryUser + "$user \"$0\" --version", {}).status != 0)
        GTEST_SKIP() << "An ordinary user cannot run the program.";
    fs::create_directories(pathOf("closed/open"));
    fs::permissions(pathOf("closed/open"), fs::perms::all);
    const RunResult done =
        shell(asOrdinaryUser + "cd '" + pathOf("closed/open") +
              "' && chmod 0 .. && $user \"$0\" -o out.xmp --report report.json \"$@\"");
    fs::permissions(pathOf("closed"), fs::perms::owner_all);
    EXPECT_EQ(done.status, 0) << done.err;
    expectPacket(contentsOf(pathOf("closed/open/out.xmp")));
    EXPECT_TRUE(fs::exists(pathOf("closed/open/report.json")));
}

TEST_F(OutputTest, PreviewHoldsThePacketOfAFileThatMayNotBeRead)
{
    if (runShell(asOrdinaryUser + "$user \"$0\" --version", {}).status != 0)
        GTEST_SKIP() << "An ordinary user cannot run the program.";
    fs::create_directory(pathOf("open"));
    fs::permissions(pathOf("open"), fs::perms::all);
    std::string page;
    std::string expected = "none";
    // The program writes the packet twice, perhaps in two different seconds.
    for (int attempt = 0; page != expected && attempt != 5; ++attempt) {
        const RunResult done = shell(asOrdinaryUser + "cd '" + pathOf("open") +
                                     "' && $user touch out.xmp && $user chmod 200 out.xmp && "
                                     "$user \"$0\" -o out.xmp --report report.json "
                                     "--preview page.html \"$@\"");
        EXPECT_EQ(done.status, 0) << done.err;
        page = contentsOf(pathOf("open/page.html"));
        expected = publish::previewPage(contentsOf(pathOf("open/out.xmp")),
                                        contentsOf(pathOf("open/report.json")));
    }
    EXPECT_TRUE(page == expected);
}

#ifdef __has_feature
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define __SANITIZE_ADDRESS__ 1 // as g++ does
#endif
#endif

TEST_F(OutputTest, ExhaustedMemoryIsNamed)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "Sanitizers need more memory than the program may have.";
#endif
    const std::string large = write("large.srt", "");
    fs::resize_file(large, 100'000'000);
    expectFailure(runShell("ulimit -v 150000; \"$0\" -o '" + pathOf("out.xmp") +
                               "' --size 1x1 en='" + large + "'",
                           {}),
                  "publish_video: out of memory\n", {"large.srt"});
}

class SignalTest : public OutputTest {
protected:
    /// Sends @p signal to the process when the library has made its own file beside the packet's, and
    /// sets @p wasSeen; does nothing if the process ends before.
    void interrupt(int process, int signal, bool& wasSeen) const
    {
        const auto isRunning = [&] {
            siginfo_t info{};
            ::waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT);
            return info.si_pid == 0;
        };
        while (!wasSeen && isRunning())
            wasSeen = names().front() != "big.srt";
        if (wasSeen) ::kill(process, signal);
    }
};

TEST_F(SignalTest, NoOtherFileIsLeftBesideThePacket)
{
    const std::string big =
        write("big.srt", "00:01.000 --> 00:02.000\n" + std::string(1'000'000, 'x') + "\n");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        int status = 0;
        // The process may end before the signal arrives.
        for (int attempt = 0; status == 0 && attempt != 20; ++attempt) {
            fs::remove(pathOf("out.xmp"));
            bool wasSeen = false;
            status =
                runAlone({"-o", pathOf("out.xmp"), "--size", "1x1", "en=" + big}, [&](int process) {
                    interrupt(process, signal, wasSeen);
                }).status;
            ASSERT_EQ(names(), (std::vector<std::string>{"big.srt", "out.xmp"}));
            expectPacket(contentsOf(pathOf("out.xmp")));
        }
        EXPECT_EQ(status, -signal);
    }
}

} // namespace
