/// @file
/// Replacing a file, as on every system.

#include "ZelInterchangeData/ZelDataReplaceFile.h"

#include "core/FileReplacement.h"
#include "core/SampleSets.h"
#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"
#include "support/ScratchFolder.h"

#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#ifndef _WIN32
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);
using Names = std::vector<std::string>;

/// A document that writes what a test says.
class Scripted : public ZelDataCoreXmp {
public:
    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags format,
                                   bool append) const override
    {
        EXPECT_EQ(xmp, format);
        EXPECT_FALSE(append);
        setLastError(ZelData_NoData);
        return write(out);
    }

    std::function<ZelDataResult_tags(std::string&)> write = [](std::string& out) {
        out = "text";
        return ZelData_Ok;
    };
};

/// A folder with the file of a test.
class ReplaceFile : public ::testing::Test {
protected:
    /// Expects that replacing the file with @p document gives @p code and no error of the system, and
    /// leaves the folder as it was.
    void expectRefused(ZelDataResult_tags code, const i_ZelInterchangeDataCore& document,
                       ZelDataFormatType_tags format = xmp) const
    {
        put("kept");
        int systemError = -1;
        EXPECT_EQ(code, replaceFile(document, path(), systemError, format));
        EXPECT_EQ(0, systemError);
        EXPECT_EQ("kept", bytes());
        EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
    }

    /// The error of the system that writing to @p path gives.
    std::error_code errorAt(const std::string& path) const
    {
        int systemError = -1;
        EXPECT_EQ(ZelData_FileOpenFailed, replaceFile(Scripted(), path, systemError)) << path;
        return {systemError, std::system_category()};
    }

    std::string path() const { return folder_.pathOf("talk.xmp"); }
    std::string bytes() const { return bytesOf(std::filesystem::u8path(path())); }
    void put(const std::string& bytes) const
    {
        std::ofstream(std::filesystem::u8path(path()), std::ios::binary) << bytes;
    }

    ScratchFolder folder_;
};

/// Expects that @p document writes the same bytes to @p path as to another file.
void expectBytesOfWriteFile(const i_ZelInterchangeDataCore& document, const std::string& path)
{
    const TempFile other;
    int systemError = -1;
    EXPECT_EQ(ZelData_Ok, document.writeFile(other.path(), xmp, false));
    EXPECT_EQ(ZelData_Ok, replaceFile(document, path, systemError));
    EXPECT_EQ(0, systemError);
    EXPECT_EQ(withoutDate(other.bytes()), withoutDate(bytesOf(std::filesystem::u8path(path))));
}

template <class Document>
void expectBytesOfWriteFile(const std::string& path)
{
    Document document;
    const auto header = sampleHeader();
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*header));
    EXPECT_EQ(ZelData_Ok, document.setDataCaptions(*sampleCaptions()));
    expectBytesOfWriteFile(document, path);
    EXPECT_EQ(ZelData_Ok, header->setAppName(std::string("Ann\0Bo", 6)));
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*header));
    expectBytesOfWriteFile(document, path);
}

TEST_F(ReplaceFile, WritesTheBytesOfWriteFile)
{
    expectBytesOfWriteFile<ZelDataCore>(path());
    expectBytesOfWriteFile<ZelDataCoreXmp>(path());
}

TEST_F(ReplaceFile, EndsAtTheFirstZeroByteOfThePacket)
{
    Scripted document;
    document.write = [](std::string& out) {
        out = std::string("te\0xt", 5);
        return ZelData_Ok;
    };
    int systemError = -1;
    EXPECT_EQ(ZelData_Ok, replaceFile(document, path(), systemError));
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\" ?>te", bytes());
}

TEST_F(ReplaceFile, ReplacesALongerFileAndLeavesNothingElse)
{
    put(std::string(100000, '?'));
    int systemError = -1;
    EXPECT_EQ(ZelData_Ok, replaceFile(Scripted(), path(), systemError));
    EXPECT_EQ(0, systemError);
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\" ?>text", bytes());
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}

TEST_F(ReplaceFile, NamesTheNewFileWithSixteenDigits)
{
    const std::string prefix = ".ZelInterchangeData-";
    const auto name = temporaryName<char>();
    EXPECT_EQ(prefix, name.substr(0, prefix.size()));
    EXPECT_EQ(prefix.size() + 16, name.size());
    EXPECT_EQ(std::string::npos, name.find_first_not_of("0123456789abcdef", prefix.size()));
}

TEST_F(ReplaceFile, TakesAPathInUtf8)
{
    const std::string name = "vid\u00E9o \u65E5\u672C\U0001F3AC.xmp";
    for (int times = 0; times != 2; ++times) {
        int systemError = -1;
        EXPECT_EQ(ZelData_Ok, replaceFile(Scripted(), folder_.pathOf(name), systemError));
        EXPECT_EQ(Names{name}, folder_.names());
    }
}

TEST_F(ReplaceFile, WritesInTheWorkingFolder)
{
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(std::filesystem::u8path(folder_.path()));
    int systemError = -1;
    EXPECT_EQ(ZelData_Ok, replaceFile(Scripted(), "talk.xmp", systemError));
    EXPECT_EQ(ZelData_Ok, replaceFile(Scripted(), "talk.xmp", systemError));
    std::filesystem::current_path(before);
    EXPECT_EQ(0, systemError);
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}

TEST_F(ReplaceFile, ReturnsTheCodeOfADocumentThatCannotBeWritten)
{
    expectRefused(ZelData_InvalidArgument, ZelDataCore());
    expectRefused(ZelData_InvalidArgument, ZelDataCoreXmp());
    expectRefused(ZelData_UnsupportedFormat, ZelDataCore(), static_cast<ZelDataFormatType_tags>(2));
    Scripted document;
    document.write = [](std::string&) { return ZelData_WarnTiming; };
    expectRefused(ZelData_WarnTiming, document);
}

TEST_F(ReplaceFile, TurnsExceptionsOfADocumentIntoCodes)
{
    Scripted document;
    document.write = [](std::string&) -> ZelDataResult_tags { throw std::runtime_error(""); };
    expectRefused(ZelData_InternalError, document);
    document.write = [](std::string&) -> ZelDataResult_tags { throw std::bad_alloc(); };
    expectRefused(ZelData_OutOfMemory, document);
}

TEST_F(ReplaceFile, StoresNoLastErrorItself)
{
    ZelDataCore document;
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*plainHeader()));
    document.setLastError(untouched);
    int systemError = -1;
    EXPECT_EQ(ZelData_Ok, replaceFile(document, path(), systemError));
    EXPECT_EQ(ZelData_FileOpenFailed, replaceFile(document, "", systemError));
    EXPECT_EQ(untouched, document.getLastError());
    const Scripted other;
    EXPECT_EQ(ZelData_Ok, replaceFile(other, path(), systemError));
    EXPECT_EQ(ZelData_NoData, other.getLastError());
}

TEST_F(ReplaceFile, ReportsWhyTheFileCannotBeMade)
{
    using std::errc;
    EXPECT_EQ(errc::no_such_file_or_directory, errorAt(folder_.pathOf("missing/talk.xmp")));
    EXPECT_EQ(errc::no_such_file_or_directory, errorAt(""));
    EXPECT_NE(std::error_code(), errorAt(folder_.pathOf(std::string(300, 'n'))));
    EXPECT_NE(std::error_code(), errorAt(folder_.pathOf(std::string(100000, 'n'))));
    EXPECT_TRUE(folder_.isEmpty());
}

TEST_F(ReplaceFile, RefusesAFolder)
{
#ifdef _WIN32
    constexpr auto expected = std::errc::permission_denied;
#else
    constexpr auto expected = std::errc::is_a_directory;
#endif
    EXPECT_EQ(expected, errorAt(folder_.path()));
    EXPECT_EQ(expected, errorAt(folder_.path() + "/"));
    EXPECT_EQ(expected, errorAt("."));
    EXPECT_TRUE(folder_.isEmpty());
}

TEST_F(ReplaceFile, RefusesAPathWithAZeroByteAndTouchesNoFile)
{
    put("kept");
    EXPECT_NE(std::error_code(), errorAt(path() + std::string("\0.xmp", 5)));
    EXPECT_NE(std::error_code(), errorAt(std::string(1, '\0') + path()));
    EXPECT_EQ("kept", bytes());
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}

TEST_F(ReplaceFile, WithoutMemoryLeavesTheFolderAsItWas)
{
    put("kept");
    const std::string path = this->path(); // needs memory itself
    ZelDataCore document;
    EXPECT_EQ(ZelData_Ok, document.setDataHeader(*sampleHeader()));
    int systemError = -1;
    EXPECT_EQ(ZelData_FileOpenFailed, replaceFile(document, "", systemError)); // what stays once
    for (const auto shortage : {Shortage::Once, Shortage::Lasting}) {
        std::size_t granted = 0;
        for (bool failed = true; failed; ++granted) {
            SCOPED_TRACE(granted);
            auto code = untouched;
            const auto live = liveAllocations();
            {
                const FailingAllocation failing(granted, shortage);
                code = replaceFile(document, path, systemError);
                failed = failing.failed();
            }
            EXPECT_EQ(live, liveAllocations());
            ASSERT_EQ(failed ? ZelData_OutOfMemory : ZelData_Ok, code);
            EXPECT_EQ(0, systemError);
            EXPECT_EQ(failed, bytes() == "kept");
            EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
        }
        EXPECT_GT(granted, 10U);
        put("kept");
    }
}

#ifdef _WIN32
TEST_F(ReplaceFile, RefusesAPathThatIsNotUtf8)
{
    for (const char* name : {"\xFF", "\xC3", "\xED\xA0\x80", "\xC0\xAF"})
        EXPECT_NE(std::error_code(), errorAt(folder_.pathOf(name)));
    EXPECT_TRUE(folder_.isEmpty());
}

TEST_F(ReplaceFile, RefusesADeviceAndAFileThatIsReadOnly)
{
    constexpr int notSupported = 50; // ERROR_NOT_SUPPORTED
    EXPECT_EQ(notSupported, errorAt("NUL").value());
    put("kept");
    const auto file = std::filesystem::u8path(path());
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_EQ(std::errc::permission_denied, errorAt(path()));
    std::filesystem::permissions(file, std::filesystem::perms::all);
    EXPECT_EQ("kept", bytes());
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}
#else
// Links, permissions, and what is no regular file

namespace fs = std::filesystem;

class ReplacePosixFile : public ReplaceFile {
protected:
    ReplacePosixFile() { put("old"); }

    /// The number of the system's error, or 0 if the file was written.
    static int replace(const std::string& path)
    {
        int systemError = -1;
        const auto code = replaceFile(Scripted(), path, systemError);
        EXPECT_EQ(systemError == 0 ? ZelData_Ok : ZelData_FileOpenFailed, code);
        return systemError;
    }
    static void expectWritten(const std::string& path)
    {
        EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\" ?>text", bytesOf(path));
    }
};

mode_t permissionsOf(const std::string& path)
{
    struct stat status {};
    EXPECT_EQ(0, stat(path.c_str(), &status)) << path;
    return status.st_mode & 07777U;
}

TEST_F(ReplacePosixFile, KeepsThePermissions)
{
    for (const mode_t mode : {0600U, 0640U, 0664U, 0666U, 0755U, 0777U}) {
        ASSERT_EQ(0, chmod(path().c_str(), mode));
        EXPECT_EQ(0, replace(path()));
        EXPECT_EQ(mode, permissionsOf(path()));
    }
}

TEST_F(ReplacePosixFile, GivesANewFileThePermissionsOfNewFiles)
{
    for (const mode_t mask : {0U, 0027U, 0077U, 0777U}) {
        fs::remove(path());
        const mode_t before = umask(mask);
        EXPECT_EQ(0, replace(path()));
        EXPECT_EQ(mask, umask(before));
        EXPECT_EQ(0666U & ~mask, permissionsOf(path()));
    }
}

TEST_F(ReplacePosixFile, LeavesAnotherNameOfTheFileAlone)
{
    fs::create_hard_link(path(), folder_.pathOf("other"));
    EXPECT_EQ(0, replace(path()));
    expectWritten(path());
    EXPECT_EQ("old", bytesOf(folder_.pathOf("other")));
}

TEST_F(ReplacePosixFile, FollowsLinks)
{
    fs::create_directory(folder_.pathOf("sub"));
    fs::create_symlink("../talk.xmp", folder_.pathOf("sub/relative"));
    fs::create_symlink(fs::absolute(folder_.pathOf("sub/relative")), folder_.pathOf("absolute"));
    EXPECT_EQ(0, replace(folder_.pathOf("absolute")));
    EXPECT_TRUE(fs::is_symlink(folder_.pathOf("absolute")));
    EXPECT_TRUE(fs::is_symlink(folder_.pathOf("sub/relative")));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(path())));
    expectWritten(path());
    EXPECT_EQ(3U, folder_.names().size());
}

TEST_F(ReplacePosixFile, FollowsTheLongestLink)
{
    constexpr std::size_t longest = 4095; // of Linux; other systems have shorter ones
    const std::string name(200, 'n');     // the path of a file with a short one would be too long
    std::string target = fs::absolute(folder_.path()).string();
    while (target.size() + name.size() + 2 < longest)
        target += "/.";
    target.append(longest - target.size() - name.size(), '/').append(name);
    std::error_code refused;
    fs::create_symlink(target, folder_.pathOf("longest"), refused);
    if (refused) return; // by a system with shorter links
    EXPECT_EQ(0, replace(folder_.pathOf("longest")));
    EXPECT_TRUE(fs::is_symlink(folder_.pathOf("longest")));
    expectWritten(folder_.pathOf(name));
}

TEST_F(ReplacePosixFile, FollowsAsManyLinksAsTheSystem)
{
    std::string last = "talk.xmp";
    for (int links = 1; links != 100; ++links) {
        const std::string next = "link" + std::to_string(links);
        fs::create_symlink(last, folder_.pathOf(next));
        last = next;
        struct stat status {};
        const bool isFollowed = stat(folder_.pathOf(last).c_str(), &status) == 0;
        ASSERT_EQ(isFollowed ? 0 : ELOOP, replace(folder_.pathOf(last))) << links;
        if (!isFollowed) return;
    }
    FAIL() << "the system follows any number of links";
}

TEST_F(ReplacePosixFile, MakesTheFileThatALinkLeadsTo)
{
    fs::create_directory(folder_.pathOf("sub"));
    fs::create_symlink("sub/new", folder_.pathOf("link"));
    EXPECT_EQ(0, replace(folder_.pathOf("link")));
    EXPECT_TRUE(fs::is_symlink(folder_.pathOf("link")));
    expectWritten(folder_.pathOf("sub/new"));
}

TEST_F(ReplacePosixFile, RefusesLinksInACircleAndThoseToAFolder)
{
    fs::create_symlink("b", folder_.pathOf("a"));
    fs::create_symlink("a", folder_.pathOf("b"));
    EXPECT_EQ(ELOOP, replace(folder_.pathOf("a")));
    fs::create_symlink(".", folder_.pathOf("here"));
    EXPECT_EQ(EISDIR, replace(folder_.pathOf("here")));
    EXPECT_EQ(4U, folder_.names().size());
}

// If it opened the pipe, the test would wait for a reader forever. Not with a device of the machine: a
// library with a defect, run as root, would replace it.
TEST_F(ReplacePosixFile, RefusesAPipeWithoutOpeningIt)
{
    const std::string pipe = folder_.pathOf("pipe");
    ASSERT_EQ(0, mkfifo(pipe.c_str(), 0600));
    EXPECT_EQ(ENOTSUP, replace(pipe));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(2U, folder_.names().size());
}

#ifdef __linux__
TEST_F(ReplacePosixFile, RefusesLinksToOpenFiles)
{
    const int file = ::open(path().c_str(), O_WRONLY);
    ASSERT_GE(file, 0);
    const std::string number = std::to_string(file);
    fs::create_symlink("/dev/fd/" + number, folder_.pathOf("link"));
    EXPECT_EQ(ENOTSUP, replace("/dev/fd/" + number));
    EXPECT_EQ(ENOTSUP, replace("/proc/self/fd/" + number));
    EXPECT_EQ(ENOTSUP, replace(folder_.pathOf("link")));
    EXPECT_EQ("old", bytes());
    fs::remove(path());
    EXPECT_EQ(ENOTSUP, replace("/dev/fd/" + number));
    ::close(file);
    EXPECT_EQ(Names{"link"}, folder_.names());
}
#endif

TEST_F(ReplacePosixFile, DoesNotTakeAFileForAFolder)
{
    EXPECT_EQ(ENOTDIR, replace(path() + "/file"));
    EXPECT_EQ(ENOTDIR, replace(path() + "/"));
    EXPECT_EQ(ENOENT, replace(folder_.pathOf("missing/")));
    EXPECT_EQ("old", bytes());
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}

TEST_F(ReplacePosixFile, TakesTheLongestName)
{
    EXPECT_EQ(0, replace(folder_.pathOf(std::string(255, 'n'))));
    EXPECT_EQ(ENAMETOOLONG, replace(folder_.pathOf(std::string(256, 'n'))));
    EXPECT_EQ(2U, folder_.names().size());
}

TEST_F(ReplacePosixFile, ClosesADescriptorThatIsZero)
{
    const int input = dup(STDIN_FILENO);
    close(STDIN_FILENO); // so that the next file to be opened has its number
    const int found = replace(path());
    const bool isClosed = fcntl(STDIN_FILENO, F_GETFD) == -1;
    dup2(input, STDIN_FILENO);
    close(input);
    EXPECT_EQ(0, found);
    EXPECT_TRUE(isClosed);
    expectWritten(path());
}

TEST_F(ReplacePosixFile, ReportsALimitOfFileSizesAndLeavesTheFolderAsItWas)
{
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual = {};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &usual));
    const rlimit small = {20, usual.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &small));
    const int found = replace(path());
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, before);
    EXPECT_EQ(EFBIG, found);
    EXPECT_EQ("old", bytes());
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}
#endif

} // namespace
} // namespace ZelInterchangeData
