// Preloaded into one launcher run to end it with SIGKILL at a chosen
// moment of an upgrade, without timing: the moment is a count of the file
// system calls the upgrade makes, which the launcher and libarchive's disk
// writer reach through the dynamic linker. At a creation it can instead
// stop the launcher, or take away the write permission that the rest of
// the extraction needs.
//
//   CALDERIX_KILL_ROOT  the user installation folder (~/.Calderix)
//   CALDERIX_KILL_AT    create:K        right after the K-th folder, file or
//                                       link is created below Calderix.app
//                                       (one per package entry)
//                       stop:K          the same moment, SIGSTOP instead
//                       chmod:K         the same moment, the folder holding
//                                       that entry becomes read-only (0555)
//                       backup-before   just before Calderix.app is renamed
//                                       to Calderix.app_tmp
//                       backup-after    right after that rename
//                       remove:N        right after the N-th removal below
//                                       (or of) Calderix.app_tmp
//                       trace:FILE      kills nothing; appends a line to FILE
//                                       for every write, rename, remove,
//                                       unlink, rmdir, fsync, fdatasync and
//                                       syncfs on a path below (or of) the
//                                       installation folder: "op path", and
//                                       "rename from to"
//
// The variables are dropped from the environment at load time, so that the
// processes the launcher starts run unhooked.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

enum Mode { kNone, kCreate, kStop, kChmod, kBackupBefore, kBackupAfter, kRemove, kTrace };

static enum Mode mode = kNone;
static long target;
static long seen;
static char root[PATH_MAX];
static char app[PATH_MAX];
static char backup[PATH_MAX];
static int trace_fd = -1;

__attribute__((constructor)) static void Setup(void)
{
    const char* at = getenv("CALDERIX_KILL_AT");
    const char* install = getenv("CALDERIX_KILL_ROOT");
    if (at != NULL && install != NULL) {
        snprintf(root, sizeof root, "%s", install);
        snprintf(app, sizeof app, "%s/Calderix.app", install);
        snprintf(backup, sizeof backup, "%s/Calderix.app_tmp", install);
        if (strncmp(at, "create:", 7) == 0) {
            mode = kCreate;
            target = atol(at + 7);
        } else if (strncmp(at, "stop:", 5) == 0) {
            mode = kStop;
            target = atol(at + 5);
        } else if (strncmp(at, "chmod:", 6) == 0) {
            mode = kChmod;
            target = atol(at + 6);
        } else if (strncmp(at, "remove:", 7) == 0) {
            mode = kRemove;
            target = atol(at + 7);
        } else if (strcmp(at, "backup-before") == 0) {
            mode = kBackupBefore;
        } else if (strcmp(at, "backup-after") == 0) {
            mode = kBackupAfter;
        } else if (strncmp(at, "trace:", 6) == 0) {
            mode = kTrace;
            trace_fd =
                (int)syscall(SYS_openat, AT_FDCWD, at + 6, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
            if (trace_fd < 0) {
                abort();
            }
        }
    }
    unsetenv("LD_PRELOAD");
    unsetenv("CALDERIX_KILL_AT");
    unsetenv("CALDERIX_KILL_ROOT");
}

static void Die(void)
{
    syscall(SYS_kill, getpid(), SIGKILL);
}

// path lies strictly below folder.
static int Below(const char* path, const char* folder)
{
    const size_t n = strlen(folder);
    return path != NULL && strncmp(path, folder, n) == 0 && path[n] == '/';
}

static void Created(int result, const char* path)
{
    if ((mode != kCreate && mode != kStop && mode != kChmod) || result < 0 || !Below(path, app) ||
        __atomic_add_fetch(&seen, 1, __ATOMIC_SEQ_CST) != target) {
        return;
    }
    if (mode == kCreate) {
        Die();
    } else if (mode == kStop) {
        syscall(SYS_kill, getpid(), SIGSTOP);
    } else {
        char folder[PATH_MAX];
        snprintf(folder, sizeof folder, "%s", path);
        *strrchr(folder, '/') = '\0';
        if (chmod(folder, 0555) != 0) {
            abort();
        }
    }
}

// In trace mode: one line "op path[ other]" for a path below or of the
// installation folder, written with the system call itself so that the
// trace never traces itself.
static void Trace(const char* op, const char* path, const char* other)
{
    const size_t n = strlen(root);
    if (mode != kTrace || path == NULL || strncmp(path, root, n) != 0 ||
        (path[n] != '/' && path[n] != '\0')) {
        return;
    }
    char line[3 * PATH_MAX];
    const int length = snprintf(line, sizeof line, "%s %s%s%s\n", op, path, other != NULL ? " " : "",
                                other != NULL ? other : "");
    if (length > 0 && (size_t)length < sizeof line) {
        syscall(SYS_write, trace_fd, line, (size_t)length);
    }
}

// The path an open descriptor names, for tracing; empty when unknown.
static void TraceFd(const char* op, int fd)
{
    if (mode != kTrace) {
        return;
    }
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(link, path, sizeof path - 1);
    if (n > 0) {
        path[n] = '\0';
        Trace(op, path, NULL);
    }
}

static void* Next(const char* name)
{
    void* f = dlsym(RTLD_NEXT, name);
    if (f == NULL) {
        abort();
    }
    return f;
}

int mkdir(const char* path, mode_t m)
{
    static int (*real)(const char*, mode_t);
    if (real == NULL) {
        real = (int (*)(const char*, mode_t))Next("mkdir");
    }
    const int r = real(path, m);
    Created(r, path);
    return r;
}

int symlink(const char* to, const char* path)
{
    static int (*real)(const char*, const char*);
    if (real == NULL) {
        real = (int (*)(const char*, const char*))Next("symlink");
    }
    const int r = real(to, path);
    Created(r, path);
    return r;
}

static mode_t ModeArgument(int flags, va_list ap)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? (mode_t)va_arg(ap, int) : 0;
}

int open(const char* path, int flags, ...)
{
    static int (*real)(const char*, int, ...);
    if (real == NULL) {
        real = (int (*)(const char*, int, ...))Next("open");
    }
    va_list ap;
    va_start(ap, flags);
    const mode_t m = ModeArgument(flags, ap);
    va_end(ap);
    const int r = real(path, flags, m);
    if ((flags & O_CREAT) != 0) {
        Created(r, path);
    }
    return r;
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));

int openat(int dirfd, const char* path, int flags, ...)
{
    static int (*real)(int, const char*, int, ...);
    if (real == NULL) {
        real = (int (*)(int, const char*, int, ...))Next("openat");
    }
    va_list ap;
    va_start(ap, flags);
    const mode_t m = ModeArgument(flags, ap);
    va_end(ap);
    const int r = real(dirfd, path, flags, m);
    if ((flags & O_CREAT) != 0) {
        Created(r, path);
    }
    return r;
}

int rename(const char* from, const char* to)
{
    static int (*real)(const char*, const char*);
    if (real == NULL) {
        real = (int (*)(const char*, const char*))Next("rename");
    }
    const int backing_up = strcmp(from, app) == 0 && strcmp(to, backup) == 0;
    if (backing_up && mode == kBackupBefore) {
        Die();
    }
    const int r = real(from, to);
    if (r == 0) {
        Trace("rename", from, to);
    }
    if (backing_up && r == 0 && mode == kBackupAfter) {
        Die();
    }
    return r;
}

int remove(const char* path)
{
    static int (*real)(const char*);
    if (real == NULL) {
        real = (int (*)(const char*))Next("remove");
    }
    const int r = real(path);
    if (r == 0) {
        Trace("remove", path, NULL);
    }
    if (mode == kRemove && r == 0 && (strcmp(path, backup) == 0 || Below(path, backup)) &&
        __atomic_add_fetch(&seen, 1, __ATOMIC_SEQ_CST) == target) {
        Die();
    }
    return r;
}

// Looks the real function up once; the macro keeps each wrapper to its
// own work.
#define REAL(name)                                                                                           \
    static __typeof__(&name) real_##name;                                                                    \
    if (real_##name == NULL) {                                                                               \
        real_##name = (__typeof__(&name))Next(#name);                                                        \
    }

ssize_t write(int fd, const void* data, size_t size)
{
    REAL(write)
    const ssize_t r = real_write(fd, data, size);
    if (r > 0) {
        TraceFd("write", fd);
    }
    return r;
}

// r, the result of a call on path (or fd), traced as op when it succeeded.
static int Traced(int r, const char* op, const char* path)
{
    if (r == 0) {
        Trace(op, path, NULL);
    }
    return r;
}

static int TracedFd(int r, const char* op, int fd)
{
    if (r == 0) {
        TraceFd(op, fd);
    }
    return r;
}

int unlink(const char* path)
{
    REAL(unlink)
    return Traced(real_unlink(path), "unlink", path);
}

int rmdir(const char* path)
{
    REAL(rmdir)
    return Traced(real_rmdir(path), "rmdir", path);
}

// Traced only for absolute paths, which is how the upgrade names them.
int unlinkat(int dirfd, const char* path, int flags)
{
    REAL(unlinkat)
    return Traced(real_unlinkat(dirfd, path, flags), (flags & AT_REMOVEDIR) != 0 ? "rmdir" : "unlink", path);
}

int fsync(int fd)
{
    REAL(fsync)
    return TracedFd(real_fsync(fd), "fsync", fd);
}

int fdatasync(int fd)
{
    REAL(fdatasync)
    return TracedFd(real_fdatasync(fd), "fdatasync", fd);
}

int syncfs(int fd)
{
    REAL(syncfs)
    return TracedFd(real_syncfs(fd), "syncfs", fd);
}
