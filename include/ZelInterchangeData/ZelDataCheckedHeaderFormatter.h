/// @file
/// The checked operations of the formatter of a header.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDHEADERFORMATTER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDHEADERFORMATTER_H

#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/ZelDataReasons.h"
#include "ZelInterchangeData/i_ZelDataHeaderFormatter.h"

#include <string>

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of the formatter of a header that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataHeaderFormatter for what an operation does.
template <class Object>
class ZelDataCheckedHeaderFormatter
    : public ZelDataCheckedFormatter<ZelDataCheckedHeaderFormatter<Object>, Object> {
    using Base = ZelDataCheckedFormatter<ZelDataCheckedHeaderFormatter<Object>, Object>;
    using Interface = i_ZelDataHeaderFormatter;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataHeaderFormatter
    /// @{

    /// See i_ZelDataHeaderFormatter::setHeader().
    ZelDataCheckedHeaderFormatter setHeader(const i_ZelDataHeader& header) const
    {
        return this->run("setHeader", &Interface::setHeader, header);
    }
    /// See i_ZelDataHeaderFormatter::getHeader().
    ZelDataCheckedHeaderFormatter getHeader(i_ZelDataHeader& header) const
    {
        return this->run("getHeader", &Interface::getHeader, header);
    }
    /// @}

private:
    friend class ZelDataCheckedObject<ZelDataCheckedHeaderFormatter, Object>;

    std::string reason(const ZelDataCall& call) const
    {
        if (call.operation != "setHeader") return {};
        return ZelDataMessages::reasonOfHeader(call);
    }
};

/// The checked operations of @p object.
inline ZelDataCheckedHeaderFormatter<i_ZelDataHeaderFormatter>
checked(i_ZelDataHeaderFormatter& object) noexcept
{
    return ZelDataCheckedHeaderFormatter<i_ZelDataHeaderFormatter>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedHeaderFormatter<const i_ZelDataHeaderFormatter>
checked(const i_ZelDataHeaderFormatter& object) noexcept
{
    return ZelDataCheckedHeaderFormatter<const i_ZelDataHeaderFormatter>(object);
}

} // namespace ZelInterchangeData

#endif
