/// @file
/// The rules of all operations that hand out a new object: the factories, the document's and the
/// collections' operations.

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "captions/ZelDataXmpCaptionFormatter.h"
#include "core/ZelDataCore.h"
#include "header/ZelDataHeader.h"
#include "header/ZelDataXmpHeaderFormatter.h"
#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "screentext/ZelDataXmpScreenTextFormatter.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"
#include "toc/ZelDataXmpTocFormatter.h"

#include <typeinfo>

namespace ZelInterchangeData {
namespace {

using Code = ZelDataResult_tags;
using Format = ZelDataFormatType_tags;

template <class Made, auto function>
struct Factory;
template <class Made, class Out, Code (*function)(Out**)>
struct Factory<Made, function> {
    using Object = Made;
    using Interface = Out;
    Code create(Interface** out) { return function(out); }
    void expectLastError(Code /*code*/) const {} // A static function stores nothing.
};

template <class Made, auto function>
struct FormatterFactory;
template <class Made, class Out, Code (*function)(Out**, Format)>
struct FormatterFactory<Made, function> {
    using Object = Made;
    using Interface = Out;
    static Code createAs(Interface** out, Format format) { return function(out, format); }
    Code create(Interface** out) { return function(out, ZelDataFormat_Xmp); }
    void expectLastError(Code /*code*/) const {} // A static function stores nothing.
};

template <class Made, class Owner, auto operation>
struct Member;
template <class Made, class Owner, class Base, class Out, Code (Base::*operation)(Out**) const>
struct Member<Made, Owner, operation> {
    using Object = Made;
    using Interface = Out;
    Owner owner;
    Code create(Interface** out)
    {
        owner.setLastError(ZelData_WarnTiming);
        return (owner.*operation)(out);
    }
    void expectLastError(Code code) const { EXPECT_EQ(code, owner.getLastError()); }
};

using Make = ZelDataUtilities;
using Core = i_ZelInterchangeDataCore;

using FormatterMakers = ::testing::Types<
    FormatterFactory<ZelDataXmpHeaderFormatter, &Make::createHeaderFormatter>,
    FormatterFactory<ZelDataXmpCaptionFormatter, &Make::createCaptionFormatter>,
    FormatterFactory<ZelDataXmpTocFormatter, &Make::createTocFormatter>,
    FormatterFactory<ZelDataXmpScreenTextFormatter, &Make::createScreenTextFormatter>>;

using OtherMakers = ::testing::Types<
    Factory<ZelDataHeader, &Make::createHeaderData>,
    Factory<ZelDataCaptionItem, &Make::createCaptionItemData>,
    Factory<ZelDataCaptions, &Make::createCaptionData>,
    Factory<ZelDataTocItem, &Make::createTocItemData>, Factory<ZelDataToc, &Make::createTocData>,
    Factory<ZelDataScreenTextItem, &Make::createScreenTextItemData>,
    Factory<ZelDataScreenText, &Make::createScreenTextData>,
    Member<ZelDataHeader, ZelDataCore, &Core::createDataHeader>,
    Member<ZelDataCaptions, ZelDataCore, &Core::createDataCaptions>,
    Member<ZelDataToc, ZelDataCore, &Core::createDataToc>,
    Member<ZelDataScreenText, ZelDataCore, &Core::createDataScreenText>,
    Member<ZelDataCaptionItem, ZelDataCaptions, &i_ZelDataCaptions::createCaptionItem>,
    Member<ZelDataTocItem, ZelDataToc, &i_ZelDataToc::createTocItem>,
    Member<ZelDataScreenTextItem, ZelDataScreenText, &i_ZelDataScreenText::createScreenTextItem>>;

template <class... First, class... Second>
::testing::Types<First..., Second...> joined(::testing::Types<First...>,
                                             ::testing::Types<Second...>);

template <class Maker>
class OutPointer : public ::testing::Test {
protected:
    using Interface = typename Maker::Interface;

    /// A new object; the maker returns and stores success.
    std::unique_ptr<Interface> made()
    {
        auto object = created<Interface>([&](Interface** out) { return maker_.create(out); });
        maker_.expectLastError(ZelData_Ok);
        return object;
    }

    Maker maker_;
};

using AllMakers = decltype(joined(FormatterMakers(), OtherMakers()));
TYPED_TEST_SUITE(OutPointer, AllMakers, );

TYPED_TEST(OutPointer, AMissingPointerIsRefused)
{
    EXPECT_EQ(ZelData_InvalidArgument, this->maker_.create(nullptr));
    this->maker_.expectLastError(ZelData_InvalidArgument);
}

TYPED_TEST(OutPointer, AnOccupiedPointerIsRefusedAndLeftAlone)
{
    const auto occupant = this->made();
    auto* pointer = occupant.get();
    EXPECT_EQ(ZelData_InvalidArgument, this->maker_.create(&pointer));
    this->maker_.expectLastError(ZelData_InvalidArgument);
    EXPECT_EQ(occupant.get(), pointer);
}

TYPED_TEST(OutPointer, ANullPointerGetsAnObjectOfTheRightClass)
{
    const auto object = this->made();
    ASSERT_NE(nullptr, object);
    const auto& reference = *object;
    EXPECT_EQ(typeid(typename TypeParam::Object), typeid(reference));
}

TYPED_TEST(OutPointer, ANewObjectReportsSuccess)
{
    EXPECT_EQ(ZelData_Ok, this->made()->getLastError());
}

TYPED_TEST(OutPointer, EveryCallMakesANewObject)
{
    const auto first = this->made();
    const auto second = this->made();
    EXPECT_NE(first, second);
    first->setLastError(ZelData_NotFound);
    EXPECT_EQ(ZelData_Ok, second->getLastError());
}

TYPED_TEST(OutPointer, TheCallerOwnsTheObject)
{
    const auto before = liveAllocations();
    this->made().reset();
    EXPECT_EQ(before, liveAllocations());
}

TYPED_TEST(OutPointer, WithoutMemoryThePointerStaysNull)
{
    typename TypeParam::Interface* pointer = nullptr;
    Code code = ZelData_Ok;
    {
        const FailingAllocation failing(0);
        code = this->maker_.create(&pointer);
    }
    EXPECT_EQ(ZelData_OutOfMemory, code);
    this->maker_.expectLastError(ZelData_OutOfMemory);
    EXPECT_EQ(nullptr, pointer);
}

constexpr Format foreignFormats[] = {static_cast<Format>(0), static_cast<Format>(2),
                                     static_cast<Format>(0xFFFFFFFFU)};

template <class Maker>
class FormatterOutPointer : public OutPointer<Maker> {
};

TYPED_TEST_SUITE(FormatterOutPointer, FormatterMakers, );

TYPED_TEST(FormatterOutPointer, AnotherFormatIsUnsupportedAndThePointerStaysNull)
{
    for (const auto format : foreignFormats) {
        typename TypeParam::Interface* pointer = nullptr;
        EXPECT_EQ(ZelData_UnsupportedFormat, TypeParam::createAs(&pointer, format));
        EXPECT_EQ(nullptr, pointer);
    }
}

TYPED_TEST(FormatterOutPointer, ThePointerIsCheckedBeforeTheFormat)
{
    const auto occupant = this->made();
    for (const auto format : foreignFormats) {
        auto* pointer = occupant.get();
        EXPECT_EQ(ZelData_InvalidArgument, TypeParam::createAs(nullptr, format));
        EXPECT_EQ(ZelData_InvalidArgument, TypeParam::createAs(&pointer, format));
        EXPECT_EQ(occupant.get(), pointer);
    }
}

TYPED_TEST(FormatterOutPointer, NothingIsAllocatedForAnotherFormat)
{
    typename TypeParam::Interface* pointer = nullptr;
    Code code = ZelData_Ok;
    {
        const FailingAllocation failing(0);
        code = TypeParam::createAs(&pointer, static_cast<Format>(2));
    }
    EXPECT_EQ(ZelData_UnsupportedFormat, code);
}

TEST(HeaderFactory, TwoHeadersAreIndependent)
{
    const auto first = make(&ZelDataUtilities::createHeaderData);
    const auto second = make(&ZelDataUtilities::createHeaderData);
    EXPECT_EQ(ZelData_Ok, first->setTitle("first"));
    std::string title = "?";
    EXPECT_EQ(ZelData_Ok, second->getTitle(title));
    EXPECT_EQ("", title);
}

} // namespace
} // namespace ZelInterchangeData
