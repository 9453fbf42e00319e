/// @file
/// Setting and getting the data sets of a document: the same rules for all four kinds.

#include "core/SampleSets.h"
#include "core/WatchedDocument.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"

#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

template <class Set>
class DataSet : public ::testing::Test {
protected:
    using Interface = typename Set::Interface;
    using Fake = typename Set::Fake;
    using Code = ZelDataResult_tags;

    Code set(const Interface& source) { return (document_.*Set::set)(source); }
    Code get(Interface& target) const { return (document_.*Set::get)(target); }
    Fake& held() const { return document_.template held<Fake>(); }
    /// What the document holds.
    std::string contents() const
    {
        Fake target;
        EXPECT_CODE(document_, ZelData_Ok, get(target));
        return Set::contentsOf(target);
    }
    void fill() { EXPECT_CODE(document_, ZelData_Ok, set(*sample_)); }

    WatchedDocument<ZelDataCore> document_;
    const std::unique_ptr<Interface> sample_ = Set::sample();
};

TYPED_TEST_SUITE(DataSet, AllSets, );

TYPED_TEST(DataSet, ThatWasNeverSetIsNoDataAndLeavesTheTargetAlone)
{
    EXPECT_CODE(this->document_, ZelData_NoData, this->get(*this->sample_));
    EXPECT_EQ(TypeParam::contents, TypeParam::contentsOf(*this->sample_));
}

TYPED_TEST(DataSet, ComesBackUnchanged)
{
    this->fill();
    EXPECT_EQ(TypeParam::contents, this->contents());
}

TYPED_TEST(DataSet, IsACopyOfTheCallersObject)
{
    {
        const auto source = TypeParam::sample();
        EXPECT_CODE(this->document_, ZelData_Ok, this->set(*source));
        EXPECT_NE(source.get(), &this->held());
    }
    EXPECT_EQ(TypeParam::contents, this->contents());
}

TYPED_TEST(DataSet, IsMadeOnceAndItsContentsAreReplaced)
{
    this->fill();
    const auto* first = &this->held();
    this->fill();
    EXPECT_EQ(first, &this->held());
    EXPECT_EQ(TypeParam::contents, this->contents());
}

TYPED_TEST(DataSet, ReplacesTheContentsOfTheTarget)
{
    this->fill();
    const auto target = TypeParam::sample();
    EXPECT_CODE(this->document_, ZelData_Ok, this->get(*target));
    EXPECT_EQ(TypeParam::contents, TypeParam::contentsOf(*target));
}

TYPED_TEST(DataSet, ThatCannotBeMadeReturnsTheDocumentsLastError)
{
    this->document_.refuseSets(ZelData_InvalidArgument, ZelData_UnknownLanguage);
    EXPECT_CODE(this->document_, ZelData_UnknownLanguage, this->set(*this->sample_));
    EXPECT_CODE(this->document_, ZelData_NoData, this->get(*this->sample_));
}

TYPED_TEST(DataSet, ThatIsNotMadeDespiteSuccessIsAnInternalError)
{
    this->document_.refuseSets(ZelData_Ok, ZelData_Ok);
    EXPECT_CODE(this->document_, ZelData_InternalError, this->set(*this->sample_));
    EXPECT_CODE(this->document_, ZelData_NoData, this->get(*this->sample_));
}

TYPED_TEST(DataSet, IsMadeOnlyWhenThereIsNone)
{
    this->fill();
    this->document_.refuseSets(ZelData_InvalidArgument, ZelData_UnknownLanguage);
    EXPECT_CODE(this->document_, ZelData_Ok, this->set(*this->sample_));
}

TYPED_TEST(DataSet, ThatCannotBeEmptiedReturnsItsLastErrorAndIsNotCopiedInto)
{
    this->fill();
    int copies = 0;
    this->held().on("clear", answering(ZelData_NotFound, ZelData_InvalidItem));
    this->held().on("copy", counting(copies));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->set(*this->sample_));
    EXPECT_EQ(0, copies);
}

TYPED_TEST(DataSet, ThatIsEmptiedWithAWarningHasFailed)
{
    this->fill();
    int copies = 0;
    this->held().on("clear", answering(ZelData_WarnNoChange, ZelData_WarnTiming));
    this->held().on("copy", counting(copies));
    EXPECT_CODE(this->document_, ZelData_WarnTiming, this->set(*this->sample_));
    EXPECT_EQ(0, copies);
}

TYPED_TEST(DataSet, ThatCannotBeCopiedIntoReturnsItsLastError)
{
    this->fill();
    this->held().on("copy", answering(ZelData_NotFound, ZelData_InvalidItem));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->set(*this->sample_));
    EXPECT_EQ(TypeParam::emptied, TypeParam::contentsOf(this->held()));
}

TYPED_TEST(DataSet, ThatIsCopiedIntoWithAWarningHasFailed)
{
    this->fill();
    this->held().on("copy", answering(ZelData_WarnAlreadyExists, ZelData_WarnTiming));
    EXPECT_CODE(this->document_, ZelData_WarnTiming, this->set(*this->sample_));
}

TYPED_TEST(DataSet, ReturnsItsLastErrorEvenWhenThatIsSuccess)
{
    this->fill();
    this->held().on("copy", answering(ZelData_NotFound, ZelData_Ok));
    EXPECT_CODE(this->document_, ZelData_Ok, this->set(*this->sample_));
}

TYPED_TEST(DataSet, ThatIsCopiedIntoIsASuccessWhateverItsLastErrorSays)
{
    this->fill();
    this->held().on("copy", answering(ZelData_Ok, ZelData_NotFound));
    EXPECT_CODE(this->document_, ZelData_Ok, this->set(*this->sample_));
}

TYPED_TEST(DataSet, ExistsFromTheFirstAttemptOnEvenWhenTheCopyFails)
{
    typename TypeParam::Fake source;
    source.on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->set(source));
    typename TypeParam::Fake target;
    target.on("copy", answering(ZelData_Ok, ZelData_Ok));
    EXPECT_CODE(this->document_, ZelData_Ok, this->get(target));
}

TYPED_TEST(DataSet, TakesTheLastErrorOfAFailingSource)
{
    typename TypeParam::Fake source;
    source.on("read", answering(ZelData_NotFound, ZelData_WarnNoChange));
    EXPECT_CODE(this->document_, ZelData_WarnNoChange, this->set(source));
}

TYPED_TEST(DataSet, SourceThatThrowsIsAnInternalErrorAndOneWithoutMemoryIsOutOfMemory)
{
    typename TypeParam::Fake source;
    source.on("read", throwing(std::runtime_error("trouble")));
    EXPECT_CODE(this->document_, ZelData_InternalError, this->set(source));
    source.on("read", throwing(7));
    EXPECT_CODE(this->document_, ZelData_InternalError, this->set(source));
    source.on("read", throwing(std::bad_alloc()));
    EXPECT_CODE(this->document_, ZelData_OutOfMemory, this->set(source));
    EXPECT_CODE(this->document_, ZelData_Ok, this->set(*this->sample_));
}

TYPED_TEST(DataSet, TargetThatCannotBeEmptiedReturnsItsLastErrorAndIsNotCopiedInto)
{
    this->fill();
    int copies = 0;
    typename TypeParam::Fake target;
    target.on("clear", answering(ZelData_NotFound, ZelData_InvalidItem));
    target.on("copy", counting(copies));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->get(target));
    target.on("clear", answering(ZelData_WarnNoChange, ZelData_WarnTiming));
    EXPECT_CODE(this->document_, ZelData_WarnTiming, this->get(target));
    EXPECT_EQ(0, copies);
}

TYPED_TEST(DataSet, TargetThatCannotBeCopiedIntoReturnsItsLastError)
{
    this->fill();
    typename TypeParam::Fake target;
    target.on("copy", answering(ZelData_WarnAlreadyExists, ZelData_InvalidItem));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->get(target));
    target.on("copy", answering(ZelData_NotFound, ZelData_Ok));
    EXPECT_CODE(this->document_, ZelData_Ok, this->get(target));
}

TYPED_TEST(DataSet, TargetIsEmptiedEvenWhenTheCopyFails)
{
    this->fill();
    typename TypeParam::Fake target;
    EXPECT_EQ(ZelData_Ok, target.copyFrom(*this->sample_));
    this->held().on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    EXPECT_CODE(this->document_, ZelData_InvalidItem, this->get(target));
    EXPECT_NE(TypeParam::contents, TypeParam::contentsOf(target));
}

TYPED_TEST(DataSet, TargetThatThrowsIsAnInternalErrorAndOneWithoutMemoryIsOutOfMemory)
{
    this->fill();
    for (const char* operation : {"clear", "copy"}) {
        typename TypeParam::Fake target;
        target.on(operation, throwing(std::runtime_error("trouble")));
        EXPECT_CODE(this->document_, ZelData_InternalError, this->get(target));
        target.on(operation, throwing(7));
        EXPECT_CODE(this->document_, ZelData_InternalError, this->get(target));
        target.on(operation, throwing(std::bad_alloc()));
        EXPECT_CODE(this->document_, ZelData_OutOfMemory, this->get(target));
    }
}

TYPED_TEST(DataSet, TargetWhoseLastErrorThrowsIsAnInternalError)
{
    this->fill();
    typename TypeParam::Fake target;
    target.on("copy", answering(ZelData_NotFound, ZelData_NotFound));
    target.on("getLastError", throwing(std::runtime_error("trouble")));
    EXPECT_CODE(this->document_, ZelData_InternalError, this->get(target));
}

TYPED_TEST(DataSet, IsDestroyedWithItsDocument)
{
    const auto before = liveAllocations();
    {
        ZelDataCore document;
        EXPECT_CODE(document, ZelData_Ok, (document.*TypeParam::set)(*this->sample_));
        EXPECT_LT(before, liveAllocations());
    }
    EXPECT_EQ(before, liveAllocations());
}

} // namespace
} // namespace ZelInterchangeData
