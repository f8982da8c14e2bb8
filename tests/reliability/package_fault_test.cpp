// Upgrades that cannot go through, each a whole launcher run: a package cut
// short or with a flipped byte, a write error a user's machine really gives
// part-way (a file size limit, a folder that turns read-only),
// a package written by hand to escape the user's bundle or to leave them
// without a working copy, and something other than a plain file at each
// place the launcher reads or appends to. The launcher must not crash or
// hang (the sanitizer build runs the same rows), must put the old copy
// back as it was (or on a first installation report that there is none),
// and must touch nothing outside ~/.Calderix.
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

#include "archive_builder.h"
#include "reliability_fixture.h"

using namespace testsupport;

namespace {

const char kNoRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, and no old installation to rollback";
// About three hundred and thirty entries, each data file below a page; the
// user interface's executable, the largest file, comes second to last.
constexpr int kFolders = 20;
constexpr int kFilesPerFolder = 15;

const char kUi[] = "Contents/MacOS/calderix-drive-ui";

// A package written by hand without vpkpack's rules or ordering: the
// client's Info.plist and folders, entries, then the client's UI and version
// file unless entries name them (kind 'x': left out). "@" starts a path or
// link target outside the home.
::testing::AssertionResult WritePackage(const std::string& path, const std::string& client,
                                        const std::string& outside, std::vector<ArchiveItem> entries)
{
    entries.insert(entries.begin(), {{"Contents", "", 'd', 0755},
                                     {"Contents/Info.plist", ReadFile(client + "/Contents/Info.plist")},
                                     {"Contents/MacOS", "", 'd', 0755},
                                     {"Contents/Resources", "", 'd', 0755}});
    for (const std::string file : {kUi, "Contents/Resources/INFO"}) {
        if (std::none_of(entries.begin(), entries.end(),
                         [&](const ArchiveItem& e) { return e.path == file; })) {
            entries.push_back({file, ReadFile(client + "/" + file), 'f', file == kUi ? 0755u : 0644u});
        }
    }
    entries.erase(
        std::remove_if(entries.begin(), entries.end(), [](const ArchiveItem& e) { return e.kind == 'x'; }),
        entries.end());
    for (ArchiveItem& e : entries) {
        for (std::string* text : {&e.path, &e.link}) {
            *text = text->rfind('@', 0) == 0 ? outside + text->substr(1) : *text;
        }
    }
    return WriteArchive(path, ArchiveFormat::Tar, entries);
}

enum class Fault { Cut, Flip, FileSizeLimit, ReadOnlyFolder, Hostile };

struct FaultRow {
    const char* name;
    Fault fault;
    int per_mille;                         // Cut and Flip: the place as a share of the package's size
                                           // (1000: its last byte)
    bool first_time = false;               // no installed copy
    const char* reason = nullptr;          // the start of libarchive's text in the extractor's error line
    std::vector<ArchiveItem> entries = {}; // Hostile: ahead of the client's UI and version file unless named
};

class PackageFault : public ReliabilityFixture, public ::testing::WithParamInterface<FaultRow> {};

TEST_P(PackageFault, OldCopyComesBackOrFirstInstallationReportsIt)
{
    const FaultRow& row = GetParam();
    if (!row.first_time) {
        InstallCopy("1200");
    }
    // Something of the user's beside the home, for packages that try to reach it.
    const std::string outside = root_ + "/outside";
    ASSERT_TRUE(MakeDirs(outside) && WriteFile(outside + "/target.txt", "the user's file\n"))
        << strerror(errno);
    // A package written by hand needs no more than the client's own files.
    const bool hostile = row.fault == Fault::Hostile;
    const int total = hostile ? PackClient("1201") : PackClient("1201", kFolders, kFilesPerFolder);
    std::string data = ReadFile(package_);
    const long size = static_cast<long>(data.size());
    const size_t at = static_cast<size_t>(std::clamp(size * row.per_mille / 1000, 0L, size - 1));
    if (row.fault == Fault::Flip) {
        data[at] = static_cast<char>(data[at] ^ 0xff);
    } else if (row.fault == Fault::Cut) {
        data.resize(at);
    }
    ASSERT_TRUE((hostile || total > 300) && WriteFile(package_, data))
        << package_ << ": " << total << " entries";
    if (hostile) {
        ASSERT_TRUE(WritePackage(package_, ClientBundle("1201"), outside, row.entries));
    }
    std::vector<EnvChange> env = Env(home_);
    std::function<void()> before_exec;
    if (row.fault == Fault::FileSizeLimit) {
        // Every data file fits, the user interface's executable does not.
        const rlim_t limit = ReadFile(DEMO_UI_PATH).size() / 2;
        before_exec = [limit] {
            const struct rlimit r = {limit, limit};
            if (setrlimit(RLIMIT_FSIZE, &r) != 0 || signal(SIGXFSZ, SIG_IGN) == SIG_ERR) {
                perror("RLIMIT_FSIZE");
                _exit(127);
            }
        };
    } else if (row.fault == Fault::ReadOnlyFolder) {
        env = ShimEnv("chmod:" + std::to_string(total / 2));
        // Root writes into read-only folders all the same: the launcher runs
        // as nobody, in a tree that nobody owns.
        if (geteuid() == 0) {
            GiveToNobody();
            before_exec = DropRoot;
        }
    }
    const reliability::Tree before = reliability::Snapshot(app_), user = Outside(),
                            beyond = reliability::Snapshot(outside);

    ExpectCleanExit(testsupport::Run({launcher_}, env, before_exec));
    const std::string log = ReadFile(LogPath());
    EXPECT_EQ(LogCount(row.first_time ? kNoRollback : reliability::kRollback), 1)
        << row.name << " at byte " << at << " of " << size << "\n"
        << log;
    EXPECT_TRUE(row.reason == nullptr ||
                log.find(std::string("): archive_read_extract2 failed: '") + row.reason) != std::string::npos)
        << "no reason given in\n"
        << log;
    EXPECT_TRUE(reliability::SameTree(user, Outside())) << "something outside ~/.Calderix changed";
    EXPECT_TRUE(reliability::SameTree(beyond, reliability::Snapshot(outside)))
        << "the package wrote outside the home";
    EXPECT_FALSE(Exists(install_ + "/escape.txt")) << "an entry escaped into ~/.Calderix";
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    if (!row.first_time) {
        EXPECT_TRUE(reliability::SameTree(before, reliability::Snapshot(app_)))
            << "the old copy is not back as it was";
        ExpectUiStartedOnce();
    }
}

// A row of a package written by hand, installed for the first time.
FaultRow Hostile(const char* name, std::vector<ArchiveItem> entries)
{
    return FaultRow{name, Fault::Hostile, 0, true, nullptr, std::move(entries)};
}

INSTANTIATE_TEST_SUITE_P(
    Faults, PackageFault,
    ::testing::Values(
        FaultRow{"cut_to_empty", Fault::Cut, 0}, FaultRow{"cut_at_half", Fault::Cut, 500},
        FaultRow{"cut_last_byte", Fault::Cut, 1000}, FaultRow{"flip_magic", Fault::Flip, 0},
        FaultRow{"flip_at_a_third", Fault::Flip, 333},
        FaultRow{"first_time_cut_at_half", Fault::Cut, 500, true},
        FaultRow{"file_size_limit", Fault::FileSizeLimit, 0, false, "Write"},
        FaultRow{"read_only_folder", Fault::ReadOnlyFolder, 0, false, "Can't create '"},
        Hostile("dot_dot_name", {{"Contents/../../escape.txt"}}),
        Hostile("absolute_symlink_then_entry_through_it",
                {{"Contents/out", "", 'l', 0777, "@"}, {"Contents/out/evil.txt"}}),
        Hostile("relative_symlink_then_entry_through_it",
                {{"Contents/up", "", 'l', 0777, "../../../../outside"}, {"Contents/up/evil.txt"}}),
        Hostile("hard_link_to_a_file_outside", {{"Contents/Resources/hard", "", 'h', 0644, "@/target.txt"},
                                                {"Contents/Resources/hard", "overwritten\n"}}),
        Hostile("fifo", {{"Contents/Resources/fifo", "", 'p'}}),
        Hostile("device_node", {{"Contents/Resources/zero", "", 'c', 0666}}),
        Hostile("no_ui_executable", {{kUi, "", 'x'}}), Hostile("ui_not_executable", {{kUi, "#!/bin/sh\n"}}),
        Hostile("version_file_without_build", {{"Contents/Resources/INFO", "[Version]\nmajor_version=2\n"}})),
    RowName());

enum class Kind { Fifo, Device, Folder, LinkLoop, Huge };
enum class Place { BundleInfo, InstalledInfo, PidFile, LevelFile, LogFile, Package };
using OddRow = std::tuple<Kind, Place>;

class OddFile : public ReliabilityFixture, public ::testing::WithParamInterface<OddRow> {};

TEST_P(OddFile, LauncherGoesOnAndTheUserKeepsACopy)
{
    const auto [kind, place] = GetParam();
    InstallCopy("1200");
    PackClient("1201");
    SetLevels("service_debug=6\n");
    ASSERT_TRUE(MakeDirs(install_ + "/log"));
    const std::string paths[] = {bundle_ + "/Contents/Resources/INFO",
                                 app_ + "/Contents/Resources/INFO",
                                 install_ + "/ui.pid",
                                 LevelFile(),
                                 LogPath(),
                                 package_};
    const std::string path = paths[static_cast<int>(place)];
    // Without the launcher bundle's build, or its package, there is nothing
    // to install; every other odd file leaves the upgrade to go ahead.
    const bool upgrades = place != Place::BundleInfo && place != Place::Package;
    const reliability::Tree expected = reliability::Snapshot(upgrades ? ClientBundle("1201") : app_);
    // The device reads as /dev/zero: a node of our own as root, who could
    // otherwise replace the system's through a link (the user interface
    // saves its pid file by renaming onto the link's target), else a link to
    // it. The huge file is sparse, larger than int can count.
    ASSERT_TRUE(RemoveTree(path) &&
                (kind == Kind::Fifo     ? mkfifo(path.c_str(), 0644) == 0
                 : kind == Kind::Device ? (geteuid() == 0 ? mknod(path.c_str(), S_IFCHR | 0666, makedev(1, 5))
                                                          : symlink("/dev/zero", path.c_str())) == 0
                 : kind == Kind::Folder ? MakeDirs(path)
                 : kind == Kind::LinkLoop ? symlink(path.c_str(), path.c_str()) == 0
                                          : WriteFile(path, "") && truncate(path.c_str(), 3LL << 30) == 0))
        << path << ": " << strerror(errno);

    const ProcessResult run = Finish(StartLauncher("run", Env(home_)), "run", 30);
    ASSERT_TRUE(run.exited) << "the launcher hung and was killed\n" << run.err;
    ExpectCleanExit(run);
    EXPECT_TRUE(reliability::SameTree(expected, reliability::Snapshot(app_)))
        << (upgrades ? "the new copy is not the package's" : "the old copy changed");
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    // The user interface refuses to run without its own pid file.
    if (place != Place::PidFile) {
        ExpectUiStartedOnce();
    }
    EXPECT_TRUE(place != Place::LogFile || kind != Kind::Huge || Exists(LogPath() + "_0"))
        << "a log file beyond int's count was not rotated";
}

std::string OddName(const ::testing::TestParamInfo<OddRow>& info)
{
    static const char* const kinds[] = {"fifo", "device", "folder", "link_loop", "huge"};
    static const char* const places[] = {"bundle_info", "installed_info", "pid_file",
                                         "level_file",  "log_file",       "package"};
    return std::string(kinds[static_cast<int>(std::get<0>(info.param))]) + "_at_" +
           places[static_cast<int>(std::get<1>(info.param))];
}

INSTANTIATE_TEST_SUITE_P(
    Places, OddFile,
    ::testing::Combine(::testing::Values(Kind::Fifo, Kind::Device, Kind::Folder, Kind::LinkLoop, Kind::Huge),
                       ::testing::Values(Place::BundleInfo, Place::InstalledInfo, Place::PidFile,
                                         Place::LevelFile, Place::LogFile, Place::Package)),
    OddName);

} // namespace
