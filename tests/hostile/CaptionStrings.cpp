#include "captions/Captions.h"
#include "hostile/ItemStrings.h"
#include "hostile/LanguageStrings.h"

namespace ZelInterchangeData {

void addCaptionStrings(StringParameters& list)
{
    addItemStrings<i_ZelDataCaptionItem>(list, "ZelDataCaptionItem::", newCaption,
                                         Treatment::CaptionText, Treatment::AsGiven);

    using C = i_ZelDataCaptions;
    const std::string of = "ZelDataCaptions::";
    addLanguageStrings<C>(list, of, newCaptions, ZelData_NotFound);
    addField<C>(
        list, of + "setFontFamily 1",
        {captionsWithItem, &C::setFontFamily, deliveringOne(&C::getFontFamily), Rule::NotEmpty},
        {Treatment::AsGiven});
    addOut<C>(list, of + "getFontFamily 1", newCaptions, &C::getFontFamily,
              std::string("Helvetica"));
    addItemsByLanguage<CaptionKind>(list, of, "CaptionItems", newCaption,
                                    &C::getCaptionItemsForLanguage);
}

} // namespace ZelInterchangeData
