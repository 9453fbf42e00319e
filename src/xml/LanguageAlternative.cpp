/// @file
/// The markup of texts by language.

#include "xml/LanguageAlternative.h"

namespace ZelInterchangeData {

void appendLanguageItem(std::string& markup, const std::string& languageID, const std::string& text)
{
    markup.append("<rdf:li xml:lang=\"").append(languageID).append("\">");
    markup.append(text).append("</rdf:li>");
}

} // namespace ZelInterchangeData
