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

/// Passes the texts of the document as they are.
struct AsStrings {
    template <class Type>
    const Type& operator()(const Type& given) const
    {
        return given;
    }
};

/// Makes a string of each text first, as an application does that has characters.
struct FromCharacters {
    std::string operator()(const std::string& text) const { return {text.data(), text.size()}; }
    std::vector<std::string> operator()(const std::vector<std::string>& texts) const
    {
        std::vector<std::string> made;
        for (const std::string& text : texts)
            made.push_back((*this)(text));
        return made;
    }
};

template <class Given>
void fillHeader(i_ZelDataHeader& target, const Header& header, Given given)
{
    require(target.setTitle(given(header.title)));
    require(target.setCreator(given(header.creator)));
    require(target.setDescription(given(header.description)));
    require(target.setAppName(given(header.appName)));
    require(target.setAppVersion(given(header.appVersion)));
    require(target.setKeywords(given(header.keywords)));
    for (const std::string& name : header.contentNames)
        require(target.addContentName(given(name)));
    require(target.setVideoLength(header.length));
    require(target.setVideoWidth(header.width));
    require(target.setVideoHeight(header.height));
}

template <class Given>
void addCaption(i_ZelDataCaptions& captions, const Caption& caption, const Texts& languages,
                Given given)
{
    const auto item = made(&ZelDataUtilities::createCaptionItemData);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(item->setTextForLanguage(given(caption.texts[i]), given(languages[i])));
    require(item->setStart(caption.start));
    require(item->setDuration(caption.duration));
    require(captions.addCaptionItem(*item));
}

template <class Given>
void addEntry(i_ZelDataToc& toc, const Entry& entry, const Texts& languages, Given given)
{
    const auto item = made(&ZelDataUtilities::createTocItemData);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(item->setTextForLanguage(given(entry.titles[i]), given(languages[i])));
    require(item->setStart(entry.start));
    require(item->setImageFile(given(entry.thumbnail.file)));
    require(item->setImageIndex(entry.thumbnail.index));
    require(item->setImageOffset(entry.thumbnail.offset));
    require(toc.addTocItem(*item));
}

template <class Given>
void addScreenText(i_ZelDataScreenText& screenText, const ScreenText& text, Given given)
{
    const auto item = made(&ZelDataUtilities::createScreenTextItemData);
    require(item->setText(given(text.text)));
    require(item->setStart(text.start));
    require(item->setDuration(text.duration));
    require(item->setImageFile(given(text.thumbnail.file)));
    require(item->setImageIndex(text.thumbnail.index));
    require(item->setImageOffset(text.thumbnail.offset));
    require(item->setGroupId(text.group));
    require(screenText.addScreenTextItem(*item));
}

template <class Given>
std::unique_ptr<i_ZelDataCaptions> filledCaptions(const Document& document, Given given)
{
    auto captions = made(&ZelDataUtilities::createCaptionData);
    for (const Caption& caption : document.captions)
        addCaption(*captions, caption, document.languages, given);
    return captions;
}

template <class Given>
Sets filled(const Document& document, Given given)
{
    Sets sets{made(&ZelDataUtilities::createHeaderData), filledCaptions(document, given),
              made(&ZelDataUtilities::createTocData),
              made(&ZelDataUtilities::createScreenTextData)};
    fillHeader(*sets.header, document.header, given);
    require(sets.toc->setImageFile(given(document.tocImage)));
    for (const Entry& entry : document.entries)
        addEntry(*sets.toc, entry, document.languages, given);
    for (const ScreenText& text : document.screenTexts)
        addScreenText(*sets.screenText, text, given);
    return sets;
}

} // namespace

Sets fill(const Document& document)
{
    return filled(document, AsStrings());
}

Sets fillFromCharacters(const Document& document)
{
    return filled(document, FromCharacters());
}

std::unique_ptr<i_ZelDataCaptions> fillCaptions(const Document& document)
{
    return filledCaptions(document, AsStrings());
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
