// Stand-in for the launcher in the single-instance tests. Prints "running"
// and exits 0, or prints "first" and keeps the instance until nobody reads
// its standard output any more.
//
//   singleapp_helper [--barrier FIFO | --spawn-child | --linger]
//     --barrier FIFO  print "ready" and check only once the FIFO is opened for writing
//     --spawn-child   as the winner, fork and exec "--linger" and print "child <pid>"
//     --linger        print "lingering" and wait like a winner
#include "qtsingleapplication.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace {

void say(const char* line)
{
    std::printf("%s\n", line);
    std::fflush(stdout);
}

// A pipe's write end reports POLLERR once its last reader has closed.
int waitForReaderToLeave()
{
    pollfd out{STDOUT_FILENO, 0, 0};
    while (::poll(&out, 1, -1) < 0 && errno == EINTR) {
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--linger") == 0) {
        say("lingering");
        return waitForReaderToLeave();
    }
    const char* barrier = argc == 3 && std::strcmp(argv[1], "--barrier") == 0 ? argv[2] : nullptr;
    const bool spawnChild = argc == 2 && std::strcmp(argv[1], "--spawn-child") == 0;
    if (argc > 1 && !barrier && !spawnChild)
        return 2;

    QtSingleApplication app(argc, argv, true);
    if (barrier) {
        say("ready");
        ::close(::open(barrier, O_RDONLY | O_CLOEXEC));
    }
    const bool running = app.isRunning();
    if (app.isRunning() != running)
        return 3; // the answer must not change
    say(running ? "running" : "first");
    if (running)
        return 0;
    if (spawnChild) {
        // Started the way a launcher starts a program: nothing closed by hand.
        const std::string self = QCoreApplication::applicationFilePath().toStdString();
        const pid_t child = ::fork();
        if (child == 0) {
            ::execl(self.c_str(), self.c_str(), "--linger", static_cast<char*>(nullptr));
            ::_exit(127);
        }
        say(("child " + std::to_string(child)).c_str());
    }
    return waitForReaderToLeave();
}
