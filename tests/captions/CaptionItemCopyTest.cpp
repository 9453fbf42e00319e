/// @file
/// Copying a caption item, and each way in which a step of it can fail.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <limits>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

using Calls = std::vector<std::string>;

constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

const Caption sourceCaption = {1000, 2000, {{"de", "d"}, {"en", "e"}}, 0x22};
const Caption targetCaption = {10, 20, {{"fr", "f"}}, 0x10};

/// A step that fails, and what the target holds then.
struct Step {
    const char* operation;
    int nth;
    Caption left;
};

void PrintTo(const Step& step, std::ostream* out)
{
    *out << step.operation << " #" << step.nth;
}

const Step sourceSteps[] = {
    {"getLanguageIDs", 1, {10, 20, {{"fr", "f"}}, 0x10}},
    {"getTextForLanguage", 1, {10, 20, {}, 0x10}},
    {"getTextForLanguage", 2, {10, 20, {{"de", "d"}}, 0x10}},
    {"getStart", 1, {10, 20, {{"de", "d"}, {"en", "e"}}, 0x10}},
    {"getEnd", 1, {1000, 20, {{"de", "d"}, {"en", "e"}}, 0x10}},
    {"getAlignment", 1, {1000, 2000, {{"de", "d"}, {"en", "e"}}, 0x10}},
};

const Step targetSteps[] = {
    {"clearText", 1, {10, 20, {{"fr", "f"}}, 0x10}},
    {"setTextForLanguage", 1, {10, 20, {}, 0x10}},
    {"setTextForLanguage", 2, {10, 20, {{"de", "d"}}, 0x10}},
    {"setStart", 1, {10, 20, {{"de", "d"}, {"en", "e"}}, 0x10}},
    {"setEnd", 1, {1000, 20, {{"de", "d"}, {"en", "e"}}, 0x10}},
    {"setAlignment", 1, {1000, 2000, {{"de", "d"}, {"en", "e"}}, 0x10}},
};

TEST(CaptionItemCopy, CopiesEverything)
{
    const auto source = itemOf(sourceCaption);
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_Ok, target->copyFrom(*source));
    EXPECT_EQ(sourceCaption, contentsOf(*target));
    EXPECT_EQ(sourceCaption, contentsOf(*source));
}

TEST(CaptionItemCopy, AsksTheSourceForLanguagesTextsStartEndAndAlignment)
{
    FailingCaptionItem source;
    fill(source, sourceCaption);
    const auto before = source.calls().size();
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_Ok, target->copyFrom(source));
    const Calls calls(source.calls().begin() + static_cast<std::ptrdiff_t>(before),
                      source.calls().end());
    EXPECT_EQ((Calls{"getLanguageIDs", "getTextForLanguage", "getTextForLanguage", "getStart",
                     "getEnd", "getAlignment"}),
              calls);
}

TEST(CaptionItemCopy, GoesThroughTheTargetsOwnSetters)
{
    FailingCaptionItem target;
    EXPECT_CODE(target, ZelData_Ok, target.copyFrom(*itemOf(sourceCaption)));
    EXPECT_EQ((Calls{"clearText", "setTextForLanguage", "setTextForLanguage", "setStart", "setEnd",
                     "setAlignment"}),
              target.calls());
}

TEST(CaptionItemCopy, LeavesSuccessInTheSourcesLastError)
{
    const auto source = itemOf(sourceCaption);
    source->setLastError(ZelData_NotFound);
    const auto target = itemOf(targetCaption);
    EXPECT_EQ(ZelData_Ok, target->copyFrom(*source));
    EXPECT_EQ(ZelData_Ok, source->getLastError());
}

TEST(CaptionItemCopy, OntoItselfIsRefusedAndChangesNothing)
{
    const auto item = itemOf(targetCaption);
    EXPECT_CODE(*item, ZelData_InternalError, item->copyFrom(*item));
    EXPECT_EQ(targetCaption, contentsOf(*item));
}

TEST(CaptionItemCopy, OntoItselfCallsNoOtherOperation)
{
    FailingCaptionItem item;
    EXPECT_CODE(item, ZelData_InternalError, item.copyFrom(item));
    EXPECT_EQ(Calls{}, item.calls());
}

TEST(CaptionItemCopy, AnItemWithoutLengthStopsAtTheEndAfterTextsAndStart)
{
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_InvalidArgument,
                target->copyFrom(*itemOf({1000, 0, {{"en", "e"}}, 0x22})));
    EXPECT_EQ((Caption{1000, 20, {{"en", "e"}}, 0x10}), contentsOf(*target));
}

TEST(CaptionItemCopy, AnEndThatWrapsIsRefused)
{
    constexpr long long most = std::numeric_limits<long long>::max();
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_InvalidArgument, target->copyFrom(*itemOf({most, 2, {}, 0x22})));
    EXPECT_EQ((Caption{most, 20, {}, 0x10}), contentsOf(*target));
}

class CaptionItemCopyFromFailing : public testing::TestWithParam<Step> {
protected:
    CaptionItemCopyFromFailing() { fill(source_, sourceCaption); }

    FailingCaptionItem source_;
    std::unique_ptr<i_ZelDataCaptionItem> target_ = itemOf(targetCaption);
};

TEST_P(CaptionItemCopyFromFailing, TakesTheSourcesLastErrorAndKeepsWhatWasCopied)
{
    source_.failAt(GetParam().operation, returnedCode, keptCode, GetParam().nth);
    EXPECT_CODE(*target_, keptCode, target_->copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(*target_));
}

TEST_P(CaptionItemCopyFromFailing, StopsAtAWarning)
{
    source_.failAt(GetParam().operation, ZelData_WarnTiming, keptCode, GetParam().nth);
    EXPECT_CODE(*target_, keptCode, target_->copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(*target_));
}

TEST_P(CaptionItemCopyFromFailing, TakesALastErrorThatIsZero)
{
    source_.failAt(GetParam().operation, returnedCode, ZelData_Ok, GetParam().nth);
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(*target_));
}

TEST_P(CaptionItemCopyFromFailing, AForeignExceptionIsAnInternalError)
{
    source_.throwAt(GetParam().operation, std::runtime_error("foreign"), GetParam().nth);
    EXPECT_CODE(*target_, ZelData_InternalError, target_->copyFrom(source_));
    EXPECT_EQ(GetParam().left, contentsOf(*target_));
}

TEST_P(CaptionItemCopyFromFailing, ExhaustedMemoryPassesThrough)
{
    source_.throwAt(GetParam().operation, std::bad_alloc(), GetParam().nth);
    EXPECT_THROW(static_cast<void>(target_->copyFrom(source_)), std::bad_alloc);
    EXPECT_EQ(GetParam().left, contentsOf(*target_));
}

INSTANTIATE_TEST_SUITE_P(EachGetter, CaptionItemCopyFromFailing, testing::ValuesIn(sourceSteps));

class CaptionItemCopyToFailing : public testing::TestWithParam<Step> {
protected:
    CaptionItemCopyToFailing() { fill(target_, targetCaption); }
    /// Makes the step fail that is under test; the target was filled through the same setters.
    void fail(ZelDataResult_tags returned)
    {
        target_.failAt(GetParam().operation, returned, keptCode, GetParam().nth);
    }

    std::unique_ptr<i_ZelDataCaptionItem> source_ = itemOf(sourceCaption);
    FailingCaptionItem target_;
};

TEST_P(CaptionItemCopyToFailing, GivesTheTargetsOwnLastErrorAndKeepsWhatWasCopied)
{
    fail(returnedCode);
    EXPECT_EQ(keptCode, target_.copyFrom(*source_));
    EXPECT_EQ(keptCode, target_.storedError());
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(CaptionItemCopyToFailing, StopsAtAWarning)
{
    fail(ZelData_WarnAlreadyExists);
    EXPECT_EQ(keptCode, target_.copyFrom(*source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

TEST_P(CaptionItemCopyToFailing, AForeignExceptionIsAnInternalError)
{
    target_.throwAt(GetParam().operation, std::runtime_error("foreign"), GetParam().nth);
    EXPECT_CODE(target_, ZelData_InternalError, target_.copyFrom(*source_));
    EXPECT_EQ(GetParam().left, contentsOf(target_));
}

INSTANTIATE_TEST_SUITE_P(EachSetter, CaptionItemCopyToFailing, testing::ValuesIn(targetSteps));

/// A foreign item that names its languages as it likes.
class NamedLanguages : public FailingCaptionItem {
public:
    explicit NamedLanguages(std::vector<std::string> ids) : ids_(std::move(ids)) {}

    ZelDataResult_tags getLanguageIDs(std::vector<std::string>& ids) const override
    {
        ids = ids_;
        return store(ZelData_Ok);
    }
    ZelDataResult_tags getTextForLanguage(std::string& text, const std::string& id) const override
    {
        text = "text in " + id;
        return store(ZelData_Ok);
    }

private:
    std::vector<std::string> ids_;
};

TEST(CaptionItemCopy, StopsAtALanguageThatTheSourceNamesTwice)
{
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_WarnAlreadyExists,
                target->copyFrom(NamedLanguages({"en", "en", "de"})));
    EXPECT_EQ((Caption{10, 20, {{"en", "text in en"}}, 0x10}), contentsOf(*target));
}

TEST(CaptionItemCopy, StopsAtALanguageThatTheCatalogueDoesNotKnow)
{
    const auto target = itemOf(targetCaption);
    EXPECT_CODE(*target, ZelData_InvalidItem, target->copyFrom(NamedLanguages({"en", "zz", "de"})));
    EXPECT_EQ((Caption{10, 20, {{"en", "text in en"}}, 0x10}), contentsOf(*target));
}

/// Counts what reaches its setLastError().
class CountingItem : public ZelDataCaptionItem {
public:
    void setLastError(ZelDataResult_tags code) const override
    {
        ++count_;
        ZelDataCaptionItem::setLastError(code);
    }
    int count() const { return count_; }

private:
    mutable int count_ = 0;
};

TEST(CaptionItemCopy, StoresItsCodeWithoutTheVirtualSetLastError)
{
    CountingItem target;
    EXPECT_EQ(ZelData_Ok, target.copyFrom(*itemOf(sourceCaption)));
    EXPECT_EQ(ZelData_InternalError, target.copyFrom(target));
    FailingCaptionItem source;
    source.failAt("getStart", returnedCode, keptCode);
    EXPECT_EQ(keptCode, target.copyFrom(source));
    EXPECT_EQ(keptCode, target.getLastError());
    EXPECT_EQ(0, target.count());
}

} // namespace
} // namespace ZelInterchangeData
