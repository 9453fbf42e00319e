#include "hostile/Packets.h"

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
    return dateMasked(packet);
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
    auto captions = newCaptions();
    addCaption(*captions, "fr", "text", 0);
    return captions;
}

std::unique_ptr<i_ZelDataToc> tocWithEntry()
{
    auto toc = newToc();
    const auto entry = newEntry();
    EXPECT_EQ(ZelData_Ok, entry->setTextForLanguage("text", "fr"));
    EXPECT_EQ(ZelData_Ok, toc->addTocItem(*entry));
    return toc;
}

std::unique_ptr<i_ZelDataScreenText> screenTextWithItem()
{
    auto screenText = newScreenText();
    EXPECT_EQ(ZelData_Ok, screenText->addScreenTextItem(*newScreenTextItem()));
    return screenText;
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
    const auto captions = newCaptions();
    EXPECT_EQ(ZelData_Ok, captions->addCaptionItem(item));
    return packetOf(*captions);
}

std::string packetOf(const i_ZelDataCaptions& captions)
{
    return packetWith([&](Core& document) { return document.setDataCaptions(captions); });
}

std::string packetOf(const i_ZelDataTocItem& item)
{
    const auto toc = newToc();
    EXPECT_EQ(ZelData_Ok, toc->addTocItem(item));
    return packetOf(*toc);
}

std::string packetOf(const i_ZelDataToc& toc)
{
    return packetWith([&](Core& document) { return document.setDataToc(toc); });
}

std::string packetOf(const i_ZelDataScreenTextItem& item)
{
    const auto screenText = newScreenText();
    EXPECT_EQ(ZelData_Ok, screenText->addScreenTextItem(item));
    return packetOf(*screenText);
}

std::string packetOf(const i_ZelDataScreenText& screenText)
{
    return packetWith([&](Core& document) { return document.setDataScreenText(screenText); });
}

std::string dateMasked(std::string packet)
{
    // Only the title comes before the date, and its quotation marks are escaped.
    const std::string name = " dc:date=\"";
    const std::size_t begin = packet.find(name);
    EXPECT_NE(std::string::npos, begin);
    if (begin == std::string::npos) return packet;
    const std::size_t end = packet.find('"', begin + name.size());
    return packet.replace(begin, end - begin, name + "DATE");
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
