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

/// A way to make a formatter from @p create that @p set gave what @p source makes.
template <class Formatter, class Set, class Source>
Make<Formatter> filledFormatter(ZelDataResult_tags (*create)(Formatter**, ZelDataFormatType_tags),
                                Set set, Source source)
{
    return [=] {
        auto formatter = make(create);
        EXPECT_EQ(ZelData_Ok, ((*formatter).*set)(*source()));
        return formatter;
    };
}

/// Calls @p add with each class of formatters, as it begins the names of operations, and with a way to
/// make an object.
template <class Add>
void forEachFormatter(const Add& add)
{
    using U = ZelDataUtilities;
    add("ZelDataXmpHeaderFormatter::",
        filledFormatter(U::createHeaderFormatter, &i_ZelDataHeaderFormatter::setHeader,
                        plainHeader));
    add("ZelDataXmpCaptionFormatter::",
        filledFormatter(U::createCaptionFormatter, &i_ZelDataCaptionFormatter::setCaptions,
                        captionsWithItem));
    add("ZelDataXmpTocFormatter::",
        filledFormatter(U::createTocFormatter, &i_ZelDataTocFormatter::setToc, tocWithEntry));
    add("ZelDataXmpScreenTextFormatter::",
        filledFormatter(U::createScreenTextFormatter, &i_ZelDataScreenTextFormatter::setScreenText,
                        screenTextWithItem));
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

/// The same with both classes of documents.
template <class Add>
void forEachDocument(const Add& add)
{
    add("ZelDataCore::", Make<Document>(documentOf<ZelDataCore>));
    add("ZelDataCoreXmp::", Make<Document>(documentOf<ZelDataCoreXmp>));
}

} // namespace ZelInterchangeData

#endif
