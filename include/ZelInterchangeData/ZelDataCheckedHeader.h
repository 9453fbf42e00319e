/// @file
/// The checked operations of a header.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDHEADER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDHEADER_H

#include "ZelInterchangeData/ZelDataCheckedLanguage.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"

#include <string>
#include <vector>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a header that throws if an operation fails.
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

    /// See i_ZelDataHeader::isValid().
    ZelDataCheckedHeader isValid() const { return this->run("isValid", &Interface::isValid); }
    /// Whether isValid() succeeds. A warning counts as a failure unless allowWarnings() was called.
    /// Throws if memory runs out.
    bool isGood() const { return this->isGoodCode("isValid", this->object().isValid()); }
    /// See i_ZelDataHeader::clearHeader().
    ZelDataCheckedHeader clearHeader() const
    {
        return this->run("clearHeader", &Interface::clearHeader);
    }
    /// See i_ZelDataHeader::setAppName().
    ZelDataCheckedHeader setAppName(const std::string& name) const
    {
        return this->run("setAppName", &Interface::setAppName, name);
    }
    /// See i_ZelDataHeader::setAppVersion().
    ZelDataCheckedHeader setAppVersion(const std::string& version) const
    {
        return this->run("setAppVersion", &Interface::setAppVersion, version);
    }
    /// See i_ZelDataHeader::setTitle().
    ZelDataCheckedHeader setTitle(const std::string& title) const
    {
        return this->run("setTitle", &Interface::setTitle, title);
    }
    /// See i_ZelDataHeader::setCreator().
    ZelDataCheckedHeader setCreator(const std::string& creator) const
    {
        return this->run("setCreator", &Interface::setCreator, creator);
    }
    /// See i_ZelDataHeader::setDescription().
    ZelDataCheckedHeader setDescription(const std::string& description) const
    {
        return this->run("setDescription", &Interface::setDescription, description);
    }
    /// See i_ZelDataHeader::setKeywords().
    ZelDataCheckedHeader setKeywords(const std::vector<std::string>& keywords) const
    {
        return this->run("setKeywords", &Interface::setKeywords, keywords);
    }
    /// See i_ZelDataHeader::setIPodExplicit().
    ZelDataCheckedHeader setIPodExplicit(bool isExplicit) const
    {
        return this->run("setIPodExplicit", &Interface::setIPodExplicit, isExplicit);
    }
    /// See i_ZelDataHeader::setVideoLength().
    ZelDataCheckedHeader setVideoLength(unsigned long milliseconds) const
    {
        return this->run("setVideoLength", &Interface::setVideoLength, milliseconds);
    }
    /// See i_ZelDataHeader::setVideoWidth().
    ZelDataCheckedHeader setVideoWidth(unsigned long pixels) const
    {
        return this->run("setVideoWidth", &Interface::setVideoWidth, pixels);
    }
    /// See i_ZelDataHeader::setVideoHeight().
    ZelDataCheckedHeader setVideoHeight(unsigned long pixels) const
    {
        return this->run("setVideoHeight", &Interface::setVideoHeight, pixels);
    }
    /// See i_ZelDataHeader::getAppName().
    std::string getAppName() const { return this->get("getAppName", &Interface::getAppName); }
    /// See i_ZelDataHeader::getAppVersion().
    std::string getAppVersion() const
    {
        return this->get("getAppVersion", &Interface::getAppVersion);
    }
    /// See i_ZelDataHeader::getTitle().
    std::string getTitle() const { return this->get("getTitle", &Interface::getTitle); }
    /// See i_ZelDataHeader::getCreator().
    std::string getCreator() const { return this->get("getCreator", &Interface::getCreator); }
    /// See i_ZelDataHeader::getDescription().
    std::string getDescription() const
    {
        return this->get("getDescription", &Interface::getDescription);
    }
    /// See i_ZelDataHeader::getKeywords().
    std::vector<std::string> getKeywords() const
    {
        return this->get("getKeywords", &Interface::getKeywords);
    }
    /// See i_ZelDataHeader::getIPodExplicit().
    bool getIPodExplicit() const
    {
        return this->get("getIPodExplicit", &Interface::getIPodExplicit);
    }
    /// See i_ZelDataHeader::getVideoLength().
    unsigned long getVideoLength() const
    {
        return this->get("getVideoLength", &Interface::getVideoLength);
    }
    /// See i_ZelDataHeader::getVideoWidth().
    unsigned long getVideoWidth() const
    {
        return this->get("getVideoWidth", &Interface::getVideoWidth);
    }
    /// See i_ZelDataHeader::getVideoHeight().
    unsigned long getVideoHeight() const
    {
        return this->get("getVideoHeight", &Interface::getVideoHeight);
    }
    /// See i_ZelDataHeader::clearContentNames().
    ZelDataCheckedHeader clearContentNames() const
    {
        return this->run("clearContentNames", &Interface::clearContentNames);
    }
    /// See i_ZelDataHeader::addContentName().
    ZelDataCheckedHeader addContentName(const std::string& name) const
    {
        return this->run("addContentName", &Interface::addContentName, name);
    }
    /// See i_ZelDataHeader::removeContentName().
    ZelDataCheckedHeader removeContentName(const std::string& name) const
    {
        return this->run("removeContentName", &Interface::removeContentName, name);
    }
    /// See i_ZelDataHeader::getContentNameCount().
    unsigned long getContentNameCount() const
    {
        return this->get("getContentNameCount", &Interface::getContentNameCount);
    }
    /// See i_ZelDataHeader::getContentNames().
    std::vector<std::string> getContentNames() const
    {
        return this->get("getContentNames", &Interface::getContentNames);
    }
    /// See i_ZelDataHeader::doesContentNameExist().
    bool doesContentNameExist(std::string name) const
    {
        bool exists = false;
        this->require("doesContentNameExist", this->object().doesContentNameExist(name, exists));
        return exists;
    }
    /// See i_ZelDataHeader::setShowSearchBar().
    ZelDataCheckedHeader setShowSearchBar(bool show) const
    {
        return this->run("setShowSearchBar", &Interface::setShowSearchBar, show);
    }
    /// See i_ZelDataHeader::getShowSearchBar().
    bool getShowSearchBar() const
    {
        return this->get("getShowSearchBar", &Interface::getShowSearchBar);
    }
    /// See i_ZelDataHeader::copyFrom().
    ZelDataCheckedHeader copyFrom(const i_ZelDataHeader& other) const
    {
        return this->done("copyFrom", this->object().copyFrom(other), other);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedHeader, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.is("isValid", ZelData_InvalidArgument)) return reasonOfSizes(this->object());
        if (call.is("setVideoLength", ZelData_InvalidArgument) ||
            call.is("setVideoWidth", ZelData_InvalidArgument) ||
            call.is("setVideoHeight", ZelData_InvalidArgument))
            return call.get<unsigned long long>() == 0 ? "not positive" : "";
        if (call.is("copyFrom", ZelData_InvalidArgument)) return reasonOfHeader(call);
        const std::string known = reasonOfContentName(call);
        return known.empty() ? this->reasonOfList(call) : known;
    }

    std::string reasonOfContentName(const ZelDataCall& call) const
    {
        using namespace ZelDataMessages;
        if (call.is("addContentName", ZelData_InvalidUtf8))
            return isUtf8(call.text()) ? "" : "the name is not UTF-8";
        const bool adds = call.is("addContentName", ZelData_WarnNoChange);
        if (!adds && !call.is("removeContentName", ZelData_WarnNoChange)) return {};
        return asking(this->object(), [&] {
            const bool exists = doesContentNameExist(call.text());
            if (exists != adds) return "";
            return exists ? "it is listed already" : "it is not listed";
        });
    }
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
