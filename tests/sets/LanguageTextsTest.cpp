#include "sets/LanguageTexts.h"

#include "support/FailingAllocation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

using Map = std::map<std::string, std::string>;

Map mapOf(const LanguageTexts& texts)
{
    Map map;
    texts.forEach([&](std::string_view id, std::string_view text) { map.emplace(id, text); });
    EXPECT_EQ(map.size(), texts.count());
    return map;
}

TEST(LanguageTexts, CanHaveAnyCharactersInTheIDAndInTheText)
{
    const std::string smile = "\U0001F600";
    EXPECT_EQ(ZelData_Ok, LanguageTexts::check(smile, "en-" + smile));
    EXPECT_EQ(ZelData_InvalidItem, LanguageTexts::check(smile, "en-\x80"));
    EXPECT_EQ(ZelData_InvalidItem, LanguageTexts::check("\x80", "en"));
    EXPECT_EQ(ZelData_InvalidItem, LanguageTexts::check(smile, smile));
}

TEST(LanguageTexts, NewOnesAreEmptyAndTakeNoMemory)
{
    const FailingAllocation failing(0);
    const LanguageTexts texts;
    const LanguageTexts copy(texts);
    EXPECT_EQ(0U, copy.count());
    EXPECT_FALSE(copy.find("en").has_value());
}

TEST(LanguageTexts, AreInAscendingOrderOfIDs)
{
    LanguageTexts texts;
    for (const char* id : {"en", "de", "pt-BR", "pt", "de-AT"})
        EXPECT_EQ(ZelData_Ok, texts.set(std::string("text ") + id, id));
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, texts.getLanguageIDs(ids));
    EXPECT_EQ((std::vector<std::string>{"de", "de-AT", "en", "pt", "pt-BR"}), ids);
    EXPECT_EQ("text pt", texts.find("pt"));
}

TEST(LanguageTexts, HaveRoomForEachByteOfTextsOfAnySize)
{
    for (std::size_t size = 0; size <= 40; ++size) {
        const std::string text(size, 'x'); // a sanitizer watches what surrounds the packed texts
        LanguageTexts texts;
        Map expected;
        for (const char* id : {"pt-BR", "de", "en", "pt", "en"}) {
            EXPECT_FALSE(isError(texts.set(text, id)));
            expected[id] = text;
            ASSERT_EQ(expected, mapOf(texts)) << size;
        }
        EXPECT_EQ(ZelData_WarnAlreadyExists, texts.set(text + "x", "pt"));
        expected["pt"] = text + "x";
        for (const char* id : {"en", "pt-BR", "de", "pt"}) {
            ASSERT_EQ(expected, mapOf(texts)) << size;
            EXPECT_EQ(ZelData_Ok, texts.remove(id));
            expected.erase(id);
        }
    }
}

TEST(LanguageTexts, HaveRoomForEachByteOfAnotherTextOfAnySize)
{
    for (std::size_t size = 0; size <= 20; ++size) {
        for (std::size_t other = 0; other <= 2 * size + 4; ++other) {
            LanguageTexts texts;
            EXPECT_EQ(ZelData_Ok, texts.set(std::string(size, 'x'), "en"));
            // In place, if it is not much longer.
            EXPECT_EQ(ZelData_Ok, texts.set(std::string(other, 'y'), "de"));
            EXPECT_EQ((Map{{"de", std::string(other, 'y')}, {"en", std::string(size, 'x')}}),
                      mapOf(texts));
        }
    }
}

TEST(LanguageTexts, AnotherTextOfSimilarLengthTakesNoMemoryUnlessTheFirstIsShared)
{
    for (const std::size_t size : {std::size_t{2}, std::size_t{10}, std::size_t{100}}) {
        const std::string text(size, 'x');
        const std::string longer(size + (size + 2) / 2, 'y');
        const std::string tooLong = longer + "y";
        LanguageTexts texts;
        EXPECT_EQ(ZelData_Ok, texts.set(text, "en"));
        LanguageTexts copy(texts);
        {
            const FailingAllocation failing(0);
            EXPECT_THROW(static_cast<void>(copy.set(longer, "de")), std::bad_alloc);
        }
        EXPECT_EQ((Map{{"en", text}}), mapOf(copy));
        copy.clear();
        {
            const FailingAllocation failing(0);
            EXPECT_THROW(static_cast<void>(texts.set(tooLong, "de")), std::bad_alloc);
            EXPECT_EQ(ZelData_Ok, texts.set(longer, "de"));
        }
        EXPECT_EQ((Map{{"de", longer}, {"en", text}}), mapOf(texts));
    }
}

TEST(LanguageTexts, AreFoundWhereverTheyAreExpected)
{
    LanguageTexts texts;
    for (const char* id : {"de", "en", "pt-BR"})
        EXPECT_EQ(ZelData_Ok, texts.set(std::string("text ") + id, id));
    for (const std::size_t likely : {0U, 1U, 2U, 3U, 100U}) {
        EXPECT_EQ("text de", texts.find("de", likely));
        EXPECT_EQ("text en", texts.find("en", likely));
        EXPECT_EQ("text pt-BR", texts.find("pt-BR", likely));
        for (const char* id : {"", "d", "da", "dea", "em", "eo", "pt", "pt-BS"})
            EXPECT_FALSE(texts.find(id, likely).has_value()) << id;
    }
}

TEST(LanguageTexts, TheirSizeCountsTheEntitiesOfLongTexts)
{
    LanguageTexts texts;
    EXPECT_EQ(0U, texts.sizeWithEntities());
    EXPECT_EQ(ZelData_Ok, texts.set("a & b", "en"));
    EXPECT_EQ(7U, texts.sizeWithEntities()); // five characters and their ID
    EXPECT_EQ(ZelData_Ok, texts.set(std::string(10000, '&'), "de"));
    EXPECT_EQ(7U + 2 + 10000 * std::string("&amp;").size(), texts.sizeWithEntities());
}

TEST(LanguageTexts, ZeroBytesAndEmptyTextsAreTexts)
{
    LanguageTexts texts;
    const std::string zeros(3, '\0');
    EXPECT_EQ(ZelData_Ok, texts.set(zeros, "en"));
    EXPECT_EQ(ZelData_Ok, texts.set("", "de"));
    EXPECT_EQ(zeros, texts.find("en"));
    EXPECT_EQ("", texts.find("de"));
    EXPECT_FALSE(texts.find("fr").has_value());
}

TEST(LanguageTexts, ACopyKeepsItsTextsWhenTheOriginalChanges)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("one", "en"));
    const LanguageTexts copy(texts);
    EXPECT_EQ(ZelData_WarnAlreadyExists, texts.set("another", "en"));
    EXPECT_EQ(ZelData_Ok, texts.set("zwei", "de"));
    EXPECT_EQ((Map{{"en", "one"}}), mapOf(copy));
    EXPECT_EQ((Map{{"de", "zwei"}, {"en", "another"}}), mapOf(texts));
}

TEST(LanguageTexts, ATextOfTheirOwnCanBeSetForAnotherLanguage)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("one", "en"));
    EXPECT_EQ(ZelData_Ok, texts.set(*texts.find("en"), "de"));
    EXPECT_EQ((Map{{"de", "one"}, {"en", "one"}}), mapOf(texts));
}

TEST(LanguageTexts, WithoutMemoryAChangeChangesNothing)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("one", "en"));
    EXPECT_EQ(ZelData_Ok, texts.set("zwei", "de"));
    {
        const FailingAllocation failing(0);
        EXPECT_THROW(static_cast<void>(texts.set("autre", "fr")), std::bad_alloc);
        EXPECT_THROW(static_cast<void>(texts.set("other", "en")), std::bad_alloc);
    }
    EXPECT_EQ((Map{{"de", "zwei"}, {"en", "one"}}), mapOf(texts));
}

TEST(LanguageTexts, MatchMapsUnderRandomChangesOfSharingCopies)
{
    std::mt19937 random(20);
    const std::vector<std::string> ids = {"de", "de-AT", "en", "en-US", "fr", "ja", "zh"};
    std::vector<std::pair<LanguageTexts, Map>> pairs(6);
    for (int step = 0; step < 20000; ++step) {
        auto& [texts, map] = pairs[random() % pairs.size()];
        const std::string& id = ids[random() % ids.size()];
        switch (random() % 4) {
        case 0: {
            // Sometimes a text that is too long to be packed.
            const std::size_t length = random() % 8 == 0 ? 9000 : random() % 40;
            const std::string text(length, static_cast<char>('a' + random() % 26));
            const bool replaces = map.count(id) != 0;
            EXPECT_EQ(replaces ? ZelData_WarnAlreadyExists : ZelData_Ok, texts.set(text, id));
            map[id] = text;
            break;
        }
        case 1:
            EXPECT_EQ(map.erase(id) != 0 ? ZelData_Ok : ZelData_NotFound, texts.remove(id));
            break;
        case 2: {
            const auto& other = pairs[random() % pairs.size()];
            texts = other.first;
            map = Map(other.second);
            break;
        }
        default: {
            std::string text = "left alone";
            const bool found = map.count(id) != 0;
            EXPECT_EQ(found ? ZelData_Ok : ZelData_InvalidArgument, texts.get(text, id));
            EXPECT_EQ(found ? map[id] : "left alone", text);
        }
        }
        ASSERT_EQ(map, mapOf(texts)) << "step " << step;
    }
}

TEST(LanguageTexts, MissingOnesAreAddedEmptyAndOnceEach)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("Hallo", "de"));
    EXPECT_EQ(ZelData_Ok, texts.set("Hello", "en"));
    texts.addMissing({"fr", "en", "bg", "fr", "de"});
    EXPECT_EQ((Map{{"bg", ""}, {"de", "Hallo"}, {"en", "Hello"}, {"fr", ""}}), mapOf(texts));
    LanguageTexts none;
    none.addMissing({"zh", "de"});
    EXPECT_EQ((Map{{"de", ""}, {"zh", ""}}), mapOf(none));
}

TEST(LanguageTexts, StaySharedIfNoneIsMissing)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("Hallo", "de"));
    const LanguageTexts copy(texts);
    texts.addMissing({"de", "de"});
    EXPECT_EQ(copy.find("de")->data(), texts.find("de")->data());
}

TEST(LanguageTexts, MissingOnesAreAddedAllOrNone)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set("Hallo", "de"));
    std::size_t granted = 0;
    while (runsOutOfMemory(granted, [&] { texts.addMissing({"fr", "en"}); })) {
        EXPECT_EQ((Map{{"de", "Hallo"}}), mapOf(texts));
        ++granted;
    }
    EXPECT_LT(0U, granted);
    EXPECT_EQ((Map{{"de", "Hallo"}, {"en", ""}, {"fr", ""}}), mapOf(texts));
}

/// Texts that are no longer packed, with one for "en" and one for "de".
LanguageTexts unpackedTexts()
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set(std::string(9000, 'x'), "en"));
    EXPECT_EQ(ZelData_Ok, texts.set("zwei", "de"));
    return texts;
}

TEST(LanguageTexts, AreTheSameTextsWhenTheyAreManyOrLong)
{
    LanguageTexts texts;
    Map map;
    for (int i = 0; i < 2000; ++i) {
        const std::string id = "en-" + std::to_string(i * 7 % 2000);
        EXPECT_EQ(ZelData_Ok, texts.set("text of " + id, id));
        map[id] = "text of " + id;
    }
    EXPECT_EQ(map, mapOf(texts));
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, texts.getLanguageIDs(ids));
    EXPECT_TRUE(std::is_sorted(ids.begin(), ids.end()));
    EXPECT_EQ(map.size(), ids.size());
}

TEST(LanguageTexts, LongOnesAreSharedUntilACopyChanges)
{
    LanguageTexts texts = unpackedTexts();
    const LanguageTexts copy(texts);
    EXPECT_EQ(copy.find("en")->data(), texts.find("en")->data());
    EXPECT_EQ(ZelData_WarnAlreadyExists, texts.set("short", "en"));
    EXPECT_EQ(9000U, copy.find("en")->size());
    EXPECT_EQ((Map{{"de", "zwei"}, {"en", "short"}}), mapOf(texts));
}

TEST(LanguageTexts, LongOnesCanAllBeRemoved)
{
    LanguageTexts texts = unpackedTexts();
    EXPECT_EQ(ZelData_NotFound, texts.remove("fr"));
    EXPECT_EQ(ZelData_Ok, texts.remove("en"));
    EXPECT_EQ(ZelData_Ok, texts.remove("de"));
    EXPECT_EQ(0U, texts.count());
    EXPECT_EQ(ZelData_NotFound, texts.remove("de"));
    EXPECT_EQ(ZelData_Ok, texts.set("one", "en"));
    EXPECT_EQ((Map{{"en", "one"}}), mapOf(texts));
}

TEST(LanguageTexts, ATextOfTheirOwnMayMakeThemTooLong)
{
    LanguageTexts texts;
    EXPECT_EQ(ZelData_Ok, texts.set(std::string(5000, 'x'), "en"));
    EXPECT_EQ(ZelData_Ok, texts.set(*texts.find("en"), "de"));
    EXPECT_EQ((Map{{"de", std::string(5000, 'x')}, {"en", std::string(5000, 'x')}}), mapOf(texts));
}

TEST(LanguageTexts, WithoutMemoryAChangeOfLongOnesChangesNothing)
{
    using Change = ZelDataResult_tags (*)(LanguageTexts&);
    const std::initializer_list<Change> changes = {
        [](LanguageTexts& texts) { return texts.set(std::string(20, 'y'), "en"); },
        [](LanguageTexts& texts) { return texts.set("autre", "fr"); },
        [](LanguageTexts& texts) { return texts.remove("de"); },
        [](LanguageTexts& texts) {
            texts.addMissing({"fr", "ja"});
            return ZelData_Ok;
        },
    };
    for (const auto change : changes) {
        LanguageTexts texts = unpackedTexts();
        const LanguageTexts shared(texts); // so that each change needs memory
        const Map before = mapOf(texts);
        std::size_t granted = 0;
        ZelDataResult_tags code = ZelData_NoData;
        while (runsOutOfMemory(granted, [&] { code = change(texts); })) {
            EXPECT_EQ(before, mapOf(texts));
            ++granted;
        }
        EXPECT_LT(0U, granted);
        EXPECT_FALSE(isError(code));
        EXPECT_NE(before, mapOf(texts));
        EXPECT_EQ(before, mapOf(shared));
    }
}

} // namespace
} // namespace ZelInterchangeData
