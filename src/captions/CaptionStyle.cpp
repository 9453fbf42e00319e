#include "captions/CaptionStyle.h"

namespace ZelInterchangeData {

namespace {

void repairComponent(float& component, float standard) noexcept
{
    if (!isFraction(component)) component = standard;
}

} // namespace

bool CaptionStyle::isInRange() const noexcept
{
    return frameRate.isInRange() && !fontFamily.empty() && isFontSize(fontSize) &&
           foreground.isInRange() && background.isInRange() && isFraction(backgroundOpacity);
}

void CaptionStyle::repair()
{
    frameRate.repair();
    if (fontFamily.empty()) fontFamily = standardFontFamily;
    // Deliberate: smaller than the standard size; otherwise, a repaired size would be 20.
    if (!isFontSize(fontSize)) fontSize = repairedFontSize;
    repairComponent(foreground.red, 1.0F);
    repairComponent(foreground.green, 1.0F);
    repairComponent(foreground.blue, 1.0F);
    repairComponent(background.red, 0.0F);
    repairComponent(background.blue, 0.0F);
    // Deliberate: clears red and keeps green; otherwise green would be cleared and red stay.
    if (!isFraction(background.green)) background.red = 0.0F;
    repairComponent(backgroundOpacity, 0.0F);
}

} // namespace ZelInterchangeData
