/// @file
/// Prints the manual page of publish_video.

#include "System.h"
#include "Usage.h"

#include <cstdio>

int main()
{
    publish::prepareStreams();
    const std::string page = publish::manualPage();
    return std::fputs(page.c_str(), stdout) < 0 || std::fflush(stdout) != 0 ? 1 : 0;
}
