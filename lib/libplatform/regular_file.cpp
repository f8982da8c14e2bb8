#include "regular_file.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

void CloseKeepingErrno(int fd)
{
    const int saved = errno;
    close(fd);
    errno = saved;
}

} // namespace

int OpenRegularFile(const std::string& path, int flags, mode_t mode)
{
    // O_NONBLOCK makes the open itself return at once for a FIFO without a
    // peer or a device that would wait; what was opened is judged by fstat,
    // so a name swapped meanwhile changes nothing.
    int fd;
    do {
        fd = open(path.c_str(), flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, mode);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        // A FIFO opened for writing without a reader reports ENXIO.
        if (errno == ENXIO) {
            errno = EINVAL;
        }
        return -1;
    }
    struct stat st;
    if (fstat(fd, &st) != 0) {
        CloseKeepingErrno(fd);
        return -1;
    }
    if (!S_ISREG(st.st_mode)) {
        close(fd);
        errno = EINVAL;
        return -1;
    }
    const int status = fcntl(fd, F_GETFL);
    if (status < 0 || fcntl(fd, F_SETFL, status & ~O_NONBLOCK) != 0) {
        CloseKeepingErrno(fd);
        return -1;
    }
    return fd;
}

int ReadRegularFile(const std::string& path, size_t limit, std::string& data)
{
    const int fd = OpenRegularFile(path, O_RDONLY);
    if (fd < 0) {
        return errno;
    }
    // The size is checked up front for the common case, and the reads stop
    // past the limit for files whose size says nothing (those of /proc).
    struct stat st;
    int result = 0;
    std::string content;
    if (fstat(fd, &st) != 0) {
        result = errno;
    } else if (st.st_size < 0 || static_cast<unsigned long long>(st.st_size) > limit) {
        result = EFBIG;
    }
    char buffer[8192];
    while (result == 0) {
        const ssize_t n = read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            result = errno;
        } else if (n == 0) {
            break;
        } else if (content.size() + static_cast<size_t>(n) > limit) {
            result = EFBIG;
        } else {
            content.append(buffer, static_cast<size_t>(n));
        }
    }
    close(fd);
    if (result == 0) {
        data.swap(content);
    }
    return result;
}

} // namespace platform
