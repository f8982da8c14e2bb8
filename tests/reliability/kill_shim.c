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
//                                       for every write, remove and syncfs on
//                                       a path below (or of) the installation
//                                       folder: "op path"; and for every kill
//                                       and sleep:
//                                       "kill PID SIG ok|ESRCH|error",
//                                       "sleep SECONDS"
//
// The variables are dropped from the environment at load time, so that the
// processes the launcher starts run unhooked.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
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
static const char* const kModes[] = {"",        "create:", "stop:", "chmod:", "backup-before", "backup-after",
                                     "remove:", "trace:"};

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
    for (int m = kCreate; at != NULL && install != NULL && m <= kTrace; ++m) {
        const size_t n = strlen(kModes[m]);
        if (strncmp(at, kModes[m], n) == 0 && (kModes[m][n - 1] == ':' || at[n] == '\0')) {
            mode = (enum Mode)m;
            target = atol(at + n);
            snprintf(root, sizeof root, "%s", install);
            snprintf(app, sizeof app, "%s/Calderix.app", install);
            snprintf(backup, sizeof backup, "%s/Calderix.app_tmp", install);
        }
    }
    if (mode == kTrace && (trace_fd = (int)syscall(SYS_openat, AT_FDCWD, at + 6,
                                                   O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644)) < 0) {
        abort();
    }
    unsetenv("LD_PRELOAD");
    unsetenv("CALDERIX_KILL_AT");
    unsetenv("CALDERIX_KILL_ROOT");
}

// Looks the real function up once; there is no going on without it.
#define REAL(name)                                                                                           \
    static __typeof__(&name) real_##name;                                                                    \
    if (real_##name == NULL && (real_##name = (__typeof__(&name))dlsym(RTLD_NEXT, #name)) == NULL) {         \
        abort();                                                                                             \
    }

static void Die(void)
{
    syscall(SYS_kill, getpid(), SIGKILL);
}

// path is folder or (strictly) below it.
static int Under(const char* path, const char* folder, int or_itself)
{
    const size_t n = strlen(folder);
    return path != NULL && strncmp(path, folder, n) == 0 &&
           (path[n] == '/' || (or_itself && path[n] == '\0'));
}

// In trace mode, one line to the trace, written with the system call itself
// so that the trace never traces itself.
__attribute__((format(printf, 1, 2))) static void Put(const char* fmt, ...)
{
    char line[3 * PATH_MAX];
    va_list ap;
    va_start(ap, fmt);
    const int length = vsnprintf(line, sizeof line, fmt, ap);
    va_end(ap);
    if (mode == kTrace && length > 0 && (size_t)length < sizeof line) {
        syscall(SYS_write, trace_fd, line, (size_t)length);
    }
}

// r, the result of a call on path (or below the installation folder),
// traced as op when it succeeded.
static int Traced(int r, const char* op, const char* path)
{
    if (r == 0 && mode == kTrace && Under(path, root, 1)) {
        Put("%s %s\n", op, path);
    }
    return r;
}

// The same for a call on an open descriptor, named by the path it has.
static int TracedFd(int r, const char* op, int fd)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t n = mode == kTrace && r == 0 ? readlink(link, path, sizeof path - 1) : -1;
    if (n > 0) {
        path[n] = '\0';
        Traced(0, op, path);
    }
    return r;
}

static int Created(int result, const char* path)
{
    if ((mode != kCreate && mode != kStop && mode != kChmod) || result < 0 || !Under(path, app, 0) ||
        __atomic_add_fetch(&seen, 1, __ATOMIC_SEQ_CST) != target) {
        return result;
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
    return result;
}

int mkdir(const char* path, mode_t m)
{
    REAL(mkdir)
    return Created(real_mkdir(path, m), path);
}

int symlink(const char* to, const char* path)
{
    REAL(symlink)
    return Created(real_symlink(to, path), path);
}

static mode_t ModeArgument(int flags, va_list ap)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? (mode_t)va_arg(ap, int) : 0;
}

int openat(int dirfd, const char* path, int flags, ...)
{
    REAL(openat)
    va_list ap;
    va_start(ap, flags);
    const mode_t m = ModeArgument(flags, ap);
    va_end(ap);
    const int r = real_openat(dirfd, path, flags, m);
    return (flags & O_CREAT) != 0 ? Created(r, path) : r;
}

// open as openat, which is what the C library does too.
int open(const char* path, int flags, ...)
{
    va_list ap;
    va_start(ap, flags);
    const mode_t m = ModeArgument(flags, ap);
    va_end(ap);
    return openat(AT_FDCWD, path, flags, m);
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));

int rename(const char* from, const char* to)
{
    REAL(rename)
    const int backing_up = strcmp(from, app) == 0 && strcmp(to, backup) == 0;
    if (backing_up && mode == kBackupBefore) {
        Die();
    }
    const int r = real_rename(from, to);
    if (backing_up && r == 0 && mode == kBackupAfter) {
        Die();
    }
    return r;
}

int remove(const char* path)
{
    REAL(remove)
    const int r = Traced(real_remove(path), "remove", path);
    if (mode == kRemove && r == 0 && Under(path, backup, 1) &&
        __atomic_add_fetch(&seen, 1, __ATOMIC_SEQ_CST) == target) {
        Die();
    }
    return r;
}

ssize_t write(int fd, const void* data, size_t size)
{
    REAL(write)
    const ssize_t r = real_write(fd, data, size);
    TracedFd(r > 0 ? 0 : -1, "write", fd);
    return r;
}

int syncfs(int fd)
{
    REAL(syncfs)
    return TracedFd(real_syncfs(fd), "syncfs", fd);
}

int kill(pid_t pid, int sig)
{
    const int r = (int)syscall(SYS_kill, pid, sig);
    const int saved = errno;
    Put("kill %d %d %s\n", (int)pid, sig, r == 0 ? "ok" : saved == ESRCH ? "ESRCH" : "error");
    errno = saved;
    return r;
}

unsigned int sleep(unsigned int seconds)
{
    REAL(sleep)
    Put("sleep %u\n", seconds);
    return real_sleep(seconds);
}
