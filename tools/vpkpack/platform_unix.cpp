// POSIX side of vpkpack: walking the bundle, reading its files and putting
// finished outputs in place. Every errno becomes a Status in FromErrno.
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tree_walk.h"
#include "vpkpack_p.h"

namespace vpkpack {
namespace platform {

Status FromErrno(int e, const std::string& entry)
{
    Status status;
    status.entry = entry;
    switch (e) {
    case ENOENT:
    case ENOTDIR:
        status.error = Error::NotFound;
        break;
    case EACCES:
    case EPERM:
    case EROFS:
        status.error = Error::PermissionDenied;
        break;
    case ENOSPC:
    case EDQUOT:
        status.error = Error::NoSpace;
        break;
    default:
        status.error = Error::IoError;
        break;
    }
    // The reason already says as much for the common cases.
    if (e != ENOENT && e != EACCES && e != ENOSPC) {
        status.detail = std::strerror(e);
    }
    return status;
}

int ProcessorCount()
{
    cpu_set_t cpus;
    if (sched_getaffinity(0, sizeof cpus, &cpus) == 0 && CPU_COUNT(&cpus) > 0) {
        return CPU_COUNT(&cpus);
    }
    const long online = sysconf(_SC_NPROCESSORS_ONLN);
    return online > 0 ? static_cast<int>(online) : 1;
}

namespace {

// The target of the link at path, read whole however long it is.
Status ReadLinkTarget(const std::string& path, const std::string& entry, off_t size_hint, std::string* target)
{
    std::string buffer(static_cast<size_t>(size_hint > 0 ? size_hint : 64) + 1, '\0');
    for (;;) {
        const ssize_t n = readlink(path.c_str(), &buffer[0], buffer.size());
        if (n < 0) {
            return FromErrno(errno, entry);
        }
        if (static_cast<size_t>(n) < buffer.size()) {
            target->assign(buffer.data(), static_cast<size_t>(n));
            return {};
        }
        buffer.resize(buffer.size() * 2);
    }
}

// Collects every entry below the root (root excluded) as an Entry; stops
// at the first failure, with the status naming the entry.
class CollectEntries : public treewalk::Visitor {
public:
    explicit CollectEntries(std::vector<Entry>* entries) : entries(entries) {}

    treewalk::Next Enter(const treewalk::Entry& found) override
    {
        if (found.relative.empty()) {
            return treewalk::Next::Go;
        }
        Entry entry;
        entry.name = found.relative;
        entry.source = found.path;
        const struct stat& st = found.st;
        if (S_ISDIR(st.st_mode)) {
            entry.type = EntryType::Folder;
        } else if (S_ISREG(st.st_mode)) {
            entry.type = EntryType::File;
            entry.executable = (st.st_mode & 0111) != 0;
            entry.hard_link = st.st_nlink > 1;
            entry.size = st.st_size;
        } else if (S_ISLNK(st.st_mode)) {
            entry.type = EntryType::Symlink;
            entry.hard_link = st.st_nlink > 1;
            status = ReadLinkTarget(entry.source, entry.name, st.st_size, &entry.link_target);
            if (!status.ok()) {
                return treewalk::Next::Stop;
            }
        }
        entries->push_back(entry);
        return treewalk::Next::Go;
    }
    treewalk::Next Failed(const treewalk::Entry& found, treewalk::Step, int error) override
    {
        status = FromErrno(error, found.relative.empty() ? found.path : found.relative);
        return treewalk::Next::Stop;
    }

    Status status;

private:
    std::vector<Entry>* entries;
};

// The resolved form of an existing path.
Status RealPath(const std::string& path, std::string* resolved)
{
    char* real = realpath(path.c_str(), nullptr);
    if (real == nullptr) {
        return FromErrno(errno, path);
    }
    resolved->assign(real);
    free(real);
    return {};
}

std::string FolderOf(const std::string& path)
{
    const size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

Status ScanTree(const std::string& root, std::vector<Entry>* entries)
{
    struct stat st;
    if (stat(root.c_str(), &st) != 0) {
        return FromErrno(errno, root);
    }
    if (!S_ISDIR(st.st_mode)) {
        return Refuse(Error::NotAFolder, root);
    }
    // The root may be a link to the bundle; nothing below it is followed.
    CollectEntries collect(entries);
    treewalk::Walk(root, collect, true);
    return collect.status;
}

Status ReadSmallFile(const std::string& path, const std::string& entry, size_t limit, std::string* data)
{
    InputFile file;
    Status status = file.Open(path, entry);
    std::string content;
    char buffer[16384];
    while (status.ok()) {
        size_t got = 0;
        status = file.Read(buffer, sizeof buffer, &got);
        if (!status.ok() || got == 0) {
            break;
        }
        if (content.size() + got > limit) {
            return Refuse(Error::TooLarge, entry);
        }
        content.append(buffer, got);
    }
    if (status.ok()) {
        data->swap(content);
    }
    return status;
}

Status CheckOutputFolder(const std::string& path)
{
    const std::string folder = FolderOf(path);
    struct stat st;
    if (stat(folder.c_str(), &st) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? Refuse(Error::NoOutputFolder, folder)
                                                   : FromErrno(errno, folder);
    }
    return S_ISDIR(st.st_mode) ? Status() : Refuse(Error::NoOutputFolder, folder);
}

Status IsInside(const std::string& folder, const std::string& path, bool* inside)
{
    std::string real_folder;
    std::string real_parent;
    Status status = RealPath(folder, &real_folder);
    if (status.ok()) {
        status = RealPath(FolderOf(path), &real_parent);
    }
    if (status.ok()) {
        *inside = real_parent == real_folder || real_folder == "/" ||
                  real_parent.compare(0, real_folder.size() + 1, real_folder + "/") == 0;
    }
    return status;
}

InputFile::~InputFile()
{
    if (fd_ >= 0) {
        close(fd_);
    }
}

Status InputFile::Open(const std::string& path, const std::string& entry)
{
    entry_ = entry;
    fd_ = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    if (fd_ < 0) {
        // A file swapped for a link since the walk reads as ELOOP.
        return errno == ELOOP ? Refuse(Error::ChangedWhilePacking, entry) : FromErrno(errno, entry);
    }
    struct stat st;
    if (fstat(fd_, &st) != 0) {
        return FromErrno(errno, entry);
    }
    if (!S_ISREG(st.st_mode)) {
        return Refuse(Error::ChangedWhilePacking, entry);
    }
    return {};
}

Status InputFile::Read(char* buffer, size_t size, size_t* got)
{
    ssize_t n;
    do {
        n = read(fd_, buffer, size);
    } while (n < 0 && errno == EINTR);
    if (n < 0) {
        return FromErrno(errno, entry_);
    }
    *got = static_cast<size_t>(n);
    return {};
}

OutputFile::~OutputFile()
{
    if (fd_ >= 0) {
        close(fd_);
    }
    if (!temp_path_.empty()) {
        unlink(temp_path_.c_str());
    }
}

Status OutputFile::Create(const std::string& final_path)
{
    final_path_ = final_path;
    const size_t slash = final_path.rfind('/');
    const std::string folder = slash == std::string::npos ? std::string() : final_path.substr(0, slash + 1);
    const std::string base = slash == std::string::npos ? final_path : final_path.substr(slash + 1);
    std::string pattern = folder + "." + base + ".XXXXXX";
    fd_ = mkostemp(&pattern[0], O_CLOEXEC);
    if (fd_ < 0) {
        return FromErrno(errno, final_path);
    }
    temp_path_ = pattern;
    // Packages are for everybody to read; mkostemp made it private.
    if (fchmod(fd_, 0644) != 0) {
        return FromErrno(errno, final_path);
    }
    return {};
}

Status OutputFile::Write(const std::string& data)
{
    size_t done = 0;
    while (done < data.size()) {
        const ssize_t n = write(fd_, data.data() + done, data.size() - done);
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            return FromErrno(errno, final_path_);
        }
        done += static_cast<size_t>(n);
    }
    return {};
}

Status OutputFile::Commit()
{
    if (fsync(fd_) != 0) {
        return FromErrno(errno, final_path_);
    }
    const int fd = fd_;
    fd_ = -1;
    if (close(fd) != 0) {
        return FromErrno(errno, final_path_);
    }
    if (rename(temp_path_.c_str(), final_path_.c_str()) != 0) {
        return FromErrno(errno, final_path_);
    }
    temp_path_.clear();
    // The rename itself must reach the disk before we report success.
    const int dir = open(FolderOf(final_path_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0) {
        return FromErrno(errno, final_path_);
    }
    const int synced = fsync(dir);
    const int saved = errno;
    close(dir);
    return synced == 0 ? Status() : FromErrno(saved, final_path_);
}

} // namespace platform
} // namespace vpkpack
