#include "hostile/NumberParameter.h"

namespace ZelInterchangeData {

namespace {

using Header = i_ZelDataHeader;
using Set = ZelDataResult_tags (Header::*)(unsigned long);
using Get = ZelDataResult_tags (Header::*)(unsigned long&) const;

/// A measure, at least 1.
template <Set set, Get get>
void addMeasure(NumberParameters& list, const std::string& name)
{
    addNumber<Header, unsigned long>(
        list, {"ZelDataHeader::" + name + " 1", plainHeader,
               [](Header& h, unsigned long value) { return (h.*set)(value); },
               [](const Header& h) { return delivered(h, get); },
               [](unsigned long value) { return value >= 1; }, extremesOf<unsigned long>(), 4711,
               decimal});
}

} // namespace

void addHeaderNumbers(NumberParameters& list)
{
    addLastError<Header>(list, "ZelDataHeader::", plainHeader);
    addMeasure<&Header::setVideoLength, &Header::getVideoLength>(list, "setVideoLength");
    addMeasure<&Header::setVideoWidth, &Header::getVideoWidth>(list, "setVideoWidth");
    addMeasure<&Header::setVideoHeight, &Header::getVideoHeight>(list, "setVideoHeight");
}

} // namespace ZelInterchangeData
