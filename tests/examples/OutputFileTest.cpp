/// @file
/// Writing what cannot be replaced.

#include "OutputFile.h"

#include "PublishError.h"
#include "examples/ProgramRunner.h"

using publish::PublishError;
using publish::writeDirectly;
using publish::writeNewFile;

namespace {

class OutputFileTest : public ProgramRunner {};

TEST_F(OutputFileTest, DirectWritingReportsAFullDevice)
{
    EXPECT_THROW(writeDirectly("/dev/full", "x"), PublishError);
    EXPECT_NO_THROW(writeDirectly("/dev/null", "x"));
}

TEST_F(OutputFileTest, DirectWritingMakesNoFile)
{
    EXPECT_THROW(writeDirectly(pathOf("none"), "x"), PublishError);
    EXPECT_TRUE(names().empty());
}

TEST_F(OutputFileTest, NewFileHasTheBytesAndNothingElse)
{
    const std::string file = write("a", "older and longer");
    writeNewFile(file, "new");
    EXPECT_EQ(contentsOf(file), "new");
    writeNewFile(pathOf("b"), "b");
    EXPECT_EQ(contentsOf(pathOf("b")), "b");
    EXPECT_THROW(writeNewFile(pathOf("none/b"), "b"), PublishError);
}

} // namespace
