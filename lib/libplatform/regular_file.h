// Opening the small files the launcher reads and the log it appends to
// without ever blocking: a FIFO, a device or a folder at one of those names
// is refused before anything waits on it.
#pragma once

#include <cstddef>
#include <string>
#include <sys/types.h>

namespace platform {

// The most the launcher reads of a small file: a version file, the pid file,
// the level file, a property list. Anything larger is no such file.
constexpr size_t kSmallFileLimit = 1 << 20;

// Opens path (links followed) with flags (O_RDONLY, or O_WRONLY with
// O_APPEND and O_CREAT) and mode for a file it creates, only when it is a
// regular file; the descriptor is close-on-exec and blocking again once
// checked. Returns the descriptor, or -1 with errno set: EINVAL for
// anything but a regular file (opening a FIFO, a terminal or a device is
// never waited on), otherwise the open's or fstat's errno.
int OpenRegularFile(const std::string& path, int flags, mode_t mode = 0666);

// Reads the whole regular file at path into data. Returns 0, EFBIG for a
// file of more than limit bytes (data untouched), or the errno of the step
// that failed, EINVAL for anything but a regular file.
int ReadRegularFile(const std::string& path, size_t limit, std::string& data);

} // namespace platform
