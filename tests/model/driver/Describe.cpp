#include "Describe.h"

#include "Script.h"

#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataScreenTextItem.h"
#include "ZelInterchangeData/i_ZelDataTocItem.h"

#include <vector>

namespace model {

using namespace ZelInterchangeData;

namespace {

/// Ignores the code of a getter: if it fails, the value that it leaves shows it.
void goOn(ZelDataResult_tags /*code*/) {}

template <class I, class T>
void add(std::string& out, const I& item, ZelDataResult_tags (I::*getter)(T&) const)
{
    T value{};
    goOn((item.*getter)(value));
    out += " " + shown(value);
}

template <class I>
void addTexts(std::string& out, const I& item)
{
    std::vector<std::string> languages;
    goOn(item.getLanguageIDs(languages));
    for (const std::string& language : languages) {
        std::string text;
        goOn(item.getTextForLanguage(text, language));
        out += " " + shown(language) + " " + shown(text);
    }
}

void addAll(std::string& out, const i_ZelDataCaptionItem& item)
{
    add(out, item, &i_ZelDataCaptionItem::getStart);
    add(out, item, &i_ZelDataCaptionItem::getEnd);
    add(out, item, &i_ZelDataCaptionItem::getDuration);
    add(out, item, &i_ZelDataCaptionItem::getAlignment);
    addTexts(out, item);
}

void addAll(std::string& out, const i_ZelDataTocItem& item)
{
    add(out, item, &i_ZelDataTocItem::getStart);
    add(out, item, &i_ZelDataTocItem::getImageFile);
    add(out, item, &i_ZelDataTocItem::getImageIndex);
    add(out, item, &i_ZelDataTocItem::getImageOffset);
    addTexts(out, item);
}

void addAll(std::string& out, const i_ZelDataScreenTextItem& item)
{
    add(out, item, &i_ZelDataScreenTextItem::getText);
    add(out, item, &i_ZelDataScreenTextItem::getStart);
    add(out, item, &i_ZelDataScreenTextItem::getDuration);
    add(out, item, &i_ZelDataScreenTextItem::getImageFile);
    add(out, item, &i_ZelDataScreenTextItem::getImageIndex);
    add(out, item, &i_ZelDataScreenTextItem::getImageOffset);
    add(out, item, &i_ZelDataScreenTextItem::getGroupId);
    add(out, item, &i_ZelDataScreenTextItem::getEnd);
}

template <class I>
std::string describedBy(const I& item)
{
    try {
        std::string out = "(" + hexadecimal(item.getLastError());
        addAll(out, item);
        return out + ")";
    } catch (...) {
        return "(throws)";
    }
}

} // namespace

std::string described(const i_ZelDataCaptionItem& item)
{
    return describedBy(item);
}

std::string described(const i_ZelDataTocItem& item)
{
    return describedBy(item);
}

std::string described(const i_ZelDataScreenTextItem& item)
{
    return describedBy(item);
}

} // namespace model
