/// @file
/// The markup of texts by language.

#include "xml/LanguageAlternative.h"

namespace ZelInterchangeData {

void appendLanguageItem(std::string& markup, const std::string& languageID, const std::string& text)
{
    openLanguageItem(markup, languageID);
    markup += text;
    closeLanguageItem(markup);
}

} // namespace ZelInterchangeData
