// Packages written by hand to escape the user's bundle or to leave the user
// without a working copy: a ".." name, symbolic links leading out (and
// entries written through them), a hard link to a file outside, a FIFO and
// a device node, a package without a runnable user interface or build
// number. Each is a whole launcher run over an installed copy; vpkpack
// --check refuses every one of them, the launcher refuses it too, nothing
// outside the installation changes (a canary folder beside the home) and
// the old copy comes back.
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
    vpkpack::Error check;       // what vpkpack --check says
    mode_t ui_perm = 0755;      // of the UI executable; 0 leaves it out
    const char* info = nullptr; // the version file's text instead of the client's
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
    EXPECT_EQ(reliability::Snapshot(outside), beyond)
        << "the package wrote outside the home:\n"
        << reliability::Difference(beyond, reliability::Snapshot(outside));
    EXPECT_EQ(Outside(), user) << "something outside ~/.Calderix changed";
    EXPECT_EQ(reliability::Snapshot(install_, "Calderix.app").count("escape.txt"), 0u)
        << "an entry escaped into ~/.Calderix";
    const std::vector<std::string> lines = launchertest::LogLines(ReadFile(LogPath()));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), kRollback), 1) << ReadFile(LogPath());
    EXPECT_EQ(reliability::Snapshot(app_), old_copy) << "the old copy is not back";
    EXPECT_TRUE(Backups().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Packages, HostilePackage,
    ::testing::Values(HostileRow{"dot_dot_name",
                                 {{PackEntry::File, "Contents/../../escape.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::DotDotName},
                      HostileRow{"absolute_symlink_then_entry_through_it",
                                 {{PackEntry::Symlink, "Contents/out", {}, 0777, "@"},
                                  {PackEntry::File, "Contents/out/evil.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::BelowSymlink},
                      HostileRow{"relative_symlink_then_entry_through_it",
                                 {{PackEntry::Symlink, "Contents/up", {}, 0777, "../../../../outside"},
                                  {PackEntry::File, "Contents/up/evil.txt", "x\n", 0644, {}}},
                                 vpkpack::Error::BelowSymlink},
                      HostileRow{"absolute_symlink",
                                 {{PackEntry::Symlink, "Contents/out", {}, 0777, "@"}},
                                 vpkpack::Error::AbsoluteSymlink},
                      HostileRow{"escaping_symlink",
                                 {{PackEntry::Symlink, "Contents/up", {}, 0777, "../../../../outside"}},
                                 vpkpack::Error::EscapingSymlink},
                      HostileRow{"hard_link_to_a_file_outside",
                                 {{PackEntry::HardLink, "Contents/Resources/hard", {}, 0644, "@/target.txt"},
                                  {PackEntry::File, "Contents/Resources/hard", "overwritten\n", 0644, {}}},
                                 vpkpack::Error::HardLink},
                      HostileRow{"fifo",
                                 {{PackEntry::Fifo, "Contents/Resources/fifo", {}, 0644, {}}},
                                 vpkpack::Error::UnsupportedType},
                      HostileRow{"device_node",
                                 {{PackEntry::Device, "Contents/Resources/zero", {}, 0666, {}}},
                                 vpkpack::Error::UnsupportedType},
                      HostileRow{"no_ui_executable", {}, vpkpack::Error::MissingUi, 0},
                      HostileRow{"ui_not_executable", {}, vpkpack::Error::UiNotExecutable, 0644},
                      HostileRow{"version_file_without_build",
                                 {},
                                 vpkpack::Error::MissingBuildVersion,
                                 0755,
                                 "[Version]\nmajor_version=2\n"}),
    [](const ::testing::TestParamInfo<HostileRow>& info) { return std::string(info.param.name); });

} // namespace
