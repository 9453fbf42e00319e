/// @file
/// The checked operations of the formatter of a table of contents.

#ifndef ZELINTERCHANGEDATA_ZELDATACHECKEDTOCFORMATTER_H
#define ZELINTERCHANGEDATA_ZELDATACHECKEDTOCFORMATTER_H

#include "ZelInterchangeData/ZelDataCheckedFormatter.h"
#include "ZelInterchangeData/ZelDataExport.h"
#include "ZelInterchangeData/i_ZelDataTocFormatter.h"

namespace ZELINTERCHANGEDATA_INLINE ZelInterchangeData {

/// A view of the formatter of a table of contents that throws if an operation fails.
///
/// See ZelDataCheckedObject for views, and i_ZelDataTocFormatter for what an operation does.
template <class Object>
class ZelDataCheckedTocFormatter
    : public ZelDataCheckedFormatter<ZelDataCheckedTocFormatter<Object>, Object> {
    using Base = ZelDataCheckedFormatter<ZelDataCheckedTocFormatter<Object>, Object>;
    using Interface = i_ZelDataTocFormatter;

public:
    using Base::Base;

    /// @name Operations of i_ZelDataTocFormatter
    /// @{

    /// See i_ZelDataTocFormatter::setToc().
    ZelDataCheckedTocFormatter setToc(const i_ZelDataToc& toc) const
    {
        return this->run("setToc", &Interface::setToc, toc);
    }
    /// See i_ZelDataTocFormatter::getToc().
    ZelDataCheckedTocFormatter getToc(i_ZelDataToc& toc) const
    {
        return this->run("getToc", &Interface::getToc, toc);
    }
    /// @}
};

/// The checked operations of @p object.
inline ZelDataCheckedTocFormatter<i_ZelDataTocFormatter>
checked(i_ZelDataTocFormatter& object) noexcept
{
    return ZelDataCheckedTocFormatter<i_ZelDataTocFormatter>(object);
}

/// The checked const operations of @p object.
inline ZelDataCheckedTocFormatter<const i_ZelDataTocFormatter>
checked(const i_ZelDataTocFormatter& object) noexcept
{
    return ZelDataCheckedTocFormatter<const i_ZelDataTocFormatter>(object);
}

} // namespace ZelInterchangeData

#endif
