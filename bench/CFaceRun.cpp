#include "bench/CFaceRun.h"

#include "ZelInterchangeData/zeldata.h"

#include <memory>
#include <stdexcept>

namespace ZelInterchangeData::bench {

namespace {

void require(std::uint32_t code)
{
    if (code != ZELDATA_OK) throw std::runtime_error("a function of the C face failed");
}

template <class Type>
using Owner = std::unique_ptr<Type, void (*)(Type*)>;

template <class Type>
Owner<Type> made(std::uint32_t (*create)(Type**), void (*destroy)(Type*))
{
    Type* object = nullptr;
    require(create(&object));
    return {object, destroy};
}

/// The four data sets, filled.
struct CSets {
    Owner<zeldata_header> header = made(zeldata_header_create, zeldata_header_destroy);
    Owner<zeldata_captions> captions = made(zeldata_captions_create, zeldata_captions_destroy);
    Owner<zeldata_toc> toc = made(zeldata_toc_create, zeldata_toc_destroy);
    Owner<zeldata_screen_text> screenText =
        made(zeldata_screen_text_create, zeldata_screen_text_destroy);

    explicit CSets(const Document& document);
};

/// Passes @p text to the function @p set for @p handle.
template <class Type>
void setText(Type* handle, std::uint32_t (*set)(Type*, const char*, std::size_t),
             const std::string& text)
{
    require(set(handle, text.data(), text.size()));
}

void fillHeader(zeldata_header* target, const Header& header)
{
    setText(target, zeldata_header_set_title, header.title);
    setText(target, zeldata_header_set_creator, header.creator);
    setText(target, zeldata_header_set_description, header.description);
    setText(target, zeldata_header_set_app_name, header.appName);
    setText(target, zeldata_header_set_app_version, header.appVersion);
    const auto keywords = made(zeldata_strings_create, zeldata_strings_destroy);
    for (const std::string& keyword : header.keywords)
        setText(keywords.get(), zeldata_strings_add, keyword);
    require(zeldata_header_set_keywords(target, keywords.get()));
    for (const std::string& name : header.contentNames)
        setText(target, zeldata_header_add_content_name, name);
    require(zeldata_header_set_video_length(target, header.length));
    require(zeldata_header_set_video_width(target, header.width));
    require(zeldata_header_set_video_height(target, header.height));
}

void addCaption(zeldata_captions* captions, const Caption& caption, const Texts& languages)
{
    const auto item = made(zeldata_caption_item_create, zeldata_caption_item_destroy);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(zeldata_caption_item_set_text_for_language(
            item.get(), caption.texts[i].data(), caption.texts[i].size(), languages[i].data(),
            languages[i].size()));
    require(zeldata_caption_item_set_start(item.get(), caption.start));
    require(zeldata_caption_item_set_duration(item.get(), caption.duration));
    require(zeldata_captions_add_item(captions, item.get()));
}

void addEntry(zeldata_toc* toc, const Entry& entry, const Texts& languages)
{
    const auto item = made(zeldata_toc_item_create, zeldata_toc_item_destroy);
    for (std::size_t i = 0; i < languages.size(); ++i)
        require(zeldata_toc_item_set_text_for_language(item.get(), entry.titles[i].data(),
                                                       entry.titles[i].size(), languages[i].data(),
                                                       languages[i].size()));
    require(zeldata_toc_item_set_start(item.get(), entry.start));
    setText(item.get(), zeldata_toc_item_set_image_file, entry.thumbnail.file);
    require(zeldata_toc_item_set_image_index(item.get(), entry.thumbnail.index));
    require(zeldata_toc_item_set_image_offset(item.get(), entry.thumbnail.offset));
    require(zeldata_toc_add_item(toc, item.get()));
}

void addScreenText(zeldata_screen_text* screenText, const ScreenText& text)
{
    const auto item = made(zeldata_screen_text_item_create, zeldata_screen_text_item_destroy);
    setText(item.get(), zeldata_screen_text_item_set_text, text.text);
    require(zeldata_screen_text_item_set_start(item.get(), text.start));
    require(zeldata_screen_text_item_set_duration(item.get(), text.duration));
    setText(item.get(), zeldata_screen_text_item_set_image_file, text.thumbnail.file);
    require(zeldata_screen_text_item_set_image_index(item.get(), text.thumbnail.index));
    require(zeldata_screen_text_item_set_image_offset(item.get(), text.thumbnail.offset));
    require(zeldata_screen_text_item_set_group_id(item.get(), text.group));
    require(zeldata_screen_text_add_item(screenText, item.get()));
}

CSets::CSets(const Document& document)
{
    fillHeader(header.get(), document.header);
    for (const Caption& caption : document.captions)
        addCaption(captions.get(), caption, document.languages);
    setText(toc.get(), zeldata_toc_set_image_file, document.tocImage);
    for (const Entry& entry : document.entries)
        addEntry(toc.get(), entry, document.languages);
    for (const ScreenText& text : document.screenTexts)
        addScreenText(screenText.get(), text);
}

} // namespace

std::size_t fillThroughC(const Document& document)
{
    const CSets sets(document);
    std::uint64_t count = 0;
    require(zeldata_captions_get_item_count(sets.captions.get(), &count));
    return static_cast<std::size_t>(count);
}

std::string publishThroughC(const Document& document)
{
    const CSets sets(document);
    const auto core = made(zeldata_document_create, zeldata_document_destroy);
    require(zeldata_document_set_header(core.get(), sets.header.get()));
    require(zeldata_document_set_captions(core.get(), sets.captions.get()));
    require(zeldata_document_set_toc(core.get(), sets.toc.get()));
    require(zeldata_document_set_screen_text(core.get(), sets.screenText.get()));
    const auto out = made(zeldata_string_create, zeldata_string_destroy);
    require(zeldata_document_write_string(core.get(), out.get(), ZELDATA_FORMAT_XMP, 0));
    return {zeldata_string_get_data(out.get()), zeldata_string_get_size(out.get())};
}

} // namespace ZelInterchangeData::bench
