/// @file
/// Entries from plain values, and back.

#ifndef ZELINTERCHANGEDATA_TESTS_TOC_ENTRIES_H
#define ZELINTERCHANGEDATA_TESTS_TOC_ENTRIES_H

#include "support/Items.h"
#include "toc/ZelDataToc.h"
#include "toc/ZelDataTocItem.h"

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

namespace ZelInterchangeData {

/// All that an entry holds.
struct Entry {
    long long start = 0;
    std::map<std::string, std::string> titles = {};
    std::string image = {};
    unsigned long index = 0;
    unsigned long long offset = 0;
};

inline bool operator==(const Entry& a, const Entry& b)
{
    return std::tie(a.start, a.titles, a.image, a.index, a.offset) ==
           std::tie(b.start, b.titles, b.image, b.index, b.offset);
}

inline void PrintTo(const Entry& entry, std::ostream* out)
{
    *out << "start " << entry.start << ' ' << testing::PrintToString(entry.titles) << " image '"
         << entry.image << "' index " << entry.index << " offset " << entry.offset;
}

/// Fills @p item with @p entry.
inline void fill(i_ZelDataTocItem& item, const Entry& entry)
{
    for (const auto& [id, title] : entry.titles)
        EXPECT_EQ(ZelData_Ok, item.setTextForLanguage(title, id));
    EXPECT_EQ(ZelData_Ok, item.setStart(entry.start));
    EXPECT_EQ(ZelData_Ok, item.setImageFile(entry.image));
    EXPECT_EQ(ZelData_Ok, item.setImageIndex(entry.index));
    EXPECT_EQ(ZelData_Ok, item.setImageOffset(entry.offset));
}

/// What @p item holds.
inline Entry contentsOf(const i_ZelDataTocItem& item)
{
    Entry entry;
    entry.titles = textsOf(item);
    EXPECT_EQ(ZelData_Ok, item.getStart(entry.start));
    EXPECT_EQ(ZelData_Ok, item.getImageFile(entry.image));
    EXPECT_EQ(ZelData_Ok, item.getImageIndex(entry.index));
    EXPECT_EQ(ZelData_Ok, item.getImageOffset(entry.offset));
    return entry;
}

/// A table of contents under the names that all collections share.
struct TocKind {
    static constexpr auto name = "Toc";
    using Values = Entry;
    using Item = i_ZelDataTocItem;
    using OwnItem = ZelDataTocItem;
    using Data = i_ZelDataToc;
    using Own = ZelDataToc;
    using Formatter = i_ZelDataTocFormatter;

    static constexpr auto makeItem = &ZelDataUtilities::createTocItemData;
    static constexpr auto makeData = &ZelDataUtilities::createTocData;
    static constexpr auto makeFormatter = &ZelDataUtilities::createTocFormatter;
    static constexpr auto create = &Data::createTocItem;
    static constexpr auto add = &Data::addTocItem;
    static constexpr auto count = &Data::getTocItemCount;
    static constexpr auto at = &Data::getTocItemAt;
    static constexpr auto all = &Data::getTocItems;
    static constexpr auto removeAt = &Data::removeTocItemAt;
    static constexpr auto removeLanguage = &Data::removeTocItemsForLanguage;
    static constexpr auto clear = &Data::clearTocItems;
    static constexpr auto order = &Own::orderTocItems;
    static constexpr auto makeConsistent = &Data::makeTocConsistent;
    static constexpr auto setData = &Formatter::setToc;

    /// A collection that makes its items with the given function, if there is one.
    struct Made : Own {
        Maker<Item> maker;
        ZelDataResult_tags createTocItem(Item** out) const override
        {
            return maker ? maker(out) : Own::createTocItem(out);
        }
    };
};

inline std::unique_ptr<i_ZelDataTocItem> itemOf(const Entry& entry)
{
    return newItem<TocKind>(entry);
}

inline void add(i_ZelDataToc& toc, const std::vector<Entry>& entries)
{
    addItems<TocKind>(toc, entries);
}

inline std::unique_ptr<i_ZelDataToc> tocOf(const std::vector<Entry>& entries)
{
    return newCollection<TocKind>(entries);
}

inline std::vector<Entry> entriesOf(const i_ZelDataToc& toc)
{
    return valuesOf<TocKind>(toc);
}

inline std::string imageOf(const i_ZelDataToc& toc)
{
    std::string name;
    EXPECT_EQ(ZelData_Ok, toc.getImageFile(name));
    return name;
}

} // namespace ZelInterchangeData

#endif
