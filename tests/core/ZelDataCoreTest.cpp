#include "core/ZelDataCore.h"

#include "captions/Captions.h"
#include "core/SampleSets.h"
#include "core/TempFile.h"
#include "core/WatchedDocument.h"
#include "support/Checks.h"
#include "support/FailingAllocation.h"

#include <typeinfo>

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;
constexpr ZelDataFormatType_tags foreignFormats[] = {
    static_cast<ZelDataFormatType_tags>(0), static_cast<ZelDataFormatType_tags>(2),
    static_cast<ZelDataFormatType_tags>(0xFFFFFFFFU)};
/// A code that no operation returns.
constexpr auto untouched = static_cast<ZelDataResult_tags>(0x7E57);

/// A header without any size, which cannot be copied.
std::unique_ptr<i_ZelDataHeader> headerWithoutSize()
{
    return make(&ZelDataUtilities::createHeaderData);
}

/// A document of the class that callers get.
class Document : public ::testing::Test {
protected:
    std::string titleHeld() const
    {
        const auto target = make(&ZelDataUtilities::createHeaderData);
        EXPECT_EQ(ZelData_Ok, document_.getDataHeader(*target));
        return HeaderSet::contentsOf(*target);
    }

    ZelDataCore document_;
};

/// A document whose sets can be troubled.
class TroubledDocument : public ::testing::Test {
protected:
    WatchedDocument<ZelDataCore> document_;
};

/// Expects that @p call returns @p code and leaves the last error of @p document alone.
#define EXPECT_UNSTORED(document, code, call)                                                      \
    do {                                                                                           \
        (document).setLastError(untouched);                                                        \
        EXPECT_EQ(code, (call));                                                                   \
        EXPECT_EQ(untouched, (document).getLastError());                                           \
    } while (false)

TEST(ZELDataCreator, MakesAPlainDocumentWithoutSets)
{
    const std::unique_ptr<i_ZelInterchangeDataCore> document(
        ZELDataCreator::createInterchangeData());
    ASSERT_NE(nullptr, document);
    const auto& reference = *document;
    EXPECT_EQ(typeid(ZelDataCore), typeid(reference));
    EXPECT_EQ(ZelData_Ok, document->getLastError());
    EXPECT_CODE(*document, ZelData_NoData, document->getDataHeader(*headerWithoutSize()));
}

TEST(ZELDataCreator, EveryCallMakesANewDocument)
{
    const std::unique_ptr<i_ZelInterchangeDataCore> first(ZELDataCreator::createInterchangeData());
    const std::unique_ptr<i_ZelInterchangeDataCore> second(ZELDataCreator::createInterchangeData());
    EXPECT_NE(first, second);
}

TEST(ZELDataCreator, ThrowsWhenThereIsNoMemory)
{
    std::string message;
    try {
        const FailingAllocation failing(0);
        delete ZELDataCreator::createInterchangeData();
    } catch (const ZelDataException& exception) {
        message = exception.what();
    }
    EXPECT_EQ("Out of memory", message);
}

TEST_F(Document, KeepsNoReferenceToTheObjectsItCreates)
{
    i_ZelDataHeader* header = nullptr;
    EXPECT_CODE(document_, ZelData_Ok, document_.createDataHeader(&header));
    delete header;
    EXPECT_CODE(document_, ZelData_NoData, document_.getDataHeader(*headerWithoutSize()));
}

TEST_F(Document, RefusesToCreateIntoAnOccupiedPointer)
{
    const auto occupant = headerWithoutSize();
    auto* pointer = occupant.get();
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.createDataHeader(&pointer));
    EXPECT_EQ(occupant.get(), pointer);
}

TEST_F(Document, ReadsNothingWhateverTheArguments)
{
    EXPECT_CODE(document_, ZelData_NotImplemented, document_.readString("<x/>", xmp, false));
    EXPECT_CODE(document_, ZelData_NotImplemented, document_.readString("", xmp, true));
    EXPECT_CODE(document_, ZelData_NotImplemented, document_.readFile("", xmp));
    for (const auto format : foreignFormats) {
        EXPECT_CODE(document_, ZelData_NotImplemented, document_.readString("", format, true));
        EXPECT_CODE(document_, ZelData_NotImplemented, document_.readFile("none", format));
    }
}

TEST_F(Document, HeaderWithoutSizeReturnsTheHeadersCodeWhenThereAreNoCaptions)
{
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.setDataHeader(*headerWithoutSize()));
}

TEST_F(Document, HeaderWithoutSizeIsCopiedAsFarAsItGoes)
{
    const auto header = headerWithoutSize();
    EXPECT_EQ(ZelData_Ok, header->setTitle("as far as the title"));
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.setDataHeader(*header));
    const auto target = headerWithoutSize();
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.getDataHeader(*target));
    EXPECT_EQ("as far as the title", HeaderSet::contentsOf(*target));
}

TEST_F(Document, FailingHeaderReportsTheSuccessOfTheCaptions)
{
    EXPECT_CODE(document_, ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    EXPECT_CODE(document_, ZelData_Ok, document_.setDataHeader(*headerWithoutSize()));
}

TEST_F(TroubledDocument, FailingHeaderReportsTheLastErrorOfTheCaptions)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    document_.held<TroubledCaptions>().setLastError(ZelData_WarnTiming);
    EXPECT_CODE(document_, ZelData_WarnTiming, document_.setDataHeader(*headerWithoutSize()));
    document_.held<TroubledHeader>().on("clear", answering(ZelData_NotFound, ZelData_NoData));
    EXPECT_CODE(document_, ZelData_WarnTiming, document_.setDataHeader(*sampleHeader()));
}

TEST_F(TroubledDocument, SucceedingHeaderDoesNotAskTheCaptions)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    document_.held<TroubledCaptions>().setLastError(ZelData_WarnTiming);
    EXPECT_CODE(document_, ZelData_Ok, document_.setDataHeader(*sampleHeader()));
}

TEST_F(TroubledDocument, FailureOfAnotherSetReturnsItsOwnCodeEvenWhenThereAreCaptions)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    TroubledToc toc;
    toc.on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    EXPECT_CODE(document_, ZelData_InvalidItem, document_.setDataToc(toc));
}

TEST_F(Document, RefusesOtherFormatsAndStoresTheCode)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    const TempFile file;
    for (const auto format : foreignFormats) {
        std::string out = "before";
        EXPECT_CODE(document_, ZelData_UnsupportedFormat, document_.writeString(out, format, true));
        EXPECT_CODE(document_, ZelData_UnsupportedFormat,
                    document_.writeFile(file.path(), format, false));
        EXPECT_EQ("before", out);
    }
    EXPECT_FALSE(file.exists());
}

TEST_F(Document, TheFormatIsCheckedBeforeTheSets)
{
    std::string out;
    EXPECT_CODE(document_, ZelData_UnsupportedFormat,
                document_.writeString(out, foreignFormats[1], false));
}

TEST_F(Document, DoesNotStoreTheCodeOfAMissingHeader)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
    const TempFile file;
    std::string out = "before";
    EXPECT_UNSTORED(document_, ZelData_InvalidArgument, document_.writeString(out, xmp, true));
    EXPECT_UNSTORED(document_, ZelData_InvalidArgument,
                    document_.writeFile(file.path(), xmp, false));
    EXPECT_EQ("before", out);
    EXPECT_FALSE(file.exists());
}

TEST_F(Document, DoesNotStoreTheSuccessOfWriting)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    const TempFile file;
    std::string out;
    EXPECT_UNSTORED(document_, ZelData_Ok, document_.writeString(out, xmp, false));
    EXPECT_UNSTORED(document_, ZelData_Ok, document_.writeFile(file.path(), xmp, false));
}

TEST_F(Document, DoesNotStoreTheFailureToOpenAFile)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    const TempFile missing;
    EXPECT_UNSTORED(document_, ZelData_FileOpenFailed,
                    document_.writeFile(missing.path() + "/file.xmp", xmp, false));
    EXPECT_UNSTORED(document_, ZelData_FileOpenFailed, document_.writeFile("", xmp, false));
}

TEST_F(Document, StoresTheFailureToHandOverAHeaderWithoutSize)
{
    EXPECT_EQ(ZelData_InvalidArgument, document_.setDataHeader(*headerWithoutSize()));
    const TempFile file;
    std::string out = "before";
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.writeString(out, xmp, false));
    EXPECT_CODE(document_, ZelData_InvalidArgument, document_.writeFile(file.path(), xmp, false));
    EXPECT_EQ("before", out);
    EXPECT_FALSE(file.exists());
}

TEST_F(TroubledDocument, HeaderThatCannotBeHandedOverReturnsItsOwnCodeEvenWhenThereAreCaptions)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    document_.held<TroubledHeader>().on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    std::string out = "before";
    EXPECT_CODE(document_, ZelData_InvalidItem, document_.writeString(out, xmp, true));
    EXPECT_EQ("before", out);
}

TEST_F(TroubledDocument, SetsAreHandedOverInOrder)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataScreenText(*sampleScreenText()));
    EXPECT_EQ(ZelData_Ok, document_.setDataToc(*sampleToc()));
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    std::string out;
    document_.held<TroubledScreenText>().on("read", answering(ZelData_NotFound, ZelData_NoData));
    EXPECT_CODE(document_, ZelData_NoData, document_.writeString(out, xmp, false));
    document_.held<TroubledToc>().on("read", answering(ZelData_NotFound, ZelData_InvalidItem));
    EXPECT_CODE(document_, ZelData_InvalidItem, document_.writeString(out, xmp, false));
    document_.held<TroubledCaptions>().on("read", answering(ZelData_NotFound, ZelData_WarnTiming));
    EXPECT_CODE(document_, ZelData_WarnTiming, document_.writeString(out, xmp, false));
    document_.held<TroubledHeader>().on("read", answering(ZelData_NotFound, ZelData_InvalidUtf8));
    EXPECT_CODE(document_, ZelData_InvalidUtf8, document_.writeString(out, xmp, false));
}

TEST_F(Document, WritingLeavesItsOwnHeaderAsItWas)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    std::string out;
    EXPECT_EQ(ZelData_Ok, document_.writeString(out, xmp, false));
    const auto header = headerWithoutSize();
    EXPECT_EQ(ZelData_Ok, document_.getDataHeader(*header));
    std::vector<std::string> languages;
    EXPECT_EQ(ZelData_Ok, header->getOrderedLanguageIDs(languages));
    EXPECT_EQ(std::vector<std::string>{"ja"}, languages);
    EXPECT_EQ("Tea & \"Time\"", titleHeld());
}

TEST_F(Document, WritingLeavesTheOrderOfItsOwnItemsAsItWas)
{
    EXPECT_EQ(ZelData_Ok, document_.setDataHeader(*sampleHeader()));
    EXPECT_EQ(ZelData_Ok, document_.setDataCaptions(*sampleCaptions()));
    std::string out;
    EXPECT_EQ(ZelData_Ok, document_.writeString(out, xmp, false));
    const auto captions = make(&ZelDataUtilities::createCaptionData);
    EXPECT_EQ(ZelData_Ok, document_.getDataCaptions(*captions));
    EXPECT_EQ(4000, itemsOf(*captions).at(0).start);
}

} // namespace
} // namespace ZelInterchangeData
