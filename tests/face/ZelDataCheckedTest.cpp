/// @file
/// The views that throw when an operation fails.

#include "ZelInterchangeData/ZelDataFace.h"
#include "face/Thrown.h"
#include "header/ZelDataHeader.h"
#include "support/fakes/FailingCaptions.h"

#include <gtest/gtest.h>

#include <map>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

using Strings = std::vector<std::string>;

template <class Owner, class = void>
constexpr bool hasView = false;
template <class Owner>
constexpr bool hasView<Owner, std::void_t<decltype(checked(std::declval<Owner>()))>> = true;

TEST(Checked, TakesTheOwnerButNotATemporaryOne)
{
    using Owner = std::unique_ptr<i_ZelDataCaptions>;
    static_assert(hasView<Owner&> && hasView<const Owner&>);
    static_assert(!hasView<Owner> && !hasView<const Owner>); // their views would dangle
    static_assert(!hasView<decltype(createHeader())> && !hasView<decltype(createDocument())>);
    static_assert(!hasView<decltype(createTocItem())> && !hasView<decltype(createTocFormatter())>);
    const Owner captions = createCaptions();
    EXPECT_EQ(captions.get(), &checked(captions).object());
    const std::unique_ptr<FailingCaptions> own = std::make_unique<FailingCaptions>();
    EXPECT_EQ(own.get(), &checked(own).object());
    const std::unique_ptr<const i_ZelDataCaptions> constant = createCaptions();
    static_assert(std::is_same_v<decltype(checked(constant)),
                                 ZelDataCheckedCaptions<const i_ZelDataCaptions>>);
}

TEST(CheckedHeader, ChainsOperationsAndReturnsValues)
{
    const auto header = createHeader();
    checked(*header).setTitle("t").setCreator("c").setKeywords({"a", "b"}).setVideoLength(7);
    checked(*header).addLanguage("en").addLanguage("de").addContentName("f").setShowSearchBar(
        false);
    const auto view = checked(std::as_const(*header));
    EXPECT_EQ("t", view.getTitle());
    EXPECT_EQ("c", view.getCreator());
    EXPECT_EQ((Strings{"a", "b"}), view.getKeywords());
    EXPECT_EQ(7U, view.getVideoLength());
    EXPECT_EQ((Strings{"en", "de"}), view.getOrderedLanguageIDs());
    EXPECT_TRUE(view.doesLanguageExist("de"));
    EXPECT_FALSE(view.doesLanguageExist("fr"));
    EXPECT_TRUE(view.doesContentNameExist("f"));
    EXPECT_FALSE(view.getShowSearchBar());
}

TEST(CheckedHeader, ThrowsAtTheFirstFailureAndStops)
{
    const auto header = createHeader();
    const auto call = [&] { checked(*header).setTitle("t").setVideoWidth(0).setCreator("c"); };
    EXPECT_EQ((Failure{"setVideoWidth", "ZelData_InvalidArgument"}), thrownBy(call));
    EXPECT_EQ(ZelData_InvalidArgument, header->getLastError());
    EXPECT_EQ("t", checked(*header).getTitle());
    EXPECT_EQ("", checked(*header).getCreator());
}

TEST(CheckedHeader, WarningsThrowUnlessTheyAreAllowed)
{
    const auto header = createHeader();
    const auto twice = [](auto view) { view.addContentName("a").addContentName("a"); };
    EXPECT_EQ((Failure{"addContentName", "ZelData_WarnNoChange"}),
              thrownBy([&] { twice(checked(*header)); }));
    EXPECT_EQ(Failure{}, thrownBy([&] { twice(checked(*header).allowWarnings()); }));
    EXPECT_EQ(1U, checked(*header).getContentNameCount());
}

TEST(CheckedHeader, ErrorsThrowEvenIfWarningsAreAllowed)
{
    const auto header = createHeader();
    EXPECT_EQ((Failure{"addLanguage", "ZelData_UnknownLanguage"}),
              thrownBy([&] { checked(*header).allowWarnings().addLanguage("zz"); }));
}

TEST(CheckedHeader, AllowingWarningsDoesNotChangeTheOriginalView)
{
    const auto header = createHeader();
    const auto strict = checked(*header).addContentName("a");
    strict.allowWarnings().addContentName("a");
    EXPECT_THROW(strict.addContentName("a"), ZelDataError);
}

TEST(CheckedHeader, OffersBothCopies)
{
    const auto source = createHeader();
    checked(*source).addLanguage("en").setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    const auto target = createHeader();
    checked(*target).copyFrom(static_cast<const i_ZelDataLanguage&>(*source));
    EXPECT_EQ(0U, checked(*target).getVideoWidth());
    checked(*target).copyFrom(*source).isValid();
    EXPECT_EQ(2U, checked(*target).getVideoWidth());
    EXPECT_EQ((Failure{"copyFrom", "ZelData_InternalError"}),
              thrownBy([&] { checked(*target).copyFrom(*target); }));
}

TEST(CheckedCaptionItem, ReplacingATextIsAWarning)
{
    const auto item = createCaptionItem(0, 1, {{"en", "a"}});
    EXPECT_EQ((Failure{"setTextForLanguage", "ZelData_WarnAlreadyExists"}),
              thrownBy([&] { checked(*item).setTextForLanguage("b", "en"); }));
    EXPECT_EQ(
        "c", checked(*item).allowWarnings().setTextForLanguage("c", "en").getTextForLanguage("en"));
}

TEST(CheckedCaptions, ReturnAColorAsOneValue)
{
    const auto captions = createCaptions();
    checked(*captions).setForegroundColor(0.25F, 0.5F, 0.75F).setBackgroundColor(1.0F, 0.0F, 0.5F);
    const auto [red, green, blue] = checked(*captions).getForegroundColor();
    EXPECT_EQ(0.25F, red);
    EXPECT_EQ(0.5F, green);
    EXPECT_EQ(0.75F, blue);
    EXPECT_EQ((std::array<float, 3>{1.0F, 0.0F, 0.5F}), checked(*captions).getBackgroundColor());
}

TEST(CheckedCaptions, HandOutOwnedItems)
{
    const auto captions = createCaptions();
    checked(*captions).addCaptionItem(*createCaptionItem(5, 9, {{"en", "a"}}));
    EXPECT_EQ(1U, checked(*captions).getCaptionItemCount());
    const auto item = checked(*captions).getCaptionItemAt(0);
    EXPECT_EQ(5, checked(*item).getStart());
    EXPECT_EQ(9, checked(*item).getEnd());
    EXPECT_EQ(0, checked(*checked(*captions).createCaptionItem()).getDuration());
    EXPECT_EQ((Failure{"getCaptionItemAt", "ZelData_InvalidArgument"}),
              thrownBy([&] { static_cast<void>(checked(*captions).getCaptionItemAt(1)); }));
    EXPECT_EQ((Failure{"getCaptionItemsForLanguage", "ZelData_NotImplemented"}), thrownBy([&] {
                  static_cast<void>(checked(*captions).getCaptionItemsForLanguage("en"));
              }));
}

TEST(CheckedCaptions, DoNotLeakWhatAFailingCollectionHandedOut)
{
    FailingCaptions captions;
    checked(captions).addCaptionItem(*createCaptionItem(5, 9, {{"en", "a"}}));
    const long alive = FailingCaptionItem::alive();
    captions.handOutBeforeFailing();
    captions.failAt("getCaptionItems", ZelData_InternalError, ZelData_Ok);
    EXPECT_EQ((Failure{"getCaptionItems", "ZelData_InternalError"}),
              thrownBy([&] { static_cast<void>(checked(captions).getCaptionItems()); }));
    EXPECT_EQ(alive, FailingCaptionItem::alive());
}

/// Captions that hand out an item and a null pointer.
class HollowCaptions : public ZelDataCaptions {
public:
    ZelDataResult_tags getCaptionItems(std::vector<i_ZelDataCaptionItem*>& items) const override
    {
        items = {new FailingCaptionItem, nullptr};
        return ZelData_Ok;
    }
};

TEST(CheckedCaptions, TreatANullItemAsAnInternalError)
{
    const HollowCaptions captions;
    const long alive = FailingCaptionItem::alive();
    EXPECT_EQ((Failure{"getCaptionItems", "ZelData_InternalError"}),
              thrownBy([&] { static_cast<void>(checked(captions).getCaptionItems()); }));
    EXPECT_EQ(alive, FailingCaptionItem::alive());
}

TEST(CheckedCaptions, ThrowWhenIsValidFails)
{
    const auto captions = createCaptions();
    checked(*captions).addCaptionItem(*createCaptionItem(0, 999, {{"en", "a"}})).isValid(false);
    EXPECT_EQ((Failure{"isValid", "ZelData_WarnItemGuidelines"}),
              thrownBy([&] { checked(*captions).isValid(true); }));
}

TEST(CheckedCaptions, CountItemsOfAConstCollection)
{
    const auto captions = createCaptions();
    const auto toc = createToc();
    const auto screenText = createScreenText();
    for (const long long start : {1, 2}) {
        checked(captions).addCaptionItem(*createCaptionItem(start, 9, {{"en", ""}}));
        checked(toc).addTocItem(*createTocItem(start, {{"en", ""}}));
        checked(screenText).addScreenTextItem(*createScreenTextItem(start, 9, ""));
    }
    EXPECT_EQ(2U, checked(std::as_const(*captions)).getCaptionItemCount());
    EXPECT_EQ(2U, checked(std::as_const(*toc)).getTocItemCount());
    EXPECT_EQ(2U, checked(std::as_const(*screenText)).getScreenTextItemCount());
    EXPECT_EQ(0U, checked(std::as_const(*createToc())).getTocItemCount());
}

TEST(CheckedCaptions, CountOnlyWhatAConstCollectionHandsOut)
{
    FailingCaptions captions;
    captions.failAt("getCaptionItems", ZelData_InternalError, ZelData_Ok);
    EXPECT_EQ(0U, checked(captions).getCaptionItemCount());
    EXPECT_EQ((Failure{"getCaptionItems", "ZelData_InternalError"}), thrownBy([&] {
                  static_cast<void>(checked(std::as_const(captions)).getCaptionItemCount());
              }));
}

template <class View, class... Flag>
void expectAnswers(const View& good, const View& bad, Flag... flag)
{
    EXPECT_TRUE(good.isGood(flag...));
    EXPECT_FALSE(bad.isGood(flag...));
}

TEST(IsGood, AnswersWhetherIsValidSucceeds)
{
    const auto header = createHeader();
    checked(header).setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    const auto emptyHeader = createHeader();
    expectAnswers(checked(header), checked(emptyHeader));
    const auto caption = createCaptionItem(0, 1000, {{"en", "a"}});
    const auto emptyCaption = createCaptionItem();
    expectAnswers(checked(caption), checked(emptyCaption), false);
    const auto captions = createCaptions();
    const auto overlapping = createCaptions();
    checked(overlapping).addCaptionItem(*caption).addCaptionItem(*caption);
    expectAnswers(checked(captions), checked(overlapping), false);
    const auto toc = createToc();
    const auto disordered = createToc();
    for (const long long start : {2, 1})
        checked(disordered).addTocItem(*createTocItem(start, {{"en", ""}}));
    expectAnswers(checked(toc), checked(disordered), true);
    const auto screenText = createScreenText();
    const auto disorderedText = createScreenText();
    for (const long long start : {2, 1})
        checked(disorderedText).addScreenTextItem(*createScreenTextItem(start, 9, ""));
    expectAnswers(checked(screenText), checked(disorderedText), true);
    EXPECT_TRUE(checked(*createTocItem()).isGood(true));
    EXPECT_TRUE(checked(*createScreenTextItem()).isGood(true));
}

TEST(IsGood, CountsAWarningAsAFailureUnlessItIsAllowed)
{
    const auto brief = createCaptionItem(0, 999, {{"en", "a"}});
    EXPECT_TRUE(checked(brief).isGood(false));
    EXPECT_FALSE(checked(brief).isGood(true));
    EXPECT_TRUE(checked(brief).allowWarnings().isGood(true));
    EXPECT_FALSE(checked(*createCaptionItem()).allowWarnings().isGood(true));
}

TEST(IsGood, ThrowsWithoutMemory)
{
    FailingCaptions captions;
    captions.failAt("isValid", ZelData_OutOfMemory, ZelData_OutOfMemory);
    EXPECT_EQ((Failure{"isValid", "ZelData_OutOfMemory"}),
              thrownBy([&] { static_cast<void>(checked(captions).isGood(true)); }));
}

TEST(CheckedTocItem, SetsEverythingThatAnEntryHolds)
{
    const auto item = createTocItem(3, {{"en", "a"}});
    const auto view = checked(*item).setImageFile("f").setImageIndex(1).setImageOffset(2);
    EXPECT_EQ(3, view.getStart());
    EXPECT_EQ("f", view.getImageFile());
    EXPECT_EQ(1U, view.getImageIndex());
    EXPECT_EQ(2U, view.getImageOffset());
    EXPECT_EQ(Strings{"en"}, view.getLanguageIDs());
}

TEST(CheckedDocument, WritesAndReadsBackItsSets)
{
    const auto header = createHeader();
    checked(*header).setTitle("t").setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    const auto document = createDocument();
    const std::string packet = checked(*document).setDataHeader(*header).writeString();
    EXPECT_NE(std::string::npos, packet.find("dc:title=\"t\""));
    std::string text = "before ";
    checked(*document).writeString(text, ZelDataFormat_Xmp, true);
    EXPECT_EQ("before <x:xmpmeta", text.substr(0, 17));
    const auto read = checked(*document).createDataHeader();
    checked(*document).getDataHeader(*read);
    EXPECT_EQ("t", checked(*read).getTitle());
}

/// A header whose own check fails although a document can copy it.
class StrictHeader : public ZelDataHeader {
public:
    StrictHeader() { checked(*this).setVideoLength(1).setVideoWidth(2).setVideoHeight(3); }

    ZelDataResult_tags isValid() const override { return store(code); }

    ZelDataResult_tags code = ZelData_InternalError;
};

TEST(CheckedDocument, RefusesAHeaderThatItsOwnCheckRefuses)
{
    const auto document = createDocument();
    const auto header = createHeader();
    checked(header).setTitle("kept").setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    checked(document).setDataHeader(*header);
    const auto empty = createHeader();
    const auto expectRefusals = [&] {
        document->setLastError(ZelData_WarnTiming);
        EXPECT_EQ((Failure{"setDataHeader", "ZelData_InvalidArgument"}),
                  thrownBy([&] { checked(document).setDataHeader(*empty); }));
        EXPECT_EQ((Failure{"setDataHeader", "ZelData_InternalError"}),
                  thrownBy([&] { checked(document).setDataHeader(StrictHeader()); }));
        EXPECT_EQ(ZelData_WarnTiming, document->getLastError());
        const auto read = createHeader();
        checked(document).getDataHeader(*read);
        EXPECT_EQ("kept", checked(read).getTitle());
    };
    expectRefusals();
    checked(document).setDataCaptions(*createCaptions());
    expectRefusals();
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*empty)); // which is why the view checks first
}

TEST(CheckedDocument, LetsAWarningOfTheCheckOfAHeaderPassIfItIsAllowed)
{
    const auto document = createDocument();
    StrictHeader strict;
    strict.code = ZelData_WarnTiming;
    EXPECT_EQ((Failure{"setDataHeader", "ZelData_WarnTiming"}),
              thrownBy([&] { checked(document).setDataHeader(strict); }));
    checked(document).allowWarnings().setDataHeader(strict);
}

/// A good header that a document cannot copy.
class UntitledHeader : public StrictHeader {
public:
    UntitledHeader() { code = ZelData_Ok; }

    ZelDataResult_tags getTitle(std::string& /*title*/) const override
    {
        return store(ZelData_NotFound);
    }
};

TEST(CheckedDocument, ThrowsTheCodeOfSetDataHeaderForAGoodHeader)
{
    const auto document = createDocument();
    EXPECT_EQ((Failure{"setDataHeader", "ZelData_NotFound"}),
              thrownBy([&] { checked(document).setDataHeader(UntitledHeader()); }));
}

TEST(CheckedDocument, ThrowsTheReturnedCodeIfNoneWasStored)
{
    const auto document = createDocument();
    EXPECT_EQ((Failure{"writeString", "ZelData_InvalidArgument"}),
              thrownBy([&] { static_cast<void>(checked(*document).writeString()); }));
    EXPECT_EQ(ZelData_Ok, document->getLastError());
    EXPECT_EQ((Failure{"writeFile", "ZelData_UnsupportedFormat"}), thrownBy([&] {
                  checked(*document).writeFile("x", static_cast<ZelDataFormatType_tags>(2));
              }));
}

TEST(CheckedFormatter, WritesATrack)
{
    const auto screenText = createScreenText();
    checked(*screenText).addScreenTextItem(*createScreenTextItem(1, 2, "a", 3));
    const auto formatter = createScreenTextFormatter();
    const std::string track = checked(*formatter).setScreenText(*screenText).writeString();
    EXPECT_NE(std::string::npos, track.find("zelDM:tocEntry=\"3\""));
    EXPECT_EQ((Failure{"readString", "ZelData_NotImplemented"}),
              thrownBy([&] { checked(*formatter).readString("", ZelDataFormat_Xmp, false); }));
}

TEST(CheckedObject, IsSmallAndCopiedFreely)
{
    using View = ZelDataCheckedHeader<i_ZelDataHeader>;
    static_assert(std::is_trivially_copyable_v<View>);
    static_assert(sizeof(View) <= 2 * sizeof(void*));
    const auto header = createHeader();
    EXPECT_EQ(header.get(), &checked(*header).object());
}

} // namespace
} // namespace ZelInterchangeData
