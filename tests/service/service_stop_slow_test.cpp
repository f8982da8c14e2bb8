// Stopping a user interface that is still there after SIGTERM: the stop
// sequence takes its full five seconds.
#include <sys/wait.h>

#include "service_run_fixture.h"

namespace {

struct SlowStopCase {
    const char* name;
    bool ignores_term;
    bool as_nobody; // and so not allowed to signal the UI, which runs as root
    const char* kill_result;
    Strings lines;
};

class SlowStop : public ServiceRun, public ::testing::WithParamInterface<SlowStopCase> {};

TEST_P(SlowStop, ProbesFiveTimesThenKills)
{
    const SlowStopCase& c = GetParam();
    InstallCopy("1200");
    PackClient("1201");
    if (c.as_nobody) {
        HandToNobody();
    }
    const pid_t ui = StartSleeper(false, c.ignores_term);
    ASSERT_GT(ui, 0);
    ASSERT_TRUE(testsupport::WriteFile(install_ + "/ui.pid", "pid=" + std::to_string(ui) + "\n"));

    ExpectCleanExit(RunTraced(c.as_nobody));
    const std::string kill = "kill " + std::to_string(ui);
    Strings expected{kill + " 15 " + c.kill_result};
    for (int probe = 0; probe < 5; ++probe) {
        expected.push_back(kill + " 0 " + c.kill_result);
        expected.push_back("sleep 1");
    }
    expected.push_back(kill + " 9 " + c.kill_result);
    EXPECT_EQ(Trace(), expected);
    EXPECT_EQ(StopLines(), c.lines);
    if (c.as_nobody) {
        EXPECT_EQ(::kill(ui, 0), 0) << "the UI must still run";
    } else {
        const int status = testsupport::Wait(ui);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "wait status " << status;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Stops, SlowStop,
    ::testing::Values(SlowStopCase{"UiIgnoresSigterm", true, false, "ok", {}},
                      SlowStopCase{"KillNotPermitted",
                                   false,
                                   true,
                                   "error",
                                   {"[ERROR] mac/mac-service(%d): kill: Operation not permitted (1)"}}),
    servicetest::RowName<SlowStopCase>);

} // namespace
