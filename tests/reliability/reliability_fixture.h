// Whole launcher runs against packages that are large, damaged, hostile or
// cut short, from a private copy of the demo bundle with a fake home.
#pragma once

#include <ctime>
#include <ftw.h>
#include <grp.h>
#include <map>

#include "launcher_fixture.h"
#include "tree_snapshot.h"
#include "vpkpack.h"

namespace reliability {

using testsupport::SameTree;
using testsupport::Snapshot;
using testsupport::Tree;

constexpr uid_t kNobody = 65534;
const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";

} // namespace reliability

class ReliabilityFixture : public LauncherFixture {
public:
    void SetUp() override
    {
        LauncherFixture::SetUp();
        // Something of the user's own next to the installation, which no run may touch.
        ASSERT_TRUE(!HasFatalFailure() && testsupport::MakeDirs(home_ + "/Documents") &&
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
        const std::string resources = app + "/Contents/Resources";
        if (testsupport::Exists(app)) {
            return app;
        }
        std::map<std::string, std::string> files = {
            {app + "/Contents/Info.plist",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n"
             "<dict>\n\t<key>CFBundleExecutable</key>\n\t<string>"
             "calderix-drive-ui</string>\n</dict>\n</plist>\n"},
            {resources + "/INFO", "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=" + build +
                                      "\nicon_overlay_version=3\n"}};
        for (int d = 0; d < folders; ++d) {
            for (int f = 0; f < files_per_folder; ++f) {
                files[resources + "/data/d" + std::to_string(100 + d) + "/f" + std::to_string(100 + f)] =
                    "build " + build + " file " + std::to_string(d) + "." + std::to_string(f) + "\n" +
                    std::string(static_cast<size_t>(97 * f), 'a' + static_cast<char>(d % 26));
            }
        }
        EXPECT_TRUE(testsupport::MakeDirs(app + "/Contents/MacOS") &&
                    testsupport::CopyTree(DEMO_UI_PATH, app + "/Contents/MacOS/calderix-drive-ui"))
            << app << ": " << strerror(errno);
        for (const auto& [path, content] : files) {
            EXPECT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/'))) &&
                        testsupport::WriteFile(path, content))
                << path << ": " << strerror(errno);
        }
        return app;
    }

    // The launcher bundle's package, in format, and version file for that
    // client bundle; the package's entry count.
    int PackClient(const std::string& build, int folders = 0, int files_per_folder = 0,
                   vpkpack::Format format = vpkpack::Format::TarZst)
    {
        vpkpack::PackOptions options;
        options.format = format;
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
        ASSERT_TRUE(testsupport::MakeDirs(install_) && testsupport::CopyTree(ClientBundle(build), app_))
            << app_ << ": " << strerror(errno);
    }

    // Gives the fixture's tree to nobody, for a run as nobody (DropRoot):
    // root writes into read-only folders and signals anyone all the same.
    void GiveToNobody() const
    {
        const auto give = [](const char* path, const struct stat*, int, FTW*) {
            return lchown(path, reliability::kNobody, reliability::kNobody);
        };
        ASSERT_EQ(nftw(root_.c_str(), give, 16, FTW_PHYS), 0) << root_ << ": " << strerror(errno);
    }

    // For a child about to exec: runs it as nobody.
    static void DropRoot()
    {
        if (setgroups(0, nullptr) != 0 || setgid(reliability::kNobody) != 0 ||
            setuid(reliability::kNobody) != 0) {
            perror("dropping root");
            _exit(127);
        }
    }

    // Everything of the user's outside ~/.Calderix, and the launcher's bundle.
    reliability::Tree Outside() const
    {
        reliability::Tree tree = reliability::Snapshot(home_);
        for (auto it = tree.begin(); it != tree.end();) {
            const bool installed = it->first == ".Calderix" || it->first.rfind(".Calderix/", 0) == 0;
            it = installed ? tree.erase(it) : std::next(it);
        }
        for (const auto& [path, entry] : reliability::Snapshot(bundle_)) {
            tree["<bundle>/" + path] = entry;
        }
        return tree;
    }

    // Starts the launcher at path with its output kept under name.
    pid_t StartLauncher(const std::string& name, const std::vector<testsupport::EnvChange>& env,
                        const std::string& path = {}) const
    {
        return testsupport::Start({path.empty() ? launcher_ : path}, env, root_ + "/" + name + ".out",
                                  root_ + "/" + name + ".err");
    }

    // Waits for the launcher started under name; one still running after
    // seconds is killed, a bound against hanging and never a measure.
    testsupport::ProcessResult Finish(pid_t pid, const std::string& name, int seconds = 90) const
    {
        int status = -1;
        for (const time_t end = time(nullptr) + seconds; waitpid(pid, &status, WNOHANG) == 0; usleep(10000)) {
            if (time(nullptr) > end) {
                kill(pid, SIGKILL);
            }
        }
        return {WIFEXITED(status), WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                WIFSIGNALED(status) ? WTERMSIG(status) : 0,
                testsupport::ReadFile(root_ + "/" + name + ".out"),
                testsupport::ReadFile(root_ + "/" + name + ".err")};
    }
};
