#include "robustness/ProcessState.h"

#include <cfenv>
#include <clocale>
#include <csignal>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <locale>
#include <new>
#include <sstream>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

namespace ZelInterchangeData {

namespace {

/// The bytes of @p value in hexadecimal.
template <class Value>
std::string bytesOf(const Value& value)
{
    std::string text;
    const auto* const end = reinterpret_cast<const unsigned char*>(&value + 1);
    for (const auto* byte = reinterpret_cast<const unsigned char*>(&value); byte != end; ++byte)
        text += std::to_string(*byte) + ' ';
    return text;
}

void addLocales(ProcessState& state)
{
    const std::locale global;
    state.emplace_back("locale of C", std::setlocale(LC_ALL, nullptr));
    state.emplace_back("locale of the thread", bytesOf(uselocale(locale_t())));
    state.emplace_back("locale of C++", bytesOf(global) + global.name());
}

void addEnvironment(ProcessState& state)
{
    std::string all;
    for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable)
        all.append(*variable).append("\n");
    state.emplace_back("environment", all);
    state.emplace_back("folder", std::filesystem::current_path());
}

/// What the kernel reports. Asking for it changes nothing.
void addStatus(ProcessState& state)
{
    std::ifstream status("/proc/self/status");
    const std::string names =
        " Umask: Uid: Gid: Groups: Threads: SigPnd: ShdPnd: SigBlk: SigIgn: SigCgt: CapEff:"
        " NoNewPrivs: ";
    for (std::string line; std::getline(status, line);) {
        const auto name = line.substr(0, line.find('\t'));
        if (names.find(" " + name + " ") != std::string::npos) state.emplace_back(name, line);
    }
}

std::string membersOf(const sigset_t& signals)
{
    std::string members;
    for (int number = 1; number < NSIG; ++number)
        members += sigismember(&signals, number) == 1 ? '1' : '0';
    return members;
}

void addSignals(ProcessState& state)
{
    for (int number = 1; number < NSIG; ++number) {
        struct sigaction action {};
        if (sigaction(number, nullptr, &action) != 0) continue;
        state.emplace_back("handler of signal " + std::to_string(number),
                           bytesOf(action.sa_handler) + std::to_string(action.sa_flags) + ' ' +
                               membersOf(action.sa_mask));
    }
}

void addLimits(ProcessState& state)
{
    for (const auto resource : {RLIMIT_FSIZE, RLIMIT_NOFILE, RLIMIT_STACK, RLIMIT_AS, RLIMIT_CORE,
                                RLIMIT_CPU, RLIMIT_DATA}) {
        rlimit limit{};
        getrlimit(resource, &limit);
        state.emplace_back("limit " + std::to_string(resource),
                           std::to_string(limit.rlim_cur) + ' ' + std::to_string(limit.rlim_max));
    }
    itimerval timer{};
    getitimer(ITIMER_REAL, &timer);
    state.emplace_back("timer", timer.it_value.tv_sec != 0 ? "1" : "0");
}

void addDescriptors(ProcessState& state)
{
    std::ostringstream open;
    for (int descriptor = 0; descriptor < 256; ++descriptor) {
        std::error_code error;
        const auto target =
            std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error);
        if (!error) open << descriptor << ' ' << target << ' ';
    }
    state.emplace_back("open descriptors", open.str());
}

/// Without FE_INEXACT, which any calculation may raise.
void addFloatingPoint(ProcessState& state)
{
    state.emplace_back("rounding", std::to_string(std::fegetround()));
    state.emplace_back("traps", std::to_string(fegetexcept()));
    state.emplace_back("floating-point errors",
                       std::to_string(std::fetestexcept(FE_ALL_EXCEPT & ~FE_INEXACT)));
}

void addStream(ProcessState& state, const std::string& name, const std::ios& stream)
{
    std::ostringstream text;
    text << stream.flags() << ' ' << stream.precision() << ' ' << stream.width() << ' '
         << stream.rdstate() << ' ' << stream.exceptions() << ' ' << stream.rdbuf() << ' '
         << bytesOf(stream.getloc());
    state.emplace_back(name, text.str());
}

void addHandlersOfCpp(ProcessState& state)
{
    state.emplace_back("handler of exhausted memory", bytesOf(std::get_new_handler()));
    state.emplace_back("handler of termination", bytesOf(std::get_terminate()));
}

} // namespace

ProcessState processState()
{
    ProcessState state;
    addFloatingPoint(state); // before anything calculates
    addLocales(state);
    addEnvironment(state);
    addStatus(state);
    addSignals(state);
    addLimits(state);
    addDescriptors(state);
    addStream(state, "std::cin", std::cin);
    addStream(state, "std::cout", std::cout);
    addStream(state, "std::cerr", std::cerr);
    addStream(state, "std::clog", std::clog);
    addHandlersOfCpp(state);
    return state;
}

std::string difference(const ProcessState& before, const ProcessState& after)
{
    if (before.size() != after.size()) return "a different number of values";
    std::string text;
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i] == after[i]) continue;
        text += before[i].first + " was " + before[i].second + ", is " + after[i].second + '\n';
    }
    return text;
}

} // namespace ZelInterchangeData
