/// @file
/// The checked operations of a header.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDHEADER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDHEADER_H

#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// A view of a header that throws where an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataHeader for what an operation does.
template <class Object>
class ZelDataCheckedHeader : public ZelDataCheckedLanguage<ZelDataCheckedHeader<Object>, Object> {
    using Base = ZelDataCheckedLanguage<ZelDataCheckedHeader<Object>, Object>;
    using Interface = i_ZelDataHeader;

public:
    using Base::Base;
    using Base::copyFrom;

    /// @name Operations of i_ZelDataHeader
    /// @{
    ZelDataCheckedHeader isValid() const { return this->run("isValid", &Interface::isValid); }
    ZelDataCheckedHeader clearHeader() const
    {
        return this->run("clearHeader", &Interface::clearHeader);
    }
    ZelDataCheckedHeader setAppName(const std::string& name) const
    {
        return this->run("setAppName", &Interface::setAppName, name);
    }
    ZelDataCheckedHeader setAppVersion(const std::string& version) const
    {
        return this->run("setAppVersion", &Interface::setAppVersion, version);
    }
    ZelDataCheckedHeader setTitle(const std::string& title) const
    {
        return this->run("setTitle", &Interface::setTitle, title);
    }
    ZelDataCheckedHeader setCreator(const std::string& creator) const
    {
        return this->run("setCreator", &Interface::setCreator, creator);
    }
    ZelDataCheckedHeader setDescription(const std::string& description) const
    {
        return this->run("setDescription", &Interface::setDescription, description);
    }
    ZelDataCheckedHeader setKeywords(const std::vector<std::string>& keywords) const
    {
        return this->run("setKeywords", &Interface::setKeywords, keywords);
    }
    ZelDataCheckedHeader setIPodExplicit(bool isExplicit) const
    {
        return this->run("setIPodExplicit", &Interface::setIPodExplicit, isExplicit);
    }
    ZelDataCheckedHeader setVideoLength(unsigned long milliseconds) const
    {
        return this->run("setVideoLength", &Interface::setVideoLength, milliseconds);
    }
    ZelDataCheckedHeader setVideoWidth(unsigned long pixels) const
    {
        return this->run("setVideoWidth", &Interface::setVideoWidth, pixels);
    }
    ZelDataCheckedHeader setVideoHeight(unsigned long pixels) const
    {
        return this->run("setVideoHeight", &Interface::setVideoHeight, pixels);
    }
    std::string getAppName() const { return this->get("getAppName", &Interface::getAppName); }
    std::string getAppVersion() const
    {
        return this->get("getAppVersion", &Interface::getAppVersion);
    }
    std::string getTitle() const { return this->get("getTitle", &Interface::getTitle); }
    std::string getCreator() const { return this->get("getCreator", &Interface::getCreator); }
    std::string getDescription() const
    {
        return this->get("getDescription", &Interface::getDescription);
    }
    std::vector<std::string> getKeywords() const
    {
        return this->get("getKeywords", &Interface::getKeywords);
    }
    bool getIPodExplicit() const
    {
        return this->get("getIPodExplicit", &Interface::getIPodExplicit);
    }
    unsigned long getVideoLength() const
    {
        return this->get("getVideoLength", &Interface::getVideoLength);
    }
    unsigned long getVideoWidth() const
    {
        return this->get("getVideoWidth", &Interface::getVideoWidth);
    }
    unsigned long getVideoHeight() const
    {
        return this->get("getVideoHeight", &Interface::getVideoHeight);
    }
    ZelDataCheckedHeader clearContentNames() const
    {
        return this->run("clearContentNames", &Interface::clearContentNames);
    }
    ZelDataCheckedHeader addContentName(const std::string& name) const
    {
        return this->run("addContentName", &Interface::addContentName, name);
    }
    ZelDataCheckedHeader removeContentName(const std::string& name) const
    {
        return this->run("removeContentName", &Interface::removeContentName, name);
    }
    unsigned long getContentNameCount() const
    {
        return this->get("getContentNameCount", &Interface::getContentNameCount);
    }
    std::vector<std::string> getContentNames() const
    {
        return this->get("getContentNames", &Interface::getContentNames);
    }
    bool doesContentNameExist(std::string name) const
    {
        bool exists = false;
        this->require("doesContentNameExist", this->object().doesContentNameExist(name, exists));
        return exists;
    }
    ZelDataCheckedHeader setShowSearchBar(bool show) const
    {
        return this->run("setShowSearchBar", &Interface::setShowSearchBar, show);
    }
    bool getShowSearchBar() const
    {
        return this->get("getShowSearchBar", &Interface::getShowSearchBar);
    }
    ZelDataCheckedHeader copyFrom(const i_ZelDataHeader& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other));
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedHeader<i_ZelDataHeader> checked(i_ZelDataHeader& object) noexcept
{
    return ZelDataCheckedHeader<i_ZelDataHeader>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedHeader<const i_ZelDataHeader> checked(const i_ZelDataHeader& object) noexcept
{
    return ZelDataCheckedHeader<const i_ZelDataHeader>(object);
}

} // namespace ZelInterchangeData

#endif
