/// @file
/// A copy between objects of exactly our own classes takes a shortcut; every other copy calls the
/// interfaces. These tests copy both ways with the same random contents. Both must lead to the same
/// codes, last errors on both sides, contents of the target, and written track.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "support/Dice.h"
#include "toc/Entries.h"

#include <cstddef>
#include <limits>
#include <sstream>

namespace ZelInterchangeData {
namespace {

std::string randomText(Dice& dice)
{
    static const std::vector<std::string> texts = {
        "",
        "one",
        "two\nlines",
        "<b>&amp;</b>",
        "\x01\x02",
        "déjà vu",
        "a rather long text, which does not fit into the place that a short one would have"};
    return dice.one(texts);
}

std::string randomID(Dice& dice)
{
    static const std::vector<std::string> ids = {"de", "en", "en-US", "fr", "ja", "pt-BR"};
    return dice.one(ids);
}

std::map<std::string, std::string> randomTexts(Dice& dice)
{
    std::map<std::string, std::string> texts;
    for (auto i = dice.below(4); i > 0; --i)
        texts[randomID(dice)] = randomText(dice);
    return texts;
}

unsigned long numberBelow(Dice& dice, std::size_t count)
{
    return static_cast<unsigned long>(dice.below(count));
}

long long randomTime(Dice& dice)
{
    return static_cast<long long>(dice.below(4));
}

/// A language that no item has, another order, and now and then the same language twice.
void stirLanguages(i_ZelDataLanguage& collection, Dice& dice)
{
    if (dice.once(3)) {
        EXPECT_FALSE(isError(collection.addLanguage(randomID(dice))));
    }
    auto ids = languagesOf(collection);
    if (ids.size() > 1 && dice.once(4)) std::swap(ids.front(), ids.back());
    if (ids.size() > 1 && dice.once(6)) ids.front() = ids.back();
    mayRefuse(collection.setOrderedLanguageIDs(ids));
}

/// Captions, some of them without length and some with an end that wraps.
struct RandomCaptions : CaptionKind {
    static Caption item(Dice& dice)
    {
        const auto start = dice.once(20) ? std::numeric_limits<long long>::max() : randomTime(dice);
        return {start, randomTime(dice), randomTexts(dice), static_cast<unsigned>(dice.below(64))};
    }
    static void change(Data& captions, Dice& dice)
    {
        mayRefuse(captions.setFrameRate(numberBelow(dice, 4)));
        mayRefuse(captions.setFontFamily(randomText(dice)));
        mayRefuse(captions.setFontSize(numberBelow(dice, 600)));
        mayRefuse(captions.setForegroundColor(static_cast<float>(dice.below(3)) / 2, 0.25F, 1));
        mayRefuse(captions.setBackgroundOpacity(
            dice.once(4) ? std::numeric_limits<float>::quiet_NaN() : 0.5F));
        stirLanguages(captions, dice);
    }
    static std::string settings(const Data& captions)
    {
        return testing::PrintToString(std::pair(styleOf(captions), languagesOf(captions)));
    }
};

struct RandomToc : TocKind {
    static Entry item(Dice& dice)
    {
        return {randomTime(dice), randomTexts(dice), randomText(dice), numberBelow(dice, 9),
                numberBelow(dice, 9)};
    }
    static void change(Data& toc, Dice& dice)
    {
        mayRefuse(toc.setFrameRate(numberBelow(dice, 4)));
        EXPECT_EQ(ZelData_Ok, toc.setImageFile(randomText(dice)));
        stirLanguages(toc, dice);
    }
    static std::string settings(const Data& toc)
    {
        return testing::PrintToString(std::tuple(frameRateOf(toc), imageOf(toc), languagesOf(toc)));
    }
};

struct RandomScreenText : ScreenTextKind {
    static Shown item(Dice& dice)
    {
        return {randomTime(dice),     randomTime(dice),     randomText(dice),    randomText(dice),
                numberBelow(dice, 9), numberBelow(dice, 9), numberBelow(dice, 9)};
    }
    static void change(Data& screenText, Dice& dice)
    {
        mayRefuse(screenText.setFrameRate(numberBelow(dice, 4)));
    }
    static std::string settings(const Data& screenText)
    {
        return std::to_string(frameRateOf(screenText));
    }
};

template <class Kind>
void fillRandomly(typename Kind::Item& item, Dice& dice)
{
    fill(item, Kind::item(dice));
}

template <class Kind>
void fillRandomly(typename Kind::Data& collection, Dice& dice)
{
    for (auto i = dice.below(8); i > 0; --i)
        mayRefuse((collection.*Kind::add)(*newItem<Kind>(Kind::item(dice))));
    Kind::change(collection, dice);
}

template <class Kind>
std::string described(const typename Kind::Item& item)
{
    return testing::PrintToString(contentsOf(item)) + '\n';
}

/// Without the items where the collection cannot hand out one of them.
template <class Kind>
std::string described(const typename Kind::Data& collection)
{
    std::string description = Kind::settings(collection) + '\n';
    std::vector<typename Kind::Item*> items;
    mayRefuse((collection.*Kind::all)(items));
    for (auto* item : items)
        description += described<Kind>(*std::unique_ptr<typename Kind::Item>(item));
    return description;
}

/// A class derived from one of our own is not our own: a copy must call what it overrides.
template <class Own>
struct Derived : Own {
};

/// The last errors of both sides, before describing changes them, and then what both hold.
template <class Kind, class Object>
std::string copied(Object& target, const Object& source)
{
    source.setLastError(ZelData_NoData);
    target.setLastError(ZelData_NoData);
    const auto code = target.copyFrom(source);
    std::ostringstream out;
    out << std::hex << code << ' ' << target.getLastError() << ' ' << source.getLastError() << '\n'
        << described<Kind>(target) << "source\n"
        << described<Kind>(source);
    return out.str();
}

/// The codes of setting and writing, and the track.
template <class Kind>
std::string written(const typename Kind::Data& data)
{
    const auto formatter = make(Kind::makeFormatter);
    std::string track = "left alone";
    std::ostringstream out;
    out << std::hex << ((*formatter).*Kind::setData)(data) << ' ';
    out << formatter->writeString(track, ZelDataFormat_Xmp, false) << ' ';
    out << formatter->getLastError() << ' ' << data.getLastError() << '\n' << track;
    return out.str();
}

constexpr std::uint64_t seeds = 3000;

/// Copies with an object of a derived class on either side have the result of the shortcut.
template <class Kind, class Interface, class Own>
void expectTheSameCopies()
{
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto copy = [seed](Interface&& target, Interface&& source) {
            Dice dice(seed);
            fillRandomly<Kind>(target, dice);
            fillRandomly<Kind>(source, dice);
            return copied<Kind>(target, source);
        };
        const std::string expected = copy(Own(), Own());
        ASSERT_EQ(expected, copy(Own(), Derived<Own>())) << "seed " << seed;
        ASSERT_EQ(expected, copy(Derived<Own>(), Own())) << "seed " << seed;
    }
}

template <class Kind>
class CopyShortcut : public testing::Test {
};

using Kinds = testing::Types<RandomCaptions, RandomToc, RandomScreenText>;
TYPED_TEST_SUITE(CopyShortcut, Kinds, KindName);

TYPED_TEST(CopyShortcut, CopiesOfItemsAreTheSame)
{
    expectTheSameCopies<TypeParam, typename TypeParam::Item, typename TypeParam::OwnItem>();
}

TYPED_TEST(CopyShortcut, CopiesOfCollectionsAreTheSame)
{
    expectTheSameCopies<TypeParam, typename TypeParam::Data, typename TypeParam::Own>();
}

/// The code, the last errors of both sides, and then what both hold.
template <class Kind>
std::string added(typename Kind::Data& collection, const typename Kind::Item& item)
{
    item.setLastError(ZelData_NoData);
    const auto code = (collection.*Kind::add)(item);
    std::ostringstream out;
    out << std::hex << code << ' ' << collection.getLastError() << ' ' << item.getLastError()
        << '\n'
        << described<Kind>(collection) << "item\n"
        << described<Kind>(item);
    return out.str() + written<Kind>(collection);
}

TYPED_TEST(CopyShortcut, AddingAnItemIsTheSame)
{
    using Data = typename TypeParam::Data;
    using Item = typename TypeParam::Item;
    using Own = typename TypeParam::Own;
    using OwnItem = typename TypeParam::OwnItem;
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto add = [seed](Data&& collection, Item&& item) {
            Dice dice(seed);
            fillRandomly<TypeParam>(collection, dice);
            fillRandomly<TypeParam>(item, dice);
            return added<TypeParam>(collection, item);
        };
        const std::string expected = add(Own(), OwnItem());
        ASSERT_EQ(expected, add(Own(), Derived<OwnItem>())) << "seed " << seed;
        ASSERT_EQ(expected, add(Derived<Own>(), OwnItem())) << "seed " << seed;
    }
}

TYPED_TEST(CopyShortcut, TracksAreTheSame)
{
    for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto write = [seed](typename TypeParam::Data&& source) {
            Dice dice(seed);
            fillRandomly<TypeParam>(source, dice);
            return written<TypeParam>(source);
        };
        ASSERT_EQ(write(typename TypeParam::Own()), write(Derived<typename TypeParam::Own>()))
            << "seed " << seed;
    }
}

/// A copy of it stops at its end while its last error says success: a caption without length then gets
/// into a collection.
struct Pretender : ZelDataCaptionItem {
    ZelDataResult_tags getEnd(long long& /*end*/) const override { return ZelData_NotFound; }
    ZelDataResult_tags getLastError() const override { return ZelData_Ok; }
};

TEST(CopyShortcutOfCaptions, ACaptionWithoutLengthStopsBoth)
{
    const auto results = [](i_ZelDataCaptions&& source) {
        Pretender pretender;
        EXPECT_EQ(ZelData_Ok, pretender.setTextForLanguage("text", "de"));
        EXPECT_EQ(ZelData_Ok, source.addCaptionItem(pretender)); // half copied, and no code says so
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, source.getCaptionItemCount(count));
        EXPECT_EQ(1U, count);
        const auto target = captionsOf({});
        return copied<RandomCaptions>(*target, static_cast<const i_ZelDataCaptions&>(source)) +
               written<RandomCaptions>(source);
    };
    EXPECT_EQ(results(ZelDataCaptions()), results(Derived<ZelDataCaptions>()));
}

} // namespace
} // namespace ZelInterchangeData
