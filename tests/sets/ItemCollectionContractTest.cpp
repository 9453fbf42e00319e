/// @file
/// What captions, tables of contents and screen text have in common as collections of items. Each
/// test runs over all three.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "support/LongNumbers.h"
#include "support/fakes/FailingCaptions.h"
#include "support/fakes/FailingToc.h"
#include "toc/Entries.h"

#include <functional>
#include <limits>
#include <map>
#include <new>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

using IDs = std::vector<std::string>;
using Texts = std::map<std::string, std::string>;

constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

/// More about a kind: collections that make other items or hand out a null pointer, and a text that
/// marks an item.
template <class Kind>
struct TextByLanguage : Kind {
    using typename Kind::Item;

    static void setTag(Item& item, const std::string& tag)
    {
        EXPECT_FALSE(isError(item.setTextForLanguage(tag, "en")));
    }
    static std::string tag(const Item& item)
    {
        std::string text;
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(text, "en"));
        return text;
    }
};

struct Captions : TextByLanguage<CaptionKind> {
    using Fake = FailingCaptions;
    using FakeItem = FailingCaptionItem;
    static constexpr auto ofLanguage = &Data::getCaptionItemsForLanguage;

    static Values item(long long start, const Texts& texts) { return {start, 1000, texts}; }
    /// Sets something that clearing the items keeps.
    static void mark(Data& captions) { EXPECT_EQ(ZelData_Ok, captions.setFontSize(30)); }
    static bool isMarked(const Data& captions) { return styleOf(captions).fontSize == 30; }

    struct Made : CaptionKind::Made {
        /// Sets a rate that no setter would take.
        void forceRate(unsigned long rate) { style_.frameRate.value = rate; }
    };

    /// A collection that hands out a null pointer after its items.
    struct HandingOutNull : Own {
        ZelDataResult_tags getCaptionItems(std::vector<Item*>& items) const override
        {
            const auto code = Own::getCaptionItems(items);
            items.push_back(nullptr);
            return code;
        }
    };

    static void setTag(Item& item, const std::string& tag)
    {
        TextByLanguage::setTag(item, tag);
        EXPECT_EQ(ZelData_Ok, item.setDuration(1)); // without length it cannot be added
    }
};

struct Toc : TextByLanguage<TocKind> {
    using Fake = FailingToc;
    using FakeItem = FailingTocItem;
    static constexpr auto ofLanguage = &Data::getTocItemsForLanguage;

    static Values item(long long start, const Texts& texts) { return {start, texts}; }
    static void mark(Data& toc) { EXPECT_EQ(ZelData_Ok, toc.setImageFile("t.png")); }
    static bool isMarked(const Data& toc) { return imageOf(toc) == "t.png"; }

    struct Made : TocKind::Made {
        /// Sets a rate that no setter would take.
        void forceRate(unsigned long rate) { frameRate_.value = rate; }
    };

    struct HandingOutNull : Own {
        ZelDataResult_tags getTocItems(std::vector<Item*>& items) const override
        {
            const auto code = Own::getTocItems(items);
            items.push_back(nullptr);
            return code;
        }
    };
};

struct ScreenText : ScreenTextKind {
    struct Made : ScreenTextKind::Made {
        /// Sets a rate that no setter would take.
        void forceRate(unsigned long rate) { frameRate_.value = rate; }
    };

    struct HandingOutNull : Own {
        ZelDataResult_tags getScreenTextItems(std::vector<Item*>& items) const override
        {
            const auto code = Own::getScreenTextItems(items);
            items.push_back(nullptr);
            return code;
        }
    };

    static void setTag(Item& item, const std::string& tag)
    {
        EXPECT_EQ(ZelData_Ok, item.setText(tag));
    }
    static std::string tag(const Item& item)
    {
        std::string text;
        EXPECT_EQ(ZelData_Ok, item.getText(text));
        return text;
    }
};

/// An item that takes its start from the test and counts the living objects of its class.
template <class Kind>
class OddItem : public Kind::OwnItem {
public:
    explicit OddItem(std::function<ZelDataResult_tags(long long&)> start) : start_(std::move(start))
    {
        ++alive();
    }
    OddItem() : OddItem(nullptr) {}
    ~OddItem() override { --alive(); }
    OddItem(const OddItem&) = delete;
    OddItem& operator=(const OddItem&) = delete;

    ZelDataResult_tags getStart(long long& start) const override
    {
        return start_ ? start_(start) : Kind::OwnItem::getStart(start);
    }

    static long& alive()
    {
        static long count = 0;
        return count;
    }

private:
    std::function<ZelDataResult_tags(long long&)> start_;
};

/// An item that cannot be filled: setting its start returns one code and stores another.
template <class Kind>
class UnfillableItem : public OddItem<Kind> {
public:
    ZelDataResult_tags setStart(long long) override { return ZelData_InvalidItem; }
    ZelDataResult_tags getLastError() const override { return ZelData_NoData; }
};

using Timed = std::pair<long long, std::string>; // start and tag

template <class Kind>
class ItemCollection : public testing::Test {
protected:
    using Item = typename Kind::Item;
    using Owned = std::unique_ptr<Item>;
    using Odd = OddItem<Kind>;

    static void fill(Item& item, const Timed& timed)
    {
        EXPECT_EQ(ZelData_Ok, item.setStart(timed.first));
        Kind::setTag(item, timed.second);
    }

    static Timed contentsOf(const Item& item)
    {
        long long start = -1;
        EXPECT_EQ(ZelData_Ok, item.getStart(start));
        return {start, Kind::tag(item)};
    }

    void add(const std::vector<Timed>& items)
    {
        for (const Timed& timed : items) {
            typename Kind::OwnItem item;
            fill(item, timed);
            EXPECT_CODE(collection_, ZelData_Ok, (collection_.*Kind::add)(item));
        }
    }

    std::vector<Timed> contents() const
    {
        std::vector<Item*> items;
        EXPECT_CODE(collection_, ZelData_Ok, (collection_.*Kind::all)(items));
        std::vector<Timed> contents;
        for (Item* item : items)
            contents.push_back(contentsOf(*Owned(item)));
        return contents;
    }

    unsigned long count()
    {
        unsigned long count = 99;
        EXPECT_CODE(collection_, ZelData_Ok, (collection_.*Kind::count)(count));
        return count;
    }

    Owned itemAt(unsigned long index)
    {
        return created<Item>([&](Item** out) {
            EXPECT_CODE(collection_, ZelData_Ok, (collection_.*Kind::at)(out, index));
            return collection_.getLastError();
        });
    }

    /// Makes the collection create good items from now on, and one that cannot be filled at call @p nth.
    void makeUnfillable(int nth)
    {
        collection_.maker = [nth](Item** out) mutable {
            if (--nth == 0)
                *out = new UnfillableItem<Kind>;
            else
                *out = new Odd;
            return ZelData_Ok;
        };
    }

    typename Kind::Made collection_;
    const std::vector<Timed> three_{{300, "c"}, {100, "a"}, {200, "b"}};
};

using Kinds = testing::Types<Captions, Toc, ScreenText>;
TYPED_TEST_SUITE(ItemCollection, Kinds, KindName);

TYPED_TEST(ItemCollection, StartsEmpty)
{
    EXPECT_EQ(0UL, this->count());
    EXPECT_TRUE(this->contents().empty());
}

TYPED_TEST(ItemCollection, ANewItemBelongsToTheCallerAndIsNotAdded)
{
    typename TypeParam::Item* out = nullptr;
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::create)(&out));
    const std::unique_ptr<typename TypeParam::Item> item(out);
    ASSERT_NE(nullptr, item);
    EXPECT_EQ(ZelData_Ok, item->getLastError());
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, AnItemIsMadeOnlyIntoAnEmptyPointer)
{
    typename TypeParam::OwnItem own;
    typename TypeParam::Item* out = &own;
    EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                (this->collection_.*TypeParam::create)(&out));
    EXPECT_EQ(&own, out);
    EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                (this->collection_.*TypeParam::create)(nullptr));
}

TYPED_TEST(ItemCollection, KeepsItemsInOrderOfAddition)
{
    this->add(this->three_);
    EXPECT_EQ(3UL, this->count());
    EXPECT_EQ(this->three_, this->contents());
    for (unsigned long i = 0; i < 3; ++i)
        EXPECT_EQ(this->three_[i], this->contentsOf(*this->itemAt(i)));
}

TYPED_TEST(ItemCollection, StoresACopyOfTheItem)
{
    typename TypeParam::OwnItem item;
    this->fill(item, {1, "a"});
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::add)(item));
    this->fill(item, {2, "changed"});
    EXPECT_EQ((std::vector<Timed>{{1, "a"}}), this->contents());
}

TYPED_TEST(ItemCollection, HandsOutCopies)
{
    this->add({{1, "a"}});
    const auto first = this->itemAt(0);
    this->fill(*first, {2, "changed"});
    EXPECT_EQ((std::vector<Timed>{{1, "a"}}), this->contents());
    EXPECT_EQ((Timed{1, "a"}), this->contentsOf(*this->itemAt(0)));
}

TYPED_TEST(ItemCollection, ACopyHandedOutOutlivesItsOriginal)
{
    this->add({{1, "a"}});
    const auto copy = this->itemAt(0);
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
    EXPECT_EQ((Timed{1, "a"}), this->contentsOf(*copy));
}

TYPED_TEST(ItemCollection, HandsOutOnlyIntoAnEmptyPointerAndBelowTheCount)
{
    this->add(this->three_);
    typename TypeParam::OwnItem own;
    typename TypeParam::Item* full = &own;
    typename TypeParam::Item* empty = nullptr;
    const auto& collection = this->collection_;
    EXPECT_CODE(collection, ZelData_InvalidArgument, (collection.*TypeParam::at)(nullptr, 0));
    EXPECT_CODE(collection, ZelData_InvalidArgument, (collection.*TypeParam::at)(&full, 0));
    EXPECT_CODE(collection, ZelData_InvalidArgument, (collection.*TypeParam::at)(&empty, 3));
    EXPECT_CODE(collection, ZelData_InvalidArgument,
                (collection.*TypeParam::at)(&empty, std::numeric_limits<unsigned long>::max()));
    EXPECT_EQ(&own, full);
    EXPECT_EQ(nullptr, empty);
}

TYPED_TEST(ItemCollection, GettingAllItemsReplacesTheVectorWithoutDestroyingItsItems)
{
    this->add({{1, "a"}});
    typename TypeParam::OwnItem mine;
    std::vector<typename TypeParam::Item*> items{&mine, nullptr, &mine};
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::all)(items));
    ASSERT_EQ(1U, items.size());
    const std::unique_ptr<typename TypeParam::Item> copy(items.front());
    EXPECT_EQ((Timed{1, "a"}), this->contentsOf(*copy));
    EXPECT_CODE(mine, ZelData_Ok, mine.setStart(5));
}

TYPED_TEST(ItemCollection, GettingNoItemsEmptiesTheVector)
{
    std::vector<typename TypeParam::Item*> items{nullptr};
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::all)(items));
    EXPECT_TRUE(items.empty());
}

TYPED_TEST(ItemCollection, RemovingClosesTheGap)
{
    this->add(this->three_);
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::removeAt)(1));
    EXPECT_EQ((std::vector<Timed>{{300, "c"}, {200, "b"}}), this->contents());
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::removeAt)(1));
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::removeAt)(0));
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, OnlyAnIndexBelowTheCountCanBeRemoved)
{
    EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                (this->collection_.*TypeParam::removeAt)(0));
    this->add(this->three_);
    for (const unsigned long index : {3UL, 4UL, std::numeric_limits<unsigned long>::max()})
        EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                    (this->collection_.*TypeParam::removeAt)(index));
    EXPECT_EQ(this->three_, this->contents());
}

TYPED_TEST(ItemCollection, ClearingRemovesAllItems)
{
    this->add(this->three_);
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
    EXPECT_EQ(0UL, this->count());
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
}

TYPED_TEST(ItemCollection, DestroysItsItemsWhenRemovedClearedOrDestroyed)
{
    using Counted = OddItem<TypeParam>;
    const long before = Counted::alive();
    {
        typename TypeParam::Made collection;
        collection.maker = [](typename TypeParam::Item** out) {
            *out = new Counted;
            return ZelData_Ok;
        };
        typename TypeParam::OwnItem item;
        this->fill(item, {1, "a"});
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(ZelData_Ok, (collection.*TypeParam::add)(item));
        EXPECT_EQ(before + 4, Counted::alive());
        EXPECT_EQ(ZelData_Ok, (collection.*TypeParam::removeAt)(0));
        EXPECT_EQ(before + 3, Counted::alive());
        EXPECT_EQ(ZelData_Ok, (collection.*TypeParam::clear)());
        EXPECT_EQ(before, Counted::alive());
        EXPECT_EQ(ZelData_Ok, (collection.*TypeParam::add)(item));
    }
    EXPECT_EQ(before, Counted::alive());
}

// Failing copies

TYPED_TEST(ItemCollection, AnItemWithARefusedValueIsNotAdded)
{
    OddItem<TypeParam> early([](long long& start) {
        start = -1;
        return ZelData_Ok;
    });
    TypeParam::setTag(early, "a");
    EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                (this->collection_.*TypeParam::add)(early));
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, AForeignItemsLastErrorIsTakenOver)
{
    OddItem<TypeParam> foreign([&foreign](long long&) {
        foreign.setLastError(ZelData_NotFound);
        return ZelData_InvalidItem;
    });
    TypeParam::setTag(foreign, "a");
    EXPECT_CODE(this->collection_, ZelData_NotFound, (this->collection_.*TypeParam::add)(foreign));
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, AForeignItemsExceptionBecomesACode)
{
    OddItem<TypeParam> exhausted([](long long&) -> ZelDataResult_tags { throw std::bad_alloc(); });
    OddItem<TypeParam> throwing([](long long&) -> ZelDataResult_tags { throw 1; });
    TypeParam::setTag(exhausted, "a");
    TypeParam::setTag(throwing, "a");
    EXPECT_CODE(this->collection_, ZelData_OutOfMemory,
                (this->collection_.*TypeParam::add)(exhausted));
    EXPECT_CODE(this->collection_, ZelData_InternalError,
                (this->collection_.*TypeParam::add)(throwing));
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, AnItemThatCannotBeMadeIsNeitherAddedNorHandedOut)
{
    this->add({{1, "a"}});
    auto& collection = this->collection_;
    collection.maker = [&collection](typename TypeParam::Item**) {
        collection.setLastError(ZelData_OutOfMemory);
        return ZelData_OutOfMemory;
    };
    typename TypeParam::OwnItem item;
    this->fill(item, {2, "b"});
    typename TypeParam::Item* out = nullptr;
    std::vector<typename TypeParam::Item*> items{nullptr};
    EXPECT_CODE(collection, ZelData_OutOfMemory, (collection.*TypeParam::add)(item));
    EXPECT_CODE(collection, ZelData_OutOfMemory, (collection.*TypeParam::at)(&out, 0));
    EXPECT_EQ(nullptr, out);
    EXPECT_CODE(collection, ZelData_OutOfMemory, (collection.*TypeParam::all)(items));
    EXPECT_TRUE(items.empty());
    EXPECT_EQ(1UL, this->count());
}

TYPED_TEST(ItemCollection, ACopyThatCannotBeFilledIsDestroyedAndItsLastErrorTakenOver)
{
    const long before = OddItem<TypeParam>::alive();
    this->add({{1, "a"}});
    auto& collection = this->collection_;
    typename TypeParam::OwnItem item;
    this->fill(item, {2, "b"});
    typename TypeParam::Item* out = nullptr;
    this->makeUnfillable(1);
    EXPECT_CODE(collection, ZelData_NoData, (collection.*TypeParam::add)(item));
    this->makeUnfillable(1);
    EXPECT_CODE(collection, ZelData_NoData, (collection.*TypeParam::at)(&out, 0));
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(1UL, this->count());
    EXPECT_EQ(before, OddItem<TypeParam>::alive());
}

TYPED_TEST(ItemCollection, WhenOneCopyFailsTheOthersAreDestroyedAndTheVectorIsEmpty)
{
    this->add(this->three_);
    const long before = OddItem<TypeParam>::alive();
    std::vector<typename TypeParam::Item*> items{nullptr};
    for (int nth = 1; nth <= 3; ++nth) {
        SCOPED_TRACE(nth);
        this->makeUnfillable(nth);
        EXPECT_CODE(this->collection_, ZelData_NoData, (this->collection_.*TypeParam::all)(items));
        EXPECT_TRUE(items.empty());
        EXPECT_EQ(before, OddItem<TypeParam>::alive());
    }
}

// Items that change their collection while it reads them

/// Three items, the first of which changes its collection when its start is first read.
template <class Kind>
class Meddled {
public:
    using Change = void (*)(typename Kind::Made& collection);

    explicit Meddled(Change change)
    {
        collection_.maker = [this](typename Kind::Item** out) {
            *out = new OddItem<Kind>([this](long long& start) {
                if (const auto once = std::exchange(change_, nullptr)) once(collection_);
                start = 0;
                return ZelData_Ok;
            });
            return ZelData_Ok;
        };
        for (int i = 0; i < 3; ++i)
            addOne(collection_);
        change_ = change;
    }

    static void addOne(typename Kind::Made& collection)
    {
        typename Kind::OwnItem item;
        Kind::setTag(item, "tag");
        EXPECT_EQ(ZelData_Ok, (collection.*Kind::add)(item));
    }

    unsigned long count()
    {
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, (collection_.*Kind::count)(count));
        return count;
    }

    typename Kind::Made collection_;

private:
    Change change_ = nullptr;
};

template <class Kind>
void addMany(typename Kind::Made& collection)
{
    for (int i = 0; i < 100; ++i)
        Meddled<Kind>::addOne(collection);
}

template <class Kind>
void clearAll(typename Kind::Made& collection)
{
    EXPECT_EQ(ZelData_Ok, (collection.*Kind::clear)());
}

TYPED_TEST(ItemCollection, AnItemMayChangeItsCollectionDuringARead)
{
    for (const auto& [change, left] :
         {std::pair(&addMany<TypeParam>, 103UL), std::pair(&clearAll<TypeParam>, 0UL)}) {
        Meddled<TypeParam> checked(change);
        EXPECT_FALSE(isError(checked.collection_.isValid(false))); // captions overlap here
        EXPECT_EQ(left, checked.count());
        Meddled<TypeParam> one(change);
        typename TypeParam::Item* out = nullptr;
        EXPECT_CODE(one.collection_, ZelData_Ok, (one.collection_.*TypeParam::at)(&out, 0));
        const std::unique_ptr<typename TypeParam::Item> owner(out);
        EXPECT_EQ(left, one.count());
        Meddled<TypeParam> all(change);
        std::vector<typename TypeParam::Item*> items;
        EXPECT_CODE(all.collection_, ZelData_Ok, (all.collection_.*TypeParam::all)(items));
        EXPECT_EQ(3U, items.size());
        for (auto* item : items)
            delete item;
        EXPECT_EQ(left, all.count());
    }
}

TYPED_TEST(ItemCollection, AnItemThatChangesItsCollectionStopsTheOrdering)
{
    for (const auto& [change, left] :
         {std::pair(&addMany<TypeParam>, 103UL), std::pair(&clearAll<TypeParam>, 0UL)}) {
        Meddled<TypeParam> ordered(change);
        EXPECT_CODE(ordered.collection_, ZelData_InternalError,
                    (ordered.collection_.*TypeParam::order)());
        EXPECT_EQ(left, ordered.count());
        EXPECT_CODE(ordered.collection_, ZelData_Ok, (ordered.collection_.*TypeParam::order)());
        Meddled<TypeParam> repaired(change);
        EXPECT_CODE(repaired.collection_, ZelData_InternalError,
                    (repaired.collection_.*TypeParam::makeConsistent)());
        EXPECT_EQ(left, repaired.count());
    }
}

// Copies of whole collections

TYPED_TEST(ItemCollection, ACopyOfTheCollectionReplacesTheItemsWithCopies)
{
    this->add({{9, "old"}});
    typename TypeParam::Own source;
    for (const Timed& timed : this->three_) {
        typename TypeParam::OwnItem item;
        this->fill(item, timed);
        EXPECT_EQ(ZelData_Ok, (source.*TypeParam::add)(item));
    }
    EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.copyFrom(source));
    EXPECT_EQ(ZelData_Ok, (source.*TypeParam::clear)());
    EXPECT_EQ(this->three_, this->contents());
}

TYPED_TEST(ItemCollection, ASourceThatHandsOutANullPointerEndsTheCopyAfterTheItemsBeforeIt)
{
    typename TypeParam::HandingOutNull source;
    typename TypeParam::OwnItem item;
    this->fill(item, {5, "before"});
    EXPECT_EQ(ZelData_Ok, (source.*TypeParam::add)(item));
    EXPECT_CODE(this->collection_, ZelData_InternalError, this->collection_.copyFrom(source));
    EXPECT_EQ((std::vector<Timed>{{5, "before"}}), this->contents());
}

TYPED_TEST(ItemCollection, AMakerThatSucceedsWithoutAnItemIsAnInternalError)
{
    typename TypeParam::OwnItem item;
    this->fill(item, {5, "lost"});
    this->collection_.maker = [](typename TypeParam::Item**) { return ZelData_Ok; };
    EXPECT_CODE(this->collection_, ZelData_InternalError,
                (this->collection_.*TypeParam::add)(item));
    EXPECT_EQ(0UL, this->count());
}

TYPED_TEST(ItemCollection, CopyingOntoItselfIsAnErrorThatChangesNothing)
{
    this->add(this->three_);
    EXPECT_CODE(this->collection_, ZelData_InternalError,
                this->collection_.copyFrom(this->collection_));
    EXPECT_EQ(this->three_, this->contents());
}

// Order

/// The expected order, step by step: each place in turn is exchanged with every smaller start after
/// it.
void exchangeSort(std::vector<Timed>& items)
{
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
        for (std::size_t j = i + 1; j < items.size(); ++j)
            if (items[j].first < items[i].first) std::swap(items[i], items[j]);
}

TYPED_TEST(ItemCollection, EqualStartsMaySwapPlacesWhenASmallerOnePasses)
{
    this->add({{5, "first"}, {5, "second"}, {3, "early"}});
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::order)());
    EXPECT_EQ((std::vector<Timed>{{3, "early"}, {5, "second"}, {5, "first"}}), this->contents());
}

TYPED_TEST(ItemCollection, EqualStartsAloneKeepTheirPlaces)
{
    const std::vector<Timed> items{{5, "a"}, {5, "b"}, {5, "c"}};
    this->add(items);
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::order)());
    EXPECT_EQ(items, this->contents());
}

TYPED_TEST(ItemCollection, OrdersTheExtremesOfTimeAsSignedNumbers)
{
    const long long latest = std::numeric_limits<long long>::max() - 1;
    this->add({{latest, "c"}, {0, "a"}, {0x100000000, "b"}});
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::order)());
    EXPECT_EQ((std::vector<Timed>{{0, "a"}, {0x100000000, "b"}, {latest, "c"}}), this->contents());
}

TYPED_TEST(ItemCollection, OrdersNothingAndOneItem)
{
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::order)());
    this->add({{1, "a"}});
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::makeConsistent)());
    EXPECT_EQ((std::vector<Timed>{{1, "a"}}), this->contents());
}

TYPED_TEST(ItemCollection, RandomOrdersMatchTheExchangeSort)
{
    std::mt19937 random(20090305);
    for (int round = 0; round < 3000; ++round) {
        std::vector<Timed> items(random() % 12);
        for (std::size_t i = 0; i < items.size(); ++i)
            items[i] = {random() % 6, std::to_string(i)}; // few starts, so many are equal
        EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
        this->add(items);
        const auto order = round % 2 == 0 ? TypeParam::order : nullptr;
        EXPECT_CODE(this->collection_, ZelData_Ok,
                    order ? (this->collection_.*order)()
                          : (this->collection_.*TypeParam::makeConsistent)());
        exchangeSort(items);
        ASSERT_EQ(items, this->contents());
    }
}

// Frame rates

TYPED_TEST(ItemCollection, AcceptsFrameRatesFrom1To10000)
{
    EXPECT_EQ(1000UL, frameRateOf(this->collection_));
    for (const unsigned long rate : {1UL, 25UL, 10000UL}) {
        EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.setFrameRate(rate));
        unsigned long stored = 0;
        EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.getFrameRate(stored));
        EXPECT_EQ(rate, stored);
        for (const bool deep : {false, true})
            EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.isValid(deep));
    }
}

TYPED_TEST(ItemCollection, RefusesOtherFrameRatesAndKeepsTheEarlierOne)
{
    EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.setFrameRate(25));
    for (const unsigned long rate : {0UL, 10001UL, above32Bits(1)})
        EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                    this->collection_.setFrameRate(rate));
    EXPECT_EQ(25UL, frameRateOf(this->collection_));
}

TYPED_TEST(ItemCollection, ClearingTheItemsLeavesTheFrameRate)
{
    this->add(this->three_);
    EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.setFrameRate(25));
    EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
    EXPECT_EQ(25UL, frameRateOf(this->collection_));
}

TYPED_TEST(ItemCollection, AFrameRateOutOfRangeIsFoundBeforeDisorder)
{
    for (const unsigned long rate : {0UL, 10001UL}) {
        EXPECT_CODE(this->collection_, ZelData_Ok, (this->collection_.*TypeParam::clear)());
        this->collection_.forceRate(rate);
        for (const bool deep : {false, true})
            EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                        this->collection_.isValid(deep));
        this->add(this->three_);
        for (const bool deep : {false, true})
            EXPECT_CODE(this->collection_, ZelData_InvalidArgument,
                        this->collection_.isValid(deep));
    }
}

TYPED_TEST(ItemCollection, AFrameRateOutOfRangeIsRepairedToTheStandardRateAndAnyOtherKept)
{
    for (const auto& [rate, repaired] : {std::pair(0UL, 1000UL), std::pair(10001UL, 1000UL),
                                         std::pair(1UL, 1UL), std::pair(10000UL, 10000UL)}) {
        this->collection_.forceRate(rate);
        EXPECT_CODE(this->collection_, ZelData_Ok,
                    (this->collection_.*TypeParam::makeConsistent)());
        EXPECT_EQ(repaired, frameRateOf(this->collection_));
    }
}

/// A copy of a table of contents does not read the rate.
TYPED_TEST(ItemCollection, AFrameRateOutOfRangeEndsACopyThatReadsIt)
{
    this->add(this->three_);
    this->collection_.forceRate(0);
    typename TypeParam::Own target;
    const bool takesIt = !std::is_same_v<TypeParam, Toc>;
    EXPECT_CODE(target, takesIt ? ZelData_InvalidArgument : ZelData_Ok,
                target.copyFrom(static_cast<const typename TypeParam::Data&>(this->collection_)));
    EXPECT_EQ(1000UL, frameRateOf(target));
    EXPECT_EQ(takesIt, valuesOf<TypeParam>(target).empty());
}

// The languages of collections

template <class Kind>
class ItemLanguages : public testing::Test {
protected:
    using Values = typename Kind::Values;
    using Items = std::vector<Values>;

    /// An item that starts at @p start and has @p texts.
    static Values item(long long start, const Texts& texts) { return Kind::item(start, texts); }

    void add(const Items& items) { addItems<Kind>(*collection_, items); }
    Items items() const { return valuesOf<Kind>(*collection_); }

    std::unique_ptr<typename Kind::Data> collection_ = newCollection<Kind>();
};

using KindsWithLanguages = testing::Types<Captions, Toc>;
TYPED_TEST_SUITE(ItemLanguages, KindsWithLanguages, KindName);

TYPED_TEST(ItemLanguages, AreListedInByteOrderAfterTheListedOnes)
{
    EXPECT_EQ(ZelData_Ok, this->collection_->addLanguage("fr"));
    this->add({this->item(0, {{"en", ""}, {"EN", ""}, {"de", ""}, {"fr", ""}})});
    this->add({this->item(1000, {{"cs", ""}, {"en", ""}})});
    EXPECT_EQ((IDs{"fr", "EN", "de", "en", "cs"}), languagesOf(*this->collection_));
}

TYPED_TEST(ItemLanguages, ThatAreAlreadyListedDoNotWarn)
{
    EXPECT_EQ(ZelData_Ok, this->collection_->addLanguage("en"));
    const auto item = newItem<TypeParam>(this->item(0, {{"en", ""}}));
    EXPECT_CODE(*this->collection_, ZelData_Ok, ((*this->collection_).*TypeParam::add)(*item));
    EXPECT_EQ(1U, this->items().size());
}

TYPED_TEST(ItemLanguages, StayInTheItemsWhenTheyAreRemovedFromTheList)
{
    const auto item = this->item(0, {{"de", "d"}, {"en", "e"}});
    this->add({item});
    EXPECT_CODE(*this->collection_, ZelData_Ok, this->collection_->removeLanguage("de"));
    EXPECT_EQ(IDs{"en"}, languagesOf(*this->collection_));
    EXPECT_EQ(std::vector{item}, this->items());
    EXPECT_CODE(*this->collection_, ZelData_Ok, this->collection_->clearLanguages());
    EXPECT_EQ(std::vector{item}, this->items());
}

TYPED_TEST(ItemLanguages, ThatAreNotListedAreNeitherReportedMissingNorFilledIn)
{
    const std::vector items{this->item(0, {{"de", "d"}, {"en", "e"}}),
                            this->item(1000, {{"en", "f"}})};
    this->add(items);
    EXPECT_CODE(*this->collection_, ZelData_Ok, this->collection_->removeLanguage("de"));
    EXPECT_CODE(*this->collection_, ZelData_Ok, this->collection_->isValid(true));
    EXPECT_CODE(*this->collection_, ZelData_Ok,
                ((*this->collection_).*TypeParam::makeConsistent)());
    EXPECT_EQ(items, this->items());
}

TYPED_TEST(ItemLanguages, AreNoLongerListedWhenTheItemsAreCleared)
{
    this->add({this->item(0, {{"de", ""}})});
    EXPECT_EQ(ZelData_Ok, this->collection_->addLanguage("fr"));
    TypeParam::mark(*this->collection_);
    EXPECT_CODE(*this->collection_, ZelData_Ok, ((*this->collection_).*TypeParam::clear)());
    unsigned long count = 99;
    EXPECT_CODE(*this->collection_, ZelData_Ok, this->collection_->getLanguageCount(count));
    EXPECT_EQ(0U, count);
    EXPECT_TRUE(TypeParam::isMarked(*this->collection_));
}

TYPED_TEST(ItemLanguages, StayListedWhenAnItemIsRemoved)
{
    this->add({this->item(0, {{"de", ""}}), this->item(1000, {{"en", ""}}), this->item(2000, {})});
    EXPECT_CODE(*this->collection_, ZelData_Ok, ((*this->collection_).*TypeParam::removeAt)(1));
    EXPECT_EQ((std::vector{this->item(0, {{"de", ""}}), this->item(2000, {})}), this->items());
    EXPECT_EQ((IDs{"de", "en"}), languagesOf(*this->collection_));
}

TYPED_TEST(ItemLanguages, StayListedWhenTheirTextsAreRemoved)
{
    this->add({this->item(0, {{"en", "a"}, {"fr", "b"}}), this->item(1000, {{"fr", "c"}})});
    EXPECT_CODE(*this->collection_, ZelData_Ok,
                ((*this->collection_).*TypeParam::removeLanguage)("fr"));
    EXPECT_EQ((std::vector{this->item(0, {{"en", "a"}}), this->item(1000, {})}), this->items());
    EXPECT_EQ((IDs{"en", "fr"}), languagesOf(*this->collection_));
}

TYPED_TEST(ItemLanguages, LoseNoTextAfterTheFirstItemWithoutOne)
{
    this->add({this->item(0, {{"fr", "a"}}), this->item(1000, {{"en", "b"}}),
               this->item(2000, {{"fr", "c"}})});
    EXPECT_CODE(*this->collection_, ZelData_NotFound,
                ((*this->collection_).*TypeParam::removeLanguage)("fr"));
    EXPECT_EQ((std::vector{this->item(0, {}), this->item(1000, {{"en", "b"}}),
                           this->item(2000, {{"fr", "c"}})}),
              this->items());
}

TYPED_TEST(ItemLanguages, LoseTheirTextsInItemsOfEveryClass)
{
    const auto french = [this](long long start) { return this->item(start, {{"fr", "a"}}); };
    const auto without = [this](long long start) { return this->item(start, {}); };
    for (const bool foreignLacksIt : {true, false}) {
        typename TypeParam::Made collection;
        addItems<TypeParam>(collection, {french(0)});
        collection.maker = [](typename TypeParam::Item** out) {
            *out = new OddItem<TypeParam>;
            return ZelData_Ok;
        };
        addItems<TypeParam>(collection, {foreignLacksIt ? without(1000) : french(1000)});
        collection.maker = nullptr;
        addItems<TypeParam>(collection, {foreignLacksIt ? french(2000) : without(2000)});
        addItems<TypeParam>(collection, {french(3000)});
        EXPECT_CODE(collection, ZelData_NotFound, (collection.*TypeParam::removeLanguage)("fr"));
        EXPECT_EQ((std::vector{without(0), without(1000),
                               foreignLacksIt ? french(2000) : without(2000), french(3000)}),
                  valuesOf<TypeParam>(collection));
    }
}

TYPED_TEST(ItemLanguages, AreNotReportedMissingWithoutItems)
{
    for (const char* id : {"fr", "xx"})
        EXPECT_CODE(*this->collection_, ZelData_Ok,
                    ((*this->collection_).*TypeParam::removeLanguage)(id));
}

TYPED_TEST(ItemLanguages, CannotBeUsedToGetItems)
{
    typename TypeParam::OwnItem kept;
    std::vector<typename TypeParam::Item*> items{&kept};
    const auto& collection = *this->collection_;
    EXPECT_CODE(collection, ZelData_NotImplemented,
                (collection.*TypeParam::ofLanguage)(items, "en"));
    this->add({this->item(0, {{"en", "a"}})});
    for (const char* id : {"en", "zz", ""})
        EXPECT_CODE(collection, ZelData_NotImplemented,
                    (collection.*TypeParam::ofLanguage)(items, id));
    EXPECT_EQ(std::vector<typename TypeParam::Item*>{&kept}, items);
}

TYPED_TEST(ItemLanguages, ThatAreRefusedKeepTheItemOutAndTheEarlierOnesIn)
{
    typename TypeParam::Fake collection;
    collection.failAt("addLanguage", returnedCode, keptCode, 2);
    const auto item = newItem<TypeParam>(this->item(0, {{"de", ""}, {"en", ""}, {"fr", ""}}));
    EXPECT_CODE(collection, keptCode, (collection.*TypeParam::add)(*item));
    EXPECT_EQ(keptCode, collection.storedError());
    EXPECT_TRUE(valuesOf<TypeParam>(collection).empty());
    EXPECT_EQ(IDs{"de"}, languagesOf(collection));
}

TYPED_TEST(ItemLanguages, AreNotFilledInWhenLookingForThemRunsOutOfMemory)
{
    using FakeItem = typename TypeParam::FakeItem;
    const auto returns = [](FakeItem& item) {
        item.failAt("getTextForLanguage", ZelData_OutOfMemory, ZelData_OutOfMemory);
    };
    const auto throws = [](FakeItem& item) {
        item.throwAt("getTextForLanguage", std::bad_alloc());
    };
    const std::vector items{this->item(0, {{"en", "kept"}})};
    for (const std::function<void(FakeItem&)>& prepare :
         {std::function<void(FakeItem&)>(returns), std::function<void(FakeItem&)>(throws)}) {
        typename TypeParam::Made collection;
        collection.maker = [&](typename TypeParam::Item** out) {
            auto item = std::make_unique<FakeItem>();
            prepare(*item);
            *out = item.release();
            return ZelData_Ok;
        };
        addItems<TypeParam>(collection, items);
        collection.maker = nullptr;
        EXPECT_CODE(collection, ZelData_OutOfMemory, (collection.*TypeParam::makeConsistent)());
        EXPECT_EQ(items, valuesOf<TypeParam>(collection));
    }
}

TYPED_TEST(ItemLanguages, MayWarnWhenTheyAreListed)
{
    typename TypeParam::Fake collection;
    collection.failAt("addLanguage", ZelData_WarnTiming, ZelData_Ok);
    const auto values = this->item(0, {{"de", "1"}, {"en", "2"}});
    const auto item = newItem<TypeParam>(values);
    EXPECT_CODE(collection, ZelData_Ok, (collection.*TypeParam::add)(*item));
    EXPECT_EQ(IDs{"en"}, languagesOf(collection));
    EXPECT_EQ(std::vector{values}, valuesOf<TypeParam>(collection));
}

} // namespace
} // namespace ZelInterchangeData
