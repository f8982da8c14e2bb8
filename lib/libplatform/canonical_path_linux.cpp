// Linux has no call that returns a path as the file system spells it, so the
// path is walked one component at a time: symbolic links are expanded by hand
// (realpath would keep the caller's spelling of each name), and a folder's
// listing is read only where the caller's spelling may differ from the stored
// one: in folders that ignore case, and for non-ASCII names that the exact
// look-up missed (macOS finds "é" whether it is stored composed or not).
#include "canonical_path_linux.h"

#include <cerrno>
#include <cstdlib>
#include <deque>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unistd.h>
#include <vector>

namespace platform {

namespace {

// The native call writes the path into a 4096-byte buffer, terminator included.
const std::size_t kMaxPathBytes = 4096;
// As the kernel's own limit on links expanded in one look-up.
const int kMaxLinks = 40;
const unsigned long kHfsPlusMagic = 0x482b;

bool IsAscii(const std::string& text)
{
    for (unsigned char c : text) {
        if (c >= 0x80)
            return false;
    }
    return true;
}

std::string Join(const std::string& folder, const std::string& name)
{
    return folder == "/" ? "/" + name : folder + "/" + name;
}

std::vector<std::string> Components(const std::string& path)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t slash = path.find('/', start);
        if (slash == std::string::npos)
            slash = path.size();
        if (slash > start)
            parts.push_back(path.substr(start, slash - start));
        start = slash + 1;
    }
    return parts;
}

// The form under which two names count as the same: canonical decomposition,
// and case folding where the folder ignores case. False for text that is not
// UTF-8, which then only ever matches itself byte for byte.
bool MatchKey(const std::string& name, bool fold, icu::UnicodeString& key)
{
    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(name);
    std::string round_trip;
    text.toUTF8String(round_trip);
    if (round_trip != name)
        return false;
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfd = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status))
        return false;
    key = nfd->normalize(text, status);
    if (fold && U_SUCCESS(status)) {
        key.foldCase();
        key = nfd->normalize(key, status);
    }
    return U_SUCCESS(status);
}

// Looks `name` up in the listing of `folder` as StoredName describes.
int FindInListing(const std::string& folder, const std::string& name, bool fold, std::string& stored)
{
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr)
        return errno;
    icu::UnicodeString wanted;
    const bool comparable = MatchKey(name, fold, wanted);
    bool found = false;
    std::string best;
    int read_error = 0;
    for (;;) {
        errno = 0;
        const struct dirent* entry = readdir(dir);
        if (entry == nullptr) {
            read_error = errno;
            break;
        }
        const std::string candidate = entry->d_name;
        if (candidate == name) {
            closedir(dir);
            stored = candidate;
            return 0;
        }
        if (!comparable || candidate == "." || candidate == ".." || (found && candidate >= best))
            continue;
        icu::UnicodeString key;
        if (MatchKey(candidate, fold, key) && key == wanted) {
            best = candidate;
            found = true;
        }
    }
    closedir(dir);
    if (found) {
        stored = best;
        return 0;
    }
    return read_error != 0 ? read_error : ENOENT;
}

// StoredName that also hands back the entry's lstat, which the walk needs.
int Locate(const std::string& folder, const std::string& name, NameCase rule, std::string& stored,
           struct stat& st)
{
    const NameCase effective = rule == NameCase::Detect ? FolderNameCase(folder) : rule;
    std::string found = name;
    if (effective == NameCase::Insensitive) {
        const int error = FindInListing(folder, name, true, found);
        if (error != 0)
            return error;
    } else if (lstat(Join(folder, name).c_str(), &st) != 0) {
        const int error = errno;
        if (error != ENOENT || IsAscii(name) || FindInListing(folder, name, false, found) != 0)
            return error;
    } else {
        stored = name;
        return 0;
    }
    if (lstat(Join(folder, found).c_str(), &st) != 0)
        return errno;
    stored = found;
    return 0;
}

int ReadLinkText(const std::string& path, std::string& text)
{
    std::vector<char> buffer(256);
    for (;;) {
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0)
            return errno;
        if (static_cast<std::size_t>(length) < buffer.size()) {
            text.assign(buffer.data(), static_cast<std::size_t>(length));
            return 0;
        }
        if (buffer.size() >= kMaxPathBytes)
            return ENAMETOOLONG;
        buffer.resize(buffer.size() * 2);
    }
}

} // namespace

NameCase FolderNameCase(const std::string& folder)
{
    struct statfs info;
    if (statfs(folder.c_str(), &info) != 0)
        return NameCase::Sensitive;
    switch (static_cast<unsigned long>(info.f_type) & 0xFFFFFFFFul) {
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
    case kHfsPlusMagic:
    case SMB_SUPER_MAGIC:
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC:
        return NameCase::Insensitive;
    case EXT4_SUPER_MAGIC:
    case F2FS_SUPER_MAGIC:
    case TMPFS_MAGIC:
        break;
    default:
        return NameCase::Sensitive;
    }
    // These file systems ignore case per folder, marked by an inode flag. A
    // folder that cannot be opened cannot be listed either, so treating it as
    // case-sensitive loses nothing.
    const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return NameCase::Sensitive;
    int flags = 0;
    const bool casefold = ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_CASEFOLD_FL) != 0;
    close(fd);
    return casefold ? NameCase::Insensitive : NameCase::Sensitive;
}

int StoredName(const std::string& folder, const std::string& name, NameCase rule, std::string& stored)
{
    struct stat st;
    return Locate(folder, name, rule, stored, st);
}

int ResolvePath(const std::string& path, FinalLink final_link, NameCase rule, std::string& out)
{
    if (path.empty())
        return ENOENT;
    std::deque<std::string> pending;
    if (path[0] != '/') {
        char* cwd = getcwd(nullptr, 0);
        if (cwd == nullptr)
            return errno;
        const std::vector<std::string> base = Components(cwd);
        free(cwd);
        pending.insert(pending.end(), base.begin(), base.end());
    }
    const std::vector<std::string> given = Components(path);
    pending.insert(pending.end(), given.begin(), given.end());
    // As in the kernel, a final "/" asks for a folder and follows a final link.
    const bool want_folder = path.back() == '/';

    std::string resolved; // empty stands for "/"
    bool is_folder = true;
    int links = 0;
    while (!pending.empty()) {
        const std::string name = pending.front();
        pending.pop_front();
        if (name == ".")
            continue;
        if (name == "..") {
            // resolved holds no links, so its text parent is the real one.
            resolved.erase(resolved.empty() ? 0 : resolved.rfind('/'));
            is_folder = true;
            continue;
        }
        const bool last = pending.empty();
        const std::string folder = resolved.empty() ? "/" : resolved;
        std::string stored;
        struct stat st;
        int error = Locate(folder, name, rule, stored, st);
        if (error != 0)
            return error;
        const std::string candidate = Join(folder, stored);
        if (S_ISLNK(st.st_mode) && (!last || want_folder || final_link == FinalLink::Follow)) {
            if (++links > kMaxLinks)
                return ELOOP;
            std::string target;
            error = ReadLinkText(candidate, target);
            if (error != 0)
                return error;
            if (target.empty())
                return ENOENT;
            if (target[0] == '/')
                resolved.clear();
            const std::vector<std::string> parts = Components(target);
            pending.insert(pending.begin(), parts.begin(), parts.end());
            continue;
        }
        is_folder = S_ISDIR(st.st_mode);
        if (!last && !is_folder)
            return ENOTDIR;
        resolved = candidate;
    }
    if (want_folder && !is_folder)
        return ENOTDIR;
    if (resolved.empty())
        resolved = "/";
    if (resolved.size() >= kMaxPathBytes)
        return ENAMETOOLONG;
    out = resolved;
    return 0;
}

int CanonicalPath(const std::string& path, FinalLink final_link, std::string& out)
{
    return ResolvePath(path, final_link, NameCase::Detect, out);
}

int LookupStat(const std::string& path, struct stat& st)
{
    if (lstat(path.c_str(), &st) == 0)
        return 0;
    const int error = errno;
    // ASCII text is the same in every normalisation: nothing else to find.
    if (error != ENOENT || IsAscii(path))
        return error;
    std::string stored;
    if (ResolvePath(path, FinalLink::Keep, NameCase::Detect, stored) != 0)
        return error;
    return lstat(stored.c_str(), &st) == 0 ? 0 : errno;
}

} // namespace platform
