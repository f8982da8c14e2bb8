// Stopping a user interface that is still there after SIGTERM: the stop
// sequence takes its full five seconds.
#include "driver_fixture.h"

struct SlowStopCase {
    const char* name;
    const char* mode;
    bool driver_as_nobody; // and so not allowed to signal the UI, which runs as root
    const char* kill_result;
    std::vector<std::string> lines;
};

class SlowStop : public DriverFixture, public ::testing::WithParamInterface<SlowStopCase> {};

TEST_P(SlowStop, ProbesFiveTimesThenKills)
{
    const SlowStopCase& c = GetParam();
    InstallOldCopy("1200");
    const pid_t ui = StartUi(c.mode);
    ASSERT_GT(ui, 0);
    if (c.driver_as_nobody) {
        const int status = DriverAsNobody("stop");
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "driver wait status " << status;
    } else {
        Driver("stop");
    }

    const std::string kill = "kill " + std::to_string(ui);
    std::vector<std::string> expected{kill + " 15 " + c.kill_result};
    for (int probe = 0; probe < 5; ++probe) {
        expected.push_back(kill + " 0 " + c.kill_result);
        expected.push_back("sleep 1");
    }
    expected.push_back(kill + " 9 " + c.kill_result);
    EXPECT_EQ(Trace(), expected);
    EXPECT_EQ(Lines(), c.lines);
    if (c.driver_as_nobody) {
        EXPECT_EQ(::kill(ui, 0), 0) << "the UI must still run";
    } else {
        const int status = testsupport::Wait(ui);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "wait status " << status;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Stops, SlowStop,
    ::testing::Values(SlowStopCase{"UiIgnoresSigterm", "ignore-term", false, "ok", {}},
                      SlowStopCase{"KillNotPermitted",
                                   "wait",
                                   true,
                                   "error",
                                   {"[ERROR] mac/mac-service(%d): kill: Operation not permitted (1)"}}),
    servicetest::RowName<SlowStopCase>);
