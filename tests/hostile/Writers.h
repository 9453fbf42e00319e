/// @file
/// Every object that writes, with something to write.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_WRITERS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_WRITERS_H

#include "hostile/Packets.h"

#include <memory>

namespace ZelInterchangeData {

std::unique_ptr<i_ZelDataHeaderFormatter> headerFormatter();
std::unique_ptr<i_ZelDataCaptionFormatter> captionFormatter();
std::unique_ptr<i_ZelDataTocFormatter> tocFormatter();
std::unique_ptr<i_ZelDataScreenTextFormatter> screenTextFormatter();

/// A document of the class @p Document with a header and one track.
template <class Document>
std::unique_ptr<i_ZelInterchangeDataCore> documentOf()
{
    auto document = std::make_unique<Document>();
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*plainHeader()));
    EXPECT_EQ(ZelData_Ok, document->setDataToc(*tocWithEntry()));
    return document;
}

} // namespace ZelInterchangeData

#endif
