#include "canonical_path.h"

#include <CoreServices/CoreServices.h>
#include <cerrno>
#include <sys/stat.h>

namespace platform {

int CanonicalPath(const std::string& path, FinalLink final_link, std::string& out)
{
    const UInt8* text = reinterpret_cast<const UInt8*>(path.c_str());
    FSRef ref;
    OSStatus status =
        final_link == FinalLink::Follow
            ? FSPathMakeRef(text, &ref, nullptr)
            : FSPathMakeRefWithOptions(text, kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
    if (status != noErr)
        return static_cast<int>(status);
    UInt8 buffer[4096] = {0};
    status = FSRefMakePath(&ref, buffer, sizeof buffer);
    if (status != noErr)
        return static_cast<int>(status);
    out.assign(reinterpret_cast<const char*>(buffer));
    return 0;
}

// HFS+ and APFS already match names whatever their normalisation.
int LookupStat(const std::string& path, struct stat& st)
{
    return lstat(path.c_str(), &st) == 0 ? 0 : errno;
}

} // namespace platform
