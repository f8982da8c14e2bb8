// End-to-end tests of the single-instance rule: each case starts copies of
// singleapp_helper as separate processes with a private TMPDIR, HOME and,
// where used, XDG_RUNTIME_DIR, and reads what they report.
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <deque>
#include <filesystem>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "test_support.h"

namespace ts = testsupport;

namespace {

constexpr uid_t kNobody = 65534;

// The per-user lock folder name in a temporary folder.
std::string lockFolderName(uid_t uid = ::geteuid())
{
    return "calderix-singleapp-" + std::to_string(uid);
}

int lockFilesIn(const std::string& dir)
{
    int n = 0;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec))
        n += it->path().extension() == ".lock";
    return n;
}

void expectPrivateFolder(const std::string& dir, uid_t owner)
{
    struct stat st;
    ASSERT_EQ(::lstat(dir.c_str(), &st), 0) << dir << ": " << std::strerror(errno);
    EXPECT_TRUE(S_ISDIR(st.st_mode)) << dir << " is not a real folder";
    EXPECT_EQ(st.st_uid, owner) << dir << " has the wrong owner";
    EXPECT_EQ(st.st_mode & 07777, 0700u) << dir << " mode " << std::oct << (st.st_mode & 07777);
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
};

class SingleApp : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const std::string& folder : {tmp_, home_, dir_ / "run"})
            ASSERT_NO_FATAL_FAILURE(makeFolder(folder, 0700));
        exe_ = install("bin");
    }

    // Every helper must exit with 0 once nobody reads its output (a refused
    // one at once); after a failure they are just killed.
    void TearDown() override
    {
        const bool failed = HasFailure();
        for (Helper& h : helpers_) {
            const pid_t pid = h.pid;
            const int status = stop(h, failed);
            EXPECT_TRUE(failed || pid <= 0 || status == 0) << "helper " << pid << " ended with " << status;
            if (h.out)
                std::fclose(h.out);
        }
    }

    // Copies the helper to a path this test controls.
    std::string install(const std::string& folder)
    {
        const std::string exe = dir_ / folder + "/calderix-helper";
        EXPECT_TRUE(ts::MakeDirs(dir_ / folder) && ts::CopyTree(HELPER_PATH, exe))
            << exe << ": " << std::strerror(errno);
        return exe;
    }

    // Starts argv with its standard output on a FIFO that this test reads.
    Helper& launch(const std::vector<std::string>& argv, const std::string& home = {})
    {
        const std::string fifo = dir_ / ("out" + std::to_string(helpers_.size()));
        Helper& h = helpers_.emplace_back();
        const int fd =
            ::mkfifo(fifo.c_str(), 0600) == 0 ? ::open(fifo.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1;
        if (fd < 0) {
            ADD_FAILURE() << fifo << ": " << std::strerror(errno);
            return h;
        }
        h.pid = ts::Start(argv,
                          {ts::Set("TMPDIR", tmp_), ts::Set("HOME", home.empty() ? home_ : home),
                           run_.empty() ? ts::Unset("XDG_RUNTIME_DIR") : ts::Set("XDG_RUNTIME_DIR", run_),
                           ts::Set("QT_QPA_PLATFORM", "offscreen"),
                           ts::Set("LSAN_OPTIONS", "suppressions=" LSAN_SUPPRESSIONS)},
                          fifo);
        ::fcntl(fd, F_SETFL, 0);
        h.out = ::fdopen(fd, "r");
        return h;
    }

    // Starts a helper and returns its answer; TearDown ends it.
    std::string answer(const std::vector<std::string>& argv, const std::string& home = {})
    {
        return line(launch(argv, home));
    }

    static std::string line(Helper& h)
    {
        char buf[256];
        if (!h.out || !std::fgets(buf, sizeof buf, h.out))
            return "<end of output>";
        buf[std::strcspn(buf, "\n")] = '\0';
        return buf;
    }

    // Ends the helper, by closing its reader or with SIGKILL; returns its
    // exit status, or 128 + the signal that ended it.
    static int stop(Helper& h, bool kill9 = false)
    {
        if (h.pid <= 0)
            return -1;
        if (kill9) {
            ::kill(h.pid, SIGKILL);
        } else if (h.out) {
            std::fclose(h.out);
            h.out = nullptr;
        }
        const int status = ts::Wait(h.pid);
        h.pid = -1;
        return status < 0 ? -1 : WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

    ts::TempDir dir_{"singleapp-test"};
    std::string tmp_ = dir_ / "tmp", home_ = dir_ / "home", run_, exe_;
    std::deque<Helper> helpers_;
};

// ---------------------------------------------------------------------------
// Where the lock goes, also when the usual place is spoilt. In `expected` and
// `avoided`, "@" stands for the user's lock folder name.

struct PlaceRow {
    const char* name;
    bool needsRoot, runtimeDir;
    void (*spoil)(const std::string& root, const std::string& ownTempFolder);
    const char *expected, *avoided;
};

const PlaceRow kPlaces[] = {
    {"TempFolder", false, false, nullptr, "tmp/@", nullptr},
    {"RuntimeDir", false, true, nullptr, "run", "tmp/@"},
    {"SymlinkedTempFolder", false, false,
     [](const std::string& root, const std::string& own) {
         ASSERT_NO_FATAL_FAILURE(makeFolder(root + "/decoy", 0700));
         ASSERT_EQ(::symlink((root + "/decoy").c_str(), own.c_str()), 0)
             << own << ": " << std::strerror(errno);
     },
     "tmp/@-1", "decoy"},
    {"RuntimeDirOpenToOthers", false, true,
     [](const std::string& root, const std::string&) {
         ASSERT_EQ(::chmod((root + "/run").c_str(), 0755), 0) << std::strerror(errno);
     },
     "tmp/@", "run"},
    {"EveryTempFolderForeign", true, false,
     [](const std::string&, const std::string& own) {
         for (const char* suffix : {"", "-1", "-2", "-3"})
             ASSERT_NO_FATAL_FAILURE(makeFolder(own + suffix, 0777, kNobody));
     },
     "home/.calderix-singleapp", "tmp/@-3"},
    {"OwnTempFolderWithWideMode", false, false,
     [](const std::string&, const std::string& own) { makeFolder(own, 0777); }, "tmp/@", nullptr},
};

class LockPlace : public SingleApp, public ::testing::WithParamInterface<PlaceRow> {
protected:
    std::string place(std::string rel) const
    {
        const size_t at = rel.find('@');
        return dir_ / (at == std::string::npos ? rel : rel.replace(at, 1, lockFolderName()));
    }
};

TEST_P(LockPlace, StartsExcludeEachOtherThroughOnePrivateFolder)
{
    const PlaceRow& row = GetParam();
    if (row.needsRoot && ::geteuid() != 0)
        GTEST_SKIP() << "a folder of another user needs root";
    if (row.runtimeDir)
        run_ = dir_ / "run";
    if (row.spoil) {
        ASSERT_NO_FATAL_FAILURE(row.spoil(dir_.path(), tmp_ + "/" + lockFolderName()));
    }
    struct stat runBefore, runAfter;
    ASSERT_EQ(::lstat((dir_ / "run").c_str(), &runBefore), 0) << std::strerror(errno);

    Helper& first = launch({exe_});
    ASSERT_EQ(line(first), "first");
    EXPECT_EQ(answer({exe_}), "running") << "the lock place is not the same for every start";

    const std::string expected = place(row.expected);
    ASSERT_NO_FATAL_FAILURE(expectPrivateFolder(expected, ::geteuid()));
    EXPECT_EQ(lockFilesIn(expected), 1) << "lock files in " << expected;
    if (row.avoided) {
        EXPECT_EQ(lockFilesIn(place(row.avoided)), 0) << "a lock file landed in " << place(row.avoided);
    }
    ASSERT_EQ(::lstat((dir_ / "run").c_str(), &runAfter), 0) << std::strerror(errno);
    EXPECT_TRUE(runAfter.st_mode == runBefore.st_mode && runAfter.st_uid == runBefore.st_uid)
        << "the session's runtime folder was changed";

    EXPECT_EQ(stop(first), 0);
    EXPECT_EQ(lockFilesIn(expected), 1) << "the lock file must outlive its holder";
    EXPECT_EQ(answer({exe_}), "first") << "the instance was not released when its holder quit";
}

INSTANTIATE_TEST_SUITE_P(Places, LockPlace, ::testing::ValuesIn(kPlaces),
                         [](const ::testing::TestParamInfo<PlaceRow>& info) { return info.param.name; });

// ---------------------------------------------------------------------------

class KilledHolder : public SingleApp, public ::testing::WithParamInterface<bool> {};

TEST_P(KilledHolder, DoesNotBlockNextStart)
{
    const bool withChild = GetParam();
    // The holder's child outlives it; as its subreaper this test can reap it.
    if (withChild) {
        ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0) << "prctl: " << std::strerror(errno);
    }
    Helper& holder = launch(withChild ? std::vector<std::string>{exe_, "--spawn-child"} : std::vector{exe_});
    ASSERT_EQ(line(holder), "first");
    pid_t child = -1;
    for (int i = 0; withChild && i < 2; ++i) {
        const std::string text = line(holder);
        if (text.rfind("child ", 0) == 0)
            child = static_cast<pid_t>(std::stol(text.substr(6)));
        else
            EXPECT_EQ(text, "lingering") << "the child never ran";
    }
    ASSERT_EQ(withChild, child > 0) << "the holder could not start its child";

    EXPECT_EQ(stop(holder, true), 128 + SIGKILL);
    EXPECT_EQ(answer({exe_}), "first") << (withChild ? "the holder's child inherited the instance lock"
                                                     : "a killed holder still blocks the instance");
    if (withChild) {
        EXPECT_EQ(::kill(child, 0), 0) << "child " << child << " ended too early to prove anything";
        ::kill(child, SIGKILL);
        EXPECT_EQ(::waitpid(child, nullptr, 0), child) << "waitpid " << child << ": " << std::strerror(errno);
    }
}

INSTANTIATE_TEST_SUITE_P(Holders, KilledHolder, ::testing::Bool(),
                         [](const ::testing::TestParamInfo<bool>& info) {
                             return info.param ? "WithExecedChild" : "Alone";
                         });

TEST_F(SingleApp, CopiesAtTwoPathsRunIndependently)
{
    const std::string a = install("a"), b = install("b"), link = dir_ / "link-to-a";
    ASSERT_EQ(::symlink(a.c_str(), link.c_str()), 0) << link << ": " << std::strerror(errno);

    ASSERT_EQ(answer({a}), "first");
    EXPECT_EQ(answer({b}), "first") << "a copy at another path was refused";
    EXPECT_EQ(answer({link}), "running") << "a symlink to a running executable is the same executable";
    EXPECT_EQ(lockFilesIn(tmp_ + "/" + lockFolderName()), 2) << "one lock file per executable expected";
}

TEST_F(SingleApp, TwentySimultaneousStartsExactlyOneWins)
{
    constexpr int kStarts = 20;
    const std::string gate = dir_ / "barrier";
    ASSERT_EQ(::mkfifo(gate.c_str(), 0600), 0) << gate << ": " << std::strerror(errno);
    std::vector<Helper*> starts;
    for (int i = 0; i < kStarts; ++i)
        starts.push_back(&launch({exe_, "--barrier", gate}));
    for (Helper* h : starts)
        ASSERT_EQ(line(*h), "ready") << "helper " << h->pid << " did not reach the barrier";

    // Opening the FIFO for writing releases every reader at once; it stays
    // open until all have answered, so a late reader is not stranded.
    const int fd = ::open(gate.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(fd, 0) << gate << ": " << std::strerror(errno);
    int winners = 0, refused = 0;
    for (Helper* h : starts) {
        const std::string answer = line(*h);
        winners += answer == "first";
        refused += answer == "running";
    }
    ::close(fd);
    EXPECT_EQ(winners, 1) << refused << " refused";
    EXPECT_EQ(refused, kStarts - 1) << "some starts answered neither 'first' nor 'running'";
}

TEST_F(SingleApp, WithoutAPrivateFolderEveryStartRuns)
{
    tmp_ = home_ = dir_ / "missing";
    const std::string atFsRoot = "/" + lockFolderName();
    const bool existedAtFsRoot = ts::Exists(atFsRoot);

    EXPECT_EQ(answer({exe_}), "first");
    EXPECT_EQ(answer({exe_}), "first") << "without a private folder a start must not be refused";
    EXPECT_TRUE(existedAtFsRoot || !ts::Exists(atFsRoot)) << "a lock folder was made at " << atFsRoot;
}

TEST_F(SingleApp, AnotherUserNeitherBlocksNorSharesTheInstance)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "starting a process as another user needs root";
    // Everything nobody touches must be reachable for it; tmp is shared like /tmp.
    ASSERT_EQ(::chmod(dir_.path().c_str(), 0755), 0) << std::strerror(errno);
    ASSERT_NO_FATAL_FAILURE(makeFolder(tmp_, 01777));
    // What nobody could leave in a shared folder to keep this user out.
    const std::string planted = tmp_ + "/" + lockFolderName();
    ASSERT_NO_FATAL_FAILURE(makeFolder(planted, 0777, kNobody));
    const std::string nobodyHome = dir_ / "home-nobody";
    ASSERT_NO_FATAL_FAILURE(makeFolder(nobodyHome, 0700, kNobody));
    const std::vector<std::string> asNobody{"/usr/bin/setpriv", "--reuid=65534", "--regid=65534",
                                            "--clear-groups", exe_};

    ASSERT_EQ(answer({exe_}), "first") << "a folder planted by another user blocked this user";
    EXPECT_EQ(answer(asNobody, nobodyHome), "first") << "another user's instance was refused";
    EXPECT_EQ(answer(asNobody, nobodyHome), "running");
    EXPECT_EQ(answer({exe_}), "running");

    EXPECT_EQ(lockFilesIn(planted), 0) << "a lock file landed in the planted folder " << planted;
    EXPECT_NO_FATAL_FAILURE(expectPrivateFolder(planted + "-1", 0));
    EXPECT_NO_FATAL_FAILURE(expectPrivateFolder(tmp_ + "/" + lockFolderName(kNobody), kNobody));
}

} // namespace
