/// @file
/// Every object that writes, with something to write.

#ifndef ZELINTERCHANGEDATA_TESTS_HOSTILE_WRITERS_H
#define ZELINTERCHANGEDATA_TESTS_HOSTILE_WRITERS_H

#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "hostile/Packets.h"
#include "hostile/Parameter.h"

#include <memory>
#include <string>

namespace ZelInterchangeData {

using Document = i_ZelInterchangeDataCore;

/// Calls @p add with the class of each formatter, as the names of its operations begin, and a function
/// that makes one.
template <class Add>
void forEachFormatter(const Add& add)
{
    using U = ZelDataUtilities;
    using Header = i_ZelDataHeaderFormatter;
    using Captions = i_ZelDataCaptionFormatter;
    using Toc = i_ZelDataTocFormatter;
    using Text = i_ZelDataScreenTextFormatter;
    add("ZelDataXmpHeaderFormatter::",
        Make<Header>(filledFormatter<&U::createHeaderFormatter, &Header::setHeader, plainHeader>));
    add("ZelDataXmpCaptionFormatter::",
        Make<Captions>(
            filledFormatter<&U::createCaptionFormatter, &Captions::setCaptions, captionsWithItem>));
    add("ZelDataXmpTocFormatter::",
        Make<Toc>(filledFormatter<&U::createTocFormatter, &Toc::setToc, tocWithEntry>));
    add("ZelDataXmpScreenTextFormatter::",
        Make<Text>(filledFormatter<&U::createScreenTextFormatter, &Text::setScreenText,
                                   screenTextWithItem>));
}

/// A document of the class @p Made with a header and one track.
template <class Made>
std::unique_ptr<Document> documentOf()
{
    auto document = std::make_unique<Made>();
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*plainHeader()));
    EXPECT_EQ(ZelData_Ok, document->setDataToc(*tocWithEntry()));
    return document;
}

/// Calls @p add with the class of each document and a function that makes one, as forEachFormatter().
template <class Add>
void forEachDocument(const Add& add)
{
    add("ZelDataCore::", Make<Document>(documentOf<ZelDataCore>));
    add("ZelDataCoreXmp::", Make<Document>(documentOf<ZelDataCoreXmp>));
}

} // namespace ZelInterchangeData

#endif
