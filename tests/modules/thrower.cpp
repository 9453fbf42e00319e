// A plug-in that does not answer but throws.

#include "ZelInterchangeData/ZelDataCheck.h"

#include <string>

using namespace ZelInterchangeData;

extern "C" void run(std::string& /*answer*/)
{
    check(ZelData_NoData, "run");
}
