// Shared by the fuzz targets: a check that says what went wrong before it
// aborts (so that libFuzzer keeps the input as a crash file), a scratch
// folder and file writing on top of the tests' own helpers.
#pragma once

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

#include "test_support.h"

#define FUZZ_CHECK(cond, ...)                                                                                \
    ((cond) ? void()                                                                                         \
            : (std::fprintf(stderr, "\nFUZZ CHECK FAILED at %s:%d: ", __FILE__, __LINE__),                   \
               std::fprintf(stderr, __VA_ARGS__), std::fputc('\n', stderr), std::abort()))

namespace fuzzsupport {

// A folder of this process's own below TMPDIR (or /tmp), removed with its
// contents when the program ends.
inline const testsupport::TempDir& Scratch()
{
    static const testsupport::TempDir dir("calderix-fuzz");
    return dir;
}

// Writes bytes to path, making its folder first.
inline void WriteFile(const std::string& path, const std::string& bytes)
{
    FUZZ_CHECK(testsupport::MakeDirs(path.substr(0, path.rfind('/'))) && testsupport::WriteFile(path, bytes),
               "cannot write %s: %s", path.c_str(), std::strerror(errno));
}

} // namespace fuzzsupport
