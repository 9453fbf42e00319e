/// @file
/// Compares the language catalogue with a separate copy of its names.

#include "util/LanguageCatalogue.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "support/FailingAllocation.h"
#include "util/LanguageTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

namespace ZelInterchangeData {
namespace {

struct NamesInHex {
    const char* code;
    const char* englishName;
    const char* nativeName;
};

constexpr NamesInHex allNames[] = {
#include "util/LanguageNames.inc"
};

const std::string leftToRightMark = "\xE2\x80\x8E";

std::string bytesOf(const std::string& hex)
{
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        bytes.push_back(static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    }
    return bytes;
}

std::string upperCase(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() &&
           text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void expectEntry(const LanguageInfo& info, const NamesInHex& names)
{
    EXPECT_EQ(info.code, names.code);
    EXPECT_EQ(info.englishName, bytesOf(names.englishName)) << names.code;
    EXPECT_EQ(info.nativeName, bytesOf(names.nativeName)) << names.code;
}

void expectNoEntry(const LanguageInfo& info)
{
    EXPECT_EQ(info.code, "");
    EXPECT_EQ(info.englishName, "");
    EXPECT_EQ(info.nativeName, "");
}

/// IDs of no language: malformed ones, then unknown ones.
const char* const otherIds[] = {"",   "e",  "eng",  "engl", "en_US", "en US", "-en",
                                "e-", "-",  "en\n", "qq",   "QQ-US", "xX",    "zz",
                                "--", "e1", "1e",   "@a",   "[a",    "`a",    "{a"};

// The table

TEST(LanguageTable, HoldsEveryNameByteForByte)
{
    ASSERT_EQ(std::size(allNames), 184U);
    ASSERT_EQ(std::size(languageTable), 184U);
    for (std::size_t i = 0; i < std::size(allNames); ++i) {
        EXPECT_EQ(languageTable[i].code, allNames[i].code);
        EXPECT_EQ(languageTable[i].englishName, bytesOf(allNames[i].englishName));
        EXPECT_EQ(languageTable[i].nativeName, bytesOf(allNames[i].nativeName));
    }
}

TEST(LanguageTable, EndsNineNativeNamesWithALeftToRightMark)
{
    std::string codes;
    for (const LanguageEntry& entry : languageTable) {
        const std::string name(entry.nativeName);
        const std::size_t mark = name.find(leftToRightMark);
        if (mark == std::string::npos) continue;
        EXPECT_EQ(mark, name.size() - leftToRightMark.size()) << entry.code;
        codes.append(entry.code).append(" ");
    }
    EXPECT_EQ(codes, "ks ku ms pa sd tg tt ug uz ");
}

TEST(LanguageTable, BeginsOneNativeNameWithATabAndHasNoOtherControlCharacter)
{
    std::string codes;
    for (const LanguageEntry& entry : languageTable) {
        for (const std::string_view name : {entry.englishName, entry.nativeName}) {
            const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20; };
            if (std::none_of(name.begin(), name.end(), isControl)) continue;
            EXPECT_EQ(std::count_if(name.begin(), name.end(), isControl), 1);
            EXPECT_EQ(name.substr(0, 1), "\t");
            codes.append(entry.code).append(" ");
        }
    }
    EXPECT_EQ(codes, "ug ");
}

TEST(LanguageTable, HasOneEmptyNativeNameAndNoEmptyEnglishName)
{
    std::string codes;
    for (const LanguageEntry& entry : languageTable) {
        EXPECT_FALSE(entry.englishName.empty()) << entry.code;
        if (entry.nativeName.empty()) codes.append(entry.code).append(" ");
    }
    EXPECT_EQ(codes, "lu ");
}

// The lookup

TEST(FindLanguage, FindsOnlyTheCataloguedPairsOfBytesInAnyLetterCase)
{
    std::set<std::string> known;
    for (const NamesInHex& names : allNames)
        known.insert(names.code);
    ASSERT_EQ(known.size(), 184U);
    int found = 0;
    for (unsigned pair = 0; pair < 0x10000U; ++pair) {
        const std::string code = {static_cast<char>(pair >> 8U), static_cast<char>(pair & 0xFFU)};
        std::string lower = code;
        for (char& c : lower)
            c = (c >= 'A' && c <= 'Z') ? static_cast<char>(c | 0x20) : c;
        const auto entry = findLanguage(code);
        ASSERT_EQ(entry.has_value(), known.count(lower) == 1) << pair;
        if (!entry) continue;
        ASSERT_EQ(entry->code, lower);
        ++found;
    }
    EXPECT_EQ(found, 184 * 4);
}

TEST(FindLanguage, IgnoresEverythingAfterTheHyphen)
{
    const std::string rests[] = {"-", "-AT", "-anything", "--", "-\xFF", std::string("-\0x", 3)};
    for (const std::string& rest : rests) {
        const auto entry = findLanguage("de" + rest);
        ASSERT_TRUE(entry) << rest;
        EXPECT_EQ(entry->code, "de");
    }
}

TEST(FindLanguage, RefusesEveryThirdByteExceptTheHyphen)
{
    for (int byte = 0; byte < 256; ++byte) {
        const char third = static_cast<char>(byte);
        const std::string id = {'d', 'e', third};
        EXPECT_EQ(isLanguage(id), third == '-') << byte;
        EXPECT_EQ(isLanguage(id + "AT"), third == '-') << byte;
    }
}

TEST(FindLanguage, RefusesMalformedAndUnknownIds)
{
    for (const char* const id : otherIds)
        EXPECT_FALSE(findLanguage(id)) << id;
}

TEST(FindLanguage, AllocatesNothing)
{
    bool found = false;
    std::size_t allocations = 0;
    {
        const FailingAllocation watch;
        found = findLanguage("zu-ZA-and-a-long-rest-after-it").has_value();
        allocations = watch.count();
    }
    EXPECT_TRUE(found);
    EXPECT_EQ(allocations, 0U);
}

// The key

TEST(IntForISO6391Code, JoinsTwoSpacesAndTheLowerCaseLetters)
{
    int key = 0;
    EXPECT_TRUE(intForISO6391Code("en", key));
    EXPECT_EQ(key, 0x2020656E);
    EXPECT_TRUE(intForISO6391Code("AA", key));
    EXPECT_EQ(key, 0x20206161);
    EXPECT_TRUE(intForISO6391Code("Zh", key));
    EXPECT_EQ(key, 0x20207A68);
}

TEST(IntForISO6391Code, RefusesCodesOfAnotherLengthAndLeavesTheKeyAlone)
{
    for (const char* const code : {"", "z", "zho", "zh-", "zh-CN"}) {
        int key = 4711;
        EXPECT_FALSE(intForISO6391Code(code, key)) << code;
        EXPECT_EQ(key, 4711);
    }
}

TEST(IntForISO6391Code, TreatsAnyTwoBytesAsUnsignedAndLowersOnlyAsciiLetters)
{
    for (unsigned pair = 0; pair < 0x10000U; ++pair) {
        const unsigned bytes[] = {pair >> 8U, pair & 0xFFU};
        unsigned expected = 0x2020U;
        for (const unsigned byte : bytes) {
            expected = (expected << 8U) + (byte >= 0x41U && byte <= 0x5AU ? byte + 0x20U : byte);
        }
        int key = 0;
        ASSERT_TRUE(
            intForISO6391Code({static_cast<char>(bytes[0]), static_cast<char>(bytes[1])}, key));
        ASSERT_EQ(key, static_cast<int>(expected));
    }
}

// Copies of entries

TEST(LanguageInfoISOCode, ReturnsEveryEntryInAnyLetterCase)
{
    for (const NamesInHex& names : allNames) {
        expectEntry(languageInfoISOCode(names.code), names);
        expectEntry(languageInfoISOCode(upperCase(names.code)), names);
    }
}

TEST(LanguageInfoISOCode, ReturnsNoEntryForOtherCodes)
{
    for (const char* const code : otherIds)
        expectNoEntry(languageInfoISOCode(code));
    expectNoEntry(languageInfoISOCode("en-"));
    expectNoEntry(languageInfoISOCode("en-US"));
}

TEST(LanguagefromID, ReturnsEveryEntryWithAndWithoutARegion)
{
    for (const NamesInHex& names : allNames) {
        const std::string code = names.code;
        expectEntry(languagefromID(code), names);
        expectEntry(languagefromID(upperCase(code) + "-XY"), names);
        expectEntry(languagefromID(code + "-"), names);
    }
}

TEST(LanguagefromID, ReturnsTheCodeInTheLetterCaseOfTheCatalogue)
{
    for (const char* const id : {"de", "DE", "dE", "De-AT", "de-", "de-anything"}) {
        EXPECT_EQ(languagefromID(id).code, "de") << id;
        EXPECT_EQ(languagefromID(id).englishName, "German") << id;
    }
}

TEST(LanguagefromID, ReturnsNoEntryForMalformedAndUnknownIds)
{
    expectNoEntry(languagefromID("deu"));
    expectNoEntry(languagefromID("d"));
    expectNoEntry(languagefromID(""));
    for (const char* const id : otherIds)
        expectNoEntry(languagefromID(id));
}

// The public names

/// One of the two functions that look up a name.
struct NameLookup {
    const char* suffix;
    ZelDataResult_tags (*lookUp)(const std::string& id, std::string& name);
    const char* NamesInHex::*expected;
    const char* longNamed; ///< A language whose name is too long for a string's own buffer.
};

constexpr NameLookup english = {"English", &ZelDataUtilities::englishNameForLanguage,
                                &NamesInHex::englishName, "cu"};
constexpr NameLookup native = {"Native", &ZelDataUtilities::nativeNameForLanguage,
                               &NamesInHex::nativeName, "ko"};

std::string nameBy(const NameLookup& lookup, const std::string& id)
{
    std::string name = "before";
    EXPECT_EQ(lookup.lookUp(id, name), ZelData_Ok) << id;
    return name;
}

class NameForLanguage : public ::testing::TestWithParam<NameLookup> {};

TEST_P(NameForLanguage, GivesEveryName)
{
    for (const NamesInHex& names : allNames) {
        const std::string expected = bytesOf(names.*GetParam().expected);
        EXPECT_EQ(nameBy(GetParam(), names.code), expected);
        EXPECT_EQ(nameBy(GetParam(), upperCase(names.code) + "-x"), expected);
    }
}

TEST_P(NameForLanguage, RefusesOtherIdsAndLeavesTheNameAlone)
{
    std::string name = "before";
    for (const char* const id : otherIds)
        EXPECT_EQ(GetParam().lookUp(id, name), ZelData_UnknownLanguage) << id;
    EXPECT_EQ(name, "before");
}

TEST_P(NameForLanguage, AnswersExhaustedMemoryAndLeavesTheNameAlone)
{
    const std::string id = GetParam().longNamed;
    if (nameBy(GetParam(), id).size() <= std::string().capacity())
        GTEST_SKIP() << "a string needs no memory for it";
    std::string name = "before";
    ZelDataResult_tags code = ZelData_Ok;
    {
        const FailingAllocation watch(0);
        code = GetParam().lookUp(id, name);
    }
    EXPECT_EQ(code, ZelData_OutOfMemory);
    EXPECT_EQ(name, "before");
}

INSTANTIATE_TEST_SUITE_P(, NameForLanguage, ::testing::Values(english, native),
                         [](const auto& lookup) { return lookup.param.suffix; });

TEST(EnglishNameForLanguage, CallsBhBiharis)
{
    EXPECT_EQ(nameBy(english, "bh"), "Biharis");
}

TEST(EnglishNameForLanguage, MayReplaceTheIdItself)
{
    std::string text = "fr-CA";
    EXPECT_EQ(ZelDataUtilities::englishNameForLanguage(text, text), ZelData_Ok);
    EXPECT_EQ(text, "French");
}

TEST(NativeNameForLanguage, EmptiesTheNameForLu)
{
    EXPECT_EQ(nameBy(native, "lu"), "");
}

TEST(NativeNameForLanguage, BeginsUgWithATabAndEndsItWithALeftToRightMark)
{
    const std::string name = nameBy(native, "ug");
    EXPECT_EQ(name.substr(0, 1), "\t");
    EXPECT_TRUE(endsWith(name, leftToRightMark));
}

TEST(IsValidLanguage, AcceptsEveryCodeInAnyLetterCaseWithAndWithoutARegion)
{
    EXPECT_EQ(ZelDataUtilities::isValidLanguage("EN"), ZelData_Ok);
    EXPECT_EQ(ZelDataUtilities::isValidLanguage("en-US"), ZelData_Ok);
    for (const NamesInHex& names : allNames) {
        EXPECT_EQ(ZelDataUtilities::isValidLanguage(names.code), ZelData_Ok) << names.code;
        EXPECT_EQ(ZelDataUtilities::isValidLanguage(upperCase(names.code) + "-?"), ZelData_Ok);
    }
}

TEST(IsValidLanguage, RefusesOtherIds)
{
    for (const char* const id : {"eng", "e", "", "qq"}) {
        EXPECT_EQ(ZelDataUtilities::isValidLanguage(id), ZelData_UnknownLanguage) << id;
    }
    for (const char* const id : otherIds) {
        EXPECT_EQ(ZelDataUtilities::isValidLanguage(id), ZelData_UnknownLanguage) << id;
    }
}

TEST(IsValidLanguage, AcceptsALanguageWithoutANativeName)
{
    EXPECT_EQ(ZelDataUtilities::isValidLanguage("lu"), ZelData_Ok);
}

} // namespace
} // namespace ZelInterchangeData
