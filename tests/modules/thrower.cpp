// A plug-in that throws instead of answering.

#include "ZelInterchangeData/ZelDataCheck.h"

#include <string>

using namespace ZelInterchangeData;

extern "C" void run(std::string& /*answer*/)
{
    check(ZelData_NoData, "run");
}
