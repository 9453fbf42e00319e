#include "hostile/NumberParameter.h"
#include "screentext/Items.h"

namespace ZelInterchangeData {

void addScreenTextNumbers(NumberParameters& list)
{
    using Item = i_ZelDataScreenTextItem;
    const std::string ofItem = "ZelDataScreenTextItem::";
    addLastError<Item>(list, ofItem, newScreenTextItem);
    addStart<Item>(list, ofItem, newScreenTextItem);
    addEnds<Item>(list, ofItem, newScreenTextItem,
                  [](long long duration) { return duration >= 0; });
    addImageNumbers<Item>(list, ofItem, newScreenTextItem);
    addNumber<Item, unsigned long>(list, ofItem + "setGroupId 1",
                                   {newScreenTextItem, &Item::setGroupId,
                                    delivering(&Item::getGroupId), any, extremesOf<unsigned long>(),
                                    4711, decimal});

    using ScreenText = i_ZelDataScreenText;
    const std::string of = "ZelDataScreenText::";
    addLastError<ScreenText>(list, of, newScreenText);
    addFrameRate<ScreenText>(list, of, screenTextWithItem, writtenRate);
    addIndices<ScreenTextKind>(list, of, "ScreenTextItem", {});
}

} // namespace ZelInterchangeData
