/// @file
/// See Describe.h.

#include "core/Describe.h"

#include <cstdint>
#include <cstring>
#include <memory>

namespace fuzz {

using namespace ZelInterchangeData;

namespace {

/// Reads the values of one object, one after another, and restores its last error at the end.
template <class Interface>
class Interview {
public:
    Interview(std::string& text, Interface& object)
        : text_(text), object_(object), lastError_(object.getLastError())
    {
        text_ += " {";
    }
    Interview(const Interview&) = delete;
    Interview& operator=(const Interview&) = delete;
    ~Interview() { object_.setLastError(lastError_); }

    void end()
    {
        describe(text_, static_cast<std::uint32_t>(lastError_));
        text_ += " }";
    }

    template <class Base, class... Values>
    void ask(ZelDataResult_tags (Base::*getter)(Values&...) const)
    {
        std::tuple<Values...> values{};
        std::apply([&](auto&... value) { note((object_.*getter)(value...)); }, values);
        std::apply([&](auto&... value) { (describe(text_, value), ...); }, values);
    }
    template <class Base>
    void ask(ZelDataResult_tags (Base::*getter)(unsigned long&))
    {
        unsigned long count = 0;
        note((object_.*getter)(count));
        describe(text_, count);
    }
    void note(ZelDataResult_tags code) { describe(text_, static_cast<std::uint32_t>(code)); }

    template <class Item>
    void askForItems(ZelDataResult_tags (Interface::*getter)(std::vector<Item*>&) const)
    {
        std::vector<Item*> items;
        note((object_.*getter)(items));
        for (Item* item : items) {
            const std::unique_ptr<Item> owned(item);
            describe(text_, *item);
        }
    }

private:
    std::string& text_;
    Interface& object_;
    ZelDataResult_tags lastError_;
};

template <class Interface>
void askForLanguages(Interview<Interface>& interview)
{
    interview.ask(&Interface::getOrderedLanguageIDs);
    interview.ask(&Interface::getLanguageDisplayNames);
    interview.ask(&Interface::getLanguageNativeDisplayNames);
}

template <class Item>
void askForTexts(std::string& text, Interview<Item>& interview, Item& item)
{
    std::vector<std::string> ids;
    interview.note(item.getLanguageIDs(ids));
    for (const std::string& id : ids) {
        std::string value;
        interview.note(item.getTextForLanguage(value, id));
        describe(text, id);
        describe(text, value);
    }
}

} // namespace

void describe(std::string& text, const std::string& value)
{
    text += " \"" + value + "\"";
}

void describe(std::string& text, const std::vector<std::string>& values)
{
    text += " [";
    for (const std::string& value : values)
        describe(text, value);
    text += " ]";
}

void describe(std::string& text, float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    describe(text, bits);
}

void describe(std::string& text, ZelAlignment_tags value)
{
    describe(text, static_cast<std::uint32_t>(value));
}

void describe(std::string& text, const ZelDataFinding& finding)
{
    for (const auto tag :
         {static_cast<std::uint32_t>(finding.kind), static_cast<std::uint32_t>(finding.subject)})
        describe(text, tag);
    describe(text, finding.item);
    describe(text, finding.start);
    describe(text, finding.language);
    describe(text, finding.property);
    describe(text, finding.component);
    describe(text, finding.value);
    describe(text, finding.limit);
    describe(text, finding.laterItem);
    describe(text, finding.laterStart);
}

void describe(std::string& text, const std::vector<ZelDataFinding>& findings)
{
    for (const ZelDataFinding& finding : findings) {
        text += " finding";
        describe(text, finding);
    }
}

void describe(std::string& text, i_ZelDataHeader& header)
{
    using I = i_ZelDataHeader;
    Interview interview(text, header);
    interview.note(header.isValid());
    askForLanguages(interview);
    for (const auto getter :
         {&I::getAppName, &I::getAppVersion, &I::getTitle, &I::getCreator, &I::getDescription})
        interview.ask(getter);
    for (const auto getter : {&I::getKeywords, &I::getContentNames})
        interview.ask(getter);
    for (const auto getter : {&I::getIPodExplicit, &I::getShowSearchBar})
        interview.ask(getter);
    for (const auto getter : {&I::getVideoLength, &I::getVideoWidth, &I::getVideoHeight})
        interview.ask(getter);
    interview.end();
}

void describe(std::string& text, i_ZelDataCaptionItem& item)
{
    using I = i_ZelDataCaptionItem;
    Interview interview(text, item);
    interview.note(item.isValid(true));
    askForTexts(text, interview, item);
    for (const auto getter : {&I::getStart, &I::getEnd, &I::getDuration})
        interview.ask(getter);
    interview.ask(&I::getAlignment);
    interview.end();
}

void describe(std::string& text, i_ZelDataCaptions& captions)
{
    using I = i_ZelDataCaptions;
    Interview interview(text, captions);
    interview.note(captions.isValid(true));
    askForLanguages(interview);
    interview.ask(&I::getFrameRate);
    interview.ask(&I::getFontFamily);
    interview.ask(&I::getFontSize);
    interview.ask(&I::getForegroundColor);
    interview.ask(&I::getBackgroundColor);
    interview.ask(&I::getBackgroundOpacity);
    interview.ask(&I::getCaptionItemCount);
    interview.askForItems(&I::getCaptionItems);
    interview.end();
}

void describe(std::string& text, i_ZelDataTocItem& item)
{
    using I = i_ZelDataTocItem;
    Interview interview(text, item);
    interview.note(item.isValid(true));
    askForTexts(text, interview, item);
    interview.ask(&I::getStart);
    interview.ask(&I::getImageFile);
    interview.ask(&I::getImageIndex);
    interview.ask(&I::getImageOffset);
    interview.end();
}

void describe(std::string& text, i_ZelDataToc& toc)
{
    using I = i_ZelDataToc;
    Interview interview(text, toc);
    interview.note(toc.isValid(true));
    askForLanguages(interview);
    interview.ask(&I::getFrameRate);
    interview.ask(&I::getImageFile);
    interview.ask(&I::getTocItemCount);
    interview.askForItems(&I::getTocItems);
    interview.end();
}

void describe(std::string& text, i_ZelDataScreenTextItem& item)
{
    using I = i_ZelDataScreenTextItem;
    Interview interview(text, item);
    interview.note(item.isValid(true));
    interview.ask(&I::getText);
    for (const auto getter : {&I::getStart, &I::getEnd, &I::getDuration})
        interview.ask(getter);
    interview.ask(&I::getImageFile);
    interview.ask(&I::getImageIndex);
    interview.ask(&I::getImageOffset);
    interview.ask(&I::getGroupId);
    interview.end();
}

void describe(std::string& text, i_ZelDataScreenText& screenText)
{
    using I = i_ZelDataScreenText;
    Interview interview(text, screenText);
    interview.note(screenText.isValid(true));
    interview.ask(&I::getFrameRate);
    interview.ask(&I::getScreenTextItemCount);
    interview.askForItems(&I::getScreenTextItems);
    interview.end();
}

void describe(std::string& text, i_ZelDataLanguage& languages)
{
    Interview interview(text, languages);
    askForLanguages(interview);
    interview.end();
}

void describe(std::string& text, i_ZelDataFormatterBase& formatter)
{
    Interview interview(text, formatter);
    std::string packet;
    interview.note(formatter.writeString(packet, ZelDataFormat_Xmp, false));
    describe(text, withoutDates(std::move(packet)));
    interview.end();
}

std::string withoutDates(std::string text)
{
    const std::string before = "dc:date=\"";
    for (std::size_t at = text.find(before); at != std::string::npos; at = text.find(before, at)) {
        at += before.size();
        text.erase(at, text.find('"', at) - at);
    }
    return text;
}

} // namespace fuzz
