// Stopping a user interface that is still there after SIGTERM: the stop
// sequence takes its full five seconds, also when the interface's file was
// removed while it ran (as a finished upgrade removes the old copy).
#include <cstdio>
#include <sys/wait.h>

#include "service_run_fixture.h"

namespace {

struct SlowStopCase {
    const char* name;
    bool file_removed;
};

class SlowStop : public ServiceRun, public ::testing::WithParamInterface<SlowStopCase> {};

TEST_P(SlowStop, ProbesFiveTimesThenKills)
{
    const SlowStopCase& c = GetParam();
    InstallCopy("1200");
    PackClient("1201");
    const std::string exe = app_ + "/Contents/MacOS/calderix-sleep";
    const pid_t ui = StartSleeper(false, true, exe);
    ASSERT_GT(ui, 0);
    if (c.file_removed) {
        ASSERT_EQ(remove(exe.c_str()), 0) << exe << ": " << strerror(errno);
    }
    ASSERT_TRUE(testsupport::WriteFile(install_ + "/ui.pid", "pid=" + std::to_string(ui) + "\n"));

    ExpectCleanExit(RunTraced());
    const std::string kill = "kill " + std::to_string(ui);
    Strings expected{kill + " 15 ok"};
    for (int probe = 0; probe < 5; ++probe) {
        expected.push_back(kill + " 0 ok");
        expected.push_back("sleep 1");
    }
    expected.push_back(kill + " 9 ok");
    EXPECT_EQ(Trace(), expected);
    EXPECT_EQ(StopLines(), Strings{});
    const int status = testsupport::Wait(ui);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "wait status " << status;
}

INSTANTIATE_TEST_SUITE_P(Stops, SlowStop,
                         ::testing::Values(SlowStopCase{"UiIgnoresSigterm", false},
                                           SlowStopCase{"UiFileRemovedWhileRunning", true}),
                         servicetest::RowName<SlowStopCase>);

} // namespace
