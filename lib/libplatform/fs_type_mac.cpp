#include "fs_type.h"

#include <cerrno>
#include <sys/mount.h>
#include <sys/param.h>

namespace platform {

int FileSystemTypeName(const std::string& path, std::string& name)
{
    struct statfs info;
    if (statfs(path.c_str(), &info) != 0)
        return errno;
    name = info.f_fstypename;
    return 0;
}

} // namespace platform
