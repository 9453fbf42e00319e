/// @file
/// How the program treats the library's result codes and the objects that it hands out.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CHECK_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CHECK_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <functional>
#include <memory>
#include <string>

namespace publish {

/// Throws PublishError, which names @p what, when @p code is an error or a warning.
void check(ZelInterchangeData::ZelDataResult_tags code, const std::string& what);

/// Throws PublishError, which names @p what, when @p code is an error. For calls that may end with
/// a warning.
void checkError(ZelInterchangeData::ZelDataResult_tags code, const std::string& what);

/// Returns the object that a `create...` operation of @p maker hands out, owned at once.
template <class Maker, class Made>
std::unique_ptr<Made> make(const Maker& maker,
                           ZelInterchangeData::ZelDataResult_tags (Maker::*create)(Made**) const)
{
    Made* made = nullptr;
    check(std::invoke(create, maker, &made), "making a data object");
    return std::unique_ptr<Made>(made);
}

} // namespace publish

#endif
