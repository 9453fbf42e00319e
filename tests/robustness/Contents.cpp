#include "robustness/Contents.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace ZelInterchangeData {

namespace {

void put(std::ostream& out, const std::vector<std::string>& values)
{
    out << values.size() << " values:";
    for (const std::string& value : values)
        out << value << '|';
}

template <class Value>
void put(std::ostream& out, const Value& value)
{
    out << value << '|';
}

template <class Interface, class Base, class Value>
void field(std::ostream& out, const Interface& object,
           ZelDataResult_tags (Base::*get)(Value&) const)
{
    Value value{};
    EXPECT_EQ(ZelData_Ok, (object.*get)(value));
    put(out, value);
}

template <class Interface, class... Getters>
void fields(std::ostream& out, const Interface& object, Getters... getters)
{
    (field(out, object, getters), ...);
}

template <class Item>
void texts(std::ostream& out, const Item& item)
{
    std::vector<std::string> ids;
    EXPECT_EQ(ZelData_Ok, item.getLanguageIDs(ids));
    for (const std::string& id : ids) {
        std::string text;
        EXPECT_EQ(ZelData_Ok, item.getTextForLanguage(text, id));
        out << id << '=' << text << '|';
    }
}

template <class Collection, class Item>
void items(std::ostream& out, const Collection& collection,
           ZelDataResult_tags (Collection::*get)(std::vector<Item*>&) const)
{
    std::vector<Item*> all;
    EXPECT_EQ(ZelData_Ok, (collection.*get)(all));
    for (Item* item : all) {
        out << contentsOf(*item) << '\n';
        delete item;
    }
}

void color(std::ostream& out, const i_ZelDataCaptions& captions,
           ZelDataResult_tags (i_ZelDataCaptions::*get)(float&, float&, float&) const)
{
    float red = -1;
    float green = -1;
    float blue = -1;
    EXPECT_EQ(ZelData_Ok, (captions.*get)(red, green, blue));
    out << red << ' ' << green << ' ' << blue << '|';
}

} // namespace

std::string contentsOf(const i_ZelDataHeader& header)
{
    using H = i_ZelDataHeader;
    std::ostringstream out;
    fields(out, header, &H::getAppName, &H::getAppVersion, &H::getTitle, &H::getCreator,
           &H::getDescription, &H::getKeywords, &H::getIPodExplicit, &H::getVideoLength,
           &H::getVideoWidth, &H::getVideoHeight, &H::getContentNames, &H::getShowSearchBar,
           &H::getOrderedLanguageIDs);
    return out.str();
}

std::string contentsOf(const i_ZelDataCaptionItem& item)
{
    using I = i_ZelDataCaptionItem;
    std::ostringstream out;
    fields(out, item, &I::getStart, &I::getEnd, &I::getDuration, &I::getAlignment);
    texts(out, item);
    return out.str();
}

std::string contentsOf(const i_ZelDataCaptions& captions)
{
    using C = i_ZelDataCaptions;
    std::ostringstream out;
    fields(out, captions, &C::getFrameRate, &C::getFontFamily, &C::getFontSize,
           &C::getBackgroundOpacity, &C::getOrderedLanguageIDs);
    color(out, captions, &C::getForegroundColor);
    color(out, captions, &C::getBackgroundColor);
    items(out, captions, &C::getCaptionItems);
    return out.str();
}

std::string contentsOf(const i_ZelDataTocItem& item)
{
    using I = i_ZelDataTocItem;
    std::ostringstream out;
    fields(out, item, &I::getStart, &I::getImageFile, &I::getImageIndex, &I::getImageOffset);
    texts(out, item);
    return out.str();
}

std::string contentsOf(const i_ZelDataToc& toc)
{
    using T = i_ZelDataToc;
    std::ostringstream out;
    fields(out, toc, &T::getFrameRate, &T::getImageFile, &T::getOrderedLanguageIDs);
    items(out, toc, &T::getTocItems);
    return out.str();
}

std::string contentsOf(const i_ZelDataScreenTextItem& item)
{
    using I = i_ZelDataScreenTextItem;
    std::ostringstream out;
    fields(out, item, &I::getText, &I::getStart, &I::getEnd, &I::getDuration, &I::getImageFile,
           &I::getImageIndex, &I::getImageOffset, &I::getGroupId);
    return out.str();
}

std::string contentsOf(const i_ZelDataScreenText& screenText)
{
    using S = i_ZelDataScreenText;
    std::ostringstream out;
    fields(out, screenText, &S::getFrameRate);
    items(out, screenText, &S::getScreenTextItems);
    return out.str();
}

std::string contentsOf(const i_ZelDataFormatterBase& formatter)
{
    std::string written;
    const auto code = formatter.writeString(written, ZelDataFormat_Xmp, false);
    return std::to_string(code) + ' ' + dateMasked(written);
}

} // namespace ZelInterchangeData
