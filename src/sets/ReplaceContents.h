/// @file
/// Replacing the contents of a data set.

#ifndef ZELINTERCHANGEDATA_SETS_REPLACECONTENTS_H
#define ZELINTERCHANGEDATA_SETS_REPLACECONTENTS_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

namespace ZelInterchangeData {

/// Empties @p target through @p clear and copies @p source into it. Returns false if either fails;
/// the target's last error says why.
template <class Data>
[[nodiscard]] bool replaceContents(Data& target, ZelDataResult_tags (Data::*clear)(),
                                   const Data& source)
{
    return !failed((target.*clear)()) && !failed(target.copyFrom(source));
}

} // namespace ZelInterchangeData

#endif
