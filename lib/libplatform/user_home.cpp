#include "user_home.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace platform {

int EnsureHomeVariable()
{
    const char* home = getenv("HOME");
    if (home != nullptr && home[0] == '/') {
        return 0;
    }
    long size = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? static_cast<size_t>(size) : 16384);
    struct passwd entry;
    struct passwd* found = nullptr;
    int error;
    while ((error = getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE) {
        buffer.resize(buffer.size() * 2);
    }
    if (error != 0) {
        return error;
    }
    if (found == nullptr || found->pw_dir == nullptr || found->pw_dir[0] != '/') {
        return ENOENT;
    }
    return setenv("HOME", found->pw_dir, 1) == 0 ? 0 : errno;
}

} // namespace platform
