#include "hostile/ItemStrings.h"
#include "hostile/LanguageStrings.h"
#include "toc/Entries.h"

namespace ZelInterchangeData {

void addTocStrings(StringParameters& list)
{
    using Item = i_ZelDataTocItem;
    const std::string ofItem = "ZelDataTocItem::";
    addItemStrings<Item>(list, ofItem, newEntry, Treatment::EscapedAndStripped,
                         Treatment::NotWritten);
    addImageStrings<Item>(list, ofItem, newEntry, Treatment::Escaped);

    using Toc = i_ZelDataToc;
    const std::string of = "ZelDataToc::";
    addLanguageStrings<Toc>(list, of, newToc, ZelData_NotFound);
    addImageStrings<Toc>(list, of, tocWithEntry, Treatment::Escaped);
    addItemsByLanguage<TocKind>(list, of, "TocItems", newEntry, &Toc::getTocItemsForLanguage);
}

} // namespace ZelInterchangeData
