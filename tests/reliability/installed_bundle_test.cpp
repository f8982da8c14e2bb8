// The launcher bundle as `cmake --install` lays it out, installed afresh
// into each test's folder: it must load the libraries it carries from
// itself, and install and start the client on a machine that lacks them.
#include <csignal>
#include <set>
#include <string>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "reliability_fixture.h"

using namespace testsupport;

namespace {

std::string BaseName(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

// The files mapped into process pid, by path.
std::set<std::string> MappedFiles(pid_t pid)
{
    std::set<std::string> files;
    for (const std::string& line : Lines(ReadFile("/proc/" + std::to_string(pid) + "/maps"))) {
        // The path is all that follows the first "/"; it may hold blanks.
        const size_t slash = line.find('/');
        if (slash != std::string::npos) {
            files.insert(line.substr(slash));
        }
    }
    return files;
}

// Whether pid is stopped, waiting up to ten seconds for it to be.
bool WaitUntilStopped(pid_t pid)
{
    for (int i = 0; i < 1000; ++i) {
        const std::string stat = ReadFile("/proc/" + std::to_string(pid) + "/stat");
        const size_t close = stat.rfind(')');
        if (close != std::string::npos && stat.compare(close, 4, ") T ") == 0) {
            return true;
        }
        usleep(10000);
    }
    return false;
}

class InstalledBundle : public ReliabilityFixture {
protected:
    void SetUp() override
    {
        ReliabilityFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
        // The fixture's copy of the build tree's bundle makes way for the
        // installed one, at the same path.
        ASSERT_TRUE(RemoveTree(bundle_)) << bundle_ << ": " << strerror(errno);
        const ProcessResult install =
            testsupport::Run({CMAKE_BIN, "--install", BUILD_DIR, "--prefix", root_});
        ASSERT_EQ(install.exit_code, 0) << "cmake --install failed:\n" << install.out << install.err;
        frameworks_ = bundle_ + "/Contents/Frameworks";
        DIR* dir = opendir(frameworks_.c_str());
        ASSERT_NE(dir, nullptr) << frameworks_ << ": " << strerror(errno);
        while (const struct dirent* e = readdir(dir)) {
            carried_.insert(e->d_name);
        }
        closedir(dir);
        ASSERT_TRUE(carried_.count("libQt5Core.so.5") && carried_.count("libarchive.so.13"))
            << "the bundle carries no Qt or libarchive";
    }

    std::string frameworks_;
    std::set<std::string> carried_; // the names in Contents/Frameworks
};

TEST_F(InstalledBundle, MapsWhatItCarriesFromItselfAndInstallsTheClient)
{
    // Stopped at its first entry of the upgrade, it has loaded its libraries
    // and its platform plug-in.
    const pid_t pid = Start({launcher_}, ShimEnv(KILL_SHIM, "stop:1"), root_ + "/out", root_ + "/err");
    ASSERT_GT(pid, 0) << strerror(errno);
    const bool stopped = WaitUntilStopped(pid);
    const std::set<std::string> mapped = MappedFiles(pid);
    kill(pid, SIGCONT);
    const int status = Wait(pid);
    ASSERT_TRUE(stopped) << "the launcher never reached the upgrade:\n" << ReadFile(root_ + "/err");

    std::set<std::string> kinds;
    for (const std::string& file : mapped) {
        const bool inside = file.compare(0, bundle_.size() + 1, bundle_ + "/") == 0;
        EXPECT_TRUE(inside || carried_.count(BaseName(file)) == 0)
            << file << " is mapped from the system although the bundle carries it";
        for (const char* kind :
             {"libQt5Core.", "libQt5Widgets.", "libicuuc.", "libarchive.", "libqoffscreen."}) {
            if (inside && BaseName(file).rfind(kind, 0) == 0) {
                kinds.insert(kind);
            }
        }
    }
    EXPECT_EQ(kinds.size(), 5u) << "not every kind of library is mapped from the bundle";

    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status << "\n"
                                                               << ReadFile(root_ + "/err");
    EXPECT_EQ(ReadFile(root_ + "/out"), "lib path = '" + frameworks_ + "/plugins'\n");
    EXPECT_GT(WaitForUi(), 0) << "the installed client did not start";
    EXPECT_EQ(reliability::Snapshot(app_), reliability::Snapshot(DEMO_CLIENT))
        << "the client is not installed as packed";
}

// The Qt, ICU and libarchive of the system and everything else the bundle
// carries are hidden behind empty files, so that only the bundle has them.
TEST_F(InstalledBundle, InstallsAndStartsTheClientWithTheSystemsCopiesHidden)
{
    // A client that needs no library of the system's: the demo UI would.
    const std::string client = root_ + "/script-client/Calderix.app";
    ASSERT_TRUE(MakeDirs(client + "/Contents/MacOS") && MakeDirs(client + "/Contents/Resources") &&
                WriteFile(client + "/Contents/MacOS/calderix-drive-ui",
                          "#!/bin/sh\necho \"pid=$$\" >\"$HOME/.Calderix/ui.pid\"\n", 0755) &&
                WriteFile(client + "/Contents/Resources/INFO", "[Version]\nbuild_version=1300\n"))
        << strerror(errno);
    vpkpack::PackOptions options;
    options.info_out = bundle_ + "/Contents/Resources/INFO";
    const vpkpack::Status packed = vpkpack::Pack(client, package_, options);
    ASSERT_TRUE(packed.ok()) << packed.Message();

    const std::string refused = reliability::EnterPrivateMounts();
    if (!refused.empty()) {
        GTEST_SKIP() << "no mount namespace of our own to hide the system's libraries in: " << refused;
    }
    // The system's copies are the ones beside the Qt this test runs with.
    std::string system;
    for (const std::string& file : MappedFiles(getpid())) {
        if (BaseName(file).rfind("libQt5Core.so", 0) == 0) {
            system = file.substr(0, file.rfind('/'));
        }
    }
    ASSERT_FALSE(system.empty()) << "this test maps no libQt5Core";
    const std::string empty = root_ + "/empty";
    ASSERT_TRUE(WriteFile(empty, "")) << strerror(errno);
    int hidden = 0;
    for (const std::string& name : carried_) {
        char real[PATH_MAX];
        if (name.rfind("lib", 0) != 0 || realpath((system + "/" + name).c_str(), real) == nullptr) {
            continue;
        }
        ASSERT_EQ(mount(empty.c_str(), real, nullptr, MS_BIND, nullptr), 0)
            << real << ": " << strerror(errno);
        ++hidden;
    }
    ASSERT_GT(hidden, 20) << "too few of the system's libraries found in " << system;
    const ProcessResult build_tree =
        testsupport::Run({DEMO_BUNDLE "/Contents/MacOS/launcher"}, Env(root_ + "/other-home"));
    ASSERT_EQ(build_tree.exit_code, 127) << "the system's libraries are not hidden:\n" << build_tree.err;

    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(ReadFile(ui_), ReadFile(client + "/Contents/MacOS/calderix-drive-ui"));
    EXPECT_GT(WaitForUi(), 0) << "the client did not start";
}

} // namespace
