/// @file
/// What captions, tables of contents and screen text have in common as collections of items. Each
/// test runs over all three.

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "support/Checks.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <new>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

/// Captions under the names of this suite.
struct CaptionKind {
    using Collection = ZelDataCaptions;
    using Item = i_ZelDataCaptionItem;
    using OwnItem = ZelDataCaptionItem;

    /// A collection that makes its items with the given function, where one is given.
    struct Made : Collection {
        std::function<ZelDataResult_tags(Item**)> maker;
        ZelDataResult_tags createCaptionItem(Item** out) const override
        {
            return maker ? maker(out) : Collection::createCaptionItem(out);
        }
    };

    /// A collection that hands out a null pointer behind its items.
    struct HandingOutNull : Collection {
        ZelDataResult_tags getCaptionItems(std::vector<Item*>& items) const override
        {
            const auto code = Collection::getCaptionItems(items);
            items.push_back(nullptr);
            return code;
        }
    };

    static constexpr auto create = &Collection::createCaptionItem;
    static constexpr auto add = &Collection::addCaptionItem;
    static constexpr auto count = &Collection::getCaptionItemCount;
    static constexpr auto at = &Collection::getCaptionItemAt;
    static constexpr auto all = &Collection::getCaptionItems;
    static constexpr auto removeAt = &Collection::removeCaptionItemAt;
    static constexpr auto clear = &Collection::clearCaptionItems;
    static constexpr auto order = &Collection::orderCaptions;
    static constexpr auto makeConsistent = &Collection::makeCaptionsConsistent;

    static void setTag(Item& item, const std::string& tag)
    {
        EXPECT_FALSE(isError(item.setTextForLanguage(tag, "en")));
        EXPECT_EQ(ZelData_Ok, item.setDuration(1)); // without length it cannot be added
    }
    static std::string tag(const Item& item)
    {
        std::string text;
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(text, "en"));
        return text;
    }
};

/// A table of contents under the names of this suite.
struct TocKind {
    using Collection = ZelDataToc;
    using Item = i_ZelDataTocItem;
    using OwnItem = ZelDataTocItem;

    /// A collection that makes its items with the given function, where one is given.
    struct Made : Collection {
        std::function<ZelDataResult_tags(Item**)> maker;
        ZelDataResult_tags createTocItem(Item** out) const override
        {
            return maker ? maker(out) : Collection::createTocItem(out);
        }
    };

    /// A collection that hands out a null pointer behind its items.
    struct HandingOutNull : Collection {
        ZelDataResult_tags getTocItems(std::vector<Item*>& items) const override
        {
            const auto code = Collection::getTocItems(items);
            items.push_back(nullptr);
            return code;
        }
    };

    static constexpr auto create = &Collection::createTocItem;
    static constexpr auto add = &Collection::addTocItem;
    static constexpr auto count = &Collection::getTocItemCount;
    static constexpr auto at = &Collection::getTocItemAt;
    static constexpr auto all = &Collection::getTocItems;
    static constexpr auto removeAt = &Collection::removeTocItemAt;
    static constexpr auto clear = &Collection::clearTocItems;
    static constexpr auto order = &Collection::orderTocItems;
    static constexpr auto makeConsistent = &Collection::makeTocConsistent;

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

/// Screen text under the names of this suite.
struct ScreenTextKind {
    using Collection = ZelDataScreenText;
    using Item = i_ZelDataScreenTextItem;
    using OwnItem = ZelDataScreenTextItem;

    /// A collection that makes its items with the given function, where one is given.
    struct Made : Collection {
        std::function<ZelDataResult_tags(Item**)> maker;
        ZelDataResult_tags createScreenTextItem(Item** out) const override
        {
            return maker ? maker(out) : Collection::createScreenTextItem(out);
        }
    };

    /// A collection that hands out a null pointer behind its items.
    struct HandingOutNull : Collection {
        ZelDataResult_tags getScreenTextItems(std::vector<Item*>& items) const override
        {
            const auto code = Collection::getScreenTextItems(items);
            items.push_back(nullptr);
            return code;
        }
    };

    static constexpr auto create = &Collection::createScreenTextItem;
    static constexpr auto add = &Collection::addScreenTextItem;
    static constexpr auto count = &Collection::getScreenTextItemCount;
    static constexpr auto at = &Collection::getScreenTextItemAt;
    static constexpr auto all = &Collection::getScreenTextItems;
    static constexpr auto removeAt = &Collection::removeScreenTextItemAt;
    static constexpr auto clear = &Collection::clearScreenTextItems;
    static constexpr auto order = &Collection::orderScreenTextItems;
    static constexpr auto makeConsistent = &Collection::makeScreenTextConsistent;

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

/// An item whose start is what a test wants it to be, and which knows how many of it live.
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

/// An item that cannot be filled: its start fails with one code and its last error is another.
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
        Item* out = nullptr;
        EXPECT_CODE(collection_, ZelData_Ok, (collection_.*Kind::at)(&out, index));
        return Owned(out);
    }

    /// From now on the collection makes good items, and at call @p nth one that cannot be filled.
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

struct KindName {
    template <class Kind>
    static std::string GetName(int)
    {
        if (std::is_same_v<Kind, CaptionKind>) return "Captions";
        return std::is_same_v<Kind, TocKind> ? "Toc" : "ScreenText";
    }
};

using Kinds = testing::Types<CaptionKind, TocKind, ScreenTextKind>;
TYPED_TEST_SUITE(ItemCollection, Kinds, KindName);

TYPED_TEST(ItemCollection, StartsEmpty)
{
    EXPECT_EQ(0UL, this->count());
    EXPECT_TRUE(this->contents().empty());
}

TYPED_TEST(ItemCollection, AMadeItemBelongsToTheCallerAndIsNotAdded)
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

TYPED_TEST(ItemCollection, KeepsItemsInTheOrderOfTheirAddition)
{
    this->add(this->three_);
    EXPECT_EQ(3UL, this->count());
    EXPECT_EQ(this->three_, this->contents());
    for (unsigned long i = 0; i < 3; ++i)
        EXPECT_EQ(this->three_[i], this->contentsOf(*this->itemAt(i)));
}

TYPED_TEST(ItemCollection, StoresACopyOfWhatIsAdded)
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

TYPED_TEST(ItemCollection, HandingAllOutReplacesTheVectorAndDestroysNothingOfIt)
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

TYPED_TEST(ItemCollection, HandingOutNothingEmptiesTheVector)
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

TYPED_TEST(ItemCollection, DestroysItsItemsWhenTheyAreRemovedClearedOrItEndsItself)
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

TYPED_TEST(ItemCollection, WhenOneOfAllCopiesFailsTheOthersAreDestroyedAndTheVectorIsEmpty)
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

// Items that change their collection while it looks at them

/// Three items, the first of which changes its collection when it is first asked for its start.
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

TYPED_TEST(ItemCollection, AnItemMayChangeItsCollectionWhileThatIsRead)
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

TYPED_TEST(ItemCollection, ACopyOfTheCollectionHoldsCopiesOfTheItemsAlone)
{
    this->add({{9, "old"}});
    typename TypeParam::Collection source;
    for (const Timed& timed : this->three_) {
        typename TypeParam::OwnItem item;
        this->fill(item, timed);
        EXPECT_EQ(ZelData_Ok, (source.*TypeParam::add)(item));
    }
    EXPECT_CODE(this->collection_, ZelData_Ok, this->collection_.copyFrom(source));
    EXPECT_EQ(ZelData_Ok, (source.*TypeParam::clear)());
    EXPECT_EQ(this->three_, this->contents());
}

TYPED_TEST(ItemCollection, ASourceThatHandsOutANullPointerEndsTheCopyBehindTheItemsBefore)
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

/// The order that is meant, stated once more: each place in turn takes every smaller start that
/// comes after it.
void exchangeSort(std::vector<Timed>& items)
{
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
        for (std::size_t j = i + 1; j < items.size(); ++j)
            if (items[j].first < items[i].first) std::swap(items[i], items[j]);
}

TYPED_TEST(ItemCollection, EqualStartsMayChangePlacesWhenASmallerOnePasses)
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

TYPED_TEST(ItemCollection, ThousandsOfRandomOrdersAreThoseOfTheExchangeSort)
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

} // namespace
} // namespace ZelInterchangeData
