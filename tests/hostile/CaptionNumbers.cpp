#include "captions/Captions.h"
#include "hostile/NumberParameter.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace ZelInterchangeData {

namespace {

using Item = i_ZelDataCaptionItem;
using Captions = i_ZelDataCaptions;
using Color = std::array<float, 3>;
using SetColor = ZelDataResult_tags (Captions::*)(float, float, float);
using GetColor = ZelDataResult_tags (Captions::*)(float&, float&, float&) const;

const std::string of = "ZelDataCaptions::";

std::string writtenAlignment(ZelAlignment_tags alignment)
{
    const auto isSet = [alignment](unsigned bit) { return (alignment & bit) != 0; };
    const char* vertical = isSet(1) ? "bottom" : isSet(2) ? "top" : "center";
    const char* horizontal = isSet(0x10) ? "left" : isSet(0x20) ? "right" : "center";
    return std::string("valign=\"") + vertical + "\" zelDM:halign=\"" + horizontal + '"';
}

void addItemNumbers(NumberParameters& list)
{
    const std::string ofItem = "ZelDataCaptionItem::";
    addLastError<Item>(list, ofItem, newCaption);
    // The end of the last start wraps, and such a caption cannot be added.
    addStart<Item>(list, ofItem, newCaption,
                   [](long long start) { return start < std::numeric_limits<long long>::max(); });
    addEnds<Item>(list, ofItem, newCaption, [](long long duration) { return duration >= 1; });
    addNumber<Item, ZelAlignment_tags>(list, ofItem + "setAlignment 1",
                                       {newCaption, &Item::setAlignment,
                                        delivering(&Item::getAlignment), any,
                                        extremesOfEnumeration<ZelAlignment_tags>(),
                                        ZelAlignTop | ZelAlignRight, writtenAlignment});
}

/// A NaN passes: it is neither below nor above the limits.
bool isFraction(float number)
{
    return std::isnan(number) || (number >= 0 && number <= 1);
}

/// What the packet holds for component @p index. The other components are 0.5.
template <std::size_t index>
std::string writtenComponent(float number)
{
    const char* const names[] = {"red", "green", "blue"};
    const double scaled = static_cast<double>(number) * 255;
    const int component = std::isnan(number) ? 0 : static_cast<int>(scaled);
    return std::string("xmpG:") + names[index] + "=\"" + std::to_string(component) + '"';
}

template <SetColor set, GetColor get, std::size_t index>
void addComponent(NumberParameters& list, const std::string& name)
{
    addNumber<Captions, float>(list, of + name + ' ' + std::to_string(index + 1),
                               {captionsWithItem,
                                [](Captions& c, float number) {
                                    Color color = {0.5F, 0.5F, 0.5F};
                                    color[index] = number;
                                    return (c.*set)(color[0], color[1], color[2]);
                                },
                                [](const Captions& c) {
                                    Color color = {};
                                    EXPECT_EQ(ZelData_Ok, (c.*get)(color[0], color[1], color[2]));
                                    for (std::size_t other = 0; other < color.size(); ++other)
                                        EXPECT_TRUE(other == index ||
                                                    isSameNumber(0.5F, color[other]));
                                    return color[index];
                                },
                                isFraction, floatExtremes(), 0.25F, writtenComponent<index>});
}

template <SetColor set, GetColor get>
void addColor(NumberParameters& list, const std::string& name)
{
    addComponent<set, get, 0>(list, name);
    addComponent<set, get, 1>(list, name);
    addComponent<set, get, 2>(list, name);
}

std::string writtenOpacity(float opacity)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(opacity));
    return std::string("bgOpacity=\"") + text + '"';
}

void addStyle(NumberParameters& list)
{
    using C = Captions;
    addFrameRate<C>(list, of, captionsWithItem, writtenRate);
    addNumber<C, unsigned long>(list, of + "setFontSize 1",
                                {captionsWithItem, &C::setFontSize, delivering(&C::getFontSize),
                                 [](unsigned long size) { return size >= 1 && size <= 500; },
                                 extremesOf<unsigned long>({1, 500}), 473, decimal});
    addColor<&C::setForegroundColor, &C::getForegroundColor>(list, "setForegroundColor");
    addColor<&C::setBackgroundColor, &C::getBackgroundColor>(list, "setBackgroundColor");
    addNumber<C, float>(list, of + "setBackgroundOpacity 1",
                        {captionsWithItem, &C::setBackgroundOpacity,
                         delivering(&C::getBackgroundOpacity), isFraction, floatExtremes(), 0.25F,
                         writtenOpacity});
}

} // namespace

void addCaptionNumbers(NumberParameters& list)
{
    addItemNumbers(list);
    addLastError<Captions>(list, of, newCaptions);
    addStyle(list);
    addIndices<CaptionKind>(list, of, "CaptionItem", {0, 1});
}

} // namespace ZelInterchangeData
