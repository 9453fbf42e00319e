/// @file
/// What formatters refuse: one contract for the header's and the three tracks'.

#include "support/Checks.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ZelInterchangeData {
namespace {

const ZelDataFormatType_tags otherFormats[] = {static_cast<ZelDataFormatType_tags>(0),
                                               static_cast<ZelDataFormatType_tags>(2),
                                               static_cast<ZelDataFormatType_tags>(0xFFFFFFFF)};

/// A file name in a folder of its own, which goes with it.
class Path {
public:
    Path() : folder_(std::filesystem::path(testing::TempDir()) / folderName())
    {
        std::filesystem::create_directory(folder_);
    }
    ~Path() { std::filesystem::remove_all(folder_); }
    Path(const Path&) = delete;
    Path& operator=(const Path&) = delete;

    std::string name() const { return (folder_ / "packet.xmp").string(); }
    bool isThere() const { return std::filesystem::exists(name()); }
    void write(const std::string& text) const { std::ofstream(name()) << text; }
    std::string text() const
    {
        std::ifstream file(name());
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

private:
    /// The tests of a suite may run at the same time, each in a process of its own.
    static std::string folderName()
    {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        std::string name = std::string(test->test_suite_name()) + "." + test->name();
        std::replace(name.begin(), name.end(), '/', '-');
        return name;
    }

    std::filesystem::path folder_;
};

struct Header {
    static constexpr const char* name = "Header";
    using Data = i_ZelDataHeader;
    /// It never writes a string first, so it does not notice that there is nothing to write.
    static constexpr auto emptyWriteFile = ZelData_NotImplemented;

    static auto formatter() { return make(ZelDataUtilities::createHeaderFormatter); }
    static auto data()
    {
        auto header = make(ZelDataUtilities::createHeaderData);
        EXPECT_EQ(ZelData_Ok, header->setVideoLength(1));
        EXPECT_EQ(ZelData_Ok, header->setVideoWidth(2));
        EXPECT_EQ(ZelData_Ok, header->setVideoHeight(3));
        return header;
    }
    static constexpr auto set = &i_ZelDataHeaderFormatter::setHeader;
    static constexpr auto get = &i_ZelDataHeaderFormatter::getHeader;
    /// Something that tells a changed object from an unchanged one.
    static unsigned long mark(const Data& header)
    {
        unsigned long length = 0;
        EXPECT_EQ(ZelData_Ok, header.getVideoLength(length));
        return length;
    }
};

struct Captions {
    static constexpr const char* name = "Captions";
    using Data = i_ZelDataCaptions;
    static constexpr auto emptyWriteFile = ZelData_InvalidData;

    static auto formatter() { return make(ZelDataUtilities::createCaptionFormatter); }
    static auto data()
    {
        auto item = make(ZelDataUtilities::createCaptionItemData);
        EXPECT_EQ(ZelData_Ok, item->setDuration(1));
        auto captions = make(ZelDataUtilities::createCaptionData);
        EXPECT_EQ(ZelData_Ok, captions->addCaptionItem(*item));
        return captions;
    }
    static constexpr auto set = &i_ZelDataCaptionFormatter::setCaptions;
    static constexpr auto get = &i_ZelDataCaptionFormatter::getCaptions;
    static unsigned long mark(Data& captions)
    {
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, captions.getCaptionItemCount(count));
        return count;
    }
};

struct Toc {
    static constexpr const char* name = "Toc";
    using Data = i_ZelDataToc;
    static constexpr auto emptyWriteFile = ZelData_InvalidData;

    static auto formatter() { return make(ZelDataUtilities::createTocFormatter); }
    static auto data()
    {
        auto toc = make(ZelDataUtilities::createTocData);
        EXPECT_EQ(ZelData_Ok, toc->addTocItem(*make(ZelDataUtilities::createTocItemData)));
        return toc;
    }
    static constexpr auto set = &i_ZelDataTocFormatter::setToc;
    static constexpr auto get = &i_ZelDataTocFormatter::getToc;
    static unsigned long mark(Data& toc)
    {
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, toc.getTocItemCount(count));
        return count;
    }
};

struct ScreenText {
    static constexpr const char* name = "ScreenText";
    using Data = i_ZelDataScreenText;
    static constexpr auto emptyWriteFile = ZelData_InvalidData;

    static auto formatter() { return make(ZelDataUtilities::createScreenTextFormatter); }
    static auto data()
    {
        auto item = make(ZelDataUtilities::createScreenTextItemData);
        EXPECT_EQ(ZelData_Ok, item->setDuration(1));
        auto screenText = make(ZelDataUtilities::createScreenTextData);
        EXPECT_EQ(ZelData_Ok, screenText->addScreenTextItem(*item));
        return screenText;
    }
    static constexpr auto set = &i_ZelDataScreenTextFormatter::setScreenText;
    static constexpr auto get = &i_ZelDataScreenTextFormatter::getScreenText;
    static unsigned long mark(Data& screenText)
    {
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, screenText.getScreenTextItemCount(count));
        return count;
    }
};

/// An empty formatter and one that holds data.
template <class Set>
class FormatterStubContract : public testing::Test {
protected:
    FormatterStubContract() { EXPECT_EQ(ZelData_Ok, ((*filled_).*Set::set)(*data_)); }

    decltype(Set::formatter()) empty_ = Set::formatter();
    decltype(Set::formatter()) filled_ = Set::formatter();
    decltype(Set::data()) data_ = Set::data();
};

using Sets = testing::Types<Header, Captions, Toc, ScreenText>;

/// Names the tests after the set.
struct SetName {
    template <class Set>
    static std::string GetName(int /*index*/)
    {
        return Set::name;
    }
};

TYPED_TEST_SUITE(FormatterStubContract, Sets, SetName);

TYPED_TEST(FormatterStubContract, ANewFormatterReportsSuccess)
{
    EXPECT_EQ(ZelData_Ok, this->empty_->getLastError());
}

TYPED_TEST(FormatterStubContract, SettingTheDataSucceedsEachTime)
{
    for (int time = 0; time < 2; ++time)
        EXPECT_CODE(*this->empty_, ZelData_Ok, ((*this->empty_).*TypeParam::set)(*this->data_));
}

TYPED_TEST(FormatterStubContract, GivesNoDataBack)
{
    const auto mark = TypeParam::mark(*this->data_);
    ASSERT_NE(0U, mark);
    for (const auto* formatter : {this->empty_.get(), this->filled_.get()})
        EXPECT_CODE(*formatter, ZelData_NotImplemented, (formatter->*TypeParam::get)(*this->data_));
    EXPECT_EQ(mark, TypeParam::mark(*this->data_));
}

TYPED_TEST(FormatterStubContract, ReadsNoString)
{
    for (auto* formatter : {this->empty_.get(), this->filled_.get()})
        for (const bool flag : {false, true})
            EXPECT_CODE(*formatter, ZelData_NotImplemented,
                        formatter->readString("<rdf:li/>", ZelDataFormat_Xmp, flag));
}

TYPED_TEST(FormatterStubContract, ReadsNoFile)
{
    const Path path;
    path.write("<rdf:li/>");
    for (auto* formatter : {this->empty_.get(), this->filled_.get()})
        EXPECT_CODE(*formatter, ZelData_NotImplemented,
                    formatter->readFile(path.name(), ZelDataFormat_Xmp));
    EXPECT_EQ("<rdf:li/>", path.text());
}

TYPED_TEST(FormatterStubContract, AnyOtherFormatIsAnInternalErrorEverywhere)
{
    const Path path;
    std::string out = "as it was";
    for (auto* formatter : {this->empty_.get(), this->filled_.get()})
        for (const auto format : otherFormats) {
            EXPECT_CODE(*formatter, ZelData_InternalError,
                        formatter->writeString(out, format, true));
            EXPECT_CODE(*formatter, ZelData_InternalError,
                        formatter->readString("", format, false));
            EXPECT_CODE(*formatter, ZelData_InternalError,
                        formatter->writeFile(path.name(), format, true));
            EXPECT_CODE(*formatter, ZelData_InternalError,
                        formatter->readFile(path.name(), format));
        }
    EXPECT_EQ("as it was", out);
    EXPECT_FALSE(path.isThere());
}

TYPED_TEST(FormatterStubContract, WithoutDataThereIsNothingToWrite)
{
    std::string out = "as it was";
    for (const bool flag : {false, true})
        EXPECT_CODE(*this->empty_, ZelData_InvalidData,
                    this->empty_->writeString(out, ZelDataFormat_Xmp, flag));
    EXPECT_EQ("as it was", out);
}

TYPED_TEST(FormatterStubContract, WritesAStringAndRefusesTheFile)
{
    const Path path;
    std::string out;
    EXPECT_CODE(*this->filled_, ZelData_Ok,
                this->filled_->writeString(out, ZelDataFormat_Xmp, false));
    EXPECT_NE("", out);
    for (const bool flag : {false, true})
        EXPECT_CODE(*this->filled_, ZelData_NotImplemented,
                    this->filled_->writeFile(path.name(), ZelDataFormat_Xmp, flag));
    EXPECT_FALSE(path.isThere());
}

TYPED_TEST(FormatterStubContract, LeavesAnExistingFileAlone)
{
    const Path path;
    path.write("precious");
    EXPECT_CODE(*this->filled_, ZelData_NotImplemented,
                this->filled_->writeFile(path.name(), ZelDataFormat_Xmp, false));
    EXPECT_EQ("precious", path.text());
}

TYPED_TEST(FormatterStubContract, AFileWithoutDataGetsTheCodeOfTheWritingExceptFromTheHeader)
{
    const Path path;
    EXPECT_CODE(*this->empty_, TypeParam::emptyWriteFile,
                this->empty_->writeFile(path.name(), ZelDataFormat_Xmp, false));
    EXPECT_FALSE(path.isThere());
}

} // namespace
} // namespace ZelInterchangeData
