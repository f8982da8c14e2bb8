// Path look-up the way the native file manager of the launcher's home
// platform performs it. macOS has it built in; elsewhere it is emulated.
#pragma once

#include <string>

struct stat;

namespace platform {

// Whether a symbolic link in the last component is resolved.
enum class FinalLink { Keep, Follow };

// The path as the file system records it: every folder component resolved to
// its real location, each component spelled as stored on disk, the last one
// followed or kept as the link it is. A relative path is taken from the
// current folder. The result is absolute and shorter than 4096 bytes.
// Returns 0 with `out` set, or the platform's non-zero status (an errno value
// on Linux, an OSStatus on macOS) with `out` untouched.
int CanonicalPath(const std::string& path, FinalLink final_link, std::string& out);

// lstat(2) that finds a name as the native file manager finds it: macOS
// matches names whatever their Unicode normalisation, so a composed name
// also finds the decomposed spelling stored on disk. Returns 0 with `st`
// filled, or an errno value.
int LookupStat(const std::string& path, struct stat& st);

} // namespace platform
