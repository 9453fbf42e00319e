#include "hostile/NumberParameter.h"

namespace ZelInterchangeData {

void addHeaderNumbers(NumberParameters& list)
{
    using H = i_ZelDataHeader;
    const std::string of = "ZelDataHeader::";
    addLastError<H>(list, of, plainHeader);
    const auto addMeasure = [&](const char* name, auto set, auto get) {
        addNumber<H, unsigned long>(list, of + name,
                                    {plainHeader, set, delivering(get),
                                     [](unsigned long value) { return value >= 1; },
                                     extremesOf<unsigned long>(), 4711, decimal});
    };
    addMeasure("setVideoLength 1", &H::setVideoLength, &H::getVideoLength);
    addMeasure("setVideoWidth 1", &H::setVideoWidth, &H::getVideoWidth);
    addMeasure("setVideoHeight 1", &H::setVideoHeight, &H::getVideoHeight);
}

} // namespace ZelInterchangeData
