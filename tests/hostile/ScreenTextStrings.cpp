#include "hostile/StringParameter.h"

namespace ZelInterchangeData {

void addScreenTextStrings(StringParameters& list)
{
    using Item = i_ZelDataScreenTextItem;
    const std::string of = "ZelDataScreenTextItem::";
    addField<Item>(
        list, of + "setText 1",
        {newScreenTextItem, &Item::setText, deliveringOne(&Item::getText), Rule::Utf8OfItem},
        {Treatment::EscapedAndStripped});
    addOut<Item>(list, of + "getText 1", newScreenTextItem, &Item::getText, std::string());
    addImageStrings<Item>(list, of, newScreenTextItem, Treatment::AsGiven);
}

} // namespace ZelInterchangeData
