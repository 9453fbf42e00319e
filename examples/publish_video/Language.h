/// @file
/// The languages of the command line.

#ifndef ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LANGUAGE_H
#define ZELINTERCHANGEDATA_EXAMPLES_PUBLISH_VIDEO_LANGUAGE_H

#include <string>
#include <string_view>

namespace publish {

/// Whether @p text has the form of a language: two letters, then nothing or a hyphen and letters,
/// digits and hyphens.
bool isLanguageForm(std::string_view text);

/// Whether the library knows the language @p text.
bool isKnownLanguage(const std::string& text);

/// The language that @p text, which is none, could be meant to be: of a country (`jp`), in three
/// letters (`deu`), with an underscore (`en_US`), or by its name (`German`). Empty if there is none.
std::string languageLike(const std::string& text);

} // namespace publish

#endif
