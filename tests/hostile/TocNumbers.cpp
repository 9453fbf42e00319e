#include "hostile/NumberParameter.h"

namespace ZelInterchangeData {

namespace {

using Toc = i_ZelDataToc;
using Item = i_ZelDataTocItem;

const std::string of = "ZelDataToc::";

std::unique_ptr<Toc> twoEntries()
{
    auto toc = tocWithEntry();
    EXPECT_EQ(ZelData_Ok, toc->addTocItem(*newEntry()));
    return toc;
}

void addIndices(NumberParameters& list)
{
    addIndex<Toc>(list, of + "removeTocItemAt 1", twoEntries,
                  [](Toc& t, unsigned long index) { return t.removeTocItemAt(index); });
    addIndex<Toc>(list, of + "getTocItemAt 2", twoEntries, [](Toc& t, unsigned long index) {
        Item* copy = nullptr;
        const auto code = t.getTocItemAt(&copy, index);
        const std::unique_ptr<Item> item(copy);
        EXPECT_EQ(code == ZelData_Ok, item != nullptr);
        return code;
    });
}

} // namespace

void addTocNumbers(NumberParameters& list)
{
    const std::string ofItem = "ZelDataTocItem::";
    addLastError<Item>(list, ofItem, newEntry);
    addStart<Item>(list, ofItem, newEntry, nullptr);
    addImageNumbers<Item>(list, ofItem, newEntry);
    addLastError<Toc>(list, of, newToc);
    // The written table states the standard rate whatever it has.
    addFrameRate<Toc>(list, of, tocWithEntry, nullptr);
    addIndices(list);
}

} // namespace ZelInterchangeData
