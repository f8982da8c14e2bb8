#include "service_fixture.h"

#include <archive.h>
#include <archive_entry.h>
#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace servicetest {

namespace {

struct WriteFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};

::testing::AssertionResult ArchiveFailure(archive* a, const std::string& what)
{
    const char* reason = archive_error_string(a);
    return ::testing::AssertionFailure() << what << ": " << (reason != nullptr ? reason : "unknown error");
}

void SnapshotInto(const std::string& root, const std::string& rel, Tree& tree)
{
    const std::string path = rel.empty() ? root : root + "/" + rel;
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        return;
    }
    if (S_ISLNK(st.st_mode)) {
        char target[4096];
        const ssize_t n = readlink(path.c_str(), target, sizeof target);
        tree[rel] = "link " + std::string(target, n > 0 ? static_cast<size_t>(n) : 0);
    } else if (S_ISDIR(st.st_mode)) {
        if (!rel.empty()) {
            tree[rel] = "dir";
        }
        DIR* dir = opendir(path.c_str());
        if (dir == nullptr) {
            tree[rel] = std::string("unlistable dir: ") + strerror(errno);
            return;
        }
        while (const struct dirent* e = readdir(dir)) {
            if (strcmp(e->d_name, ".") != 0 && strcmp(e->d_name, "..") != 0) {
                SnapshotInto(root, rel.empty() ? e->d_name : rel + "/" + e->d_name, tree);
            }
        }
        closedir(dir);
    } else {
        tree[rel] =
            std::string("file ") + ((st.st_mode & 0111) != 0 ? "x " : "- ") + testsupport::ReadFile(path);
    }
}

// "%b %d %H:%M:%S " as the logger writes it.
const size_t kTimestampLength = 16;

bool HasTimestamp(const std::string& line)
{
    static const char shape[] = "Aaa 00 00:00:00 ";
    if (line.size() < kTimestampLength) {
        return false;
    }
    for (size_t i = 0; i < kTimestampLength; ++i) {
        const unsigned char c = static_cast<unsigned char>(line[i]);
        const bool fits = shape[i] == 'A'   ? isupper(c) != 0
                          : shape[i] == 'a' ? islower(c) != 0
                          : shape[i] == '0' ? isdigit(c) != 0
                                            : c == static_cast<unsigned char>(shape[i]);
        if (!fits) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string FormatName(PackageFormat format)
{
    switch (format) {
    case PackageFormat::Tar:
        return "tar";
    case PackageFormat::TarGz:
        return "tar_gz";
    case PackageFormat::Zip:
        return "zip";
    }
    return "unknown";
}

void PrintTo(PackageFormat format, std::ostream* os)
{
    *os << FormatName(format);
}

PackageEntry FileEntry(const std::string& path, const std::string& data, mode_t mode)
{
    return PackageEntry{path, data, false, mode};
}

PackageEntry FolderEntry(const std::string& path)
{
    return PackageEntry{path, {}, true, 0755};
}

::testing::AssertionResult WritePackage(const std::string& path, PackageFormat format,
                                        const std::vector<PackageEntry>& entries)
{
    std::unique_ptr<archive, WriteFree> out(archive_write_new());
    if (!out) {
        return ::testing::AssertionFailure() << "archive_write_new failed";
    }
    int r = format == PackageFormat::Zip ? archive_write_set_format_zip(out.get())
                                         : archive_write_set_format_pax_restricted(out.get());
    if (r == ARCHIVE_OK && format == PackageFormat::TarGz) {
        r = archive_write_add_filter_gzip(out.get());
    }
    if (r != ARCHIVE_OK) {
        return ArchiveFailure(out.get(), "set format " + FormatName(format));
    }
    if (archive_write_open_filename(out.get(), path.c_str()) != ARCHIVE_OK) {
        return ArchiveFailure(out.get(), "open " + path);
    }
    for (const PackageEntry& item : entries) {
        std::unique_ptr<archive_entry, EntryFree> entry(archive_entry_new());
        archive_entry_set_pathname(entry.get(), item.folder ? (item.path + "/").c_str() : item.path.c_str());
        archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), item.mode);
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(item.data.size()));
        archive_entry_set_mtime(entry.get(), 1500000000, 0);
        if (archive_write_header(out.get(), entry.get()) != ARCHIVE_OK) {
            return ArchiveFailure(out.get(), "header of " + item.path);
        }
        if (!item.data.empty() && archive_write_data(out.get(), item.data.data(), item.data.size()) !=
                                      static_cast<la_ssize_t>(item.data.size())) {
            return ArchiveFailure(out.get(), "data of " + item.path);
        }
    }
    if (archive_write_close(out.get()) != ARCHIVE_OK) {
        return ArchiveFailure(out.get(), "close " + path);
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult TruncateFile(const std::string& path, off_t size)
{
    if (truncate(path.c_str(), size) != 0) {
        return ::testing::AssertionFailure() << "truncate " << path << ": " << strerror(errno);
    }
    return ::testing::AssertionSuccess();
}

std::string NoiseBytes(size_t size)
{
    std::string bytes(size, '\0');
    uint32_t state = 2463534242u;
    for (char& c : bytes) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        c = static_cast<char>(state & 0xFF);
    }
    return bytes;
}

Tree Snapshot(const std::string& root)
{
    Tree tree;
    SnapshotInto(root, "", tree);
    return tree;
}

Tree TreeOf(const std::vector<PackageEntry>& entries)
{
    Tree tree;
    for (const PackageEntry& item : entries) {
        for (size_t slash = item.path.find('/'); slash != std::string::npos;
             slash = item.path.find('/', slash + 1)) {
            tree[item.path.substr(0, slash)] = "dir";
        }
        tree[item.path] =
            item.folder ? "dir" : std::string("file ") + ((item.mode & 0111) != 0 ? "x " : "- ") + item.data;
    }
    return tree;
}

std::vector<std::string> ServiceLines(const std::string& log_text)
{
    static const char* const sources[] = {"calderix-service(", "mac/mac-service("};
    std::vector<std::string> lines;
    for (std::string line : testsupport::Lines(log_text)) {
        if (HasTimestamp(line)) {
            line.erase(0, kTimestampLength);
        }
        const size_t tag_end = line.find("] ");
        if (line.empty() || line[0] != '[' || tag_end == std::string::npos) {
            continue;
        }
        bool ours = false;
        for (const char* source : sources) {
            ours = ours || line.compare(tag_end + 2, strlen(source), source) == 0;
        }
        if (!ours) {
            continue;
        }
        // Every source line number, also of a message that an earlier one
        // without a line feed ran into.
        for (const char* source : sources) {
            for (size_t at = line.find(source); at != std::string::npos; at = line.find(source, at + 1)) {
                const size_t digits = at + strlen(source);
                const size_t close = line.find_first_not_of("0123456789", digits);
                if (close != std::string::npos && close > digits && line[close] == ')') {
                    line.replace(digits, close - digits, "%d");
                }
            }
        }
        lines.push_back(line);
    }
    return lines;
}

std::string ValueOf(const std::string& text, const std::string& key)
{
    for (const std::string& line : testsupport::Lines(text)) {
        if (line.compare(0, key.size() + 1, key + "=") == 0) {
            return line.substr(key.size() + 1);
        }
    }
    return {};
}

pid_t WaitForPidFile(const std::string& path)
{
    // Only a bound for a stand-in that never comes up; nothing is timed.
    for (int i = 0; i < 6000; ++i) {
        const std::string pid = ValueOf(testsupport::ReadFile(path), "pid");
        if (!pid.empty()) {
            return static_cast<pid_t>(std::stol(pid));
        }
        usleep(10000);
    }
    return -1;
}

std::vector<pid_t> ProcessesRunning(const std::string& exe)
{
    std::vector<pid_t> pids;
    struct stat want;
    if (stat(exe.c_str(), &want) != 0) {
        return pids;
    }
    DIR* proc = opendir("/proc");
    if (proc == nullptr) {
        ADD_FAILURE() << "/proc: " << strerror(errno);
        return pids;
    }
    while (const struct dirent* e = readdir(proc)) {
        char* end = nullptr;
        const long pid = strtol(e->d_name, &end, 10);
        struct stat st;
        if (pid > 0 && *end == '\0' && stat(("/proc/" + std::string(e->d_name) + "/exe").c_str(), &st) == 0 &&
            st.st_dev == want.st_dev && st.st_ino == want.st_ino) {
            pids.push_back(static_cast<pid_t>(pid));
        }
    }
    closedir(proc);
    return pids;
}

void KillAllRunning(const std::string& exe)
{
    for (pid_t pid : ProcessesRunning(exe)) {
        kill(pid, SIGKILL);
    }
}

pid_t StartAs(uid_t uid, gid_t gid, const std::vector<std::string>& argv,
              const std::vector<testsupport::EnvChange>& env)
{
    std::vector<std::string> args{"/usr/bin/setpriv", "--reuid=" + std::to_string(uid),
                                  "--regid=" + std::to_string(gid), "--clear-groups", "--"};
    args.insert(args.end(), argv.begin(), argv.end());
    return testsupport::Start(args, env);
}

} // namespace servicetest
