#include "core/ZelDataCoreXmp.h"

#include "core/HostileLocale.h"
#include "core/SampleSets.h"
#include "core/TempFile.h"
#include "core/WatchedDocument.h"
#include "support/Checks.h"

#include <filesystem>
#include <new>
#include <stdexcept>

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;
constexpr auto foreign = static_cast<ZelDataFormatType_tags>(2);
const std::string declaration = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>";

using Languages = std::vector<std::string>;

class ZelDataCoreXmpTest : public ::testing::Test {
protected:
    void setHeader(const i_ZelDataHeader& header)
    {
        EXPECT_EQ(ZelData_Ok, document_.setDataHeader(header));
    }
    void setAll()
    {
        setHeader(*sampleHeader());
        EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
        EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
        EXPECT_EQ(ZelData_Ok, document_.setDataScreenText(*sampleScreenText()));
    }
    TroubledHeader& header() const { return document_.held<TroubledHeader>(); }
    TroubledCaptions& captions() const { return document_.held<TroubledCaptions>(); }
    Languages languages() const
    {
        Languages ids;
        EXPECT_EQ(ZelData_Ok, header().getOrderedLanguageIDs(ids));
        return ids;
    }
    /// Expects that writing returns and stores @p code, leaves the text alone with and without the
    /// flag, and creates no file.
    void expectFailure(ZelDataResult_tags code) const
    {
        std::string out = "before";
        EXPECT_CODE(document_, code, document_.writeString(out, xmp, false));
        EXPECT_CODE(document_, code, document_.writeString(out, xmp, true));
        EXPECT_EQ("before", out);
        const TempFile file;
        EXPECT_CODE(document_, code, document_.writeFile(file.path(), xmp, false));
        EXPECT_FALSE(file.exists());
    }
    void expectSuccess() const
    {
        std::string out;
        EXPECT_CODE(document_, ZelData_Ok, document_.writeString(out, xmp, false));
    }
    std::string written() const
    {
        std::string out = "before";
        EXPECT_CODE(document_, ZelData_Ok, document_.writeString(out, xmp, false));
        return out;
    }

    WatchedDocument<ZelDataCoreXmp> document_;
};

TEST_F(ZelDataCoreXmpTest, AMissingHeaderIsAnInvalidArgumentEvenWhenOtherSetsExist)
{
    expectFailure(ZelData_InvalidArgument);
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
    EXPECT_EQ(ZelData_Ok, document_.setDataScreenText(*sampleScreenText()));
    expectFailure(ZelData_InvalidArgument);
}

TEST_F(ZelDataCoreXmpTest, TheHeaderIsCheckedBeforeTheFormat)
{
    std::string out;
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.writeString(out, foreign, false));
}

TEST_F(ZelDataCoreXmpTest, AHeaderThatLacksOneSizeIsInvalidData)
{
    for (const int missing : {0, 1, 2}) {
        ZelDataCoreXmp document;
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
        EXPECT_CODE(document, ZelData_InvalidArgument, document.setDataHeader(*header));
        std::string out = "before";
        EXPECT_CODE(document, ZelData_InvalidData, document.writeString(out, xmp, false));
        EXPECT_EQ("before", out);
    }
}

TEST_F(ZelDataCoreXmpTest, AHeaderThatIsValidWithAWarningIsInvalidData)
{
    setHeader(*sampleHeader());
    header().on("isValid", answering(ZelData_WarnTiming, ZelData_NoData));
    expectFailure(ZelData_InvalidData);
    EXPECT_EQ(Languages{"ja"}, languages());
}

TEST_F(ZelDataCoreXmpTest, LanguagesThatCannotBeClearedReturnTheHeadersLastError)
{
    setHeader(*sampleHeader());
    header().on("clearLanguages", answering(ZelData_WarnNoChange, ZelData_InvalidItem));
    expectFailure(ZelData_InvalidItem);
}

TEST_F(ZelDataCoreXmpTest, WithoutCaptionsTheOnlyLanguageIsAmericanEnglish)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
    expectSuccess();
    EXPECT_EQ(Languages{"en-US"}, languages());
}

TEST_F(ZelDataCoreXmpTest, CaptionsWithoutLanguagesGiveOnlyAmericanEnglish)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*make(&ZelDataUtilities::createCaptionData)));
    expectSuccess();
    EXPECT_EQ(Languages{"en-US"}, languages());
}

TEST_F(ZelDataCoreXmpTest, TheLanguagesOfTheHeaderAreThoseOfTheCaptionsInTheirOrder)
{
    for (const Languages& order : {Languages{"de", "fr"}, Languages{"fr", "de"}}) {
        setHeader(*sampleHeader());
        const auto source = make(&ZelDataUtilities::createCaptionData);
        for (const auto& id : order)
            addCaption(*source, id, "text", 0);
        EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*source));
        expectSuccess();
        EXPECT_EQ(order, languages());
    }
}

TEST_F(ZelDataCoreXmpTest, LanguagesOfTheCaptionsThatCannotBeReadCountAsNone)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    for (const auto code : {ZelData_WarnTiming, ZelData_NoData}) {
        captions().on("getOrderedLanguageIDs", atCall(1, answering(code, ZelData_InvalidItem)));
        expectSuccess();
        EXPECT_EQ(Languages{"en-US"}, languages());
    }
}

TEST_F(ZelDataCoreXmpTest, ExhaustedMemoryOfTheCaptionsIsNotIgnored)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    for (const Act& act :
         {answering(ZelData_OutOfMemory, ZelData_OutOfMemory), throwing(std::bad_alloc())}) {
        captions().on("getOrderedLanguageIDs", atCall(1, act));
        std::string out;
        EXPECT_CODE(document_, ZelData_OutOfMemory, document_.writeString(out, xmp, true));
    }
}

TEST_F(ZelDataCoreXmpTest, AnExceptionOfTheCaptionsIsAnInternalError)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    captions().on("getOrderedLanguageIDs", throwing(std::runtime_error("trouble")));
    expectFailure(ZelData_InternalError);
}

TEST_F(ZelDataCoreXmpTest, ALanguageOfTheCaptionsThatTheHeaderRefusesReturnsItsLastError)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    header().on("addLanguage", answering(ZelData_NotFound, ZelData_WarnTiming));
    expectFailure(ZelData_WarnTiming);
}

TEST_F(ZelDataCoreXmpTest, AWarningForALanguageOfTheCaptionsPasses)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    header().on("addLanguage",
                atCall(1, answering(ZelData_WarnAlreadyExists, ZelData_WarnAlreadyExists)));
    expectSuccess();
    EXPECT_EQ(Languages{"de"}, languages());
}

TEST_F(ZelDataCoreXmpTest, LanguagesThatCannotBeCountedReturnTheHeadersLastError)
{
    setHeader(*sampleHeader());
    header().on("getLanguageCount", answering(ZelData_WarnTiming, ZelData_InvalidItem));
    expectFailure(ZelData_InvalidItem);
}

TEST_F(ZelDataCoreXmpTest, ANumberOfLanguagesThatTheHeaderDoesNotSetCountsAsZero)
{
    setHeader(*sampleHeader());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    header().on("getLanguageCount", answering(ZelData_Ok, ZelData_Ok));
    expectSuccess();
    EXPECT_EQ("en-US", languages().back());
}

TEST_F(ZelDataCoreXmpTest, AmericanEnglishThatTheHeaderRefusesReturnsItsLastError)
{
    setHeader(*sampleHeader());
    header().on("addLanguage", answering(ZelData_NotFound, ZelData_InvalidItem));
    expectFailure(ZelData_InvalidItem);
}

TEST_F(ZelDataCoreXmpTest, AWarningForAmericanEnglishPasses)
{
    setHeader(*plainHeader());
    header().on("addLanguage", answering(ZelData_WarnAlreadyExists, ZelData_WarnAlreadyExists));
    EXPECT_EQ(std::string::npos, written().find("zel:langName"));
}

TEST_F(ZelDataCoreXmpTest, AnotherFormatIsRefusedAfterTheLanguagesWereReplaced)
{
    setHeader(*sampleHeader());
    std::string out = "before";
    EXPECT_CODE(document_, ZelData_UnsupportedFormat, document_.writeString(out, foreign, true));
    EXPECT_EQ("before", out);
    EXPECT_EQ(Languages{"en-US"}, languages());
}

TEST_F(ZelDataCoreXmpTest, WritingAFileInAnotherFormatIsRefusedAndNoFileIsTouched)
{
    setHeader(*sampleHeader());
    const TempFile file;
    file.fill("kept");
    EXPECT_CODE(document_, ZelData_UnsupportedFormat,
                document_.writeFile(file.path(), foreign, false));
    EXPECT_EQ("kept", file.bytes());
}

TEST_F(ZelDataCoreXmpTest, ASetThatItsFormatterCannotCopyReturnsTheFormattersLastError)
{
    setAll();
    document_.held<TroubledScreenText>().on("read", answering(ZelData_WarnTiming, ZelData_NoData));
    expectFailure(ZelData_NoData);
    document_.held<TroubledToc>().on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    expectFailure(ZelData_InvalidItem);
    captions().on("read", answering(ZelData_NotFound, ZelData_WarnNoChange));
    expectFailure(ZelData_WarnNoChange);
    header().on("read", answering(ZelData_NotFound, ZelData_InvalidUtf8));
    expectFailure(ZelData_InvalidUtf8);
}

TEST_F(ZelDataCoreXmpTest, AHeaderThatThrowsIsAnInternalErrorAndOneWithoutMemoryIsOutOfMemory)
{
    setHeader(*sampleHeader());
    for (const char* operation :
         {"isValid", "clearLanguages", "addLanguage", "getLanguageCount", "read"}) {
        header().on(operation, throwing(std::runtime_error("trouble")));
        expectFailure(ZelData_InternalError);
        header().on(operation, throwing(std::bad_alloc()));
        expectFailure(ZelData_OutOfMemory);
        header().leave(operation);
    }
}

TEST_F(ZelDataCoreXmpTest, EmptySetsWriteNoTracks)
{
    setHeader(*sampleHeader());
    const auto alone = withoutDate(written());
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*make(&ZelDataUtilities::createCaptionData)));
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*make(&ZelDataUtilities::createTocData)));
    EXPECT_EQ(ZelData_Ok,
              document_.setDataScreenText(*make(&ZelDataUtilities::createScreenTextData)));
    EXPECT_EQ(alone, withoutDate(written()));
    EXPECT_NE(std::string::npos, alone.find("<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>"));
}

TEST_F(ZelDataCoreXmpTest, TracksAreSiblingsInTheOrderCaptionsTocScreenText)
{
    setAll();
    const auto packet = written();
    const auto begin = packet.find("<xmpDM:Tracks><rdf:Bag><rdf:li><rdf:Description "
                                   "xmpDM:trackType=\"Caption\"");
    const auto second = packet.find("</rdf:Description></rdf:li><rdf:li><rdf:Description "
                                    "xmpDM:trackType=\"TableOfContents\"");
    const auto third = packet.find("</rdf:Description></rdf:li><rdf:li><rdf:Description "
                                   "xmpDM:trackType=\"ScreenText\"");
    const auto end = packet.find("</rdf:Description></rdf:li></rdf:Bag></xmpDM:Tracks>");
    EXPECT_NE(std::string::npos, begin);
    EXPECT_LT(begin, second);
    EXPECT_LT(second, third);
    EXPECT_LT(third, end);
    EXPECT_NE(std::string::npos, end);
}

TEST_F(ZelDataCoreXmpTest, AnEmptyTrackListInTheCreatorIsNotTheHeadersOwn)
{
    const auto source = plainHeader();
    const std::string emptyList = "<xmpDM:Tracks><rdf:Bag></rdf:Bag></xmpDM:Tracks>";
    EXPECT_EQ(ZelData_Ok, source->setCreator(emptyList));
    setHeader(*source);
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
    EXPECT_NE(std::string::npos, written().find("dc:creator=\"" + emptyList + "\" "));
}

TEST_F(ZelDataCoreXmpTest, TheTextIsReplacedOrAppendedAsAsked)
{
    setAll();
    const auto packet = withoutDate(written());
    std::string out = "before";
    EXPECT_CODE(document_, ZelData_Ok, document_.writeString(out, xmp, true));
    EXPECT_EQ("before" + packet, withoutDate(out));
    EXPECT_CODE(document_, ZelData_Ok, document_.writeString(out, xmp, false));
    EXPECT_EQ(packet, withoutDate(out));
}

TEST_F(ZelDataCoreXmpTest, TheStringHasNoDeclaration)
{
    setHeader(*plainHeader());
    EXPECT_EQ(0U, written().find("<x:xmpmeta xmlns:x=\"adobe:ns:meta/\" >"));
}

TEST_F(ZelDataCoreXmpTest, ReadsNothingWhateverTheArguments)
{
    for (const auto format : {xmp, foreign}) {
        EXPECT_CODE(document_, ZelData_NotImplemented, document_.readString("", format, false));
        EXPECT_CODE(document_, ZelData_NotImplemented, document_.readFile("none", format));
    }
}

TEST_F(ZelDataCoreXmpTest, TheFileIsTheDeclarationAndThePacketWhateverTheFlag)
{
    setAll();
    const auto packet = withoutDate(written());
    for (const bool flag : {false, true}) {
        const TempFile file;
        file.fill(std::string(10000, '?'));
        EXPECT_CODE(document_, ZelData_Ok, document_.writeFile(file.path(), xmp, flag));
        EXPECT_EQ(declaration + packet, withoutDate(file.bytes()));
    }
}

TEST_F(ZelDataCoreXmpTest, TheFileIsWholeWhateverTheLengthOfThePacket)
{
    constexpr std::size_t block = 1024; // is written at once
    const TempFile file;
    for (std::size_t length = 1; length <= block; ++length) {
        const auto header = sampleHeader();
        EXPECT_EQ(ZelData_Ok, header->setTitle(std::string(length, 't')));
        setHeader(*header);
        ASSERT_EQ(ZelData_Ok, document_.writeFile(file.path(), xmp, false));
        ASSERT_EQ(withoutDate(declaration + written()), withoutDate(file.bytes())) << length;
    }
}

TEST_F(ZelDataCoreXmpTest, TheFileHoldsTheSameBytesWhateverTheLocale)
{
    setAll();
    const auto packet = withoutDate(written());
    EXPECT_NE(std::string::npos, packet.find("\xE8\x8C\xB6 \xF0\x9F\x8D\xB5"));
    for (const char* name : localeNames) {
        const TempFile file;
        {
            const HostileLocale hostile(name);
            ASSERT_TRUE(hostile.isInPlace()) << name;
            EXPECT_CODE(document_, ZelData_Ok, document_.writeFile(file.path(), xmp, false));
        }
        EXPECT_EQ(declaration + packet, withoutDate(file.bytes())) << name;
    }
}

TEST_F(ZelDataCoreXmpTest, TheFileEndsAtTheFirstZeroByteOfThePacketAndTheStringDoesNot)
{
    const auto source = plainHeader();
    EXPECT_EQ(ZelData_Ok, source->setCreator(std::string("Ann\0Bo", 6)));
    setHeader(*source);
    const TempFile file;
    EXPECT_CODE(document_, ZelData_Ok, document_.writeFile(file.path(), xmp, false));
    const auto packet = withoutDate(written());
    const auto zero = packet.find('\0');
    ASSERT_NE(std::string::npos, zero);
    EXPECT_NE(std::string::npos, packet.find("</x:xmpmeta>"));
    EXPECT_EQ(declaration + packet.substr(0, zero), withoutDate(file.bytes()));
}

TEST_F(ZelDataCoreXmpTest, AFileThatCannotBeOpenedIsReported)
{
    setHeader(*plainHeader());
    const TempFile missing;
    EXPECT_CODE(document_, ZelData_FileOpenFailed,
                document_.writeFile(missing.path() + "/file.xmp", xmp, false));
    EXPECT_CODE(document_, ZelData_FileOpenFailed,
                document_.writeFile(::testing::TempDir(), xmp, false));
    EXPECT_CODE(document_, ZelData_FileOpenFailed, document_.writeFile("", xmp, false));
}

TEST_F(ZelDataCoreXmpTest, APathThatIsTooLongOrReservedIsReportedOrWritten)
{
    setHeader(*plainHeader());
    EXPECT_CODE(document_, ZelData_FileOpenFailed,
                document_.writeFile(::testing::TempDir() + std::string(300, 'x'), xmp, false));
#ifdef _WIN32
    // Devices, and names that hold what no name of a file may hold.
    for (const std::string name :
         {"NUL", "aux.xmp", "com9", "a<b.xmp", "a|b.xmp", "a?.xmp", "x.xmp. "}) {
        const std::string path = ::testing::TempDir() + name;
        const auto code = document_.writeFile(path, xmp, false);
        EXPECT_TRUE(code == ZelData_Ok || code == ZelData_FileOpenFailed) << name << ": " << code;
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
    }
#endif
}

TEST_F(ZelDataCoreXmpTest, APathWithAZeroByteCannotBeOpenedAndNoFileIsTouched)
{
    setHeader(*plainHeader());
    const TempFile file;
    file.fill("kept");
    EXPECT_CODE(document_, ZelData_FileOpenFailed,
                document_.writeFile(file.path() + std::string("\0x", 2), xmp, false));
    EXPECT_EQ("kept", file.bytes());
}

TEST_F(ZelDataCoreXmpTest, AFullDeviceIsNotReported)
{
    ASSERT_TRUE(std::filesystem::is_character_file("/dev/full"));
    setHeader(*plainHeader());
    EXPECT_CODE(document_, ZelData_Ok, document_.writeFile("/dev/full", xmp, false));
}

/// A document whose own writeString() writes another text.
class OtherText : public ZelDataCoreXmp {
public:
    ZelDataResult_tags writeString(std::string& out, ZelDataFormatType_tags /*format*/,
                                   bool append) const override
    {
        EXPECT_FALSE(append);
        EXPECT_EQ("", out);
        out = "text";
        setLastError(lastError);
        return code;
    }

    ZelDataResult_tags code = ZelData_Ok;
    ZelDataResult_tags lastError = ZelData_NoData;
};

TEST(WriteFile, WritesTheTextOfTheDocumentsOwnWriteString)
{
    const OtherText document;
    const TempFile file;
    EXPECT_CODE(document, ZelData_Ok, document.writeFile(file.path(), xmp, true));
    EXPECT_EQ(declaration + "text", file.bytes());
}

TEST(WriteFile, StopsWithTheLastErrorAtAWarningOfWriteString)
{
    OtherText document;
    document.code = ZelData_WarnTiming;
    const TempFile file;
    EXPECT_CODE(document, ZelData_NoData, document.writeFile(file.path(), xmp, false));
    EXPECT_FALSE(file.exists());
}

} // namespace
} // namespace ZelInterchangeData
