// End-to-end tests of the single-instance rule: each case starts copies of
// singleapp_helper as separate processes with a private TMPDIR, HOME and,
// where used, XDG_RUNTIME_DIR, and reads what they report.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <deque>
#include <filesystem>
#include <map>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "test_rows.h"
#include "test_support.h"

namespace ts = testsupport;

namespace {

constexpr uid_t kNobody = 65534;

long lockFilesIn(const std::string& dir)
{
    std::error_code ec;
    std::filesystem::directory_iterator it(dir, ec);
    return std::count_if(begin(it), end(it),
                         [](const auto& entry) { return entry.path().extension() == ".lock"; });
}

void makeFolder(const std::string& dir, mode_t mode, uid_t owner = ::geteuid())
{
    ASSERT_TRUE(ts::MakeDirs(dir) && ::chmod(dir.c_str(), mode) == 0 && ::chown(dir.c_str(), owner, -1) == 0)
        << dir << ": " << std::strerror(errno);
}

// A started helper: it keeps a won instance until `out` is closed.
struct Helper {
    pid_t pid = -1;
    FILE* out = nullptr;

    // Ends the helper at once, the way a crash would.
    void Kill()
    {
        if (pid > 0 && ::kill(pid, SIGKILL) == 0)
            ts::Wait(pid);
        pid = -1;
    }
    ~Helper()
    {
        Kill();
        if (out)
            std::fclose(out);
    }
};

class SingleApp : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const std::string& folder : {tmp_, home_, dir_ / "run"})
            ASSERT_NO_FATAL_FAILURE(makeFolder(folder, 0700));
        exe_ = install("bin");
    }

    // Copies the helper to a path this test controls.
    std::string install(const std::string& folder)
    {
        const std::string exe = dir_ / folder + "/calderix-helper";
        EXPECT_TRUE(ts::MakeDirs(dir_ / folder) && ts::CopyTree(HELPER_PATH, exe))
            << exe << ": " << std::strerror(errno);
        return exe;
    }

    // Starts argv with its standard output on a pipe that this test reads.
    Helper& launch(const std::vector<std::string>& argv)
    {
        Helper& h = helpers_.emplace_back();
        int out[2];
        EXPECT_EQ(::pipe2(out, O_CLOEXEC), 0) << std::strerror(errno);
        h.pid = ts::Start(argv,
                          {ts::Set("TMPDIR", tmp_), ts::Set("HOME", home_),
                           run_.empty() ? ts::Unset("XDG_RUNTIME_DIR") : ts::Set("XDG_RUNTIME_DIR", run_)},
                          "/proc/self/fd/" + std::to_string(out[1]));
        ::close(out[1]);
        h.out = ::fdopen(out[0], "r");
        return h;
    }

    // Starts a helper and returns its answer; the helper ends with the test.
    std::string answer(const std::vector<std::string>& argv) { return line(launch(argv)); }

    static std::string line(Helper& h)
    {
        char buf[256];
        if (!h.out || !std::fgets(buf, sizeof buf, h.out))
            return "<end of output>";
        buf[std::strcspn(buf, "\n")] = '\0';
        return buf;
    }

    ts::TempDir dir_{"singleapp-test"};
    // own_: this user's lock folder in the temporary folder.
    std::string tmp_ = dir_ / "tmp", home_ = dir_ / "home", run_, exe_,
                own_ = tmp_ + "/calderix-singleapp-" + std::to_string(::geteuid());
    std::deque<Helper> helpers_;
};

// Where the lock goes, also when the usual place is spoilt. In `expected` and
// `avoided`, a leading "@" stands for own_, the rest are below dir_.
struct PlaceRow {
    const char* name;
    bool needsRoot, runtimeDir;
    void (*spoil)(const std::string& root, const std::string& ownTempFolder);
    const char *expected, *avoided;
};

const PlaceRow kPlaces[] = {
    {"TempFolder", false, false, nullptr, "@", nullptr},
    {"RuntimeDir", false, true, nullptr, "run", "@"},
    {"SymlinkedTempFolder", false, false,
     [](const std::string& root, const std::string& own) {
         ASSERT_NO_FATAL_FAILURE(makeFolder(root + "/decoy", 0700));
         ASSERT_EQ(::symlink((root + "/decoy").c_str(), own.c_str()), 0)
             << own << ": " << std::strerror(errno);
     },
     "@-1", "decoy"},
    {"RuntimeDirOpenToOthers", false, true,
     [](const std::string& root, const std::string&) {
         ASSERT_EQ(::chmod((root + "/run").c_str(), 0705), 0) << std::strerror(errno);
     },
     "@", "run"},
    {"EveryTempFolderForeign", true, false,
     [](const std::string&, const std::string& own) {
         for (const char* suffix : {"", "-1", "-2", "-3"})
             ASSERT_NO_FATAL_FAILURE(makeFolder(own + suffix, 0777, kNobody));
     },
     "home/.calderix-singleapp", "@-3"},
    {"OwnTempFolderWithWideMode", false, false,
     [](const std::string&, const std::string& own) { makeFolder(own, 0777); }, "@", nullptr},
};

class LockPlace : public SingleApp, public ::testing::WithParamInterface<PlaceRow> {
protected:
    std::string place(const std::string& rel) const
    {
        return rel[0] == '@' ? own_ + rel.substr(1) : dir_ / rel;
    }
};

// The lock file outlives its holder, even a killed one, without keeping the
// next start out.
TEST_P(LockPlace, StartsExcludeEachOtherThroughOnePrivateFolder)
{
    const PlaceRow& row = GetParam();
    if (row.needsRoot && ::geteuid() != 0)
        GTEST_SKIP() << "a folder of another user needs root";
    if (row.runtimeDir)
        run_ = dir_ / "run";
    if (row.spoil) {
        ASSERT_NO_FATAL_FAILURE(row.spoil(dir_.path(), own_));
    }

    Helper& first = launch({exe_});
    ASSERT_EQ(line(first), "first");
    EXPECT_EQ(answer({exe_}), "running") << "the lock place is not the same for every start";

    const std::string expected = place(row.expected);
    struct stat st;
    ASSERT_EQ(::lstat(expected.c_str(), &st), 0) << expected << ": " << std::strerror(errno);
    EXPECT_TRUE(S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & 07777) == 0700)
        << expected << " is no private folder of this user: uid " << st.st_uid << ", mode " << std::oct
        << st.st_mode;
    EXPECT_EQ(lockFilesIn(expected), 1) << "lock files in " << expected;
    EXPECT_TRUE(!row.avoided || lockFilesIn(place(row.avoided)) == 0) << "a lock file in " << row.avoided;

    first.Kill();
    EXPECT_EQ(lockFilesIn(expected), 1) << "the lock file must outlive its holder";
    EXPECT_EQ(answer({exe_}), "first") << "a killed holder still blocks the instance";
}

INSTANTIATE_TEST_SUITE_P(Places, LockPlace, ::testing::ValuesIn(kPlaces), testsupport::RowName());

TEST_F(SingleApp, CopiesAtTwoPathsRunIndependently)
{
    const std::string a = install("a"), b = install("b"), link = dir_ / "link-to-a";
    ASSERT_EQ(::symlink(a.c_str(), link.c_str()), 0) << link << ": " << std::strerror(errno);

    ASSERT_EQ(answer({a}), "first");
    EXPECT_EQ(answer({b}), "first") << "a copy at another path was refused";
    EXPECT_EQ(answer({link}), "running") << "a symlink to a running executable is the same executable";
    EXPECT_EQ(lockFilesIn(own_), 2) << "one lock file per executable expected";
}

TEST_F(SingleApp, TwentySimultaneousStartsExactlyOneWins)
{
    constexpr int kStarts = 20;
    const std::string gate = dir_ / "barrier";
    ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0) << gate << ": " << std::strerror(errno);
    for (int i = 0; i < kStarts; ++i)
        launch({exe_, "--barrier", gate});
    for (Helper& h : helpers_)
        ASSERT_EQ(line(h), "ready") << "helper " << h.pid << " did not reach the barrier";

    // Opening the FIFO for writing releases every reader at once; it stays
    // open until all have answered, so a late reader is not stranded.
    const int fd = ::open(gate.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(fd, 0) << gate << ": " << std::strerror(errno);
    std::map<std::string, int> answers;
    for (Helper& h : helpers_)
        ++answers[line(h)];
    ::close(fd);
    EXPECT_EQ((std::map<std::string, int>{{"first", 1}, {"running", kStarts - 1}}), answers);
}

} // namespace
