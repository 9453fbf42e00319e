// A program with plug-ins. Usage: host HOW [PLUG_IN...]
//
// HOW is "local" or "global", the scope in which to open each plug-in, or "linked" for the plug-in that
// the program is linked with. Opens all plug-ins, calls the function run of each and prints its answer
// or error, one per line. Then closes the plug-ins and prints those that stay in the process. With
// WITH_A_COPY, the program contains a copy of the library, and uses its data sets before and after, but
// does not write.

#ifdef WITH_A_COPY
#include "ZelInterchangeData/ZelDataFace.h"
#else
#include "ZelInterchangeData/ZelDataError.h"
#endif

#include <dlfcn.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

using namespace ZelInterchangeData;

namespace {

using Run = void (*)(std::string& answer);

void* require(void* found)
{
    if (found == nullptr) {
        std::cerr << dlerror() << '\n';
        std::exit(1);
    }
    return found;
}

void runIn(void* module)
{
    try {
        std::string answer;
        reinterpret_cast<Run>(require(dlsym(module, "run")))(answer);
        std::cout << answer << '\n';
    } catch (const ZelDataError& error) {
        std::cout << "ZelDataError " << error.operation() << ' ' << error.code() << '\n';
    }
}

void useOwnCopy()
{
#ifdef WITH_A_COPY
    const auto captions = createCaptions();
    checked(*captions).addCaptionItem(*createCaptionItem(0, 2000, {{"en", "Host"}}));
    const auto toc = createToc();
    checked(*toc).addTocItem(*createTocItem(0, {{"en", "Host"}}));
    const auto screenText = createScreenText();
    checked(*screenText).addScreenTextItem(*createScreenTextItem(0, 2000, "Host"));
    const auto header = createHeader();
    checked(*header).setTitle("Host").addLanguage("en");
#endif
}

} // namespace

int main(int count, char** arguments)
{
    const std::string how = arguments[1];
    const std::vector<std::string> names(arguments + 2, arguments + count);
    useOwnCopy();
    if (how == "linked") runIn(RTLD_DEFAULT);
    std::vector<void*> modules;
    for (const std::string& name : names)
        modules.push_back(
            require(dlopen(name.c_str(), RTLD_NOW | (how == "global" ? RTLD_GLOBAL : RTLD_LOCAL))));
    for (void* module : modules)
        runIn(module);
    for (void* module : modules)
        dlclose(module);
    for (const std::string& name : names)
        if (dlopen(name.c_str(), RTLD_NOW | RTLD_NOLOAD) != nullptr)
            std::cout << name << " stays\n";
    useOwnCopy();
}
