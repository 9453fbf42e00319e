/// @file
/// Compares documents with every combination of data sets with the files in data/.

#include "core/SampleSets.h"
#include "core/TempFile.h"
#include "core/ZelDataCore.h"
#include "core/ZelDataCoreXmp.h"
#include "support/Checks.h"

#include <filesystem>
#include <tuple>

namespace ZelInterchangeData {
namespace {

constexpr auto xmp = ZelDataFormat_Xmp;

/// Which of header, captions, table of contents and screen text there are.
using Choice = std::tuple<bool, bool, bool, bool>;

std::string nameOf(const Choice& choice)
{
    const auto [header, captions, toc, screenText] = choice;
    std::string name;
    if (header) name += "-header";
    if (captions) name += "-captions";
    if (toc) name += "-toc";
    if (screenText) name += "-screentext";
    return name.empty() ? "nothing" : name.substr(1);
}

class DocumentTest : public ::testing::TestWithParam<Choice> {
protected:
    void fill(i_ZelInterchangeDataCore& document) const
    {
        const auto [header, captions, toc, screenText] = GetParam();
        if (header) {
            EXPECT_EQ(ZelData_Ok, document.setDataHeader(*sampleHeader()));
        }
        if (captions) {
            EXPECT_EQ(ZelData_Ok, document.setDataCaptions(*sampleCaptions()));
        }
        if (toc) {
            EXPECT_EQ(ZelData_Ok, document.setDataToc(*sampleToc()));
        }
        if (screenText) {
            EXPECT_EQ(ZelData_Ok, document.setDataScreenText(*sampleScreenText()));
        }
    }
    static std::string expectedPacket()
    {
        const auto folder = std::filesystem::path(__FILE__).parent_path() / "data";
        return bytesOf(folder / (nameOf(GetParam()) + ".xmp"));
    }
    static void expectPacket(const i_ZelInterchangeDataCore& document)
    {
        std::string out;
        EXPECT_EQ(ZelData_Ok, document.writeString(out, xmp, false));
        EXPECT_EQ(expectedPacket(), withoutDate(out));
        const TempFile file;
        EXPECT_EQ(ZelData_Ok, document.writeFile(file.path(), xmp, false));
        EXPECT_EQ("<?xml version=\"1.0\" encoding=\"utf-8\" ?>" + expectedPacket(),
                  withoutDate(file.bytes()));
    }
    static void expectNoHeader(const i_ZelInterchangeDataCore& document)
    {
        const TempFile file;
        std::string out = "before";
        EXPECT_EQ(ZelData_InvalidArgument, document.writeString(out, xmp, true));
        EXPECT_EQ(ZelData_InvalidArgument, document.writeFile(file.path(), xmp, false));
        EXPECT_EQ("before", out);
        EXPECT_FALSE(file.exists());
    }
    static void expectOutcome(const i_ZelInterchangeDataCore& document)
    {
        if (std::get<0>(GetParam())) {
            expectPacket(document);
        } else {
            expectNoHeader(document);
        }
    }
};

TEST_P(DocumentTest, IsWrittenByteForByte)
{
    ZelDataCore document;
    fill(document);
    expectOutcome(document);
}

TEST_P(DocumentTest, IsWrittenByteForByteByTheWriterItself)
{
    ZelDataCoreXmp document;
    fill(document);
    expectOutcome(document);
}

TEST_P(DocumentTest, IsWrittenTheSameWayAgain)
{
    ZelDataCoreXmp document;
    fill(document);
    expectOutcome(document);
    expectOutcome(document);
}

INSTANTIATE_TEST_SUITE_P(EveryChoiceOfSets, DocumentTest,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool(), ::testing::Bool(),
                                            ::testing::Bool()),
                         [](const auto& choice) {
                             auto name = nameOf(choice.param);
                             for (auto& c : name)
                                 c = c == '-' ? '_' : c;
                             return name;
                         });

} // namespace
} // namespace ZelInterchangeData
