// The controller, its worker thread and the progress dialog, in process:
// a scripted service stands in for the installation, and the dialog is
// watched through its toolkit properties.
#include <QApplication>
#include <QEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calderix-service.h"
#include "launcher.h"
#include "launcher_fixture.h"
#include "progress-dialog.h"
#include "strtable.h"

using namespace testsupport;
using launchertest::Strings;
using ::testing::ElementsAreArray;

namespace {

// The dialog of the one controller alive in the test.
ProcessingProgressDialog* TheDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) {
            return dialog;
        }
    }
    return nullptr;
}

struct RunCase {
    const char* name;
    bool need_upgrade;
    int upgrade_result;
    int entries; // progress reports during the upgrade, of a total of 7
    Strings calls;
    std::vector<int> values;             // the bar's values, in the order set
    Strings showing;                     // the dialog's shows and hides
    int label_id;                        // final label, or -1 for the relay's text
    int last_total = 0, last_steps = -1; // one more report after those, when last_steps >= 0
};

// Stands in for the installation: records each call (and whether the aged
// folder was still there at the launch) and whether any ran on the main
// thread, and reports extraction progress through the relay as the
// extractor does.
class ScriptedService : public Service {
public:
    ScriptedService(const RunCase& c, Strings& calls, bool& on_main) : c_(c), calls_(calls), on_main_(on_main)
    {
    }
    void StopService() override { Record("StopService"); }
    int HandlePackageUpgrade() override
    {
        Record("HandlePackageUpgrade");
        Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("unpacking"));
        for (int done = 1; done <= c_.entries; ++done) {
            Notify_Adapter::GetInstance()->UpdateProgress(7, done);
        }
        if (c_.last_steps >= 0) {
            Notify_Adapter::GetInstance()->UpdateProgress(c_.last_total, c_.last_steps);
        }
        return c_.upgrade_result;
    }
    void PostUpgrade() override
    {
        Record(Exists(GetUserCalderixInstallPath().c_str() + std::string("/app")) ? "untidy" : "PostUpgrade");
    }
    void PreUpgrade() override { Record("PreUpgrade"); }
    bool IsNeedUpgrade() override { return Record("IsNeedUpgrade"), c_.need_upgrade; }

private:
    void Record(const char* call)
    {
        calls_.push_back(call);
        on_main_ = on_main_ || QThread::currentThread() == qApp->thread();
    }
    const RunCase& c_;
    Strings& calls_;
    bool& on_main_;
};

// Records the dialog's shows and hides, the bar's values, and whether the
// toolkit saw any of them off the main thread.
class DialogLog : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
            events.push_back(event->type() == QEvent::Show ? "show" : "hide");
            Seen();
        }
        return false;
    }
    void Seen() { off_main = off_main || QThread::currentThread() != qApp->thread(); }
    Strings events;
    std::vector<int> values;
    bool off_main = false;
};

class ControllerRun : public LauncherFixture, public ::testing::WithParamInterface<RunCase> {};

// One run from Start to the end of the event loop: the service calls in
// order on the worker thread, the aged folder tidied before the launch, the
// dialog driven only from the main thread, every report applied in the
// order it was sent, and a clean quit.
TEST_P(ControllerRun, RunsTheServiceAndRelaysItsReportsInOrder)
{
    const RunCase& c = GetParam();
    UseFixtureEnvironment();
    ASSERT_TRUE(MakeDirs(install_ + "/app")) << strerror(errno);
    Strings calls;
    bool on_main = false;
    auto* launcher = new Launcher(new ScriptedService(c, calls, on_main));
    ProcessingProgressDialog* dialog = TheDialog();
    ASSERT_NE(dialog, nullptr);
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(dialog->findChild<QPushButton*>(), nullptr) << "the dialog still has a cancel button";
    DialogLog log;
    // The text shown when the bar fills: never the ready text, which may
    // only follow a full bar.
    QString text_at_full;
    QObject::connect(bar, &QProgressBar::valueChanged, [&log, &text_at_full, dialog](int value) {
        log.values.push_back(value);
        text_at_full = value == 100 ? dialog->labelText() : text_at_full;
        log.Seen();
    });
    dialog->installEventFilter(&log);

    launcher->Run();
    launcher->Start();
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_THAT(calls, ElementsAreArray(c.calls));
    EXPECT_FALSE(on_main) << "a service call ran on the main thread";
    EXPECT_THAT(log.values, ElementsAreArray(c.values));
    EXPECT_THAT(log.events, ElementsAreArray(c.showing));
    EXPECT_FALSE(log.off_main) << "the dialog was driven off the main thread";
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_NE(text_at_full, StrTable::LoadStr(StrTable::kStrReady))
        << "the ready text came before a full bar";
    EXPECT_EQ(dialog->labelText(),
              c.label_id < 0 ? QStringLiteral("unpacking") : StrTable::LoadStr(c.label_id));
    dialog->removeEventFilter(&log);
    delete launcher;
    EXPECT_EQ(TheDialog(), nullptr) << "the controller left its dialog behind";
}

const Strings kUpgradeCalls{"PreUpgrade", "IsNeedUpgrade", "HandlePackageUpgrade", "PostUpgrade"};
const Strings kShown{"show", "hide"};
// clang-format off
INSTANTIATE_TEST_SUITE_P(Outcomes, ControllerRun, ::testing::Values(
    RunCase{"UpgradeSucceeds", true, 0, 6, kUpgradeCalls, {14, 28, 42, 57, 71, 85, 100}, kShown, StrTable::kStrReady},
    RunCase{"UpgradeFails", true, -1, 3, kUpgradeCalls, {14, 28, 42, 100}, kShown, -1},
    RunCase{"NothingToUpgrade", false, 0, 0, {"PreUpgrade", "IsNeedUpgrade", "PostUpgrade"}, {100}, {},
            StrTable::kStrPreparing},
    // A report of no or a negative total changes nothing; a product beyond 32 bits still truncates.
    RunCase{"ZeroTotalIgnored", true, 0, 1, kUpgradeCalls, {14, 100}, kShown, StrTable::kStrReady, 0, 3},
    RunCase{"NegativeTotalIgnored", true, 0, 1, kUpgradeCalls, {14, 100}, kShown, StrTable::kStrReady, -7, 3},
    RunCase{"BeyondInt32Product", true, 0, 0, kUpgradeCalls, {99, 100}, kShown, StrTable::kStrReady, 30000000,
            29999999}),
    RowName());
// clang-format on

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
