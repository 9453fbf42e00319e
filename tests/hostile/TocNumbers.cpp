#include "hostile/NumberParameter.h"
#include "toc/Entries.h"

namespace ZelInterchangeData {

void addTocNumbers(NumberParameters& list)
{
    using Item = i_ZelDataTocItem;
    const std::string ofItem = "ZelDataTocItem::";
    addLastError<Item>(list, ofItem, newEntry);
    addStart<Item>(list, ofItem, newEntry);
    addImageNumbers<Item>(list, ofItem, newEntry);

    using Toc = i_ZelDataToc;
    const std::string of = "ZelDataToc::";
    addLastError<Toc>(list, of, newToc);
    // The written table states the standard rate whatever it has.
    addFrameRate<Toc>(list, of, tocWithEntry, nullptr);
    addIndices<TocKind>(list, of, "TocItem", {});
}

} // namespace ZelInterchangeData
