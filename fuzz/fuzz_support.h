// Shared by the fuzz targets: a check that says what went wrong before it
// aborts (so that libFuzzer keeps the input as a crash file), a scratch
// folder per process and file writing.
#pragma once

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ftw.h>
#include <string>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

#define FUZZ_CHECK(cond, ...)                                                                                \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            std::fprintf(stderr, "\nFUZZ CHECK FAILED at %s:%d: ", __FILE__, __LINE__);                      \
            std::fprintf(stderr, __VA_ARGS__);                                                               \
            std::fprintf(stderr, "\n");                                                                      \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (0)

namespace fuzzsupport {

inline int RemoveEntry(const char* path, const struct stat*, int, struct FTW*)
{
    return std::remove(path);
}

// A fresh folder below TMPDIR (or /tmp), removed with its contents when the
// process that made it exits normally. libFuzzer runs the inputs one after
// the other in one process, so one folder per process is enough.
class ScratchDir {
public:
    ScratchDir()
    {
        const char* base = std::getenv("TMPDIR");
        path_ = std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/calderix-fuzz-XXXXXX";
        FUZZ_CHECK(mkdtemp(&path_[0]) != nullptr, "cannot create %s: %s", path_.c_str(),
                   std::strerror(errno));
    }
    ~ScratchDir()
    {
        if (getpid() == owner_) {
            nftw(path_.c_str(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS);
        }
    }
    const std::string& path() const { return path_; }

private:
    std::string path_;
    const pid_t owner_ = getpid();
};

inline void WriteFile(const std::string& path, const void* data, size_t size)
{
    FILE* fp = std::fopen(path.c_str(), "wb");
    const bool written = fp != nullptr && (size == 0 || std::fwrite(data, 1, size, fp) == size);
    FUZZ_CHECK(fp != nullptr && std::fclose(fp) == 0 && written, "cannot write %s: %s", path.c_str(),
               std::strerror(errno));
}

} // namespace fuzzsupport
