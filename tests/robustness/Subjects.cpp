#include "robustness/Subjects.h"

namespace ZelInterchangeData {

namespace {

std::unique_ptr<i_ZelDataCaptionItem> captionAt(long long start, const std::string& id)
{
    auto item = make(&ZelDataUtilities::createCaptionItemData);
    expectOk({item->setTextForLanguage(longText, id), item->setStart(start),
              item->setDuration(2000), item->setAlignment(ZelAlignTop | ZelAlignRight)});
    return item;
}

std::unique_ptr<i_ZelDataTocItem> entryAt(long long start, const std::string& id)
{
    auto item = make(&ZelDataUtilities::createTocItemData);
    expectOk({item->setTextForLanguage(longText, id), item->setStart(start),
              item->setImageFile(otherText), item->setImageIndex(3), item->setImageOffset(4096)});
    return item;
}

std::unique_ptr<i_ZelDataScreenTextItem> screenTextAt(long long start)
{
    auto item = make(&ZelDataUtilities::createScreenTextItemData);
    expectOk({item->setText(longText), item->setStart(start), item->setDuration(1500),
              item->setImageFile(otherText), item->setImageIndex(3), item->setImageOffset(4096),
              item->setGroupId(1)});
    return item;
}

/// @p item with another text, in the language @p id.
template <class Item>
std::unique_ptr<Item> withText(std::unique_ptr<Item> item, const std::string& id)
{
    expectOk({item->setTextForLanguage(otherText, id)});
    return item;
}

} // namespace

void expectOk(std::initializer_list<ZelDataResult_tags> codes)
{
    for (const auto code : codes)
        EXPECT_EQ(ZelData_Ok, code);
}

const std::string longText = "a <text> that is too long to be kept inside of a string object";
const std::string otherText = "another & longer text that is not kept inside of a string object";
const std::string firstID = "de-a-language-id-that-is-too-long-for-a-string";
const std::string secondID = "en-a-language-id-that-is-too-long-for-a-string";
const std::string otherID = "fr-a-language-id-that-is-too-long-for-a-string";
const std::string contentName = "a-name-of-a-content-file-that-is-too-long.mp4";
const std::vector<std::string> otherList = {otherText, longText, otherText};
const std::vector<std::string> reversedIDs = {secondID, firstID};

std::unique_ptr<i_ZelDataHeader> filledHeader()
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    expectOk({header->setAppName(longText), header->setAppVersion(longText),
              header->setTitle(longText), header->setCreator(longText),
              header->setDescription(longText), header->setKeywords({longText, otherText})});
    expectOk({header->setIPodExplicit(true), header->setShowSearchBar(false),
              header->setVideoLength(90500), header->setVideoWidth(640),
              header->setVideoHeight(480)});
    expectOk({header->addLanguage(firstID), header->addLanguage(secondID),
              header->addContentName(contentName), header->addContentName(longText + ".xml")});
    return header;
}

std::unique_ptr<i_ZelDataCaptionItem> filledCaption()
{
    return withText(captionAt(1500, firstID), secondID);
}

std::unique_ptr<i_ZelDataCaptionItem> captionWithOtherLanguages()
{
    return withText(captionAt(1500, otherID), otherID + "-too");
}

std::unique_ptr<i_ZelDataCaptions> captionsInBothLanguages()
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    for (int i = 0; i < 3; ++i)
        expectOk({captions->addCaptionItem(*filledCaption())});
    return captions;
}

std::unique_ptr<i_ZelDataCaptions> captionsWithLongTexts()
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    const std::string text(20000, 'x');
    for (int i = 0; i < 2; ++i) {
        auto item = filledCaption();
        EXPECT_EQ(ZelData_WarnAlreadyExists, item->setTextForLanguage(text, firstID));
        EXPECT_EQ(ZelData_WarnAlreadyExists, item->setTextForLanguage(text, secondID));
        expectOk({captions->addCaptionItem(*item)});
    }
    return captions;
}

std::unique_ptr<i_ZelDataCaptions> filledCaptions()
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    expectOk({captions->setFrameRate(25), captions->setFontFamily(longText),
              captions->setFontSize(24), captions->setForegroundColor(1.0F, 0.5F, 0.75F),
              captions->setBackgroundColor(0.0F, 0.25F, 0.0F),
              captions->setBackgroundOpacity(0.25F)});
    expectOk({captions->addCaptionItem(*captionAt(4000, firstID)),
              captions->addCaptionItem(*captionAt(1000, secondID))});
    return captions;
}

std::unique_ptr<i_ZelDataTocItem> filledEntry()
{
    return withText(entryAt(1500, firstID), secondID);
}

std::unique_ptr<i_ZelDataTocItem> entryWithOtherLanguages()
{
    return withText(entryAt(1500, otherID), otherID + "-too");
}

std::unique_ptr<i_ZelDataToc> tocInBothLanguages()
{
    auto toc = make(&ZelDataUtilities::createTocData);
    for (int i = 0; i < 3; ++i)
        expectOk({toc->addTocItem(*filledEntry())});
    return toc;
}

std::unique_ptr<i_ZelDataToc> filledToc()
{
    auto toc = make(&ZelDataUtilities::createTocData);
    expectOk({toc->setFrameRate(30), toc->setImageFile(longText),
              toc->addTocItem(*entryAt(5000, firstID)), toc->addTocItem(*entryAt(0, secondID))});
    return toc;
}

std::unique_ptr<i_ZelDataScreenTextItem> filledScreenTextItem()
{
    return screenTextAt(1500);
}

std::unique_ptr<i_ZelDataScreenText> filledScreenText()
{
    auto texts = make(&ZelDataUtilities::createScreenTextData);
    expectOk({texts->setFrameRate(50), texts->addScreenTextItem(*screenTextAt(6000)),
              texts->addScreenTextItem(*screenTextAt(2000))});
    return texts;
}

} // namespace ZelInterchangeData
