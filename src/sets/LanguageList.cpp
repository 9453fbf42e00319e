#include "sets/LanguageList.h"

#include "ZelInterchangeData/ZelDataUtilities.h"

#include <algorithm>

namespace ZelInterchangeData {

ZelDataResult_tags LanguageList::add(const std::string& id)
{
    const auto form = ZelDataUtilities::verifyUtf8Format(id, false);
    if (failed(form)) return form;
    if (failed(ZelDataUtilities::isValidLanguage(id))) return ZelData_UnknownLanguage;
    if (contains(id)) return ZelData_WarnAlreadyExists;
    ids_.append(id);
    return ZelData_Ok;
}

void LanguageList::addLanguagesOf(const LanguageTexts& texts)
{
    std::size_t place = 0; // most items have the listed languages in the listed order
    bool allListed = true;
    texts.forEach([&](std::string_view id, std::string_view /*text*/) {
        allListed = ids_.isAt(place++, id) && allListed;
    });
    if (allListed) return;
    texts.forEach([&](std::string_view id, std::string_view /*text*/) {
        if (!contains(id)) ids_.append(id);
    });
}

ZelDataResult_tags LanguageList::copyFrom(const LanguageList& other)
{
    clear();
    for (const std::string& id : other.ids()) {
        if (contains(id)) return ZelData_WarnAlreadyExists;
        ids_.append(id);
    }
    return ZelData_Ok;
}

ZelDataResult_tags LanguageList::reorder(const std::vector<std::string>& ids)
{
    if (ids.size() != ids_.texts().size()) return ZelData_InvalidArgument;
    // Deliberate: does not check that each listed ID occurs in `ids`; otherwise, lists with a
    // duplicate would be rejected.
    const bool allListed =
        std::all_of(ids.begin(), ids.end(), [this](const std::string& id) { return contains(id); });
    if (!allListed) return ZelData_InvalidArgument;
    ids_ = TextList(ids);
    return ZelData_Ok;
}

ZelDataResult_tags LanguageList::names(std::vector<std::string>& names, NameLookup lookup) const
{
    names.clear();
    for (const std::string& id : ids_.texts()) {
        std::string name;
        const auto code = lookup(id, name);
        if (code == ZelData_OutOfMemory) return code;
        if (!failed(code)) names.push_back(std::move(name));
    }
    return names.size() == ids_.texts().size() ? ZelData_Ok : ZelData_InternalError;
}

} // namespace ZelInterchangeData
