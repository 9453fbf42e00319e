#include "hostile/ImageStrings.h"

namespace ZelInterchangeData {

void addScreenTextStrings(StringParameters& list)
{
    using Item = i_ZelDataScreenTextItem;
    const std::string of = "ZelDataScreenTextItem::";
    addField<Item>(list, {of + "setText 1", newScreenTextItem,
                          [](Item& i, const std::string& text) { return i.setText(text); },
                          [](const Item& i) {
                              std::string text;
                              EXPECT_EQ(ZelData_Ok, i.getText(text));
                              return Texts{text};
                          },
                          Rule::Utf8OfItem, Treatment::EscapedAndStripped});
    addOut<Item>(
        list, of + "getText 1", newScreenTextItem,
        [](Item& i, std::string& out) { return i.getText(out); }, "");
    addImageStrings<Item, newScreenTextItem>(list, of, Treatment::AsGiven);
}

} // namespace ZelInterchangeData
