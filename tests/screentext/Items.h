/// @file
/// Screen-text items from plain values, and back.

#ifndef ZELINTERCHANGEDATA_TESTS_SCREENTEXT_ITEMS_H
#define ZELINTERCHANGEDATA_TESTS_SCREENTEXT_ITEMS_H

#include "screentext/ZelDataScreenText.h"
#include "screentext/ZelDataScreenTextItem.h"
#include "support/Items.h"

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

/// Fills @p item with @p shown.
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

/// Screen text under the names that all collections share.
struct ScreenTextKind {
    static constexpr auto name = "ScreenText";
    using Values = Shown;
    using Item = i_ZelDataScreenTextItem;
    using OwnItem = ZelDataScreenTextItem;
    using Data = i_ZelDataScreenText;
    using Own = ZelDataScreenText;
    using Formatter = i_ZelDataScreenTextFormatter;

    static constexpr auto makeItem = &ZelDataUtilities::createScreenTextItemData;
    static constexpr auto makeData = &ZelDataUtilities::createScreenTextData;
    static constexpr auto makeFormatter = &ZelDataUtilities::createScreenTextFormatter;
    static constexpr auto create = &Data::createScreenTextItem;
    static constexpr auto add = &Data::addScreenTextItem;
    static constexpr auto count = &Data::getScreenTextItemCount;
    static constexpr auto at = &Data::getScreenTextItemAt;
    static constexpr auto all = &Data::getScreenTextItems;
    static constexpr auto removeAt = &Data::removeScreenTextItemAt;
    static constexpr auto clear = &Data::clearScreenTextItems;
    static constexpr auto order = &Own::orderScreenTextItems;
    static constexpr auto makeConsistent = &Data::makeScreenTextConsistent;
    static constexpr auto setData = &Formatter::setScreenText;

    /// A collection that makes its items with the given function, if there is one.
    struct Made : Own {
        Maker<Item> maker;
        ZelDataResult_tags createScreenTextItem(Item** out) const override
        {
            return maker ? maker(out) : Own::createScreenTextItem(out);
        }
    };
};

inline std::unique_ptr<i_ZelDataScreenTextItem> itemOf(const Shown& shown)
{
    return newItem<ScreenTextKind>(shown);
}

inline void add(i_ZelDataScreenText& screenText, const std::vector<Shown>& items)
{
    addItems<ScreenTextKind>(screenText, items);
}

inline std::unique_ptr<i_ZelDataScreenText> screenTextOf(const std::vector<Shown>& items)
{
    return newCollection<ScreenTextKind>(items);
}

inline std::vector<Shown> itemsOf(const i_ZelDataScreenText& screenText)
{
    return valuesOf<ScreenTextKind>(screenText);
}

} // namespace ZelInterchangeData

#endif
