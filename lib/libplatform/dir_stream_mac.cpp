#include "dir_stream.h"

namespace platform {

int ReadDirEntry(DIR* dir, struct dirent& storage, struct dirent*& entry)
{
    return readdir_r(dir, &storage, &entry);
}

} // namespace platform
