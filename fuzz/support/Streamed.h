/// @file
/// What a stream of the classic locale writes for a number.

#ifndef ZELINTERCHANGEDATA_FUZZ_SUPPORT_STREAMED_H
#define ZELINTERCHANGEDATA_FUZZ_SUPPORT_STREAMED_H

#include <locale>
#include <sstream>
#include <string>

namespace fuzz {

/// @p number as text. All calls use one stream: to make one takes longer than to write a number.
template <class Number>
std::string streamed(Number number)
{
    static std::ostringstream stream = [] {
        std::ostringstream made;
        made.imbue(std::locale::classic());
        return made;
    }();
    stream.str({});
    stream << number;
    return stream.str();
}

} // namespace fuzz

#endif
