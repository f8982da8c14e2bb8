// The real launcher upgrades an older installed copy under memcheck. An
// error counts when a frame of its stack is our code; the rest (Qt, font
// and glib internals) is listed and let pass. Attributing by the frames of
// the XML report rather than by suppressions: a suppression that matches a
// library's frames would hide an error of ours passing through them too.
// qt.supp holds only the Qt errors that name our frames as mere callers.
#include <map>
#include <string>
#include <vector>

#include <QFile>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "reliability_fixture.h"

namespace ts = testsupport;

namespace {

struct MemcheckError {
    std::string text; // kind, what, then a line "fn file:line (obj)" for each frame
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
    QXmlStreamReader xml(&file);
    bool finished = false;
    while (!xml.atEnd()) {
        xml.readNext();
        const std::string name = xml.name().toString().toStdString();
        if (xml.isEndElement() && name == "valgrindoutput") {
            finished = true;
        } else if (xml.isStartElement() && name == "error") {
            errors->emplace_back();
        } else if (errors->empty() || !xml.isStartElement()) {
            continue;
        } else if (name == "kind" || name == "what" || name == "text") {
            errors->back().text += xml.readElementText().toStdString() + ": ";
        } else if (name == "frame") {
            std::map<std::string, std::string> frame;
            while (xml.readNextStartElement()) {
                frame[xml.name().toString().toStdString()] = xml.readElementText().toStdString();
            }
            for (const QString& folder : QString(OUR_FOLDERS).split(':')) {
                errors->back().ours |=
                    !frame["dir"].empty() && (frame["dir"] + "/").rfind(folder.toStdString(), 0) == 0;
            }
            errors->back().text += "\n    " + frame["fn"] + " " + frame["file"] + ":" + frame["line"] + " (" +
                                   frame["obj"] + ")";
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

    std::vector<MemcheckError> errors;
    ASSERT_TRUE(ReadReport(report, &errors)) << report << ": no complete report\n" << r.err;
    ExpectCleanExit(r);
    for (const MemcheckError& e : errors) {
        EXPECT_FALSE(e.ours) << e.text;
        std::printf("%s: %s\n", e.ours ? "ours" : "not ours", e.text.c_str());
    }
    EXPECT_TRUE(
        reliability::SameTree(reliability::Snapshot(ClientBundle("1201", 3, 4)), reliability::Snapshot(app_)))
        << "the new copy is not in place";
    ExpectUiStartedOnce();
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
}

} // namespace
