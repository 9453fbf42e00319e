/// @file
/// Every code point through the text utilities: alone, between letters and after an ampersand.

#include "hostile/CodePoints.h"
#include "ZelInterchangeData/ZelDataUtilities.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace ZelInterchangeData {
namespace {

using U = ZelDataUtilities;

std::string escaped(std::uint32_t point)
{
    switch (point) {
    case 0x22:
        return "&quot;";
    case 0x26:
        return "&amp;";
    case 0x27:
        return "&apos;";
    case 0x3C:
        return "&lt;";
    case 0x3E:
        return "&gt;";
    default:
        return encoded(point);
    }
}

std::string stripped(std::uint32_t point)
{
    return point < 0x20 && point != 0x0A ? std::string() : encoded(point);
}

/// What the library keeps of the code point and a letter b after an ampersand: it drops the byte that
/// shows that no entity begins here. After an a, that is the byte after it.
std::string leftAfterAmpersand(std::uint32_t point)
{
    return point == 'a' ? "a" : encoded(point).substr(1) + "b";
}

/// Calls @p agrees with every code point and names the first that does not.
template <class Agrees>
void expectOfAll(const Agrees& agrees)
{
    for (std::uint32_t point = 0; point < codePointCount; ++point)
        ASSERT_TRUE(agrees(point)) << "U+" << std::hex << std::uppercase << point;
}

/// Expects @p function to turn every code point, alone and between letters, into @p expected.
void expectOfAll(std::string (*function)(const std::string&),
                 std::string (*expected)(std::uint32_t))
{
    expectOfAll([&](std::uint32_t point) {
        return function(encoded(point)) == expected(point) &&
               function("a" + encoded(point) + "b") == "a" + expected(point) + "b";
    });
}

TEST(EveryCodePoint, PassesTheCheckOfItsForm)
{
    expectOfAll([](std::uint32_t point) {
        const std::string text = encoded(point);
        const auto code = point < 0x10000 ? ZelData_Ok : ZelData_UnsupportedCharacter;
        return U::verifyUtf8Format(text, false) == ZelData_Ok &&
               U::verifyUtf8Format("a" + text + "b", false) == ZelData_Ok &&
               U::verifyUtf8Format(text, true) == code;
    });
}

TEST(EveryCodePoint, IsEscapedWhenItIsMarkupAndOnlyThen)
{
    expectOfAll(U::htmlTagsToText, escaped);
}

TEST(EveryCodePoint, IsStrippedWhenItIsAControlCharacterBelowTheSpace)
{
    expectOfAll(U::stripUnsupportedCharacters, stripped);
}

TEST(EveryCodePoint, StaysAsItIsWhereNoEntityBegins)
{
    expectOfAll([](std::uint32_t point) {
        // An ampersand before a letter that begins no entity takes the letter along.
        const std::string rest = point == '&' ? "" : "b";
        return U::htmlTagsFromText(encoded(point)) == encoded(point) &&
               U::htmlTagsFromText("a" + encoded(point) + "b") == "a" + encoded(point) + rest;
    });
}

TEST(EveryCodePoint, LosesItsFirstByteAfterAnAmpersandThatBeginsNoEntity)
{
    expectOfAll([](std::uint32_t point) {
        return U::htmlTagsFromText("&" + encoded(point) + "b") == "&" + leftAfterAmpersand(point);
    });
}

TEST(EveryCodePoint, ComesBackFromItsEscapedFormBetweenLetters)
{
    expectOfAll([](std::uint32_t point) {
        const std::string text = "a" + encoded(point) + "b";
        return U::htmlTagsFromText(U::htmlTagsToText(text)) == text;
    });
}

} // namespace
} // namespace ZelInterchangeData
