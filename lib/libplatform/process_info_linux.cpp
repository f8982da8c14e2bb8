#include "process_info.h"

#include <cerrno>
#include <climits>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

// What the kernel appends to the link of an executable that was unlinked.
const char kDeletedSuffix[] = " (deleted)";

} // namespace

int UserProcessExecutable(pid_t pid, std::string& exe)
{
    if (pid <= 0) {
        return ESRCH;
    }
    const std::string base = "/proc/" + std::to_string(pid);
    // The folder belongs to the process's effective user, or to root when
    // the process may not be inspected (a set-user-id program).
    struct stat st;
    if (stat(base.c_str(), &st) != 0) {
        return errno == ENOENT ? ESRCH : errno;
    }
    if (st.st_uid != geteuid()) {
        return EPERM;
    }
    char target[PATH_MAX];
    const ssize_t n = readlink((base + "/exe").c_str(), target, sizeof target - 1);
    if (n < 0) {
        // A zombie or a process that ended meanwhile has no executable.
        return errno == ENOENT ? ESRCH : (errno == EACCES ? EPERM : errno);
    }
    std::string path(target, static_cast<size_t>(n));
    const size_t suffix = sizeof kDeletedSuffix - 1;
    if (path.size() > suffix && path.compare(path.size() - suffix, suffix, kDeletedSuffix) == 0) {
        path.erase(path.size() - suffix);
    }
    exe = path;
    return 0;
}

} // namespace platform
