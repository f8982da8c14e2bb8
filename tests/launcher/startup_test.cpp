// Start-up of the real launcher binary from an assembled bundle, as rows of
// the scenario runner.
#include <memory>
#include <sched.h>
#include <sys/mount.h>

#include "launcher_fixture.h"
#include "single_instance_guard.h"

using namespace testsupport;

namespace {

class Startup : public LauncherFixture, public ::testing::WithParamInterface<Scenario<Startup>> {
public:
    // Held as a running launcher of the same user and executable would.
    void HoldInstance(bool keep)
    {
        UseFixtureEnvironment();
        guard_ = std::make_unique<SingleInstanceGuard>(QString::fromStdString(launcher_));
        EXPECT_FALSE(guard_->isRunning()) << "the test could not take the launcher's instance";
        guard_.reset(keep ? guard_.release() : nullptr);
    }
    std::unique_ptr<SingleInstanceGuard> guard_;
};

TEST_P(Startup, Scenario)
{
    RunScenario(GetParam());
}

using Row = Scenario<Startup>;

// HOME below a regular file cannot hold the log folder, even for root: the
// logger stays on standard error and start-up carries on; nothing reads a
// level file, so no debug line gets through. The catalogue still follows the
// user's locale and comes from the compiled-in resources, as the trace on
// standard error shows.
const Row kBlockedHome = {
    .name = "HomeThatCannotHoldTheLogFolderStillStartsInTheUsersLanguage",
    .setup = [](Startup& f) { ASSERT_TRUE(WriteFile(f.root_ + "/not-a-folder", "x")) << strerror(errno); },
    .env = {Set("HOME", "<root>/not-a-folder/home"), Set("LANG", "pt_BR.UTF-8"), Unset("LC_ALL"),
            Unset("LANGUAGE")},
    .ui = false,
    .check =
        [](Startup& f, const ProcessResult& r) {
            EXPECT_EQ(ReadFile(f.root_ + "/not-a-folder"), "x") << "the regular file in the way was changed";
            for (const char* text : {"): Failed to launch Calderix UI\n", "qstrLangFileName)=[:/ptb.qm]"})
                EXPECT_NE(r.err.find(text), std::string::npos) << "missing " << text << " in:\n" << r.err;
            EXPECT_EQ(r.err.find("[DEBUG]"), std::string::npos) << r.err;
        },
};

// Without a usable HOME the home folder comes from the password database:
// the run happens as root of a user namespace whose /etc/passwd gives root
// the fixture's home, from a folder of its own where a relative HOME would
// show up.
Row PasswordHome(const char* name, const EnvChange& home)
{
    Row r{.name = name, .levels = "service_debug=6\n", .env = {home}, .ui = false};
    r.setup = [](Startup& f) {
        ASSERT_TRUE(WriteFile(f.root_ + "/passwd", "root:x:0:0:root:" + f.home_ + ":/bin/sh\n") &&
                    MakeDirs(f.root_ + "/start"))
            << strerror(errno);
    };
    r.in_child = [](Startup& f) {
        EnterUserNamespace(CLONE_NEWNS);
        if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount((f.root_ + "/passwd").c_str(), "/etc/passwd", nullptr, MS_BIND, nullptr) != 0 ||
            chdir((f.root_ + "/start").c_str()) != 0) {
            perror("password database");
            _exit(127);
        }
    };
    r.log = {"[INFO] calderix-service(%d): user installation is ready, removing backup app"};
    r.check = [home](Startup& f, const ProcessResult&) {
        EXPECT_TRUE(Exists(f.ui_)) << "not installed in the home of the password database";
        EXPECT_FALSE(Exists(f.root_ + "/start/" + home.value + "/.Calderix"))
            << "installed below the folder the launcher was started from";
    };
    return r;
}

// While this test holds the launcher's instance, the launcher steps aside
// at once (saying so at debug level only); once let go, it runs again.
const std::string kAlready = "[DEBUG] main(%d): app has already launched, return";
Row SecondStart(const char* name, const char* levels, bool held, bool said)
{
    Row r{.name = name, .levels = levels, .log = {said ? kAlready : "!" + kAlready}, .ui = false};
    r.setup = [held](Startup& f) { f.HoldInstance(held); };
    r.check = [held](Startup& f, const ProcessResult&) {
        EXPECT_NE(held, Exists(f.app_)) << (held ? "a refused start touched the installation"
                                                 : "the start after the holder let go did not install");
    };
    return r;
}

const Row kRows[] = {
    kBlockedHome,
    PasswordHome("HomeUnset", Unset("HOME")),
    PasswordHome("HomeEmpty", Set("HOME", "")),
    PasswordHome("HomeRelative", Set("HOME", "relative/home")),
    SecondStart("SecondStartDebugEnabled", "launcher_debug=7\n", true, true),
    SecondStart("SecondStartInfoOnly", "launcher_debug=6\n", true, false),
    SecondStart("SecondStartOtherComponent", "service_debug=7\n", true, false),
    SecondStart("StartsAgainAfterTheHolderLetGo", "launcher_debug=7\n", false, false),
};
INSTANTIATE_TEST_SUITE_P(Rows, Startup, ::testing::ValuesIn(kRows), RowName());

} // namespace
