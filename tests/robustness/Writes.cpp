/// @file
/// The write and close functions of this test program, which replace those of the C library.

#include "robustness/Writes.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dlfcn.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

using ZelInterchangeData::Trouble;
using ZelInterchangeData::Writes;

bool active = false;
Trouble currentTrouble = Trouble::None;
std::size_t troubledIndex = 0;
int currentDetail = 0;
std::size_t writes = 0;
std::size_t troubles = 0;
bool closesFail = false;
std::size_t closes = 0;

/// Counts this write and returns what is to happen to it.
Trouble troubleNow(int descriptor)
{
    if (!active || descriptor <= STDERR_FILENO) return Trouble::None;
    const std::size_t index = writes++;
    const bool isHit = troubledIndex == Writes::every
                           ? currentTrouble != Trouble::Interrupted || index % 2 == 0
                           : index == troubledIndex;
    if (!isHit || currentTrouble == Trouble::None) return Trouble::None;
    ++troubles;
    return currentTrouble;
}

ssize_t refused(int error)
{
    errno = error;
    return -1;
}

} // namespace

// The parameters are named as in the C library's declarations.

extern "C" ssize_t write(int fd, const void* buf, size_t n)
{
    const auto trouble = troubleNow(fd);
    if (trouble == Trouble::Fails) return refused(currentDetail);
    if (trouble == Trouble::Interrupted) return refused(EINTR);
    if (trouble == Trouble::Short) n = std::min(n, static_cast<size_t>(currentDetail));
    return syscall(SYS_write, fd, buf, n);
}

extern "C" ssize_t writev(int fd, const iovec* vec, int count)
{
    const auto trouble = troubleNow(fd);
    if (trouble == Trouble::Fails) return refused(currentDetail);
    if (trouble == Trouble::Interrupted) return refused(EINTR);
    if (trouble != Trouble::Short) return syscall(SYS_writev, fd, vec, count);
    const auto* const first =
        std::find_if(vec, vec + count, [](auto& p) { return p.iov_len != 0; });
    if (first == vec + count) return 0;
    return syscall(SYS_write, fd, first->iov_base,
                   std::min(first->iov_len, static_cast<size_t>(currentDetail)));
}

extern "C" int fclose(FILE* stream)
{
    static const auto close = reinterpret_cast<int (*)(FILE*)>(dlsym(RTLD_NEXT, "fclose"));
    const int result = close(stream);
    if (!closesFail) return result;
    ++closes;
    errno = EIO;
    return EOF;
}

namespace ZelInterchangeData {

Writes::Writes(Trouble trouble, std::size_t at, int detail)
{
    currentTrouble = trouble;
    troubledIndex = at;
    currentDetail = detail;
    writes = troubles = 0;
    active = true;
}

Writes::~Writes()
{
    active = false;
}

std::size_t Writes::count() const noexcept
{
    return writes;
}

std::size_t Writes::troubled() const noexcept
{
    return troubles;
}

FailingCloses::FailingCloses()
{
    closes = 0;
    closesFail = true;
}

FailingCloses::~FailingCloses()
{
    closesFail = false;
}

std::size_t FailingCloses::count() const noexcept
{
    return closes;
}

} // namespace ZelInterchangeData
