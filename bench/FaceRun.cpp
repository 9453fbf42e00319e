#include "bench/FaceRun.h"

#include "ZelInterchangeData/ZelDataFace.h"

namespace ZelInterchangeData::bench {

namespace {

void fillHeader(i_ZelDataHeader& target, const Header& header)
{
    const auto view = checked(target)
                          .setTitle(header.title)
                          .setCreator(header.creator)
                          .setDescription(header.description)
                          .setAppName(header.appName)
                          .setAppVersion(header.appVersion)
                          .setKeywords(header.keywords);
    for (const std::string& name : header.contentNames)
        view.addContentName(name);
    view.setVideoLength(header.length).setVideoWidth(header.width).setVideoHeight(header.height);
}

void addCaption(i_ZelDataCaptions& captions, const Caption& caption, const Texts& languages)
{
    const auto item = createCaptionItem();
    for (std::size_t i = 0; i < languages.size(); ++i)
        checked(*item).setTextForLanguage(caption.texts[i], languages[i]);
    checked(*item).setStart(caption.start).setDuration(caption.duration);
    checked(captions).addCaptionItem(*item);
}

void addEntry(i_ZelDataToc& toc, const Entry& entry, const Texts& languages)
{
    const auto item = createTocItem();
    for (std::size_t i = 0; i < languages.size(); ++i)
        checked(*item).setTextForLanguage(entry.titles[i], languages[i]);
    checked(*item)
        .setStart(entry.start)
        .setImageFile(entry.thumbnail.file)
        .setImageIndex(entry.thumbnail.index)
        .setImageOffset(entry.thumbnail.offset);
    checked(toc).addTocItem(*item);
}

void addScreenText(i_ZelDataScreenText& screenText, const ScreenText& text)
{
    const auto item = createScreenTextItem();
    checked(*item)
        .setText(text.text)
        .setStart(text.start)
        .setDuration(text.duration)
        .setImageFile(text.thumbnail.file)
        .setImageIndex(text.thumbnail.index)
        .setImageOffset(text.thumbnail.offset)
        .setGroupId(text.group);
    checked(screenText).addScreenTextItem(*item);
}

} // namespace

std::string publishThroughFace(const Document& document)
{
    const auto header = createHeader();
    const auto captions = createCaptions();
    const auto toc = createToc();
    const auto screenText = createScreenText();
    fillHeader(*header, document.header);
    for (const Caption& caption : document.captions)
        addCaption(*captions, caption, document.languages);
    checked(*toc).setImageFile(document.tocImage);
    for (const Entry& entry : document.entries)
        addEntry(*toc, entry, document.languages);
    for (const ScreenText& text : document.screenTexts)
        addScreenText(*screenText, text);
    const auto core = createDocument();
    return checked(*core)
        .setDataHeader(*header)
        .setDataCaptions(*captions)
        .setDataToc(*toc)
        .setDataScreenText(*screenText)
        .writeString();
}

} // namespace ZelInterchangeData::bench
