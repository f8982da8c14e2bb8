#include "file-op.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include "canonical_path.h"
#include "dir_stream.h"
#include "fs_type.h"
#include "log.h"
#include "sync_fs.h"
#include "tmp_name_gen.h"
#include "tree_walk.h"

#define LOG_SOURCE "file-op"
#define LOG_COMPONENT kLog

namespace {

const ustring kLog("file_op_debug");

const size_t kCopyBlock = 33554432; // 32 MiB
const size_t kLinkTextBuffer = 1024;
const size_t kTempTemplateBuffer = 4096;
const unsigned short kModeFromUmask = 0xFFFF;

// errno to result: every result code that a system error decides is chosen here.
bool IsRefusal(int error)
{
    return error == EACCES || error == EPERM;
}

int CopyWriteResult(int error)
{
    return error == ENOSPC || error == EDQUOT ? -2 : -1;
}

int RenameResult(int error)
{
    return error == ENAMETOOLONG ? -100 : -3;
}

// The code of a type from lstat's mode bits, or -1 for bits no code names.
int TypeFromMode(mode_t mode)
{
    if (S_ISSOCK(mode))
        return FS_TYPE_SOCKET;
    if (S_ISLNK(mode))
        return FS_TYPE_SYMLINK;
    if (S_ISREG(mode))
        return FS_TYPE_REGULAR;
    if (S_ISBLK(mode) || S_ISCHR(mode))
        return FS_TYPE_DEVICE;
    if (S_ISFIFO(mode))
        return FS_TYPE_FIFO;
    if (S_ISDIR(mode))
        return FS_TYPE_DIR;
    return -1;
}

int TypeFromDirent(unsigned char type)
{
    switch (type) {
    case DT_FIFO:
        return FS_TYPE_FIFO;
    case DT_CHR:
    case DT_BLK:
        return FS_TYPE_DEVICE;
    case DT_DIR:
        return FS_TYPE_DIR;
    case DT_REG:
        return FS_TYPE_REGULAR;
    case DT_LNK:
        return FS_TYPE_SYMLINK;
    case DT_SOCK:
        return FS_TYPE_SOCKET;
    default:
        return FS_TYPE_NONE;
    }
}

// Sets the umask to 0 for its lifetime unless the mode is to come from it.
class UmaskScope {
public:
    explicit UmaskScope(bool clear) : active(clear), saved(clear ? umask(0) : 0) {}
    ~UmaskScope()
    {
        if (active)
            umask(saved);
    }
    UmaskScope(const UmaskScope&) = delete;
    UmaskScope& operator=(const UmaskScope&) = delete;

private:
    bool active;
    mode_t saved;
};

// Brings prefix (a NUL-cut copy of the path) into being as a folder for
// FSMKDirP. Returns 0 or -1, errno telling why.
int MakeOneLevel(const char* prefix, bool last, bool force, mode_t mode)
{
    struct stat st;
    if (stat(prefix, &st) != 0) {
        if (mkdir(prefix, mode) == 0)
            return 0;
        // Someone else may have made it meanwhile; a folder is all we want.
        const int error = errno;
        if (error == EEXIST && stat(prefix, &st) == 0 && S_ISDIR(st.st_mode))
            return 0;
        errno = error;
        return -1;
    }
    if (S_ISDIR(st.st_mode))
        return 0;
    if (force) {
        if (remove(prefix) != 0)
            return -1;
        return mkdir(prefix, mode) == 0 ? 0 : -1;
    }
    if (last) {
        LOG_MSG(INFO, "FSMKDirP: path: %s is existing file or symbolic link pointed to file\n", prefix);
        errno = EEXIST;
        return -1;
    }
    // The next level cannot be made below a file; that attempt reports it.
    LOG_MSG(INFO, "FSMKDirP: path: %s is symbolic link pointed to folder\n", prefix);
    return 0;
}

// Copies everything that can be read from in to out through buffer.
// Returns 0, or the FSCopy result of the failed read or write.
int CopyBytes(int in, int out, char* buffer)
{
    for (;;) {
        const ssize_t got = read(in, buffer, kCopyBlock);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            const int error = errno;
            LOG_MSG(ERROR, "CopyFile: read: %s (%d)\n", strerror(error), error);
            return -1;
        }
        if (got == 0)
            return 0;
        ssize_t done = 0;
        while (done < got) {
            errno = 0;
            const ssize_t put = write(out, buffer + done, static_cast<size_t>(got - done));
            if (put < 0 && errno == EINTR)
                continue;
            if (put <= 0) {
                const int error = errno;
                LOG_MSG(ERROR, "CopyFile: write: %s (%d)\n", strerror(error), error);
                return CopyWriteResult(error);
            }
            done += put;
        }
    }
}

// Forces the copy to disk and closes it. A failure here is a late write
// failure and is reported as one; descriptors that cannot be synced (devices,
// pipes) count as written. Returns 0 or the FSCopy result.
int FinishDestination(int out)
{
    int error = 0;
    if (fsync(out) != 0 && errno != EINVAL && errno != EROFS && errno != ENOTSUP)
        error = errno;
    if (close(out) != 0 && error == 0 && errno != EINTR)
        error = errno;
    if (error == 0)
        return 0;
    LOG_MSG(ERROR, "CopyFile: write: %s (%d)\n", strerror(error), error);
    return CopyWriteResult(error);
}

// Opens destination for FSCopy, emptied, unless it is the source itself,
// which truncating would destroy. Returns the descriptor or -1 (logged).
int OpenDestination(const ustring& destination, int in)
{
    const int out = open(destination.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
    int error = out < 0 ? errno : 0;
    struct stat source_st;
    struct stat dest_st;
    if (error == 0 && (fstat(in, &source_st) != 0 || fstat(out, &dest_st) != 0))
        error = errno;
    if (error == 0 && source_st.st_dev == dest_st.st_dev && source_st.st_ino == dest_st.st_ino)
        error = EINVAL;
    if (error == 0 && S_ISREG(dest_st.st_mode) && ftruncate(out, 0) != 0)
        error = errno;
    if (error == 0)
        return out;
    if (out >= 0)
        close(out);
    LOG_MSG(ERROR, "CopyFile: open(%s): %s (%d)\n", destination.c_str(), strerror(error), error);
    return -1;
}

// The move of one entry for FSRename. Returns 0 when source is now at
// destination (or stays, being a link, device, FIFO or socket on another
// device), 1 for a folder on another device whose destination folder now
// exists and whose entries must follow, or FSRename's negative result.
int MoveEntry(const ustring& source, const ustring& destination, bool exact)
{
    if (source.empty() || destination.empty())
        return -1;
    _FILE_INFO_tag info;
    if (FSStat(source, info, exact) != 0 || !info.exist)
        return -2;
    if (rename(source.c_str(), destination.c_str()) == 0)
        return 0;
    const int error = errno;
    if (error != EXDEV)
        return RenameResult(error);
    switch (info.type) {
    case FS_TYPE_REGULAR:
        return FSCopy(source, destination, true) == 0 ? 0 : -3;
    case FS_TYPE_DIR:
        return FSMKDir(destination, true) == 0 ? 1 : -3;
    default:
        return 0;
    }
}

// Moves a folder's entries to another device one by one, each with
// MoveEntry, and removes every source folder once it has been emptied. The
// first entry that fails stops the move, leaving the rest in the source.
class MoveAcross : public treewalk::Visitor {
public:
    MoveAcross(const ustring& destination, bool exact) : destination(destination), exact(exact) {}

    treewalk::Next Enter(const treewalk::Entry& entry) override
    {
        if (entry.relative.empty())
            return treewalk::Next::Go; // its destination exists already
        const int moved = MoveEntry(entry.path, destination + "/" + entry.relative, exact);
        return moved < 0 ? treewalk::Next::Stop : (moved == 1 ? treewalk::Next::Go : treewalk::Next::Skip);
    }
    treewalk::Next Leave(const treewalk::Entry& entry) override
    {
        return remove(entry.path.c_str()) == 0 ? treewalk::Next::Go : treewalk::Next::Stop;
    }
    // An unreadable listing ends like the last entry; the removal then says
    // whether anything was left behind.
    treewalk::Next Failed(const treewalk::Entry&, treewalk::Step step, int) override
    {
        return step == treewalk::Step::Read ? treewalk::Next::Go : treewalk::Next::Stop;
    }

private:
    const ustring& destination;
    const bool exact;
};

// Removes every entry of a tree, a folder after its contents. A vanished
// entry counts as removed, and a folder that cannot be opened is left as it
// is (the removal of the folder holding it then fails).
class RemoveTree : public treewalk::Visitor {
public:
    treewalk::Next Enter(const treewalk::Entry& entry) override
    {
        return S_ISDIR(entry.st.st_mode) ? treewalk::Next::Go : Remove(entry);
    }
    treewalk::Next Leave(const treewalk::Entry& entry) override { return Remove(entry); }
    treewalk::Next Failed(const treewalk::Entry&, treewalk::Step step, int error) override
    {
        return step != treewalk::Step::Stat || error == ENOENT ? treewalk::Next::Go : treewalk::Next::Stop;
    }

private:
    static treewalk::Next Remove(const treewalk::Entry& entry)
    {
        return remove(entry.path.c_str()) == 0 ? treewalk::Next::Go : treewalk::Next::Stop;
    }
};

// Gives back read, write and search permission on the folders the user owns.
class GrantOwnFolders : public treewalk::Visitor {
public:
    treewalk::Next Enter(const treewalk::Entry& entry) override
    {
        const struct stat& st = entry.st;
        if (!S_ISDIR(st.st_mode) || st.st_uid != geteuid())
            return treewalk::Next::Skip;
        if ((st.st_mode & S_IRWXU) != S_IRWXU &&
            chmod(entry.path.c_str(), (st.st_mode & 07777) | S_IRWXU) != 0)
            return treewalk::Next::Skip;
        return treewalk::Next::Go;
    }
    treewalk::Next Failed(const treewalk::Entry&, treewalk::Step, int) override { return treewalk::Next::Go; }
};

} // namespace

_FILE_INFO_tag::_FILE_INFO_tag()
    : type(FS_TYPE_NONE), mtime(0), size(0), exist(false), uid(0), gid(0), mode(0), dev(0)
{
}

bool _FILE_INFO_tag::operator==(const _FILE_INFO_tag& other) const
{
    return exist == other.exist && size == other.size && mtime == other.mtime && type == other.type &&
           path == other.path && name == other.name;
}

ustring FSParentPath(const ustring& path)
{
    const unsigned long slash = path.rfind('/');
    if (slash == ustring::npos || slash == 0)
        return ustring("/");
    return path.substr(0, slash);
}

ustring FSBaseName(const ustring& path)
{
    const unsigned long slash = path.rfind('/');
    if (slash == ustring::npos)
        return path;
    return path.substr(slash + 1);
}

bool FSIsParentFolder(const ustring& parent, const ustring& child)
{
    const unsigned long length = parent.length();
    if (child.length() < length)
        return false;
    if (child[length] != '\0' && child[length] != '/')
        return false;
    return parent.compare(child, length) == 0;
}

bool FSTimeEqual(long a, long b)
{
    return a == b;
}

bool isFileLocked(const ustring& path, int mode)
{
    if (access(path.c_str(), mode) == 0)
        return false;
    return IsRefusal(errno);
}

bool hasFilePermission(const ustring& path, int mode)
{
    if (access(path.c_str(), mode) == 0)
        return true;
    return !IsRefusal(errno);
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info)
{
    struct stat st;
    const int error = platform::LookupStat(path.c_str(), st);
    if (error == ENOENT) {
        info.exist = false;
        info.mtime = 0;
        info.name = FSBaseName(path);
        info.path = path;
        info.size = 0;
        info.type = FS_TYPE_NONE;
        info.uid = 0;
        info.gid = 0;
        info.mode = 0;
        info.dev = 0;
        return 0;
    }
    if (error != 0)
        return -1;

    info.exist = true;
    info.mtime = static_cast<long>(st.st_mtime);
    info.name = FSBaseName(path);
    info.path = path;
    info.size = static_cast<int64_t>(st.st_size);
    info.uid = static_cast<uint32_t>(st.st_uid);
    info.gid = static_cast<uint32_t>(st.st_gid);
    info.mode = static_cast<uint32_t>(st.st_mode & 0xFFFF);
    info.dev = static_cast<int64_t>(st.st_dev);
    const int type = TypeFromMode(st.st_mode);
    if (type < 0)
        return -1;
    info.type = type;

    const ustring input = path.normalize(ustring::NFC);
    LOG_MSG(DEBUG, "Input file path = [%s].\n", input.c_str());
    std::string canonical;
    const int status = platform::CanonicalPath(input.c_str(), platform::FinalLink::Keep, canonical);
    if (status != 0) {
        LOG_MSG(ERROR, "FSPathMakeRef: %d\n", status);
        return -1;
    }
    const ustring resolved = ustring(canonical).normalize(ustring::NFC);
    LOG_MSG(DEBUG, "FSRefMakePath outTargetPath path = [%s].\n", resolved.c_str());
    info.path = resolved;
    info.name = FSBaseName(resolved);
    return 0;
}

bool IsFileExist(const ustring& path, bool exact)
{
    const ustring normalized = path.normalize(ustring::NFC);
    if (normalized.empty())
        return false;
    _FILE_INFO_tag info;
    if (GetFileInfo(normalized, info) != 0 || !info.exist)
        return false;
    return !exact || info.path == normalized;
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact)
{
    if (path.empty())
        return -1;
    if (!IsFileExist(path, exact)) {
        info.exist = false;
        return 0;
    }
    return GetFileInfo(path, info) == 0 ? 0 : -2;
}

void FSReportDirFailure(const ustring& path, bool reading, int error)
{
    if (reading)
        LOG_MSG(ERROR, "FSOpenDir: Failed to read directory '%s'. %s\n", path.c_str(), strerror(error));
    else
        LOG_MSG(ERROR, "FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(), strerror(error));
}

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle)
{
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        FSReportDirFailure(path, false, errno);
        return -1;
    }
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry)
{
    struct dirent storage;
    struct dirent* found = nullptr;
    const int error = handle.dir == nullptr ? EBADF : platform::ReadDirEntry(handle.dir, storage, found);
    if (error != 0) {
        FSReportDirFailure(handle.path, true, error);
        return -1;
    }
    if (found == nullptr)
        return 0;
    const ustring name(found->d_name);
    const int type = TypeFromDirent(found->d_type);

    long mtime = 0;
    int64_t size = 0;
    if (handle.flags & FS_DIR_STAT) {
        const ustring full = handle.path + "/" + name;
        _FILE_INFO_tag info;
        if (FSStat(full, info, true) < 0) {
            LOG_MSG(ERROR, "FSOpenDir: Failed to get info for '%s'\n", full.c_str());
            return -1;
        }
        mtime = info.mtime;
        size = info.size;
    }
    entry.name = name;
    entry.type = type;
    entry.mtime = mtime;
    entry.size = size;
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle)
{
    if (handle.dir != nullptr)
        closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}

bool isMountPoint(const ustring& path)
{
    std::string type;
    const int error = platform::FileSystemTypeName(path.c_str(), type);
    if (error != 0) {
        LOG_MSG(ERROR, "isMountPoint: Failed to get file system info '%s'. %s\n", path.c_str(),
                strerror(error));
        return false;
    }
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const ustring& path)
{
    std::string type;
    const int error = platform::FileSystemTypeName(path.c_str(), type);
    if (error != 0) {
        LOG_MSG(ERROR, "IsSupportLargeFile: Failed to get file system info '%s'. %s\n", path.c_str(),
                strerror(error));
        return false;
    }
    if (type != "msdos")
        return false;
    LOG_MSG(WARNING, "Detect a MSDOS platform for path '%s'.\n", path.c_str());
    return true;
}

int FSGetRealPath(ustring& path)
{
    LOG_MSG(DEBUG, " org path [%s]\n", path.c_str());
    std::string canonical;
    if (platform::CanonicalPath(path.c_str(), platform::FinalLink::Follow, canonical) != 0)
        return -1;
    path = canonical;
    LOG_MSG(DEBUG, " get full path [%s]\n", path.c_str());
    return 0;
}

int FSReadSymbolicLink(const ustring& link, ustring& target)
{
    char buffer[kLinkTextBuffer] = {0};
    const ssize_t length = readlink(link.c_str(), buffer, sizeof buffer);
    if (length < 0) {
        const int error = errno;
        LOG_MSG(ERROR, "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
                link.c_str(), error, strerror(error));
        return -1;
    }
    if (static_cast<size_t>(length) >= sizeof buffer) {
        LOG_MSG(ERROR, "FSReadSymbolicLink: path of '%s' is more than %d\n", link.c_str(),
                static_cast<int>(sizeof buffer));
        return -1;
    }
    target.assign(buffer, static_cast<unsigned long>(length));
    return 0;
}

int FSMKDirP(const ustring& path, const char** end, bool force, unsigned short mode)
{
    if (end != nullptr)
        *end = path.c_str();
    if (path.empty())
        return -1;
    char* copy = strdup(path.c_str());
    if (copy == nullptr)
        return -1;

    int result = 0;
    int error = 0;
    size_t cut = 0;
    {
        const bool exact_mode = mode != kModeFromUmask;
        const UmaskScope scope(exact_mode);
        const mode_t create_mode = exact_mode ? mode : 0777;
        char* component = copy[0] == '/' ? copy + 1 : copy;
        for (;;) {
            char* slash = strchr(component, '/');
            const bool last = slash == nullptr || slash[1] == '\0';
            cut = slash == nullptr ? strlen(copy) : static_cast<size_t>(slash - copy);
            if (slash != nullptr)
                *slash = '\0';
            if (MakeOneLevel(copy, last, force, create_mode) != 0) {
                error = errno;
                result = -1;
                break;
            }
            if (last)
                break;
            *slash = '/';
            component = slash + 1;
        }
    }
    free(copy);
    if (end != nullptr)
        *end = path.c_str() + cut;
    errno = error;
    return result;
}

int FSMKDir(const ustring& path, bool parents)
{
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        LOG_MSG(ERROR, "FSMKDir: Failed to to file info '%s'\n", path.c_str());
        return -1;
    }
    if (info.exist) {
        if (info.type == FS_TYPE_DIR)
            return 0;
        LOG_MSG(ERROR, "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
                path.c_str(), info.type);
        return -1;
    }
    const int made = parents ? FSMKDirP(path, nullptr, false, kModeFromUmask) : mkdir(path.c_str(), 0777);
    if (made != 0) {
        const int error = errno;
        LOG_MSG(ERROR, "path = %s errno : %s\n", path.c_str(), strerror(error));
        return -2;
    }
    return 0;
}

int FSMKDirFromRoot(const ustring& target, const ustring& root)
{
    if (root.length() > target.length()) {
        LOG_MSG(ERROR, "Giving a root '%s' whose length is larger then target's '%s'.\n", root.c_str(),
                target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        LOG_MSG(ERROR, "root '%s' is not a parent folder of target '%s'\n", root.c_str(), target.c_str());
        return -1;
    }
    const ustring rest = target.substr(root.length());
    ustring current;
    while (current != rest) {
        const unsigned long slash = rest.find('/', current.length() + 1);
        current = slash == ustring::npos ? rest : rest.substr(0, slash);
        LOG_MSG(DEBUG, "FSMKDirFromRoot: create %s\n", current.c_str());
        if (FSMKDir(root + current, false) != 0)
            return -1;
    }
    return 0;
}

int FSCopy(const ustring& source, const ustring& destination, bool remove_source)
{
    const int in = open(source.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) {
        const int error = errno;
        LOG_MSG(ERROR, "CopyFile: open(%s): %s (%d)\n", source.c_str(), strerror(error), error);
        return -1;
    }
    const int out = OpenDestination(destination, in);
    if (out < 0) {
        close(in);
        return -1;
    }

    int result = 0;
    char* buffer = static_cast<char*>(malloc(kCopyBlock));
    if (buffer == nullptr) {
        const int error = errno;
        LOG_MSG(ERROR, "FSCopy: malloc(%d): %s (%d)\n", static_cast<int>(kCopyBlock), strerror(error), error);
        result = -1;
    } else {
        result = CopyBytes(in, out, buffer);
        free(buffer);
    }
    close(in);
    // The copy must be on disk before the source may go.
    const int finished = FinishDestination(out);
    if (result == 0)
        result = finished;
    if (result == 0 && remove_source && remove(source.c_str()) != 0)
        result = -1;
    return result;
}

int FSRename(const ustring& source, const ustring& destination, bool exact)
{
    const int moved = MoveEntry(source, destination, exact);
    if (moved != 1)
        return moved;
    MoveAcross across(destination, exact);
    return treewalk::Walk(source.c_str(), across) ? 0 : -3;
}

int FSRemove(const ustring& path, bool)
{
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0)
        return -1;
    if (!info.exist)
        return 0;
    RemoveTree removal;
    return treewalk::Walk(path.c_str(), removal) ? 0 : -3;
}

void FSMakeRemovable(const ustring& path)
{
    GrantOwnFolders grant;
    treewalk::Walk(path.c_str(), grant);
}

int FSSyncFileSystem(const ustring& path)
{
    const int error = platform::SyncFileSystem(path.c_str());
    if (error == 0)
        return 0;
    LOG_MSG(ERROR, "FSSyncFileSystem: '%s': %s (%d)\n", path.c_str(), strerror(error), error);
    return -1;
}

int FSMktemp(const ustring& folder, ustring& out)
{
    char name[kTempTemplateBuffer];
    const int length = snprintf(name, sizeof name, "%s/XXXXXX", folder.c_str());
    // mkstemp leaves its last try in the buffer; the message names the template.
    const std::string pattern = name;
    int fd = -1;
    if (length < 0 || static_cast<size_t>(length) >= sizeof name)
        errno = ENAMETOOLONG;
    else
        fd = mkstemp(name);
    int error = fd < 0 ? errno : 0;
    if (fd >= 0) {
        // An empty file that cannot be closed or given its mode is no use to anyone.
        if (close(fd) != 0 || chmod(name, 0644) != 0) {
            error = errno;
            unlink(name);
        }
    }
    if (error != 0) {
        LOG_MSG(ERROR, "mkstemp(%s): %s\n", pattern.c_str(), strerror(error));
        return -1;
    }
    out = name;
    return 0;
}

int FSCreateTempPath(const ustring& folder, ustring& out)
{
    out = TmpNameGen::getInstance().getTmpPath(folder);
    return out.empty() ? -1 : 0;
}

int FSUTime(const ustring& path, long access_time, long modification_time)
{
    struct timeval times[2];
    times[0].tv_sec = access_time;
    times[0].tv_usec = 0;
    times[1].tv_sec = modification_time;
    times[1].tv_usec = 0;
    return lutimes(path.c_str(), times) == 0 ? 0 : -1;
}

int FSCreateSymbolicLink(const ustring& target, const ustring& link)
{
    if (symlink(target.c_str(), link.c_str()) == 0)
        return 0;
    const int error = errno;
    LOG_MSG(ERROR, "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: %s)\n",
            target.c_str(), link.c_str(), error, strerror(error));
    return -1;
}

int FSChown(const ustring& path, unsigned int uid, unsigned int gid)
{
    if (lchown(path.c_str(), uid, gid) == 0)
        return 0;
    const int error = errno;
    LOG_MSG(ERROR, "FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(), error,
            strerror(error));
    return -1;
}
