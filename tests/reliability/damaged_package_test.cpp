// Packages cut short or with a flipped byte, each a whole launcher run:
// the launcher must never crash (the sanitizer build runs the same rows)
// and must leave the user the copy they had, or on a first installation
// report that there is none to go back to.
#include <algorithm>
#include <string>
#include <sys/stat.h>
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

} // namespace
