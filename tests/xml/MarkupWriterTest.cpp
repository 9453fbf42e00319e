/// @file
/// Elements as text.

#include "xml/MarkupWriter.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace ZelInterchangeData {
namespace {

/// What @p write, a callable for a writer, appends to "before".
template <class Write>
std::string written(Write&& write)
{
    std::string text = "before";
    MarkupWriter writer(text);
    write(writer);
    writer.finish();
    return text;
}

TEST(MarkupWriter, WritesAttributesInOrderWithASpaceAfterEach)
{
    EXPECT_EQ("before<x a=\"1\" b=\"-5\" c=\"7\" ></x>", written([](MarkupWriter& writer) {
                  writer.markup("<x ")
                      .attribute("a", "1")
                      .attribute("b", -5LL)
                      .attribute("c", 7UL)
                      .markup("></x>");
              }));
}

TEST(MarkupWriter, WritesTheExtremesOfNumbers)
{
    EXPECT_EQ("beforea=\"-9223372036854775808\" b=\"18446744073709551615\" ",
              written([](MarkupWriter& writer) {
                  writer.attribute("a", std::numeric_limits<long long>::min())
                      .attribute("b", std::numeric_limits<unsigned long long>::max());
              }));
}

TEST(MarkupWriter, EscapesOnlyOnRequest)
{
    EXPECT_EQ("before<\t>a=\"<\t>\" b=\"&lt;\t&gt;\" ", written([](MarkupWriter& writer) {
                  writer.markup("<\t>").attribute("a", "<\t>").escaped("b", "<\t>");
              }));
}

TEST(MarkupWriter, WritesAValueInPieces)
{
    EXPECT_EQ("beforea=\"1 - 2\" <b></b>", written([](MarkupWriter& writer) {
                  writer.attributeOf("a", [](TextBlock& text) {
                      text.append("1 - ");
                      text.appendNumber(2);
                  });
                  writer.text().append("<b></b>");
              }));
}

TEST(MarkupWriter, KeepsZeroBytes)
{
    const std::string value("a\0b", 3);
    EXPECT_EQ("beforex=\"" + value + "\" ",
              written([&](MarkupWriter& writer) { writer.attribute("x", value); }));
}

} // namespace
} // namespace ZelInterchangeData
