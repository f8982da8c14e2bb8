#include "service_fixture.h"

#include <archive.h>
#include <archive_entry.h>
#include <csignal>
#include <filesystem>
#include <memory>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace servicetest {

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
    std::unique_ptr<archive, int (*)(archive*)> out(archive_write_new(), archive_write_free);
    const auto failure = [&](const std::string& what) {
        const char* reason = archive_error_string(out.get());
        return ::testing::AssertionFailure() << path << ": " << what << ": " << (reason ? reason : "?");
    };
    int r = format == PackageFormat::Zip ? archive_write_set_format_zip(out.get())
                                         : archive_write_set_format_pax_restricted(out.get());
    if (r == ARCHIVE_OK && format == PackageFormat::TarGz) {
        r = archive_write_add_filter_gzip(out.get());
    }
    if (r != ARCHIVE_OK || archive_write_open_filename(out.get(), path.c_str()) != ARCHIVE_OK) {
        return failure("open");
    }
    for (const PackageEntry& item : entries) {
        std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(),
                                                                       archive_entry_free);
        archive_entry_set_pathname(entry.get(), item.folder ? (item.path + "/").c_str() : item.path.c_str());
        archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), item.mode);
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(item.data.size()));
        archive_entry_set_mtime(entry.get(), 1500000000, 0);
        if (archive_write_header(out.get(), entry.get()) != ARCHIVE_OK ||
            archive_write_data(out.get(), item.data.data(), item.data.size()) !=
                static_cast<la_ssize_t>(item.data.size())) {
            return failure(item.path);
        }
    }
    return archive_write_close(out.get()) == ARCHIVE_OK ? ::testing::AssertionSuccess() : failure("close");
}

std::string NoiseBytes(size_t size)
{
    std::mt19937 random(2463534242u);
    std::string bytes(size, '\0');
    for (char& c : bytes) {
        c = static_cast<char>(random());
    }
    return bytes;
}

Tree Snapshot(const std::string& root)
{
    const auto describe = [](const fs::path& path) {
        const fs::file_status st = fs::symlink_status(path);
        if (fs::is_symlink(st)) {
            return "link " + fs::read_symlink(path).string();
        }
        if (fs::is_directory(st)) {
            return std::string("dir");
        }
        const bool x =
            (st.permissions() & (fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec)) !=
            fs::perms::none;
        return std::string("file ") + (x ? "x " : "- ") + testsupport::ReadFile(path);
    };
    Tree tree;
    std::error_code ec;
    const fs::file_status st = fs::symlink_status(root, ec);
    if (!fs::exists(st)) {
        return tree;
    }
    if (!fs::is_directory(st)) {
        tree[""] = describe(root);
        return tree;
    }
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        tree[it->path().lexically_relative(root).string()] = describe(it->path());
    }
    if (ec) {
        tree["<error>"] = ec.message();
    }
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

std::vector<std::string> ServiceLines(const std::string& log_text,
                                      const std::vector<std::pair<std::string, std::string>>& names)
{
    static const std::string sources[] = {"] calderix-service(", "] mac/mac-service("};
    std::vector<std::string> lines;
    for (std::string line : testsupport::Lines(log_text)) {
        // Without the "%b %d %H:%M:%S " timestamp, and only ours.
        const bool stamped = line.size() > 16 && line[3] == ' ' && line[9] == ':' && line[12] == ':';
        line.erase(0, stamped ? 16 : 0);
        const size_t tag_end = line.find("] ");
        if (line.empty() || line[0] != '[' || tag_end == std::string::npos ||
            (line.compare(tag_end, sources[0].size(), sources[0]) != 0 &&
             line.compare(tag_end, sources[1].size(), sources[1]) != 0)) {
            continue;
        }
        // Also the line numbers of a message that one without a line feed ran into.
        for (const std::string& source : sources) {
            for (size_t at = line.find(source); at != std::string::npos; at = line.find(source, at + 1)) {
                const size_t digits = at + source.size(), end = line.find_first_not_of("0123456789", digits);
                if (end != std::string::npos && end > digits && line[end] == ')') {
                    line.replace(digits, end - digits, "%d");
                }
            }
        }
        for (const auto& [path, name] : names) {
            for (size_t at = line.find(path); at != std::string::npos; at = line.find(path, at)) {
                line.replace(at, path.size(), name);
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
    // Only a bound for a program that never comes up; nothing is timed.
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
    struct stat want, st;
    std::error_code ec;
    if (stat(exe.c_str(), &want) != 0) {
        return pids;
    }
    for (fs::directory_iterator it("/proc", ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (name.find_first_not_of("0123456789") == std::string::npos &&
            stat((it->path() / "exe").c_str(), &st) == 0 && st.st_dev == want.st_dev &&
            st.st_ino == want.st_ino) {
            pids.push_back(static_cast<pid_t>(std::stol(name)));
        }
    }
    EXPECT_FALSE(ec) << "/proc: " << ec.message();
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
