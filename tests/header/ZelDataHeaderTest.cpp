/// @file
/// The fields, the content names and the whole-header operations.

#include "header/Headers.h"
#include "support/Checks.h"
#include "support/LongNumbers.h"

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace ZelInterchangeData {
namespace {

using Header = i_ZelDataHeader;
using Code = ZelDataResult_tags;

class ZelDataHeaderTest : public testing::Test {
protected:
    std::unique_ptr<Header> header_ = make(&ZelDataUtilities::createHeaderData);

    Texts contentNames() const { return valuesOf(*header_).contentNames; }
    void addContentNames(const Texts& names)
    {
        for (const std::string& name : names)
            EXPECT_CODE(*header_, ZelData_Ok, header_->addContentName(name));
    }
};

TEST_F(ZelDataHeaderTest, ANewHeaderHoldsTheDefaultsAndIsNotValid)
{
    EXPECT_EQ(ZelData_Ok, header_->getLastError());
    EXPECT_EQ(described(HeaderValues()), described(*header_));
    EXPECT_CODE(*header_, ZelData_InvalidArgument, header_->isValid());
    bool flag = false;
    EXPECT_CODE(*header_, ZelData_Ok, header_->getShowSearchBar(flag));
    EXPECT_TRUE(flag);
    EXPECT_CODE(*header_, ZelData_Ok, header_->getIPodExplicit(flag));
    EXPECT_FALSE(flag);
}

TEST_F(ZelDataHeaderTest, EachFieldKeepsWhatItIsGiven)
{
    fill(*header_, sampleValues());
    EXPECT_EQ(described(sampleValues()), described(*header_));
}

TEST_F(ZelDataHeaderTest, TextsAreStoredWithoutAnyCheck)
{
    const std::string bytes("\xFF<&\0\xC3\n", 6);
    using Setter = Code (Header::*)(const std::string&);
    using Getter = Code (Header::*)(std::string&) const;
    for (const auto& [set, get] :
         {std::pair<Setter, Getter>(&Header::setAppName, &Header::getAppName),
          {&Header::setAppVersion, &Header::getAppVersion},
          {&Header::setTitle, &Header::getTitle},
          {&Header::setCreator, &Header::getCreator},
          {&Header::setDescription, &Header::getDescription}}) {
        std::string text;
        EXPECT_CODE(*header_, ZelData_Ok, (*header_.*set)(bytes));
        EXPECT_CODE(*header_, ZelData_Ok, (*header_.*get)(text));
        EXPECT_EQ(bytes, text);
        EXPECT_CODE(*header_, ZelData_Ok, (*header_.*set)(""));
        EXPECT_CODE(*header_, ZelData_Ok, (*header_.*get)(text));
        EXPECT_EQ("", text);
    }
}

TEST_F(ZelDataHeaderTest, KeywordsAreReplacedAsAWholeAndMayRepeat)
{
    Texts keywords;
    EXPECT_CODE(*header_, ZelData_Ok, header_->setKeywords({"old", "older"}));
    EXPECT_CODE(*header_, ZelData_Ok, header_->setKeywords({"b", "\xFF", "b", ""}));
    EXPECT_CODE(*header_, ZelData_Ok, header_->getKeywords(keywords));
    EXPECT_EQ(Texts({"b", "\xFF", "b", ""}), keywords);
}

TEST_F(ZelDataHeaderTest, FlagsCanBeSetAndCleared)
{
    for (const bool flag : {true, false}) {
        bool read = !flag;
        EXPECT_CODE(*header_, ZelData_Ok, header_->setIPodExplicit(flag));
        EXPECT_CODE(*header_, ZelData_Ok, header_->getIPodExplicit(read));
        EXPECT_EQ(flag, read);
        read = !flag;
        EXPECT_CODE(*header_, ZelData_Ok, header_->setShowSearchBar(flag));
        EXPECT_CODE(*header_, ZelData_Ok, header_->getShowSearchBar(read));
        EXPECT_EQ(flag, read);
    }
}

TEST_F(ZelDataHeaderTest, ZeroIsRefusedAsASizeAndTheEarlierValueStays)
{
    using Setter = Code (Header::*)(unsigned long);
    using Getter = Code (Header::*)(unsigned long&) const;
    for (const auto& [set, get] :
         {std::pair<Setter, Getter>(&Header::setVideoLength, &Header::getVideoLength),
          {&Header::setVideoWidth, &Header::getVideoWidth},
          {&Header::setVideoHeight, &Header::getVideoHeight}}) {
        // The last one does not fit into 32 bits and is not truncated.
        for (const unsigned long value : {1UL, 4294967295UL, above32Bits(0)}) {
            unsigned long read = 0;
            EXPECT_CODE(*header_, ZelData_Ok, (*header_.*set)(value));
            EXPECT_CODE(*header_, ZelData_InvalidArgument, (*header_.*set)(0));
            EXPECT_CODE(*header_, ZelData_Ok, (*header_.*get)(read));
            EXPECT_EQ(value, read);
        }
    }
}

TEST_F(ZelDataHeaderTest, AHeaderIsValidWhenLengthAndSizeAreSet)
{
    for (int missing = 0; missing < 3; ++missing) {
        const auto header = make(&ZelDataUtilities::createHeaderData);
        if (missing != 0) {
            EXPECT_EQ(ZelData_Ok, header->setVideoLength(1));
        }
        if (missing != 1) {
            EXPECT_EQ(ZelData_Ok, header->setVideoWidth(1));
        }
        if (missing != 2) {
            EXPECT_EQ(ZelData_Ok, header->setVideoHeight(1));
        }
        EXPECT_CODE(*header, ZelData_InvalidArgument, header->isValid());
        EXPECT_EQ(ZelData_Ok, header->setVideoLength(1));
        EXPECT_EQ(ZelData_Ok, header->setVideoWidth(1));
        EXPECT_EQ(ZelData_Ok, header->setVideoHeight(1));
        EXPECT_CODE(*header, ZelData_Ok, header->isValid());
    }
}

/// Deliberate: the search-bar flag and the content names survive.
TEST_F(ZelDataHeaderTest, ClearingLeavesTheSearchBarAndTheContentNames)
{
    fill(*header_, sampleValues());
    EXPECT_CODE(*header_, ZelData_Ok, header_->clearHeader());
    HeaderValues left;
    left.showSearchBar = false;
    left.contentNames = {"z.mp4", "a.xml"};
    EXPECT_EQ(described(left), described(*header_));
    EXPECT_CODE(*header_, ZelData_InvalidArgument, header_->isValid());
}

TEST_F(ZelDataHeaderTest, HeadersFromTheFactoryAreIndependent)
{
    const auto other = make(&ZelDataUtilities::createHeaderData);
    fill(*other, sampleValues());
    EXPECT_EQ(described(HeaderValues()), described(*header_));
}

// Content names

TEST_F(ZelDataHeaderTest, ContentNamesKeepTheirOrder)
{
    addContentNames({"z.mp4", "a.mp4", "A.mp4", "", "\xF0\x9F\x98\x80"});
    EXPECT_EQ(Texts({"z.mp4", "a.mp4", "A.mp4", "", "\xF0\x9F\x98\x80"}), contentNames());
    unsigned long count = 99;
    EXPECT_CODE(*header_, ZelData_Ok, header_->getContentNameCount(count));
    EXPECT_EQ(5UL, count);
}

/// The code differs from that for a language that is already listed.
TEST_F(ZelDataHeaderTest, AContentNameThatIsPresentIsNotAddedAgain)
{
    addContentNames({"a.mp4", "b.mp4"});
    EXPECT_CODE(*header_, ZelData_WarnNoChange, header_->addContentName("a.mp4"));
    EXPECT_EQ(Texts({"a.mp4", "b.mp4"}), contentNames());
}

TEST_F(ZelDataHeaderTest, AContentNameThatIsNotUtf8IsRefused)
{
    for (const char* name : {"a\xC3", "\xFF", "\xC0\x80"})
        EXPECT_CODE(*header_, ZelData_InvalidUtf8, header_->addContentName(name));
    EXPECT_EQ(Texts(), contentNames());
}

TEST_F(ZelDataHeaderTest, RemovingAContentNameRemovesTheIdenticalOne)
{
    addContentNames({"a", "b", "c"});
    EXPECT_CODE(*header_, ZelData_WarnNoChange, header_->removeContentName("B"));
    EXPECT_CODE(*header_, ZelData_Ok, header_->removeContentName("b"));
    EXPECT_CODE(*header_, ZelData_WarnNoChange, header_->removeContentName("b"));
    EXPECT_EQ(Texts({"a", "c"}), contentNames());
}

TEST_F(ZelDataHeaderTest, ClearingTheContentNamesLeavesTheRest)
{
    fill(*header_, sampleValues());
    EXPECT_CODE(*header_, ZelData_Ok, header_->clearContentNames());
    HeaderValues left = sampleValues();
    left.contentNames.clear();
    EXPECT_EQ(described(left), described(*header_));
}

TEST_F(ZelDataHeaderTest, ContentNamesAreFoundByteForByte)
{
    addContentNames({"a.mp4"});
    for (const auto& [name, expected] : {std::pair("a.mp4", true), std::pair("A.mp4", false)}) {
        std::string asked = name;
        bool exists = !expected;
        EXPECT_CODE(*header_, ZelData_Ok, header_->doesContentNameExist(asked, exists));
        EXPECT_EQ(expected, exists);
        EXPECT_EQ(name, asked);
    }
}

} // namespace
} // namespace ZelInterchangeData
