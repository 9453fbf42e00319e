/// @file
/// See ForeignContents.h.

#include "core/ForeignContents.h"

namespace fuzz {

using namespace ZelInterchangeData;

namespace {

template <class Item>
void fillTexts(Item& item, Input& input)
{
    for (std::size_t more = input.below(4); more > 0; --more) {
        const std::string text = input.text();
        item.setTextForLanguage(text, input.text());
    }
}

/// Mostly a time that every implementation takes.
long long timeOf(Input& input)
{
    return input.flag() ? input.byte() : input.number<long long>();
}

} // namespace

void fill(i_ZelDataLanguage& languages, Input& input)
{
    for (const std::string& id : input.texts())
        languages.addLanguage(id);
}

void fill(i_ZelDataHeader& header, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(header), input);
    header.setTitle(input.text());
    header.setCreator(input.text());
    header.setKeywords(input.texts());
    const std::uint8_t sizes = input.byte();
    header.setVideoLength(1);
    header.setVideoWidth(sizes == 255 ? 0 : 2);
    header.setVideoHeight(3);
    for (const std::string& name : input.texts())
        header.addContentName(name);
    header.setShowSearchBar(input.flag());
}

void fill(i_ZelDataCaptionItem& item, Input& input)
{
    fillTexts(item, input);
    item.setStart(timeOf(input));
    item.setDuration(1 + input.byte());
    item.setEnd(256 + timeOf(input) / 2);
    item.setAlignment(static_cast<ZelAlignment_tags>(input.byte()));
}

void fill(i_ZelDataTocItem& item, Input& input)
{
    fillTexts(item, input);
    item.setStart(timeOf(input));
    item.setImageFile(input.text());
    item.setImageIndex(input.byte());
    item.setImageOffset(input.byte());
}

void fill(i_ZelDataScreenTextItem& item, Input& input)
{
    item.setText(input.text());
    item.setStart(timeOf(input));
    item.setDuration(timeOf(input));
    item.setImageFile(input.text());
    item.setGroupId(input.byte());
}

void fill(i_ZelDataCaptions& captions, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(captions), input);
    captions.setFontFamily("f" + input.text());
    captions.setFrameRate(input.byte() == 255 ? 0 : 25);
    captions.setFontSize(1 + input.byte());
    captions.setForegroundColor(0, input.fraction(), 1);
}

void fill(i_ZelDataToc& toc, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(toc), input);
    toc.setImageFile(input.text());
}

void fill(i_ZelDataScreenText& screenText, Input& input)
{
    screenText.setFrameRate(input.byte());
}

} // namespace fuzz
