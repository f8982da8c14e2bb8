// Upgrades whose extraction fails part-way on a write error a user's
// machine really gives: a file size limit, a full disk, a folder that turns
// read-only. The launcher must put the old copy back as it was, log why,
// start the user interface and exit 0, touching nothing outside ~/.Calderix.
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ftw.h>
#include <functional>
#include <grp.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "reliability_fixture.h"

using namespace testsupport;

namespace {

const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";
const char kExtractFailed[] = "): archive_read_extract2 failed: '";

// About three hundred and thirty entries, each data file below a page; the
// user interface's executable, the largest file, comes second to last.
constexpr int kFolders = 20;
constexpr int kFilesPerFolder = 15;
constexpr uid_t kNobody = 65534;

enum class Fault { FileSizeLimit, FullFileSystem, ReadOnlyFolder };

struct WriteErrorRow {
    const char* name;
    Fault fault;
    // The start of libarchive's text in the extractor's error line; the
    // errno behind it (EFBIG, ENOSPC, EACCES) is not logged.
    const char* reason;
};

void PrintTo(const WriteErrorRow& row, std::ostream* os)
{
    *os << row.name;
}

int GiveToNobody(const char* path, const struct stat*, int, FTW*)
{
    return lchown(path, kNobody, kNobody);
}

class WriteError : public ReliabilityFixture, public ::testing::WithParamInterface<WriteErrorRow> {
protected:
    void TearDown() override
    {
        ReliabilityFixture::TearDown();
        // Lazily, and with it the log's bind mount below.
        EXPECT_TRUE(!mounted_ || umount2(install_.c_str(), MNT_DETACH) == 0)
            << install_ << ": " << strerror(errno);
    }

    // ~/.Calderix on a tmpfs with room for the installed copy and half the
    // package's data files, a page each. The log stays on the real disk so
    // that the failure's lines are not lost to the full one.
    void InstallOnSmallFileSystem()
    {
        const std::string refused = reliability::EnterPrivateMounts();
        if (!refused.empty()) {
            GTEST_SKIP() << "no mount namespace of our own for a small ~/.Calderix: " << refused;
        }
        const long pages = kFolders * kFilesPerFolder / 2 + 8;
        const std::string options =
            "mode=0755,size=" + std::to_string(ReadFile(DEMO_UI_PATH).size() + pages * sysconf(_SC_PAGESIZE));
        const std::string log = root_ + "/log";
        ASSERT_TRUE(MakeDirs(install_) && MakeDirs(log)) << strerror(errno);
        ASSERT_EQ(mount("tmpfs", install_.c_str(), "tmpfs", 0, options.c_str()), 0)
            << install_ << ": " << strerror(errno);
        mounted_ = true;
        InstallCopy("1200");
        ASSERT_TRUE(MakeDirs(install_ + "/log")) << strerror(errno);
        ASSERT_EQ(mount(log.c_str(), (install_ + "/log").c_str(), nullptr, MS_BIND, nullptr), 0)
            << log << ": " << strerror(errno);
    }

    bool mounted_ = false;
};

TEST_P(WriteError, OldCopyComesBackAndStarts)
{
    const WriteErrorRow& row = GetParam();
    if (row.fault == Fault::FullFileSystem) {
        InstallOnSmallFileSystem();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
    } else {
        InstallCopy("1200");
    }
    const int total = PackClient("1201", kFolders, kFilesPerFolder);
    ASSERT_GT(total, 300) << "the package is too small to fail part-way";
    std::vector<EnvChange> env = Env(home_);
    std::function<void()> before_exec;
    if (row.fault == Fault::FileSizeLimit) {
        // Every data file fits, the user interface's executable does not.
        const rlim_t limit = ReadFile(DEMO_UI_PATH).size() / 2;
        before_exec = [limit] {
            const struct rlimit r = {limit, limit};
            if (setrlimit(RLIMIT_FSIZE, &r) != 0 || signal(SIGXFSZ, SIG_IGN) == SIG_ERR) {
                perror("RLIMIT_FSIZE");
                _exit(127);
            }
        };
    } else if (row.fault == Fault::ReadOnlyFolder) {
        env = ShimEnv(KILL_SHIM, "chmod:" + std::to_string(total / 2));
        // Root writes into read-only folders all the same: the launcher runs
        // as nobody, in a tree that nobody owns.
        if (geteuid() == 0) {
            ASSERT_EQ(nftw(root_.c_str(), GiveToNobody, 16, FTW_PHYS), 0) << root_ << ": " << strerror(errno);
            before_exec = [] {
                if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) {
                    perror("dropping root");
                    _exit(127);
                }
            };
        }
    }
    const reliability::Tree before = reliability::Snapshot(app_);
    const reliability::Tree outside = Outside();

    ExpectCleanExit(testsupport::Run({launcher_}, env, before_exec));
    const std::string log = ReadFile(LogPath());
    const std::vector<std::string> lines = launchertest::LogLines(log);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), kRollback), 1) << log;
    EXPECT_NE(log.find(kExtractFailed + std::string(row.reason)), std::string::npos) << "no reason given in\n"
                                                                                     << log;
    EXPECT_EQ(Outside(), outside) << "something outside ~/.Calderix changed";
    const reliability::Tree after = reliability::Snapshot(app_);
    EXPECT_EQ(after, before) << "the old copy is not back as it was:\n"
                             << reliability::Difference(before, after);
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    ExpectUiStartedOnce();
}

INSTANTIATE_TEST_SUITE_P(
    Faults, WriteError,
    ::testing::Values(WriteErrorRow{"file_size_limit", Fault::FileSizeLimit, "Write"},
                      WriteErrorRow{"full_file_system", Fault::FullFileSystem, "Write"},
                      WriteErrorRow{"read_only_folder", Fault::ReadOnlyFolder, "Can't create '"}),
    [](const ::testing::TestParamInfo<WriteErrorRow>& info) { return std::string(info.param.name); });

} // namespace
