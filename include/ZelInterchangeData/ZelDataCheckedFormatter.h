/// @file
/// The checked operations that all formatters and the document share.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDFORMATTER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDFORMATTER_H

#include "ZelInterchangeData/ZelDataCheckedObject.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/i_ZelDataFormatterBase.h"

#include <string>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// The part that the views of the document and of the formatters share. For what an operation does,
/// see i_ZelDataFormatterBase and the interfaces that derive from it.
template <class Self, class Object>
class ZelDataCheckedFormatter : public ZelDataCheckedObject<Self, Object> {
    using Interface = i_ZelDataFormatterBase;

public:
    using ZelDataCheckedObject<Self, Object>::ZelDataCheckedObject;

    /// @name Operations of i_ZelDataFormatterBase
    /// @{

    /// See i_ZelDataFormatterBase::writeString().
    Self writeString(std::string& out, ZelDataFormatType_tags format, bool flag) const
    {
        return this->done("writeString", this->object().writeString(out, format, flag), format);
    }
    /// Writes to a new string and returns it.
    std::string writeString(ZelDataFormatType_tags format = ZelDataFormat_Xmp) const
    {
        std::string out;
        writeString(out, format, false);
        return out;
    }
    /// See i_ZelDataFormatterBase::readString().
    Self readString(const std::string& text, ZelDataFormatType_tags format, bool flag) const
    {
        return this->run("readString", &Interface::readString, text, format, flag);
    }
    /// See i_ZelDataFormatterBase::writeFile().
    Self writeFile(const std::string& path, ZelDataFormatType_tags format = ZelDataFormat_Xmp,
                   bool flag = false) const
    {
        return this->done("writeFile", this->object().writeFile(path, format, flag), path, format);
    }
    /// See i_ZelDataFormatterBase::readFile().
    Self readFile(const std::string& path, ZelDataFormatType_tags format) const
    {
        return this->run("readFile", &Interface::readFile, path, format);
    }
    /// @}
};

} // namespace ZelInterchangeData

#endif
