#include "core/LanguageTexts.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>

namespace ZelInterchangeData {

namespace {

/// Where the text for @p languageID stands in @p texts, or where it would.
template <class Texts>
auto placeOf(Texts& texts, const std::string& languageID) noexcept
{
    return std::lower_bound(texts.begin(), texts.end(), languageID,
                            [](const auto& entry, const auto& id) { return entry.first < id; });
}

} // namespace

const std::string* LanguageTexts::find(const std::string& languageID) const noexcept
{
    const auto entry = placeOf(texts_, languageID);
    return entry != texts_.end() && entry->first == languageID ? &entry->second : nullptr;
}

ZelDataResult_tags LanguageTexts::check(const std::string& text, const std::string& languageID)
{
    const bool valid = !failed(ZelDataUtilities::verifyUtf8Format(languageID, false)) &&
                       !failed(ZelDataUtilities::isValidLanguage(languageID)) &&
                       !failed(ZelDataUtilities::verifyUtf8Format(text, false));
    return valid ? ZelData_Ok : ZelData_InvalidItem;
}

ZelDataResult_tags LanguageTexts::set(const std::string& text, const std::string& languageID)
{
    const auto checked = check(text, languageID);
    if (failed(checked)) return checked;
    const auto entry = placeOf(texts_, languageID);
    if (entry != texts_.end() && entry->first == languageID) {
        std::string replacement(text);
        entry->second.swap(replacement);
        return ZelData_WarnAlreadyExists;
    }
    Entry added(languageID, text);
    texts_.insert(entry, std::move(added));
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::get(std::string& text, const std::string& languageID) const
{
    const std::string* found = find(languageID);
    if (found == nullptr) return ZelData_InvalidArgument;
    text = *found;
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::remove(const std::string& languageID)
{
    const auto entry = placeOf(texts_, languageID);
    if (entry == texts_.end() || entry->first != languageID) return ZelData_NotFound;
    texts_.erase(entry);
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::getLanguageIDs(std::vector<std::string>& ids) const
{
    std::vector<std::string> found;
    found.reserve(texts_.size());
    for (const auto& entry : texts_)
        found.push_back(entry.first);
    ids.swap(found);
    return ZelData_Ok;
}

} // namespace ZelInterchangeData
