/// @file
/// All that an object holds, as one text.

#ifndef ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CONTENTS_H
#define ZELINTERCHANGEDATA_TESTS_ROBUSTNESS_CONTENTS_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "support/DateMask.h"

#include <string>

namespace ZelInterchangeData {

std::string contentsOf(const i_ZelDataHeader& header);
std::string contentsOf(const i_ZelDataCaptionItem& item);
std::string contentsOf(const i_ZelDataCaptions& captions);
std::string contentsOf(const i_ZelDataTocItem& item);
std::string contentsOf(const i_ZelDataToc& toc);
std::string contentsOf(const i_ZelDataScreenTextItem& item);
std::string contentsOf(const i_ZelDataScreenText& screenText);
/// What a formatter or a document holds shows in what it writes.
std::string contentsOf(const i_ZelDataFormatterBase& formatter);

} // namespace ZelInterchangeData

#endif
