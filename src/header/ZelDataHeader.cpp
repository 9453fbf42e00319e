#include "header/ZelDataHeader.h"

#include "sets/Factory.h"
#include "util/GuardedCopy.h"

namespace ZelInterchangeData {

ZelDataResult_tags ZelDataUtilities::createHeaderData(i_ZelDataHeader** out)
{
    return createObject<ZelDataHeader>(out);
}

ZelDataResult_tags ZelDataHeader::isValid() const
{
    const bool complete =
        fields_.videoLength != 0 && fields_.videoWidth != 0 && fields_.videoHeight != 0;
    return store(complete ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataHeader::clearHeader()
{
    // Deliberate: search-bar flag and content names stay; otherwise, clearing would reset them,
    // too.
    fields_ = HeaderFields();
    languages().clear();
    return store(ZelData_Ok);
}

// Fields

ZelDataResult_tags ZelDataHeader::setText(SharedText HeaderFields::*text, const std::string& value)
{
    return store(guarded([&] {
        fields_.*text = SharedText(value);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataHeader::getText(SharedText HeaderFields::*text, std::string& value) const
{
    return store(guardedCopy(value, (fields_.*text).view()));
}

ZelDataResult_tags ZelDataHeader::setAppName(const std::string& name)
{
    return setText(&HeaderFields::appName, name);
}

ZelDataResult_tags ZelDataHeader::getAppName(std::string& name) const
{
    return getText(&HeaderFields::appName, name);
}

ZelDataResult_tags ZelDataHeader::setAppVersion(const std::string& version)
{
    return setText(&HeaderFields::appVersion, version);
}

ZelDataResult_tags ZelDataHeader::getAppVersion(std::string& version) const
{
    return getText(&HeaderFields::appVersion, version);
}

ZelDataResult_tags ZelDataHeader::setTitle(const std::string& title)
{
    return setText(&HeaderFields::title, title);
}

ZelDataResult_tags ZelDataHeader::getTitle(std::string& title) const
{
    return getText(&HeaderFields::title, title);
}

ZelDataResult_tags ZelDataHeader::setCreator(const std::string& creator)
{
    return setText(&HeaderFields::creator, creator);
}

ZelDataResult_tags ZelDataHeader::getCreator(std::string& creator) const
{
    return getText(&HeaderFields::creator, creator);
}

ZelDataResult_tags ZelDataHeader::setDescription(const std::string& description)
{
    return setText(&HeaderFields::description, description);
}

ZelDataResult_tags ZelDataHeader::getDescription(std::string& description) const
{
    return getText(&HeaderFields::description, description);
}

ZelDataResult_tags ZelDataHeader::setKeywords(const std::vector<std::string>& keywords)
{
    return store(guarded([&] {
        using Keywords = const std::vector<std::string>;
        fields_.keywords = keywords.empty() ? nullptr : std::make_shared<Keywords>(keywords);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataHeader::getKeywords(std::vector<std::string>& keywords) const
{
    if (fields_.keywords) return store(guardedCopy(keywords, *fields_.keywords));
    keywords.clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setIPodExplicit(bool isExplicit)
{
    fields_.iPodExplicit = isExplicit;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::getIPodExplicit(bool& isExplicit) const
{
    isExplicit = fields_.iPodExplicit;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setShowSearchBar(bool show)
{
    showSearchBar_ = show;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::getShowSearchBar(bool& show) const
{
    show = showSearchBar_;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::storeNonZero(unsigned long& field, unsigned long value) const
{
    if (value == 0) return store(ZelData_InvalidArgument);
    field = value;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setVideoLength(unsigned long milliseconds)
{
    return storeNonZero(fields_.videoLength, milliseconds);
}

ZelDataResult_tags ZelDataHeader::getVideoLength(unsigned long& milliseconds) const
{
    milliseconds = fields_.videoLength;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setVideoWidth(unsigned long pixels)
{
    return storeNonZero(fields_.videoWidth, pixels);
}

ZelDataResult_tags ZelDataHeader::getVideoWidth(unsigned long& pixels) const
{
    pixels = fields_.videoWidth;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setVideoHeight(unsigned long pixels)
{
    return storeNonZero(fields_.videoHeight, pixels);
}

ZelDataResult_tags ZelDataHeader::getVideoHeight(unsigned long& pixels) const
{
    pixels = fields_.videoHeight;
    return store(ZelData_Ok);
}

// Content names

ZelDataResult_tags ZelDataHeader::clearContentNames()
{
    contentNames_.clear();
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::addContentName(const std::string& name)
{
    return store(guarded([&] {
        const auto form = ZelDataUtilities::verifyUtf8Format(name, false);
        if (failed(form)) return form;
        // Deliberate: not ZelData_WarnAlreadyExists; otherwise, the code would be that of a
        // language that is already listed.
        if (contentNames_.contains(name)) return ZelData_WarnNoChange;
        contentNames_.append(name);
        return ZelData_Ok;
    }));
}

ZelDataResult_tags ZelDataHeader::removeContentName(const std::string& name)
{
    return store(contentNames_.remove(name) ? ZelData_Ok : ZelData_WarnNoChange);
}

ZelDataResult_tags ZelDataHeader::getContentNameCount(unsigned long& count) const
{
    count = static_cast<unsigned long>(contentNames_.texts().size());
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::getContentNames(std::vector<std::string>& names) const
{
    return store(guardedCopy(names, contentNames_.texts()));
}

ZelDataResult_tags ZelDataHeader::doesContentNameExist(std::string& name, bool& exists) const
{
    exists = contentNames_.contains(name);
    return store(ZelData_Ok);
}

} // namespace ZelInterchangeData
