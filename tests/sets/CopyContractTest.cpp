/// @file
/// Copies of the items and collections of all kinds: the order of the calls, the failure of each, and
/// the languages of the copy.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "support/FailingAllocation.h"
#include "support/fakes/FailingCaptions.h"
#include "support/fakes/FailingScreenText.h"
#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <algorithm>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Calls = std::vector<std::string>;
using IDs = std::vector<std::string>;

constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

/// The getter of the source and the operation of the target, one of which fails at its nth call, and
/// what the target holds then. One of the two may be absent.
template <class Contents>
struct Step {
    const char* getter;
    const char* setter;
    int nth;
    Contents left;
};

/// What copies of items have in common. @p Kind is that of their collection.
template <class Kind>
struct ItemCopies {
    using Interface = typename Kind::Item;
    using Own = typename Kind::OwnItem;
    using Contents = typename Kind::Values;
    static Contents contents(const Interface& item) { return contentsOf(item); }
};

struct CaptionItemCopies : ItemCopies<CaptionKind> {
    static constexpr auto name = "CaptionItem";
    using Fake = FailingCaptionItem;
    /// An item throws std::bad_alloc.
    static constexpr bool letsThrough = true;

    static Contents source() { return {1000, 2000, {{"de", "d"}, {"en", "e"}}, 0x22}; }
    static Contents target() { return {10, 20, {{"fr", "f"}}, 0x10}; }
    static void fillSource(Interface& item) { fill(item, source()); }
    static void fillTarget(Interface& item) { fill(item, target()); }
    static Contents copied() { return source(); }
    /// A new item has no length, so the copy stops at its end.
    static constexpr auto codeOfNew = ZelData_InvalidArgument;
    static Contents copyOfNew() { return {0, 20, {}, 0x10}; }

    static Calls getters()
    {
        return {"getLanguageIDs", "getTextForLanguage", "getTextForLanguage", "getStart",
                "getEnd",         "getAlignment"};
    }
    static Calls setters()
    {
        return {"clearText", "setTextForLanguage", "setTextForLanguage", "setStart",
                "setEnd",    "setAlignment"};
    }
    static std::vector<Step<Contents>> steps()
    {
        return {{"getLanguageIDs", "clearText", 1, target()},
                {"getTextForLanguage", "setTextForLanguage", 1, {10, 20, {}, 0x10}},
                {"getTextForLanguage", "setTextForLanguage", 2, {10, 20, {{"de", "d"}}, 0x10}},
                {"getStart", "setStart", 1, {10, 20, source().texts, 0x10}},
                {"getEnd", "setEnd", 1, {1000, 20, source().texts, 0x10}},
                {"getAlignment", "setAlignment", 1, {1000, 2000, source().texts, 0x10}}};
    }
};

struct TocItemCopies : ItemCopies<TocKind> {
    static constexpr auto name = "TocItem";
    using Fake = FailingTocItem;
    static constexpr bool letsThrough = false;

    static Contents source() { return {7, {{"de", "Anfang"}, {"en", "Intro"}}, "s.png", 3, 4}; }
    static Contents target() { return {1, {{"fr", "Fin"}}, "t.png", 1, 2}; }
    static void fillSource(Interface& item) { fill(item, source()); }
    static void fillTarget(Interface& item) { fill(item, target()); }
    static Contents copied() { return source(); }
    static constexpr auto codeOfNew = ZelData_Ok;
    static Contents copyOfNew() { return {}; }

    static Calls getters()
    {
        return {"getLanguageIDs", "getTextForLanguage", "getTextForLanguage", "getStart",
                "getImageFile",   "getImageIndex",      "getImageOffset"};
    }
    static Calls setters()
    {
        return {"clearText",    "setTextForLanguage", "setTextForLanguage", "setStart",
                "setImageFile", "setImageIndex",      "setImageOffset"};
    }
    static std::vector<Step<Contents>> steps()
    {
        const auto titles = source().titles;
        return {
            {"getLanguageIDs", "clearText", 1, target()},
            {"getTextForLanguage", "setTextForLanguage", 1, {1, {}, "t.png", 1, 2}},
            {"getTextForLanguage", "setTextForLanguage", 2, {1, {{"de", "Anfang"}}, "t.png", 1, 2}},
            {"getStart", "setStart", 1, {1, titles, "t.png", 1, 2}},
            {"getImageFile", "setImageFile", 1, {7, titles, "t.png", 1, 2}},
            {"getImageIndex", "setImageIndex", 1, {7, titles, "s.png", 1, 2}},
            {"getImageOffset", "setImageOffset", 1, {7, titles, "s.png", 3, 2}}};
    }
};

struct ScreenTextItemCopies : ItemCopies<ScreenTextKind> {
    static constexpr auto name = "ScreenTextItem";
    using Fake = FailingScreenTextItem;
    static constexpr bool letsThrough = false;

    static Contents source() { return {7, 8, "Click", "s.png", 3, 4, 5}; }
    static Contents target() { return {1, 2, "old", "t.png", 1, 2, 6}; }
    static void fillSource(Interface& item) { fill(item, source()); }
    static void fillTarget(Interface& item) { fill(item, target()); }
    static Contents copied() { return source(); }
    static constexpr auto codeOfNew = ZelData_Ok;
    static Contents copyOfNew() { return {}; }

    static Calls getters()
    {
        return {"getText",       "getStart",       "getDuration", "getImageFile",
                "getImageIndex", "getImageOffset", "getGroupId"};
    }
    static Calls setters()
    {
        return {"clearText",    "setText",       "setStart",       "setDuration",
                "setImageFile", "setImageIndex", "setImageOffset", "setGroupId"};
    }
    static std::vector<Step<Contents>> steps()
    {
        return {{nullptr, "clearText", 1, target()},
                {"getText", "setText", 1, {1, 2, "", "t.png", 1, 2, 6}},
                {"getStart", "setStart", 1, {1, 2, "Click", "t.png", 1, 2, 6}},
                {"getDuration", "setDuration", 1, {7, 2, "Click", "t.png", 1, 2, 6}},
                {"getImageFile", "setImageFile", 1, {7, 8, "Click", "t.png", 1, 2, 6}},
                {"getImageIndex", "setImageIndex", 1, {7, 8, "Click", "s.png", 1, 2, 6}},
                {"getImageOffset", "setImageOffset", 1, {7, 8, "Click", "s.png", 3, 2, 6}},
                {"getGroupId", "setGroupId", 1, {7, 8, "Click", "s.png", 3, 4, 6}}};
    }
};

struct CaptionsCopies : CaptionKind {
    static constexpr auto addName = "addCaptionItem";
    static constexpr auto allName = "getCaptionItems";
    static constexpr auto unusedLanguage = "it";
    using Interface = Data;
    using Fake = FailingCaptions;
    using Contents = std::tuple<Style, IDs, std::vector<Caption>>;
    static constexpr bool letsThrough = false;

    static std::vector<Caption> items()
    {
        return {
            {9, 1, {{"en", "a"}, {"fr", "b"}}}, {0, 2, {{"de", "c"}}, 0x22}, {5, 3, {{"en", "d"}}}};
    }
    static Style style()
    {
        return {25, "Courier", 40, {0.1F, 0.2F, 0.3F}, {0.4F, 0.5F, 0.7F}, 0.9F};
    }
    /// What a source lists; no item has a text in the first language.
    static IDs listed() { return {"it", "en", "fr", "de"}; }
    /// The languages in the order of their first occurrence.
    static IDs languagesOfItems() { return {"en", "fr", "de"}; }

    static void fillSource(Interface& captions)
    {
        EXPECT_EQ(ZelData_Ok, captions.addLanguage("it"));
        ZelInterchangeData::add(captions, items());
        dress(captions, style());
    }
    static void fillTarget(Interface& captions)
    {
        ZelInterchangeData::add(captions, {{7, 7, {{"cs", "old"}}}});
        dress(captions, oldStyle());
    }
    static Contents contents(const Interface& captions)
    {
        return {styleOf(captions), languagesOf(captions), itemsOf(captions)};
    }
    static Contents copied() { return {style(), languagesOfItems(), items()}; }
    static constexpr auto codeOfNew = ZelData_Ok;
    static Contents copyOfNew() { return {}; }

    static Calls getters()
    {
        return {"getOrderedLanguageIDs", "getFrameRate",       "getFontFamily",
                "getFontSize",           "getForegroundColor", "getBackgroundColor",
                "getBackgroundOpacity",  "getCaptionItems",    "createCaptionItem",
                "createCaptionItem",     "createCaptionItem"};
    }
    static Calls setters()
    {
        return {
            "clearCaptionItems", "clearLanguages",     "addLanguage",        "addLanguage",
            "addLanguage",       "addLanguage",        "setFrameRate",       "setFontFamily",
            "setFontSize",       "setForegroundColor", "setBackgroundColor", "setBackgroundOpacity",
            "clearLanguages",    "addCaptionItem",     "createCaptionItem",  "addLanguage",
            "addLanguage",       "addCaptionItem",     "createCaptionItem",  "addLanguage",
            "addCaptionItem",    "createCaptionItem",  "addLanguage"};
    }
    static std::vector<Step<Contents>> steps()
    {
        const auto some = items();
        return {{nullptr, "clearCaptionItems", 1, {oldStyle(), {"cs"}, {{7, 7, {{"cs", "old"}}}}}},
                {"getOrderedLanguageIDs", "clearLanguages", 1, {oldStyle(), {}, {}}},
                {nullptr, "addLanguage", 1, {oldStyle(), {}, {}}},
                {nullptr, "addLanguage", 3, {oldStyle(), {"it", "en"}, {}}},
                {"getFrameRate", "setFrameRate", 1, {mixedStyle(0), listed(), {}}},
                {"getFontFamily", "setFontFamily", 1, {mixedStyle(1), listed(), {}}},
                {"getFontSize", "setFontSize", 1, {mixedStyle(2), listed(), {}}},
                {"getForegroundColor", "setForegroundColor", 1, {mixedStyle(3), listed(), {}}},
                {"getBackgroundColor", "setBackgroundColor", 1, {mixedStyle(4), listed(), {}}},
                {"getBackgroundOpacity", "setBackgroundOpacity", 1, {mixedStyle(5), listed(), {}}},
                {"getCaptionItems", nullptr, 1, {style(), listed(), {}}},
                {nullptr, "clearLanguages", 2, {style(), listed(), {}}},
                {nullptr, "addCaptionItem", 1, {style(), {}, {}}},
                {nullptr, "addCaptionItem", 3, {style(), {"en", "fr", "de"}, {some[0], some[1]}}}};
    }

private:
    static Style oldStyle()
    {
        return {50, "Times", 60, {0.9F, 0.8F, 0.7F}, {0.3F, 0.2F, 0.1F}, 0.2F};
    }
    /// The styling of the target when only the first @p count values were copied.
    static Style mixedStyle(int count)
    {
        Style mixed = oldStyle();
        if (count > 0) mixed.frameRate = style().frameRate;
        if (count > 1) mixed.fontFamily = style().fontFamily;
        if (count > 2) mixed.fontSize = style().fontSize;
        if (count > 3) mixed.foreground = style().foreground;
        if (count > 4) mixed.background = style().background;
        return mixed;
    }
};

/// The target keeps its frame rate; a copy does not read that of the source.
struct TocCopies : TocKind {
    static constexpr auto addName = "addTocItem";
    static constexpr auto allName = "getTocItems";
    static constexpr auto unusedLanguage = "ja";
    using Interface = Data;
    using Fake = FailingToc;
    using Contents = std::tuple<unsigned long, std::string, IDs, std::vector<Entry>>;
    static constexpr bool letsThrough = false;

    static std::vector<Entry> items()
    {
        return {{500, {{"fr", "Un"}}, "e.png", 1, 2}, {100, {{"de", "Zwei"}, {"en", "Two"}}}};
    }
    static IDs listed() { return {"en", "ja", "fr", "de"}; }
    static IDs languagesOfItems() { return {"fr", "de", "en"}; }

    static void fillSource(Interface& toc)
    {
        EXPECT_EQ(ZelData_Ok, toc.addLanguage("en"));
        EXPECT_EQ(ZelData_Ok, toc.addLanguage("ja"));
        ZelInterchangeData::add(toc, items());
        EXPECT_EQ(ZelData_Ok, toc.setImageFile("s.png"));
        EXPECT_EQ(ZelData_Ok, toc.setFrameRate(30));
    }
    static void fillTarget(Interface& toc)
    {
        ZelInterchangeData::add(toc, {{7, {{"it", "Sette"}}}});
        EXPECT_EQ(ZelData_Ok, toc.setImageFile("t.png"));
        EXPECT_EQ(ZelData_Ok, toc.setFrameRate(25));
    }
    static Contents contents(const Interface& toc)
    {
        return {frameRateOf(toc), imageOf(toc), languagesOf(toc), entriesOf(toc)};
    }
    static Contents copied() { return {25, "s.png", languagesOfItems(), items()}; }
    static constexpr auto codeOfNew = ZelData_Ok;
    static Contents copyOfNew() { return {25, "", {}, {}}; }

    static Calls getters() { return {"getOrderedLanguageIDs", "getImageFile", "getTocItems"}; }
    static Calls setters()
    {
        return {"clearTocItems", "clearLanguages", "addLanguage",    "addLanguage", "addLanguage",
                "addLanguage",   "setImageFile",   "clearLanguages", "addTocItem",  "addLanguage",
                "addTocItem",    "addLanguage",    "addLanguage"};
    }
    static std::vector<Step<Contents>> steps()
    {
        const auto first = items().front();
        return {{nullptr, "clearTocItems", 1, {25, "t.png", {"it"}, {{7, {{"it", "Sette"}}}}}},
                {"getOrderedLanguageIDs", "clearLanguages", 1, {25, "t.png", {}, {}}},
                {nullptr, "addLanguage", 1, {25, "t.png", {}, {}}},
                {nullptr, "addLanguage", 4, {25, "t.png", {"en", "ja", "fr"}, {}}},
                {"getImageFile", "setImageFile", 1, {25, "t.png", listed(), {}}},
                {"getTocItems", nullptr, 1, {25, "s.png", listed(), {}}},
                {nullptr, "clearLanguages", 2, {25, "s.png", listed(), {}}},
                {nullptr, "addTocItem", 1, {25, "s.png", {}, {}}},
                {nullptr, "addTocItem", 2, {25, "s.png", {"fr"}, {first}}}};
    }
};

struct ScreenTextCopies : ScreenTextKind {
    static constexpr auto addName = "addScreenTextItem";
    static constexpr auto allName = "getScreenTextItems";
    using Interface = Data;
    using Fake = FailingScreenText;
    using Contents = std::tuple<unsigned long, std::vector<Shown>>;
    static constexpr bool letsThrough = false;

    static std::vector<Shown> items() { return {{500, 1, "b", "s.png", 3, 4, 5}, {100, 2, "a"}}; }
    static void fillSource(Interface& texts)
    {
        ZelInterchangeData::add(texts, items());
        EXPECT_EQ(ZelData_Ok, texts.setFrameRate(25));
    }
    static void fillTarget(Interface& texts)
    {
        ZelInterchangeData::add(texts, {{7, 7, "old"}});
        EXPECT_EQ(ZelData_Ok, texts.setFrameRate(30));
    }
    static Contents contents(const Interface& texts)
    {
        return {frameRateOf(texts), itemsOf(texts)};
    }
    static Contents copied() { return {25, items()}; }
    static constexpr auto codeOfNew = ZelData_Ok;
    static Contents copyOfNew() { return {1000, {}}; }

    static Calls getters() { return {"getFrameRate", "getScreenTextItems"}; }
    static Calls setters()
    {
        return {"clearScreenTextItems", "setFrameRate", "addScreenTextItem", "addScreenTextItem"};
    }
    static std::vector<Step<Contents>> steps()
    {
        return {{nullptr, "clearScreenTextItems", 1, {30, {{7, 7, "old"}}}},
                {"getFrameRate", "setFrameRate", 1, {30, {}}},
                {"getScreenTextItems", nullptr, 1, {25, {}}},
                {nullptr, "addScreenTextItem", 1, {25, {}}},
                {nullptr, "addScreenTextItem", 2, {25, {items().front()}}}};
    }
};

template <class Copies>
class Copy : public testing::Test {
protected:
    using Interface = typename Copies::Interface;
    using Contents = typename Copies::Contents;
    using Fake = typename Copies::Fake;

    static Contents contents(const Interface& object) { return Copies::contents(object); }

    static ZelDataResult_tags copy(Interface& target, const Interface& source)
    {
        return target.copyFrom(source);
    }

    /// For each step of the source: copies from one that @p prepare has made fail to an object of our
    /// own, and expects @p code.
    template <class Prepare>
    static void failEachGetter(ZelDataResult_tags code, const Prepare& prepare)
    {
        for (const auto& step : Copies::steps()) {
            if (step.getter == nullptr) continue;
            SCOPED_TRACE(testing::Message() << step.getter << " #" << step.nth);
            Fake source;
            typename Copies::Own target;
            Copies::fillSource(source);
            Copies::fillTarget(target);
            prepare(source, step);
            EXPECT_CODE(target, code, outcome(target, source));
            // A list of languages that failed with success as its last error counts as copied.
            const bool goesOn =
                code == ZelData_Ok && step.getter == std::string("getOrderedLanguageIDs");
            EXPECT_EQ(goesOn ? Copies::copied() : step.left, contents(target));
        }
    }

    /// The same with each step of the target.
    template <class Prepare>
    static void failEachSetter(ZelDataResult_tags code, const Prepare& prepare)
    {
        for (const auto& step : Copies::steps()) {
            if (step.setter == nullptr) continue;
            SCOPED_TRACE(testing::Message() << step.setter << " #" << step.nth);
            typename Copies::Own source;
            Fake target;
            Copies::fillSource(source);
            Copies::fillTarget(target);
            prepare(target, step);
            EXPECT_CODE(target, code, outcome(target, source));
            EXPECT_EQ(code, target.storedError());
            EXPECT_EQ(step.left, contents(target));
        }
    }

private:
    /// The code of the copy. Exhausted memory that it must let through counts as that code.
    static ZelDataResult_tags outcome(Interface& target, const Interface& source)
    {
        if constexpr (!Copies::letsThrough) return copy(target, source);
        try {
            const auto code = copy(target, source);
            EXPECT_NE(ZelData_OutOfMemory, code) << "not thrown";
            return code;
        } catch (const std::bad_alloc&) {
            target.setLastError(ZelData_OutOfMemory);
            return ZelData_OutOfMemory;
        }
    }
};

using AllCopies = testing::Types<CaptionItemCopies, TocItemCopies, ScreenTextItemCopies,
                                 CaptionsCopies, TocCopies, ScreenTextCopies>;
TYPED_TEST_SUITE(Copy, AllCopies, KindName);

TYPED_TEST(Copy, ReplacesWhatTheTargetHeldAndLeavesTheSourceAsItWas)
{
    typename TypeParam::Own source;
    typename TypeParam::Own target;
    TypeParam::fillSource(source);
    TypeParam::fillTarget(target);
    const auto before = this->contents(source);
    EXPECT_CODE(target, ZelData_Ok, this->copy(target, source));
    EXPECT_EQ(TypeParam::copied(), this->contents(target));
    EXPECT_EQ(before, this->contents(source));
}

TYPED_TEST(Copy, OfAForeignSourceIsTheSame)
{
    typename TypeParam::Fake source;
    typename TypeParam::Own target;
    TypeParam::fillSource(source);
    TypeParam::fillTarget(target);
    const auto before = this->contents(source);
    EXPECT_CODE(target, ZelData_Ok, this->copy(target, source));
    EXPECT_EQ(TypeParam::copied(), this->contents(target));
    EXPECT_EQ(before, this->contents(source));
}

TYPED_TEST(Copy, OfANewObjectEmptiesTheTargetAsFarAsItGets)
{
    typename TypeParam::Own target;
    TypeParam::fillTarget(target);
    EXPECT_CODE(target, TypeParam::codeOfNew, this->copy(target, typename TypeParam::Own()));
    EXPECT_EQ(TypeParam::copyOfNew(), this->contents(target));
}

TYPED_TEST(Copy, LeavesSuccessInTheLastErrorOfTheSource)
{
    typename TypeParam::Own source;
    typename TypeParam::Own target;
    TypeParam::fillSource(source);
    source.setLastError(ZelData_NotFound);
    EXPECT_EQ(ZelData_Ok, this->copy(target, source));
    EXPECT_EQ(ZelData_Ok, source.getLastError());
}

TYPED_TEST(Copy, OntoItselfIsRefusedWithoutACallOrAChange)
{
    typename TypeParam::Fake object;
    TypeParam::fillSource(object);
    const auto before = this->contents(object);
    const Calls calls = object.calls();
    EXPECT_CODE(object, ZelData_InternalError, this->copy(object, object));
    EXPECT_EQ(calls, object.calls());
    EXPECT_EQ(before, this->contents(object));
    typename TypeParam::Own own;
    TypeParam::fillSource(own);
    EXPECT_CODE(own, ZelData_InternalError, this->copy(own, own));
    EXPECT_EQ(before, this->contents(own));
}

TYPED_TEST(Copy, CallsTheOperationsOfSourceAndTargetInOrder)
{
    typename TypeParam::Fake source;
    typename TypeParam::Fake target;
    TypeParam::fillSource(source);
    const auto before = static_cast<std::ptrdiff_t>(source.calls().size());
    EXPECT_CODE(target, ZelData_Ok, this->copy(target, source));
    EXPECT_EQ(TypeParam::getters(), Calls(source.calls().begin() + before, source.calls().end()));
    EXPECT_EQ(TypeParam::setters(), target.calls());
}

TYPED_TEST(Copy, EndsWithTheLastErrorOfTheSourceAndKeepsWhatItCopied)
{
    this->failEachGetter(keptCode, [](auto& source, const auto& step) {
        source.failAt(step.getter, returnedCode, keptCode, step.nth);
    });
}

TYPED_TEST(Copy, StopsAtAWarningOfTheSource)
{
    this->failEachGetter(keptCode, [](auto& source, const auto& step) {
        source.failAt(step.getter, ZelData_WarnTiming, keptCode, step.nth);
    });
}

TYPED_TEST(Copy, TakesOverALastErrorOfZero)
{
    this->failEachGetter(ZelData_Ok, [](auto& source, const auto& step) {
        source.failAt(step.getter, returnedCode, ZelData_Ok, step.nth);
    });
}

TYPED_TEST(Copy, TurnsAnExceptionOfTheSourceIntoACode)
{
    this->failEachGetter(ZelData_InternalError, [](auto& source, const auto& step) {
        source.throwAt(step.getter, std::runtime_error("foreign"), step.nth);
    });
}

TYPED_TEST(Copy, EndsWhenTheSourceRunsOutOfMemory)
{
    this->failEachGetter(ZelData_OutOfMemory, [](auto& source, const auto& step) {
        source.throwAt(step.getter, std::bad_alloc(), step.nth);
    });
}

TYPED_TEST(Copy, EndsWithTheLastErrorOfTheTargetAndKeepsWhatItCopied)
{
    this->failEachSetter(keptCode, [](auto& target, const auto& step) {
        target.failAt(step.setter, returnedCode, keptCode, step.nth);
    });
}

TYPED_TEST(Copy, StopsAtAWarningOfTheTarget)
{
    this->failEachSetter(keptCode, [](auto& target, const auto& step) {
        target.failAt(step.setter, ZelData_WarnAlreadyExists, keptCode, step.nth);
    });
}

TYPED_TEST(Copy, TurnsAnExceptionOfTheTargetIntoACode)
{
    this->failEachSetter(ZelData_InternalError, [](auto& target, const auto& step) {
        target.throwAt(step.setter, std::runtime_error("foreign"), step.nth);
    });
}

TYPED_TEST(Copy, EndsWhenTheTargetRunsOutOfMemory)
{
    this->failEachSetter(ZelData_OutOfMemory, [](auto& target, const auto& step) {
        target.throwAt(step.setter, std::bad_alloc(), step.nth);
    });
}

// Copies of collections

template <class Copies>
class CollectionCopy : public Copy<Copies> {
};

using CollectionCopies = testing::Types<CaptionsCopies, TocCopies, ScreenTextCopies>;
TYPED_TEST_SUITE(CollectionCopy, CollectionCopies, KindName);

TYPED_TEST(CollectionCopy, DestroysTheItemsThatTheSourceHandedOut)
{
    const auto before = liveAllocations();
    {
        typename TypeParam::Fake source;
        typename TypeParam::Own target;
        TypeParam::fillSource(source);
        source.handOutBeforeFailing();
        EXPECT_CODE(target, ZelData_Ok, this->copy(target, source));
        source.failAt(TypeParam::allName, returnedCode, keptCode);
        EXPECT_CODE(target, keptCode, this->copy(target, source));
        EXPECT_TRUE(valuesOf<TypeParam>(target).empty());
        source.throwAt(TypeParam::allName, std::runtime_error("foreign"));
        EXPECT_CODE(target, ZelData_InternalError, this->copy(target, source));
        EXPECT_TRUE(valuesOf<TypeParam>(target).empty());
    }
    EXPECT_EQ(before, liveAllocations());
}

TYPED_TEST(CollectionCopy, DestroysTheItemsWhenOneCannotBeAdded)
{
    const auto before = liveAllocations();
    {
        typename TypeParam::Fake source;
        typename TypeParam::Fake target;
        TypeParam::fillSource(source);
        target.failAt(TypeParam::addName, returnedCode, keptCode, 2);
        EXPECT_EQ(keptCode, this->copy(target, source));
    }
    EXPECT_EQ(before, liveAllocations());
}

// The languages of a copy

template <class Copies>
class CopiedLanguages : public testing::Test {
protected:
    CopiedLanguages()
    {
        Copies::fillSource(*source_);
        Copies::fillTarget(*target_);
    }

    IDs languagesOfCopy()
    {
        EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
        return languagesOf(*target_);
    }

    std::unique_ptr<typename Copies::Data> source_ = newCollection<Copies>();
    std::unique_ptr<typename Copies::Data> target_ = newCollection<Copies>();
};

using CopiesWithLanguages = testing::Types<CaptionsCopies, TocCopies>;
TYPED_TEST_SUITE(CopiedLanguages, CopiesWithLanguages, KindName);

TYPED_TEST(CopiedLanguages, AreThoseOfTheItemsInOrderOfFirstOccurrence)
{
    EXPECT_EQ(TypeParam::languagesOfItems(), this->languagesOfCopy());
    EXPECT_EQ(TypeParam::listed(), languagesOf(*this->source_));
}

TYPED_TEST(CopiedLanguages, DoNotKeepAnOrderThatWasSet)
{
    IDs reordered = TypeParam::listed();
    std::reverse(reordered.begin(), reordered.end());
    EXPECT_EQ(ZelData_Ok, this->source_->setOrderedLanguageIDs(reordered));
    EXPECT_EQ(TypeParam::languagesOfItems(), this->languagesOfCopy());
}

TYPED_TEST(CopiedLanguages, IncludeOneThatWasRemovedFromTheList)
{
    EXPECT_EQ(ZelData_Ok, this->source_->clearLanguages());
    EXPECT_EQ(TypeParam::languagesOfItems(), this->languagesOfCopy());
}

TYPED_TEST(CopiedLanguages, DoNotIncludeOneThatOnlyARemovedItemHad)
{
    EXPECT_EQ(ZelData_Ok, ((*this->source_).*TypeParam::removeAt)(0));
    EXPECT_EQ(TypeParam::listed(), languagesOf(*this->source_)) << "the source still lists all";
    EXPECT_EQ((IDs{"de", "en"}), this->languagesOfCopy());
}

TYPED_TEST(CopiedLanguages, AreEmptyAfterTheItemsWereCleared)
{
    EXPECT_EQ(ZelData_Ok, ((*this->source_).*TypeParam::clear)());
    EXPECT_EQ(IDs{}, this->languagesOfCopy());
}

TYPED_TEST(CopiedLanguages, IncludeOneThatMakingConsistentFilledIn)
{
    const IDs before = this->languagesOfCopy();
    const std::string unused = TypeParam::unusedLanguage;
    EXPECT_EQ(0, std::count(before.begin(), before.end(), unused));
    EXPECT_EQ(ZelData_Ok, ((*this->source_).*TypeParam::makeConsistent)());
    const IDs after = this->languagesOfCopy();
    EXPECT_EQ(1, std::count(after.begin(), after.end(), unused));
    EXPECT_EQ(TypeParam::listed().size(), after.size());
}

TYPED_TEST(CopiedLanguages, FollowTheNewOrderOfTheItems)
{
    typename TypeParam::Own source;
    TypeParam::fillSource(source);
    EXPECT_CODE(source, ZelData_Ok, (source.*TypeParam::order)());
    EXPECT_CODE(*this->target_, ZelData_Ok,
                this->target_->copyFrom(static_cast<const typename TypeParam::Data&>(source)));
    EXPECT_EQ("de", languagesOf(*this->target_).at(0));
}

TYPED_TEST(CopiedLanguages, DoNotIncludeOneWhoseTextsWereRemoved)
{
    const auto source = newCollection<TypeParam>();
    TypeParam::fillTarget(*source); // one item with one language
    const std::string id = languagesOf(*source).at(0);
    EXPECT_EQ(ZelData_Ok, ((*source).*TypeParam::removeLanguage)(id));
    EXPECT_EQ(IDs{id}, languagesOf(*source)) << "the source still lists it";
    EXPECT_CODE(*this->target_, ZelData_Ok, this->target_->copyFrom(*source));
    EXPECT_EQ(IDs{}, languagesOf(*this->target_));
}

TYPED_TEST(CopiedLanguages, StopTheCopyAtOneThatIsListedTwice)
{
    EXPECT_EQ(ZelData_Ok, this->source_->setOrderedLanguageIDs({"en", "de", "en", "fr"}));
    auto expected = TypeParam::steps()[1].left; // nothing copied yet
    std::get<IDs>(expected) = {"en", "de"};
    EXPECT_CODE(*this->target_, ZelData_WarnAlreadyExists, this->target_->copyFrom(*this->source_));
    EXPECT_EQ(expected, TypeParam::contents(*this->target_));
}

TYPED_TEST(CopiedLanguages, EndTheCopyAtAnItemWhoseLanguageIsRefused)
{
    const auto first = TypeParam::items().front();
    const IDs ofFirst = languagesOf(*newCollection<TypeParam>({first}));
    typename TypeParam::Fake target;
    typename TypeParam::Data& data = target;
    // First the whole list is copied, then that of the first item is added.
    target.failAt("addLanguage", returnedCode, keptCode,
                  static_cast<int>(TypeParam::listed().size() + ofFirst.size()) + 1);
    EXPECT_CODE(target, keptCode, data.copyFrom(*this->source_));
    EXPECT_EQ(ofFirst, languagesOf(target));
    EXPECT_EQ((std::vector{first}), valuesOf<TypeParam>(target));
}

TYPED_TEST(CopiedLanguages, AreAllThatIsCopiedFromAnyOtherSet)
{
    const auto header = make(ZelDataUtilities::createHeaderData);
    EXPECT_EQ(ZelData_Ok, header->addLanguage("nl"));
    auto expected = TypeParam::contents(*this->target_);
    std::get<IDs>(expected) = {"nl"};
    EXPECT_CODE(*this->target_, ZelData_Ok, this->target_->copyFrom(*header));
    EXPECT_EQ(expected, TypeParam::contents(*this->target_));
    const i_ZelDataLanguage& own = *this->source_;
    std::get<IDs>(expected) = TypeParam::listed();
    EXPECT_CODE(*this->target_, ZelData_Ok, this->target_->copyFrom(own));
    EXPECT_EQ(expected, TypeParam::contents(*this->target_));
}

} // namespace
} // namespace ZelInterchangeData
