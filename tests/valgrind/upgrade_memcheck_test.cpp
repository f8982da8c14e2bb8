// The real launcher upgrades an older installed copy under memcheck. An
// error counts when a frame of its stack is our code; the rest (Qt, font
// and glib internals) is listed and let pass. Attributing by the frames of
// the XML report rather than by suppressions: a suppression that matches a
// library's frames would hide an error of ours passing through them too.
// qt.supp holds only the Qt errors that name our frames as mere callers.
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <QFile>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "reliability_fixture.h"

namespace ts = testsupport;

namespace {

struct MemcheckError {
    std::string kind, what, stack; // stack: one "fn file:line (obj)" per line
    bool ours = false;
};

// The errors of a memcheck XML report; false when it cannot be read or is
// cut short (valgrind died first).
bool ReadReport(const std::string& path, std::vector<MemcheckError>* errors)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QStringList ours = QString(OUR_FOLDERS).split(':');
    QXmlStreamReader xml(&file);
    bool finished = false;
    std::string dir, fn, where, obj;
    while (!xml.atEnd()) {
        xml.readNext();
        const QStringRef name = xml.name();
        if (xml.isEndElement() && name == QLatin1String("valgrindoutput")) {
            finished = true;
        } else if (xml.isStartElement() && name == QLatin1String("error")) {
            errors->emplace_back();
        } else if (errors->empty() || !xml.isStartElement()) {
            continue;
        } else if (name == QLatin1String("kind")) {
            errors->back().kind = xml.readElementText().toStdString();
        } else if (name == QLatin1String("what") || name == QLatin1String("text")) {
            errors->back().what = xml.readElementText().toStdString();
        } else if (name == QLatin1String("frame")) {
            dir = fn = where = obj = "";
            while (xml.readNextStartElement()) {
                const std::string text = xml.readElementText().toStdString();
                const QStringRef field = xml.name();
                if (field == QLatin1String("dir")) {
                    dir = text;
                } else if (field == QLatin1String("fn")) {
                    fn = text;
                } else if (field == QLatin1String("file") || field == QLatin1String("line")) {
                    where += (where.empty() ? " " : ":") + text;
                } else if (field == QLatin1String("obj")) {
                    obj = text;
                }
            }
            for (const QString& folder : ours) {
                errors->back().ours |= !dir.empty() && (dir + "/").rfind(folder.toStdString(), 0) == 0;
            }
            errors->back().stack += "    " + fn + where + " (" + obj + ")\n";
        }
    }
    return finished && !xml.hasError();
}

class UpgradeUnderMemcheck : public ReliabilityFixture {};

TEST_F(UpgradeUnderMemcheck, RunsWithoutErrorsInOurCode)
{
    SetLevels("launcher_debug=7\n");
    InstallCopy("1200");
    ASSERT_GT(PackClient("1201", 3, 4), 12);
    // A running old user interface, so that stopping it is part of the run;
    // reaped the moment the launcher ends it.
    const pid_t old_ui = ts::Start({ui_}, Env(home_));
    ASSERT_GT(old_ui, 0) << ui_ << ": " << strerror(errno);
    std::atomic<bool> reaped{false};
    std::thread reaper([old_ui, &reaped] {
        ts::Wait(old_ui);
        reaped = true;
    });
    if (WaitForUi() != old_ui) {
        kill(old_ui, SIGKILL);
        reaper.join();
        FAIL() << "the old user interface did not come up";
    }

    const std::string report = root_ + "/memcheck.xml";
    // The report decides about errors, so no --error-exitcode: it would
    // stand in for the launcher's own exit status. Forked children keep
    // quiet, or they would write into the same report. Deep stacks reach
    // our code behind Qt's event loop and signal dispatch.
    const ts::ProcessResult r =
        ts::Run({VALGRIND, "--tool=memcheck", "--trace-children=no", "--child-silent-after-fork=yes",
                 "--leak-check=full", "--show-leak-kinds=definite", "--errors-for-leak-kinds=definite",
                 "--suppressions=" QT_SUPPRESSIONS, "--track-fds=no", "--num-callers=30", "--xml=yes",
                 "--xml-file=" + report, launcher_},
                Env(home_));
    if (!reaped) {
        ADD_FAILURE() << "the old user interface is still running";
        kill(old_ui, SIGKILL);
    }
    reaper.join();

    std::vector<MemcheckError> errors;
    ASSERT_TRUE(ReadReport(report, &errors)) << report << ": no complete report\n" << r.err;
    ASSERT_TRUE(r.exited) << "killed by signal " << r.term_signal << "\n" << r.err;
    EXPECT_EQ(r.exit_code, 0) << r.err;
    for (const MemcheckError& e : errors) {
        EXPECT_FALSE(e.ours) << e.kind << ": " << e.what << "\n" << e.stack;
        if (!e.ours) {
            std::printf("not ours: %s: %s\n%s", e.kind.c_str(), e.what.c_str(), e.stack.c_str());
        }
    }

    const reliability::Tree want = reliability::Snapshot(ClientBundle("1201", 3, 4));
    const reliability::Tree got = reliability::Snapshot(app_);
    EXPECT_EQ(got, want) << "the new copy is not in place:\n" << reliability::Difference(want, got);
    const pid_t ui = WaitForUi(old_ui);
    ASSERT_GT(ui, 0) << "the new user interface did not come up";
    EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui});
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
}

} // namespace
