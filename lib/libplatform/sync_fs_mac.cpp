#include "sync_fs.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace platform {

// There is no syncfs: sync() starts the write-back of every file system,
// and F_FULLFSYNC on the folder waits until the drive holding it has
// written its cache to the medium.
int SyncFileSystem(const std::string& path)
{
    const int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    sync();
    const int error = fcntl(fd, F_FULLFSYNC) == 0 ? 0 : errno;
    close(fd);
    return error;
}

} // namespace platform
