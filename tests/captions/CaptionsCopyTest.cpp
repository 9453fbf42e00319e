/// @file
/// Copying captions: the rules of their own. The rest is in sets/CopyContractTest.cpp.

#include "captions/Captions.h"
#include "support/fakes/FailingCaptions.h"

#include <cmath>
#include <limits>

namespace ZelInterchangeData {
namespace {

class CaptionsCopy : public testing::Test {
protected:
    CaptionsCopy() { dress(*target_, targetStyle_); }

    const Style targetStyle_ = {50, "Times", 60, {0.9F, 0.8F, 0.7F}, {0.3F, 0.2F, 0.1F}, 0.2F};
    std::unique_ptr<i_ZelDataCaptions> source_ = captionsOf({});
    std::unique_ptr<i_ZelDataCaptions> target_ = captionsOf({});
};

TEST_F(CaptionsCopy, CopiesNans)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(ZelData_Ok, source_->setForegroundColor(nan, nan, nan));
    EXPECT_EQ(ZelData_Ok, source_->setBackgroundOpacity(nan));
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(*source_));
    EXPECT_TRUE(std::isnan(styleOf(*target_).foreground[2]));
    EXPECT_TRUE(std::isnan(styleOf(*target_).opacity));
}

TEST_F(CaptionsCopy, AColorThatASourceDoesNotSetIsBlack)
{
    FailingCaptions source;
    source.failAt("getForegroundColor", ZelData_Ok, ZelData_Ok);
    EXPECT_CODE(*target_, ZelData_Ok, target_->copyFrom(source));
    EXPECT_EQ((std::array<float, 3>{0.0F, 0.0F, 0.0F}), styleOf(*target_).foreground);
}

/// A foreign source with a font size that every setter refuses.
class HugeFont : public ZelDataCaptions {
public:
    ZelDataResult_tags getFontSize(unsigned long& size) const override
    {
        size = 501;
        return store(ZelData_Ok);
    }
};

TEST_F(CaptionsCopy, RefusesAForeignValueThatIsOutOfRange)
{
    EXPECT_CODE(*target_, ZelData_InvalidArgument, target_->copyFrom(HugeFont()));
    EXPECT_EQ((Style{1000, "Helvetica", 60, {0.9F, 0.8F, 0.7F}, {0.3F, 0.2F, 0.1F}, 0.2F}),
              styleOf(*target_));
}

} // namespace
} // namespace ZelInterchangeData
