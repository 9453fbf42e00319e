/// @file
/// The checked operations of the formatter of captions.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONFORMATTER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDCAPTIONFORMATTER_H

#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/i_ZelDataCaptionFormatter.h"

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of the formatter of captions that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataCaptionFormatter for what an operation does.
template <class Object>
class ZelDataCheckedCaptionFormatter
    : public ZelDataCheckedFormatter<ZelDataCheckedCaptionFormatter<Object>, Object> {
    using Base = ZelDataCheckedFormatter<ZelDataCheckedCaptionFormatter<Object>, Object>;
    using Interface = i_ZelDataCaptionFormatter;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataCaptionFormatter
    /// @{

    /// See i_ZelDataCaptionFormatter::setCaptions().
    ZelDataCheckedCaptionFormatter setCaptions(const i_ZelDataCaptions& captions) const
    {
        return this->run("setCaptions", &Interface::setCaptions, captions);
    }
    /// See i_ZelDataCaptionFormatter::getCaptions().
    ZelDataCheckedCaptionFormatter getCaptions(i_ZelDataCaptions& captions) const
    {
        return this->run("getCaptions", &Interface::getCaptions, captions);
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedCaptionFormatter<i_ZelDataCaptionFormatter>
checked(i_ZelDataCaptionFormatter& object) noexcept
{
    return ZelDataCheckedCaptionFormatter<i_ZelDataCaptionFormatter>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedCaptionFormatter<const i_ZelDataCaptionFormatter>
checked(const i_ZelDataCaptionFormatter& object) noexcept
{
    return ZelDataCheckedCaptionFormatter<const i_ZelDataCaptionFormatter>(object);
}

} // namespace ZelInterchangeData

#endif
