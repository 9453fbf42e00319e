/// @file
/// Documents written to places that cannot take them.

#include "core/TempFile.h"
#include "robustness/ChildProcess.h"
#include "robustness/Contents.h"
#include "robustness/SmallFileSystem.h"
#include "robustness/Subjects.h"
#include "robustness/Writes.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <type_traits>
#include <unistd.h>

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;

/// Both classes of documents; the plain one lets the other one write.
template <class Document>
class Storage : public ::testing::Test {
protected:
    Storage() : document_(filledDocument<Document>())
    {
        // More than the buffer of the stream holds.
        EXPECT_EQ(ZelData_Ok, document_->setDataCaptions(*manyCaptions()));
    }
    ~Storage() override { EXPECT_EQ(descriptors_, openDescriptors()); }

    ZelDataResult_tags write(const std::string& path) const
    {
        return document_->writeFile(path, xmp, false);
    }
    /// What a file holds afterwards if nothing goes wrong, without the date.
    std::string whole() const
    {
        const TempFile file;
        EXPECT_EQ(ZelData_Ok, write(file.path()));
        return dateMasked(file.bytes());
    }
    /// What a child reports that must not be able to open the file: "fine", or the code of writing it.
    std::string notOpened(const std::string& path) const
    {
        const auto code = write(path);
        return code == ZelData_FileOpenFailed ? fine : std::to_string(code);
    }
    void expectNotOpened(const std::string& path) const
    {
        const Writes writes;
        EXPECT_EQ(ZelData_FileOpenFailed, write(path)) << path.substr(0, 200);
        EXPECT_EQ(0U, writes.count());
    }

    std::unique_ptr<i_ZelInterchangeDataCore> document_;

private:
    static std::unique_ptr<i_ZelDataCaptions> manyCaptions()
    {
        auto captions = filledCaptions();
        for (int i = 0; i < 100; ++i)
            EXPECT_EQ(ZelData_Ok, captions->addCaptionItem(*filledCaption()));
        return captions;
    }

    std::size_t descriptors_ = openDescriptors();
};

using Documents = ::testing::Types<ZelDataCore, ZelDataCoreXmp>;
TYPED_TEST_SUITE(Storage, Documents, );

// Files that cannot be opened

TYPED_TEST(Storage, ADirectoryCannotBeOpened)
{
    const ScratchFolder folder;
    this->expectNotOpened(folder.path());
    this->expectNotOpened(folder.path() + "/");
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, AFileInAMissingFolderCannotBeOpened)
{
    const ScratchFolder folder;
    this->expectNotOpened(folder.pathOf("missing/file"));
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, AFileIsNotAFolder)
{
    const TempFile file;
    file.fill("kept");
    this->expectNotOpened(file.path() + "/file");
    EXPECT_EQ("kept", file.bytes());
}

TYPED_TEST(Storage, ANameCanBeTooLong)
{
    const ScratchFolder folder;
    this->expectNotOpened(folder.pathOf(std::string(300, 'n')));
    this->expectNotOpened(folder.pathOf(std::string(100000, 'n')));
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, ALinkToItselfLeadsNowhere)
{
    const ScratchFolder folder;
    std::filesystem::create_symlink("loop", folder.pathOf("loop"));
    this->expectNotOpened(folder.pathOf("loop"));
}

TYPED_TEST(Storage, AnEmptyPathIsNotAFile)
{
    this->expectNotOpened("");
}

TYPED_TEST(Storage, APathWithAZeroByteTouchesNoFile)
{
    const ScratchFolder folder;
    const TempFile file;
    file.fill("kept");
    this->expectNotOpened(file.path() + std::string("\0.xmp", 5));
    this->expectNotOpened(folder.pathOf("new") + std::string(1, '\0'));
    this->expectNotOpened(std::string(1, '\0') + file.path());
    EXPECT_EQ("kept", file.bytes());
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, AFileThatIsReadOnlyCannotBeOpened)
{
    const TempFile file;
    file.fill("kept");
    ASSERT_EQ(0, chmod(file.path().c_str(), S_IRUSR | S_IRGRP | S_IROTH));
    expectFine(inChild([&]() -> std::string {
        if (!becomeNobody()) return refusal("another user");
        return this->notOpened(file.path());
    }));
    EXPECT_EQ("kept", file.bytes());
}

TYPED_TEST(Storage, AFolderThatIsReadOnlyTakesNoFile)
{
    const ScratchFolder folder;
    ASSERT_EQ(0, chmod(folder.path().c_str(), 0555));
    expectFine(inChild([&]() -> std::string {
        if (!becomeNobody()) return refusal("another user");
        return this->notOpened(folder.pathOf("new"));
    }));
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, WithoutAFreeDescriptorNoFileIsTouched)
{
    const TempFile file;
    file.fill("kept");
    expectFine(inChild([&]() -> std::string {
        this->whole(); // a sanitizer needs descriptors to look at an object for the first time
        const rlimit none = {0, 0};
        if (setrlimit(RLIMIT_NOFILE, &none) != 0) return refusal("a limit of descriptors");
        return this->notOpened(file.path());
    }));
    EXPECT_EQ("kept", file.bytes());
}

// Files that can be opened but cannot take everything

TYPED_TEST(Storage, AFullDeviceIsNotReported)
{
    const Writes writes;
    EXPECT_EQ(ZelData_Ok, this->write("/dev/full"));
    EXPECT_GT(writes.count(), 0U);
}

/// What a child reports when writing gave @p code and the file holds @p bytes: "fine" if they are the
/// first @p size bytes of @p whole, in which the date is masked.
std::string judged(ZelDataResult_tags code, const std::string& bytes, const std::string& whole,
                   std::size_t size)
{
    if (code != ZelData_Ok) return "code " + std::to_string(code);
    if (bytes.size() != size) return std::to_string(bytes.size()) + " bytes";
    const auto masked = dateMasked(bytes);
    return whole.compare(0, masked.size(), masked) == 0 ? fine : "other bytes: " + bytes;
}

TYPED_TEST(Storage, AFullFileSystemIsNotReported)
{
    const ScratchFolder folder;
    const auto whole = this->whole();
    for (const std::size_t left : {0U, 4096U}) {
        expectFine(inChild([&]() -> std::string {
            if (auto refused = mountSmallFileSystem(folder.path()); !refused.empty())
                return refused;
            fillUp(folder.path(), left);
            const auto code = this->write(folder.pathOf("packet"));
            return judged(code, bytesOf(folder.pathOf("packet")), whole, left);
        }));
    }
    EXPECT_TRUE(folder.isEmpty());
}

TYPED_TEST(Storage, AFileSystemThatIsReadOnlyTakesNoFile)
{
    const ScratchFolder folder;
    expectFine(inChild([&]() -> std::string {
        if (auto refused = mountSmallFileSystem(folder.path()); !refused.empty()) return refused;
        if (mount("none", folder.path().c_str(), "none", MS_REMOUNT | MS_RDONLY, nullptr) != 0)
            return refusal("a read-only mount");
        return this->notOpened(folder.pathOf("packet"));
    }));
}

TYPED_TEST(Storage, AFileSizeLimitIsNotReported)
{
    const auto whole = this->whole();
    constexpr std::size_t limit = 100; // ends before the date
    const TempFile file;
    expectFine(inChild([&]() -> std::string {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit size = {limit, limit};
        if (setrlimit(RLIMIT_FSIZE, &size) != 0) return refusal("a limit of file sizes");
        const auto code = this->write(file.path());
        return judged(code, bytesOf(file.path()), whole, limit);
    }));
}

TYPED_TEST(Storage, EachWriteThatFailsIsNotReported)
{
    const auto whole = this->whole();
    const TempFile file;
    for (const int error : {ENOSPC, EIO, EDQUOT, EFBIG, EPIPE, EBADF, EAGAIN, EINVAL}) {
        std::size_t index = 0;
        for (bool hit = true; hit; ++index) {
            const Writes writes(Trouble::Fails, index, error);
            EXPECT_EQ(ZelData_Ok, this->write(file.path())) << index << ' ' << error;
            hit = writes.troubled() != 0;
        }
        EXPECT_GT(index, 4U);
        EXPECT_EQ(whole, dateMasked(file.bytes())) << "the last time nothing failed";
    }
}

TYPED_TEST(Storage, WritesThatAllFailAreNotReported)
{
    const TempFile file;
    const Writes writes(Trouble::Fails, Writes::every, ENOSPC);
    EXPECT_EQ(ZelData_Ok, this->write(file.path()));
    EXPECT_GT(writes.troubled(), 0U);
    EXPECT_EQ("", file.bytes());
}

TYPED_TEST(Storage, ShortWritesAreContinued)
{
    const auto whole = this->whole();
    for (const int taken : {1, 7, 4095}) {
        const TempFile file;
        const Writes writes(Trouble::Short, Writes::every, taken);
        EXPECT_EQ(ZelData_Ok, this->write(file.path()));
        EXPECT_GE(writes.troubled(), whole.size() / 4096);
        EXPECT_EQ(whole, dateMasked(file.bytes())) << taken;
    }
}

TYPED_TEST(Storage, InterruptedWritesAreRepeated)
{
    const auto whole = this->whole();
    const TempFile file;
    const Writes writes(Trouble::Interrupted);
    EXPECT_EQ(ZelData_Ok, this->write(file.path()));
    EXPECT_GT(writes.troubled(), 4U);
    EXPECT_EQ(whole, dateMasked(file.bytes()));
}

TYPED_TEST(Storage, AFileThatCannotBeClosedIsNotReported)
{
    const auto whole = this->whole();
    const TempFile file;
    {
        const FailingCloses closes;
        EXPECT_EQ(ZelData_Ok, this->write(file.path()));
        EXPECT_GT(closes.count(), 0U);
    }
    EXPECT_EQ(whole, dateMasked(file.bytes()));
}

// Documents that cannot be written at all

/// Expects that writing @p document gives @p code and neither opens nor makes a file.
void expectNoFileTouched(const i_ZelInterchangeDataCore& document, ZelDataFormatType_tags format,
                         ZelDataResult_tags code)
{
    const TempFile file;
    const ScratchFolder folder;
    file.fill("kept");
    const Writes writes;
    EXPECT_EQ(code, document.writeFile(file.path(), format, false));
    EXPECT_EQ(code, document.writeFile(folder.pathOf("new"), format, false));
    EXPECT_EQ("kept", file.bytes());
    EXPECT_TRUE(folder.isEmpty());
    EXPECT_EQ(0U, writes.count());
}

TYPED_TEST(Storage, ADocumentWithoutAHeaderTouchesNoFile)
{
    const TypeParam document;
    expectNoFileTouched(document, xmp, ZelData_InvalidArgument);
}

TYPED_TEST(Storage, AnUnknownFormatTouchesNoFile)
{
    expectNoFileTouched(*this->document_, static_cast<ZelDataFormatType_tags>(2),
                        ZelData_UnsupportedFormat);
}

TYPED_TEST(Storage, AHeaderThatIsNotValidTouchesNoFile)
{
    TypeParam document;
    const auto header = make(&ZelDataUtilities::createHeaderData);
    EXPECT_NE(ZelData_Ok, document.setDataHeader(*header));
    const bool isWriter = std::is_same_v<TypeParam, ZelDataCoreXmp>;
    expectNoFileTouched(document, xmp, isWriter ? ZelData_InvalidData : ZelData_InvalidArgument);
}

} // namespace
} // namespace ZelInterchangeData
