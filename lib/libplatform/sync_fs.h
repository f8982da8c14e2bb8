// Forcing written data to disk.
#pragma once

#include <string>

namespace platform {

// Writes everything the file system holding `path` (a folder) has in memory
// to disk and waits for it. Returns 0, or the errno of the step that failed.
int SyncFileSystem(const std::string& path);

} // namespace platform
