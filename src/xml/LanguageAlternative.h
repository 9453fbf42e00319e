/// @file
/// The markup of texts by language, for use as the text of an element.

#ifndef ZELINTERCHANGEDATA_XML_LANGUAGEALTERNATIVE_H
#define ZELINTERCHANGEDATA_XML_LANGUAGEALTERNATIVE_H

#include <string>
#include <string_view>

namespace ZelInterchangeData {

/// Opens a name with one text per language; the items follow.
inline constexpr std::string_view nameAlternativeStart = "<xmpDM:name><rdf:Alt>";
/// Ends what #nameAlternativeStart opened.
inline constexpr std::string_view nameAlternativeEnd = "</rdf:Alt></xmpDM:name>";

/// Appends `<rdf:li xml:lang="ID">` to @p markup, a text that can be appended to; the ID is written
/// as given.
template <class Markup>
void openLanguageItem(Markup& markup, std::string_view languageID)
{
    markup.append(std::string_view("<rdf:li xml:lang=\""));
    markup.append(languageID);
    markup.append(std::string_view("\">"));
}

/// Ends what openLanguageItem() opened.
template <class Markup>
void closeLanguageItem(Markup& markup)
{
    markup.append(std::string_view("</rdf:li>"));
}

/// Appends `<rdf:li xml:lang="ID">text</rdf:li>` to @p markup. Nothing is escaped here: @p text and
/// @p languageID are written as given.
inline void appendLanguageItem(std::string& markup, std::string_view languageID,
                               std::string_view text)
{
    openLanguageItem(markup, languageID);
    markup += text;
    closeLanguageItem(markup);
}

} // namespace ZelInterchangeData

#endif
