#include "captions/CaptionFindings.h"

#include "ZelInterchangeData/ZelDataFindings.h"
#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptionItem.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "captions/CaptionStyle.h"
#include "captions/ZelDataCaptions.h"

#include <algorithm>
#include <string_view>

namespace ZelInterchangeData {

namespace {

using Items = ReceivedItems<i_ZelDataCaptionItem>;

void checkFraction(const char* property, float value, FindingList& found)
{
    if (isFraction(value)) return;
    ZelDataFinding& finding = found.add(ZelDataFinding_ColorOutOfRange);
    finding.property = property;
    finding.component = value;
    finding.limit = value < 0.0F ? 0 : 1;
}

void checkStyle(const CaptionStyle& style, FindingList& found)
{
    found.checkFrameRate(style.frameRate);
    if (style.fontFamily.empty()) found.add(ZelDataFinding_FontFamilyMissing);
    if (!CaptionStyle::isFontSize(style.fontSize))
        found.addOutOfRange(ZelDataFinding_FontSizeOutOfRange, style.fontSize,
                            ZelDataLimits::minimumFontSize, ZelDataLimits::maximumFontSize);
    checkFraction("foreground red", style.foreground.red, found);
    checkFraction("foreground green", style.foreground.green, found);
    checkFraction("foreground blue", style.foreground.blue, found);
    checkFraction("background red", style.background.red, found);
    checkFraction("background green", style.background.green, found);
    checkFraction("background blue", style.background.blue, found);
    checkFraction("background opacity", style.backgroundOpacity, found);
}

Ending readStyle(const i_ZelDataCaptions& captions, CaptionStyle& style)
{
    Ending ending = endingOf(captions.getFrameRate(style.frameRate.value));
    if (!ending) ending = endingOf(captions.getFontFamily(style.fontFamily));
    if (!ending) ending = endingOf(captions.getFontSize(style.fontSize));
    if (!ending) {
        auto& [red, green, blue] = style.foreground;
        ending = endingOf(captions.getForegroundColor(red, green, blue));
    }
    if (!ending) {
        auto& [red, green, blue] = style.background;
        ending = endingOf(captions.getBackgroundColor(red, green, blue));
    }
    if (!ending) ending = endingOf(captions.getBackgroundOpacity(style.backgroundOpacity));
    return ending;
}

void addDuration(ZelDataFinding_tags kind, long long duration, long long limit, FindingList& found)
{
    ZelDataFinding& finding = found.add(kind);
    finding.value = duration;
    finding.limit = limit;
}

/// Does not report a caption without a duration as too short as well.
void checkDuration(long long duration, FindingList& found)
{
    if (duration < ZelDataLimits::shortestDuration) {
        addDuration(ZelDataFinding_NoDuration, duration, ZelDataLimits::shortestDuration, found);
    } else if (duration < ZelDataLimits::recommendedDuration) {
        addDuration(ZelDataFinding_TooShort, duration, ZelDataLimits::recommendedDuration, found);
    }
}

void checkLines(const std::string& text, const std::string& language, FindingList& found)
{
    const unsigned long lines = ZelDataUtilities::countLinesInUTF8(text);
    if (lines <= ZelDataLimits::recommendedLines) return;
    ZelDataFinding& finding = found.add(ZelDataFinding_TooManyLines, language);
    finding.value = static_cast<long long>(lines);
    finding.limit = static_cast<long long>(ZelDataLimits::recommendedLines);
}

/// Checks @p item itself and whether it has texts in the languages @p listed.
Ending checkItem(const i_ZelDataCaptionItem& item, const std::vector<std::string>& listed,
                 FindingList& found)
{
    long long duration = 0;
    if (const Ending ending = endingOf(item.getDuration(duration))) return ending;
    checkDuration(duration, found);
    return findTextProblems(item, listed, found,
                            [&](const std::string& text, const std::string& language) {
                                checkLines(text, language, found);
                            });
}

/// For each item, the time before which no later one may start: its end, or its start if a caller's
/// implementation lets it end earlier.
Ending readBounds(const Items& items, const std::vector<long long>& starts,
                  std::vector<long long>& bounds)
{
    for (std::size_t i = 0; i < starts.size(); ++i) {
        long long end = 0;
        if (const Ending ending = endingOf(items.items()[i]->getEnd(end))) return ending;
        bounds.push_back(std::max(end, starts[i]));
    }
    return {};
}

Ending checkCaptions(const i_ZelDataCaptions& captions, FindingList& found)
{
    CaptionStyle style;
    std::vector<std::string> listed;
    Items items;
    std::vector<long long> starts;
    std::vector<long long> bounds;
    Ending ending = readStyle(captions, style);
    if (!ending) ending = readLanguages(captions, listed);
    if (!ending)
        ending = receiveItems(captions, &i_ZelDataCaptions::getCaptionItems, items, starts);
    if (!ending) ending = readBounds(items, starts, bounds);
    if (ending) return ending;
    checkStyle(style, found);
    return findItemProblems(items, bounds, starts, found, [&](const i_ZelDataCaptionItem& item) {
        return checkItem(item, listed, found);
    });
}

// What a packet contains

void checkWrittenText(std::string_view language, std::string_view text, FindingList& found)
{
    // The formatter writes its placeholder for such a text.
    if (ZelDataUtilities::stripUnsupportedCharacters(std::string(text)).empty())
        found.add(ZelDataFinding_EmptyText, std::string(language));
    found.checkWritten(text, Treatment::EscapedAndStripped, "text", language);
}

void checkWritten(const ZelDataCaptions& captions, FindingList& found)
{
    const ZelDataCaptions::Items& items = captions.items();
    if (items.count() == 0) return static_cast<void>(found.add(ZelDataFinding_NoItems));
    found.checkMilliseconds(captions.style().frameRate);
    found.checkWritten(captions.style().fontFamily, Treatment::AsGiven, "font family");
    found.checkLanguages(captions.languageIDs());
    for (unsigned long i = 0; i < items.count(); ++i) {
        const CaptionState& caption = items.state(i);
        found.setItem(i, caption.start());
        if (caption.texts().count() == 0) found.add(ZelDataFinding_NoText);
        caption.texts().forEach([&](std::string_view language, std::string_view text) {
            checkWrittenText(language, text, found);
        });
    }
}

} // namespace

Ending findPacketProblems(const ZelDataCaptions& captions, FindingList& found)
{
    found.setSubject(ZelDataFindingSubject_Caption);
    if (const Ending ending = checkCaptions(captions, found)) return ending;
    found.setSubject(ZelDataFindingSubject_Caption);
    checkWritten(captions, found);
    return {};
}

ZelDataResult_tags findProblems(const i_ZelDataCaptions& captions,
                                std::vector<ZelDataFinding>& findings)
{
    return collectFindings(ZelDataFindingSubject_Caption, findings,
                           [&](FindingList& found) { return checkCaptions(captions, found); });
}

} // namespace ZelInterchangeData
