#include <algorithm>
#include <atomic>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "log.h"
#include "test_support.h"

namespace ts = testsupport;

namespace {

// Names each row of a table after its `name` field.
const auto RowName = [](const auto& info) { return std::string(info.param.name); };

const long long kRotateSize = 1048576;
// "%b %d %H:%M:%S " in the C locale: "Nov 03 09:05:17 ".
const size_t kStampLength = 16;

const char* const kChildFlag = "--log-child";
const char* const kBigMarker = "[ERROR] logger_test: big message\n";

::testing::AssertionResult IsStampedLine(const std::string& text, const std::string& message)
{
    struct tm stamp = {};
    const char* end = ::strptime(text.c_str(), "%b %d %H:%M:%S ", &stamp);
    if (end == text.c_str() + kStampLength && text.compare(kStampLength, std::string::npos, message) == 0)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "\"" << text.substr(0, 300) << "\" is not a timestamp followed by \"" << message.substr(0, 300)
           << "\"";
}

void LogC(int level, const char* component, const char* fmt, ...)
{
    va_list ap;
    va_start(ap, fmt);
    std::string name(component);
    LogMSG_c(level, &name[0], fmt, ap);
    va_end(ap);
}

// One message that alone takes the log past the rotation size.
void LogBig(const ustring& component, int tag)
{
    Logger::LogMsg(Logger::LEVEL_ERROR, component, "[ERROR] logger_test(%d): %s\n", tag,
                   std::string(kRotateSize, 'x').c_str());
}

// Size in bytes, -1 when the file is missing.
long long FileSize(const std::string& path)
{
    return ts::Exists(path) ? static_cast<long long>(ts::ReadFile(path).size()) : -1;
}

// The re-executed test binary, in the folder `dir`: a process whose logger
// is in its initial state, or ("FailedInit") after a failed first Initialize
// of the file sink.
int ChildMain(const std::string& mode, const std::string& dir)
{
    std::setlocale(LC_ALL, "C");
    if (chdir(dir.c_str()) != 0 ||
        (mode == "FailedInit" && Logger::Initialize(Logger::TYPE_FILE, "", "", 50) != -1))
        return 3;
    Logger::LogMsg(Logger::LEVEL_WARNING, "any_debug", "[WARNING] child(%d): probe warning\n", 1);
    Logger::LogMsg(Logger::LEVEL_NOTE, "any_debug", "[NOTE] child(%d): probe note\n", 2);
    Logger::LogMsg(Logger::LEVEL_ERROR, "any_debug", "%s%s", std::string(kRotateSize, 'x').c_str(),
                   kBigMarker);
    Logger::LogMsg(Logger::LEVEL_ERROR, "any_debug", "[ERROR] child(%d): probe after\n", 3);
    Logger::Destroy(); // standard error stays open: only the flag drops messages now
    Logger::LogMsg(Logger::LEVEL_ERROR, "any_debug", "[ERROR] child(%d): destroyed\n", 4);
    return 0;
}

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override { std::setlocale(LC_ALL, "C"); }
    void TearDown() override { Logger::Destroy(); }

    std::string Rotated(int i) const { return log_ + "_" + std::to_string(i); }
    void InitFile(int rotate_cnt)
    {
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, "", rotate_cnt)) << log_;
    }

    ts::TempDir dir_;
    const std::string log_ = dir_ / "launcher.log";
};

struct ThresholdRow {
    const char* name;
    const char *level_file, *component; // level_file nullptr: no level file at all
    int highest;                        // the highest level written
};

class LoggerThreshold : public LoggerTest, public ::testing::WithParamInterface<ThresholdRow> {};

// Component names differ between rows: thresholds outlive Destroy, and the
// rows may share one process. DEBUG goes through the C entry point.
TEST_P(LoggerThreshold, WritesExactlyTheLevelsUpToTheComponentThreshold)
{
    const ThresholdRow& row = GetParam();
    const std::string levels = dir_ / "launcher.debug";
    ASSERT_TRUE(row.level_file == nullptr || ts::WriteFile(levels, row.level_file)) << levels;
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, levels, 50));
    for (int level = Logger::LEVEL_ERROR; level < Logger::LEVEL_DEBUG; ++level)
        Logger::LogMsg(static_cast<Logger::Level>(level), row.component, "[L%d]\n", level);
    LogC(Logger::LEVEL_DEBUG, row.component, "[L%d]\n", Logger::LEVEL_DEBUG);

    const std::string text = ts::ReadFile(log_);
    for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
        EXPECT_EQ(level <= row.highest, text.find("[L" + std::to_string(level) + "]") != std::string::npos)
            << "level " << level << " of " << row.component << ", log holds \"" << text << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Levels, LoggerThreshold,
    ::testing::Values(
        ThresholdRow{"UnlistedComponentAtFour", "", "t_unlisted", 4},
        ThresholdRow{"ListedAtSeven", "t_seven=7\n", "t_seven", 7},
        ThresholdRow{"OtherComponentStaysAtFour", "t_seven_b=7\n", "t_other_b", 4},
        ThresholdRow{"ListedAtThree", "t_three=3\n", "t_three", 3},
        ThresholdRow{"NonNumberSilences", "t_text=loud\n", "t_text", 0},
        ThresholdRow{"SyntaxErrorIgnoresGoodLines", "t_syn=7\n[section]\n", "t_syn", 4},
        ThresholdRow{"MissingLevelFileKeepsFour", nullptr, "t_missing", 4},
        ThresholdRow{"DefaultComponentKeyAppliesToItsName", "default_component=7\n", "default_component", 7},
        ThresholdRow{"DefaultComponentKeyIsNoFallback", "default_component=7\n", "t_fallback", 4}),
    RowName);

// The earlier 1,048,500 bytes count; a message that brings the count to
// exactly 1,048,576 does not rotate, the next one does, and the count of the
// fresh file starts again at 0.
TEST_F(LoggerTest, RotatesOnFirstMessagePastLimitCountingExistingBytes)
{
    ASSERT_TRUE(ts::WriteFile(log_, std::string(1048500, 'p')));
    InitFile(50);
    const long long rotated = kRotateSize + kStampLength + 2;

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "%s\n",
                   std::string(kRotateSize - 1048500 - kStampLength - 1, 'a').c_str());
    ASSERT_EQ(kRotateSize, FileSize(log_)) << log_;
    ASSERT_FALSE(ts::Exists(Rotated(0))) << "rotated at exactly the limit";
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "b\n");
    EXPECT_EQ(rotated, FileSize(Rotated(0))) << Rotated(0);
    EXPECT_EQ(0, FileSize(log_)) << log_;

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "%s\n",
                   std::string(kRotateSize - kStampLength - 1, 'c').c_str());
    ASSERT_EQ(kRotateSize, FileSize(log_)) << "the fresh file's count did not start at 0";
    ASSERT_FALSE(ts::Exists(Rotated(1)));
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "d\n");
    EXPECT_EQ(rotated, FileSize(Rotated(0))) << Rotated(0);
    EXPECT_EQ(rotated, FileSize(Rotated(1))) << Rotated(1);
    EXPECT_EQ(0, FileSize(log_)) << log_;
}

// With `prefilled` rotated files log_0.. present before and `rotations`
// rotations, `kept` rotated files log_0.. remain.
struct RotationRow {
    const char* name;
    int rotate_cnt, prefilled, rotations, kept;
};

class LoggerRotation : public LoggerTest, public ::testing::WithParamInterface<RotationRow> {};

// The newest files hold the messages of the last rotations, newest first;
// after them come the prefilled files, shifted.
TEST_P(LoggerRotation, KeepsTheNewestFilesAndDropsTheOldest)
{
    const RotationRow& row = GetParam();
    for (int i = 0; i < row.prefilled; ++i)
        ASSERT_TRUE(ts::WriteFile(Rotated(i), "old " + std::to_string(i) + "\n"));
    InitFile(row.rotate_cnt);
    for (int i = 0; i < row.rotations; ++i)
        LogBig("rot_names", i);

    EXPECT_EQ(0, FileSize(log_)) << log_;
    for (int i = 0; i < row.kept; ++i) {
        const std::string text = ts::ReadFile(Rotated(i));
        if (i < row.rotations) {
            const std::string expected = "logger_test(" + std::to_string(row.rotations - 1 - i) + ")";
            EXPECT_NE(std::string::npos, text.find(expected)) << Rotated(i) << " lacks " << expected;
        } else {
            EXPECT_EQ("old " + std::to_string(i - row.rotations) + "\n", text) << Rotated(i);
        }
    }
    EXPECT_FALSE(ts::Exists(Rotated(row.kept))) << Rotated(row.kept);
}

INSTANTIATE_TEST_SUITE_P(Counts, LoggerRotation,
                         ::testing::Values(RotationRow{"One", 1, 0, 3, 1}, RotationRow{"Two", 2, 0, 3, 1},
                                           RotationRow{"Five", 5, 0, 6, 4},
                                           RotationRow{"FullSetOfFifty", 50, 49, 1, 49}),
                         RowName);

// A non-empty folder named log_0 can be neither removed nor replaced by the
// log file, for root too: the rotation fails and the logger goes quiet.
TEST_F(LoggerTest, FailedRotationSilencesLogger)
{
    ASSERT_TRUE(ts::MakeDirs(Rotated(0)) && ts::WriteFile(Rotated(0) + "/keep", "k")) << Rotated(0);
    InitFile(1);

    LogBig("rot_fail", 1);
    const long long size = FileSize(log_);
    ASSERT_GT(size, kRotateSize) << log_;
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot_fail", "[ERROR] logger_test(%d): after\n", 2);
    LogBig("rot_fail", 3);

    EXPECT_EQ(size, FileSize(log_)) << "messages reached " << log_ << " after the failed rotation";
    EXPECT_EQ("k", ts::ReadFile(Rotated(0) + "/keep"));
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
    EXPECT_EQ(static_cast<int>(kStampLength) - 1, count);
}

// Eight threads, each doing a little work between messages so that they
// reach the logger at scattered moments; enough lines to rotate four times.
// Every line must be whole and there exactly once, also those logged
// during a rotation.
TEST_F(LoggerTest, ThreadsWriteWholeLines)
{
    const int threads = 8, lines = 6000;
    InitFile(50);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t] {
            const std::string payload(60, static_cast<char>('a' + t));
            for (int i = 0; i < lines; ++i) {
                for (volatile int k = 0; k < 200; k = k + 1) {
                }
                Logger::LogMsg(Logger::LEVEL_ERROR, "threads", "[ERROR] t(%d) %d %s\n", t, i,
                               payload.c_str());
            }
        });
    }
    for (std::thread& worker : workers)
        worker.join();
    ASSERT_TRUE(ts::Exists(Rotated(3))) << "expected four rotations";

    std::set<std::pair<int, int>> seen;
    for (const std::string& path : {Rotated(4), Rotated(3), Rotated(2), Rotated(1), Rotated(0), log_}) {
        for (const std::string& line : ts::Lines(ts::ReadFile(path))) {
            int t = -1, i = -1;
            std::sscanf(line.c_str() + std::min(line.size(), kStampLength), "[ERROR] t(%d) %d", &t, &i);
            const std::string expected = "[ERROR] t(" + std::to_string(t) + ") " + std::to_string(i) + " " +
                                         std::string(60, static_cast<char>('a' + t));
            ASSERT_TRUE(IsStampedLine(line, expected)) << path << ": torn or mixed line";
            EXPECT_TRUE(seen.emplace(t, i).second) << path << ": twice \"" << line << "\"";
        }
    }
    EXPECT_EQ(static_cast<size_t>(threads * lines), seen.size()) << "lines were lost";
}

struct LoadRow {
    const char* name;
    int rotate_cnt; // the files kept: the current one and rotate_cnt - 1 rotated ones
    int lines;      // per thread
    size_t payload; // bytes after the thread and sequence numbers
};

class LoggerLoad : public LoggerTest, public ::testing::WithParamInterface<LoadRow> {};

// Eight threads log through dozens of rotations while a ninth lists the
// folder. What is kept must be whole lines, each thread's newest ones
// without a gap, in files that each rotated on the first line past the
// limit, and the folder never holds more files than the count allows.
TEST_P(LoggerLoad, KeepsEachThreadsNewestLinesWholeAndInOrder)
{
    const LoadRow& row = GetParam();
    const int threads = 8;
    InitFile(row.rotate_cnt);
    std::vector<std::string> kept; // oldest first
    for (int i = row.rotate_cnt - 2; i >= 0; --i)
        kept.push_back(Rotated(i));
    kept.push_back(log_);
    // Inside a rotation the oldest file passes through the next name.
    const std::string passing = Rotated(row.rotate_cnt - 1);

    std::atomic<bool> done{false};
    size_t most_files = 0;
    std::string stranger;
    // One getdents64() call is one listing that no rename in the folder can
    // split: the kernel holds the folder's lock for it. readdir() may make
    // several calls and see a renamed file under both names.
    std::thread sampler([&] {
        alignas(struct dirent64) char buffer[16384];
        while (!done) {
            const int fd = open(dir_.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
            const ssize_t n = fd < 0 ? -1 : getdents64(fd, buffer, sizeof buffer);
            const int error = errno;
            if (fd >= 0)
                close(fd);
            if (n < 0) {
                stranger = dir_.path() + ": " + strerror(error);
                return;
            }
            size_t files = 0;
            for (ssize_t at = 0; at < n;
                 at += reinterpret_cast<const struct dirent64*>(buffer + at)->d_reclen) {
                const char* name = reinterpret_cast<const struct dirent64*>(buffer + at)->d_name;
                if (strcmp(name, ".") == 0 || strcmp(name, "..") == 0)
                    continue;
                ++files;
                if (dir_ / name != passing && std::find(kept.begin(), kept.end(), dir_ / name) == kept.end())
                    stranger = dir_ / name;
            }
            most_files = std::max(most_files, files);
        }
    });
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
    done = true;
    sampler.join();
    EXPECT_LE(most_files, kept.size())
        << "more files than a rotation count of " << row.rotate_cnt << " allows";
    EXPECT_EQ("", stranger) << "a file of a name the logger does not keep";

    const size_t longest = kStampLength + 40 + row.payload;
    std::vector<int> last(threads, -1);
    for (const std::string& path : kept) {
        const long long size = FileSize(path);
        ASSERT_TRUE(path == log_ ||
                    (size > kRotateSize && size <= kRotateSize + static_cast<long long>(longest)))
            << path << " holds " << size << " bytes, not the first line past the rotation size";
        for (const std::string& line : ts::Lines(ts::ReadFile(path))) {
            int t = -1, i = -1;
            std::sscanf(line.c_str() + std::min(line.size(), kStampLength), "[ERROR] load(%d) %d", &t, &i);
            ASSERT_TRUE(t >= 0 && t < threads)
                << path << ": torn or mixed line \"" << line.substr(0, 300) << "\"";
            const std::string expected = "[ERROR] load(" + std::to_string(t) + ") " + std::to_string(i) +
                                         " " + std::string(row.payload, static_cast<char>('a' + t));
            ASSERT_TRUE(IsStampedLine(line, expected)) << path << ": torn or mixed line";
            ASSERT_TRUE(last[t] < 0 || i == last[t] + 1)
                << path << ": thread " << t << " line " << i << " follows line " << last[t];
            last[t] = i;
        }
    }
    for (int t = 0; t < threads; ++t)
        EXPECT_TRUE(last[t] < 0 || last[t] == row.lines - 1)
            << "thread " << t << ": the kept lines end at " << last[t] << " of " << row.lines;
}

// Some 30 MB each: about thirty rotations. The long lines take stdio more
// than one write() apiece.
INSTANTIATE_TEST_SUITE_P(Rotations, LoggerLoad,
                         ::testing::Values(LoadRow{"TwoFilesShortLines", 2, 30000, 100},
                                           LoadRow{"ThreeFilesLongLines", 3, 700, 5000},
                                           LoadRow{"SixFiles", 6, 4000, 900}),
                         RowName);

TEST_F(LoggerTest, DestroyDropsMessagesUntilNextInitialize)
{
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): before\n", 1);
    Logger::Destroy();
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): dropped\n", 2);
    LogC(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): dropped too\n", 3);
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): again\n", 4);

    const std::string text = ts::ReadFile(log_);
    EXPECT_NE(std::string::npos, text.find("before")) << text;
    EXPECT_EQ(std::string::npos, text.find("dropped")) << text;
    EXPECT_NE(std::string::npos, text.find("again")) << text;
}

class LoggerFreshProcess : public LoggerTest, public ::testing::WithParamInterface<const char*> {};

// Before any Initialize, and after a failed first Initialize of the file
// sink, lines up to WARNING go to standard error with their timestamp, a
// message past the rotation size neither rotates nor silences the logger,
// and Destroy silences it.
TEST_P(LoggerFreshProcess, LogsToStandardError)
{
    const ts::ProcessResult child = ts::Run({"/proc/self/exe", kChildFlag, GetParam(), dir_.path()});
    ASSERT_TRUE(child.exited && child.exit_code == 0)
        << "child failed, stderr: " << child.err.substr(0, 2000);

    const std::string& text = child.err;
    EXPECT_TRUE(IsStampedLine(text.substr(0, text.find('\n') + 1), "[WARNING] child(1): probe warning\n"))
        << "first line on stderr";
    EXPECT_EQ(std::string::npos, text.find("probe note"));
    EXPECT_NE(std::string::npos, text.find(kBigMarker));
    EXPECT_NE(std::string::npos, text.find("probe after")) << "logger went quiet after the big message";
    EXPECT_EQ(std::string::npos, text.find("destroyed")) << "a message got through after Destroy";
    EXPECT_EQ("", child.out);
    EXPECT_FALSE(ts::Exists(dir_ / "_0")) << "rotated without a log path";
}

INSTANTIATE_TEST_SUITE_P(States, LoggerFreshProcess, ::testing::Values("NeverInitialized", "FailedInit"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

} // namespace

int main(int argc, char** argv)
{
    if (argc == 4 && std::strcmp(argv[1], kChildFlag) == 0)
        return ChildMain(argv[2], argv[3]);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
