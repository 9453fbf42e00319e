/// @file
/// Items, collections and formatters of all kinds when memory runs out, at each allocation in turn.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "support/MemorySweep.h"
#include "toc/Entries.h"

#include <functional>
#include <new>

namespace ZelInterchangeData {
namespace {

/// Too long for any string to hold it without an allocation.
const std::string longText(60, 'x');
const std::string longerText(1000, 'y');
const std::string longID = "en-" + longText;

using Code = ZelDataResult_tags;

/// An operation of an item that stores something, and the code it ends with.
template <class Item>
struct Storing {
    Code code;
    std::function<Code(Item&)> store;
};

/// An operation of an item that delivers a text.
template <class Item>
using Delivering = std::function<Code(const Item&, std::string&)>;

struct CaptionMemory : CaptionKind {
    /// An item throws std::bad_alloc.
    static constexpr bool letsThrough = true;

    static Values held() { return {1000, 2000, {{"de", longText}, {"en", longText}}, 0x22}; }
    static Values other() { return {8, 2000, {{"de", longText}, {longID, longText}}, 0x10}; }
    static std::vector<Values> items() { return {held(), {0, 1, {{"fr", longText}}}}; }
    static std::vector<Values> consistentItems()
    {
        return {{0, 1, {{"de", ""}, {"en", ""}, {"fr", longText}}},
                {1000, 2000, {{"de", longText}, {"en", longText}, {"fr", ""}}, 0x22}};
    }
    static std::vector<Storing<Item>> stores()
    {
        return {{ZelData_Ok, [](Item& i) { return i.setTextForLanguage(longText, longID); }},
                {ZelData_WarnAlreadyExists,
                 [](Item& i) { return i.setTextForLanguage(longerText, "en"); }}};
    }
    static std::vector<Delivering<Item>> deliveries()
    {
        return {[](const Item& i, std::string& out) { return i.getTextForLanguage(out, longID); }};
    }
    /// What a copy sets last.
    static auto lastOf(const Values& values) { return values.alignment; }
};

struct TocMemory : TocKind {
    static constexpr bool letsThrough = false;

    static Values held() { return {7, {{"de", longText}}, "i.png", 3, 4}; }
    static Values other() { return {8, {{"de", longText}, {longID, longText}}, longText, 1, 2}; }
    static std::vector<Values> items()
    {
        return {{9, {{longID, longText}}}, {3, {{"de", longText}}}};
    }
    static std::vector<Values> consistentItems()
    {
        return {{3, {{"de", longText}, {longID, ""}}}, {9, {{"de", ""}, {longID, longText}}}};
    }
    static std::vector<Storing<Item>> stores()
    {
        return {{ZelData_Ok, [](Item& i) { return i.setTextForLanguage(longText, longID); }},
                {ZelData_WarnAlreadyExists,
                 [](Item& i) { return i.setTextForLanguage(longerText, "de"); }},
                {ZelData_Ok, [](Item& i) { return i.setImageFile(longText); }}};
    }
    static std::vector<Delivering<Item>> deliveries()
    {
        return {[](const Item& i, std::string& out) { return i.getTextForLanguage(out, longID); },
                [](const Item& i, std::string& out) { return i.getImageFile(out); }};
    }
    static auto lastOf(const Values& values) { return values.offset; }
};

struct ScreenTextMemory : ScreenTextKind {
    static constexpr bool letsThrough = false;

    static Values held() { return {7, 8, "Click", "i.png", 3, 4, 5}; }
    static Values other() { return {1, 2, longText, longText, 6, 6, 6}; }
    static std::vector<Values> items() { return {{9, 1, longText}, {3, 1, longText, longText}}; }
    static std::vector<Values> consistentItems()
    {
        return {{3, 1, longText, longText}, {9, 1, longText}};
    }
    static std::vector<Storing<Item>> stores()
    {
        return {{ZelData_Ok, [](Item& i) { return i.setText(longText); }},
                {ZelData_Ok, [](Item& i) { return i.setImageFile(longText); }}};
    }
    static std::vector<Delivering<Item>> deliveries()
    {
        return {[](const Item& i, std::string& out) { return i.getText(out); },
                [](const Item& i, std::string& out) { return i.getImageFile(out); }};
    }
    static auto lastOf(const Values& values) { return values.group; }
};

template <class Kind>
class WithoutMemory : public testing::Test {
protected:
    using Data = typename Kind::Data;
    using Item = typename Kind::Item;

    /// A caller's classes, which a copy reads through the interface.
    class CallersItem : public Kind::OwnItem {};
    class CallersCollection : public Kind::Own {};

    static std::unique_ptr<Item> heldItem() { return newItem<Kind>(Kind::held()); }
    static std::unique_ptr<Data> collection() { return newCollection<Kind>(Kind::items()); }
    static std::unique_ptr<typename Kind::Formatter> formatter()
    {
        auto formatter = make(Kind::makeFormatter);
        EXPECT_EQ(ZelData_Ok, ((*formatter).*Kind::setData)(*collection()));
        return formatter;
    }

    static constexpr auto itemIsUnchanged = [](const Item& item) {
        EXPECT_EQ(Kind::held(), contentsOf(item));
    };
    static constexpr auto collectionIsUnchanged = [](const Data& data) {
        EXPECT_EQ(Kind::items(), valuesOf<Kind>(data));
    };

    /// Sweeps an operation of an item. If the item must throw std::bad_alloc, expects the exception in
    /// place of the code.
    template <class Create, class Operation, class Check>
    static void sweepItem(const Create& create, Code finalCode, const Operation& operation,
                          const Check& check)
    {
        sweepMemory(
            create, finalCode,
            [&](auto& item) {
                if constexpr (!Kind::letsThrough) return operation(item);
                try {
                    const Code code = operation(item);
                    return code == ZelData_OutOfMemory ? ZelData_NotImplemented : code;
                } catch (const std::bad_alloc&) {
                    item.setLastError(ZelData_OutOfMemory);
                    return ZelData_OutOfMemory;
                }
            },
            check);
    }
};

using Kinds = testing::Types<CaptionMemory, TocMemory, ScreenTextMemory>;
TYPED_TEST_SUITE(WithoutMemory, Kinds, KindName);

TYPED_TEST(WithoutMemory, AnItemStaysUnchangedWhenItCannotStore)
{
    for (const auto& [code, store] : TypeParam::stores())
        this->sweepItem(this->heldItem, code, store, this->itemIsUnchanged);
}

TYPED_TEST(WithoutMemory, AGetterLeavesTheTextAloneWhenItFails)
{
    std::string out;
    for (const auto& deliver : TypeParam::deliveries()) {
        out = "kept";
        this->sweepItem([] { return newItem<TypeParam>(TypeParam::other()); }, ZelData_Ok,
                        [&](const auto& item) { return deliver(item, out); },
                        [&](const auto& item) {
                            EXPECT_EQ("kept", out);
                            EXPECT_EQ(TypeParam::other(), contentsOf(item));
                        });
        EXPECT_EQ(longText, out);
    }
}

TYPED_TEST(WithoutMemory, ACopyOfACallersItemEndsBeforeTheLastValue)
{
    const auto source = std::make_unique<typename TestFixture::CallersItem>();
    fill(*source, TypeParam::other());
    this->sweepItem(
        this->heldItem, ZelData_Ok,
        [&](typename TypeParam::Item& item) { return item.copyFrom(*source); },
        [&](const auto& item) {
            EXPECT_EQ(TypeParam::lastOf(TypeParam::held()), TypeParam::lastOf(contentsOf(item)));
            EXPECT_EQ(TypeParam::other(), contentsOf(*source));
        });
}

TYPED_TEST(WithoutMemory, AnItemCanCopyAnotherOfOurOwn)
{
    const auto source = newItem<TypeParam>(TypeParam::other());
    const auto item = this->heldItem();
    Code code = ZelData_NoData;
    EXPECT_FALSE(runsOutOfMemory(0, [&] { code = item->copyFrom(*source); }));
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_EQ(TypeParam::other(), contentsOf(*item));
}

TYPED_TEST(WithoutMemory, AnItemIsAddedWholeOrNotAtAll)
{
    const auto added = newItem<TypeParam>(TypeParam::other());
    for (const std::size_t count : {0U, 16U}) { // the collection has no room for another one
        const decltype(TypeParam::items()) items(count, TypeParam::held());
        sweepMemory([&] { return newCollection<TypeParam>(items); }, ZelData_Ok,
                    [&](auto& data) { return (data.*TypeParam::add)(*added); },
                    [&](const auto& data) { EXPECT_EQ(items, valuesOf<TypeParam>(data)); });
    }
}

TYPED_TEST(WithoutMemory, OneItemIsHandedOutOrMadeWholeOrNotAtAll)
{
    const auto handOut = [&](const auto& deliver) {
        sweepMemory(
            this->collection, ZelData_Ok,
            [&](const auto& data) {
                typename TypeParam::Item* out = nullptr;
                const Code code = deliver(data, &out);
                const std::unique_ptr<typename TypeParam::Item> owned(out);
                EXPECT_EQ(failed(code), owned == nullptr);
                return code;
            },
            this->collectionIsUnchanged);
    };
    handOut([](const auto& data, auto** out) { return (data.*TypeParam::at)(out, 1); });
    handOut([](const auto& data, auto** out) { return (data.*TypeParam::create)(out); });
}

TYPED_TEST(WithoutMemory, AllItemsAreHandedOutOrNone)
{
    sweepMemory(
        this->collection, ZelData_Ok,
        [](const auto& data) {
            std::vector<typename TypeParam::Item*> out;
            const Code code = (data.*TypeParam::all)(out);
            EXPECT_EQ(failed(code) ? 0U : 2U, out.size());
            for (auto* item : out)
                delete item;
            return code;
        },
        this->collectionIsUnchanged);
}

TYPED_TEST(WithoutMemory, ACheckDoesNotMistakeItForAMissingText)
{
    const std::vector<typename TypeParam::Values> consistent = {TypeParam::other()};
    const auto create = [&] { return newCollection<TypeParam>(consistent); };
    const auto isUnchanged = [&](const auto& data) {
        EXPECT_EQ(consistent, valuesOf<TypeParam>(data));
    };
    sweepMemory(
        create, ZelData_Ok, [](const auto& data) { return data.isValid(true); }, isUnchanged);
    sweepMemory(
        create, ZelData_Ok, [](auto& data) { return (data.*TypeParam::makeConsistent)(); },
        isUnchanged);
}

TYPED_TEST(WithoutMemory, ARepairChangesNoItemAndCanBeRepeated)
{
    sweepMemory(
        this->collection, ZelData_Ok,
        [](auto& data) { return (data.*TypeParam::makeConsistent)(); },
        [this](auto& data) {
            this->collectionIsUnchanged(data);
            EXPECT_CODE(data, ZelData_Ok, (data.*TypeParam::makeConsistent)());
            EXPECT_EQ(TypeParam::consistentItems(), valuesOf<TypeParam>(data));
        });
}

TYPED_TEST(WithoutMemory, ACopyOfACallersCollectionEndsAfterSomeItemsAndCanBeRepeated)
{
    const auto source = std::make_unique<typename TestFixture::CallersCollection>();
    addItems<TypeParam>(*source, TypeParam::items());
    const typename TypeParam::Data& callers = *source;
    sweepMemory([] { return newCollection<TypeParam>({TypeParam::held()}); }, ZelData_Ok,
                [&](typename TypeParam::Data& data) { return data.copyFrom(callers); },
                [&](typename TypeParam::Data& data) {
                    const auto items = valuesOf<TypeParam>(data);
                    ASSERT_LT(items.size(), 2U);
                    if (!items.empty()) {
                        EXPECT_EQ(TypeParam::items().front(), items.front());
                    }
                    EXPECT_CODE(data, ZelData_Ok, data.copyFrom(callers));
                    EXPECT_EQ(TypeParam::items(), valuesOf<TypeParam>(data));
                });
}

TYPED_TEST(WithoutMemory, AFormatterLeavesTheTextAloneAndWritesItWholeLater)
{
    std::string out = "kept";
    sweepMemory(
        this->formatter, ZelData_Ok,
        [&](const auto& formatter) { return formatter.writeString(out, ZelDataFormat_Xmp, false); },
        [&](const auto& formatter) {
            EXPECT_EQ("kept", out);
            std::string whole;
            EXPECT_CODE(formatter, ZelData_Ok,
                        formatter.writeString(whole, ZelDataFormat_Xmp, false));
            EXPECT_EQ(0U, whole.find("<rdf:li><rdf:Description "));
            EXPECT_NE(std::string::npos, whole.find(longText));
        });
    EXPECT_EQ(0U, out.find("<rdf:li><rdf:Description "));
}

TYPED_TEST(WithoutMemory, AFormatterAcceptsTheCollectionAtTheNextAttempt)
{
    const auto data = this->collection();
    sweepMemory([] { return make(TypeParam::makeFormatter); }, ZelData_Ok,
                [&](auto& formatter) { return (formatter.*TypeParam::setData)(*data); },
                [&](auto& formatter) {
                    EXPECT_CODE(formatter, ZelData_Ok, (formatter.*TypeParam::setData)(*data));
                });
}

TEST(ScreenTextWithoutMemory, CanCopyAnotherOfOurOwn)
{
    const auto source = newCollection<ScreenTextKind>(ScreenTextMemory::items());
    const auto texts = newCollection<ScreenTextKind>();
    Code code = ZelData_NoData;
    EXPECT_FALSE(runsOutOfMemory(0, [&] { code = texts->copyFrom(*source); }));
    EXPECT_EQ(ZelData_Ok, code);
    EXPECT_EQ(ScreenTextMemory::items(), itemsOf(*texts));
}

template <class Kind>
class ListWithoutMemory : public testing::Test {
};

using KindsWithLanguages = testing::Types<CaptionMemory, TocMemory>;
TYPED_TEST_SUITE(ListWithoutMemory, KindsWithLanguages, KindName);

TYPED_TEST(ListWithoutMemory, IsCopiedWithTheItemsThatAFailedCopyLeft)
{
    const auto source = newCollection<TypeParam>(TypeParam::items());
    sweepMemory([] { return newCollection<TypeParam>({TypeParam::held()}); }, ZelData_Ok,
                [&](typename TypeParam::Data& data) { return data.copyFrom(*source); },
                [](const typename TypeParam::Data& data) {
                    const auto copy = newCollection<TypeParam>();
                    EXPECT_EQ(ZelData_Ok, copy->copyFrom(data));
                    EXPECT_EQ(valuesOf<TypeParam>(data), valuesOf<TypeParam>(*copy));
                    std::size_t texts = 0; // the items have different languages
                    for (const auto& item : valuesOf<TypeParam>(data))
                        texts += textsOf(*newItem<TypeParam>(item)).size();
                    EXPECT_EQ(texts, languagesOf(*copy).size());
                });
}

TYPED_TEST(ListWithoutMemory, GainsNoLanguageOfAnItemThatIsNotAdded)
{
    const auto item = newItem<TypeParam>(TypeParam::other());
    const std::vector<std::string> listed{"fr"};
    sweepMemory(
        [&] {
            auto data = newCollection<TypeParam>();
            EXPECT_EQ(ZelData_Ok, data->addLanguage("fr"));
            return data;
        },
        ZelData_Ok, [&](typename TypeParam::Data& data) { return (data.*TypeParam::add)(*item); },
        [&](const typename TypeParam::Data& data) {
            EXPECT_EQ(listed, languagesOf(data));
            const auto copy = newCollection<TypeParam>(); // lists the languages of its items
            EXPECT_EQ(ZelData_Ok, copy->copyFrom(data));
            EXPECT_EQ(std::vector<std::string>(), languagesOf(*copy));
        });
}

} // namespace
} // namespace ZelInterchangeData
