/// @file
/// What a call throws.

#ifndef ZELINTERCHANGEDATA_TESTS_FACE_THROWN_H
#define ZELINTERCHANGEDATA_TESTS_FACE_THROWN_H

#include "ZelInterchangeData/ZelDataError.h"

#include <string>
#include <utility>

namespace ZelInterchangeData {

/// An operation and the name of its code.
using Failure = std::pair<std::string, std::string>;

/// The operation and code of the ZelDataError that @p call throws; empty if it throws none.
template <class Call>
Failure thrownBy(Call&& call)
{
    try {
        call();
        return {};
    } catch (const ZelDataError& error) {
        return {std::string(error.operation()), toString(error.code())};
    }
}

} // namespace ZelInterchangeData

#endif
