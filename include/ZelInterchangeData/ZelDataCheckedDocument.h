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
    /// See i_ZelInterchangeDataCore::setDataHeader(). Calls the header's isValid() first; if that
    /// fails, throws its code, and the document keeps its header and its last error. Deliberate: a
    /// document with captions can report success for a header that it copied only in part.
    ZelDataCheckedDocument setDataHeader(const i_ZelDataHeader& source) const
    {
        this->require("setDataHeader", source.isValid(), source);
        return this->run("setDataHeader", &Interface::setDataHeader, source);
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
        const bool writes = call.operation == "writeString" || call.operation == "writeFile";
        return writes ? ZelDataMessages::reasonOfWriting(this->object(), call.code) : std::string();
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
