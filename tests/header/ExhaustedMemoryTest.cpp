/// @file
/// A header and its formatter when memory runs out: each allocation of each operation in turn.

#include "header/Headers.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace ZelInterchangeData {
namespace {

/// Too long for any string to hold it without an allocation.
const std::string longText(60, 'x');

/// The values of sampleValues(), with texts that need memory.
HeaderValues longValues()
{
    HeaderValues values = sampleValues();
    values.appName = values.appVersion = values.title = longText;
    values.creator = values.description = longText;
    values.keywords = {longText, longText + "2"};
    values.languages = {"en-" + longText, "cu-" + longText}; // "cu" has a long name
    values.contentNames = {longText, longText + "2"};
    return values;
}

/// Makes each allocation of @p operation fail in turn, each time on a new object from @p create, then
/// passes the object to @p check. Returns the number of allocations.
template <class Create, class Operation, class Check>
std::size_t failAtEachAllocation(const Create& create, const Operation& operation,
                                 const Check& check)
{
    for (std::size_t index = 0;; ++index) {
        SCOPED_TRACE("failing allocation: " + std::to_string(index));
        const auto object = create();
        ZelDataResult_tags code = ZelData_NoData;
        bool failed = false;
        {
            const FailingAllocation failing(index, Shortage::Once);
            code = operation(*object);
            failed = failing.failed();
        }
        EXPECT_EQ(failed ? ZelData_OutOfMemory : ZelData_Ok, code);
        EXPECT_EQ(code, object->getLastError());
        if (!failed) return index;
        check(*object);
    }
}

std::unique_ptr<i_ZelDataHeader> sampleHeader()
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, sampleValues());
    return header;
}

TEST(HeaderWithoutMemory, RefusesWhatItCannotStoreAndStaysUnchanged)
{
    using Operation = std::function<ZelDataResult_tags(i_ZelDataHeader&)>;
    const Texts two = {longText, longText};
    const std::string language = "fr-" + longText;
    const Operation operations[] = {
        [](i_ZelDataHeader& h) { return h.setAppName(longText); },
        [](i_ZelDataHeader& h) { return h.setAppVersion(longText); },
        [](i_ZelDataHeader& h) { return h.setTitle(longText); },
        [](i_ZelDataHeader& h) { return h.setCreator(longText); },
        [](i_ZelDataHeader& h) { return h.setDescription(longText); },
        [&](i_ZelDataHeader& h) { return h.setKeywords(two); },
        [](i_ZelDataHeader& h) { return h.addContentName(longText); },
        [&](i_ZelDataHeader& h) { return h.addLanguage(language); },
    };
    for (const Operation& operation : operations) {
        const auto failures =
            failAtEachAllocation(sampleHeader, operation, [](const i_ZelDataHeader& header) {
                EXPECT_EQ(described(sampleValues()), described(header));
            });
        EXPECT_GT(failures, 0U);
    }
}

TEST(HeaderWithoutMemory, ReordersItsLanguagesAsAWholeOrNotAtAll)
{
    const Texts reordered = {"de", "en"};
    const auto failures = failAtEachAllocation(
        sampleHeader,
        [&](i_ZelDataHeader& header) { return header.setOrderedLanguageIDs(reordered); },
        [](const i_ZelDataHeader& header) {
            EXPECT_EQ(Texts({"en", "de"}), valuesOf(header).languages);
        });
    EXPECT_GT(failures, 0U);
}

std::unique_ptr<i_ZelDataHeader> longHeader()
{
    auto header = make(&ZelDataUtilities::createHeaderData);
    fill(*header, longValues());
    return header;
}

TEST(HeaderWithoutMemory, GettersLeaveTheirArgumentAlone)
{
    using Header = i_ZelDataHeader;
    using TextGetter = ZelDataResult_tags (Header::*)(std::string&) const;
    for (const TextGetter get : {&Header::getAppName, &Header::getAppVersion, &Header::getTitle,
                                 &Header::getCreator, &Header::getDescription}) {
        std::string text = "as before";
        const auto failures = failAtEachAllocation(
            longHeader, [&](const Header& header) { return (header.*get)(text); },
            [&](const Header& /*header*/) { EXPECT_EQ("as before", text); });
        EXPECT_GT(failures, 0U);
        EXPECT_EQ(longText, text);
    }
    using ListGetter = ZelDataResult_tags (Header::*)(Texts&) const;
    const std::initializer_list<ListGetter> listGetters = {
        &Header::getKeywords, &Header::getContentNames, &Header::getOrderedLanguageIDs};
    for (const ListGetter get : listGetters) {
        Texts list = {"as before"};
        const auto failures = failAtEachAllocation(
            longHeader, [&](const Header& header) { return (header.*get)(list); },
            [&](const Header& /*header*/) { EXPECT_EQ(Texts({"as before"}), list); });
        EXPECT_GT(failures, 0U);
        EXPECT_EQ(2U, list.size());
    }
}

TEST(HeaderWithoutMemory, ForgetsItsKeywords)
{
    const auto header = longHeader();
    {
        const FailingAllocation failing(0);
        EXPECT_EQ(ZelData_Ok, header->setKeywords({}));
    }
    std::vector<std::string> keywords{longText};
    EXPECT_EQ(ZelData_Ok, header->getKeywords(keywords));
    EXPECT_TRUE(keywords.empty());
}

TEST(HeaderWithoutMemory, DisplayNamesEndWithOutOfMemory)
{
    Texts names;
    const auto failures = failAtEachAllocation(
        longHeader, [&](const i_ZelDataHeader& h) { return h.getLanguageDisplayNames(names); },
        [&](const i_ZelDataHeader& /*header*/) {
            EXPECT_LT(names.size(), 2U);
            names = Texts(); // frees its memory, so that the next call needs as much
        });
    EXPECT_GT(failures, 0U);
    EXPECT_EQ(Texts({"English", "Old Church Slavonic"}), names);
}

TEST(HeaderWithoutMemory, AFailedCopyCanBeRepeated)
{
    const auto source = longHeader();
    const auto failures = failAtEachAllocation(
        sampleHeader, [&](i_ZelDataHeader& header) { return header.copyFrom(*source); },
        [&](i_ZelDataHeader& header) {
            EXPECT_EQ(described(longValues()), described(*source));
            EXPECT_CODE(header, ZelData_Ok, header.copyFrom(*source));
            EXPECT_EQ(described(longValues()), described(header));
        });
    EXPECT_GT(failures, 0U);
}

std::unique_ptr<i_ZelDataHeaderFormatter> newFormatter()
{
    return make(&ZelDataUtilities::createHeaderFormatter);
}

TEST(HeaderFormatterWithoutMemory, AcceptsTheHeaderAtTheNextAttempt)
{
    const auto source = longHeader();
    const auto failures = failAtEachAllocation(
        newFormatter,
        [&](i_ZelDataHeaderFormatter& formatter) { return formatter.setHeader(*source); },
        [&](i_ZelDataHeaderFormatter& formatter) {
            EXPECT_CODE(formatter, ZelData_Ok, formatter.setHeader(*source));
        });
    EXPECT_GT(failures, 0U);
}

/// Also while looking up a language's name: the formatter must not drop the language.
TEST(HeaderFormatterWithoutMemory, WritesEverythingOrNothing)
{
    const auto source = longHeader();
    std::string text = "as before";
    const auto failures = failAtEachAllocation(
        [&] {
            auto formatter = newFormatter();
            EXPECT_CODE(*formatter, ZelData_Ok, formatter->setHeader(*source));
            return formatter;
        },
        [&](const i_ZelDataHeaderFormatter& formatter) {
            return formatter.writeString(text, ZelDataFormat_Xmp, false);
        },
        [&](const i_ZelDataHeaderFormatter& /*formatter*/) { EXPECT_EQ("as before", text); });
    EXPECT_GT(failures, 0U);
    EXPECT_NE(std::string::npos, text.find(">Old Church Slavonic</rdf:li>"));
    EXPECT_NE(std::string::npos, text.find("</x:xmpmeta>"));
}

} // namespace
} // namespace ZelInterchangeData
