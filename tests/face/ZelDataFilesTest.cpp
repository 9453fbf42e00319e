/// @file
/// The throwing form of replaceFile().

#include "ZelInterchangeData/ZelDataFace.h"
#include "face/Thrown.h"
#include "support/DateMask.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <system_error>
#include <utility>

namespace ZelInterchangeData {
namespace {

std::unique_ptr<i_ZelInterchangeDataCore> plainDocument()
{
    const auto header = createHeader();
    checked(*header).setVideoLength(1).setVideoWidth(2).setVideoHeight(3);
    auto document = createDocument();
    checked(*document).setDataHeader(*header);
    return document;
}

TEST(Files, AreReplacedWithTheBytesOfWriteFile)
{
    const auto document = plainDocument();
    const TempFile file;
    const TempFile other;
    file.fill("old");
    replaceFile(*document, file.path());
    replaceFile(std::as_const(*document), file.path(), ZelDataFormat_Xmp);
    checked(*document).writeFile(other.path());
    EXPECT_EQ(dateMasked(other.bytes()), dateMasked(file.bytes()));
}

TEST(Files, ThatCannotBeReplacedThrowTheErrorOfTheSystem)
{
    const ScratchFolder folder;
    const std::string path = folder.pathOf("missing/talk.xmp");
    try {
        replaceFile(*plainDocument(), path);
        FAIL() << "nothing was thrown";
    } catch (const std::system_error& error) {
        EXPECT_EQ(std::errc::no_such_file_or_directory, error.code());
        EXPECT_EQ(std::system_category(), error.code().category());
        EXPECT_EQ("replaceFile(\"" + path + "\"): " + error.code().message(), error.what());
    }
    EXPECT_TRUE(folder.isEmpty());
}

TEST(Files, WithAnyPathAreNamedOnOneLine)
{
    try {
        replaceFile(*plainDocument(), std::string("no\n\0.xmp", 8));
        FAIL() << "nothing was thrown";
    } catch (const std::system_error& error) {
        EXPECT_EQ("replaceFile(\"no\\x0A\\x00.xmp\"): " + error.code().message(), error.what());
    }
}

TEST(Files, OfADocumentThatCannotBeWrittenThrowItsCode)
{
    const ScratchFolder folder;
    EXPECT_EQ((Failure{"replaceFile", "ZelData_InvalidArgument"}),
              thrownBy([&] { replaceFile(*createDocument(), folder.pathOf("talk.xmp")); }));
    EXPECT_EQ((Failure{"replaceFile", "ZelData_UnsupportedFormat"}), thrownBy([&] {
                  replaceFile(*plainDocument(), folder.pathOf("talk.xmp"),
                              static_cast<ZelDataFormatType_tags>(2));
              }));
    EXPECT_TRUE(folder.isEmpty());
}

} // namespace
} // namespace ZelInterchangeData
