// Shared by the fuzz targets: a check that says what went wrong before it
// aborts (so that libFuzzer keeps the input as a crash file), a scratch
// folder and file writing.
#pragma once

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

#define FUZZ_CHECK(cond, ...)                                                                                \
    ((cond) ? void()                                                                                         \
            : (std::fprintf(stderr, "\nFUZZ CHECK FAILED at %s:%d: ", __FILE__, __LINE__),                   \
               std::fprintf(stderr, __VA_ARGS__), std::fputc('\n', stderr), std::abort()))

namespace fuzzsupport {

// A path in a scratch folder below TMPDIR (or /tmp): one folder per
// process, removed with its contents when the program ends.
inline std::string Scratch(const std::string& name)
{
    static const struct Dir {
        std::string path =
            std::string(std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp") + "/calderix-fuzz-XXXXXX";
        Dir() { FUZZ_CHECK(mkdtemp(&path[0]) != nullptr, "cannot create %s", path.c_str()); }
        ~Dir() { std::filesystem::remove_all(path); }
    } dir;
    return dir.path + "/" + name;
}

// Writes bytes to path, making its folder first.
inline void WriteFile(const std::string& path, const std::string& bytes)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    FUZZ_CHECK(out.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush(), "cannot write %s",
               path.c_str());
}

} // namespace fuzzsupport
