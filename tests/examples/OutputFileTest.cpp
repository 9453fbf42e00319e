/// @file
/// Writing what cannot be replaced.

#include "OutputFile.h"

#include "PublishError.h"
#include "examples/ProgramRunner.h"

using publish::PublishError;
using publish::writeDirectly;

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

} // namespace
