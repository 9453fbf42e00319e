#include "hostile/NumberParameter.h"

#include <cstdio>
#include <ctime>

namespace ZelInterchangeData {

namespace {

using U = ZelDataUtilities;

const std::string of = "ZelDataUtilities::";

/// Adds a function that gives a text for a number.
template <class Number>
void addText(NumberParameters& list, const std::string& name, std::vector<Number> numbers,
             std::string (*function)(Number), std::string (*expected)(Number))
{
    list.push_back({name, [numbers, function, expected] {
                        for (const Number number : numbers)
                            EXPECT_EQ(expected(number), function(number));
                    }});
}

std::string general(float number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", static_cast<double>(number));
    return text;
}

std::string version(unsigned long number)
{
    const auto field = [number](unsigned shift) { return std::to_string(number >> shift & 0xFF); };
    return std::to_string(number >> 16) + '.' + field(8) + '.' + field(0);
}

void addValues(NumberParameters& list)
{
    using Wide = unsigned long long;
    using Long = unsigned long;
    addText<float>(list, of + "getValueString(float) 1", floatExtremes(), U::getValueString,
                   general);
    addText<Wide>(list, of + "getValueString(unsigned long long) 1", extremesOf<Wide>(),
                  U::getValueString, [](Wide number) { return std::to_string(number); });
    addText<Long>(list, of + "getValueString(unsigned long) 1", extremesOf<Long>(),
                  U::getValueString, [](Long number) { return std::to_string(number); });
    addText<Long>(list, of + "getRateString 1", extremesOf<Long>(), U::getRateString,
                  [](Long number) { return 'f' + std::to_string(number); });
    addText<Long>(list, of + "getVersionString 1",
                  extremesOf<Long>({0x0100, 0xFFFF, 0xFFFFFF, 0x020103}), U::getVersionString,
                  version);
    addText<long>(list, "getValueString 1", extremesOf<long>(), getValueString,
                  [](long number) { return std::to_string(number); });
}

void addAlignments(NumberParameters& list)
{
    using Alignment = ZelAlignment_tags;
    addText<Alignment>(list, of + "getVerticalAlignment 1", extremesOfEnumeration<Alignment>(),
                       U::getVerticalAlignment, [](Alignment a) -> std::string {
                           return a % 2 == 1 ? "bottom" : (a / 2) % 2 == 1 ? "top" : "center";
                       });
    addText<Alignment>(
        list, of + "getHorizontalAlignment 1", extremesOfEnumeration<Alignment>(),
        U::getHorizontalAlignment, [](Alignment a) -> std::string {
            return (a / 16) % 2 == 1 ? "left" : (a / 32) % 2 == 1 ? "right" : "center";
        });
}

/// Seconds around the days, years and ends that a calendar can trip over.
std::vector<long> instants()
{
    return extremesOf<long>({
        86400,              // the second day
        951782400,          // a leap day
        253402300800,       // the year 10000
        -62167219200,       // the year 0
        -62135596800,       // the year 1
        67768036191676800,  // the first year that a broken-down time cannot hold
        -67768040609740800, // the last one at the other end
    });
}

/// A number with at least as many digits as @p width says.
std::string padded(long number, int width)
{
    char text[32];
    std::snprintf(text, sizeof text, "%0*ld", width, number);
    return text;
}

/// Year, month and day of the day that is @p days after the first of 1970, counted in years that
/// begin in March and in periods of 400 years.
std::string dayOf(long days)
{
    const long shifted = days + 719468;
    const long era = (shifted >= 0 ? shifted : shifted - 146096) / 146097;
    const long day = shifted - era * 146097;
    const long year = (day - day / 1460 + day / 36524 - day / 146096) / 365;
    const long dayOfYear = day - (365 * year + year / 4 - year / 100);
    const long month = (5 * dayOfYear + 2) / 153;
    const bool isNextYear = month >= 10;
    return padded(year + era * 400 + (isNextYear ? 1 : 0), 4) + '-' +
           padded(isNextYear ? month - 9 : month + 3, 2) + '-' +
           padded(dayOfYear - (153 * month + 2) / 5 + 1, 2);
}

/// The date in UTC, and the difference of the hours on the clocks.
std::string date(long seconds)
{
    std::tm utc = {};
    std::tm local = {};
    if (gmtime_r(&seconds, &utc) == nullptr || localtime_r(&seconds, &local) == nullptr) return {};
    const long days = seconds / 86400 - (seconds % 86400 < 0 ? 1 : 0);
    const long ofDay = seconds - days * 86400;
    const long hours = local.tm_hour - ofDay / 3600;
    return dayOf(days) + 'T' + padded(ofDay / 3600, 2) + ':' + padded(ofDay / 60 % 60, 2) + ':' +
           padded(ofDay % 60, 2) + (hours > 0 ? '+' : '-') +
           std::to_string(hours > 0 ? hours : -hours) + ":00";
}

/// Adds the formats that the factories refuse.
template <class Formatter>
void addFactory(NumberParameters& list, const std::string& name,
                ZelDataResult_tags (*create)(Formatter**, ZelDataFormatType_tags))
{
    list.push_back({of + name + " 2", [create] {
                        for (const auto format : extremesOfEnumeration<ZelDataFormatType_tags>()) {
                            Formatter* made = nullptr;
                            const bool isXmp = format == ZelDataFormat_Xmp;
                            EXPECT_EQ(isXmp ? ZelData_Ok : ZelData_UnsupportedFormat,
                                      create(&made, format));
                            EXPECT_EQ(isXmp, made != nullptr);
                            delete made;
                        }
                    }});
}

} // namespace

void addUtilityNumbers(NumberParameters& list)
{
    addValues(list);
    addAlignments(list);
    addText<long>(
        list, of + "getDateString 1", instants(),
        [](long seconds) { return U::getDateString(&seconds); }, date);
    list.push_back({"toString 1", [] {
                        for (const auto kind : extremesOfEnumeration<ZelDataFinding_tags>())
                            EXPECT_EQ(0U, std::string(toString(kind)).find("ZelDataFinding_"));
                    }});
    addFactory(list, "createHeaderFormatter", U::createHeaderFormatter);
    addFactory(list, "createCaptionFormatter", U::createCaptionFormatter);
    addFactory(list, "createTocFormatter", U::createTocFormatter);
    addFactory(list, "createScreenTextFormatter", U::createScreenTextFormatter);
}

} // namespace ZelInterchangeData
