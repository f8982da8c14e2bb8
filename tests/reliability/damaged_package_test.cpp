// Packages cut short or with a flipped byte, each a whole launcher run:
// the launcher must never crash (the sanitizer build runs the same rows)
// and must leave the user the copy they had, or on a first installation
// report that there is none to go back to. Then something other than a
// plain file at each place the launcher reads or appends to: it must
// neither hang nor cost the user their copy.
#include <algorithm>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "reliability_fixture.h"

using namespace testsupport;

namespace {

const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";
const char kNoRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, and no old installation to rollback";

struct DamageRow {
    const char* name;
    bool flip;       // flip one byte there, else cut the package there
    int per_mille;   // position as a share of the package's size
    int from_end;    // then moved this many bytes back (or, at 0, forward)
    bool first_time; // no installed copy
};

void PrintTo(const DamageRow& row, std::ostream* os)
{
    *os << row.name;
}

class DamagedPackage : public ReliabilityFixture, public ::testing::WithParamInterface<DamageRow> {};

TEST_P(DamagedPackage, OldCopyStaysOrFirstInstallationReportsIt)
{
    const DamageRow& row = GetParam();
    if (!row.first_time) {
        InstallCopy("1200");
    }
    ASSERT_GT(PackClient("1201", 4, 10), 40);
    std::string data = ReadFile(package_);
    ASSERT_GT(data.size(), 1000u) << package_;
    const long size = static_cast<long>(data.size());
    const size_t at =
        static_cast<size_t>(std::clamp(size * row.per_mille / 1000 - row.from_end, 0L, size - 1));
    if (row.flip) {
        data[at] = static_cast<char>(data[at] ^ 0xff);
    } else {
        data.resize(at);
    }
    ASSERT_TRUE(WriteFile(package_, data)) << package_;
    const reliability::Tree before = reliability::Snapshot(app_);
    const reliability::Tree outside = Outside();

    ExpectCleanExit(RunLauncher());
    const std::vector<std::string> lines = launchertest::LogLines(ReadFile(LogPath()));
    const char* expected = row.first_time ? kNoRollback : kRollback;
    EXPECT_EQ(std::count(lines.begin(), lines.end(), expected), 1)
        << (row.flip ? "byte flipped at " : "package cut at ") << at << " of " << ReadFile(package_).size()
        << ": no \"" << expected << "\" in\n"
        << ReadFile(LogPath());
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    EXPECT_EQ(Outside(), outside) << "something outside ~/.Calderix changed";
    if (!row.first_time) {
        const reliability::Tree after = reliability::Snapshot(app_);
        EXPECT_EQ(after, before) << "the old copy is not back as it was:\n"
                                 << reliability::Difference(before, after);
        ExpectUiStartedOnce();
    }
}

INSTANTIATE_TEST_SUITE_P(Damage, DamagedPackage,
                         ::testing::Values(DamageRow{"cut_to_empty", false, 0, 0, false},
                                           DamageRow{"cut_after_one_byte", false, 0, -1, false},
                                           DamageRow{"cut_in_frame_header", false, 0, -6, false},
                                           DamageRow{"cut_at_a_quarter", false, 250, 0, false},
                                           DamageRow{"cut_at_half", false, 500, 0, false},
                                           DamageRow{"cut_at_nine_tenths", false, 900, 0, false},
                                           DamageRow{"cut_last_byte", false, 1000, 1, false},
                                           DamageRow{"flip_magic", true, 0, 0, false},
                                           DamageRow{"flip_frame_header", true, 0, -5, false},
                                           DamageRow{"flip_at_a_third", true, 333, 0, false},
                                           DamageRow{"flip_at_two_thirds", true, 667, 0, false},
                                           DamageRow{"flip_last_byte", true, 1000, 1, false},
                                           DamageRow{"first_time_cut_at_half", false, 500, 0, true},
                                           DamageRow{"first_time_cut_last_byte", false, 1000, 1, true},
                                           DamageRow{"first_time_flip_at_a_third", true, 333, 0, true}),
                         [](const ::testing::TestParamInfo<DamageRow>& info) {
                             return std::string(info.param.name);
                         });

enum class Kind { Fifo, Device, Folder, LinkLoop, Huge };
enum class Place { BundleInfo, InstalledInfo, PidFile, LevelFile, LogFile, Package };

const char* Name(Kind kind)
{
    static const char* const names[] = {"fifo", "device", "folder", "link_loop", "huge"};
    return names[static_cast<int>(kind)];
}

const char* Name(Place place)
{
    static const char* const names[] = {"bundle_info", "installed_info", "pid_file",
                                        "level_file",  "log_file",       "package"};
    return names[static_cast<int>(place)];
}

class OddFile : public ReliabilityFixture, public ::testing::WithParamInterface<std::tuple<Kind, Place>> {
protected:
    std::string PathOf(Place place) const
    {
        switch (place) {
        case Place::BundleInfo:
            return bundle_ + "/Contents/Resources/INFO";
        case Place::InstalledInfo:
            return app_ + "/Contents/Resources/INFO";
        case Place::PidFile:
            return install_ + "/ui.pid";
        case Place::LevelFile:
            return LevelFile();
        case Place::LogFile:
            return LogPath();
        case Place::Package:
            return package_;
        }
        return {};
    }

    // Puts a thing of kind at path in place of what is there. The device
    // reads as /dev/zero: a node of our own as root, who could otherwise
    // replace the system's through a link (the user interface saves its pid
    // file by renaming onto the link's target), else a link to it. The huge
    // file is sparse, larger than int can count.
    static ::testing::AssertionResult Plant(Kind kind, const std::string& path)
    {
        bool ok = RemoveTree(path);
        switch (kind) {
        case Kind::Fifo:
            ok = ok && mkfifo(path.c_str(), 0644) == 0;
            break;
        case Kind::Device:
            ok = ok && (geteuid() == 0 ? mknod(path.c_str(), S_IFCHR | 0666, makedev(1, 5))
                                       : symlink("/dev/zero", path.c_str())) == 0;
            break;
        case Kind::Folder:
            ok = ok && MakeDirs(path);
            break;
        case Kind::LinkLoop:
            ok = ok && symlink(path.c_str(), path.c_str()) == 0;
            break;
        case Kind::Huge: {
            const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            ok = ok && fd >= 0 && ftruncate(fd, 3LL << 30) == 0;
            if (fd >= 0) {
                close(fd);
            }
            break;
        }
        }
        if (!ok) {
            return ::testing::AssertionFailure() << path << ": " << strerror(errno);
        }
        return ::testing::AssertionSuccess();
    }
};

TEST_P(OddFile, LauncherGoesOnAndTheUserKeepsACopy)
{
    const auto [kind, place] = GetParam();
    InstallCopy("1200");
    PackClient("1201");
    SetLevels("service_debug=6\n");
    ASSERT_TRUE(MakeDirs(install_ + "/log"));
    // Without the launcher bundle's build, or its package, there is nothing
    // to install; every other odd file leaves the upgrade to go ahead.
    const bool upgrades = place != Place::BundleInfo && place != Place::Package;
    const reliability::Tree expected =
        upgrades ? reliability::Snapshot(ClientBundle("1201")) : reliability::Snapshot(app_);
    ASSERT_TRUE(Plant(kind, PathOf(place)));

    const testsupport::ProcessResult run =
        Finish(StartLauncher("run", Env(home_)), "run", time(nullptr) + 30);
    ASSERT_TRUE(run.exited) << "the launcher hung and was killed\n" << run.err;
    ExpectCleanExit(run);
    const reliability::Tree after = reliability::Snapshot(app_);
    EXPECT_EQ(after, expected) << (upgrades ? "the new copy is not the package's:\n"
                                            : "the old copy changed:\n")
                               << reliability::Difference(expected, after);
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    // The user interface refuses to run without its own pid file; the log
    // file is only readable when it is one.
    if (place != Place::PidFile) {
        ExpectUiStartedOnce();
    }
    if (place == Place::LogFile && kind == Kind::Huge) {
        EXPECT_TRUE(Exists(LogPath() + "_0")) << "a log file beyond int's count was not rotated";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Places, OddFile,
    ::testing::Combine(::testing::Values(Kind::Fifo, Kind::Device, Kind::Folder, Kind::LinkLoop, Kind::Huge),
                       ::testing::Values(Place::BundleInfo, Place::InstalledInfo, Place::PidFile,
                                         Place::LevelFile, Place::LogFile, Place::Package)),
    [](const ::testing::TestParamInfo<std::tuple<Kind, Place>>& info) {
        return std::string(Name(std::get<0>(info.param))) + "_at_" + Name(std::get<1>(info.param));
    });

} // namespace
