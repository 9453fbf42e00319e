/// @file
/// Everything that a caller can see of a value or an object, as a text.
///
/// An object is read through its getters and keeps its last error.

#ifndef ZELINTERCHANGEDATA_FUZZ_CORE_DESCRIBE_H
#define ZELINTERCHANGEDATA_FUZZ_CORE_DESCRIBE_H

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <string>
#include <type_traits>
#include <vector>

namespace fuzz {

/// Appends what a caller can see of the argument to @p text.
/// @{
void describe(std::string& text, const std::string& value);
void describe(std::string& text, const std::vector<std::string>& values);
void describe(std::string& text, float value);
template <class Number, class = std::enable_if_t<std::is_integral_v<Number>>>
void describe(std::string& text, Number value)
{
    text += " " + std::to_string(value);
}
void describe(std::string& text, ZelInterchangeData::ZelAlignment_tags value);
void describe(std::string& text, const ZelInterchangeData::ZelDataFinding& finding);
void describe(std::string& text, const std::vector<ZelInterchangeData::ZelDataFinding>& findings);
void describe(std::string& text, ZelInterchangeData::i_ZelDataHeader& header);
void describe(std::string& text, ZelInterchangeData::i_ZelDataCaptionItem& item);
void describe(std::string& text, ZelInterchangeData::i_ZelDataCaptions& captions);
void describe(std::string& text, ZelInterchangeData::i_ZelDataTocItem& item);
void describe(std::string& text, ZelInterchangeData::i_ZelDataToc& toc);
void describe(std::string& text, ZelInterchangeData::i_ZelDataScreenTextItem& item);
void describe(std::string& text, ZelInterchangeData::i_ZelDataScreenText& screenText);
void describe(std::string& text, ZelInterchangeData::i_ZelDataLanguage& languages);
/// A formatter or a document: what it writes.
void describe(std::string& text, ZelInterchangeData::i_ZelDataFormatterBase& formatter);
/// @}

/// Returns what a caller can see of @p object.
template <class Object>
std::string described(Object& object)
{
    std::string text;
    describe(text, object);
    return text;
}

/// @p text with the date of each packet masked.
std::string withoutDates(std::string text);

} // namespace fuzz

#endif
