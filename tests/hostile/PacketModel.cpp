#include "hostile/PacketModel.h"

#include "hostile/CodePoints.h"
#include "support/Checks.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace ZelInterchangeData {

namespace {

using Strings = std::vector<std::string>;

template <class Item>
void setTexts(Item& item, const TextsByLanguage& texts, Look look)
{
    for (const auto& [language, text] : texts)
        look({item.setTextForLanguage(text, language)});
}

template <class Item>
void setImage(Item& item, const ImageModel& image, Look look)
{
    look({item.setImageFile(image.file), item.setImageIndex(image.index),
          item.setImageOffset(image.offset)});
}

/// The value of an attribute as a reader gives it: a line end counts as one character, and all white
/// space becomes spaces.
std::string inAttribute(const std::string& text)
{
    std::string read;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isSecond = at > 0 && text[at] == '\n' && text[at - 1] == '\r';
        const bool isSpace = text[at] == '\t' || text[at] == '\r' || text[at] == '\n';
        if (!isSecond) read += isSpace ? ' ' : text[at];
    }
    return read;
}

std::string stripped(const std::string& text)
{
    std::string left;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 32 || c == '\n') left += c;
    }
    return left;
}

const char* word(bool flag)
{
    return flag ? "true" : "false";
}

std::string attribute(const char* name, const std::string& value)
{
    return std::string(name) + '=' + inAttribute(value);
}

/// The character that @p reference, without its `&` and `;`, stands for.
std::string referred(const std::string& reference)
{
    static const std::map<std::string, std::string> entities = {
        {"quot", "\""}, {"amp", "&"}, {"apos", "'"}, {"lt", "<"}, {"gt", ">"}};
    const auto entity = entities.find(reference);
    if (entity != entities.end()) return entity->second;
    if (reference.empty()) return {}; // in a packet that no reader takes
    const bool isHexadecimal = reference.substr(0, 2) == "#x";
    const char* const digits = reference.c_str() + (isHexadecimal ? 2 : 1);
    return encoded(
        static_cast<std::uint32_t>(std::strtoul(digits, nullptr, isHexadecimal ? 16 : 10)));
}

/// An attribute whose value is written as given, with references only if @p value has some.
std::string given(const char* name, const std::string& value)
{
    std::string read;
    std::string rest = inAttribute(value);
    for (std::size_t at = rest.find('&'); at != std::string::npos; at = rest.find('&')) {
        const std::size_t end = std::min(rest.find(';', at), rest.size() - 1);
        read += rest.substr(0, at) + referred(rest.substr(at + 1, end - at - 1));
        rest.erase(0, end + 1);
    }
    return std::string(name) + '=' + read + rest;
}

/// A colour component as a byte.
std::string colorByte(const char* name, float component)
{
    const double scaled = static_cast<double>(component) * 255.0;
    return std::string(name) + '=' +
           std::to_string(std::isnan(scaled) ? 0 : static_cast<int>(scaled));
}

void appendColor(Record& record, const ColorModel& color)
{
    record.insert(record.end(),
                  {colorByte("xmpG:red", color.red), colorByte("xmpG:green", color.green),
                   colorByte("xmpG:blue", color.blue), "xmpG:mode=RGB"});
}

std::string fraction(const char* name, float value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%s=%g", name, static_cast<double>(value));
    return text;
}

std::string vertical(ZelAlignment_tags alignment)
{
    return (alignment & ZelAlignBottom) != 0 ? "bottom"
                                             : ((alignment & ZelAlignTop) != 0 ? "top" : "center");
}

std::string horizontal(ZelAlignment_tags alignment)
{
    return (alignment & ZelAlignLeft) != 0
               ? "left"
               : ((alignment & ZelAlignRight) != 0 ? "right" : "center");
}

template <class Number>
std::string number(const char* name, Number value)
{
    return std::string(name) + '=' + std::to_string(value);
}

/// All languages of the items: those of each in ascending order, each once.
template <class Item>
Strings languagesOf(const std::vector<Item>& items)
{
    Strings languages;
    for (const Item& item : items) {
        for (const auto& [language, text] : item.texts) {
            if (std::find(languages.begin(), languages.end(), language) == languages.end())
                languages.push_back(language);
        }
    }
    return languages;
}

std::string textIn(const std::string& language, const TextsByLanguage& texts)
{
    const auto text = texts.find(language);
    return text == texts.end() ? std::string() : text->second;
}

std::string joined(const Strings& words)
{
    std::string text;
    for (const std::string& next : words)
        text += (&next == words.data() ? "" : ", ") + next;
    return text;
}

void appendLanguages(Record& record, const PacketModel& model)
{
    Strings languages = languagesOf(model.captions);
    if (languages.empty()) languages = {"en-US"};
    for (const std::string& language : languages) {
        record.push_back(given("xml:lang", language));
        record.push_back("text=" + languageNames().at(language.substr(0, 2)));
    }
}

Record headerRecord(const PacketModel& model)
{
    Record record = {"zel:version=1.1.0",
                     attribute("dc:title", model.title),
                     given("dc:creator", model.creator),
                     attribute("dc:Description", model.description),
                     attribute("dc:source", model.appName + " - " + model.appVersion),
                     attribute("zelDM:iPodExplicit", word(model.isExplicit)),
                     attribute("zelDM:keywords", joined(model.keywords)),
                     "zelDM:thumbnail=",
                     "zelDM:firstFrame=",
                     "xmpDM:scale=1/1000",
                     number("xmpDM:value", model.length),
                     "stDim:unit=pixel",
                     number("stDim:w", model.width),
                     number("stDim:h", model.height)};
    appendLanguages(record, model);
    record.insert(record.end(), {"xmpDM:name=qmplayer", "xmpDM:name=showsearch",
                                 attribute("xmpDM:value", word(model.showsSearch))});
    for (std::size_t index = 0; index < model.contentNames.size(); ++index) {
        record.push_back(number("xmpDM:name", index));
        record.push_back(attribute("xmpDM:value", model.contentNames[index]));
    }
    return record;
}

TrackReading captionTrack(const PacketModel& model)
{
    TrackReading track = {
        {"xmpDM:trackType=Caption", "xmpDM:frameRate=f" + std::to_string(model.captionRate),
         "xmpDM:trackName=Captioning", given("stFnt:fontFamily", model.fontFamily),
         number("zelDM:fontSize", model.fontSize), fraction("zelDM:bgOpacity", model.opacity)},
        {}};
    appendColor(track.head, model.foreground);
    appendColor(track.head, model.background);
    for (const CaptionModel& caption : model.captions) {
        Record& record = track.items.emplace_back();
        record = {number("xmpDM:startTime", caption.start),
                  number("xmpDM:duration", caption.duration),
                  attribute("zelDM:valign", vertical(caption.alignment)),
                  attribute("zelDM:halign", horizontal(caption.alignment))};
        for (const std::string& language : languagesOf(model.captions)) {
            const std::string text = stripped(textIn(language, caption.texts));
            record.push_back(given("xml:lang", language));
            record.push_back("text=" + (text.empty() ? "{\\rtf1 }" : text));
        }
    }
    return track;
}

TrackReading tocTrack(const PacketModel& model)
{
    TrackReading track = {{"xmpDM:trackType=TableOfContents", "xmpDM:trackName=Table of Contents",
                           "xmpDM:frameRate=f1000", attribute("zelDM:image", model.tableImage)},
                          {}};
    const Strings languages = languagesOf(model.entries);
    for (const EntryModel& entry : model.entries) {
        const std::string title = languages.empty() ? "" : textIn(languages.front(), entry.texts);
        track.items.push_back({attribute("xmpDM:name", stripped(title)),
                               number("xmpDM:startTime", entry.start),
                               attribute("zelDM:image", entry.image.file),
                               number("zelDM:imageindex", entry.image.index),
                               number("zelDM:imageoffset", entry.image.offset)});
    }
    return track;
}

TrackReading screenTextTrack(const PacketModel& model)
{
    TrackReading track = {{"xmpDM:trackType=ScreenText",
                           "xmpDM:frameRate=f" + std::to_string(model.screenTextRate),
                           "xmpDM:trackName=Screen Text"},
                          {}};
    for (const ScreenTextModel& text : model.screenTexts) {
        track.items.push_back(
            {attribute("xmpDM:name", stripped(text.text)), number("xmpDM:startTime", text.start),
             number("xmpDM:duration", text.duration), given("xmpDM:image", text.image.file),
             number("zelDM:imageindex", text.image.index),
             number("zelDM:imageoffset", text.image.offset), number("zelDM:tocEntry", text.group)});
    }
    return track;
}

} // namespace

const std::map<std::string, std::string>& languageNames()
{
    static const std::map<std::string, std::string> names = {
        {"ar", "Arabic"}, {"de", "German"},   {"en", "English"}, {"fr", "French"},
        {"he", "Hebrew"}, {"ja", "Japanese"}, {"EN", "English"}, {"sw", "Swahili"}};
    return names;
}

void expectOk(std::initializer_list<ZelDataResult_tags> codes)
{
    for (const auto code : codes)
        EXPECT_EQ(ZelData_Ok, code);
}

std::unique_ptr<i_ZelDataHeader> headerOf(const PacketModel& model, Look look)
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    look({header->setTitle(model.title), header->setCreator(model.creator),
          header->setDescription(model.description), header->setAppName(model.appName),
          header->setAppVersion(model.appVersion), header->setKeywords(model.keywords),
          header->setIPodExplicit(model.isExplicit), header->setVideoLength(model.length),
          header->setVideoWidth(model.width), header->setVideoHeight(model.height),
          header->setShowSearchBar(model.showsSearch)});
    for (const std::string& name : model.contentNames)
        look({header->addContentName(name)});
    return header;
}

std::unique_ptr<i_ZelDataCaptions> captionsOf(const PacketModel& model, Look look)
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    const auto& [red, green, blue] = model.foreground;
    const auto& [backRed, backGreen, backBlue] = model.background;
    look({captions->setFontFamily(model.fontFamily), captions->setFontSize(model.fontSize),
          captions->setFrameRate(model.captionRate), captions->setForegroundColor(red, green, blue),
          captions->setBackgroundColor(backRed, backGreen, backBlue),
          captions->setBackgroundOpacity(model.opacity)});
    for (const CaptionModel& caption : model.captions) {
        const auto item = make(&ZelDataUtilities::createCaptionItemData);
        setTexts(*item, caption.texts, look);
        look({item->setStart(caption.start), item->setDuration(caption.duration),
              item->setAlignment(caption.alignment), captions->addCaptionItem(*item)});
    }
    return captions;
}

std::unique_ptr<i_ZelDataToc> tocOf(const PacketModel& model, Look look)
{
    auto toc = make(&ZelDataUtilities::createTocData);
    look({toc->setImageFile(model.tableImage)});
    for (const EntryModel& entry : model.entries) {
        const auto item = make(&ZelDataUtilities::createTocItemData);
        setTexts(*item, entry.texts, look);
        setImage(*item, entry.image, look);
        look({item->setStart(entry.start), toc->addTocItem(*item)});
    }
    return toc;
}

std::unique_ptr<i_ZelDataScreenText> screenTextOf(const PacketModel& model, Look look)
{
    auto screenText = make(&ZelDataUtilities::createScreenTextData);
    look({screenText->setFrameRate(model.screenTextRate)});
    for (const ScreenTextModel& text : model.screenTexts) {
        const auto item = make(&ZelDataUtilities::createScreenTextItemData);
        setImage(*item, text.image, look);
        look({item->setText(text.text), item->setStart(text.start),
              item->setDuration(text.duration), item->setGroupId(text.group),
              screenText->addScreenTextItem(*item)});
    }
    return screenText;
}

std::unique_ptr<i_ZelInterchangeDataCore> documentOf(const PacketModel& model, Look look)
{
    std::unique_ptr<i_ZelInterchangeDataCore> document(ZELDataCreator::createInterchangeData());
    if (model.hasHeader) look({document->setDataHeader(*headerOf(model, look))});
    if (model.hasCaptions) look({document->setDataCaptions(*captionsOf(model, look))});
    if (model.hasToc) look({document->setDataToc(*tocOf(model, look))});
    if (model.hasScreenText) look({document->setDataScreenText(*screenTextOf(model, look))});
    return document;
}

std::string packetOf(const PacketModel& model)
{
    std::string packet;
    expectOk({documentOf(model, expectOk)->writeString(packet, ZelDataFormat_Xmp, false)});
    return packet;
}

PacketReading expectedOf(const PacketModel& model)
{
    PacketReading expected;
    expected.header = headerRecord(model);
    for (const TrackReading& track :
         {captionTrack(model), tocTrack(model), screenTextTrack(model)}) {
        if (!track.items.empty()) expected.tracks.push_back(track);
    }
    return expected;
}

} // namespace ZelInterchangeData
