/// @file
/// What the items of all kinds have in common: their start, their assignment and their texts by
/// language, if they have any.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "toc/Entries.h"

#include <limits>

namespace ZelInterchangeData {
namespace {

using IDs = std::vector<std::string>;
using Texts = std::map<std::string, std::string>;

constexpr long long least = std::numeric_limits<long long>::min();
constexpr long long most = std::numeric_limits<long long>::max();

struct CaptionItem : CaptionKind {
    static constexpr auto name = "Caption";
    static Values full() { return {100, 30, {{"de", "d"}, {"en", "e"}}, 0x22}; }
    static Values withTexts(const Texts& texts) { return {100, 30, texts, 0x22}; }
};

struct TocItem : TocKind {
    static Values full() { return {7, {{"de", "d"}, {"en", "e"}}, "s.png", 3, 4}; }
    static Values withTexts(const Texts& texts) { return {7, texts, "s.png", 3, 4}; }
};

struct ScreenTextItem : ScreenTextKind {
    static Values full() { return {7, 8, "Click", "s.png", 3, 4, 5}; }
};

template <class Kind>
class Item : public testing::Test {
protected:
    typename Kind::OwnItem item_;
};

using Items = testing::Types<CaptionItem, TocItem, ScreenTextItem>;
TYPED_TEST_SUITE(Item, Items, KindName);

TYPED_TEST(Item, StartsEmpty)
{
    const auto item = make(TypeParam::makeItem);
    EXPECT_EQ(ZelData_Ok, item->getLastError());
    EXPECT_EQ(typename TypeParam::Values(), contentsOf(*item));
}

TYPED_TEST(Item, AcceptsAStartFromZeroUp)
{
    for (const long long start : {5LL, 0LL, most}) {
        EXPECT_CODE(this->item_, ZelData_Ok, this->item_.setStart(start));
        long long kept = -1;
        EXPECT_CODE(this->item_, ZelData_Ok, this->item_.getStart(kept));
        EXPECT_EQ(start, kept);
    }
}

TYPED_TEST(Item, RefusesANegativeStartAndKeepsTheEarlierOne)
{
    fill(this->item_, TypeParam::full());
    for (const long long start : {-1LL, least})
        EXPECT_CODE(this->item_, ZelData_InvalidArgument, this->item_.setStart(start));
    EXPECT_EQ(TypeParam::full(), contentsOf(this->item_));
}

TYPED_TEST(Item, IsAssignedWithoutTheLastError)
{
    typename TypeParam::OwnItem source;
    fill(source, TypeParam::full());
    source.setLastError(ZelData_NotFound);
    this->item_.setLastError(ZelData_WarnTiming);
    EXPECT_EQ(&this->item_, &(this->item_ = source));
    EXPECT_EQ(ZelData_WarnTiming, this->item_.getLastError());
    EXPECT_EQ(ZelData_NotFound, source.getLastError());
    EXPECT_EQ(TypeParam::full(), contentsOf(this->item_));
    this->item_ = typename TypeParam::OwnItem();
    EXPECT_EQ(typename TypeParam::Values(), contentsOf(this->item_));
}

TYPED_TEST(Item, AssignedToItselfChangesNothing)
{
    fill(this->item_, TypeParam::full());
    this->item_.setLastError(ZelData_WarnTiming);
    const auto& same = this->item_;
    this->item_ = same;
    EXPECT_EQ(ZelData_WarnTiming, this->item_.getLastError());
    EXPECT_EQ(TypeParam::full(), contentsOf(this->item_));
}

// Texts by language

template <class Kind>
class ItemTexts : public testing::Test {
protected:
    /// An item with @p texts and a value in each other field.
    static auto itemWith(const Texts& texts) { return newItem<Kind>(Kind::withTexts(texts)); }

    static void expectTexts(const Texts& texts, const typename Kind::Item& item)
    {
        EXPECT_EQ(Kind::withTexts(texts), contentsOf(item));
    }
};

using ItemsWithTexts = testing::Types<CaptionItem, TocItem>;
TYPED_TEST_SUITE(ItemTexts, ItemsWithTexts, KindName);

TYPED_TEST(ItemTexts, AreReplacedWithAWarning)
{
    const auto item = this->itemWith({});
    EXPECT_CODE(*item, ZelData_Ok, item->setTextForLanguage("first", "en"));
    for (const char* text : {"second", "second", ""}) {
        EXPECT_CODE(*item, ZelData_WarnAlreadyExists, item->setTextForLanguage(text, "en"));
        this->expectTexts({{"en", text}}, *item);
    }
}

TYPED_TEST(ItemTexts, MayBeEmpty)
{
    const auto item = this->itemWith({});
    EXPECT_CODE(*item, ZelData_Ok, item->setTextForLanguage("", "en"));
    EXPECT_CODE(*item, ZelData_WarnAlreadyExists, item->setTextForLanguage("", "en"));
    this->expectTexts({{"en", ""}}, *item);
}

TYPED_TEST(ItemTexts, MayBeAnyUtf8)
{
    for (const std::string& text :
         {std::string("a\0b", 3), std::string("\t\x01"), std::string("\xF0\x9F\x98\x80"),
          std::string("\xFC\x84\x80\x80\x80\x80")}) {
        const auto item = this->itemWith({});
        EXPECT_CODE(*item, ZelData_Ok, item->setTextForLanguage(text, "en"));
        this->expectTexts({{"en", text}}, *item);
    }
}

TYPED_TEST(ItemTexts, AreRefusedIfTheyAreNotUtf8)
{
    const auto item = this->itemWith({{"en", "x"}});
    for (const char* id : {"en", "de", "a\xC3"})
        for (const char* text : {"a\xFFz", "a\xC3"})
            EXPECT_CODE(*item, ZelData_InvalidItem, item->setTextForLanguage(text, id));
    this->expectTexts({{"en", "x"}}, *item);
}

TYPED_TEST(ItemTexts, AreRefusedForALanguageThatIsUnknownOrMalformed)
{
    const auto item = this->itemWith({{"en", "x"}});
    for (const char* id : {"zz", "xx", "", "e", "eng", "en_US", "en-\xFF", "\xC3", "a\xC3"}) {
        SCOPED_TRACE(id);
        EXPECT_CODE(*item, ZelData_InvalidItem, item->setTextForLanguage("y", id));
    }
    this->expectTexts({{"en", "x"}}, *item);
}

TYPED_TEST(ItemTexts, CompareLanguagesByteForByte)
{
    const Texts texts{{"EN", "1"}, {"en", "2"}, {"en-GB", "3"}, {"en-US", "4"}};
    const auto item = this->itemWith({});
    for (const auto& [id, text] : texts)
        EXPECT_CODE(*item, ZelData_Ok, item->setTextForLanguage(text, id));
    this->expectTexts(texts, *item);
}

TYPED_TEST(ItemTexts, ThatAreAbsentReturnABadArgumentAndLeaveTheOutTextAlone)
{
    const auto item = this->itemWith({{"en", "x"}});
    std::string text = "before";
    for (const char* id : {"de", "EN", "En", "en-US", "zz", ""})
        EXPECT_CODE(*item, ZelData_InvalidArgument, item->getTextForLanguage(text, id));
    EXPECT_EQ("before", text);
    EXPECT_CODE(*item, ZelData_Ok, item->getTextForLanguage(text, "en"));
    EXPECT_EQ("x", text);
}

TYPED_TEST(ItemTexts, AreRemovedOneByOne)
{
    const auto item = this->itemWith({{"de", "d"}, {"en", "e"}});
    EXPECT_CODE(*item, ZelData_Ok, item->removeTextForLanguage("de"));
    this->expectTexts({{"en", "e"}}, *item);
}

TYPED_TEST(ItemTexts, ReturnNotFoundIfTheOneToRemoveIsAbsent)
{
    const auto item = this->itemWith({{"en", "e"}});
    for (const char* id : {"de", "EN", "en-us", ""})
        EXPECT_CODE(*item, ZelData_NotFound, item->removeTextForLanguage(id));
    this->expectTexts({{"en", "e"}}, *item);
}

TYPED_TEST(ItemTexts, CanBeClearedTwiceWithoutChangingOtherFields)
{
    const auto item = this->itemWith({{"de", "d"}, {"en", "e"}});
    for (int time = 0; time < 2; ++time) {
        EXPECT_CODE(*item, ZelData_Ok, item->clearText());
        this->expectTexts({}, *item);
    }
}

TYPED_TEST(ItemTexts, AreListedInByteOrderOfTheirLanguages)
{
    const auto item = this->itemWith({});
    for (const char* id : {"en", "de", "en-GB", "EN"})
        EXPECT_CODE(*item, ZelData_Ok, item->setTextForLanguage("", id));
    IDs ids = {"what", "was", "before"};
    EXPECT_CODE(*item, ZelData_Ok, item->getLanguageIDs(ids));
    EXPECT_EQ((IDs{"EN", "de", "en", "en-GB"}), ids);
    const auto two = this->itemWith({});
    EXPECT_CODE(*two, ZelData_Ok, two->setTextForLanguage("Un", "fr"));
    EXPECT_CODE(*two, ZelData_Ok, two->setTextForLanguage("Eins", "de"));
    EXPECT_CODE(*two, ZelData_Ok, two->getLanguageIDs(ids));
    EXPECT_EQ((IDs{"de", "fr"}), ids);
}

} // namespace
} // namespace ZelInterchangeData
