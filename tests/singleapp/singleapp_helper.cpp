// Stand-in for the launcher in the single-instance tests. It prints one word
// for the outcome of the instance check: "running" (exits 0 at once) or
// "first" (keeps the instance until its standard input reaches end of file).
//
//   singleapp_helper [--barrier FIFO] [--spawn-child]
//     --barrier FIFO   print "ready", then wait until the FIFO is opened for
//                      writing before checking, so many starts check at once
//     --spawn-child    as the winner, start "singleapp_helper --linger" and
//                      print "child <pid>"
//   singleapp_helper --linger
//     print "lingering" and wait for end of file on standard input
#include "qtsingleapplication.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

void say(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

void waitForEndOfInput()
{
    char buf[256];
    for (;;) {
        const ssize_t n = ::read(STDIN_FILENO, buf, sizeof buf);
        if (n == 0 || (n < 0 && errno != EINTR))
            return;
    }
}

// Returns once somebody opens `fifo` for writing; false when it cannot be opened.
bool passBarrier(const char* fifo)
{
    int fd;
    do {
        fd = ::open(fifo, O_RDONLY | O_CLOEXEC);
    } while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        std::fprintf(stderr, "singleapp_helper: %s: %s\n", fifo, std::strerror(errno));
        return false;
    }
    ::close(fd);
    return true;
}

// Starts this program again with --linger the way a launcher starts another
// program: fork and exec, nothing closed by hand. Returns its pid, or -1.
pid_t spawnLingeringChild()
{
    const std::string self = QCoreApplication::applicationFilePath().toStdString();
    char linger[] = "--linger";
    char* const argv[] = {const_cast<char*>(self.c_str()), linger, nullptr};
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::execv(argv[0], argv);
        ::_exit(127);
    }
    if (pid < 0)
        std::fprintf(stderr, "singleapp_helper: fork: %s\n", std::strerror(errno));
    return pid;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--linger") == 0) {
        say("lingering");
        waitForEndOfInput();
        return 0;
    }
    const char* barrier = nullptr;
    bool spawnChild = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--barrier") == 0 && i + 1 < argc) {
            barrier = argv[++i];
        } else if (std::strcmp(argv[i], "--spawn-child") == 0) {
            spawnChild = true;
        } else {
            std::fprintf(stderr, "singleapp_helper: unknown argument '%s'\n", argv[i]);
            return 2;
        }
    }

    QtSingleApplication app(argc, argv, true);
    if (barrier) {
        say("ready");
        if (!passBarrier(barrier))
            return 2;
    }
    const bool running = app.isRunning();
    if (app.isRunning() != running) {
        say("unstable");
        return 3;
    }
    if (running) {
        say("running");
        return 0;
    }
    say("first");
    if (spawnChild) {
        const pid_t child = spawnLingeringChild();
        if (child < 0)
            return 2;
        std::printf("child %d\n", static_cast<int>(child));
        std::fflush(stdout);
    }
    waitForEndOfInput();
    return 0;
}
