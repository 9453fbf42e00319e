/// @file
/// What all formatters refuse: one contract for the header and the three tracks.

#include "captions/Captions.h"
#include "screentext/Items.h"
#include "toc/Entries.h"

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

/// A file name in a folder of its own, which the destructor removes.
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
    /// The tests of a suite may run at the same time in several processes.
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
    /// A value that differs between a changed object and an unchanged one.
    static unsigned long mark(const Data& header)
    {
        unsigned long length = 0;
        EXPECT_EQ(ZelData_Ok, header.getVideoLength(length));
        return length;
    }
};

/// What all sets with tracks have in common.
template <class Kind>
struct Track : Kind {
    static constexpr auto emptyWriteFile = ZelData_InvalidData;
    static constexpr auto set = Kind::setData;

    static auto formatter() { return make(Kind::makeFormatter); }
    static unsigned long mark(typename Kind::Data& data)
    {
        unsigned long count = 0;
        EXPECT_EQ(ZelData_Ok, (data.*Kind::count)(count));
        return count;
    }
};

struct Captions : Track<CaptionKind> {
    static auto data() { return captionsOf({{0, 1}}); }
    static constexpr auto get = &Formatter::getCaptions;
};

struct Toc : Track<TocKind> {
    static auto data() { return tocOf({{0}}); }
    static constexpr auto get = &Formatter::getToc;
};

struct ScreenText : Track<ScreenTextKind> {
    static auto data() { return screenTextOf({{0, 1}}); }
    static constexpr auto get = &Formatter::getScreenText;
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

TYPED_TEST_SUITE(FormatterStubContract, Sets, KindName);

TYPED_TEST(FormatterStubContract, ANewFormatterReportsSuccess)
{
    EXPECT_EQ(ZelData_Ok, this->empty_->getLastError());
}

TYPED_TEST(FormatterStubContract, SettingTheDataSucceedsEachTime)
{
    for (int time = 0; time < 2; ++time)
        EXPECT_CODE(*this->empty_, ZelData_Ok, ((*this->empty_).*TypeParam::set)(*this->data_));
}

TYPED_TEST(FormatterStubContract, ReturnsNoData)
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
            for (const bool flag : {false, true}) {
                EXPECT_CODE(*formatter, ZelData_InternalError,
                            formatter->writeString(out, format, flag));
                EXPECT_CODE(*formatter, ZelData_InternalError,
                            formatter->readString("<a></a>", format, flag));
                EXPECT_CODE(*formatter, ZelData_InternalError,
                            formatter->writeFile(path.name(), format, flag));
            }
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

TYPED_TEST(FormatterStubContract, AFileWithoutDataReturnsTheCodeOfWriteStringExceptForTheHeader)
{
    const Path path;
    EXPECT_CODE(*this->empty_, TypeParam::emptyWriteFile,
                this->empty_->writeFile(path.name(), ZelDataFormat_Xmp, false));
    EXPECT_FALSE(path.isThere());
}

} // namespace
} // namespace ZelInterchangeData
