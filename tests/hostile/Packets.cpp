#include "hostile/Packets.h"

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "toc/Entries.h"

#include <algorithm>
#include <cstddef>

namespace ZelInterchangeData {

namespace {

using Core = i_ZelInterchangeDataCore;

/// The packet of a document that has the plain header and what @p fill sets.
template <class Fill>
std::string packetWith(const Fill& fill)
{
    const std::unique_ptr<Core> document(ZELDataCreator::createInterchangeData());
    EXPECT_EQ(ZelData_Ok, document->setDataHeader(*plainHeader()));
    EXPECT_EQ(ZelData_Ok, fill(*document));
    std::string packet;
    EXPECT_EQ(ZelData_Ok, document->writeString(packet, ZelDataFormat_Xmp, false));
    std::string masked = dateMasked(packet);
    EXPECT_NE(packet, masked) << "a packet has a date";
    return masked;
}

/// The packet of a document with a collection that has only @p item.
template <class Kind>
std::string packetWithItem(const typename Kind::Item& item)
{
    const auto data = newCollection<Kind>();
    EXPECT_EQ(ZelData_Ok, (data.get()->*Kind::add)(item));
    return packetOf(*data);
}

} // namespace

std::unique_ptr<i_ZelDataCaptionItem> newCaption()
{
    auto item = make(&ZelDataUtilities::createCaptionItemData);
    EXPECT_EQ(ZelData_Ok, item->setDuration(1));
    return item;
}

std::unique_ptr<i_ZelDataCaptions> newCaptions()
{
    return make(&ZelDataUtilities::createCaptionData);
}

std::unique_ptr<i_ZelDataTocItem> newEntry()
{
    return make(&ZelDataUtilities::createTocItemData);
}

std::unique_ptr<i_ZelDataToc> newToc()
{
    return make(&ZelDataUtilities::createTocData);
}

std::unique_ptr<i_ZelDataScreenTextItem> newScreenTextItem()
{
    return make(&ZelDataUtilities::createScreenTextItemData);
}

std::unique_ptr<i_ZelDataScreenText> newScreenText()
{
    return make(&ZelDataUtilities::createScreenTextData);
}

std::unique_ptr<i_ZelDataCaptions> captionsWithItem()
{
    return captionsOf({{0, 1, {{"fr", "text"}}}});
}

std::unique_ptr<i_ZelDataToc> tocWithEntry()
{
    return tocOf({{0, {{"fr", "text"}}}});
}

std::unique_ptr<i_ZelDataScreenText> screenTextWithItem()
{
    return screenTextOf({{}});
}

std::string packetOf(const i_ZelDataHeader& header)
{
    return packetWith([&](Core& document) {
        EXPECT_EQ(ZelData_Ok, document.setDataToc(*tocWithEntry()));
        return document.setDataHeader(header);
    });
}

std::string packetOf(const i_ZelDataCaptionItem& item)
{
    return packetWithItem<CaptionKind>(item);
}

std::string packetOf(const i_ZelDataCaptions& captions)
{
    return packetWith([&](Core& document) { return document.setDataCaptions(captions); });
}

std::string packetOf(const i_ZelDataTocItem& item)
{
    return packetWithItem<TocKind>(item);
}

std::string packetOf(const i_ZelDataToc& toc)
{
    return packetWith([&](Core& document) { return document.setDataToc(toc); });
}

std::string packetOf(const i_ZelDataScreenTextItem& item)
{
    return packetWithItem<ScreenTextKind>(item);
}

std::string packetOf(const i_ZelDataScreenText& screenText)
{
    return packetWith([&](Core& document) { return document.setDataScreenText(screenText); });
}

std::string replaced(const std::string& text, const std::string& from, const std::string& to)
{
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, done)) {
        result.append(text, done, at - done).append(to);
        done = at + from.size();
    }
    return result.append(text, done);
}

::testing::AssertionResult same(const std::string& expected, const std::string& actual)
{
    if (expected == actual) return ::testing::AssertionSuccess();
    const auto length = std::min(expected.size(), actual.size());
    std::size_t at = 0;
    while (at < length && expected[at] == actual[at])
        ++at;
    const std::size_t begin = at < 20 ? 0 : at - 20;
    return ::testing::AssertionFailure()
           << "lengths " << expected.size() << " and " << actual.size() << ", different from " << at
           << ": " << ::testing::PrintToString(expected.substr(begin, 60)) << " expected, "
           << ::testing::PrintToString(actual.substr(begin, 60)) << " found";
}

} // namespace ZelInterchangeData
