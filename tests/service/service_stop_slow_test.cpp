// Stopping a user interface that outlives SIGTERM: the one stop case that
// takes its full five seconds.
#include "driver_fixture.h"

TEST_F(DriverFixture, StopProbesFiveTimesThenKills)
{
    InstallOldCopy("1200");
    const pid_t ui = StartUi(ui_, "ignore-term");
    ASSERT_GT(ui, 0);
    Reaper reaper(ui);
    Driver("stop");
    const int status = reaper.Join();
    Forget(ui);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "wait status " << status;
    const std::string pid = std::to_string(ui);
    std::vector<std::string> expected{"kill " + pid + " 15 ok"};
    for (int probe = 0; probe < 5; ++probe) {
        expected.push_back("kill " + pid + " 0 ok");
        expected.push_back("sleep 1");
    }
    expected.push_back("kill " + pid + " 9 ok");
    EXPECT_EQ(Trace(), expected);
    EXPECT_TRUE(Lines().empty()) << testsupport::ReadFile(log_);
}

// A process the driver may not signal (it runs as nobody, the UI as root):
// the refusal is logged once and the whole wait still follows.
TEST_F(DriverFixture, StopLogsAKillItMayNotSend)
{
    InstallOldCopy("1200");
    const pid_t ui = StartUi(ui_, "wait");
    ASSERT_GT(ui, 0);
    OpenToNobody();
    ASSERT_FALSE(HasFatalFailure());

    const int status = DriverAsNobody("stop");
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "driver wait status " << status;
    const std::string pid = std::to_string(ui);
    std::vector<std::string> expected{"kill " + pid + " 15 error"};
    for (int probe = 0; probe < 5; ++probe) {
        expected.push_back("kill " + pid + " 0 error");
        expected.push_back("sleep 1");
    }
    expected.push_back("kill " + pid + " 9 error");
    EXPECT_EQ(Trace(), expected);
    EXPECT_EQ(Lines(),
              std::vector<std::string>{"[ERROR] mac/mac-service(%d): kill: Operation not permitted (1)"});
    EXPECT_EQ(kill(ui, 0), 0) << "the UI must still run";
}
