// A plug-in that answers with the names of three codes, two of which the library does not have.

#include "ZelInterchangeData/ZelDataResultText.h"

#include <string>

using namespace ZelInterchangeData;

extern "C" void run(std::string& answer)
{
    for (const unsigned code : {0x8000000EU, 0x8000000FU, 0x80000010U})
        answer.append(answer.empty() ? "" : " ")
            .append(toString(static_cast<ZelDataResult_tags>(code)));
}
