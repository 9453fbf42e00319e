#include "sets/ItemFindings.h"

#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <set>

namespace ZelInterchangeData {

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
