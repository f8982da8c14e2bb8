// Reading a folder's entries from a stream that one thread uses at a time.
#pragma once

#include <dirent.h>

namespace platform {

// Reads the next entry of `dir` into `entry`: a pointer into `storage` or into
// the stream, valid until the next read or the close. Returns 0 with `entry`
// set (null after the last entry), or the errno of the failed read.
int ReadDirEntry(DIR* dir, struct dirent& storage, struct dirent*& entry);

} // namespace platform
