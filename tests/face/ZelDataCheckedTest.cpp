/// @file
/// The views that throw when an operation fails.

#include "ZelInterchangeData/ZelDataFace.h"
#include "face/Thrown.h"
#include "support/fakes/FailingCaptions.h"

#include <gtest/gtest.h>

#include <map>
#include <type_traits>

namespace ZelInterchangeData {
namespace {

using Strings = std::vector<std::string>;

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
