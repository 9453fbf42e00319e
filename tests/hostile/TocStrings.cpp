#include "hostile/ImageStrings.h"
#include "hostile/ItemStrings.h"

namespace ZelInterchangeData {

namespace {

using Toc = i_ZelDataToc;

const std::string of = "ZelDataToc::";

/// The languages of the first entry, which is the only one.
Texts languagesOfEntries(const Toc& toc)
{
    i_ZelDataTocItem* copy = nullptr;
    EXPECT_EQ(ZelData_Ok, toc.getTocItemAt(&copy, 0));
    const std::unique_ptr<i_ZelDataTocItem> entry(copy);
    return textLanguagesOf(*entry);
}

ZelDataResult_tags putEntry(Toc& toc, const std::string& id)
{
    EXPECT_EQ(ZelData_Ok, toc.clearTocItems());
    const auto entry = newEntry();
    EXPECT_EQ(ZelData_Ok, entry->setTextForLanguage("t", id));
    return toc.addTocItem(*entry);
}

void addEntriesByLanguage(StringParameters& list)
{
    addLookup<Toc>(list, {of + "removeTocItemsForLanguage 1",
                          tocWithEntry,
                          putEntry,
                          [](Toc& t, const std::string& id, std::string& /*found*/) {
                              return t.removeTocItemsForLanguage(id);
                          },
                          languagesOfEntries,
                          Rule::LanguageOfItem,
                          {ZelData_NotFound, "before"},
                          {ZelData_Ok, "before"},
                          none});
    addLookup<Toc>(list, {of + "getTocItemsForLanguage 2",
                          tocWithEntry,
                          putEntry,
                          [](Toc& t, const std::string& id, std::string& /*found*/) {
                              std::vector<i_ZelDataTocItem*> entries;
                              const auto code = t.getTocItemsForLanguage(entries, id);
                              EXPECT_TRUE(entries.empty());
                              return code;
                          },
                          languagesOfEntries,
                          Rule::LanguageOfItem,
                          {ZelData_NotImplemented, "before"},
                          {ZelData_NotImplemented, "before"}});
}

} // namespace

void addTocStrings(StringParameters& list)
{
    addItemStrings<i_ZelDataTocItem, newEntry>(
        list, "ZelDataTocItem::", Treatment::EscapedAndStripped, Treatment::NotWritten);
    addImageStrings<i_ZelDataTocItem, newEntry>(list, "ZelDataTocItem::", Treatment::Escaped);
    addLanguageStrings<Toc, newToc>(list, of, ZelData_NotFound);
    addImageStrings<Toc, tocWithEntry>(list, of, Treatment::Escaped);
    addEntriesByLanguage(list);
}

} // namespace ZelInterchangeData
