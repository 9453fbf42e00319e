#include "core/ZelDataCore.h"

#include "ZelInterchangeData/ZelDataUtilities.h"
#include "core/ZelDataCoreXmp.h"
#include "sets/Factory.h"
#include "sets/ReplaceContents.h"
#include "util/Guard.h"

#include <utility>

namespace ZelInterchangeData {

i_ZelInterchangeDataCore::~i_ZelInterchangeDataCore() = default;

ZelDataCore::~ZelDataCore() = default;

// Writing

/// Ends with the last error of @p document if it does not accept one of the sets.
Ending ZelDataCore::copySetsTo(ZelDataCore& document) const
{
    if ((header_ && failed(document.setDataHeader(*header_))) ||
        (captions_ && failed(document.setDataCaptions(*captions_))) ||
        (toc_ && failed(document.setDataToc(*toc_))) ||
        (screenText_ && failed(document.setDataScreenText(*screenText_)))) {
        return document.getLastError();
    }
    return {};
}

template <class Write>
ZelDataResult_tags ZelDataCore::writeCopy(ZelDataFormatType_tags format, Write&& write) const
{
    if (format != ZelDataFormat_Xmp) return store(ZelData_UnsupportedFormat);
    ZelDataCoreXmp document;
    if (const Ending ending = copySetsTo(document)) return store(*ending);
    // Deliberate: not stored; otherwise, the last error would be that of writing.
    return std::forward<Write>(write)(document);
}

ZelDataResult_tags ZelDataCore::writeString(std::string& out, ZelDataFormatType_tags format,
                                            bool append) const
{
    return writeCopy(format, [&](const ZelDataCoreXmp& document) {
        return document.writeString(out, ZelDataFormat_Xmp, append);
    });
}

ZelDataResult_tags ZelDataCore::writeFile(const std::string& path, ZelDataFormatType_tags format,
                                          bool flag) const
{
    return writeCopy(format, [&](const ZelDataCoreXmp& document) {
        return document.writeFile(path, ZelDataFormat_Xmp, flag);
    });
}

ZelDataResult_tags ZelDataCore::readString(const std::string& /*text*/,
                                           ZelDataFormatType_tags /*format*/, bool /*flag*/)
{
    return store(ZelData_NotImplemented);
}

ZelDataResult_tags ZelDataCore::readFile(const std::string& /*path*/,
                                         ZelDataFormatType_tags /*format*/)
{
    return store(ZelData_NotImplemented);
}

// Data sets

/// Creates the set through @p create unless there is one; ends with this document's last error if
/// that fails.
template <class Data>
Ending ZelDataCore::makeSet(std::unique_ptr<Data>& set,
                            ZelDataResult_tags (ZelDataCore::*create)(Data**) const) const
{
    if (set) return {};
    auto [made, created] = receive<Data>([&](Data** out) { return (this->*create)(out); });
    set = std::move(made);
    if (failed(created)) return getLastError();
    if (set == nullptr) return ZelData_InternalError;
    return {};
}

template <class Data>
ZelDataResult_tags ZelDataCore::setData(std::unique_ptr<Data>& set, const Data& source,
                                        ZelDataResult_tags (ZelDataCore::*create)(Data**) const,
                                        ZelDataResult_tags (Data::*clear)())
{
    return store(guarded([&] {
        if (const Ending ending = makeSet(set, create)) return *ending;
        return replaceContents(*set, clear, source) ? ZelData_Ok : set->getLastError();
    }));
}

template <class Data>
ZelDataResult_tags ZelDataCore::getData(const std::unique_ptr<Data>& set, Data& target,
                                        ZelDataResult_tags (Data::*clear)()) const
{
    return store(guarded([&] {
        if (!set) return ZelData_NoData;
        return replaceContents(target, clear, std::as_const(*set)) ? ZelData_Ok
                                                                   : target.getLastError();
    }));
}

ZelDataResult_tags ZelDataCore::getDataHeader(i_ZelDataHeader& target) const
{
    return getData(header_, target, &i_ZelDataHeader::clearHeader);
}

ZelDataResult_tags ZelDataCore::setDataHeader(const i_ZelDataHeader& source)
{
    return store(guarded([&]() -> ZelDataResult_tags {
        if (const Ending ending = makeSet(header_, &ZelDataCore::createDataHeader)) return *ending;
        if (replaceContents(*header_, &i_ZelDataHeader::clearHeader, source)) return ZelData_Ok;
        // Deliberate: the captions' last error, even ZelData_Ok; otherwise it would be the header's
        // own.
        return captions_ ? captions_->getLastError() : header_->getLastError();
    }));
}

ZelDataResult_tags ZelDataCore::getDataCaptions(i_ZelDataCaptions& target) const
{
    return getData(captions_, target, &i_ZelDataCaptions::clearCaptionItems);
}

ZelDataResult_tags ZelDataCore::setDataCaptions(const i_ZelDataCaptions& source)
{
    return setData(captions_, source, &ZelDataCore::createDataCaptions,
                   &i_ZelDataCaptions::clearCaptionItems);
}

ZelDataResult_tags ZelDataCore::getDataToc(i_ZelDataToc& target) const
{
    return getData(toc_, target, &i_ZelDataToc::clearTocItems);
}

ZelDataResult_tags ZelDataCore::setDataToc(const i_ZelDataToc& source)
{
    return setData(toc_, source, &ZelDataCore::createDataToc, &i_ZelDataToc::clearTocItems);
}

ZelDataResult_tags ZelDataCore::getDataScreenText(i_ZelDataScreenText& target) const
{
    return getData(screenText_, target, &i_ZelDataScreenText::clearScreenTextItems);
}

ZelDataResult_tags ZelDataCore::setDataScreenText(const i_ZelDataScreenText& source)
{
    return setData(screenText_, source, &ZelDataCore::createDataScreenText,
                   &i_ZelDataScreenText::clearScreenTextItems);
}

// New data objects

ZelDataResult_tags ZelDataCore::createDataHeader(i_ZelDataHeader** out) const
{
    return store(ZelDataUtilities::createHeaderData(out));
}

ZelDataResult_tags ZelDataCore::createDataCaptions(i_ZelDataCaptions** out) const
{
    return store(ZelDataUtilities::createCaptionData(out));
}

ZelDataResult_tags ZelDataCore::createDataToc(i_ZelDataToc** out) const
{
    return store(ZelDataUtilities::createTocData(out));
}

ZelDataResult_tags ZelDataCore::createDataScreenText(i_ZelDataScreenText** out) const
{
    return store(ZelDataUtilities::createScreenTextData(out));
}

} // namespace ZelInterchangeData
