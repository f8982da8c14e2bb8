// Preloaded into the launcher in place of the C library's kill and sleep:
// each call is still made, and also written as a line to the file named by
// SERVICE_TRACE_FILE. A trace that cannot be written ends the launcher, so
// that a test never reads a short trace. The programs the launcher starts
// run untraced.
#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

__attribute__((constructor)) static void Untrace(void)
{
    unsetenv("LD_PRELOAD");
}

__attribute__((format(printf, 1, 2))) static void trace(const char* fmt, ...)
{
    static int fd = -2;
    if (fd == -2) {
        const char* path = getenv("SERVICE_TRACE_FILE");
        fd = path != NULL ? open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644) : -1;
        if (path != NULL && fd < 0) {
            abort();
        }
    }
    va_list ap;
    va_start(ap, fmt);
    if (fd >= 0 && vdprintf(fd, fmt, ap) < 0) {
        abort();
    }
    va_end(ap);
}

int kill(pid_t pid, int sig)
{
    const long r = syscall(SYS_kill, pid, sig);
    const int saved = errno;
    trace("kill %d %d %s\n", (int)pid, sig, r == 0 ? "ok" : saved == ESRCH ? "ESRCH" : "error");
    errno = saved;
    return (int)r;
}

unsigned int sleep(unsigned int seconds)
{
    trace("sleep %u\n", seconds);
    struct timespec left = {(time_t)seconds, 0};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
    return 0;
}
