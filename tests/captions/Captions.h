/// @file
/// Captions in one line, and the contents of a caption and of a collection in one value.

#ifndef ZELINTERCHANGEDATA_TESTS_CAPTIONS_CAPTIONS_H
#define ZELINTERCHANGEDATA_TESTS_CAPTIONS_CAPTIONS_H

#include "support/Checks.h"

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

/// Makes @p item hold @p caption. A caption without a duration leaves the item's alone.
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

/// A new item that holds @p caption.
inline std::unique_ptr<i_ZelDataCaptionItem> itemOf(const Caption& caption)
{
    auto item = make(ZelDataUtilities::createCaptionItemData);
    fill(*item, caption);
    return item;
}

/// What @p item holds.
inline Caption contentsOf(const i_ZelDataCaptionItem& item)
{
    Caption caption;
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, item.getLanguageIDs(ids));
    for (const std::string& id : ids)
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(caption.texts[id], id));
    EXPECT_EQ(ZelData_Ok, item.getStart(caption.start));
    EXPECT_EQ(ZelData_Ok, item.getDuration(caption.duration));
    ZelAlignment_tags alignment = ZelAlignCenter;
    EXPECT_EQ(ZelData_Ok, item.getAlignment(alignment));
    caption.alignment = alignment;
    return caption;
}

/// Adds @p captions to @p collection, in order.
inline void add(i_ZelDataCaptions& collection, const std::vector<Caption>& captions)
{
    for (const Caption& caption : captions)
        EXPECT_EQ(ZelData_Ok, collection.addCaptionItem(*itemOf(caption)));
}

/// A new collection of @p captions.
inline std::unique_ptr<i_ZelDataCaptions> captionsOf(const std::vector<Caption>& captions)
{
    auto collection = make(ZelDataUtilities::createCaptionData);
    add(*collection, captions);
    return collection;
}

/// The items of @p collection, in stored order.
inline std::vector<Caption> itemsOf(const i_ZelDataCaptions& collection)
{
    std::vector<i_ZelDataCaptionItem*> items;
    EXPECT_EQ(ZelData_Ok, collection.getCaptionItems(items));
    std::vector<Caption> captions;
    for (i_ZelDataCaptionItem* item : items) {
        const std::unique_ptr<i_ZelDataCaptionItem> owned(item);
        captions.push_back(contentsOf(*owned));
    }
    return captions;
}

inline std::vector<std::string> languagesOf(const i_ZelDataCaptions& collection)
{
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, collection.getOrderedLanguageIDs(ids));
    return ids;
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
