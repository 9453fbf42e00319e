#include "hostile/Writers.h"

namespace ZelInterchangeData {

std::unique_ptr<i_ZelDataHeaderFormatter> headerFormatter()
{
    auto formatter = make(&ZelDataUtilities::createHeaderFormatter);
    EXPECT_EQ(ZelData_Ok, formatter->setHeader(*plainHeader()));
    return formatter;
}

std::unique_ptr<i_ZelDataCaptionFormatter> captionFormatter()
{
    auto formatter = make(&ZelDataUtilities::createCaptionFormatter);
    EXPECT_EQ(ZelData_Ok, formatter->setCaptions(*captionsWithItem()));
    return formatter;
}

std::unique_ptr<i_ZelDataTocFormatter> tocFormatter()
{
    auto formatter = make(&ZelDataUtilities::createTocFormatter);
    EXPECT_EQ(ZelData_Ok, formatter->setToc(*tocWithEntry()));
    return formatter;
}

std::unique_ptr<i_ZelDataScreenTextFormatter> screenTextFormatter()
{
    auto formatter = make(&ZelDataUtilities::createScreenTextFormatter);
    EXPECT_EQ(ZelData_Ok, formatter->setScreenText(*screenTextWithItem()));
    return formatter;
}

} // namespace ZelInterchangeData
