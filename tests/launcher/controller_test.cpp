// The controller, its worker thread and the progress dialog, in process:
// a scripted service stands in for the installation, and the dialog is
// watched through its toolkit properties.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QImage>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QThread>
#include <QVariant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calderix-service.h"
#include "launcher.h"
#include "progress-dialog.h"
#include "scoped_env.h"
#include "strtable.h"
#include "test_support.h"

using namespace testsupport;
using ::testing::ElementsAreArray;

namespace {

const char kPrintIconMode[] = "--print-dialog-icon";

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

// Everything a fresh dialog is before anyone drives it; the owner of a
// launcher's dialog has also removed its cancel button and automatic reset.
TEST(ProgressDialog, IsBuiltHiddenWithItsFixedLook)
{
    {
        const ProcessingProgressDialog dialog;
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Calderix Drive"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("Calderix Drive is initializing..."));
        // The toolkit turns a parentless widget into a window; the hints are
        // exactly title and system menu.
        EXPECT_EQ(static_cast<int>(dialog.windowFlags() & ~Qt::WindowType_Mask), 0x3000);
        EXPECT_EQ(dialog.windowType(), Qt::Window);
        EXPECT_EQ(dialog.value(), 0);
        EXPECT_EQ(dialog.minimum(), 0);
        EXPECT_EQ(dialog.maximum(), 100);
        EXPECT_EQ(dialog.font().family(), QStringLiteral("Arial"));
        EXPECT_FALSE(dialog.font().italic());
        EXPECT_EQ(dialog.font().weight(), QFont::Normal);
        EXPECT_EQ(dialog.minimumWidth(), 400);
        EXPECT_EQ(dialog.maximumWidth(), 400);
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
        const QString style =
            QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
        EXPECT_EQ(style.size(), 77);
        EXPECT_EQ(dialog.styleSheet(), style);
        EXPECT_TRUE(dialog.autoClose());
    }

    const Launcher launcher;
    ProcessingProgressDialog* owned = TheDialog();
    ASSERT_NE(owned, nullptr) << "the controller made no dialog";
    EXPECT_FALSE(owned->autoReset());
    EXPECT_EQ(owned->findChild<QPushButton*>(), nullptr) << "the dialog still has a cancel button";
}

// The icon comes from the resources of the bundle the executable runs
// from, so this test runs a copy of itself from a bundle it builds.
TEST(ProgressDialog, TakesItsIconFromTheBundleImages)
{
    const TempDir dir("calderix-dialog");
    const std::string bundle = dir / "Icon.app";
    const std::string images = bundle + "/Contents/Resources/images";
    const std::string exe = bundle + "/Contents/MacOS/controller_test";
    ASSERT_TRUE(MakeDirs(bundle + "/Contents/MacOS") && MakeDirs(images))
        << bundle << ": " << strerror(errno);
    const std::string self = QCoreApplication::applicationFilePath().toStdString();
    ASSERT_TRUE(CopyTree(self, exe)) << self << ": " << strerror(errno);
    const std::vector<EnvChange> env = {Set("QT_QPA_PLATFORM", "offscreen"), Unset("XDG_RUNTIME_DIR"),
                                        Set("TMPDIR", dir.path())};

    ProcessResult r = testsupport::Run({exe, kPrintIconMode}, env);
    EXPECT_TRUE(r.exited && r.exit_code == 0) << r.err;
    EXPECT_EQ(r.out, "none\n") << "an icon appeared without its file";
    // A FIFO in the icon's place is no icon, and nothing waits on it.
    const std::string png = images + "/ico_72_calderix.png";
    ASSERT_EQ(mkfifo(png.c_str(), 0644), 0) << png << ": " << strerror(errno);
    r = testsupport::Run({exe, kPrintIconMode}, env);
    EXPECT_EQ(r.out, "none\n") << r.err;
    ASSERT_TRUE(RemoveTree(png));

    QImage icon(72, 72, QImage::Format_ARGB32);
    icon.fill(Qt::darkCyan);
    ASSERT_TRUE(icon.save(QString::fromStdString(png), "PNG")) << png;
    r = testsupport::Run({exe, kPrintIconMode}, env);
    EXPECT_TRUE(r.exited && r.exit_code == 0) << r.err;
    EXPECT_EQ(r.out, "72x72\n");
}

struct ProgressCase {
    const char* name;
    int total;
    int steps;
    int value; // the dialog's value afterwards; it starts at 10
};

void PrintTo(const ProgressCase& c, std::ostream* os)
{
    *os << c.name;
}

class ProgressReport : public ::testing::TestWithParam<ProgressCase> {};

TEST_P(ProgressReport, SetsTheTruncatedPercentage)
{
    const ProgressCase& c = GetParam();
    const Launcher launcher;
    ProcessingProgressDialog* dialog = TheDialog();
    ASSERT_NE(dialog, nullptr);
    // On this thread the relay's connection calls the controller directly.
    Notify_Adapter::GetInstance()->UpdateProgress(10, 1);
    ASSERT_EQ(dialog->value(), 10);
    Notify_Adapter::GetInstance()->UpdateProgress(c.total, c.steps);
    EXPECT_EQ(dialog->value(), c.value) << c.steps << " of " << c.total;
}

// The reports a run sends, 3 of 7 giving 42 among them, come through the
// relay in ControllerRun; these are the edges.
INSTANTIATE_TEST_SUITE_P(Reports, ProgressReport,
                         ::testing::Values(ProgressCase{"NoneDone", 7, 0, 0},
                                           ProgressCase{"BeyondInt32Product", 30000000, 29999999, 99},
                                           ProgressCase{"ZeroTotalIgnored", 0, 3, 10},
                                           ProgressCase{"NegativeTotalIgnored", -7, 3, 10}),
                         [](const ::testing::TestParamInfo<ProgressCase>& info) {
                             return std::string(info.param.name);
                         });

// Stands in for the installation: records each call and the thread it ran
// on, and reports extraction progress through the relay as the extractor
// does.
class ScriptedService : public Service {
public:
    struct Script {
        bool need_upgrade;
        int upgrade_result;
        int entries; // progress reports during the upgrade, of a total of 7
    };

    ScriptedService(const Script& script, std::vector<std::string>* calls, bool* off_main)
        : script_(script), calls_(calls), off_main_(off_main)
    {
    }

    void StopService() override { Record("StopService"); }
    int HandlePackageUpgrade() override
    {
        Record("HandlePackageUpgrade");
        Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("unpacking"));
        for (int done = 1; done <= script_.entries; ++done) {
            Notify_Adapter::GetInstance()->UpdateProgress(7, done);
        }
        return script_.upgrade_result;
    }
    void PostUpgrade() override { Record("PostUpgrade"); }
    void PreUpgrade() override { Record("PreUpgrade"); }
    bool IsNeedUpgrade() override
    {
        Record("IsNeedUpgrade");
        return script_.need_upgrade;
    }

private:
    void Record(const char* call)
    {
        calls_->push_back(call);
        *off_main_ = *off_main_ && QThread::currentThread() != qApp->thread();
    }

    Script script_;
    std::vector<std::string>* calls_;
    bool* off_main_;
};

// Records the dialog's shows and hides, and checks that the toolkit sees
// them on the main thread.
class VisibilityLog : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
            events.push_back(event->type() == QEvent::Show ? "show" : "hide");
            on_main = on_main && QThread::currentThread() == qApp->thread();
        }
        return false;
    }
    std::vector<std::string> events;
    bool on_main = true;
};

struct RunCase {
    const char* name;
    ScriptedService::Script script;
    std::vector<std::string> calls;
    std::vector<int> values;          // the bar's values, in the order set
    std::vector<std::string> showing; // the dialog's shows and hides
    int label_id;                     // final label, or -1 for the relay's text
};

void PrintTo(const RunCase& c, std::ostream* os)
{
    *os << c.name;
}

class ControllerRun : public ::testing::TestWithParam<RunCase> {
protected:
    void SetUp() override
    {
        // The service tidies the aged folder of this home.
        ASSERT_TRUE(env_.Set("HOME", dir_ / "home")) << strerror(errno);
        ASSERT_TRUE(MakeDirs(AgedFolder())) << AgedFolder() << ": " << strerror(errno);
    }
    std::string AgedFolder() const { return dir_ / "home/.Calderix/app"; }

    TempDir dir_{"calderix-controller"};
    launchertest::ScopedEnv env_;
};

// One run from Start to the end of the event loop: the service calls in
// order on the worker thread, the dialog driven only from the main thread,
// every report applied in the order it was sent, and a clean quit.
TEST_P(ControllerRun, RunsTheServiceAndRelaysItsReportsInOrder)
{
    const RunCase& c = GetParam();
    std::vector<std::string> calls;
    bool off_main = true;
    auto* launcher = new Launcher(new ScriptedService(c.script, &calls, &off_main));
    ProcessingProgressDialog* dialog = TheDialog();
    ASSERT_NE(dialog, nullptr);
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    ASSERT_NE(bar, nullptr);
    QSignalSpy values(bar, &QProgressBar::valueChanged);
    bool bar_on_main = true;
    QObject::connect(bar, &QProgressBar::valueChanged, [&bar_on_main] {
        bar_on_main = bar_on_main && QThread::currentThread() == qApp->thread();
    });
    VisibilityLog visibility;
    dialog->installEventFilter(&visibility);

    launcher->Run();
    launcher->Start();
    const int result = QApplication::exec();

    EXPECT_EQ(result, 0);
    EXPECT_THAT(calls, ElementsAreArray(c.calls));
    EXPECT_TRUE(off_main) << "a service call ran on the main thread";
    EXPECT_FALSE(Exists(AgedFolder())) << "the aged folder was not removed";
    std::vector<int> seen;
    for (const QList<QVariant>& args : values) {
        seen.push_back(args.at(0).toInt());
    }
    EXPECT_THAT(seen, ElementsAreArray(c.values));
    EXPECT_TRUE(bar_on_main) << "the bar was set off the main thread";
    EXPECT_THAT(visibility.events, ElementsAreArray(c.showing));
    EXPECT_TRUE(visibility.on_main);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->labelText(),
              c.label_id < 0 ? QStringLiteral("unpacking") : StrTable::LoadStr(c.label_id));
    dialog->removeEventFilter(&visibility);
    delete launcher;
    EXPECT_EQ(TheDialog(), nullptr) << "the controller left its dialog behind";
}

INSTANTIATE_TEST_SUITE_P(
    Outcomes, ControllerRun,
    ::testing::Values(RunCase{"UpgradeSucceeds",
                              {true, 0, 7},
                              {"PreUpgrade", "IsNeedUpgrade", "HandlePackageUpgrade", "PostUpgrade"},
                              {14, 28, 42, 57, 71, 85, 100},
                              {"show", "hide"},
                              510},
                      RunCase{"UpgradeFails",
                              {true, -1, 3},
                              {"PreUpgrade", "IsNeedUpgrade", "HandlePackageUpgrade", "PostUpgrade"},
                              {14, 28, 42, 100},
                              {"show", "hide"},
                              -1},
                      RunCase{"NothingToUpgrade",
                              {false, 0, 0},
                              {"PreUpgrade", "IsNeedUpgrade", "PostUpgrade"},
                              {100},
                              {},
                              461}),
    [](const ::testing::TestParamInfo<RunCase>& info) { return std::string(info.param.name); });

} // namespace

// Besides the tests, one helper mode for TakesItsIconFromTheBundleImages:
// print the size of the dialog's icon ("none" without one) and exit.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    if (argc == 2 && strcmp(argv[1], kPrintIconMode) == 0) {
        const ProcessingProgressDialog dialog;
        const QList<QSize> sizes = dialog.windowIcon().availableSizes();
        printf("%s\n", sizes.isEmpty() ? "none"
                                       : QStringLiteral("%1x%2")
                                             .arg(sizes.front().width())
                                             .arg(sizes.front().height())
                                             .toUtf8()
                                             .constData());
        return 0;
    }
    return RUN_ALL_TESTS();
}
