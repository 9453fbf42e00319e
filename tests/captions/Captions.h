/// @file
/// Captions from plain values, and back.

#ifndef ZELINTERCHANGEDATA_TESTS_CAPTIONS_CAPTIONS_H
#define ZELINTERCHANGEDATA_TESTS_CAPTIONS_CAPTIONS_H

#include "captions/ZelDataCaptionItem.h"
#include "captions/ZelDataCaptions.h"
#include "support/Items.h"

#include <array>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

namespace ZelInterchangeData {

/// All that a caption item holds.
struct Caption {
    long long start = 0;
    long long duration = 0;
    std::map<std::string, std::string> texts = {};
    unsigned alignment = 0x01;
};

inline bool operator==(const Caption& a, const Caption& b)
{
    return std::tie(a.start, a.duration, a.texts, a.alignment) ==
           std::tie(b.start, b.duration, b.texts, b.alignment);
}

inline void PrintTo(const Caption& caption, std::ostream* out)
{
    *out << "start " << caption.start << " duration " << caption.duration << ' '
         << testing::PrintToString(caption.texts) << " alignment " << caption.alignment;
}

/// Fills @p item with @p caption. A caption without a duration leaves the item's alone.
inline void fill(i_ZelDataCaptionItem& item, const Caption& caption)
{
    for (const auto& [id, text] : caption.texts)
        EXPECT_EQ(ZelData_Ok, item.setTextForLanguage(text, id));
    EXPECT_EQ(ZelData_Ok, item.setStart(caption.start));
    if (caption.duration != 0) {
        EXPECT_EQ(ZelData_Ok, item.setDuration(caption.duration));
    }
    EXPECT_EQ(ZelData_Ok, item.setAlignment(static_cast<ZelAlignment_tags>(caption.alignment)));
}

/// What @p item holds.
inline Caption contentsOf(const i_ZelDataCaptionItem& item)
{
    Caption caption;
    caption.texts = textsOf(item);
    EXPECT_EQ(ZelData_Ok, item.getStart(caption.start));
    EXPECT_EQ(ZelData_Ok, item.getDuration(caption.duration));
    ZelAlignment_tags alignment = ZelAlignCenter;
    EXPECT_EQ(ZelData_Ok, item.getAlignment(alignment));
    caption.alignment = alignment;
    return caption;
}

/// Captions under the names that all collections share.
struct CaptionKind {
    static constexpr auto name = "Captions";
    using Values = Caption;
    using Item = i_ZelDataCaptionItem;
    using OwnItem = ZelDataCaptionItem;
    using Data = i_ZelDataCaptions;
    using Own = ZelDataCaptions;
    using Formatter = i_ZelDataCaptionFormatter;

    static constexpr auto makeItem = &ZelDataUtilities::createCaptionItemData;
    static constexpr auto makeData = &ZelDataUtilities::createCaptionData;
    static constexpr auto makeFormatter = &ZelDataUtilities::createCaptionFormatter;
    static constexpr auto create = &Data::createCaptionItem;
    static constexpr auto add = &Data::addCaptionItem;
    static constexpr auto count = &Data::getCaptionItemCount;
    static constexpr auto at = &Data::getCaptionItemAt;
    static constexpr auto all = &Data::getCaptionItems;
    static constexpr auto removeAt = &Data::removeCaptionItemAt;
    static constexpr auto removeLanguage = &Data::removeCaptionItemsForLanguage;
    static constexpr auto clear = &Data::clearCaptionItems;
    static constexpr auto order = &Own::orderCaptions;
    static constexpr auto makeConsistent = &Data::makeCaptionsConsistent;
    static constexpr auto setData = &Formatter::setCaptions;

    /// A collection that makes its items with the given function, if there is one.
    struct Made : Own {
        Maker<Item> maker;
        ZelDataResult_tags createCaptionItem(Item** out) const override
        {
            return maker ? maker(out) : Own::createCaptionItem(out);
        }
    };
};

inline std::unique_ptr<i_ZelDataCaptionItem> itemOf(const Caption& caption)
{
    return newItem<CaptionKind>(caption);
}

inline void add(i_ZelDataCaptions& collection, const std::vector<Caption>& captions)
{
    addItems<CaptionKind>(collection, captions);
}

inline std::unique_ptr<i_ZelDataCaptions> captionsOf(const std::vector<Caption>& captions)
{
    return newCollection<CaptionKind>(captions);
}

inline std::vector<Caption> itemsOf(const i_ZelDataCaptions& collection)
{
    return valuesOf<CaptionKind>(collection);
}

/// All of the styling. The defaults are those of a new collection.
struct Style {
    unsigned long frameRate = 1000;
    std::string fontFamily = "Helvetica";
    unsigned long fontSize = 20;
    std::array<float, 3> foreground = {1.0F, 1.0F, 1.0F};
    std::array<float, 3> background = {0.0F, 0.0F, 0.0F};
    float opacity = 0.6F;
};

inline bool operator==(const Style& a, const Style& b)
{
    return std::tie(a.frameRate, a.fontFamily, a.fontSize, a.foreground, a.background, a.opacity) ==
           std::tie(b.frameRate, b.fontFamily, b.fontSize, b.foreground, b.background, b.opacity);
}

inline void PrintTo(const Style& style, std::ostream* out)
{
    *out << "rate " << style.frameRate << " font '" << style.fontFamily << "' size "
         << style.fontSize << " foreground " << testing::PrintToString(style.foreground)
         << " background " << testing::PrintToString(style.background) << " opacity "
         << style.opacity;
}

/// Gives @p collection the styling @p style.
inline void dress(i_ZelDataCaptions& collection, const Style& style)
{
    const auto& [red, green, blue] = style.foreground;
    const auto& [backRed, backGreen, backBlue] = style.background;
    EXPECT_EQ(ZelData_Ok, collection.setFrameRate(style.frameRate));
    EXPECT_EQ(ZelData_Ok, collection.setFontFamily(style.fontFamily));
    EXPECT_EQ(ZelData_Ok, collection.setFontSize(style.fontSize));
    EXPECT_EQ(ZelData_Ok, collection.setForegroundColor(red, green, blue));
    EXPECT_EQ(ZelData_Ok, collection.setBackgroundColor(backRed, backGreen, backBlue));
    EXPECT_EQ(ZelData_Ok, collection.setBackgroundOpacity(style.opacity));
}

/// The styling of @p collection.
inline Style styleOf(const i_ZelDataCaptions& collection)
{
    Style style;
    auto& [red, green, blue] = style.foreground;
    auto& [backRed, backGreen, backBlue] = style.background;
    EXPECT_EQ(ZelData_Ok, collection.getFrameRate(style.frameRate));
    EXPECT_EQ(ZelData_Ok, collection.getFontFamily(style.fontFamily));
    EXPECT_EQ(ZelData_Ok, collection.getFontSize(style.fontSize));
    EXPECT_EQ(ZelData_Ok, collection.getForegroundColor(red, green, blue));
    EXPECT_EQ(ZelData_Ok, collection.getBackgroundColor(backRed, backGreen, backBlue));
    EXPECT_EQ(ZelData_Ok, collection.getBackgroundOpacity(style.opacity));
    return style;
}

} // namespace ZelInterchangeData

#endif
