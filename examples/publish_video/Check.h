/// @file
/// Turns the library's result codes into exceptions and owns the objects that it returns.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CHECK_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_CHECK_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <functional>
#include <memory>
#include <string>

namespace publish {

/// Throws a PublishError that names @p what if @p code is an error or a warning.
void check(ZelInterchangeData::ZelDataResult_tags code, const std::string& what);

/// Throws a PublishError that names @p what if @p code is an error. For calls that may end with a
/// warning.
void checkError(ZelInterchangeData::ZelDataResult_tags code, const std::string& what);

/// Returns the object that a `create...` operation of @p maker creates.
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
