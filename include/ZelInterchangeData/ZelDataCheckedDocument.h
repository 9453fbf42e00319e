/// @file
/// The checked operations of a document.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDDOCUMENT_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDDOCUMENT_H

#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/ZelDataUtilities.h"
#include "ZelInterchangeData/i_ZelDataCaptions.h"
#include "ZelInterchangeData/i_ZelDataHeader.h"
#include "ZelInterchangeData/i_ZelDataScreenText.h"
#include "ZelInterchangeData/i_ZelDataToc.h"
#include "ZelInterchangeData/i_ZelInterchangeDataCore.h"

#include <memory>
#include <string>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of a document that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelInterchangeDataCore for what an operation does.
template <class Object>
class ZelDataCheckedDocument
    : public ZelDataCheckedFormatter<ZelDataCheckedDocument<Object>, Object> {
    using Base = ZelDataCheckedFormatter<ZelDataCheckedDocument<Object>, Object>;
    using Interface = i_ZelInterchangeDataCore;

public:
    using Base::Base;

    /// @name Operations of i_ZelInterchangeDataCore
    /// @{

    /// See i_ZelInterchangeDataCore::getDataHeader().
    ZelDataCheckedDocument getDataHeader(i_ZelDataHeader& target) const
    {
        return this->run("getDataHeader", &Interface::getDataHeader, target);
    }
    /// See i_ZelInterchangeDataCore::setDataHeader(). If the document has captions, this can return
    /// ZelData_Ok for a header that was copied only in part. Then the view throws the code of the
    /// header's isValid(), which it calls first.
    ZelDataCheckedDocument setDataHeader(const i_ZelDataHeader& source) const
    {
        const ZelDataResult_tags valid = source.isValid();
        const ZelDataResult_tags code = this->object().setDataHeader(source);
        const bool hidden = this->fails(valid) && !this->fails(code) && hasCaptions();
        return this->done("setDataHeader", hidden ? valid : code, source);
    }
    /// See i_ZelInterchangeDataCore::getDataCaptions().
    ZelDataCheckedDocument getDataCaptions(i_ZelDataCaptions& target) const
    {
        return this->run("getDataCaptions", &Interface::getDataCaptions, target);
    }
    /// See i_ZelInterchangeDataCore::setDataCaptions().
    ZelDataCheckedDocument setDataCaptions(const i_ZelDataCaptions& source) const
    {
        return this->run("setDataCaptions", &Interface::setDataCaptions, source);
    }
    /// See i_ZelInterchangeDataCore::getDataToc().
    ZelDataCheckedDocument getDataToc(i_ZelDataToc& target) const
    {
        return this->run("getDataToc", &Interface::getDataToc, target);
    }
    /// See i_ZelInterchangeDataCore::setDataToc().
    ZelDataCheckedDocument setDataToc(const i_ZelDataToc& source) const
    {
        return this->run("setDataToc", &Interface::setDataToc, source);
    }
    /// See i_ZelInterchangeDataCore::getDataScreenText().
    ZelDataCheckedDocument getDataScreenText(i_ZelDataScreenText& target) const
    {
        return this->run("getDataScreenText", &Interface::getDataScreenText, target);
    }
    /// See i_ZelInterchangeDataCore::setDataScreenText().
    ZelDataCheckedDocument setDataScreenText(const i_ZelDataScreenText& source) const
    {
        return this->run("setDataScreenText", &Interface::setDataScreenText, source);
    }
    /// See i_ZelInterchangeDataCore::createDataHeader().
    std::unique_ptr<i_ZelDataHeader> createDataHeader() const
    {
        return this->make("createDataHeader", &Interface::createDataHeader);
    }
    /// See i_ZelInterchangeDataCore::createDataCaptions().
    std::unique_ptr<i_ZelDataCaptions> createDataCaptions() const
    {
        return this->make("createDataCaptions", &Interface::createDataCaptions);
    }
    /// See i_ZelInterchangeDataCore::createDataToc().
    std::unique_ptr<i_ZelDataToc> createDataToc() const
    {
        return this->make("createDataToc", &Interface::createDataToc);
    }
    /// See i_ZelInterchangeDataCore::createDataScreenText().
    std::unique_ptr<i_ZelDataScreenText> createDataScreenText() const
    {
        return this->make("createDataScreenText", &Interface::createDataScreenText);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedDocument, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        if (call.is("getDataHeader", ZelData_NoData)) return "the document has no header";
        if (call.is("getDataCaptions", ZelData_NoData)) return "the document has no captions";
        if (call.is("getDataToc", ZelData_NoData)) return "the document has no table of contents";
        if (call.is("getDataScreenText", ZelData_NoData)) return "the document has no screen text";
        if (call.operation == "setDataHeader") return ZelDataMessages::reasonOfHeader(call);
        const bool writes = call.is("writeString", ZelData_InvalidArgument) ||
                            call.is("writeFile", ZelData_InvalidArgument);
        return writes ? reasonOfOwnHeader() : std::string();
    }

    std::string reasonOfOwnHeader() const
    {
        return ZelDataMessages::asking(this->object(), [&] {
            const auto header = made(ZelDataUtilities::createHeaderData);
            const auto code = this->object().getDataHeader(*header);
            if (code == ZelData_NoData) return std::string("the document has no header");
            // A copy stops at the first size that is 0.
            return code == ZelData_InvalidArgument ? ZelDataMessages::reasonOfSizes(*header) : "";
        });
    }

    /// Whether the document has captions, or might have some.
    bool hasCaptions() const
    {
        using namespace ZelDataMessages;
        const auto ask = [&] {
            const auto captions = made(ZelDataUtilities::createCaptionData);
            return this->object().getDataCaptions(*captions) == ZelData_NoData ? "none" : "";
        };
        return orNothing([&] { return asking(this->object(), ask); }).empty();
    }

    template <class Data>
    static std::unique_ptr<Data> made(ZelDataResult_tags (*create)(Data**))
    {
        Data* data = nullptr;
        check(create(&data), "create");
        return std::unique_ptr<Data>(data);
    }
};

/// The checked operations of @p object.
inline ZelDataCheckedDocument<i_ZelInterchangeDataCore>
checked(i_ZelInterchangeDataCore& object) noexcept
{
    return ZelDataCheckedDocument<i_ZelInterchangeDataCore>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedDocument<const i_ZelInterchangeDataCore>
checked(const i_ZelInterchangeDataCore& object) noexcept
{
    return ZelDataCheckedDocument<const i_ZelInterchangeDataCore>(object);
}

} // namespace ZelInterchangeData

#endif
