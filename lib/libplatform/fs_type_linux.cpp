#include "fs_type.h"

#include <cerrno>
#include <cstdio>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace platform {

namespace {

struct KnownType {
    unsigned long magic;
    const char* name;
};

// The kinds the launcher tests carry macOS's names; the rest are only for
// telling file systems apart in messages.
const KnownType kKnownTypes[] = {
    {NFS_SUPER_MAGIC, "nfs"},           {SMB_SUPER_MAGIC, "smbfs"},
    {CIFS_SUPER_MAGIC, "smbfs"},        {SMB2_SUPER_MAGIC, "smbfs"},
    {MSDOS_SUPER_MAGIC, "msdos"},       {EXFAT_SUPER_MAGIC, "exfat"},
    {EXT4_SUPER_MAGIC, "ext4"},         {TMPFS_MAGIC, "tmpfs"},
    {BTRFS_SUPER_MAGIC, "btrfs"},       {XFS_SUPER_MAGIC, "xfs"},
    {OVERLAYFS_SUPER_MAGIC, "overlay"}, {F2FS_SUPER_MAGIC, "f2fs"},
};

} // namespace

int FileSystemTypeName(const std::string& path, std::string& name)
{
    struct statfs info;
    if (statfs(path.c_str(), &info) != 0)
        return errno;
    // f_type is signed on some architectures; the magic numbers are 32-bit.
    const unsigned long magic = static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFul;
    for (const KnownType& known : kKnownTypes) {
        if (known.magic == magic) {
            name = known.name;
            return 0;
        }
    }
    char text[32];
    snprintf(text, sizeof text, "0x%lx", magic);
    name = text;
    return 0;
}

} // namespace platform
