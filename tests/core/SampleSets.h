/// @file
/// One filled data set of each kind. The files in data/ hold their packets.

#ifndef ZELINTERCHANGEDATA_TESTS_CORE_SAMPLESETS_H
#define ZELINTERCHANGEDATA_TESTS_CORE_SAMPLESETS_H

#include "ZelInterchangeData/ZelInterchangeData.h"

#include <memory>
#include <string>

namespace ZelInterchangeData {

/// A header with a value in every field; its language is "ja".
std::unique_ptr<i_ZelDataHeader> sampleHeader();
/// A minimal header that can be written.
std::unique_ptr<i_ZelDataHeader> plainHeader();
/// Adds a caption with one text.
void addCaption(i_ZelDataCaptions& captions, const std::string& language, const std::string& text,
                long long start);
/// A French caption, then a German one that starts earlier.
std::unique_ptr<i_ZelDataCaptions> sampleCaptions();
/// Two English entries, the later one first.
std::unique_ptr<i_ZelDataToc> sampleToc();
/// Two texts, the later one first.
std::unique_ptr<i_ZelDataScreenText> sampleScreenText();

/// @p packet with DATE in place of its date, which must have the right form.
std::string withoutDate(const std::string& packet);

} // namespace ZelInterchangeData

#endif
