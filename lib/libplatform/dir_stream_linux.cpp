#include "dir_stream.h"

#include <cerrno>

namespace platform {

// glibc's readdir is safe on a stream that no other thread reads, and
// readdir_r is deprecated there, so the caller's storage goes unused.
int ReadDirEntry(DIR* dir, struct dirent&, struct dirent*& entry)
{
    errno = 0;
    entry = readdir(dir);
    if (entry == nullptr && errno != 0)
        return errno;
    return 0;
}

} // namespace platform
