#include "instance_lock_p.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace singleapp {
namespace {

// The one place where an errno becomes a result: only a lock that somebody
// else holds means "running"; any other failure just rules the place out.
LockStatus statusFromErrno(int error)
{
    if (error == EWOULDBLOCK || error == EAGAIN)
        return LockStatus::HeldElsewhere;
    return LockStatus::Unusable;
}

void closeKeepingErrno(int fd)
{
    const int saved = errno;
    ::close(fd);
    errno = saved;
}

// Returns a descriptor of `path` when it is a real folder owned by this user
// that nobody else may enter. An Own folder is created with mode 0700 when
// missing and tightened to 0700 when wider; a Given one is never changed.
// Returns -1 with errno set otherwise (EPERM when the name is a symlink, not
// a folder, belongs to somebody else, or is a Given folder open to others).
int openPrivateFolder(const QByteArray& path, FolderUse use)
{
    const bool own = use == FolderUse::Own;
    struct stat named;
    if (::lstat(path.constData(), &named) != 0) {
        if (errno != ENOENT || !own)
            return -1;
        // EEXIST: a concurrent start made it first; it is judged below like any other.
        if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return -1;
        if (::lstat(path.constData(), &named) != 0)
            return -1;
    }
    if (!S_ISDIR(named.st_mode) || named.st_uid != ::geteuid()) {
        errno = EPERM;
        return -1;
    }
    const int fd = ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return -1;
    // The name may have been swapped after lstat; only what was opened counts.
    struct stat opened;
    if (::fstat(fd, &opened) != 0) {
        closeKeepingErrno(fd);
        return -1;
    }
    if (opened.st_dev != named.st_dev || opened.st_ino != named.st_ino || opened.st_uid != ::geteuid()) {
        ::close(fd);
        errno = EPERM;
        return -1;
    }
    if (!own && (opened.st_mode & 077) != 0) {
        ::close(fd);
        errno = EPERM;
        return -1;
    }
    if (own && (opened.st_mode & 07777) != 0700 && ::fchmod(fd, 0700) != 0) {
        closeKeepingErrno(fd);
        return -1;
    }
    return fd;
}

// Returns a descriptor of the regular file `name` in `folder`, created with
// mode 0600 when missing, closed on exec so that programs this process starts
// never keep the instance. Returns -1 with errno set otherwise.
int openLockFile(int folder, const QByteArray& name)
{
    int fd;
    do {
        fd = ::openat(folder, name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY, 0600);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0)
        return -1;
    struct stat st;
    if (::fstat(fd, &st) != 0) {
        closeKeepingErrno(fd);
        return -1;
    }
    if (!S_ISREG(st.st_mode) || st.st_uid != ::geteuid()) {
        ::close(fd);
        errno = EPERM;
        return -1;
    }
    return fd;
}

// Takes an exclusive flock on `fd`, waiting for another holder as `wait`
// says. Returns 0, or -1 with errno. flock rather than fcntl locks: it
// belongs to the open file, so the kernel drops it when the holder dies,
// however it dies.
int lockExclusive(int fd, LockWait wait)
{
    int rc;
    do {
        rc = ::flock(fd, wait == LockWait::Yes ? LOCK_EX : LOCK_EX | LOCK_NB);
    } while (rc != 0 && errno == EINTR);
    return rc;
}

} // namespace

LockAttempt tryInstanceLock(const QString& folder, const QString& fileName, FolderUse use, LockWait wait)
{
    const int dir = openPrivateFolder(QFile::encodeName(folder), use);
    if (dir < 0)
        return {statusFromErrno(errno), -1};
    const int fd = openLockFile(dir, QFile::encodeName(fileName));
    closeKeepingErrno(dir);
    if (fd < 0)
        return {statusFromErrno(errno), -1};
    if (lockExclusive(fd, wait) != 0) {
        closeKeepingErrno(fd);
        return {statusFromErrno(errno), -1};
    }
    return {LockStatus::Acquired, fd};
}

void releaseInstanceLock(int handle)
{
    // Closing the only descriptor drops the flock. The file is never unlinked:
    // a start that opened it just before would lock a name nobody else sees.
    ::close(handle);
}

unsigned currentUserId()
{
    return ::geteuid();
}

} // namespace singleapp
