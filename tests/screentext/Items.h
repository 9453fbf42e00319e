/// @file
/// Screen-text items in one line, and the contents of an item in one value.

#ifndef ZELINTERCHANGEDATA_TESTS_SCREENTEXT_ITEMS_H
#define ZELINTERCHANGEDATA_TESTS_SCREENTEXT_ITEMS_H

#include "support/Checks.h"

#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

namespace ZelInterchangeData {

/// All that an item holds.
struct Shown {
    long long start = 0;
    long long duration = 0;
    std::string text = {};
    std::string image = {};
    unsigned long index = 0;
    unsigned long long offset = 0;
    unsigned long group = 0;
};

inline bool operator==(const Shown& a, const Shown& b)
{
    return std::tie(a.start, a.duration, a.text, a.image, a.index, a.offset, a.group) ==
           std::tie(b.start, b.duration, b.text, b.image, b.index, b.offset, b.group);
}

inline void PrintTo(const Shown& item, std::ostream* out)
{
    *out << "start " << item.start << " duration " << item.duration << " text '" << item.text
         << "' image '" << item.image << "' index " << item.index << " offset " << item.offset
         << " group " << item.group;
}

/// Makes @p item hold @p shown.
inline void fill(i_ZelDataScreenTextItem& item, const Shown& shown)
{
    EXPECT_EQ(ZelData_Ok, item.setText(shown.text));
    EXPECT_EQ(ZelData_Ok, item.setStart(shown.start));
    EXPECT_EQ(ZelData_Ok, item.setDuration(shown.duration));
    EXPECT_EQ(ZelData_Ok, item.setImageFile(shown.image));
    EXPECT_EQ(ZelData_Ok, item.setImageIndex(shown.index));
    EXPECT_EQ(ZelData_Ok, item.setImageOffset(shown.offset));
    EXPECT_EQ(ZelData_Ok, item.setGroupId(shown.group));
}

/// A new item that holds @p shown.
inline std::unique_ptr<i_ZelDataScreenTextItem> itemOf(const Shown& shown)
{
    auto item = make(ZelDataUtilities::createScreenTextItemData);
    fill(*item, shown);
    return item;
}

/// What @p item holds.
inline Shown contentsOf(const i_ZelDataScreenTextItem& item)
{
    Shown shown;
    EXPECT_EQ(ZelData_Ok, item.getText(shown.text));
    EXPECT_EQ(ZelData_Ok, item.getStart(shown.start));
    EXPECT_EQ(ZelData_Ok, item.getDuration(shown.duration));
    EXPECT_EQ(ZelData_Ok, item.getImageFile(shown.image));
    EXPECT_EQ(ZelData_Ok, item.getImageIndex(shown.index));
    EXPECT_EQ(ZelData_Ok, item.getImageOffset(shown.offset));
    EXPECT_EQ(ZelData_Ok, item.getGroupId(shown.group));
    return shown;
}

/// Adds @p items to @p screenText, in order.
inline void add(i_ZelDataScreenText& screenText, const std::vector<Shown>& items)
{
    for (const Shown& shown : items)
        EXPECT_EQ(ZelData_Ok, screenText.addScreenTextItem(*itemOf(shown)));
}

/// A new collection of @p items.
inline std::unique_ptr<i_ZelDataScreenText> screenTextOf(const std::vector<Shown>& items)
{
    auto screenText = make(ZelDataUtilities::createScreenTextData);
    add(*screenText, items);
    return screenText;
}

/// The items of @p screenText, in stored order.
inline std::vector<Shown> itemsOf(const i_ZelDataScreenText& screenText)
{
    std::vector<i_ZelDataScreenTextItem*> items;
    EXPECT_EQ(ZelData_Ok, screenText.getScreenTextItems(items));
    std::vector<Shown> all;
    for (i_ZelDataScreenTextItem* item : items) {
        const std::unique_ptr<i_ZelDataScreenTextItem> owned(item);
        all.push_back(contentsOf(*owned));
    }
    return all;
}

inline unsigned long frameRateOf(const i_ZelDataScreenText& screenText)
{
    unsigned long rate = 0;
    EXPECT_EQ(ZelData_Ok, screenText.getFrameRate(rate));
    return rate;
}

} // namespace ZelInterchangeData

#endif
