#include "robustness/SmallFileSystem.h"

#include "robustness/ChildProcess.h"

#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace ZelInterchangeData {

namespace {

/// Keeps the user and the group of this process in its new user namespace.
void mapUser(uid_t user, gid_t group)
{
    put("/proc/self/setgroups", "deny");
    put("/proc/self/uid_map", std::to_string(user) + " " + std::to_string(user) + " 1");
    put("/proc/self/gid_map", std::to_string(group) + " " + std::to_string(group) + " 1");
}

} // namespace

void put(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string mountSmallFileSystem(const std::string& folder)
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0)
        return refusal("a mount name space");
    if (user != 0) mapUser(user, group);
    if (mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("none", folder.c_str(), "tmpfs", 0, "size=16k,mode=0777") != 0) {
        return refusal("a mount");
    }
    return "";
}

void fillUp(const std::string& folder, std::size_t left)
{
    put(folder + "/filler", std::string(16384 - left, 'f'));
}

} // namespace ZelInterchangeData
