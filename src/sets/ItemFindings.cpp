#include "sets/ItemFindings.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"
#include "sets/LanguageTexts.h"

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

void FindingList::addOutOfRange(ZelDataFinding_tags kind, unsigned long value,
                                unsigned long minimum, unsigned long maximum)
{
    ZelDataFinding& finding = add(kind);
    finding.value = saturated(value);
    finding.limit = saturated(value < minimum ? minimum : maximum);
}

void FindingList::checkFrameRate(FrameRate rate)
{
    if (rate.isInRange()) return;
    addOutOfRange(ZelDataFinding_FrameRateOutOfRange, rate.value, FrameRate::minimum,
                  FrameRate::maximum);
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
