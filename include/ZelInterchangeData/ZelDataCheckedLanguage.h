/// @file
/// The checked operations of a list of languages.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDLANGUAGE_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDLANGUAGE_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataLanguage.h"

#include <algorithm>
#include <string>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// The part that the views of a header, of captions and of a table of contents share. For what an
/// operation does, see i_ZelDataLanguage.
template <class Self, class Object>
class ZelDataCheckedLanguage : public ZelDataCheckedObject<Self, Object> {
    using Interface = i_ZelDataLanguage;

public:
    using ZelDataCheckedObject<Self, Object>::ZelDataCheckedObject;

    /// @name Operations of i_ZelDataLanguage
    /// @{

    /// See i_ZelDataLanguage::clearLanguages().
    Self clearLanguages() const { return this->run("clearLanguages", &Interface::clearLanguages); }
    /// See i_ZelDataLanguage::addLanguage().
    Self addLanguage(const std::string& id) const
    {
        return this->run("addLanguage", &Interface::addLanguage, id);
    }
    /// See i_ZelDataLanguage::removeLanguage().
    Self removeLanguage(const std::string& id) const
    {
        return this->run("removeLanguage", &Interface::removeLanguage, id);
    }
    /// See i_ZelDataLanguage::setOrderedLanguageIDs().
    Self setOrderedLanguageIDs(const std::vector<std::string>& ids) const
    {
        return this->run("setOrderedLanguageIDs", &Interface::setOrderedLanguageIDs, ids);
    }
    /// See i_ZelDataLanguage::getOrderedLanguageIDs().
    std::vector<std::string> getOrderedLanguageIDs() const
    {
        return this->get("getOrderedLanguageIDs", &Interface::getOrderedLanguageIDs);
    }
    /// See i_ZelDataLanguage::getLanguageCount().
    unsigned long getLanguageCount() const
    {
        return this->get("getLanguageCount", &Interface::getLanguageCount);
    }
    /// See i_ZelDataLanguage::getLanguageDisplayNames().
    std::vector<std::string> getLanguageDisplayNames() const
    {
        return this->get("getLanguageDisplayNames", &Interface::getLanguageDisplayNames);
    }
    /// See i_ZelDataLanguage::getLanguageNativeDisplayNames().
    std::vector<std::string> getLanguageNativeDisplayNames() const
    {
        return this->get("getLanguageNativeDisplayNames",
                         &Interface::getLanguageNativeDisplayNames);
    }
    /// See i_ZelDataLanguage::doesLanguageExist().
    bool doesLanguageExist(std::string id) const
    {
        bool exists = false;
        this->require("doesLanguageExist", this->object().doesLanguageExist(id, exists));
        return exists;
    }
    /// See i_ZelDataLanguage::copyFrom().
    Self copyFrom(const i_ZelDataLanguage& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other), other);
    }
    /// @}

protected:
    /// What is known about the failure of @p call, if it is an operation of this list.
    std::string reasonOfList(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.operation == "copyFrom") return reasonOfCopy(this->object(), call);
        if (call.is("addLanguage", ZelData_WarnAlreadyExists)) return "it is listed already";
        if (call.is("addLanguage", ZelData_InvalidUtf8) ||
            call.is("addLanguage", ZelData_UnknownLanguage))
            return reasonOfLanguage(call.text());
        if (call.is("removeLanguage", ZelData_WarnNoChange) ||
            call.is("removeLanguage", ZelData_NotFound))
            return asking(this->object(),
                          [&] { return reasonOfMissingLanguage(call, getOrderedLanguageIDs()); });
        if (call.is("setOrderedLanguageIDs", ZelData_InvalidArgument))
            return asking(this->object(), [&] { return reasonOfOrder(call); });
        return {};
    }

private:
    std::string reasonOfOrder(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        const auto& ids = *call.get<const std::vector<std::string>*>();
        const std::vector<std::string> listed = getOrderedLanguageIDs();
        if (ids.size() != listed.size())
            return shown(static_cast<unsigned long long>(ids.size())) + ", the list has " +
                   shown(static_cast<unsigned long long>(listed.size()));
        const auto unlisted = std::find_if(ids.begin(), ids.end(), [&](const std::string& id) {
            return std::find(listed.begin(), listed.end(), id) == listed.end();
        });
        if (unlisted == ids.end()) return {};
        return shown(*unlisted) + " is not listed";
    }
};

} // namespace ZelInterchangeData

#endif
