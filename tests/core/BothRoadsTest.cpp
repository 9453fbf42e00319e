/// @file
/// Copies between objects of exactly our own classes take a short road, all others go through the
/// interfaces. Here both roads are gone with the same random contents, and must lead to the same
/// place: codes, last errors on both sides, what the target holds, and the track that is written.

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "captions/ZelDataXmpCaptionFormatter.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "screentext/ZelDataXmpScreenTextFormatter.h"
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
        object.setTextForLanguage(randomText(dice), randomID(dice));
}

/// Languages that no item has, another order, and now and then an identical one twice.
template <class Collection>
void stirLanguages(Collection& collection, Dice& dice)
{
    if (dice.oneIn(3)) collection.addLanguage(randomID(dice));
    std::vector<std::string> ids;
    collection.getOrderedLanguageIDs(ids);
    if (ids.size() > 1 && dice.oneIn(4)) std::swap(ids.front(), ids.back());
    if (ids.size() > 1 && dice.oneIn(6)) ids.front() = ids.back();
    collection.setOrderedLanguageIDs(ids);
}

template <class Object>
void describeTexts(const Object& object, std::ostream& out)
{
    std::vector<std::string> ids;
    object.getLanguageIDs(ids);
    for (const std::string& id : ids) {
        std::string text;
        object.getTextForLanguage(text, id);
        out << ' ' << id << '=' << text;
    }
}

template <class Collection>
void describeLanguages(const Collection& collection, std::ostream& out)
{
    std::vector<std::string> ids;
    collection.getOrderedLanguageIDs(ids);
    for (const std::string& id : ids)
        out << id << ',';
    out << '\n';
}

template <class Item>
using Owned = std::vector<std::unique_ptr<Item>>;

template <class Item, class Collection>
Owned<Item> itemsOf(const Collection& collection,
                    ZelDataResult_tags (Collection::*get)(std::vector<Item*>&) const)
{
    std::vector<Item*> items;
    (collection.*get)(items);
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
        item.setStart(dice.below(4));
        if (!dice.oneIn(8)) item.setDuration(1 + dice.below(3));
        if (dice.oneIn(20)) item.setStart(std::numeric_limits<long long>::max()); // its end wraps
        item.setAlignment(static_cast<ZelAlignment_tags>(dice.below(64)));
        addTexts(item, dice);
    }

    static void fill(Data& data, Dice& dice)
    {
        data.setFrameRate(dice.below(4));
        data.setFontFamily(randomText(dice));
        data.setFontSize(dice.below(600));
        data.setForegroundColor(static_cast<float>(dice.below(3)) / 2, 0.25F, 1);
        data.setBackgroundOpacity(dice.oneIn(4) ? std::numeric_limits<float>::quiet_NaN() : 0.5F);
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataCaptionItem item;
            fill(item, dice);
            data.addCaptionItem(item);
        }
        stirLanguages(data, dice);
    }

    static void describe(const Item& item, std::ostream& out)
    {
        long long start = -1;
        long long duration = -1;
        auto alignment = ZelAlignBottom;
        item.getStart(start);
        item.getDuration(duration);
        item.getAlignment(alignment);
        out << start << '+' << duration << ' ' << alignment;
        describeTexts(item, out);
        out << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        unsigned long number = 0;
        std::string family;
        float red = 0;
        float green = 0;
        float blue = 0;
        float opacity = 0;
        data.getFrameRate(number);
        out << number << ' ';
        data.getFontFamily(family);
        data.getFontSize(number);
        data.getForegroundColor(red, green, blue);
        data.getBackgroundOpacity(opacity);
        out << family << ' ' << number << ' ' << red << ' ' << green << ' ' << blue << ' '
            << opacity << '\n';
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
        item.setStart(dice.below(4));
        item.setImageFile(randomText(dice));
        item.setImageIndex(dice.below(9));
        item.setImageOffset(dice.below(9));
        addTexts(item, dice);
    }

    static void fill(Data& data, Dice& dice)
    {
        data.setFrameRate(dice.below(4));
        data.setImageFile(randomText(dice));
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataTocItem item;
            fill(item, dice);
            data.addTocItem(item);
        }
        stirLanguages(data, dice);
    }

    static void describe(const Item& item, std::ostream& out)
    {
        long long start = -1;
        std::string image;
        unsigned long index = 0;
        unsigned long long offset = 0;
        item.getStart(start);
        item.getImageFile(image);
        item.getImageIndex(index);
        item.getImageOffset(offset);
        out << start << ' ' << image << ' ' << index << ' ' << offset;
        describeTexts(item, out);
        out << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        unsigned long rate = 0;
        std::string image;
        data.getFrameRate(rate);
        data.getImageFile(image);
        out << rate << ' ' << image << '\n';
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
        item.setText(randomText(dice));
        item.setStart(dice.below(4));
        if (!dice.oneIn(8)) item.setDuration(1 + dice.below(3));
        item.setImageFile(randomText(dice));
        item.setImageIndex(dice.below(9));
        item.setImageOffset(dice.below(9));
        item.setGroupId(dice.below(9));
    }

    static void fill(Data& data, Dice& dice)
    {
        data.setFrameRate(dice.below(4));
        for (unsigned i = dice.below(8); i > 0; --i) {
            ZelDataScreenTextItem item;
            fill(item, dice);
            data.addScreenTextItem(item);
        }
    }

    static void describe(const Item& item, std::ostream& out)
    {
        std::string text;
        std::string image;
        long long start = -1;
        long long duration = -1;
        unsigned long index = 0;
        unsigned long group = 0;
        unsigned long long offset = 0;
        item.getText(text);
        item.getImageFile(image);
        item.getStart(start);
        item.getDuration(duration);
        item.getImageIndex(index);
        item.getImageOffset(offset);
        item.getGroupId(group);
        out << text << ' ' << image << ' ' << start << '+' << duration << ' ' << index << ' '
            << offset << ' ' << group << '\n';
    }

    static void describe(const Data& data, std::ostream& out)
    {
        unsigned long rate = 0;
        data.getFrameRate(rate);
        out << rate << '\n';
        for (const auto& item : itemsOf(data, &Data::getScreenTextItems))
            describe(*item, out);
    }
};

/// Anything derived from an own class is no own class: whatever it overrides must be called.
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
        pretender.setTextForLanguage("text", "de");
        EXPECT_EQ(ZelData_Ok, source.addCaptionItem(pretender)); // half copied, and no code tells
        unsigned long count = 0;
        source.getCaptionItemCount(count);
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
