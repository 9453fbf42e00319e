/// @file
/// Entries in one line, and the contents of an entry in one value.

#ifndef ZELINTERCHANGEDATA_TESTS_TOC_ENTRIES_H
#define ZELINTERCHANGEDATA_TESTS_TOC_ENTRIES_H

#include "support/Checks.h"

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

/// Makes @p item hold @p entry.
inline void fill(i_ZelDataTocItem& item, const Entry& entry)
{
    for (const auto& [id, title] : entry.titles)
        EXPECT_EQ(ZelData_Ok, item.setTextForLanguage(title, id));
    EXPECT_EQ(ZelData_Ok, item.setStart(entry.start));
    EXPECT_EQ(ZelData_Ok, item.setImageFile(entry.image));
    EXPECT_EQ(ZelData_Ok, item.setImageIndex(entry.index));
    EXPECT_EQ(ZelData_Ok, item.setImageOffset(entry.offset));
}

/// A new item that holds @p entry.
inline std::unique_ptr<i_ZelDataTocItem> itemOf(const Entry& entry)
{
    auto item = make(ZelDataUtilities::createTocItemData);
    fill(*item, entry);
    return item;
}

/// What @p item holds.
inline Entry contentsOf(const i_ZelDataTocItem& item)
{
    Entry entry;
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, item.getLanguageIDs(ids));
    for (const std::string& id : ids)
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(entry.titles[id], id));
    EXPECT_EQ(ZelData_Ok, item.getStart(entry.start));
    EXPECT_EQ(ZelData_Ok, item.getImageFile(entry.image));
    EXPECT_EQ(ZelData_Ok, item.getImageIndex(entry.index));
    EXPECT_EQ(ZelData_Ok, item.getImageOffset(entry.offset));
    return entry;
}

/// Adds @p entries to @p toc, in order.
inline void add(i_ZelDataToc& toc, const std::vector<Entry>& entries)
{
    for (const Entry& entry : entries)
        EXPECT_EQ(ZelData_Ok, toc.addTocItem(*itemOf(entry)));
}

/// A new table of @p entries.
inline std::unique_ptr<i_ZelDataToc> tocOf(const std::vector<Entry>& entries)
{
    auto toc = make(ZelDataUtilities::createTocData);
    add(*toc, entries);
    return toc;
}

/// The entries of @p toc, in stored order.
inline std::vector<Entry> entriesOf(const i_ZelDataToc& toc)
{
    std::vector<i_ZelDataTocItem*> items;
    EXPECT_EQ(ZelData_Ok, toc.getTocItems(items));
    std::vector<Entry> entries;
    for (i_ZelDataTocItem* item : items) {
        const std::unique_ptr<i_ZelDataTocItem> owned(item);
        entries.push_back(contentsOf(*owned));
    }
    return entries;
}

inline std::vector<std::string> languagesOf(const i_ZelDataToc& toc)
{
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, toc.getOrderedLanguageIDs(ids));
    return ids;
}

inline std::string imageOf(const i_ZelDataToc& toc)
{
    std::string name;
    EXPECT_EQ(ZelData_Ok, toc.getImageFile(name));
    return name;
}

inline unsigned long frameRateOf(const i_ZelDataToc& toc)
{
    unsigned long rate = 0;
    EXPECT_EQ(ZelData_Ok, toc.getFrameRate(rate));
    return rate;
}

} // namespace ZelInterchangeData

#endif
