/// @file
/// The checked operations of a list of languages.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDLANGUAGE_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDLANGUAGE_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// The part that the views of a header, of captions and of a table of contents share. What an
/// operation does stands at i_ZelDataLanguage.
template <class Self, class Object>
class ZelDataCheckedLanguage : public ZelDataCheckedObject<Self, Object> {
    using Interface = i_ZelDataLanguage;

public:
    using ZelDataCheckedObject<Self, Object>::ZelDataCheckedObject;

    /// @name Operations of i_ZelDataLanguage
    /// @{
    Self clearLanguages() const { return this->run("clearLanguages", &Interface::clearLanguages); }
    Self addLanguage(const std::string& id) const
    {
        return this->run("addLanguage", &Interface::addLanguage, id);
    }
    Self removeLanguage(const std::string& id) const
    {
        return this->run("removeLanguage", &Interface::removeLanguage, id);
    }
    Self setOrderedLanguageIDs(const std::vector<std::string>& ids) const
    {
        return this->run("setOrderedLanguageIDs", &Interface::setOrderedLanguageIDs, ids);
    }
    std::vector<std::string> getOrderedLanguageIDs() const
    {
        return this->get("getOrderedLanguageIDs", &Interface::getOrderedLanguageIDs);
    }
    unsigned long getLanguageCount() const
    {
        return this->get("getLanguageCount", &Interface::getLanguageCount);
    }
    std::vector<std::string> getLanguageDisplayNames() const
    {
        return this->get("getLanguageDisplayNames", &Interface::getLanguageDisplayNames);
    }
    std::vector<std::string> getLanguageNativeDisplayNames() const
    {
        return this->get("getLanguageNativeDisplayNames",
                         &Interface::getLanguageNativeDisplayNames);
    }
    bool doesLanguageExist(std::string id) const
    {
        bool exists = false;
        this->require("doesLanguageExist", this->object().doesLanguageExist(id, exists));
        return exists;
    }
    Self copyFrom(const i_ZelDataLanguage& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other));
    }
    /// @}
};

} // namespace ZelInterchangeData

#endif
