#include "hostile/PacketModel.h"

#include "support/Checks.h"

#include <algorithm>
#include <initializer_list>
#include <memory>

namespace ZelInterchangeData {

namespace {

using Strings = std::vector<std::string>;

void expectOk(std::initializer_list<ZelDataResult_tags> codes)
{
    for (const auto code : codes)
        EXPECT_EQ(ZelData_Ok, code);
}

std::unique_ptr<i_ZelDataHeader> headerOf(const PacketModel& model)
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    expectOk({header->setTitle(model.title), header->setCreator(model.creator),
              header->setDescription(model.description), header->setAppName(model.appName),
              header->setAppVersion(model.appVersion), header->setKeywords(model.keywords),
              header->setIPodExplicit(model.isExplicit), header->setVideoLength(model.length),
              header->setVideoWidth(model.width), header->setVideoHeight(model.height),
              header->setShowSearchBar(model.showsSearch)});
    for (const std::string& name : model.contentNames)
        EXPECT_EQ(ZelData_Ok, header->addContentName(name));
    return header;
}

template <class Item>
void setTexts(Item& item, const TextsByLanguage& texts)
{
    for (const auto& [language, text] : texts)
        EXPECT_EQ(ZelData_Ok, item.setTextForLanguage(text, language));
}

template <class Item>
void setImage(Item& item, const ImageModel& image)
{
    expectOk({item.setImageFile(image.file), item.setImageIndex(image.index),
              item.setImageOffset(image.offset)});
}

std::unique_ptr<i_ZelDataCaptions> captionsOf(const PacketModel& model)
{
    auto captions = make(&ZelDataUtilities::createCaptionData);
    expectOk({captions->setFontFamily(model.fontFamily), captions->setFontSize(model.fontSize),
              captions->setFrameRate(model.captionRate),
              captions->setForegroundColor(1.0F, 0.5F, 0.0F),
              captions->setBackgroundOpacity(0.25F)});
    for (const CaptionModel& caption : model.captions) {
        const auto item = make(&ZelDataUtilities::createCaptionItemData);
        setTexts(*item, caption.texts);
        expectOk({item->setStart(caption.start), item->setDuration(caption.duration),
                  item->setAlignment(caption.isAtTop ? ZelAlignTop : ZelAlignBottom),
                  captions->addCaptionItem(*item)});
    }
    return captions;
}

std::unique_ptr<i_ZelDataToc> tocOf(const PacketModel& model)
{
    auto toc = make(&ZelDataUtilities::createTocData);
    EXPECT_EQ(ZelData_Ok, toc->setImageFile(model.tableImage));
    for (const EntryModel& entry : model.entries) {
        const auto item = make(&ZelDataUtilities::createTocItemData);
        setTexts(*item, entry.texts);
        setImage(*item, entry.image);
        expectOk({item->setStart(entry.start), toc->addTocItem(*item)});
    }
    return toc;
}

std::unique_ptr<i_ZelDataScreenText> screenTextOf(const PacketModel& model)
{
    auto screenText = make(&ZelDataUtilities::createScreenTextData);
    EXPECT_EQ(ZelData_Ok, screenText->setFrameRate(model.screenTextRate));
    for (const ScreenTextModel& text : model.screenTexts) {
        const auto item = make(&ZelDataUtilities::createScreenTextItemData);
        setImage(*item, text.image);
        expectOk({item->setText(text.text), item->setStart(text.start),
                  item->setDuration(text.duration), item->setGroupId(text.group),
                  screenText->addScreenTextItem(*item)});
    }
    return screenText;
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
        record.push_back(attribute("xml:lang", language));
        record.push_back("text=" + languageNames().at(language.substr(0, 2)));
    }
}

Record headerRecord(const PacketModel& model)
{
    Record record = {"zel:version=1.1.0",
                     attribute("dc:title", model.title),
                     attribute("dc:creator", model.creator),
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
         "xmpDM:trackName=Captioning", attribute("stFnt:fontFamily", model.fontFamily),
         number("zelDM:fontSize", model.fontSize), "zelDM:bgOpacity=0.25", "xmpG:red=255",
         "xmpG:green=127", "xmpG:blue=0", "xmpG:mode=RGB", "xmpG:red=0", "xmpG:green=0",
         "xmpG:blue=0", "xmpG:mode=RGB"},
        {}};
    for (const CaptionModel& caption : model.captions) {
        Record& record = track.items.emplace_back();
        record = {
            number("xmpDM:startTime", caption.start), number("xmpDM:duration", caption.duration),
            attribute("zelDM:valign", caption.isAtTop ? "top" : "bottom"), "zelDM:halign=center"};
        for (const std::string& language : languagesOf(model.captions)) {
            const std::string text = stripped(textIn(language, caption.texts));
            record.push_back(attribute("xml:lang", language));
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
             number("xmpDM:duration", text.duration), attribute("xmpDM:image", text.image.file),
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

std::string packetOf(const PacketModel& model)
{
    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    expectOk({document->setDataHeader(*headerOf(model)),
              document->setDataCaptions(*captionsOf(model)), document->setDataToc(*tocOf(model)),
              document->setDataScreenText(*screenTextOf(model))});
    std::string packet;
    EXPECT_EQ(ZelData_Ok, document->writeString(packet, ZelDataFormat_Xmp, false));
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
