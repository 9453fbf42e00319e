#include "ZelInterchangeData/i_ZelDataHeader.h"

#include "header/ZelDataHeader.h"
#include "sets/FieldCopy.h"
#include "util/ExactType.h"
#include "util/Guard.h"

namespace ZelInterchangeData {

namespace {

/// Ends with the last error of the header that failed to return or to accept a name.
Ending copyContentNames(const i_ZelDataHeader& source, i_ZelDataHeader& target)
{
    if (const auto cleared = target.clearContentNames(); failed(cleared)) return cleared;
    std::vector<std::string> names;
    if (failed(source.getContentNames(names))) return source.getLastError();
    for (const std::string& name : names) {
        if (const auto added = target.addContentName(name); failed(added)) return added;
    }
    return {};
}

} // namespace

i_ZelDataHeader::~i_ZelDataHeader() = default;

ZelDataResult_tags i_ZelDataHeader::copyFrom(const i_ZelDataHeader& other)
{
    using Header = i_ZelDataHeader;
    if (&other == this) return store(ZelData_InternalError);
    // Between two of our own headers, sharing the texts gives the same result as the steps below.
    auto* own = exactly<ZelDataHeader>(*this);
    const auto* ownOther = exactly<ZelDataHeader>(other);
    if (own != nullptr && ownOther != nullptr) return own->copyOwn(*ownOther);
    return store(guarded([&] {
        if (const auto cleared = clearHeader(); failed(cleared)) return cleared;
        if (const auto copied = i_ZelDataLanguage::copyFrom(other); failed(copied)) return copied;
        // Copying a header ends with the code that the setter returned, copying another set with
        // the set's last error.
        const auto setterCode = [](ZelDataResult_tags code) { return code; };
        FieldCopy fields(other, *this, setterCode);
        fields.field(&Header::getAppName, &Header::setAppName)
            .field(&Header::getAppVersion, &Header::setAppVersion)
            .field(&Header::getTitle, &Header::setTitle)
            .field(&Header::getCreator, &Header::setCreator)
            .field(&Header::getDescription, &Header::setDescription)
            .field(&Header::getKeywords, &Header::setKeywords)
            .field(&Header::getIPodExplicit, &Header::setIPodExplicit)
            .field(&Header::getVideoLength, &Header::setVideoLength)
            .field(&Header::getVideoWidth, &Header::setVideoWidth)
            .field(&Header::getVideoHeight, &Header::setVideoHeight);
        if (const Ending ending = fields.ending()) return *ending;
        if (const Ending ending = copyContentNames(other, *this)) return *ending;
        fields.field(&Header::getShowSearchBar, &Header::setShowSearchBar);
        return fields.ending().value_or(ZelData_Ok);
    }));
}

ZelDataResult_tags ZelDataHeader::copyOwn(const ZelDataHeader& other)
{
    other.setLastError(ZelData_Ok); // as the getters would leave it
    return store(guarded([&] {
        if (const auto cleared = clearHeader(); failed(cleared)) return cleared;
        if (const auto listed = languages().copyFrom(other.languages()); failed(listed))
            return listed;
        // A size of 0, which the setters refuse, ends the copy.
        HeaderFields copy = other.fields_;
        if (copy.videoLength == 0) copy.videoWidth = 0;
        if (copy.videoWidth == 0) copy.videoHeight = 0;
        fields_ = copy;
        if (copy.videoHeight == 0) return ZelData_InvalidArgument;
        contentNames_.clear();
        for (const std::string& name : other.contentNames())
            contentNames_.append(name);
        showSearchBar_ = other.showSearchBar_;
        return ZelData_Ok;
    }));
}

} // namespace ZelInterchangeData
