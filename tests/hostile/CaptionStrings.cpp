#include "hostile/ItemStrings.h"

namespace ZelInterchangeData {

namespace {

using Captions = i_ZelDataCaptions;

const std::string of = "ZelDataCaptions::";

/// The languages of the first item, which is the only one.
Texts languagesOfItems(const Captions& captions)
{
    i_ZelDataCaptionItem* copy = nullptr;
    EXPECT_EQ(ZelData_Ok, captions.getCaptionItemAt(&copy, 0));
    const std::unique_ptr<i_ZelDataCaptionItem> item(copy);
    return textLanguagesOf(*item);
}

ZelDataResult_tags putItem(Captions& captions, const std::string& id)
{
    EXPECT_EQ(ZelData_Ok, captions.clearCaptionItems());
    const auto item = newCaption();
    EXPECT_EQ(ZelData_Ok, item->setTextForLanguage("t", id));
    return captions.addCaptionItem(*item);
}

void addFontFamily(StringParameters& list)
{
    addField<Captions>(
        list, {of + "setFontFamily 1", captionsWithItem,
               [](Captions& c, const std::string& family) { return c.setFontFamily(family); },
               [](const Captions& c) {
                   std::string family;
                   EXPECT_EQ(ZelData_Ok, c.getFontFamily(family));
                   return Texts{family};
               },
               Rule::NotEmpty, Treatment::AsGiven});
    addOut<Captions>(
        list, of + "getFontFamily 1", newCaptions,
        [](Captions& c, std::string& out) { return c.getFontFamily(out); }, "Helvetica");
}

void addItemsByLanguage(StringParameters& list)
{
    addLookup<Captions>(list, {of + "removeCaptionItemsForLanguage 1",
                               captionsWithItem,
                               putItem,
                               [](Captions& c, const std::string& id, std::string& /*found*/) {
                                   return c.removeCaptionItemsForLanguage(id);
                               },
                               languagesOfItems,
                               Rule::LanguageOfItem,
                               {ZelData_NotFound, "before"},
                               {ZelData_Ok, "before"},
                               none});
    addLookup<Captions>(list, {of + "getCaptionItemsForLanguage 2",
                               captionsWithItem,
                               putItem,
                               [](Captions& c, const std::string& id, std::string& /*found*/) {
                                   std::vector<i_ZelDataCaptionItem*> items;
                                   const auto code = c.getCaptionItemsForLanguage(items, id);
                                   EXPECT_TRUE(items.empty());
                                   return code;
                               },
                               languagesOfItems,
                               Rule::LanguageOfItem,
                               {ZelData_NotImplemented, "before"},
                               {ZelData_NotImplemented, "before"}});
}

} // namespace

void addCaptionStrings(StringParameters& list)
{
    addItemStrings<i_ZelDataCaptionItem, newCaption>(
        list, "ZelDataCaptionItem::", Treatment::CaptionText, Treatment::AsGiven);
    addLanguageStrings<Captions, newCaptions>(list, of, ZelData_NotFound);
    addFontFamily(list);
    addItemsByLanguage(list);
}

} // namespace ZelInterchangeData
