// What it costs to make a freshly written copy durable, the two ways the
// upgrade could do it: syncfs of the file system, or fsync of every file and
// folder written (and of the folder holding the copy). Each round writes a
// tree shaped like the reference payload (2,863 files, 178 MB, ten files a
// folder) below FOLDER, times one of the two, and removes the tree; the two
// alternate. FOLDER must be on the disk to mean anything.
//
//   bench_sync FOLDER [ROUNDS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <ftw.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

const int kFiles = 2863;
const long long kBytes = 178LL << 20;

struct Tree {
    std::vector<std::string> files;
    std::vector<std::string> folders;
};

bool WriteAll(int fd, const std::vector<char>& block, long long size)
{
    while (size > 0) {
        const size_t n = static_cast<size_t>(std::min<long long>(size, static_cast<long long>(block.size())));
        if (write(fd, block.data(), n) != static_cast<ssize_t>(n)) {
            return false;
        }
        size -= static_cast<long long>(n);
    }
    return true;
}

// Half the files a quarter of the mean size, half seven quarters.
bool WriteTree(const std::string& root, Tree& tree)
{
    const std::vector<char> block(1 << 20, 'x');
    if (mkdir(root.c_str(), 0755) != 0) {
        return false;
    }
    tree.folders.push_back(root);
    const long long mean = kBytes / kFiles;
    for (int i = 0; i < kFiles; ++i) {
        if (i % 10 == 0) {
            tree.folders.push_back(root + "/d" + std::to_string(i / 10));
            if (mkdir(tree.folders.back().c_str(), 0755) != 0) {
                return false;
            }
        }
        tree.files.push_back(tree.folders.back() + "/f" + std::to_string(i));
        const int fd = open(tree.files.back().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
        const bool written = fd >= 0 && WriteAll(fd, block, i % 2 == 0 ? mean / 4 : mean * 7 / 4);
        if (fd < 0 || close(fd) != 0 || !written) {
            return false;
        }
    }
    return true;
}

bool SyncPath(const std::string& path, bool whole_file_system)
{
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool synced = fd >= 0 && (whole_file_system ? syncfs(fd) : fsync(fd)) == 0;
    return fd >= 0 && close(fd) == 0 && synced;
}

bool SyncEach(const Tree& tree, const std::string& parent)
{
    for (const std::string& path : tree.files) {
        if (!SyncPath(path, false)) {
            return false;
        }
    }
    for (const std::string& path : tree.folders) {
        if (!SyncPath(path, false)) {
            return false;
        }
    }
    return SyncPath(parent, false);
}

int RemoveEntry(const char* path, const struct stat*, int, struct FTW*)
{
    return remove(path);
}

void Report(const char* name, std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    std::printf("%-10s median %8.0f ms  (", name, ms[ms.size() / 2]);
    for (double m : ms) {
        std::printf(" %.0f", m);
    }
    std::printf(" )\n");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FOLDER [ROUNDS]\n", argv[0]);
        return 2;
    }
    const std::string folder = argv[1];
    const int rounds = argc > 2 ? std::max(1, std::atoi(argv[2])) : 5;
    std::vector<double> syncfs_ms;
    std::vector<double> fsync_ms;
    for (int round = 0; round < rounds; ++round) {
        for (int way = 0; way < 2; ++way) {
            const bool whole = (round + way) % 2 == 0;
            const std::string root = folder + "/sync-cost-" + std::to_string(getpid());
            Tree tree;
            sync(); // nothing of earlier rounds is left to write back
            if (!WriteTree(root, tree)) {
                std::perror(root.c_str());
                return 1;
            }
            const auto start = std::chrono::steady_clock::now();
            const bool synced = whole ? SyncPath(folder, true) : SyncEach(tree, folder);
            const double ms =
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
            nftw(root.c_str(), RemoveEntry, 64, FTW_DEPTH | FTW_PHYS);
            if (!synced) {
                std::perror("sync");
                return 1;
            }
            (whole ? syncfs_ms : fsync_ms).push_back(ms);
        }
    }
    Report("syncfs", syncfs_ms);
    Report("fsync each", fsync_ms);
    return 0;
}
