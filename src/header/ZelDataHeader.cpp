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
    const bool complete = videoLength_ != 0 && videoWidth_ != 0 && videoHeight_ != 0;
    return store(complete ? ZelData_Ok : ZelData_InvalidArgument);
}

ZelDataResult_tags ZelDataHeader::clearHeader()
{
    // Deliberate: search-bar flag and content names stay; otherwise, clearing would reset them,
    // too.
    iPodExplicit_ = false;
    for (std::string* text : {&appName_, &appVersion_, &title_, &creator_, &description_}) {
        text->clear();
    }
    videoLength_ = 0;
    videoWidth_ = 0;
    videoHeight_ = 0;
    keywords_.clear();
    languages().clear();
    return store(ZelData_Ok);
}

// Fields

ZelDataResult_tags ZelDataHeader::setAppName(const std::string& name)
{
    return store(guardedCopy(appName_, name));
}

ZelDataResult_tags ZelDataHeader::getAppName(std::string& name) const
{
    return store(guardedCopy(name, appName_));
}

ZelDataResult_tags ZelDataHeader::setAppVersion(const std::string& version)
{
    return store(guardedCopy(appVersion_, version));
}

ZelDataResult_tags ZelDataHeader::getAppVersion(std::string& version) const
{
    return store(guardedCopy(version, appVersion_));
}

ZelDataResult_tags ZelDataHeader::setTitle(const std::string& title)
{
    return store(guardedCopy(title_, title));
}

ZelDataResult_tags ZelDataHeader::getTitle(std::string& title) const
{
    return store(guardedCopy(title, title_));
}

ZelDataResult_tags ZelDataHeader::setCreator(const std::string& creator)
{
    return store(guardedCopy(creator_, creator));
}

ZelDataResult_tags ZelDataHeader::getCreator(std::string& creator) const
{
    return store(guardedCopy(creator, creator_));
}

ZelDataResult_tags ZelDataHeader::setDescription(const std::string& description)
{
    return store(guardedCopy(description_, description));
}

ZelDataResult_tags ZelDataHeader::getDescription(std::string& description) const
{
    return store(guardedCopy(description, description_));
}

ZelDataResult_tags ZelDataHeader::setKeywords(const std::vector<std::string>& keywords)
{
    return store(guardedCopy(keywords_, keywords));
}

ZelDataResult_tags ZelDataHeader::getKeywords(std::vector<std::string>& keywords) const
{
    return store(guardedCopy(keywords, keywords_));
}

ZelDataResult_tags ZelDataHeader::setIPodExplicit(bool isExplicit)
{
    iPodExplicit_ = isExplicit;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::getIPodExplicit(bool& isExplicit) const
{
    isExplicit = iPodExplicit_;
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
    return storeNonZero(videoLength_, milliseconds);
}

ZelDataResult_tags ZelDataHeader::getVideoLength(unsigned long& milliseconds) const
{
    milliseconds = videoLength_;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setVideoWidth(unsigned long pixels)
{
    return storeNonZero(videoWidth_, pixels);
}

ZelDataResult_tags ZelDataHeader::getVideoWidth(unsigned long& pixels) const
{
    pixels = videoWidth_;
    return store(ZelData_Ok);
}

ZelDataResult_tags ZelDataHeader::setVideoHeight(unsigned long pixels)
{
    return storeNonZero(videoHeight_, pixels);
}

ZelDataResult_tags ZelDataHeader::getVideoHeight(unsigned long& pixels) const
{
    pixels = videoHeight_;
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
