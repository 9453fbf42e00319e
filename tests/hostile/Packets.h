/// @file
/// Objects with only what they need, and their packets.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_PACKETS_H

#include "ZelInterchangeData/ZelInterchangeData.h"
#include "core/SampleSets.h"
#include "support/Checks.h"
#include "support/DateMask.h"

#include <memory>
#include <string>

namespace ZelInterchangeData {

std::unique_ptr<i_ZelDataCaptionItem> newCaption();
std::unique_ptr<i_ZelDataCaptions> newCaptions();
std::unique_ptr<i_ZelDataTocItem> newEntry();
std::unique_ptr<i_ZelDataToc> newToc();
std::unique_ptr<i_ZelDataScreenTextItem> newScreenTextItem();
std::unique_ptr<i_ZelDataScreenText> newScreenText();

/// Captions, a table or screen text with one item, which makes a track.
std::unique_ptr<i_ZelDataCaptions> captionsWithItem();
std::unique_ptr<i_ZelDataToc> tocWithEntry();
std::unique_ptr<i_ZelDataScreenText> screenTextWithItem();

/// The packet of a document with the object, the date masked. A header gets a table of contents, so
/// that the packet has a track.
/// @{
std::string packetOf(const i_ZelDataHeader& header);
std::string packetOf(const i_ZelDataCaptionItem& item);
std::string packetOf(const i_ZelDataCaptions& captions);
std::string packetOf(const i_ZelDataTocItem& item);
std::string packetOf(const i_ZelDataToc& toc);
std::string packetOf(const i_ZelDataScreenTextItem& item);
std::string packetOf(const i_ZelDataScreenText& screenText);
/// @}

/// @p text with @p to in each place of @p from.
std::string replaced(const std::string& text, const std::string& from, const std::string& to);

/// Expects two texts, which may be long, to be the same; shows where they begin to differ.
::testing::AssertionResult same(const std::string& expected, const std::string& actual);

} // namespace ZelInterchangeData

#endif
