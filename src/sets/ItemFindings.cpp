#include "sets/ItemFindings.h"

#include "ZelInterchangeData/ZelDataLimits.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"
#include "sets/LanguageTexts.h"
#include "util/XmlText.h"

#include <algorithm>
#include <limits>
#include <set>

namespace ZelInterchangeData {

namespace {

/// @p number, or the largest number of the type.
long long saturated(unsigned long number) noexcept
{
    constexpr auto largest = std::numeric_limits<long long>::max();
    return number > static_cast<unsigned long long>(largest) ? largest
                                                             : static_cast<long long>(number);
}

} // namespace

ZelDataFinding& FindingList::add(ZelDataFinding_tags kind)
{
    ZelDataFinding& finding = findings_.emplace_back();
    finding.kind = kind;
    finding.subject = subject_;
    finding.item = item_;
    finding.start = start_;
    return finding;
}

ZelDataFinding& FindingList::add(ZelDataFinding_tags kind, const std::string& language)
{
    ZelDataFinding& finding = add(kind);
    finding.language = language;
    return finding;
}

ZelDataFinding& FindingList::addAbout(ZelDataFinding_tags kind, const char* property)
{
    ZelDataFinding& finding = add(kind);
    finding.property = property;
    return finding;
}

void FindingList::addOutOfRange(ZelDataFinding_tags kind, unsigned long value,
                                unsigned long minimum, unsigned long maximum)
{
    addBeyond(kind, value, saturated(value < minimum ? minimum : maximum));
}

void FindingList::addBeyond(ZelDataFinding_tags kind, unsigned long value, long long limit)
{
    ZelDataFinding& finding = add(kind);
    finding.value = saturated(value);
    finding.limit = limit;
}

void FindingList::checkFrameRate(FrameRate rate)
{
    if (rate.isInRange()) return;
    addOutOfRange(ZelDataFinding_FrameRateOutOfRange, rate.value, ZelDataLimits::minimumFrameRate,
                  ZelDataLimits::maximumFrameRate);
}

void FindingList::checkMilliseconds(FrameRate rate)
{
    if (!rate.isInRange() || rate.value == FrameRate::standard) return;
    addBeyond(ZelDataFinding_NotMilliseconds, rate.value, FrameRate::standard);
}

void FindingList::checkWritten(std::string_view text, Treatment treatment, const char* property,
                               std::string_view language)
{
    const auto note = [&](ZelDataFinding_tags kind, std::size_t place) {
        if (place == XmlFaults::none) return;
        ZelDataFinding& finding = addAbout(kind, property);
        finding.language = language;
        finding.value = static_cast<long long>(place);
    };
    const XmlFaults faults = findXmlFaults(text);
    if (treatment == Treatment::AsGiven) note(ZelDataFinding_NotEscaped, faults.unescaped);
    if (treatment != Treatment::EscapedAndStripped)
        note(ZelDataFinding_ControlCharacter, faults.control);
    note(ZelDataFinding_NotStrictUtf8, faults.malformed);
    note(ZelDataFinding_ForbiddenCharacter, faults.forbidden);
}

void FindingList::checkLanguages(const std::vector<std::string>& listed)
{
    std::set<std::string> seen;
    for (const std::string& id : listed) {
        if (!seen.insert(id).second) {
            addAbout(ZelDataFinding_ListedTwice, "language").language = id;
            continue;
        }
        checkText(std::string(), id); // an empty text is always valid
        checkWritten(id, Treatment::AsGiven, "language", id);
    }
}

void FindingList::checkText(const std::string& text, const std::string& language)
{
    if (!failed(LanguageTexts::check(text, language))) return;
    if (failed(ZelDataUtilities::verifyUtf8Format(text, false)))
        add(ZelDataFinding_BadText, language);
    // An empty text is always valid, so this checks the language alone.
    if (failed(LanguageTexts::check(std::string(), language)))
        add(ZelDataFinding_BadLanguage, language);
}

void FindingList::addLater(long long bound, std::size_t later, long long laterStart)
{
    const bool outOfOrder = laterStart < start_;
    ZelDataFinding& finding = add(outOfOrder ? ZelDataFinding_OutOfOrder : ZelDataFinding_Overlap);
    finding.value = outOfOrder ? start_ : bound;
    finding.limit = laterStart;
    finding.laterItem = static_cast<unsigned long>(later);
    finding.laterStart = laterStart;
}

void FindingList::addMissingTexts(std::vector<std::string> ids,
                                  const std::vector<std::string>& listed)
{
    std::sort(ids.begin(), ids.end());
    for (const std::string& id : listed) {
        if (!std::binary_search(ids.begin(), ids.end(), id)) add(ZelDataFinding_MissingText, id);
    }
}

Ending readLanguages(const i_ZelDataLanguage& languages, std::vector<std::string>& ids)
{
    std::vector<std::string> listed;
    if (const Ending ending = endingOf(languages.getOrderedLanguageIDs(listed))) return ending;
    std::set<std::string> seen;
    for (const std::string& id : listed) {
        if (seen.insert(id).second) ids.push_back(id);
    }
    return {};
}

} // namespace ZelInterchangeData
