/// @file
/// What an argument accepts, and how it is written.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_RULES_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_RULES_H

#include "ZelInterchangeData/ZelDataResult_tags.h"

#include <string>
#include <vector>

namespace ZelInterchangeData {

/// What an argument accepts.
enum class Rule {
    Anything,
    /// Anything but an empty text.
    NotEmpty,
    /// Sequences that have the form of UTF-8.
    Utf8,
    /// The same, with the code of an item.
    Utf8OfItem,
    /// A language ID.
    Language,
    /// The same, with the code of an item.
    LanguageOfItem
};

/// How a text is written.
enum class Treatment { Escaped, EscapedAndStripped, CaptionText, AsGiven, NotWritten };

/// The code that an argument with @p rule gives for @p text; success where it is accepted.
ZelDataResult_tags codeFor(Rule rule, const std::string& text);

/// @p text as the packet holds it.
std::string written(Treatment treatment, const std::string& text);

/// The texts to try where @p rule applies: @p text itself and, if the rule is about languages,
/// language IDs made with it.
std::vector<std::string> variants(Rule rule, const std::string& text);

/// Whether the catalogue knows the language of @p id: of the texts here, only English.
bool isEnglish(const std::string& id);

} // namespace ZelInterchangeData

#endif
