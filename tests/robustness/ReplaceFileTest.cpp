/// @file
/// Replacing a file when a step fails, in places that cannot take it, and as another user.

#include "ZelInterchangeData/ZelDataReplaceFile.h"

#include "robustness/ChildProcess.h"
#include "robustness/Contents.h"
#include "robustness/FileCalls.h"
#include "robustness/SmallFileSystem.h"
#include "robustness/Subjects.h"
#include "robustness/Writes.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace ZelInterchangeData {
namespace {

using Names = std::vector<std::string>;

/// A folder with the file "talk.xmp".
class FileReplacement : public ::testing::Test {
protected:
    FileReplacement() { put(path(), "old"); }
    ~FileReplacement() override { EXPECT_EQ(descriptors_, openDescriptors()); }

    /// The number of the system's error, or 0 if the file was written.
    int replace() const
    {
        int systemError = -1;
        const auto code = replaceFile(*document_, path(), systemError);
        EXPECT_EQ(systemError == 0 ? ZelData_Ok : ZelData_FileOpenFailed, code);
        return systemError;
    }

    /// What the file holds after success, without the date.
    std::string whole() const
    {
        const TempFile file;
        EXPECT_EQ(ZelData_Ok, document_->writeFile(file.path(), ZelDataFormat_Xmp, false));
        return dateMasked(file.bytes());
    }
    void expectWritten() const { EXPECT_EQ(whole(), dateMasked(bytesOf(path()))); }
    /// Expects that the file still holds what it held and that nothing is beside it.
    void expectOld() const
    {
        EXPECT_EQ("old", bytesOf(path()));
        EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
    }
    /// What a child reports whose attempt must give @p error.
    std::string judged(int error) const
    {
        const int found = replace();
        return found == error ? fine : "error " + std::to_string(found);
    }

    std::string path() const { return folder_.pathOf("talk.xmp"); }

    ScratchFolder folder_;
    std::unique_ptr<i_ZelInterchangeDataCore> document_ = filledDocument<ZelDataCore>();

private:
    std::size_t descriptors_ = openDescriptors();
};

/// The steps for a file that exists: the folder is opened first and flushed last.
const Names steps = {"open",  "open",   "fchown", "fchmod", "fsync",
                     "close", "rename", "fsync",  "close"};
constexpr std::size_t newFile = 1;
constexpr std::size_t owner = 2;
constexpr std::size_t flush = 4;
constexpr std::size_t closing = 5;
constexpr std::size_t renaming = 6;
constexpr std::size_t folderFlush = 7;

// Owners and permissions

TEST_F(FileReplacement, KeepsOwnerAndGroupIfTheSystemAllowsIt)
{
    expectFine(inChild([&]() -> std::string {
        if (chown(path().c_str(), 1234, 5678) != 0) return refusal("another owner");
        if (replace() != 0) return "not replaced";
        struct stat status {};
        if (stat(path().c_str(), &status) != 0) return "not there";
        return status.st_uid == 1234 && status.st_gid == 5678 ? fine : "another owner";
    }));
}

TEST_F(FileReplacement, KeepsTheGroupIfItCannotKeepTheOwner)
{
    expectFine(inChild([&]() -> std::string {
        if (chown(path().c_str(), 1234, 5678) != 0) return refusal("another owner");
        if (chmod(path().c_str(), 0664) != 0) return "other permissions";
        const FileCalls calls(owner, EPERM, 1);
        if (replace() != 0) return "not replaced";
        struct stat status {};
        if (stat(path().c_str(), &status) != 0) return "not there";
        const bool isKept = status.st_gid == 5678 && (status.st_mode & 0777U) == 0664;
        return isKept && status.st_uid == geteuid() ? fine : "another owner or group";
    }));
}

TEST_F(FileReplacement, GivesNobodyMoreIfItCannotGiveTheFileToItsGroup)
{
    for (const auto& [before, after] : {std::pair{0640, 0600}, {0664, 0644}, {0604, 0600}}) {
        ASSERT_EQ(0, chmod(path().c_str(), static_cast<mode_t>(before)));
        const FileCalls calls(owner, EPERM, 2);
        EXPECT_EQ(0, replace());
        struct stat status {};
        ASSERT_EQ(0, stat(path().c_str(), &status));
        EXPECT_EQ(static_cast<mode_t>(after), status.st_mode & 0777U);
    }
}

TEST_F(FileReplacement, GivesNobodyMoreThanAnAccessControlListDid)
{
    // The owner may read and write, the group nothing, the list at most read and write.
    const std::string list("\2\0\0\0"
                           "\1\0\6\0\377\377\377\377"
                           "\4\0\0\0\377\377\377\377"
                           "\20\0\6\0\377\377\377\377"
                           "\40\0\0\0\377\377\377\377",
                           36);
    expectFine(inChild([&]() -> std::string {
        if (setxattr(path().c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0)
            return refusal("an access control list");
        if (replace() != 0) return "not replaced";
        struct stat status {};
        if (stat(path().c_str(), &status) != 0) return "not there";
        return (status.st_mode & 0777U) == 0600U ? fine : "other permissions";
    }));
}

TEST_F(FileReplacement, LetsNobodyElseReadTheNewFileBeforeItHasItsPermissions)
{
    ASSERT_EQ(0, chmod(path().c_str(), 0644));
    const FileCalls calls;
    EXPECT_EQ(0, replace());
    EXPECT_EQ(0600U, calls.permissionsBefore());
}

TEST_F(FileReplacement, RefusesAFileWithoutWritePermission)
{
    ASSERT_EQ(0, chmod(folder_.path().c_str(), 0777));
    ASSERT_EQ(0, chmod(path().c_str(), 0444));
    expectFine(inChild([&] { return becomeNobody() ? judged(EACCES) : refusal("another user"); }));
    expectOld();
}

TEST_F(FileReplacement, RefusesAFolderWithoutWritePermission)
{
    ASSERT_EQ(0, chmod(folder_.path().c_str(), 0555));
    ASSERT_EQ(0, chmod(path().c_str(), 0666));
    expectFine(inChild([&] { return becomeNobody() ? judged(EACCES) : refusal("another user"); }));
    expectOld();
}

TEST_F(FileReplacement, NeedsNoPermissionToListTheFolder)
{
    ASSERT_EQ(0, chmod(folder_.path().c_str(), 0333));
    ASSERT_EQ(0, chmod(path().c_str(), 0666));
    expectFine(inChild([&] { return becomeNobody() ? judged(0) : refusal("another user"); }));
    ASSERT_EQ(0, chmod(folder_.path().c_str(), 0755));
    expectWritten();
}

// Places that cannot take everything

TEST_F(FileReplacement, ReportsAFullFileSystem)
{
    const auto captions = filledCaptions();
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(ZelData_Ok, captions->addCaptionItem(*filledCaption()));
    EXPECT_EQ(ZelData_Ok, document_->setDataCaptions(*captions));
    EXPECT_GT(whole().size(), 4096U);
    for (const std::size_t left : {0U, 4096U}) {
        expectFine(inChild([&]() -> std::string {
            if (auto refused = mountSmallFileSystem(folder_.path()); !refused.empty())
                return refused;
            fillUp(folder_.path(), left + 4096);
            put(path(), "old"); // takes a page of 4096 bytes
            if (const auto said = judged(ENOSPC); said != fine) return said;
            return bytesOf(path()) == "old" && folder_.names().size() == 2 ? fine : "not as before";
        }));
    }
    expectOld();
}

TEST_F(FileReplacement, ReportsAFileSystemThatIsReadOnly)
{
    expectFine(inChild([&]() -> std::string {
        if (auto refused = mountSmallFileSystem(folder_.path()); !refused.empty()) return refused;
        put(path(), "old");
        if (mount("none", folder_.path().c_str(), "none", MS_REMOUNT | MS_RDONLY, nullptr) != 0)
            return refusal("a read-only mount");
        return judged(EROFS);
    }));
}

TEST_F(FileReplacement, ReportsThatNoDescriptorIsFree)
{
    expectFine(inChild([&]() -> std::string {
        whole(); // a sanitizer needs descriptors to look at an object for the first time
        const rlimit limit = {0, 0};
        if (setrlimit(RLIMIT_NOFILE, &limit) != 0) return refusal("a limit of descriptors");
        return judged(EMFILE);
    }));
    expectOld();
}

// Writes

TEST_F(FileReplacement, ReportsEachWriteThatFails)
{
    for (const int error : {ENOSPC, EIO, EDQUOT, EFBIG, EAGAIN}) {
        std::size_t index = 0;
        for (bool hit = true; hit; ++index) {
            const Writes writes(Trouble::Fails, index, error);
            const int found = replace();
            hit = writes.troubled() != 0;
            EXPECT_EQ(hit ? error : 0, found);
            if (hit) expectOld();
        }
        EXPECT_EQ(3U, index) << "the declaration, the packet, and once nothing";
        put(path(), "old");
    }
}

TEST_F(FileReplacement, ContinuesShortWritesAndRepeatsInterruptedOnes)
{
    const auto expected = whole();
    for (const int taken : {1, 7, 4095}) {
        const Writes writes(Trouble::Short, Writes::every, taken);
        EXPECT_EQ(0, replace());
        EXPECT_GE(writes.troubled(), expected.size() / 4096);
        EXPECT_EQ(expected, dateMasked(bytesOf(path()))) << taken;
    }
    const Writes writes(Trouble::Interrupted);
    EXPECT_EQ(0, replace());
    EXPECT_EQ(2U, writes.troubled());
    EXPECT_EQ(expected, dateMasked(bytesOf(path())));
}

TEST_F(FileReplacement, RepeatsAWriteThatTakesNothing)
{
    const auto expected = whole();
    const Writes writes(Trouble::Short, 0, 0);
    EXPECT_EQ(0, replace());
    EXPECT_EQ(1U, writes.troubled());
    EXPECT_EQ(expected, dateMasked(bytesOf(path())));
}

// Each of the other steps

TEST_F(FileReplacement, FlushesTheFileBeforeItIsRenamedAndTheFolderAfterwards)
{
    const FileCalls calls;
    EXPECT_EQ(0, replace());
    EXPECT_EQ(steps, calls.names());
}

TEST_F(FileReplacement, ReportsEachStepThatFails)
{
    for (std::size_t step = 0; step <= renaming; ++step) {
        if (step == owner) continue;
        SCOPED_TRACE(steps[step] + ' ' + std::to_string(step));
        {
            const FileCalls calls(step, EIO);
            EXPECT_EQ(EIO, replace());
        }
        expectOld();
    }
}

TEST_F(FileReplacement, ReportsAFolderThatCannotBeFlushedOnceTheFileIsThere)
{
    {
        const FileCalls calls(folderFlush, EIO);
        EXPECT_EQ(EIO, replace());
    }
    expectWritten();
    EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
}

TEST_F(FileReplacement, GoesOnAfterWhatIsNoFailure)
{
    struct Case {
        std::size_t step;
        int error;
        std::size_t times;
    };
    for (const Case& harmless : {Case{0, EACCES, 1},           // the folder cannot be listed
                                 Case{newFile, EEXIST, 99},    // the names are taken
                                 Case{owner, EPERM, 2},        // the owner cannot be changed
                                 Case{flush, EINTR, 3},        // signals
                                 Case{flush, EINVAL, 1},       // the system flushes no files
                                 Case{closing, EINTR, 1},      // closed nevertheless
                                 Case{folderFlush, EINVAL, 1}, // or no folders
                                 Case{folderFlush, ENOTSUP, 1}, Case{folderFlush, EINTR, 3}}) {
        SCOPED_TRACE(std::to_string(harmless.step) + ' ' + std::to_string(harmless.error));
        put(path(), "old");
        {
            const FileCalls calls(harmless.step, harmless.error, harmless.times);
            EXPECT_EQ(0, replace());
        }
        expectWritten();
        EXPECT_EQ(Names{"talk.xmp"}, folder_.names());
    }
}

TEST_F(FileReplacement, GivesUpWhenAllNamesAreTaken)
{
    {
        const FileCalls calls(newFile, EEXIST, 100);
        EXPECT_EQ(EEXIST, replace());
        EXPECT_EQ(102U, calls.names().size());
    }
    expectOld();
}

} // namespace
} // namespace ZelInterchangeData
