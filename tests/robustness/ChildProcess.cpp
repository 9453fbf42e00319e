#include "robustness/ChildProcess.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <grp.h>
#include <iostream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace ZelInterchangeData {

namespace {

const std::string refused = "refused by this machine: ";

/// The child's part: writes @p said to the pipe and ends without cleaning up what belongs to the parent.
[[noreturn]] void answer(int pipe, const std::string& said)
{
    const auto written = write(pipe, said.data(), said.size());
    _exit(written == static_cast<ssize_t>(said.size()) ? 0 : 1);
}

std::string readAll(int pipe)
{
    std::string all;
    char block[1024];
    for (ssize_t size = 0; (size = read(pipe, block, sizeof block)) > 0;)
        all.append(block, static_cast<std::size_t>(size));
    return all;
}

std::string saidBy(const std::function<std::string()>& body)
{
    try {
        return body();
    } catch (const std::exception& exception) {
        return std::string("threw: ") + exception.what();
    }
}

} // namespace

std::string inChild(const std::function<std::string()>& body)
{
    int ends[2];
    if (pipe(ends) != 0) return "no pipe";
    std::fflush(nullptr); // or the child prints what is still in the buffers
    const pid_t child = fork();
    if (child == 0) answer(ends[1], saidBy(body));
    close(ends[1]);
    const std::string said = readAll(ends[0]);
    close(ends[0]);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) return "no child";
    return status == 0 ? said : "died with status " + std::to_string(status);
}

bool becomeNobody()
{
    constexpr uid_t nobody = 65534;
    if (geteuid() != 0) return true;
    return setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0;
}

std::size_t openDescriptors()
{
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

std::string refusal(const std::string& what)
{
    return refused + what + ": " + std::strerror(errno);
}

void expectFine(const std::string& said)
{
    if (said.compare(0, refused.size(), refused) == 0) {
        std::cout << said << std::endl;
        return;
    }
    EXPECT_EQ(fine, said);
}

} // namespace ZelInterchangeData
