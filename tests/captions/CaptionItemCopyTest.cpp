/// @file
/// Copying a caption item: the rules of its own. The rest is in sets/CopyContractTest.cpp.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <limits>

namespace ZelInterchangeData {
namespace {

constexpr auto returnedCode = static_cast<ZelDataResult_tags>(0x80000E11);
constexpr auto keptCode = static_cast<ZelDataResult_tags>(0x40000E22);

const Caption sourceCaption = {1000, 2000, {{"de", "d"}, {"en", "e"}}, 0x22};
const Caption targetCaption = {10, 20, {{"fr", "f"}}, 0x10};

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

/// A foreign item whose languages a test chooses.
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

/// Counts the calls of its setLastError().
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
