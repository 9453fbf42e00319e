#include "core/FileStreams.h"

#include "core/HostileLocale.h"
#include "core/TempFile.h"
#include "support/FailingAllocation.h"

#include <memory>

namespace ZelInterchangeData {
namespace {

/// Every byte once, in order.
std::string allBytes()
{
    std::string bytes;
    for (int byte = 0; byte != 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

/// What a stream reads from @p file.
std::wstring contentsOf(const TempFile& file)
{
    const auto stream = createWifstreamWithFile(file.path());
    EXPECT_TRUE(stream->is_open());
    return {std::istreambuf_iterator<wchar_t>(*stream), std::istreambuf_iterator<wchar_t>()};
}

TEST(FileStreams, NarrowStringsAreWrittenAsTheirBytes)
{
    const TempFile file;
    {
        const auto stream = createWofstreamWithFile(file.path());
        EXPECT_TRUE(stream->is_open());
        *stream << "<a>"
                << "\xE8\x8C\xB6\xF0\x9F\x8D\xB5\n\xFF\x80";
        EXPECT_TRUE(stream->good());
    }
    EXPECT_EQ("<a>\xE8\x8C\xB6\xF0\x9F\x8D\xB5\n\xFF\x80", file.bytes());
}

TEST(FileStreams, EveryByteIsWrittenInEveryLocale)
{
    for (const char* name : {"C", "C.UTF-8"}) {
        const TempFile file;
        {
            const HostileLocale hostile(name);
            ASSERT_TRUE(hostile.isInPlace()) << name;
            const auto stream = createWofstreamWithFile(file.path());
            for (const char byte : allBytes())
                *stream << byte;
        }
        EXPECT_EQ(allBytes(), file.bytes()) << name;
    }
}

TEST(FileStreams, MoreThanOneBufferfulIsWrittenWhole)
{
    const TempFile file;
    std::string text;
    for (int i = 0; i != 3000; ++i)
        text += "\xC3\xA9=" + std::to_string(i);
    *createWofstreamWithFile(file.path()) << text.c_str();
    EXPECT_EQ(text, file.bytes());
}

TEST(FileStreams, OpeningForWritingEmptiesTheFile)
{
    const TempFile file;
    file.fill("what was there before");
    *createWofstreamWithFile(file.path()) << "new";
    EXPECT_EQ("new", file.bytes());
}

TEST(FileStreams, AWideCharacterThatIsNoByteFailsTheStream)
{
    const TempFile file;
    const auto stream = createWofstreamWithFile(file.path());
    *stream << L'\x100' << std::flush;
    EXPECT_TRUE(stream->fail());
}

TEST(FileStreams, EveryByteIsReadAsItsNumberInEveryLocale)
{
    const TempFile file;
    file.fill(allBytes());
    std::wstring expected;
    for (int byte = 0; byte != 256; ++byte)
        expected += static_cast<wchar_t>(byte);
    EXPECT_EQ(expected, contentsOf(file));

    const HostileLocale hostile("C.UTF-8");
    EXPECT_EQ(expected, contentsOf(file));
}

TEST(FileStreams, MoreThanOneBufferfulIsReadWhole)
{
    const TempFile file;
    file.fill(std::string(20000, '\xE9'));
    EXPECT_EQ(std::wstring(20000, L'\xE9'), contentsOf(file));
}

TEST(FileStreams, AMissingFileIsNotOpenedForReadingAndNotMade)
{
    const TempFile file;
    EXPECT_FALSE(createWifstreamWithFile(file.path())->is_open());
    EXPECT_FALSE(file.exists());
}

TEST(FileStreams, APathInAMissingDirectoryIsNotOpened)
{
    const TempFile missing;
    EXPECT_FALSE(createWofstreamWithFile(missing.path() + "/file")->is_open());
    EXPECT_FALSE(missing.exists());
}

TEST(FileStreams, ADirectoryIsNotOpenedForWriting)
{
    EXPECT_FALSE(createWofstreamWithFile(::testing::TempDir())->is_open());
}

TEST(FileStreams, AnEmptyPathIsNotOpened)
{
    EXPECT_FALSE(createWofstreamWithFile("")->is_open());
    EXPECT_FALSE(createWifstreamWithFile("")->is_open());
}

TEST(FileStreams, APathWithAZeroByteIsNotOpenedAndTheFileBeforeTheZeroByteIsUntouched)
{
    const TempFile file;
    file.fill("kept");
    const std::string path = file.path() + std::string("\0.xmp", 5);
    EXPECT_FALSE(createWofstreamWithFile(path)->is_open());
    EXPECT_FALSE(createWifstreamWithFile(path)->is_open());
    EXPECT_EQ("kept", file.bytes());
}

TEST(FileStreams, WithoutMemoryNoFileIsTouched)
{
    const TempFile file;
    file.fill("kept");
    std::size_t granted = 0;
    while (runsOutOfMemory(granted, [&] { createWofstreamWithFile(file.path()); })) {
        EXPECT_EQ("kept", file.bytes()) << granted;
        ++granted;
    }
    EXPECT_GT(granted, 0U);
    EXPECT_EQ("", file.bytes());
}

TEST(FileStreams, WithoutMemoryNothingLeaks)
{
    const TempFile file;
    createWofstreamWithFile(file.path()); // The standard library may keep something once.
    std::size_t granted = 0;
    for (bool exhausted = true; exhausted; ++granted) {
        const auto before = liveAllocations();
        exhausted = runsOutOfMemory(granted, [&] { createWofstreamWithFile(file.path()); });
        const auto after = liveAllocations();
        EXPECT_EQ(before, after) << granted << " allocations granted";
    }
    EXPECT_GT(granted, 1U);
}

} // namespace
} // namespace ZelInterchangeData
