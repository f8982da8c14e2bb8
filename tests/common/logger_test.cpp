#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <sys/resource.h>

#include <gtest/gtest.h>

#include "log.h"
#include "test_rows.h"
#include "test_support.h"

namespace ts = testsupport;

namespace {

const size_t kLimit = 1048576;
// "%b %d %H:%M:%S " in the C locale: "Nov 03 09:05:17 ".
const size_t kStampLength = 16;

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override { std::setlocale(LC_ALL, "C"); }
    void TearDown() override { Logger::Destroy(); }

    std::string Rotated(size_t i) const { return log_ + "_" + std::to_string(i); }
    void InitFile(int rotate_cnt)
    {
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, "", rotate_cnt)) << log_;
    }

    ts::TempDir dir_;
    const std::string log_ = dir_ / "launcher.log";
};

// Each row logs under its own name as the component: thresholds outlive
// Destroy.
struct ThresholdRow {
    const char* name;
    const char* level_file; // nullptr: no level file at all
    int highest;            // the highest level written
};

class LoggerThreshold : public LoggerTest, public ::testing::WithParamInterface<ThresholdRow> {};

TEST_P(LoggerThreshold, WritesExactlyTheLevelsUpToTheComponentThreshold)
{
    const ThresholdRow& row = GetParam();
    const std::string levels = dir_ / "launcher.debug";
    ASSERT_TRUE(row.level_file == nullptr || ts::WriteFile(levels, row.level_file)) << levels;
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, levels, 50));
    for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
        Logger::LogMsg(static_cast<Logger::Level>(level), row.name, "[L%d]\n", level);

    const std::string text = ts::ReadFile(log_);
    for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
        EXPECT_EQ(level <= row.highest, text.find("[L" + std::to_string(level) + "]") != std::string::npos)
            << "level " << level << " of " << row.name << ", log holds \"" << text << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Levels, LoggerThreshold,
    ::testing::Values(ThresholdRow{"Unlisted", "", 4}, ThresholdRow{"Seven", "Seven=7\n", 7},
                      ThresholdRow{"Three", "Three=3\n", 3}, ThresholdRow{"NonNumber", "NonNumber=loud\n", 0},
                      ThresholdRow{"SyntaxError", "SyntaxError=7\n[s]\n", 4},
                      ThresholdRow{"NoLevelFile", nullptr, 4},
                      ThresholdRow{"DefaultComponentKeyIsNoFallback", "default_component=7\n", 4}),
    testsupport::RowName());

// The earlier 1,048,500 bytes count; a message that brings the count to
// exactly the limit does not rotate, the next one does.
TEST_F(LoggerTest, RotatesOnFirstMessagePastLimitCountingExistingBytes)
{
    ASSERT_TRUE(ts::WriteFile(log_, std::string(1048500, 'p')));
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "%s\n",
                   std::string(kLimit - 1048500 - kStampLength - 1, 'a').c_str());
    ASSERT_EQ(kLimit, ts::ReadFile(log_).size()) << "rotated at exactly the limit";
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "b\n");
    EXPECT_EQ(kLimit + kStampLength + 2, ts::ReadFile(Rotated(0)).size()) << Rotated(0);
    EXPECT_EQ("", ts::ReadFile(log_)) << log_;
}

// Each write's byte count goes into the sum, a failed one as -1: below a
// file size limit the stamp fits the stream's buffer, the long message not.
TEST_F(LoggerTest, PrintCountsBothWritesAlsoWhenOneFails)
{
    InitFile(50);
    struct rlimit saved;
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &saved)) << strerror(errno);
    const struct rlimit small = {4096, saved.rlim_max};
    void (*const old_handler)(int) = signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &small)) << strerror(errno);
    const int count = Logger::PrintToFilePointer("%s", std::string(1 << 16, 'x').c_str());
    setrlimit(RLIMIT_FSIZE, &saved);
    signal(SIGXFSZ, old_handler);
    EXPECT_EQ(static_cast<int>(kStampLength) - 1, count) << "the stamp's bytes and -1 for the failed message";
}

struct LoadRow {
    const char* name;
    int rotate_cnt;
    int lines;      // per thread
    size_t payload; // bytes after the thread and sequence numbers
    int files;      // kept: the current one and the rotated ones
};

class LoggerLoad : public LoggerTest, public ::testing::WithParamInterface<LoadRow> {};

// Eight threads log through many rotations. What is kept must be `files`
// files, log_0.. each rotated on the first line past the limit, holding
// whole lines: each thread's newest ones without a gap.
TEST_P(LoggerLoad, KeepsEachThreadsNewestLinesWholeAndInOrder)
{
    const LoadRow& row = GetParam();
    const int threads = 8;
    InitFile(row.rotate_cnt);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t, &row] {
            const std::string payload(row.payload, static_cast<char>('a' + t));
            for (int i = 0; i < row.lines; ++i)
                Logger::LogMsg(Logger::LEVEL_ERROR, "load", "[ERROR] load(%d) %d %s\n", t, i,
                               payload.c_str());
        });
    }
    for (std::thread& worker : workers)
        worker.join();

    std::vector<std::string> kept; // oldest first
    for (int i = row.files - 2; i >= -1; --i)
        kept.push_back(i < 0 ? log_ : Rotated(i));
    std::set<std::string> listed;
    for (const auto& entry : std::filesystem::directory_iterator(dir_.path()))
        listed.insert(entry.path());
    EXPECT_EQ(std::set<std::string>(kept.begin(), kept.end()), listed)
        << "the files kept with a rotation count of " << row.rotate_cnt;

    std::vector<int> last(threads, -1);
    for (const std::string& path : kept) {
        const std::string text = ts::ReadFile(path);
        ASSERT_TRUE(path == log_ || (text.size() > kLimit && text.size() <= kLimit + 40 + row.payload))
            << path << " holds " << text.size() << " bytes, not the first line past the limit";
        for (const std::string& line : ts::Lines(text)) {
            int t = -1, i = -1, at = 0;
            std::sscanf(line.c_str() + std::min(line.size(), kStampLength), "[ERROR] load(%d) %d %n", &t, &i,
                        &at);
            ASSERT_TRUE(t >= 0 && t < threads && at > 0 &&
                        line.substr(kStampLength + at) ==
                            std::string(row.payload, static_cast<char>('a' + t)))
                << path << ": torn or mixed line \"" << line.substr(0, 200) << "\"";
            ASSERT_TRUE(last[t] < 0 || i == last[t] + 1)
                << path << ": thread " << t << " line " << i << " follows line " << last[t];
            last[t] = i;
        }
    }
    for (int t = 0; t < threads; ++t)
        EXPECT_TRUE(last[t] < 0 || last[t] == row.lines - 1)
            << "thread " << t << ": the kept lines end early";
}

// Some ten rotations each; the launcher's count, which keeps launcher.log_0
// to launcher.log_48, over fifty. The long lines take stdio more than one
// write() apiece.
INSTANTIATE_TEST_SUITE_P(Rotations, LoggerLoad,
                         ::testing::Values(LoadRow{"TwoFilesShortLines", 2, 10000, 100, 2},
                                           LoadRow{"ThreeFilesLongLines", 3, 300, 5000, 3},
                                           LoadRow{"Launcher", Logger::kDefaultRotateCount, 7000, 1000, 50}),
                         testsupport::RowName());

} // namespace
