// The kind of file system that holds a path.
#pragma once

#include <string>

namespace platform {

// The type name of the file system holding `path`, in macOS's spelling for
// the kinds the launcher tells apart: "nfs", "smbfs", "afpfs", "msdos".
// Other kinds get another name that is none of these.
// Returns 0 with `name` set, or the errno of the failed query.
int FileSystemTypeName(const std::string& path, std::string& name);

} // namespace platform
