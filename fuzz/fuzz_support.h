// Shared by the fuzz targets: a scratch folder per process, file writing,
// and a check that reports what went wrong before it aborts, so that
// libFuzzer keeps the input as a crash file.
#pragma once

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ftw.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace fuzzsupport {

[[noreturn]] inline void Fail(const char* file, int line, const char* fmt, ...)
    __attribute__((format(printf, 3, 4)));

[[noreturn]] inline void Fail(const char* file, int line, const char* fmt, ...)
{
    std::fprintf(stderr, "\nFUZZ CHECK FAILED at %s:%d: ", file, line);
    va_list ap;
    va_start(ap, fmt);
    std::vfprintf(stderr, fmt, ap);
    va_end(ap);
    std::fprintf(stderr, "\n");
    std::fflush(stderr);
    std::abort();
}

// Printable form of bytes for failure messages.
inline std::string Show(const std::string& bytes)
{
    std::string out = "\"";
    for (unsigned char c : bytes) {
        if (c >= 0x20 && c < 0x7F && c != '"' && c != '\\') {
            out += static_cast<char>(c);
        } else {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\x%02X", c);
            out += hex;
        }
    }
    return out + "\"";
}

inline int RemoveEntry(const char* path, const struct stat*, int, struct FTW*)
{
    return std::remove(path);
}

// A fresh folder below TMPDIR (or /tmp) that is removed, with everything in
// it, when the process exits normally. libFuzzer runs one input after the
// other in one process, so one folder per process is enough.
class ScratchDir {
public:
    ScratchDir()
    {
        const char* base = std::getenv("TMPDIR");
        std::string pattern = std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/calderix-fuzz-XXXXXX";
        if (mkdtemp(&pattern[0]) == nullptr) {
            Fail(__FILE__, __LINE__, "cannot create a scratch folder from %s: %s", pattern.c_str(),
                 std::strerror(errno));
        }
        path_ = pattern;
        owner_ = getpid();
    }
    ~ScratchDir()
    {
        // A forked child must not remove the folder its parent still uses.
        if (getpid() == owner_) {
            nftw(path_.c_str(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS);
        }
    }
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    const std::string& path() const { return path_; }

private:
    std::string path_;
    pid_t owner_ = 0;
};

inline void WriteFile(const std::string& path, const void* data, size_t size)
{
    FILE* fp = std::fopen(path.c_str(), "wb");
    if (fp == nullptr) {
        Fail(__FILE__, __LINE__, "cannot write %s: %s", path.c_str(), std::strerror(errno));
    }
    if (size > 0 && std::fwrite(data, 1, size, fp) != size) {
        Fail(__FILE__, __LINE__, "short write to %s", path.c_str());
    }
    if (std::fclose(fp) != 0) {
        Fail(__FILE__, __LINE__, "cannot close %s: %s", path.c_str(), std::strerror(errno));
    }
}

inline void MakeDirs(const std::string& path)
{
    for (size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string part = path.substr(0, slash);
        if (mkdir(part.c_str(), 0755) != 0 && errno != EEXIST) {
            Fail(__FILE__, __LINE__, "cannot create %s: %s", part.c_str(), std::strerror(errno));
        }
        if (slash == std::string::npos) {
            return;
        }
    }
}

} // namespace fuzzsupport

#define FUZZ_CHECK(cond, ...)                                                                                \
    do {                                                                                                     \
        if (!(cond)) {                                                                                       \
            ::fuzzsupport::Fail(__FILE__, __LINE__, __VA_ARGS__);                                            \
        }                                                                                                    \
    } while (0)
