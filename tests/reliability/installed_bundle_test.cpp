// The launcher bundle as `cmake --install` lays it out, installed afresh
// into each test's folder: it must load the libraries it carries from
// itself, not the system's, and install and start the client.
#include <filesystem>
#include <set>

#include "reliability_fixture.h"

using namespace testsupport;

namespace {

using InstalledBundle = ReliabilityFixture;

TEST_F(InstalledBundle, MapsWhatItCarriesFromItselfAndInstallsTheClient)
{
    // The fixture's copy of the build tree's bundle makes way for the
    // installed one, at the same path.
    ASSERT_TRUE(RemoveTree(bundle_)) << bundle_ << ": " << strerror(errno);
    const ProcessResult install = testsupport::Run({CMAKE_BIN, "--install", BUILD_DIR, "--prefix", root_});
    ASSERT_EQ(install.exit_code, 0) << "cmake --install failed:\n" << install.out << install.err;
    const std::string frameworks = bundle_ + "/Contents/Frameworks";
    std::set<std::string> carried; // the names in Contents/Frameworks
    for (const auto& entry : std::filesystem::directory_iterator(frameworks)) {
        carried.insert(entry.path().filename());
    }
    ASSERT_TRUE(carried.count("libQt5Core.so.5") && carried.count("libarchive.so.13"))
        << "the bundle carries no Qt or libarchive";
    // Stopped at its first entry of the upgrade, it has loaded its libraries
    // and its platform plug-in.
    const pid_t pid = StartLauncher("run", ShimEnv("stop:1"));
    int status = 0;
    ASSERT_EQ(waitpid(pid, &status, WUNTRACED), pid) << strerror(errno);
    const std::vector<std::string> maps = Lines(ReadFile("/proc/" + std::to_string(pid) + "/maps"));
    kill(pid, SIGCONT);
    ASSERT_TRUE(WIFSTOPPED(status)) << "the launcher never reached the upgrade:\n"
                                    << ReadFile(root_ + "/run.err");
    std::set<std::string> kinds;
    for (const std::string& line : maps) {
        // The path is all that follows the first "/"; it may hold blanks.
        const std::string file = line.substr(std::min(line.find('/'), line.size()));
        const std::string name = file.substr(file.rfind('/') + 1);
        const bool inside = file.rfind(bundle_ + "/", 0) == 0;
        EXPECT_TRUE(inside || carried.count(name) == 0)
            << file << " is mapped from the system although the bundle carries it";
        for (const char* kind :
             {"libQt5Core.", "libQt5Widgets.", "libicuuc.", "libarchive.", "libqoffscreen."}) {
            if (inside && name.rfind(kind, 0) == 0) {
                kinds.insert(kind);
            }
        }
    }
    EXPECT_EQ(kinds.size(), 5u) << "not every kind of library is mapped from the bundle";
    const ProcessResult run = Finish(pid, "run");
    ASSERT_TRUE(run.exited && run.exit_code == 0) << run.err;
    EXPECT_EQ(run.out, "lib path = '" + frameworks + "/plugins'\n");
    EXPECT_GT(WaitForUi(), 0) << "the installed client did not start";
    EXPECT_TRUE(reliability::SameTree(reliability::Snapshot(DEMO_CLIENT), reliability::Snapshot(app_)))
        << "the client is not installed as packed";
}

} // namespace
