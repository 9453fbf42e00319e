#include "core/FileStreams.h"

#include "core/HostileLocale.h"
#include "core/TempFile.h"
#include "support/FailingAllocation.h"

#include <limits>
#include <locale>
#include <memory>
#include <string>

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
    for (const char* name : localeNames) {
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

TEST(FileStreams, AWideCharacterThatIsNotAByteFailsTheStream)
{
    for (const wchar_t character : {L'\x100', static_cast<wchar_t>(-2)}) {
        const TempFile file;
        const auto stream = createWofstreamWithFile(file.path());
        *stream << character << std::flush;
        EXPECT_TRUE(stream->fail());
    }
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

TEST(FileStreams, AReaderReportsItsPositionInBytesAndSeeksBackToIt)
{
    const TempFile file;
    file.fill("a\xE9\xFF!");
    const auto stream = createWifstreamWithFile(file.path());
    EXPECT_EQ(L'a', static_cast<wchar_t>(stream->get()));
    EXPECT_EQ(L'\xE9', static_cast<wchar_t>(stream->get()));
    const auto place = stream->tellg();
    EXPECT_EQ(2, place);
    EXPECT_EQ(L'\xFF', static_cast<wchar_t>(stream->get()));
    stream->seekg(place);
    EXPECT_EQ(L'\xFF', static_cast<wchar_t>(stream->get()));
}

TEST(FileStreams, TheLocaleWidensManyCharactersAsItWidensOne)
{
    const TempFile file;
    const std::locale locale = createWofstreamWithFile(file.path())->getloc();
    const auto& characters = std::use_facet<std::ctype<wchar_t>>(locale);
    const std::string bytes = allBytes();
    std::wstring widened(bytes.size(), L'?');
    EXPECT_EQ(bytes.data() + bytes.size(),
              characters.widen(bytes.data(), bytes.data() + bytes.size(), widened.data()));
    for (std::size_t i = 0; i != bytes.size(); ++i) {
        EXPECT_EQ(static_cast<wchar_t>(i), widened[i]);
        EXPECT_EQ(widened[i], characters.widen(bytes[i]));
    }
}

using Conversion = std::codecvt<wchar_t, char, std::mbstate_t>;

TEST(FileStreams, TheConversionStopsAtTheEndOfTheBufferAndContinuesThere)
{
    const TempFile file;
    const std::locale locale = createWofstreamWithFile(file.path())->getloc();
    const auto& conversion = std::use_facet<Conversion>(locale);
    std::mbstate_t state{};
    const std::wstring wide = L"a\xE9!";
    std::string bytes(2, '?');
    const wchar_t* wideNext = nullptr;
    char* byteNext = nullptr;
    EXPECT_EQ(Conversion::partial,
              conversion.out(state, wide.data(), wide.data() + wide.size(), wideNext, bytes.data(),
                             bytes.data() + bytes.size(), byteNext));
    EXPECT_EQ(2, wideNext - wide.data());
    EXPECT_EQ(2, byteNext - bytes.data());
    EXPECT_EQ("a\xE9", bytes);

    std::wstring read(1, L'?');
    const char* from = nullptr;
    wchar_t* to = nullptr;
    EXPECT_EQ(Conversion::partial, conversion.in(state, bytes.data(), bytes.data() + bytes.size(),
                                                 from, read.data(), read.data() + read.size(), to));
    EXPECT_EQ(1, from - bytes.data());
    EXPECT_EQ(1, to - read.data());
    EXPECT_EQ(L"a", read);
}

TEST(FileStreams, TheConversionStaysInsideABufferOfAnySize)
{
    const TempFile file;
    const std::locale locale = createWofstreamWithFile(file.path())->getloc();
    const auto& conversion = std::use_facet<Conversion>(locale);
    const std::string bytes(8, 'b');
    const std::wstring wide(8, L'w');
    for (std::size_t room = 0; room <= bytes.size(); ++room) {
        std::mbstate_t state{};
        std::string written(bytes.size() + 2, '?');
        std::wstring read(wide.size() + 2, L'?');
        const wchar_t* wideNext = nullptr;
        const char* byteNext = nullptr;
        char* writtenEnd = nullptr;
        wchar_t* readEnd = nullptr;
        conversion.out(state, wide.data(), wide.data() + wide.size(), wideNext, written.data(),
                       written.data() + room, writtenEnd);
        conversion.in(state, bytes.data(), bytes.data() + bytes.size(), byteNext, read.data(),
                      read.data() + room, readEnd);
        EXPECT_EQ(std::string(room, 'w') + std::string(10 - room, '?'), written);
        EXPECT_EQ(std::wstring(room, L'b') + std::wstring(10 - room, L'?'), read);
    }
}

TEST(FileStreams, SingleCharactersFillTheBufferToItsEnd)
{
    constexpr std::size_t buffer = 4096; // a longer text would be written without it
    for (const std::size_t size : {buffer - 1, buffer, buffer + 1, 3 * buffer}) {
        const TempFile file;
        std::string text;
        {
            const auto stream = createWofstreamWithFile(file.path());
            for (std::size_t i = 0; i < size; ++i) {
                text += static_cast<char>('a' + i % 26);
                stream->put(static_cast<wchar_t>(text.back()));
            }
            EXPECT_TRUE(stream->good());
        }
        EXPECT_EQ(text, file.bytes());
        EXPECT_EQ(std::wstring(text.begin(), text.end()), contentsOf(file));
    }
}

TEST(FileStreams, TheConversionCountsAByteForEachCharacter)
{
    const TempFile file;
    const std::locale locale = createWofstreamWithFile(file.path())->getloc();
    const auto& conversion = std::use_facet<Conversion>(locale);
    std::mbstate_t state{};
    const std::string bytes = "a\xE9!";
    EXPECT_EQ(2, conversion.length(state, bytes.data(), bytes.data() + bytes.size(), 2));
    EXPECT_EQ(3, conversion.length(state, bytes.data(), bytes.data() + bytes.size(), 9));
    EXPECT_EQ(1, conversion.encoding());
    EXPECT_EQ(1, conversion.max_length());
    EXPECT_FALSE(conversion.always_noconv());
}

// Its characters have no sign on Windows.
TEST(FileStreams, AWideCharacterBelowZeroFailsTheStream)
{
    const TempFile file;
    const auto stream = createWofstreamWithFile(file.path());
    stream->put(std::numeric_limits<wchar_t>::min()).flush();
    EXPECT_TRUE(stream->fail());
    EXPECT_EQ("", file.bytes());
}

TEST(FileStreams, ThePathIsUtf8)
{
    const TempFile file;
    const std::string path = file.path() + " vid\u00E9o-\u65E5\u672C\U0001F3AC.xmp";
    *createWofstreamWithFile(path) << "text";
    const auto expected = std::filesystem::u8path(path);
    EXPECT_EQ("text", bytesOf(expected));
    EXPECT_TRUE(createWifstreamWithFile(path)->is_open());
    std::filesystem::remove(expected);
}

#ifdef _WIN32
TEST(FileStreams, APathThatIsNotUtf8IsNotOpened)
{
    const TempFile file;
    for (const char* bytes : {"\xFF", "\xC3", "\xED\xA0\x80", "\xC0\xAF"}) {
        EXPECT_FALSE(createWofstreamWithFile(file.path() + bytes)->is_open());
        EXPECT_FALSE(createWifstreamWithFile(file.path() + bytes)->is_open());
    }
}
#endif

TEST(FileStreams, AMissingFileIsNeitherOpenedForReadingNorCreated)
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
