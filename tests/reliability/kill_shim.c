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

enum Mode { kNone, kCreate, kStop, kChmod, kBackupBefore, kBackupAfter, kRemove };

static enum Mode mode = kNone;
static long target;
static long seen;
static char app[PATH_MAX];
static char backup[PATH_MAX];

__attribute__((constructor)) static void Setup(void)
{
    const char* at = getenv("CALDERIX_KILL_AT");
    const char* root = getenv("CALDERIX_KILL_ROOT");
    if (at != NULL && root != NULL) {
        snprintf(app, sizeof app, "%s/Calderix.app", root);
        snprintf(backup, sizeof backup, "%s/Calderix.app_tmp", root);
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
    if (mode == kRemove && r == 0 && (strcmp(path, backup) == 0 || Below(path, backup)) &&
        __atomic_add_fetch(&seen, 1, __ATOMIC_SEQ_CST) == target) {
        Die();
    }
    return r;
}
