#include "hostile/NumberParameter.h"

namespace ZelInterchangeData {

namespace {

using ScreenText = i_ZelDataScreenText;
using Item = i_ZelDataScreenTextItem;

const std::string of = "ZelDataScreenText::";

std::unique_ptr<Item> lateScreenText()
{
    auto item = newScreenTextItem();
    EXPECT_EQ(ZelData_Ok, item->setStart(5));
    return item;
}

std::unique_ptr<ScreenText> twoScreenTexts()
{
    auto screenText = screenTextWithItem();
    EXPECT_EQ(ZelData_Ok, screenText->addScreenTextItem(*newScreenTextItem()));
    return screenText;
}

void addItemNumbers(NumberParameters& list)
{
    const std::string ofItem = "ZelDataScreenTextItem::";
    addLastError<Item>(list, ofItem, newScreenTextItem);
    addStart<Item>(list, ofItem, newScreenTextItem, nullptr);
    addEnds<Item>(list, ofItem, newScreenTextItem, lateScreenText,
                  [](long long duration) { return duration >= 0; });
    addImageNumbers<Item>(list, ofItem, newScreenTextItem);
    addNumber<Item, unsigned long>(
        list, {ofItem + "setGroupId 1", newScreenTextItem,
               [](Item& i, unsigned long group) { return i.setGroupId(group); },
               [](const Item& i) { return delivered(i, &Item::getGroupId); }, any,
               extremesOf<unsigned long>(), 4711, decimal});
}

void addIndices(NumberParameters& list)
{
    addIndex<ScreenText>(
        list, of + "removeScreenTextItemAt 1", twoScreenTexts,
        [](ScreenText& s, unsigned long index) { return s.removeScreenTextItemAt(index); });
    addIndex<ScreenText>(list, of + "getScreenTextItemAt 2", twoScreenTexts,
                         [](ScreenText& s, unsigned long index) {
                             Item* copy = nullptr;
                             const auto code = s.getScreenTextItemAt(&copy, index);
                             const std::unique_ptr<Item> item(copy);
                             EXPECT_EQ(code == ZelData_Ok, item != nullptr);
                             return code;
                         });
}

} // namespace

void addScreenTextNumbers(NumberParameters& list)
{
    addItemNumbers(list);
    addLastError<ScreenText>(list, of, newScreenText);
    addFrameRate<ScreenText>(list, of, screenTextWithItem, writtenRate);
    addIndices(list);
}

} // namespace ZelInterchangeData
