/// @file
/// Copies between objects of exactly our own classes take a short cut; all others go through the
/// interfaces. With the same random contents, both must have the same results: codes, last errors of
/// both sides, the contents of the target, and the written track.

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "captions/ZelDataXmpCaptionFormatter.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "screentext/ZelDataXmpScreenTextFormatter.h"
#include "support/Checks.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"
#include "toc/ZelDataXmpTocFormatter.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

class Dice {
public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    unsigned below(unsigned limit) { return static_cast<unsigned>(engine_() % limit); }
    bool oneIn(unsigned count) { return below(count) == 0; }

private:
    std::mt19937 engine_;
};

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
    return texts[dice.below(static_cast<unsigned>(texts.size()))];
}

const std::string& randomID(Dice& dice)
{
    static const std::vector<std::string> ids = {"de", "en", "en-US", "fr", "ja", "pt-BR"};
    return ids[dice.below(static_cast<unsigned>(ids.size()))];
}

template <class Object>
void addTexts(Object& object, Dice& dice)
{
    for (unsigned i = dice.below(4); i > 0; --i)
        EXPECT_FALSE(isError(object.setTextForLanguage(randomText(dice), randomID(dice))));
}

/// What @p get, a getter of @p object, delivers.
template <class Value, class Object, class Interface>
Value got(const Object& object, ZelDataResult_tags (Interface::*get)(Value&) const)
{
    Value value{};
    EXPECT_EQ(ZelData_Ok, (object.*get)(value));
    return value;
}

/// Adds languages that no item has, changes the order, and sometimes lists a language twice.
template <class Collection>
void stirLanguages(Collection& collection, Dice& dice)
{
    if (dice.oneIn(3)) {
        EXPECT_FALSE(isError(collection.addLanguage(randomID(dice))));
    }
    auto ids = got(collection, &i_ZelDataLanguage::getOrderedLanguageIDs);
    if (ids.size() > 1 && dice.oneIn(4)) std::swap(ids.front(), ids.back());
    if (ids.size() > 1 && dice.oneIn(6)) ids.front() = ids.back();
    mayRefuse(collection.setOrderedLanguageIDs(ids));
}

template <class Object>
void describeTexts(const Object& object, std::ostream& out)
{
    for (const std::string& id : got(object, &Object::getLanguageIDs)) {
        std::string text;
        EXPECT_EQ(ZelData_Ok, object.getTextForLanguage(text, id));
        out << ' ' << id << '=' << text;
    }
}

template <class Collection>
void describeLanguages(const Collection& collection, std::ostream& out)
{
    for (const std::string& id : got(collection, &i_ZelDataLanguage::getOrderedLanguageIDs))
        out << id << ',';
    out << '\n';
}

template <class Item>
using Owned = std::vector<std::unique_ptr<Item>>;

/// None where the collection cannot hand out one of them.
template <class Item, class Collection>
Owned<Item> itemsOf(const Collection& collection,
                    ZelDataResult_tags (Collection::*get)(std::vector<Item*>&) const)
{
    std::vector<Item*> items;
    mayRefuse((collection.*get)(items));
    return Owned<Item>(items.begin(), items.end());
}

struct CaptionKind {
    using Data = i_ZelDataCaptions;
    using Item = i_ZelDataCaptionItem;
    using Own = ZelDataCaptions;
    using OwnItem = ZelDataCaptionItem;
    using Formatter = ZelDataXmpCaptionFormatter;
    static constexpr auto setData = &Formatter::setCaptions;

    /// Copying it stops at its end while its last error says that all is well: a caption without
    /// length then gets into a collection.
    struct Pretender : ZelDataCaptionItem {
        ZelDataResult_tags getEnd(long long& /*end*/) const override { return ZelData_NotFound; }
        ZelDataResult_tags getLastError() const override { return ZelData_Ok; }
    };

    static void fill(Item& item, Dice& dice)
    {
        EXPECT_EQ(ZelData_Ok, item.setStart(dice.below(4)));
        if (!dice.oneIn(8)) {
            EXPECT_EQ(ZelData_Ok, item.setDuration(1 + dice.below(3)));
        }
        if (dice.oneIn(20))
            mayRefuse(item.setStart(std::numeric_limits<long long>::max())); // its end wraps
        EXPECT_EQ(ZelData_Ok, item.setAlignment(static_cast<ZelAlignment_tags>(dice.below(64))));
        addTexts(item, dice);
    }

    static void fill(Data& data, Dice& dice)
    {
        mayRefuse(data.setFrameRate(dice.below(4)));
        mayRefuse(data.setFontFamily(randomText(dice)));
        mayRefuse(data.setFontSize(dice.below(600)));
        EXPECT_EQ(ZelData_Ok,
                  data.setForegroundColor(static_cast<float>(dice.below(3)) / 2, 0.25F, 1));
        EXPECT_EQ(ZelData_Ok, data.setBackgroundOpacity(
                                  dice.oneIn(4) ? std::numeric_limits<float>::quiet_NaN() : 0.5F));
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataCaptionItem item;
            fill(item, dice);
            mayRefuse(data.addCaptionItem(item));
        }
        stirLanguages(data, dice);
    }

    static void describe(const Item& item, std::ostream& out)
    {
        out << got(item, &Item::getStart) << '+' << got(item, &Item::getDuration) << ' '
            << got(item, &Item::getAlignment);
        describeTexts(item, out);
        out << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        float red = 0;
        float green = 0;
        float blue = 0;
        EXPECT_EQ(ZelData_Ok, data.getForegroundColor(red, green, blue));
        out << got(data, &Data::getFrameRate) << ' ' << got(data, &Data::getFontFamily) << ' '
            << got(data, &Data::getFontSize) << ' ' << red << ' ' << green << ' ' << blue << ' '
            << got(data, &Data::getBackgroundOpacity) << '\n';
        describeLanguages(data, out);
        for (const auto& item : itemsOf(data, &Data::getCaptionItems))
            describe(*item, out);
    }
};

struct TocKind {
    using Data = i_ZelDataToc;
    using Item = i_ZelDataTocItem;
    using Own = ZelDataToc;
    using OwnItem = ZelDataTocItem;
    using Formatter = ZelDataXmpTocFormatter;
    static constexpr auto setData = &Formatter::setToc;

    static void fill(Item& item, Dice& dice)
    {
        EXPECT_EQ(ZelData_Ok, item.setStart(dice.below(4)));
        EXPECT_EQ(ZelData_Ok, item.setImageFile(randomText(dice)));
        EXPECT_EQ(ZelData_Ok, item.setImageIndex(dice.below(9)));
        EXPECT_EQ(ZelData_Ok, item.setImageOffset(dice.below(9)));
        addTexts(item, dice);
    }

    static void fill(Data& data, Dice& dice)
    {
        mayRefuse(data.setFrameRate(dice.below(4)));
        EXPECT_EQ(ZelData_Ok, data.setImageFile(randomText(dice)));
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataTocItem item;
            fill(item, dice);
            mayRefuse(data.addTocItem(item));
        }
        stirLanguages(data, dice);
    }

    static void describe(const Item& item, std::ostream& out)
    {
        out << got(item, &Item::getStart) << ' ' << got(item, &Item::getImageFile) << ' '
            << got(item, &Item::getImageIndex) << ' ' << got(item, &Item::getImageOffset);
        describeTexts(item, out);
        out << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        out << got(data, &Data::getFrameRate) << ' ' << got(data, &Data::getImageFile) << '\n';
        describeLanguages(data, out);
        for (const auto& item : itemsOf(data, &Data::getTocItems))
            describe(*item, out);
    }
};

struct ScreenTextKind {
    using Data = i_ZelDataScreenText;
    using Item = i_ZelDataScreenTextItem;
    using Own = ZelDataScreenText;
    using OwnItem = ZelDataScreenTextItem;
    using Formatter = ZelDataXmpScreenTextFormatter;
    static constexpr auto setData = &Formatter::setScreenText;

    static void fill(Item& item, Dice& dice)
    {
        EXPECT_EQ(ZelData_Ok, item.setText(randomText(dice)));
        EXPECT_EQ(ZelData_Ok, item.setStart(dice.below(4)));
        if (!dice.oneIn(8)) {
            EXPECT_EQ(ZelData_Ok, item.setDuration(1 + dice.below(3)));
        }
        EXPECT_EQ(ZelData_Ok, item.setImageFile(randomText(dice)));
        EXPECT_EQ(ZelData_Ok, item.setImageIndex(dice.below(9)));
        EXPECT_EQ(ZelData_Ok, item.setImageOffset(dice.below(9)));
        EXPECT_EQ(ZelData_Ok, item.setGroupId(dice.below(9)));
    }

    static void fill(Data& data, Dice& dice)
    {
        mayRefuse(data.setFrameRate(dice.below(4)));
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataScreenTextItem item;
            fill(item, dice);
            mayRefuse(data.addScreenTextItem(item));
        }
    }

    static void describe(const Item& item, std::ostream& out)
    {
        out << got(item, &Item::getText) << ' ' << got(item, &Item::getImageFile) << ' '
            << got(item, &Item::getStart) << '+' << got(item, &Item::getDuration) << ' '
            << got(item, &Item::getImageIndex) << ' ' << got(item, &Item::getImageOffset) << ' '
            << got(item, &Item::getGroupId) << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        out << got(data, &Data::getFrameRate) << '\n';
        for (const auto& item : itemsOf(data, &Data::getScreenTextItems))
            describe(*item, out);
    }
};

/// A class derived from one of ours is not ours: a copy must call whatever it overrides.
template <class Own>
struct Derived : Own {
};

template <class Kind, class Object>
std::string describe(const Object& object)
{
    std::ostringstream out;
    Kind::describe(object, out);
    return out.str();
}

/// The last errors of both sides, before describing changes them, and then what both hold.
template <class Kind, class Object>
std::string copied(Object& target, const Object& source)
{
    source.setLastError(ZelData_NoData);
    target.setLastError(ZelData_NoData);
    const auto code = target.copyFrom(source);
    std::ostringstream out;
    out << std::hex << code << ' ' << target.getLastError() << ' ' << source.getLastError() << '\n'
        << describe<Kind>(target) << "source\n"
        << describe<Kind>(source);
    return out.str();
}

/// The codes of setting and writing, and the track.
template <class Kind>
std::string written(const typename Kind::Data& data)
{
    typename Kind::Formatter formatter;
    std::string track = "left alone";
    std::ostringstream out;
    out << std::hex << (formatter.*Kind::setData)(data) << ' ';
    out << formatter.writeString(track, ZelDataFormat_Xmp, false) << ' ';
    out << formatter.getLastError() << ' ' << data.getLastError() << '\n' << track;
    return out.str();
}

template <class Kind>
class BothRoads : public testing::Test {
};

using Kinds = testing::Types<CaptionKind, TocKind, ScreenTextKind>;
TYPED_TEST_SUITE(BothRoads, Kinds, );

TYPED_TEST(BothRoads, CopiesOfItemsAreTheSame)
{
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::vector<std::string> results;
        const auto go = [&](auto&& target, auto&& source) {
            Dice dice(seed);
            TypeParam::fill(target, dice);
            TypeParam::fill(source, dice);
            using Item = typename TypeParam::Item;
            results.push_back(
                copied<TypeParam>(static_cast<Item&>(target), static_cast<const Item&>(source)));
        };
        using Own = typename TypeParam::OwnItem;
        go(Own(), Own());
        go(Own(), Derived<Own>());
        go(Derived<Own>(), Own());
        ASSERT_EQ(results[0], results[1]) << "seed " << seed;
        ASSERT_EQ(results[0], results[2]) << "seed " << seed;
    }
}

TYPED_TEST(BothRoads, CopiesOfCollectionsAreTheSame)
{
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::vector<std::string> results;
        const auto go = [&](auto&& target, auto&& source) {
            Dice dice(seed);
            using Data = typename TypeParam::Data;
            TypeParam::fill(static_cast<Data&>(target), dice);
            TypeParam::fill(static_cast<Data&>(source), dice);
            results.push_back(
                copied<TypeParam>(static_cast<Data&>(target), static_cast<const Data&>(source)));
        };
        using Own = typename TypeParam::Own;
        go(Own(), Own());
        go(Own(), Derived<Own>());
        go(Derived<Own>(), Own());
        ASSERT_EQ(results[0], results[1]) << "seed " << seed;
        ASSERT_EQ(results[0], results[2]) << "seed " << seed;
    }
}

TYPED_TEST(BothRoads, TracksAreTheSame)
{
    for (unsigned seed = 0; seed < 3000; ++seed) {
        std::vector<std::string> results;
        const auto go = [&](auto&& source) {
            Dice dice(seed);
            TypeParam::fill(static_cast<typename TypeParam::Data&>(source), dice);
            results.push_back(written<TypeParam>(source));
        };
        go(typename TypeParam::Own());
        go(Derived<typename TypeParam::Own>());
        ASSERT_EQ(results[0], results[1]) << "seed " << seed;
    }
}

TEST(BothRoadsOfCaptions, ACaptionWithoutLengthStopsBoth)
{
    std::vector<std::string> results;
    const auto go = [&](auto&& source) {
        CaptionKind::Pretender pretender;
        EXPECT_EQ(ZelData_Ok, pretender.setTextForLanguage("text", "de"));
        EXPECT_EQ(ZelData_Ok, source.addCaptionItem(pretender)); // half copied, and no code says so
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, source.getCaptionItemCount(count));
        EXPECT_EQ(1U, count);
        ZelDataCaptions target;
        results.push_back(copied<CaptionKind>(static_cast<i_ZelDataCaptions&>(target),
                                              static_cast<const i_ZelDataCaptions&>(source)));
        results.push_back(written<CaptionKind>(source));
    };
    go(ZelDataCaptions());
    go(Derived<ZelDataCaptions>());
    EXPECT_EQ(results[0], results[2]);
    EXPECT_EQ(results[1], results[3]);
}

} // namespace
} // namespace ZelInterchangeData
