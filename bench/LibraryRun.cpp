/// @file
/// Uses the library through its public interfaces alone.

#include "bench/LibraryRun.h"

#include <stdexcept>

namespace ZelInterchangeData::bench {

namespace {

void require(ZelDataResult_tags code)
{
    if (code != ZelData_Ok) throw std::runtime_error("an operation of the library failed");
}

template <class Object>
std::unique_ptr<Object> made(ZelDataResult_tags (*create)(Object**))
{
    Object* object = nullptr;
    require(create(&object));
    return std::unique_ptr<Object>(object);
}

void fillHeader(i_ZelDataHeader& target, const Header& header)
{
    require(target.setTitle(header.title));
    require(target.setCreator(header.creator));
    require(target.setDescription(header.description));
    require(target.setAppName(header.appName));
    require(target.setAppVersion(header.appVersion));
    require(target.setKeywords(header.keywords));
    for (const std::string& name : header.contentNames)
        require(target.addContentName(name));
    require(target.setVideoLength(header.length));
    require(target.setVideoWidth(header.width));
    require(target.setVideoHeight(header.height));
}

void addCaption(i_ZelDataCaptions& captions, const Caption& caption, const Texts& languages)
{
    const auto item = made(&ZelDataUtilities::createCaptionItemData);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(item->setTextForLanguage(caption.texts[i], languages[i]));
    require(item->setStart(caption.start));
    require(item->setDuration(caption.duration));
    require(captions.addCaptionItem(*item));
}

void addEntry(i_ZelDataToc& toc, const Entry& entry, const Texts& languages)
{
    const auto item = made(&ZelDataUtilities::createTocItemData);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(item->setTextForLanguage(entry.titles[i], languages[i]));
    require(item->setStart(entry.start));
    require(item->setImageFile(entry.thumbnail.file));
    require(item->setImageIndex(entry.thumbnail.index));
    require(item->setImageOffset(entry.thumbnail.offset));
    require(toc.addTocItem(*item));
}

void addScreenText(i_ZelDataScreenText& screenText, const ScreenText& text)
{
    const auto item = made(&ZelDataUtilities::createScreenTextItemData);
    require(item->setText(text.text));
    require(item->setStart(text.start));
    require(item->setDuration(text.duration));
    require(item->setImageFile(text.thumbnail.file));
    require(item->setImageIndex(text.thumbnail.index));
    require(item->setImageOffset(text.thumbnail.offset));
    require(item->setGroupId(text.group));
    require(screenText.addScreenTextItem(*item));
}

} // namespace

Sets fill(const Document& document)
{
    Sets sets{made(&ZelDataUtilities::createHeaderData), fillCaptions(document),
              made(&ZelDataUtilities::createTocData),
              made(&ZelDataUtilities::createScreenTextData)};
    fillHeader(*sets.header, document.header);
    require(sets.toc->setImageFile(document.tocImage));
    for (const Entry& entry : document.entries)
        addEntry(*sets.toc, entry, document.languages);
    for (const ScreenText& text : document.screenTexts)
        addScreenText(*sets.screenText, text);
    return sets;
}

Sets fillFromCharacters(const Document& document)
{
    return fill(Document(document));
}

std::unique_ptr<i_ZelDataCaptions> fillCaptions(const Document& document)
{
    auto captions = made(&ZelDataUtilities::createCaptionData);
    for (const Caption& caption : document.captions)
        addCaption(*captions, caption, document.languages);
    return captions;
}

std::unique_ptr<i_ZelInterchangeDataCore> setHeader(const i_ZelDataHeader& header)
{
    std::unique_ptr<i_ZelInterchangeDataCore> core(ZELDataCreator::createInterchangeData());
    require(core->setDataHeader(header));
    return core;
}

std::unique_ptr<i_ZelInterchangeDataCore> set(const Sets& sets)
{
    auto core = setHeader(*sets.header);
    require(core->setDataCaptions(*sets.captions));
    require(core->setDataToc(*sets.toc));
    require(core->setDataScreenText(*sets.screenText));
    return core;
}

std::string write(const i_ZelInterchangeDataCore& core)
{
    std::string packet;
    require(core.writeString(packet, ZelDataFormat_Xmp, false));
    return packet;
}

std::unique_ptr<i_ZelDataScreenText> screenTextAt(const std::vector<long long>& starts)
{
    auto screenText = made(&ZelDataUtilities::createScreenTextData);
    for (const long long start : starts) {
        const auto item = made(&ZelDataUtilities::createScreenTextItemData);
        require(item->setStart(start));
        require(screenText->addScreenTextItem(*item));
    }
    return screenText;
}

} // namespace ZelInterchangeData::bench
