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
        mayRefuse(item.setTextForLanguage(text, input.text()));
    }
}

/// A time, usually one that every implementation accepts.
long long timeOf(Input& input)
{
    return input.flag() ? input.byte() : input.number<long long>();
}

} // namespace

void fill(i_ZelDataLanguage& languages, Input& input)
{
    for (const std::string& id : input.texts())
        mayRefuse(languages.addLanguage(id));
}

void fill(i_ZelDataHeader& header, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(header), input);
    mayRefuse(header.setTitle(input.text()));
    mayRefuse(header.setCreator(input.text()));
    mayRefuse(header.setKeywords(input.texts()));
    const std::uint8_t sizes = input.byte();
    mayRefuse(header.setVideoLength(1));
    mayRefuse(header.setVideoWidth(sizes == 255 ? 0 : 2));
    mayRefuse(header.setVideoHeight(3));
    for (const std::string& name : input.texts())
        mayRefuse(header.addContentName(name));
    mayRefuse(header.setShowSearchBar(input.flag()));
}

void fill(i_ZelDataCaptionItem& item, Input& input)
{
    fillTexts(item, input);
    mayRefuse(item.setStart(timeOf(input)));
    mayRefuse(item.setDuration(1 + input.byte()));
    mayRefuse(item.setEnd(256 + timeOf(input) / 2));
    mayRefuse(item.setAlignment(static_cast<ZelAlignment_tags>(input.byte())));
}

void fill(i_ZelDataTocItem& item, Input& input)
{
    fillTexts(item, input);
    mayRefuse(item.setStart(timeOf(input)));
    mayRefuse(item.setImageFile(input.text()));
    mayRefuse(item.setImageIndex(input.byte()));
    mayRefuse(item.setImageOffset(input.byte()));
}

void fill(i_ZelDataScreenTextItem& item, Input& input)
{
    mayRefuse(item.setText(input.text()));
    mayRefuse(item.setStart(timeOf(input)));
    mayRefuse(item.setDuration(timeOf(input)));
    mayRefuse(item.setImageFile(input.text()));
    mayRefuse(item.setGroupId(input.byte()));
}

void fill(i_ZelDataCaptions& captions, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(captions), input);
    mayRefuse(captions.setFontFamily("f" + input.text()));
    mayRefuse(captions.setFrameRate(input.byte() == 255 ? 0 : 25));
    mayRefuse(captions.setFontSize(1 + input.byte()));
    mayRefuse(captions.setForegroundColor(0, input.fraction(), 1));
}

void fill(i_ZelDataToc& toc, Input& input)
{
    fill(static_cast<i_ZelDataLanguage&>(toc), input);
    mayRefuse(toc.setImageFile(input.text()));
}

void fill(i_ZelDataScreenText& screenText, Input& input)
{
    mayRefuse(screenText.setFrameRate(input.byte()));
}

} // namespace fuzz
