#include "ZelInterchangeData/i_ZelDataHeader.h"

#include "sets/FieldCopy.h"
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

} // namespace ZelInterchangeData
