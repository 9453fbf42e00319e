/// @file
/// The markup of texts by language.

#include "xml/LanguageAlternative.h"

#include <gtest/gtest.h>

#include <string>

namespace ZelInterchangeData {
namespace {

TEST(LanguageAlternative, AnItemNamesItsLanguageAndHoldsItsText)
{
    std::string markup;
    appendLanguageItem(markup, "en", "Intro");
    EXPECT_EQ(markup, "<rdf:li xml:lang=\"en\">Intro</rdf:li>");
}

TEST(LanguageAlternative, ItemsAreAppendedWithoutASeparator)
{
    std::string markup = "before";
    appendLanguageItem(markup, "en", "English");
    appendLanguageItem(markup, "de-AT", "");
    EXPECT_EQ(markup, "before<rdf:li xml:lang=\"en\">English</rdf:li>"
                      "<rdf:li xml:lang=\"de-AT\"></rdf:li>");
}

TEST(LanguageAlternative, NothingIsEscaped)
{
    std::string markup;
    appendLanguageItem(markup, "en-\"&<", std::string("<&>\0", 4));
    EXPECT_EQ(markup, std::string("<rdf:li xml:lang=\"en-\"&<\"><&>\0</rdf:li>", 39));
}

TEST(LanguageAlternative, ANameIsAnAlternativeOfItems)
{
    std::string markup;
    markup += nameAlternativeStart;
    appendLanguageItem(markup, "en", "Hi &amp; bye");
    appendLanguageItem(markup, "de", "{\\rtf1 }");
    markup += nameAlternativeEnd;
    EXPECT_EQ(markup, "<xmpDM:name><rdf:Alt><rdf:li xml:lang=\"en\">Hi &amp; bye</rdf:li>"
                      "<rdf:li xml:lang=\"de\">{\\rtf1 }</rdf:li></rdf:Alt></xmpDM:name>");
}

} // namespace
} // namespace ZelInterchangeData
