// End-to-end tests of the single-instance rule: each case starts copies of
// singleapp_helper as separate processes in a private fixture folder (own
// TMPDIR, HOME and, where used, XDG_RUNTIME_DIR) and reads what they report.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <deque>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <grp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534;
constexpr gid_t kNogroup = 65534;

std::string lastError()
{
    return std::strerror(errno);
}

std::string uidText(uid_t uid)
{
    return std::to_string(static_cast<unsigned long>(uid));
}

// The per-user lock folder in a temporary folder, `n` its numbered alternative.
std::string tempLockFolderName(uid_t uid, int n = 0)
{
    std::string name = "calderix-singleapp-" + uidText(uid);
    return n == 0 ? name : name + "-" + std::to_string(n);
}

// A process under test: closing stdinFd tells a winner to quit.
struct Helper {
    pid_t pid = -1;
    int stdinFd = -1;
    FILE* out = nullptr;
};

struct Identity {
    uid_t uid;
    gid_t gid;
    std::string home;
};

// Returns the names of the lock files in `dir` (none when it does not exist).
std::vector<std::string> lockFilesIn(const fs::path& dir)
{
    std::vector<std::string> names;
    std::error_code ec;
    for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string name = it->path().filename().string();
        if (name.size() > 5 && name.compare(name.size() - 5, 5, ".lock") == 0)
            names.push_back(name);
    }
    return names;
}

// Expects `dir` to be a real folder of `owner` with mode 0700.
void expectPrivateFolder(const fs::path& dir, uid_t owner)
{
    struct stat st;
    ASSERT_EQ(::lstat(dir.c_str(), &st), 0) << dir << ": " << lastError();
    EXPECT_TRUE(S_ISDIR(st.st_mode)) << dir << " is not a real folder";
    EXPECT_EQ(st.st_uid, owner) << dir << " has the wrong owner";
    EXPECT_EQ(st.st_mode & 07777, 0700u) << dir << " mode " << std::oct << (st.st_mode & 07777);
}

void makeFolder(const fs::path& dir, mode_t mode, uid_t owner = ::geteuid())
{
    ASSERT_EQ(::mkdir(dir.c_str(), mode), 0) << dir << ": " << lastError();
    ASSERT_EQ(::chmod(dir.c_str(), mode), 0) << dir << ": " << lastError();
    if (owner != ::geteuid()) {
        ASSERT_EQ(::chown(dir.c_str(), owner, kNogroup), 0) << dir << ": " << lastError();
    }
}

class SingleAppTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "singleapp-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr) << pattern << ": " << lastError();
        root_ = pattern;
        tmpDir_ = root_ / "tmp";
        home_ = root_ / "home";
        ASSERT_NO_FATAL_FAILURE(makeFolder(tmpDir_, 0700));
        ASSERT_NO_FATAL_FAILURE(makeFolder(home_, 0700));
        ASSERT_NO_FATAL_FAILURE(makeFolder(root_ / "run", 0700));
    }

    void TearDown() override
    {
        for (Helper& h : helpers_)
            discard(h);
        if (!root_.empty()) {
            std::error_code ec;
            fs::remove_all(root_, ec);
            EXPECT_FALSE(ec) << root_ << ": " << ec.message();
        }
    }

    void useRuntimeDir() { runtimeDir_ = root_ / "run"; }

    // Copies the helper into `dir` (created when missing), so that the
    // executable's path is one this test controls. Returns the copy's path.
    fs::path installHelper(const fs::path& dir)
    {
        std::error_code ec;
        fs::create_directories(dir, ec);
        EXPECT_FALSE(ec) << dir << ": " << ec.message();
        const fs::path exe = dir / "calderix-helper";
        fs::copy_file(HELPER_PATH, exe, fs::copy_options::overwrite_existing, ec);
        EXPECT_FALSE(ec) << HELPER_PATH << " -> " << exe << ": " << ec.message();
        fs::permissions(exe, fs::perms(0755), ec);
        EXPECT_FALSE(ec) << exe << ": " << ec.message();
        return exe;
    }

    // Starts `exe` with `args` in the fixture's environment, as `as` when given.
    // Returns the helper; its pid is -1 when it could not be started.
    Helper& start(const fs::path& exe, const std::vector<std::string>& args = {},
                  const Identity* as = nullptr)
    {
        helpers_.emplace_back();
        Helper& h = helpers_.back();

        std::vector<std::string> argStore{exe.string()};
        argStore.insert(argStore.end(), args.begin(), args.end());
        const std::vector<std::string> envStore = environment(as ? fs::path(as->home) : home_);
        std::vector<char*> argv, envp;
        for (const std::string& s : argStore)
            argv.push_back(const_cast<char*>(s.c_str()));
        argv.push_back(nullptr);
        for (const std::string& s : envStore)
            envp.push_back(const_cast<char*>(s.c_str()));
        envp.push_back(nullptr);

        int in[2], out[2];
        if (::pipe2(in, O_CLOEXEC) != 0) {
            ADD_FAILURE() << "pipe2: " << lastError();
            return h;
        }
        if (::pipe2(out, O_CLOEXEC) != 0) {
            ADD_FAILURE() << "pipe2: " << lastError();
            ::close(in[0]);
            ::close(in[1]);
            return h;
        }
        const pid_t pid = ::fork();
        if (pid == 0) {
            if (::dup2(in[0], STDIN_FILENO) < 0 || ::dup2(out[1], STDOUT_FILENO) < 0)
                ::_exit(126);
            if (as && (::setgroups(0, nullptr) != 0 || ::setgid(as->gid) != 0 || ::setuid(as->uid) != 0))
                ::_exit(126);
            ::execve(argv[0], argv.data(), envp.data());
            ::_exit(127);
        }
        const int forkError = errno;
        ::close(in[0]);
        ::close(out[1]);
        if (pid < 0) {
            ADD_FAILURE() << "fork: " << std::strerror(forkError);
            ::close(in[1]);
            ::close(out[0]);
            return h;
        }
        h.pid = pid;
        h.stdinFd = in[1];
        h.out = ::fdopen(out[0], "r");
        if (!h.out) {
            ADD_FAILURE() << "fdopen: " << lastError();
            ::close(out[0]);
        }
        return h;
    }

    // Returns the helper's next line without its newline, or a marker saying
    // why there is none.
    static std::string readLine(Helper& h)
    {
        if (!h.out)
            return "<not started>";
        char buf[256];
        if (!std::fgets(buf, sizeof buf, h.out))
            return "<end of output>";
        std::string line(buf);
        if (!line.empty() && line.back() == '\n')
            line.pop_back();
        return line;
    }

    // Tells the helper to quit and reaps it. Returns its exit status, or
    // 128 + signal number when a signal ended it, or -1 when it cannot be reaped.
    static int finish(Helper& h)
    {
        if (h.stdinFd >= 0) {
            ::close(h.stdinFd);
            h.stdinFd = -1;
        }
        return reap(h);
    }

    // Ends the helper with SIGKILL and reaps it. Returns what finish returns.
    static int kill9(Helper& h)
    {
        if (h.pid > 0 && ::kill(h.pid, SIGKILL) != 0)
            ADD_FAILURE() << "kill " << h.pid << ": " << lastError();
        return reap(h);
    }

    std::string uid() const { return uidText(::geteuid()); }

    fs::path root_, tmpDir_, home_, runtimeDir_;

private:
    static int reap(Helper& h)
    {
        if (h.pid <= 0)
            return -1;
        int status = 0;
        pid_t r;
        do {
            r = ::waitpid(h.pid, &status, 0);
        } while (r < 0 && errno == EINTR);
        if (r < 0) {
            ADD_FAILURE() << "waitpid " << h.pid << ": " << lastError();
            return -1;
        }
        h.pid = -1;
        if (h.out) {
            std::fclose(h.out);
            h.out = nullptr;
        }
        return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

    static void discard(Helper& h)
    {
        if (h.pid > 0)
            kill9(h);
        if (h.stdinFd >= 0)
            ::close(h.stdinFd);
        if (h.out)
            std::fclose(h.out);
        h = Helper{};
    }

    std::vector<std::string> environment(const fs::path& home) const
    {
        std::vector<std::string> env;
        bool leakOptions = false;
        for (char** e = environ; *e; ++e) {
            const std::string entry(*e);
            const std::string key = entry.substr(0, entry.find('='));
            leakOptions = leakOptions || key == "LSAN_OPTIONS";
            if (key != "TMPDIR" && key != "XDG_RUNTIME_DIR" && key != "HOME" && key != "QT_QPA_PLATFORM")
                env.push_back(entry);
        }
        env.push_back("QT_QPA_PLATFORM=offscreen");
        // The helpers are Qt GUI processes: under the leak checker they need the
        // project's suppressions for Qt's own leaks, also when run by hand.
        if (!leakOptions)
            env.push_back("LSAN_OPTIONS=suppressions=" LSAN_SUPPRESSIONS);
        env.push_back("TMPDIR=" + tmpDir_.string());
        env.push_back("HOME=" + home.string());
        if (!runtimeDir_.empty())
            env.push_back("XDG_RUNTIME_DIR=" + runtimeDir_.string());
        return env;
    }

    std::deque<Helper> helpers_;
};

// ---------------------------------------------------------------------------
// The rule itself, once with a runtime folder and once with the temporary one.

struct Placement {
    bool runtimeDir;
};

void PrintTo(const Placement& p, std::ostream* os)
{
    *os << (p.runtimeDir ? "XDG_RUNTIME_DIR set" : "XDG_RUNTIME_DIR unset");
}

class SingleInstance : public SingleAppTest, public ::testing::WithParamInterface<Placement> {
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(SingleAppTest::SetUp());
        if (GetParam().runtimeDir)
            useRuntimeDir();
    }

    fs::path lockFolder() const
    {
        return GetParam().runtimeDir ? runtimeDir_ : tmpDir_ / tempLockFolderName(::geteuid());
    }
};

TEST_P(SingleInstance, SecondStartIsRefusedWhileFirstHolds)
{
    const fs::path exe = installHelper(root_ / "bin");
    Helper& first = start(exe);
    ASSERT_EQ(readLine(first), "first");
    Helper& second = start(exe);
    EXPECT_EQ(readLine(second), "running");
    EXPECT_EQ(finish(second), 0) << "a refused instance must exit with 0";

    ASSERT_NO_FATAL_FAILURE(expectPrivateFolder(lockFolder(), ::geteuid()));
    const std::vector<std::string> locks = lockFilesIn(lockFolder());
    ASSERT_EQ(locks.size(), 1u) << "lock files in " << lockFolder();
    EXPECT_EQ(locks[0].rfind("calderix-singleapp-" + uid() + "-", 0), 0u)
        << locks[0] << " does not name the user";

    EXPECT_EQ(finish(first), 0);
    EXPECT_EQ(lockFilesIn(lockFolder()), locks) << "the lock file must outlive its holder";
    Helper& third = start(exe);
    EXPECT_EQ(readLine(third), "first") << "the instance was not released when its holder quit";
    EXPECT_EQ(finish(third), 0);
}

TEST_P(SingleInstance, KilledHolderDoesNotBlockNextStart)
{
    const fs::path exe = installHelper(root_ / "bin");
    Helper& holder = start(exe);
    ASSERT_EQ(readLine(holder), "first");
    ASSERT_EQ(kill9(holder), 128 + SIGKILL);

    Helper& next = start(exe);
    EXPECT_EQ(readLine(next), "first") << "a killed holder still blocks the instance";
    EXPECT_EQ(finish(next), 0);
}

TEST_P(SingleInstance, CopiesAtTwoPathsRunIndependently)
{
    const fs::path exeA = installHelper(root_ / "a");
    const fs::path exeB = installHelper(root_ / "b");
    const fs::path link = root_ / "link-to-a";
    ASSERT_EQ(::symlink(exeA.c_str(), link.c_str()), 0) << link << ": " << lastError();

    Helper& a = start(exeA);
    ASSERT_EQ(readLine(a), "first");
    Helper& b = start(exeB);
    EXPECT_EQ(readLine(b), "first") << "a copy at another path was refused";
    Helper& viaLink = start(link);
    EXPECT_EQ(readLine(viaLink), "running") << "a symlink to a running executable is the same executable";
    EXPECT_EQ(lockFilesIn(lockFolder()).size(), 2u) << "lock files in " << lockFolder();

    EXPECT_EQ(finish(viaLink), 0);
    EXPECT_EQ(finish(a), 0);
    EXPECT_EQ(finish(b), 0);
}

TEST_P(SingleInstance, TwentySimultaneousStartsExactlyOneWins)
{
    constexpr int kStarts = 20;
    const fs::path exe = installHelper(root_ / "bin");
    const fs::path fifo = root_ / "barrier";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0) << fifo << ": " << lastError();

    std::vector<Helper*> starts;
    for (int i = 0; i < kStarts; ++i)
        starts.push_back(&start(exe, {"--barrier", fifo.string()}));
    for (Helper* h : starts)
        ASSERT_EQ(readLine(*h), "ready") << "helper " << h->pid << " did not reach the barrier";

    // Opening the FIFO for writing releases every reader at once; it stays
    // open until all have answered, so a late reader is not stranded.
    const int gate = ::open(fifo.c_str(), O_WRONLY | O_CLOEXEC);
    ASSERT_GE(gate, 0) << fifo << ": " << lastError();
    int winners = 0, refused = 0;
    for (Helper* h : starts) {
        const std::string answer = readLine(*h);
        if (answer == "first")
            ++winners;
        else if (answer == "running")
            ++refused;
        else
            ADD_FAILURE() << "helper " << h->pid << " answered '" << answer << "'";
    }
    ::close(gate);
    EXPECT_EQ(winners, 1) << refused << " refused";
    EXPECT_EQ(refused, kStarts - 1);
    for (Helper* h : starts)
        EXPECT_EQ(finish(*h), 0);
}

TEST_P(SingleInstance, ExecedChildDoesNotKeepInstance)
{
    // The holder's child outlives it; as its subreaper this test can reap it.
    ASSERT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0) << "prctl: " << lastError();
    const fs::path exe = installHelper(root_ / "bin");
    Helper& holder = start(exe, {"--spawn-child"});
    ASSERT_EQ(readLine(holder), "first");
    pid_t child = -1;
    bool lingering = false;
    for (int i = 0; i < 2; ++i) {
        const std::string line = readLine(holder);
        if (line == "lingering")
            lingering = true;
        else if (line.rfind("child ", 0) == 0)
            child = static_cast<pid_t>(std::stol(line.substr(6)));
        else
            ADD_FAILURE() << "unexpected line '" << line << "'";
    }
    ASSERT_TRUE(lingering) << "the child never ran";
    ASSERT_GT(child, 0);

    EXPECT_EQ(kill9(holder), 128 + SIGKILL);
    Helper& next = start(exe);
    EXPECT_EQ(readLine(next), "first") << "the holder's child inherited the instance lock";
    EXPECT_EQ(::kill(child, 0), 0) << "child " << child
                                   << " ended too early to prove anything: " << lastError();
    EXPECT_EQ(finish(next), 0);

    EXPECT_EQ(::kill(child, SIGKILL), 0) << "kill " << child << ": " << lastError();
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child) << "waitpid " << child << ": " << lastError();
}

INSTANTIATE_TEST_SUITE_P(Places, SingleInstance, ::testing::Values(Placement{true}, Placement{false}),
                         [](const ::testing::TestParamInfo<Placement>& info) {
                             return info.param.runtimeDir ? "RuntimeDir" : "TempFolder";
                         });

// ---------------------------------------------------------------------------
// Where the lock goes when the usual place is spoilt. Each row prepares the
// fixture, then two starts must still exclude each other through a lock file
// in `expected`, and nothing may land in `avoided` (when given).

struct SpoiltPlace {
    const char* name;
    bool needsRoot;
    bool runtimeDir;
    void (*spoil)(const fs::path& root, uid_t uid);
    std::string (*expected)(uid_t uid);
    std::string (*avoided)(uid_t uid);
};

std::string tempFolder0(uid_t uid)
{
    return "tmp/" + tempLockFolderName(uid);
}
std::string tempFolder1(uid_t uid)
{
    return "tmp/" + tempLockFolderName(uid, 1);
}

void PrintTo(const SpoiltPlace& p, std::ostream* os)
{
    *os << p.name;
}

const SpoiltPlace kSpoiltPlaces[] = {
    {"ForeignOwnedTempFolder", true, false,
     [](const fs::path& root, uid_t uid) { makeFolder(root / tempFolder0(uid), 0777, kNobody); }, tempFolder1,
     tempFolder0},
    {"SymlinkedTempFolder", false, false,
     [](const fs::path& root, uid_t uid) {
         ASSERT_NO_FATAL_FAILURE(makeFolder(root / "decoy", 0700));
         const fs::path link = root / tempFolder0(uid);
         ASSERT_EQ(::symlink((root / "decoy").c_str(), link.c_str()), 0) << link << ": " << lastError();
     },
     tempFolder1, [](uid_t) { return std::string("decoy"); }},
    {"FileInPlaceOfTempFolder", false, false,
     [](const fs::path& root, uid_t uid) {
         const fs::path file = root / tempFolder0(uid);
         const int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
         ASSERT_GE(fd, 0) << file << ": " << lastError();
         ::close(fd);
     },
     tempFolder1, tempFolder0},
    {"ForeignRuntimeDir", true, true,
     [](const fs::path& root, uid_t) {
         ASSERT_EQ(::chown((root / "run").c_str(), kNobody, kNogroup), 0) << root / "run"
                                                                          << ": " << lastError();
     },
     tempFolder0, [](uid_t) { return std::string("run"); }},
    {"RuntimeDirOpenToOthers", false, true,
     [](const fs::path& root, uid_t) {
         ASSERT_EQ(::chmod((root / "run").c_str(), 0755), 0) << root / "run"
                                                             << ": " << lastError();
     },
     tempFolder0, [](uid_t) { return std::string("run"); }},
    {"EveryTempFolderForeign", true, false,
     [](const fs::path& root, uid_t uid) {
         for (int n = 0; n < 4; ++n)
             ASSERT_NO_FATAL_FAILURE(makeFolder(root / "tmp" / tempLockFolderName(uid, n), 0777, kNobody));
     },
     [](uid_t) { return std::string("home/.calderix-singleapp"); },
     [](uid_t uid) { return "tmp/" + tempLockFolderName(uid, 3); }},
    {"OwnTempFolderWithWideMode", false, false,
     [](const fs::path& root, uid_t uid) { makeFolder(root / tempFolder0(uid), 0777); }, tempFolder0,
     nullptr},
};

class LockPlace : public SingleAppTest, public ::testing::WithParamInterface<SpoiltPlace> {};

TEST_P(LockPlace, StartsStillExcludeEachOther)
{
    const SpoiltPlace& row = GetParam();
    if (row.needsRoot && ::geteuid() != 0)
        GTEST_SKIP() << "creating a folder owned by another user needs root";
    if (row.runtimeDir)
        useRuntimeDir();
    const uid_t me = ::geteuid();
    ASSERT_NO_FATAL_FAILURE(row.spoil(root_, me));
    struct stat runBefore;
    ASSERT_EQ(::lstat((root_ / "run").c_str(), &runBefore), 0) << root_ / "run"
                                                               << ": " << lastError();
    const fs::path exe = installHelper(root_ / "bin");

    Helper& first = start(exe);
    ASSERT_EQ(readLine(first), "first");
    Helper& second = start(exe);
    EXPECT_EQ(readLine(second), "running") << "the fallback place is not the same for every start";

    const fs::path expected = root_ / row.expected(me);
    ASSERT_NO_FATAL_FAILURE(expectPrivateFolder(expected, me));
    EXPECT_EQ(lockFilesIn(expected).size(), 1u) << "lock files in " << expected;
    if (row.avoided) {
        EXPECT_TRUE(lockFilesIn(root_ / row.avoided(me)).empty())
            << "a lock file landed in " << root_ / row.avoided(me);
    }
    struct stat runAfter;
    ASSERT_EQ(::lstat((root_ / "run").c_str(), &runAfter), 0) << root_ / "run"
                                                              << ": " << lastError();
    EXPECT_EQ(runAfter.st_mode, runBefore.st_mode) << "the session's runtime folder was changed";
    EXPECT_EQ(runAfter.st_uid, runBefore.st_uid) << "the session's runtime folder was changed";

    EXPECT_EQ(finish(second), 0);
    EXPECT_EQ(finish(first), 0);
}

INSTANTIATE_TEST_SUITE_P(Spoilt, LockPlace, ::testing::ValuesIn(kSpoiltPlaces),
                         [](const ::testing::TestParamInfo<SpoiltPlace>& info) { return info.param.name; });

// ---------------------------------------------------------------------------
// With no private folder anywhere, every start runs rather than none.

struct NoPlace {
    const char* name;
    bool blockerExists;
};

void PrintTo(const NoPlace& p, std::ostream* os)
{
    *os << p.name;
}

class NoPrivatePlace : public SingleAppTest, public ::testing::WithParamInterface<NoPlace> {};

TEST_P(NoPrivatePlace, EveryStartRuns)
{
    const fs::path blocker = root_ / "blocker";
    if (GetParam().blockerExists) {
        const int fd = ::open(blocker.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        ASSERT_GE(fd, 0) << blocker << ": " << lastError();
        ::close(fd);
    }
    tmpDir_ = blocker;
    home_ = blocker;
    const fs::path atFsRoot = fs::path("/") / tempLockFolderName(::geteuid());
    const bool existedAtFsRoot = fs::exists(atFsRoot);
    const fs::path exe = installHelper(root_ / "bin");

    Helper& a = start(exe);
    EXPECT_EQ(readLine(a), "first");
    Helper& b = start(exe);
    EXPECT_EQ(readLine(b), "first") << "without a private folder a start must not be refused";
    EXPECT_EQ(finish(a), 0);
    EXPECT_EQ(finish(b), 0);
    if (!existedAtFsRoot) {
        EXPECT_FALSE(fs::exists(atFsRoot)) << "a lock folder was made at " << atFsRoot;
    }
}

INSTANTIATE_TEST_SUITE_P(Blocked, NoPrivatePlace,
                         ::testing::Values(NoPlace{"TempFolderIsAFile", true},
                                           NoPlace{"TempFolderIsMissing", false}),
                         [](const ::testing::TestParamInfo<NoPlace>& info) { return info.param.name; });

// ---------------------------------------------------------------------------

TEST_F(SingleAppTest, OtherUserNeitherSharesNorBlocksTheInstance)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "starting a process as another user needs root";
    // Everything the second user touches must be reachable for it.
    ASSERT_EQ(::chmod(root_.c_str(), 0755), 0) << root_ << ": " << lastError();
    tmpDir_ = root_ / "shared";
    ASSERT_NO_FATAL_FAILURE(makeFolder(tmpDir_, 01777));
    // What a hostile user would leave for the other one in a shared folder.
    const fs::path planted = tmpDir_ / tempLockFolderName(kNobody);
    ASSERT_NO_FATAL_FAILURE(makeFolder(planted, 0777));
    const Identity nobody{kNobody, kNogroup, (root_ / "home-nobody").string()};
    ASSERT_NO_FATAL_FAILURE(makeFolder(nobody.home, 0700, kNobody));
    const fs::path exe = installHelper(root_ / "bin");
    ASSERT_EQ(::chmod((root_ / "bin").c_str(), 0755), 0) << root_ / "bin"
                                                         << ": " << lastError();

    Helper& mine = start(exe);
    ASSERT_EQ(readLine(mine), "first");
    Helper& theirs = start(exe, {}, &nobody);
    EXPECT_EQ(readLine(theirs), "first") << "another user's instance blocked this user";
    Helper& theirSecond = start(exe, {}, &nobody);
    EXPECT_EQ(readLine(theirSecond), "running");
    Helper& mySecond = start(exe);
    EXPECT_EQ(readLine(mySecond), "running");

    EXPECT_TRUE(lockFilesIn(planted).empty()) << "a lock file landed in the planted folder " << planted;
    EXPECT_NO_FATAL_FAILURE(expectPrivateFolder(tmpDir_ / tempLockFolderName(kNobody, 1), kNobody));
    EXPECT_NO_FATAL_FAILURE(expectPrivateFolder(tmpDir_ / tempLockFolderName(0), 0));

    EXPECT_EQ(finish(mySecond), 0);
    EXPECT_EQ(finish(theirSecond), 0);
    EXPECT_EQ(finish(theirs), 0);
    EXPECT_EQ(finish(mine), 0);
}

} // namespace
