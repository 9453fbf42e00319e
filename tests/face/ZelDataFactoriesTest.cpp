/// @file
/// The factories that return what they make.

#include "ZelInterchangeData/ZelDataFace.h"
#include "face/Thrown.h"

#include <gtest/gtest.h>

#include <map>
#include <typeinfo>

namespace ZelInterchangeData {
namespace {

constexpr auto noFormat = static_cast<ZelDataFormatType_tags>(2);

/// Expects that @p made is a new object of the class that the factory @p create makes.
template <class Interface, class... Format>
void expectMade(const std::unique_ptr<Interface>& made,
                ZelDataResult_tags (*create)(Interface**, Format...), Format... format)
{
    Interface* other = nullptr;
    ASSERT_EQ(ZelData_Ok, create(&other, format...));
    const std::unique_ptr<Interface> owner(other);
    ASSERT_NE(nullptr, made);
    EXPECT_EQ(typeid(*owner), typeid(*made));
    EXPECT_EQ(ZelData_Ok, made->getLastError());
}

TEST(Factories, MakeWhatTheirNamesSay)
{
    using Utilities = ZelDataUtilities;
    expectMade(createHeader(), Utilities::createHeaderData);
    expectMade(createCaptionItem(), Utilities::createCaptionItemData);
    expectMade(createCaptions(), Utilities::createCaptionData);
    expectMade(createTocItem(), Utilities::createTocItemData);
    expectMade(createToc(), Utilities::createTocData);
    expectMade(createScreenTextItem(), Utilities::createScreenTextItemData);
    expectMade(createScreenText(), Utilities::createScreenTextData);
    expectMade(createHeaderFormatter(), Utilities::createHeaderFormatter, ZelDataFormat_Xmp);
    expectMade(createCaptionFormatter(), Utilities::createCaptionFormatter, ZelDataFormat_Xmp);
    expectMade(createTocFormatter(), Utilities::createTocFormatter, ZelDataFormat_Xmp);
    expectMade(createScreenTextFormatter(), Utilities::createScreenTextFormatter,
               ZelDataFormat_Xmp);
}

TEST(Factories, MakeADocument)
{
    const auto document = createDocument();
    ASSERT_NE(nullptr, document);
    EXPECT_EQ(ZelData_NotImplemented, document->readString("", ZelDataFormat_Xmp, false));
}

TEST(Factories, ThrowForAnotherFormat)
{
    EXPECT_EQ((Failure{"createHeaderFormatter", "ZelData_UnsupportedFormat"}),
              thrownBy([] { static_cast<void>(createHeaderFormatter(noFormat)); }));
    EXPECT_EQ((Failure{"createCaptionFormatter", "ZelData_UnsupportedFormat"}),
              thrownBy([] { static_cast<void>(createCaptionFormatter(noFormat)); }));
    EXPECT_EQ((Failure{"createTocFormatter", "ZelData_UnsupportedFormat"}),
              thrownBy([] { static_cast<void>(createTocFormatter(noFormat)); }));
    EXPECT_EQ((Failure{"createScreenTextFormatter", "ZelData_UnsupportedFormat"}),
              thrownBy([] { static_cast<void>(createScreenTextFormatter(noFormat)); }));
}

TEST(MakeObject, ThrowsWithoutMemory)
{
    ZelDataResult_tags (*const exhausted)(i_ZelDataHeader**) = [](i_ZelDataHeader**) {
        return ZelData_OutOfMemory;
    };
    EXPECT_EQ((Failure{"create", "ZelData_OutOfMemory"}),
              thrownBy([&] { static_cast<void>(makeObject("create", exhausted)); }));
}

TEST(CreateCaptionItem, SetsTimesAndTexts)
{
    const auto item = createCaptionItem(1500, 3500, {{"en", "Hello"}, {"de", "Hallo"}});
    EXPECT_EQ(1500, checked(*item).getStart());
    EXPECT_EQ(3500, checked(*item).getEnd());
    EXPECT_EQ("Hello", checked(*item).getTextForLanguage("en"));
    EXPECT_EQ("Hallo", checked(*item).getTextForLanguage("de"));
}

TEST(CreateCaptionItem, AcceptsAnyContainerOfTexts)
{
    const std::map<std::string, std::string> texts = {{"en", "a"}, {"fr", "b"}};
    EXPECT_EQ((std::vector<std::string>{"en", "fr"}),
              checked(*createCaptionItem(0, 1, texts)).getLanguageIDs());
    EXPECT_EQ("b", checked(*createTocItem(0, texts)).getTextForLanguage("fr"));
}

TEST(CreateCaptionItem, NamesTheOperationThatFailed)
{
    EXPECT_EQ((Failure{"setStart", "ZelData_InvalidArgument"}), thrownBy([] {
                  static_cast<void>(createCaptionItem(-1, 1, {{"en", "a"}}));
              }));
    EXPECT_EQ((Failure{"setEnd", "ZelData_InvalidArgument"}), thrownBy([] {
                  static_cast<void>(createCaptionItem(1, 1, {{"en", "a"}}));
              }));
    EXPECT_EQ((Failure{"setTextForLanguage", "ZelData_InvalidItem"}), thrownBy([] {
                  static_cast<void>(createCaptionItem(0, 1, {{"zz", "a"}}));
              }));
}

TEST(CreateCaptionItem, ALanguageGivenTwiceThrows)
{
    EXPECT_EQ((Failure{"setTextForLanguage", "ZelData_WarnAlreadyExists"}), thrownBy([] {
                  static_cast<void>(createCaptionItem(0, 1, {{"en", "a"}, {"en", "b"}}));
              }));
}

TEST(CreateTocItem, SetsStartAndTexts)
{
    const auto item = createTocItem(45000, {{"en", "Setup"}});
    EXPECT_EQ(45000, checked(*item).getStart());
    EXPECT_EQ("Setup", checked(*item).getTextForLanguage("en"));
}

TEST(CreateScreenTextItem, SetsTimesTextAndEntry)
{
    const auto item = createScreenTextItem(10, 30, "File > New", 4);
    EXPECT_EQ(10, checked(*item).getStart());
    EXPECT_EQ(20, checked(*item).getDuration());
    EXPECT_EQ("File > New", checked(*item).getText());
    EXPECT_EQ(4U, checked(*item).getGroupId());
    EXPECT_EQ(0U, checked(*createScreenTextItem(1, 2, "")).getGroupId());
}

TEST(CreateScreenTextItem, MayEndWhereItStarts)
{
    const auto item = createScreenTextItem(10, 10, "a");
    EXPECT_EQ(10, checked(item).getEnd());
    EXPECT_EQ(0, checked(item).getDuration());
    EXPECT_EQ((Failure{"setEnd", "ZelData_InvalidArgument"}),
              thrownBy([] { static_cast<void>(createScreenTextItem(10, 9, "a")); }));
    EXPECT_EQ((Failure{"setStart", "ZelData_InvalidArgument"}),
              thrownBy([] { static_cast<void>(createScreenTextItem(-1, -1, "a")); }));
}

TEST(Escaped, MakesAPacketWellFormedThatWritesTextsAsGiven)
{
    EXPECT_EQ("&lt;Tom &amp; &quot;Jerry&apos;&gt;", escaped("<Tom & \"Jerry'>"));
    const auto header = createHeader();
    checked(header).setVideoLength(1).setVideoWidth(1).setVideoHeight(1);
    checked(header).setCreator(escaped("Tom & Jerry"));
    const auto document = createDocument();
    const std::string packet = checked(document).setDataHeader(*header).writeString();
    EXPECT_NE(std::string::npos, packet.find(" dc:creator=\"Tom &amp; Jerry\" "));
}

} // namespace
} // namespace ZelInterchangeData
