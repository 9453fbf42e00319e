/// @file
/// The main function of the test programs: GoogleTest's, and the command that runs a failed test alone.

#include <gtest/gtest.h>

#include <iostream>
#include <string>
#include <utility>

namespace {

/// Prints that command after each failed test.
class CommandOfFailedTest : public testing::EmptyTestEventListener {
public:
    explicit CommandOfFailedTest(std::string program) : program_(std::move(program)) {}

private:
    void OnTestEnd(const testing::TestInfo& test) override
    {
        if (test.result()->Failed())
            std::cout << "To run this test alone: " << program_
                      << " --gtest_filter=" << test.test_suite_name() << '.' << test.name()
                      << std::endl;
    }

    std::string program_;
};

} // namespace

int main(int count, char** arguments)
{
    testing::InitGoogleTest(&count, arguments);
    // GoogleTest deletes it.
    testing::UnitTest::GetInstance()->listeners().Append(new CommandOfFailedTest(arguments[0]));
    return RUN_ALL_TESTS();
}
