/// @file
/// The items of a collection, for use in a loop.

#ifndef ZELINTERCHANGEDATA_ZELDATAITEMS_H
#define ZELINTERCHANGEDATA_ZELDATAITEMS_H

#include "ZelInterchangeData/ZelDataCheckedCaptions.h"
#include "ZelInterchangeData/ZelDataCheckedScreenText.h"
#include "ZelInterchangeData/ZelDataCheckedToc.h"
#include "ZelInterchangeData/ZelDataExport.h"

#include <memory>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// @name Items
/// Copies of all items in stored order, owned by the vector: changing one does not change the
/// collection. For use in loops: `for (const auto& item : items(*captions))`. If the getter fails,
/// throws a ZelDataError that names it.
/// @{

/// See i_ZelDataCaptions::getCaptionItems().
inline std::vector<std::unique_ptr<i_ZelDataCaptionItem>> items(const i_ZelDataCaptions& captions)
{
    return checked(captions).getCaptionItems();
}
/// See i_ZelDataToc::getTocItems().
inline std::vector<std::unique_ptr<i_ZelDataTocItem>> items(const i_ZelDataToc& toc)
{
    return checked(toc).getTocItems();
}
/// See i_ZelDataScreenText::getScreenTextItems().
inline std::vector<std::unique_ptr<i_ZelDataScreenTextItem>>
items(const i_ZelDataScreenText& screenText)
{
    return checked(screenText).getScreenTextItems();
}
/// @}

} // namespace ZelInterchangeData

#endif
