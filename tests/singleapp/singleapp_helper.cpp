// Stand-in for the launcher in the single-instance tests. Prints "running"
// and exits 0, or prints "first" and keeps the instance until nobody reads
// its standard output any more. With "--barrier FIFO" it first prints
// "ready" and checks only once the FIFO is opened for writing.
#include "qtsingleapplication.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    const char* barrier = argc == 3 && std::strcmp(argv[1], "--barrier") == 0 ? argv[2] : nullptr;
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    QtSingleApplication app(argc, argv, true);
    if (barrier) {
        std::printf("ready\n");
        ::close(::open(barrier, O_RDONLY | O_CLOEXEC));
    }
    const bool running = app.isRunning();
    std::printf("%s\n", running ? "running" : "first");
    // A pipe's write end reports POLLERR once its last reader has closed.
    pollfd out{STDOUT_FILENO, 0, 0};
    while (!running && ::poll(&out, 1, -1) < 0 && errno == EINTR) {
    }
    return 0;
}
