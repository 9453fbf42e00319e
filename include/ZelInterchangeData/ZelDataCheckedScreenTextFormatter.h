/// @file
/// The checked operations of the formatter of screen text.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTFORMATTER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDSCREENTEXTFORMATTER_H

#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/i_ZelDataScreenTextFormatter.h"

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of the formatter of screen text that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataScreenTextFormatter for what an operation does.
template <class Object>
class ZelDataCheckedScreenTextFormatter
    : public ZelDataCheckedFormatter<ZelDataCheckedScreenTextFormatter<Object>, Object> {
    using Base = ZelDataCheckedFormatter<ZelDataCheckedScreenTextFormatter<Object>, Object>;
    using Interface = i_ZelDataScreenTextFormatter;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataScreenTextFormatter
    /// @{

    /// See i_ZelDataScreenTextFormatter::setScreenText().
    ZelDataCheckedScreenTextFormatter setScreenText(const i_ZelDataScreenText& screenText) const
    {
        return this->run("setScreenText", &Interface::setScreenText, screenText);
    }
    /// See i_ZelDataScreenTextFormatter::getScreenText().
    ZelDataCheckedScreenTextFormatter getScreenText(i_ZelDataScreenText& screenText) const
    {
        return this->run("getScreenText", &Interface::getScreenText, screenText);
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedScreenTextFormatter<i_ZelDataScreenTextFormatter>
checked(i_ZelDataScreenTextFormatter& object) noexcept
{
    return ZelDataCheckedScreenTextFormatter<i_ZelDataScreenTextFormatter>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedScreenTextFormatter<const i_ZelDataScreenTextFormatter>
checked(const i_ZelDataScreenTextFormatter& object) noexcept
{
    return ZelDataCheckedScreenTextFormatter<const i_ZelDataScreenTextFormatter>(object);
}

} // namespace ZelInterchangeData

#endif
