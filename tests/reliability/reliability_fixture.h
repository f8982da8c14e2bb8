// Whole launcher runs against packages that are large, damaged, hostile or
// cut short, from a private copy of the demo bundle with a fake home.
#pragma once

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fstream>
#include <functional>
#include <map>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "launcher_fixture.h"
#include "test_support.h"
#include "vpkpack.h"

namespace reliability {

// A tree by path relative to its root: "dir", "link -> target" or
// "file x|- <size> <hash>" (x when any execute bit is set).
using Tree = std::map<std::string, std::string>;

inline void SnapshotInto(const std::string& root, const std::string& rel, const std::string& skip, Tree& tree)
{
    const std::string path = rel.empty() ? root : root + "/" + rel;
    struct stat st;
    if ((!skip.empty() && rel == skip) || lstat(path.c_str(), &st) != 0) {
        return;
    }
    if (S_ISDIR(st.st_mode)) {
        tree[rel] = "dir";
        DIR* dir = opendir(path.c_str());
        if (dir == nullptr) {
            tree[rel] = std::string("unlistable: ") + strerror(errno);
            return;
        }
        while (const struct dirent* e = readdir(dir)) {
            if (strcmp(e->d_name, ".") != 0 && strcmp(e->d_name, "..") != 0) {
                SnapshotInto(root, rel.empty() ? e->d_name : rel + "/" + e->d_name, skip, tree);
            }
        }
        closedir(dir);
    } else if (S_ISLNK(st.st_mode)) {
        char target[PATH_MAX];
        const ssize_t n = readlink(path.c_str(), target, sizeof target);
        tree[rel] = "link -> " + std::string(target, n > 0 ? static_cast<size_t>(n) : 0);
    } else {
        const std::string data = testsupport::ReadFile(path);
        tree[rel] = std::string("file ") + ((st.st_mode & 0111) != 0 ? "x " : "- ") +
                    std::to_string(data.size()) + " " + std::to_string(std::hash<std::string>()(data));
    }
}

// The tree below root, leaving out the relative path skip.
inline Tree Snapshot(const std::string& root, const std::string& skip = {})
{
    Tree tree;
    SnapshotInto(root, "", skip, tree);
    return tree;
}

// Paths whose entries differ between two trees, for failure messages.
inline std::string Difference(const Tree& want, const Tree& got)
{
    std::string out;
    int shown = 0;
    for (const auto& w : want) {
        const auto g = got.find(w.first);
        if ((g == got.end() || g->second != w.second) && shown++ < 8) {
            out += "  " + w.first +
                   (g == got.end() ? ": missing\n" : ": " + g->second + ", want " + w.second + "\n");
        }
    }
    for (const auto& g : got) {
        if (want.count(g.first) == 0 && shown++ < 8) {
            out += "  " + g.first + ": unexpected " + g.second + "\n";
        }
    }
    return out;
}

// One entry of a package written by hand, in the order given.
struct PackEntry {
    enum Kind { File, Folder, Symlink, HardLink, Fifo, Device } kind = File;
    std::string name;
    std::string data;   // File
    mode_t perm = 0644; // File
    std::string target; // Symlink and HardLink, stored as given
};

// A ustar/pax package without vpkpack's rules or ordering.
inline ::testing::AssertionResult WritePackage(const std::string& path, const std::vector<PackEntry>& entries)
{
    archive* a = archive_write_new();
    archive_write_set_format_pax_restricted(a);
    if (archive_write_open_filename(a, path.c_str()) != ARCHIVE_OK) {
        const std::string error = archive_error_string(a);
        archive_write_free(a);
        return ::testing::AssertionFailure() << path << ": " << error;
    }
    std::string error;
    for (const PackEntry& e : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.name.c_str());
        archive_entry_set_mtime(entry, 1500000000, 0);
        archive_entry_set_filetype(entry, e.kind == PackEntry::Folder    ? AE_IFDIR
                                          : e.kind == PackEntry::Symlink ? AE_IFLNK
                                          : e.kind == PackEntry::Fifo    ? AE_IFIFO
                                          : e.kind == PackEntry::Device  ? AE_IFCHR
                                                                         : AE_IFREG);
        if (e.kind == PackEntry::Device) {
            archive_entry_set_rdev(entry, makedev(1, 5)); // as /dev/zero
        }
        archive_entry_set_perm(entry, e.kind == PackEntry::Folder    ? 0755
                                      : e.kind == PackEntry::Symlink ? 0777
                                                                     : e.perm);
        if (e.kind == PackEntry::Symlink) {
            archive_entry_set_symlink(entry, e.target.c_str());
        }
        if (e.kind == PackEntry::HardLink) {
            archive_entry_set_hardlink(entry, e.target.c_str());
        }
        archive_entry_set_size(entry, e.kind == PackEntry::File ? static_cast<la_int64_t>(e.data.size()) : 0);
        if (archive_write_header(a, entry) != ARCHIVE_OK ||
            (e.kind == PackEntry::File && !e.data.empty() &&
             archive_write_data(a, e.data.data(), e.data.size()) != static_cast<la_ssize_t>(e.data.size()))) {
            const char* text = archive_error_string(a);
            error = e.name + ": " + (text != nullptr ? text : "short write");
        }
        archive_entry_free(entry);
        if (!error.empty()) {
            break;
        }
    }
    if (archive_write_close(a) != ARCHIVE_OK && error.empty()) {
        error = "close failed";
    }
    archive_write_free(a);
    if (!error.empty()) {
        return ::testing::AssertionFailure() << path << ": " << error;
    }
    return ::testing::AssertionSuccess();
}

// This process, and with it every launcher and user interface it starts,
// gets mounts of its own: a small file system can then stand in for
// ~/.Calderix, files can be hidden, the test sees what they see, and the
// machine sees none of it. Without root a user namespace grants the mounts.
// Once per process; empty when done, else why not.
inline std::string EnterPrivateMounts()
{
    static const std::string refused = []() -> std::string {
        const std::string uid = std::to_string(geteuid()), gid = std::to_string(getegid());
        const auto put = [](const char* path, const std::string& text) {
            std::ofstream file(path);
            return static_cast<bool>(file << text << std::flush);
        };
        if (geteuid() == 0
                ? unshare(CLONE_NEWNS) != 0
                : unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0 || !put("/proc/self/setgroups", "deny") ||
                      !put("/proc/self/uid_map", uid + " " + uid + " 1") ||
                      !put("/proc/self/gid_map", gid + " " + gid + " 1")) {
            return std::string("user or mount namespace: ") + strerror(errno);
        }
        if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
            return std::string("private propagation: ") + strerror(errno);
        }
        return {};
    }();
    return refused;
}

} // namespace reliability

class ReliabilityFixture : public LauncherFixture {
protected:
    void SetUp() override
    {
        LauncherFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        // Something of the user's own next to the installation, which no run may touch.
        ASSERT_TRUE(testsupport::MakeDirs(home_ + "/Documents") &&
                    testsupport::WriteFile(home_ + "/Documents/notes.txt", "mine\n") &&
                    testsupport::WriteFile(home_ + "/.Calderix-settings", "keep=1\n"))
            << strerror(errno);
    }

    // A client bundle of build: the demo UI, the Info.plist that names it,
    // the version file, and folders data/dNN of files_per_folder files each.
    std::string ClientBundle(const std::string& build, int folders = 0, int files_per_folder = 0)
    {
        const std::string app = root_ + "/client-" + build + "-" + std::to_string(folders) + "x" +
                                std::to_string(files_per_folder) + "/Calderix.app";
        if (testsupport::Exists(app)) {
            return app;
        }
        const std::string macos = app + "/Contents/MacOS";
        const std::string resources = app + "/Contents/Resources";
        EXPECT_TRUE(testsupport::MakeDirs(macos) && testsupport::MakeDirs(resources))
            << app << ": " << strerror(errno);
        EXPECT_TRUE(testsupport::CopyTree(DEMO_UI_PATH, macos + "/calderix-drive-ui"))
            << DEMO_UI_PATH << ": " << strerror(errno);
        std::map<std::string, std::string> files = {
            {app + "/Contents/Info.plist",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
             "\t<key>CFBundleExecutable</key>\n\t<string>calderix-drive-ui</string>\n</dict>\n</plist>\n"},
            {resources + "/INFO", "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=" + build +
                                      "\nicon_overlay_version=3\n"}};
        for (int d = 0; d < folders; ++d) {
            const std::string folder = resources + "/data/d" + std::to_string(100 + d);
            EXPECT_TRUE(testsupport::MakeDirs(folder)) << folder << ": " << strerror(errno);
            for (int f = 0; f < files_per_folder; ++f) {
                files[folder + "/f" + std::to_string(100 + f)] =
                    "build " + build + " file " + std::to_string(d) + "." + std::to_string(f) + "\n" +
                    std::string(static_cast<size_t>(97 * f), 'a' + static_cast<char>(d % 26));
            }
        }
        for (const auto& file : files) {
            EXPECT_TRUE(testsupport::WriteFile(file.first, file.second))
                << file.first << ": " << strerror(errno);
        }
        return app;
    }

    // The launcher bundle's package and version file for that client
    // bundle; the package's entry count.
    int PackClient(const std::string& build, int folders = 0, int files_per_folder = 0)
    {
        vpkpack::PackOptions options;
        options.info_out = bundle_ + "/Contents/Resources/INFO";
        vpkpack::PackageSummary summary;
        const vpkpack::Status status =
            vpkpack::Pack(ClientBundle(build, folders, files_per_folder), package_, options, &summary);
        EXPECT_TRUE(status.ok()) << status.Message();
        return summary.entries;
    }

    // The user's copy of build, as an earlier run would have left it.
    void InstallCopy(const std::string& build)
    {
        ASSERT_TRUE(testsupport::MakeDirs(install_)) << install_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::CopyTree(ClientBundle(build), app_)) << app_ << ": " << strerror(errno);
    }

    // A run's environment with kill_shim.c (built at shim) preloaded,
    // acting at at. The shim comes ahead of the sanitizer's runtime, which
    // is harmless here: it only forwards calls.
    std::vector<testsupport::EnvChange> ShimEnv(const std::string& shim, const std::string& at) const
    {
        std::vector<testsupport::EnvChange> env = Env(home_);
        const char* asan = getenv("ASAN_OPTIONS");
        env.push_back(testsupport::Set("ASAN_OPTIONS", std::string(asan != nullptr ? asan : "") +
                                                           ":verify_asan_link_order=0"));
        env.push_back(testsupport::Set("LD_PRELOAD", shim));
        env.push_back(testsupport::Set("CALDERIX_KILL_AT", at));
        env.push_back(testsupport::Set("CALDERIX_KILL_ROOT", install_));
        return env;
    }

    // Everything of the user's outside ~/.Calderix, and the launcher's bundle.
    reliability::Tree Outside() const
    {
        reliability::Tree tree = reliability::Snapshot(home_, ".Calderix");
        for (const auto& entry : reliability::Snapshot(bundle_)) {
            tree["<bundle>/" + entry.first] = entry.second;
        }
        return tree;
    }

    // Starts the launcher with its output kept under name.
    pid_t StartLauncher(const std::string& name, const std::vector<testsupport::EnvChange>& env) const
    {
        return testsupport::Start({launcher_}, env, root_ + "/" + name + ".out", root_ + "/" + name + ".err");
    }

    // Waits for the launcher started under name; one still running at
    // deadline is killed, a bound against hanging and never a measure.
    testsupport::ProcessResult Finish(pid_t pid, const std::string& name, time_t deadline) const
    {
        int status = -1;
        while (waitpid(pid, &status, WNOHANG) == 0) {
            if (time(nullptr) > deadline) {
                kill(pid, SIGKILL);
            }
            usleep(10000);
        }
        testsupport::ProcessResult result;
        result.exited = WIFEXITED(status);
        result.exit_code = result.exited ? WEXITSTATUS(status) : -1;
        result.term_signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        result.out = testsupport::ReadFile(root_ + "/" + name + ".out");
        result.err = testsupport::ReadFile(root_ + "/" + name + ".err");
        return result;
    }

    // The user interface came up, once.
    void ExpectUiStartedOnce() const
    {
        const pid_t ui = WaitForUi();
        ASSERT_GT(ui, 0) << "no user interface came up";
        EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui}) << "the user interface was not started exactly once";
    }
};
