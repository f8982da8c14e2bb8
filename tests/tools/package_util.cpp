#include "package_util.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

#include "test_support.h"

namespace {

struct ArchiveFree {
    void operator()(archive* a) const { archive_free(a); }
};
using Handle = std::unique_ptr<archive, ArchiveFree>;

::testing::AssertionResult Fail(archive* a, const std::string& what)
{
    const char* text = archive_error_string(a);
    return ::testing::AssertionFailure() << what << ": " << (text != nullptr ? text : "(no message)");
}

void SnapshotInto(const std::string& root, const std::string& prefix, std::map<std::string, std::string>* out)
{
    const std::string folder = prefix.empty() ? root : root + "/" + prefix;
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr) {
        (*out)["<error>"] = folder + ": " + std::strerror(errno);
        return;
    }
    while (const struct dirent* e = readdir(dir)) {
        const std::string name = e->d_name;
        if (name == "." || name == "..") {
            continue;
        }
        const std::string rel = prefix.empty() ? name : prefix + "/" + name;
        const std::string path = root + "/" + rel;
        struct stat st;
        if (lstat(path.c_str(), &st) != 0) {
            (*out)["<error>"] = path + ": " + std::strerror(errno);
        } else if (S_ISDIR(st.st_mode)) {
            (*out)[rel] = "folder";
            SnapshotInto(root, rel, out);
        } else if (S_ISLNK(st.st_mode)) {
            char target[4096];
            const ssize_t n = readlink(path.c_str(), target, sizeof target);
            (*out)[rel] = "link " + std::string(target, n > 0 ? static_cast<size_t>(n) : 0);
        } else {
            (*out)[rel] =
                std::string("file ") + ((st.st_mode & 0100) != 0 ? "x " : "- ") + testsupport::ReadFile(path);
        }
    }
    closedir(dir);
}

} // namespace

StoredEntry StoredFile(const std::string& name, const std::string& data, mode_t perm)
{
    StoredEntry entry;
    entry.name = name;
    entry.data = data;
    entry.perm = perm;
    return entry;
}

StoredEntry StoredFolder(const std::string& name)
{
    StoredEntry entry;
    entry.name = name;
    entry.type = AE_IFDIR;
    entry.perm = 0755;
    return entry;
}

StoredEntry StoredLink(const std::string& name, const std::string& target)
{
    StoredEntry entry;
    entry.name = name;
    entry.type = AE_IFLNK;
    entry.perm = 0755;
    entry.symlink = target;
    return entry;
}

::testing::AssertionResult ReadPackage(const std::string& path, std::vector<StoredEntry>* entries)
{
    Handle reader(archive_read_new());
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_filename(reader.get(), path.c_str(), 10240) != ARCHIVE_OK) {
        return Fail(reader.get(), path);
    }
    archive_entry* header = nullptr;
    int r;
    while ((r = archive_read_next_header(reader.get(), &header)) == ARCHIVE_OK) {
        StoredEntry entry;
        entry.name = archive_entry_pathname(header);
        entry.type = archive_entry_filetype(header);
        entry.perm = archive_entry_perm(header);
        entry.symlink = archive_entry_symlink(header) != nullptr ? archive_entry_symlink(header) : "";
        entry.hardlink = archive_entry_hardlink(header) != nullptr ? archive_entry_hardlink(header) : "";
        entry.mtime = archive_entry_mtime(header);
        entry.uid = archive_entry_uid(header);
        entry.gid = archive_entry_gid(header);
        entry.uname = archive_entry_uname(header) != nullptr ? archive_entry_uname(header) : "";
        entry.atime_set = archive_entry_atime_is_set(header) != 0;
        char buffer[8192];
        la_ssize_t n;
        while ((n = archive_read_data(reader.get(), buffer, sizeof buffer)) > 0) {
            entry.data.append(buffer, static_cast<size_t>(n));
        }
        if (n < 0) {
            return Fail(reader.get(), path + ": data of " + entry.name);
        }
        entries->push_back(entry);
    }
    if (r != ARCHIVE_EOF) {
        return Fail(reader.get(), path);
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult WriteTar(const std::string& path, const std::vector<StoredEntry>& entries)
{
    Handle writer(archive_write_new());
    archive_write_set_format_pax_restricted(writer.get());
    if (archive_write_open_filename(writer.get(), path.c_str()) != ARCHIVE_OK) {
        return Fail(writer.get(), path);
    }
    for (const StoredEntry& item : entries) {
        std::unique_ptr<archive_entry, void (*)(archive_entry*)> header(archive_entry_new(),
                                                                        archive_entry_free);
        archive_entry_set_pathname(header.get(), item.name.c_str());
        archive_entry_set_filetype(header.get(), item.type);
        archive_entry_set_perm(header.get(), item.perm);
        archive_entry_set_size(header.get(), static_cast<la_int64_t>(item.data.size()));
        if (!item.symlink.empty()) {
            archive_entry_set_symlink(header.get(), item.symlink.c_str());
        }
        if (!item.hardlink.empty()) {
            archive_entry_set_hardlink(header.get(), item.hardlink.c_str());
            archive_entry_set_size(header.get(), 0);
        }
        if (archive_write_header(writer.get(), header.get()) != ARCHIVE_OK ||
            (item.hardlink.empty() && !item.data.empty() &&
             archive_write_data(writer.get(), item.data.data(), item.data.size()) !=
                 static_cast<la_ssize_t>(item.data.size()))) {
            return Fail(writer.get(), path + ": " + item.name);
        }
    }
    if (archive_write_close(writer.get()) != ARCHIVE_OK) {
        return Fail(writer.get(), path);
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult ExtractLikeLauncher(const std::string& package, const std::string& dest)
{
    Handle reader(archive_read_new());
    Handle disk(archive_write_disk_new());
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    archive_write_disk_set_options(disk.get(), ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT);
    if (archive_read_open_filename(reader.get(), package.c_str(), 10240) != ARCHIVE_OK) {
        return Fail(reader.get(), package);
    }
    archive_entry* header = nullptr;
    int r;
    while ((r = archive_read_next_header(reader.get(), &header)) == ARCHIVE_OK) {
        const std::string name = archive_entry_pathname(header);
        archive_entry_set_pathname(header, (dest + "/" + name).c_str());
        if (archive_read_extract2(reader.get(), header, disk.get()) != ARCHIVE_OK) {
            return Fail(disk.get(), package + ": extracting " + name);
        }
    }
    if (r != ARCHIVE_EOF) {
        return Fail(reader.get(), package);
    }
    return ::testing::AssertionSuccess();
}

std::map<std::string, std::string> Snapshot(const std::string& root)
{
    std::map<std::string, std::string> out;
    SnapshotInto(root, "", &out);
    return out;
}
