#include "core/LanguageTexts.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

namespace ZelInterchangeData {

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
    const auto [entry, isNew] = texts_.try_emplace(languageID, text);
    if (isNew) return ZelData_Ok;
    std::string replacement(text);
    entry->second.swap(replacement);
    return ZelData_WarnAlreadyExists;
}

ZelDataResult_tags LanguageTexts::get(std::string& text, const std::string& languageID) const
{
    const auto entry = texts_.find(languageID);
    if (entry == texts_.end()) return ZelData_InvalidArgument;
    text = entry->second;
    return ZelData_Ok;
}

ZelDataResult_tags LanguageTexts::remove(const std::string& languageID)
{
    return texts_.erase(languageID) == 0 ? ZelData_NotFound : ZelData_Ok;
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
