// Packages written by hand to escape the user's bundle: a ".." name, an
// absolute name, a symbolic link leading out followed by an entry through
// it, a hard link to a file outside followed by a file of the same name.
// Each is a whole launcher run over an installed copy, and vpkpack --check
// refuses every one of them. The extraction options are fixed, so the package
// is trusted as part of the launcher's own bundle: an entry below a link the
// package planted itself is written through that link. The rows record that
// outcome, so that changing the options shows up here.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reliability_fixture.h"

using namespace testsupport;
using reliability::PackEntry;

namespace {

const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";

struct HostileRow {
    const char* name;
    // The hostile entries; "@" stands for the test's folder outside the home.
    std::vector<PackEntry> entries;
    vpkpack::Error check;              // what vpkpack --check says
    bool rolled_back;                  // the launcher refuses the package, else installs it
    const char* inside;                // a path below the user's bundle the run must create ("" none)
    bool follows_planted_link = false; // the entry below the link lands outside
    mode_t ui_perm = 0755;             // of the UI executable; 0 leaves it out
    const char* info = nullptr;        // the version file's text instead of the client's
};

void PrintTo(const HostileRow& row, std::ostream* os)
{
    *os << row.name;
}

std::string Expand(std::string text, const std::string& outside)
{
    for (size_t at = text.find('@'); at != std::string::npos; at = text.find('@', at + outside.size())) {
        text.replace(at, 1, outside);
    }
    return text;
}

class HostilePackage : public ReliabilityFixture, public ::testing::WithParamInterface<HostileRow> {};

TEST_P(HostilePackage, NothingOutsideTheBundleChanges)
{
    const HostileRow& row = GetParam();
    const std::string outside = root_ + "/outside";
    ASSERT_TRUE(MakeDirs(outside) && WriteFile(outside + "/target.txt", "the user's file\n"))
        << strerror(errno);
    InstallCopy("1200");
    const std::string client = ClientBundle("1201");
    std::vector<PackEntry> entries = {
        {PackEntry::Folder, "Contents", {}, 0755, {}},
        {PackEntry::File, "Contents/Info.plist", ReadFile(client + "/Contents/Info.plist"), 0644, {}},
        {PackEntry::Folder, "Contents/MacOS", {}, 0755, {}},
        {PackEntry::Folder, "Contents/Resources", {}, 0755, {}}};
    for (PackEntry entry : row.entries) {
        entry.name = Expand(entry.name, outside);
        entry.target = Expand(entry.target, outside);
        entries.push_back(entry);
    }
    const std::string ui = "Contents/MacOS/calderix-drive-ui";
    const std::string info = "Contents/Resources/INFO";
    if (row.ui_perm != 0) {
        entries.push_back({PackEntry::File, ui, ReadFile(client + "/" + ui), row.ui_perm, {}});
    }
    entries.push_back(
        {PackEntry::File, info, row.info != nullptr ? row.info : ReadFile(client + "/" + info), 0644, {}});
    ASSERT_TRUE(reliability::WritePackage(package_, entries));
    ASSERT_TRUE(WriteFile(bundle_ + "/Contents/Resources/INFO", ReadFile(client + "/" + info)));

    const vpkpack::Status check = vpkpack::Check(package_);
    EXPECT_EQ(check.error, row.check) << "vpkpack --check: " << (check.ok() ? "accepted" : check.Message());

    const reliability::Tree old_copy = reliability::Snapshot(app_);
    const reliability::Tree user = Outside();
    const reliability::Tree beyond = reliability::Snapshot(outside);
    ExpectCleanExit(RunLauncher());
    if (row.follows_planted_link) {
        EXPECT_EQ(ReadFile(outside + "/evil.txt"), "x\n")
            << "the entry below the planted link was not written through it";
        EXPECT_EQ(ReadFile(outside + "/target.txt"), "the user's file\n");
    } else {
        EXPECT_EQ(reliability::Snapshot(outside), beyond)
            << "the package wrote outside the home:\n"
            << reliability::Difference(beyond, reliability::Snapshot(outside));
        EXPECT_EQ(Outside(), user) << "something outside ~/.Calderix changed";
    }
    EXPECT_EQ(reliability::Snapshot(install_, "Calderix.app").count("escape.txt"), 0u)
        << "an entry escaped into ~/.Calderix";
    const std::vector<std::string> lines = launchertest::LogLines(ReadFile(LogPath()));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), kRollback), row.rolled_back ? 1 : 0)
        << ReadFile(LogPath());
    if (row.rolled_back) {
        EXPECT_EQ(reliability::Snapshot(app_), old_copy) << "the old copy is not back";
    } else {
        EXPECT_TRUE(Exists(app_ + Expand(row.inside, outside)))
            << "no " << row.inside << " inside the bundle";
    }
    EXPECT_TRUE(Backups().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Packages, HostilePackage,
    ::testing::Values(HostileRow{"dot_dot_name",
                                 {{PackEntry::File, "Contents/../../escape.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::DotDotName,
                                 true,
                                 ""},
                      HostileRow{"absolute_name",
                                 {{PackEntry::File, "@/abs.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::AbsoluteName,
                                 false,
                                 "/@/abs.txt"},
                      HostileRow{"absolute_symlink_then_entry_through_it_is_followed",
                                 {{PackEntry::Symlink, "Contents/out", {}, 0777, "@"},
                                  {PackEntry::File, "Contents/out/evil.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::BelowSymlink,
                                 false,
                                 "/Contents/out",
                                 true},
                      HostileRow{"relative_symlink_then_entry_through_it_is_followed",
                                 {{PackEntry::Symlink, "Contents/up", {}, 0777, "../../../../outside"},
                                  {PackEntry::File, "Contents/up/evil.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::BelowSymlink,
                                 false,
                                 "/Contents/up",
                                 true},
                      HostileRow{"hard_link_to_a_file_outside",
                                 {{PackEntry::HardLink, "Contents/Resources/hard", {}, 0644, "@/target.txt"},
                                  {PackEntry::File, "Contents/Resources/hard", "overwritten\n", 0644, {}}},
                                 vpkpack::Error::HardLink,
                                 false,
                                 "/Contents/Resources/hard"},
                      HostileRow{"no_ui_executable", {}, vpkpack::Error::MissingUi, true, "", false, 0},
                      HostileRow{
                          "ui_not_executable", {}, vpkpack::Error::UiNotExecutable, true, "", false, 0644},
                      HostileRow{"version_file_without_build",
                                 {},
                                 vpkpack::Error::MissingBuildVersion,
                                 true,
                                 "",
                                 false,
                                 0755,
                                 "[Version]\nmajor_version=2\n"}),
    [](const ::testing::TestParamInfo<HostileRow>& info) { return std::string(info.param.name); });

} // namespace
