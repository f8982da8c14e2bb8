#include "tree_walk.h"

#include <cerrno>
#include <cstring>
#include <dirent.h>

#include "dir_stream.h"

namespace treewalk {

namespace {

bool IsDotEntry(const char* name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

// The folder stream, closed on every way out.
class FolderStream {
public:
    explicit FolderStream(const std::string& path) : dir(opendir(path.c_str())) {}
    ~FolderStream()
    {
        if (dir != nullptr) {
            closedir(dir);
        }
    }
    FolderStream(const FolderStream&) = delete;
    FolderStream& operator=(const FolderStream&) = delete;

    DIR* const dir;
};

// Reports a Stop at entry and returns false, so that each level on the way
// out adds its own folder.
bool Stopped(Visitor& visitor, const Entry& entry)
{
    visitor.Stopped(entry);
    return false;
}

// Visits entry, whose st is set, and below it. False when stopped.
bool Visit(Visitor& visitor, const Entry& entry)
{
    const Next next = visitor.Enter(entry);
    if (next == Next::Stop) {
        return Stopped(visitor, entry);
    }
    if (next == Next::Skip || !S_ISDIR(entry.st.st_mode)) {
        return true;
    }
    {
        FolderStream folder(entry.path);
        if (folder.dir == nullptr) {
            return visitor.Failed(entry, Step::Open, errno) == Next::Go || Stopped(visitor, entry);
        }
        for (;;) {
            struct dirent storage;
            struct dirent* found = nullptr;
            const int error = platform::ReadDirEntry(folder.dir, storage, found);
            if (error != 0) {
                if (visitor.Failed(entry, Step::Read, error) != Next::Go) {
                    return Stopped(visitor, entry);
                }
                break;
            }
            if (found == nullptr) {
                break;
            }
            if (IsDotEntry(found->d_name)) {
                continue;
            }
            Entry child;
            child.path = entry.path + "/" + found->d_name;
            child.relative =
                entry.relative.empty() ? std::string(found->d_name) : entry.relative + "/" + found->d_name;
            bool went_on = true;
            if (lstat(child.path.c_str(), &child.st) != 0) {
                went_on = visitor.Failed(child, Step::Stat, errno) == Next::Go || Stopped(visitor, child);
            } else {
                went_on = Visit(visitor, child);
            }
            if (!went_on) {
                return Stopped(visitor, entry);
            }
        }
    }
    return visitor.Leave(entry) == Next::Go || Stopped(visitor, entry);
}

} // namespace

bool Walk(const std::string& root, Visitor& visitor, bool follow_root_link)
{
    Entry entry;
    entry.path = root;
    const int looked = follow_root_link ? stat(root.c_str(), &entry.st) : lstat(root.c_str(), &entry.st);
    if (looked != 0) {
        return visitor.Failed(entry, Step::Stat, errno) == Next::Go || Stopped(visitor, entry);
    }
    return Visit(visitor, entry);
}

} // namespace treewalk
