#include <algorithm>
#include <cctype>
#include <clocale>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <set>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "log.h"
#include "scratch_dir.h"

namespace {

const long long kRotateSize = 1048576;
// "%b %d %H:%M:%S " in the C locale: "Nov 03 09:05:17 ".
const long long kStampLength = 16;

const char* const kChildFlag = "--log-child";
const char* const kBigMarker = "[ERROR] logger_test: big message\n";

// Whether text is one timestamp ("Nov 03 09:05:17 ") followed by message.
::testing::AssertionResult IsStampedLine(const std::string& text, const std::string& message)
{
    const char* const shape = "Aaa 00 00:00:00 ";
    bool stamped = text.size() >= static_cast<size_t>(kStampLength);
    for (size_t i = 0; stamped && i < static_cast<size_t>(kStampLength); ++i) {
        unsigned char c = static_cast<unsigned char>(text[i]);
        switch (shape[i]) {
        case 'A':
            stamped = std::isupper(c);
            break;
        case 'a':
            stamped = std::islower(c);
            break;
        case '0':
            stamped = std::isdigit(c);
            break;
        default:
            stamped = c == static_cast<unsigned char>(shape[i]);
        }
    }
    if (stamped && text.compare(kStampLength, std::string::npos, message) == 0) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "\"" << text.substr(0, 300) << "\" is not a timestamp followed by \"" << message << "\"";
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

// Runs body in a forked child with standard output and error sent to
// out_path and err_path; returns the child's exit status.
int RunInChild(const std::string& out_path, const std::string& err_path, const std::function<int()>& body)
{
    pid_t pid = fork();
    if (pid < 0) {
        ADD_FAILURE() << "fork: " << std::strerror(errno);
        return -1;
    }
    if (pid == 0) {
        int out = open(out_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        int err = open(err_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (out < 0 || err < 0 || dup2(out, 1) < 0 || dup2(err, 2) < 0) {
            _exit(120);
        }
        int status = body();
        std::fflush(nullptr);
        _exit(status);
    }
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) {
        ADD_FAILURE() << "waitpid " << pid << ": " << std::strerror(errno);
        return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// The re-executed test binary: a process in which the logger still has its
// initial state. Mode "initial" logs without Initialize; mode "failed-init"
// first fails to initialise the file sink with the given path.
int ChildMain(int argc, char** argv)
{
    std::setlocale(LC_ALL, "C");
    std::string mode = argc > 2 ? argv[2] : "";
    if (mode == "failed-init") {
        if (Logger::Initialize(Logger::TYPE_FILE, argc > 3 ? argv[3] : "", "", 50) != -1) {
            return 3;
        }
    } else if (mode != "initial") {
        return 2;
    }
    // Without a log path there is nothing to reopen; the stream must stay.
    Logger::ReloadLogFile();
    Logger::LogMsg(Logger::LEVEL_WARNING, "any_debug", "[WARNING] child(%d): probe warning\n", 1);
    Logger::LogMsg(Logger::LEVEL_NOTE, "any_debug", "[NOTE] child(%d): probe note\n", 2);
    Logger::LogMsg(Logger::LEVEL_ERROR, "any_debug", "%s%s", std::string(kRotateSize, 'x').c_str(),
                   kBigMarker);
    Logger::LogMsg(Logger::LEVEL_ERROR, "any_debug", "[ERROR] child(%d): probe after\n", 3);
    return 0;
}

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::setlocale(LC_ALL, "C");
        Logger::Destroy();
    }
    void TearDown() override { Logger::Destroy(); }

    std::string Rotated(int i) const { return log_ + "_" + std::to_string(i); }
    // Initialises the file sink with an optional level file.
    void InitFile(int rotate_cnt, const std::string& levels = std::string(), bool with_levels = false)
    {
        std::string level_file;
        if (with_levels) {
            level_file = dir_.File("launcher.debug");
            ASSERT_TRUE(WriteFile(level_file, levels));
        }
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, level_file, rotate_cnt)) << log_;
    }

    ScratchDir dir_;
    std::string log_ = dir_.File("launcher.log");
};

TEST_F(LoggerTest, AppendsTimestampedLineToExistingFile)
{
    ASSERT_TRUE(WriteFile(log_, "old\n"));
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "file_op_debug", "[ERROR] file-op(%d): failed: '%s'\n", 42, "/x");

    std::string text = ReadFile(log_);
    ASSERT_EQ("old\n", text.substr(0, 4)) << log_;
    EXPECT_TRUE(IsStampedLine(text.substr(4), "[ERROR] file-op(42): failed: '/x'\n")) << log_;
}

struct ThresholdRow {
    const char* name;
    const char* level_file; // nullptr: no level file at all
    const char* component;
    Logger::Level level;
    bool written;
};

class LoggerThreshold : public LoggerTest, public ::testing::WithParamInterface<ThresholdRow> {};

// Component names differ between rows: thresholds outlive Destroy, and the
// rows may share one process.
TEST_P(LoggerThreshold, WritesOnlyLevelsUpToComponentThreshold)
{
    const ThresholdRow& row = GetParam();
    if (row.level_file != nullptr) {
        InitFile(50, row.level_file, true);
    } else {
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_, dir_.File("missing.debug"), 50));
    }
    Logger::LogMsg(row.level, row.component, "[L%d] probe\n", static_cast<int>(row.level));

    std::string text = ReadFile(log_);
    EXPECT_EQ(row.written, text.find("probe") != std::string::npos)
        << "component " << row.component << " level " << row.level << ", log holds \"" << text << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Levels, LoggerThreshold,
    ::testing::Values(
        ThresholdRow{"UnlistedWritesError", "", "t_unlisted_e", Logger::LEVEL_ERROR, true},
        ThresholdRow{"UnlistedWritesWarning", "", "t_unlisted_w", Logger::LEVEL_WARNING, true},
        ThresholdRow{"UnlistedDropsNote", "", "t_unlisted_n", Logger::LEVEL_NOTE, false},
        ThresholdRow{"ListedAtSevenWritesDebug", "t_seven=7\n", "t_seven", Logger::LEVEL_DEBUG, true},
        ThresholdRow{"OtherComponentStaysAtFour", "t_seven_b=7\n", "t_other_b", Logger::LEVEL_NOTE, false},
        ThresholdRow{"ListedAtThreeDropsWarning", "t_three=3\n", "t_three", Logger::LEVEL_WARNING, false},
        ThresholdRow{"NonNumberSilences", "t_text=loud\n", "t_text", Logger::LEVEL_ERROR, false},
        ThresholdRow{"NameIsCaseSensitive", "t_case=7\n", "T_CASE", Logger::LEVEL_NOTE, false},
        ThresholdRow{"SyntaxErrorIgnoresGoodLines", "t_syn=7\n[section]\n", "t_syn", Logger::LEVEL_NOTE,
                     false},
        ThresholdRow{"SyntaxErrorStillWritesWarning", "t_syn_w=7\nbad\n", "t_syn_w", Logger::LEVEL_WARNING,
                     true},
        ThresholdRow{"MissingLevelFileKeepsFour", nullptr, "t_missing", Logger::LEVEL_NOTE, false},
        ThresholdRow{"DefaultComponentKeyAppliesToItsName", "default_component=7\n", "default_component",
                     Logger::LEVEL_DEBUG, true},
        ThresholdRow{"DefaultComponentKeyIsNoFallback", "default_component=7\n", "t_fallback",
                     Logger::LEVEL_NOTE, false}),
    [](const ::testing::TestParamInfo<ThresholdRow>& info) { return std::string(info.param.name); });

TEST_F(LoggerTest, CEntryPointFiltersLikeLogMsg)
{
    InitFile(50, "t_c_seven=7\n", true);
    LogC(Logger::LEVEL_DEBUG, "t_c_seven", "[DEBUG] c(%d): admitted\n", 1);
    LogC(Logger::LEVEL_DEBUG, "t_c_other", "[DEBUG] c(%d): filtered\n", 2);

    std::string text = ReadFile(log_);
    EXPECT_NE(std::string::npos, text.find("admitted")) << text;
    EXPECT_EQ(std::string::npos, text.find("filtered")) << text;
}

// The earlier 1,048,500 bytes count; a message that brings the count to
// exactly 1,048,576 does not rotate, the next one does, and the count of the
// fresh file starts again at 0.
TEST_F(LoggerTest, RotatesOnFirstMessagePastLimitCountingExistingBytes)
{
    ASSERT_TRUE(WriteFile(log_, std::string(1048500, 'p')));
    InitFile(50);

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "%s\n",
                   std::string(kRotateSize - 1048500 - kStampLength - 1, 'a').c_str());
    ASSERT_EQ(kRotateSize, FileSize(log_)) << log_;
    ASSERT_FALSE(Exists(Rotated(0))) << "rotated at exactly the limit";

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "b\n");
    EXPECT_EQ(kRotateSize + kStampLength + 2, FileSize(Rotated(0))) << Rotated(0);
    EXPECT_EQ(0, FileSize(log_)) << log_;

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "%s\n",
                   std::string(kRotateSize - kStampLength - 1, 'c').c_str());
    ASSERT_EQ(kRotateSize, FileSize(log_)) << "the fresh file's count did not start at 0";
    ASSERT_FALSE(Exists(Rotated(1)));

    Logger::LogMsg(Logger::LEVEL_ERROR, "rot", "d\n");
    EXPECT_EQ(kRotateSize + kStampLength + 2, FileSize(Rotated(0))) << Rotated(0);
    EXPECT_EQ(kRotateSize + kStampLength + 2, FileSize(Rotated(1))) << Rotated(1);
    EXPECT_EQ(0, FileSize(log_)) << log_;
}

struct RotationRow {
    const char* name;
    int rotate_cnt;
    int rotations;
    int kept; // rotated files left: log_0 .. log_(kept-1)
};

class LoggerRotation : public LoggerTest, public ::testing::WithParamInterface<RotationRow> {};

TEST_P(LoggerRotation, KeepsNewestNMinusOneFiles)
{
    const RotationRow& row = GetParam();
    InitFile(row.rotate_cnt);
    for (int i = 0; i < row.rotations; ++i) {
        LogBig("rot_names", i);
    }

    EXPECT_EQ(0, FileSize(log_)) << log_;
    for (int i = 0; i < row.kept; ++i) {
        std::string expected = "logger_test(" + std::to_string(row.rotations - 1 - i) + ")";
        EXPECT_NE(std::string::npos, ReadFile(Rotated(i)).find(expected))
            << Rotated(i) << " lacks " << expected;
    }
    EXPECT_FALSE(Exists(Rotated(row.kept))) << Rotated(row.kept);
}

INSTANTIATE_TEST_SUITE_P(Counts, LoggerRotation,
                         ::testing::Values(RotationRow{"One", 1, 3, 1}, RotationRow{"Two", 2, 3, 1},
                                           RotationRow{"Three", 3, 5, 2}, RotationRow{"Five", 5, 6, 4}),
                         [](const ::testing::TestParamInfo<RotationRow>& info) {
                             return std::string(info.param.name);
                         });

TEST_F(LoggerTest, RotationWithFullSetDropsOldestAndShiftsTheRest)
{
    for (int i = 0; i <= 48; ++i) {
        ASSERT_TRUE(WriteFile(Rotated(i), "old " + std::to_string(i) + "\n"));
    }
    InitFile(50);
    LogBig("rot_full", 7);

    EXPECT_NE(std::string::npos, ReadFile(Rotated(0)).find("logger_test(7)")) << Rotated(0);
    for (int i = 0; i <= 47; ++i) {
        EXPECT_EQ("old " + std::to_string(i) + "\n", ReadFile(Rotated(i + 1))) << Rotated(i + 1);
    }
    EXPECT_FALSE(Exists(Rotated(49))) << Rotated(49);
}

// A non-empty folder named log_0 can be neither removed nor replaced by the
// log file, for root too: the rotation fails and the logger goes quiet.
TEST_F(LoggerTest, FailedRotationSilencesLogger)
{
    ASSERT_EQ(0, mkdir(Rotated(0).c_str(), 0700)) << Rotated(0) << ": " << std::strerror(errno);
    ASSERT_TRUE(WriteFile(Rotated(0) + "/keep", "k"));
    InitFile(1);

    LogBig("rot_fail", 1);
    long long size = FileSize(log_);
    ASSERT_GT(size, kRotateSize) << log_;
    Logger::LogMsg(Logger::LEVEL_ERROR, "rot_fail", "[ERROR] logger_test(%d): after\n", 2);
    LogBig("rot_fail", 3);

    EXPECT_EQ(size, FileSize(log_)) << "messages reached " << log_ << " after the failed rotation";
    EXPECT_EQ("k", ReadFile(Rotated(0) + "/keep"));
}

// Eight threads, each doing a little work between messages so that they
// reach the logger at scattered moments instead of queueing on it; enough
// lines to rotate four times. Every line in every file must be whole, and
// each line must be there exactly once, also those logged during a rotation.
TEST_F(LoggerTest, ThreadsWriteWholeLines)
{
    const int threads = 8;
    const int lines = 6000;
    InitFile(50);
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([t] {
            std::string payload(60, static_cast<char>('a' + t));
            for (int i = 0; i < lines; ++i) {
                volatile unsigned spin = 0;
                for (int k = 0; k < 200; ++k) {
                    spin = spin + k;
                }
                Logger::LogMsg(Logger::LEVEL_ERROR, "threads", "[ERROR] t(%d) %d %s\n", t, i,
                               payload.c_str());
            }
        });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    ASSERT_TRUE(Exists(Rotated(3))) << "expected four rotations";

    std::set<std::pair<int, int>> seen;
    for (const std::string& path : {Rotated(4), Rotated(3), Rotated(2), Rotated(1), Rotated(0), log_}) {
        std::istringstream text(ReadFile(path));
        std::string current;
        while (std::getline(text, current)) {
            int t = -1;
            int i = -1;
            std::string message = current.substr(std::min<size_t>(current.size(), kStampLength));
            ASSERT_EQ(2, std::sscanf(message.c_str(), "[ERROR] t(%d) %d", &t, &i))
                << path << ": torn line \"" << current << "\"";
            std::string expected = "[ERROR] t(" + std::to_string(t) + ") " + std::to_string(i) + " " +
                                   std::string(60, static_cast<char>('a' + t));
            ASSERT_TRUE(IsStampedLine(current, expected)) << path << ": torn or mixed line";
            EXPECT_TRUE(seen.emplace(t, i).second) << path << ": twice \"" << current << "\"";
        }
    }
    for (int t = 0; t < threads; ++t) {
        for (int i = 0; i < lines; ++i) {
            ASSERT_EQ(1u, seen.count({t, i})) << "line " << i << " of thread " << t << " was lost";
        }
    }
}

TEST_F(LoggerTest, DestroyDropsMessagesUntilNextInitialize)
{
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): before\n", 1);
    Logger::Destroy();
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): dropped\n", 2);
    LogC(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): dropped too\n", 3);
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "destroy", "[ERROR] d(%d): again\n", 4);

    std::string text = ReadFile(log_);
    EXPECT_NE(std::string::npos, text.find("before")) << text;
    EXPECT_EQ(std::string::npos, text.find("dropped")) << text;
    EXPECT_NE(std::string::npos, text.find("again")) << text;
}

TEST_F(LoggerTest, StatFailureIsLoggedAndCountsAsZero)
{
    InitFile(50);
    std::string missing = dir_.File("missing");
    EXPECT_EQ(0, Logger::GetFileSize(missing));

    std::string text = ReadFile(log_);
    EXPECT_TRUE(IsStampedLine(text, "stat(" + missing + "): No such file or directory (2)\n")) << log_;
    EXPECT_EQ(FileSize(log_), Logger::GetFileSize(log_));
}

TEST_F(LoggerTest, ReloadLogFileReopensMovedLog)
{
    InitFile(50);
    Logger::LogMsg(Logger::LEVEL_ERROR, "reload", "[ERROR] r(%d): first\n", 1);
    ASSERT_EQ(0, rename(log_.c_str(), Rotated(0).c_str())) << log_ << ": " << std::strerror(errno);
    Logger::ReloadLogFile();
    Logger::LogMsg(Logger::LEVEL_ERROR, "reload", "[ERROR] r(%d): second\n", 2);

    std::string text = ReadFile(log_);
    EXPECT_EQ(std::string::npos, text.find("first")) << text;
    EXPECT_NE(std::string::npos, text.find("second")) << log_ << " holds \"" << text << "\"";
}

struct StreamRow {
    const char* name;
    Logger::Type type;
    bool to_stdout;
};

class LoggerStream : public LoggerTest, public ::testing::WithParamInterface<StreamRow> {};

TEST_P(LoggerStream, WritesAdmittedLinesToChosenStreamUntilDestroy)
{
    const StreamRow& row = GetParam();
    std::string out = dir_.File("out");
    std::string err = dir_.File("err");
    int status = RunInChild(out, err, [&row] {
        if (Logger::Initialize(row.type, "", "", 50) != 0) {
            return 3;
        }
        Logger::LogMsg(Logger::LEVEL_WARNING, "stream", "[WARNING] s(%d): shown\n", 1);
        Logger::LogMsg(Logger::LEVEL_NOTE, "stream", "[NOTE] s(%d): hidden\n", 2);
        Logger::Destroy();
        Logger::LogMsg(Logger::LEVEL_ERROR, "stream", "[ERROR] s(%d): destroyed\n", 3);
        return 0;
    });
    ASSERT_EQ(0, status) << "child failed";

    std::string chosen = ReadFile(row.to_stdout ? out : err);
    std::string other = ReadFile(row.to_stdout ? err : out);
    EXPECT_TRUE(IsStampedLine(chosen, "[WARNING] s(1): shown\n")) << "on the chosen stream";
    EXPECT_EQ("", other);
}

INSTANTIATE_TEST_SUITE_P(Types, LoggerStream,
                         ::testing::Values(StreamRow{"Stdout", Logger::TYPE_STDOUT, true},
                                           StreamRow{"Stderr", Logger::TYPE_STDERR, false}),
                         [](const ::testing::TestParamInfo<StreamRow>& info) {
                             return std::string(info.param.name);
                         });

struct FreshProcessRow {
    const char* name;
    const char* mode;
    const char* log_name; // below the scratch folder; nullptr for an empty path
};

class LoggerFreshProcess : public LoggerTest, public ::testing::WithParamInterface<FreshProcessRow> {};

// Before any Initialize, and after a failed first Initialize of the file
// sink, lines up to WARNING go to standard error with their timestamp, and a
// message past the rotation size neither rotates nor silences the logger.
TEST_P(LoggerFreshProcess, LogsToStandardError)
{
    const FreshProcessRow& row = GetParam();
    std::string log_path = row.log_name != nullptr ? dir_.File(row.log_name) : std::string();
    std::string out = dir_.File("out");
    std::string err = dir_.File("err");
    std::string cwd = dir_.path();
    int status = RunInChild(out, err, [&] {
        if (chdir(cwd.c_str()) != 0) {
            return 4;
        }
        execl("/proc/self/exe", "logger_test", kChildFlag, row.mode, log_path.c_str(),
              static_cast<char*>(nullptr));
        return 127;
    });
    ASSERT_EQ(0, status) << "child failed, stderr: " << ReadFile(err).substr(0, 2000);

    std::string text = ReadFile(err);
    std::string first_line = text.substr(0, text.find('\n') + 1);
    EXPECT_TRUE(IsStampedLine(first_line, "[WARNING] child(1): probe warning\n")) << "first line on stderr";
    EXPECT_EQ(std::string::npos, text.find("probe note"));
    EXPECT_NE(std::string::npos, text.find(kBigMarker));
    EXPECT_NE(std::string::npos, text.find("probe after")) << "logger went quiet after the big message";
    EXPECT_EQ("", ReadFile(out));
    EXPECT_FALSE(Exists(dir_.File("_0")));
}

INSTANTIATE_TEST_SUITE_P(
    States, LoggerFreshProcess,
    ::testing::Values(FreshProcessRow{"NeverInitialized", "initial", nullptr},
                      FreshProcessRow{"FileSinkWithEmptyPath", "failed-init", nullptr},
                      FreshProcessRow{"FileSinkInMissingFolder", "failed-init", "missing/launcher.log"}),
    [](const ::testing::TestParamInfo<FreshProcessRow>& info) { return std::string(info.param.name); });

TEST_F(LoggerTest, FailedReinitializeKeepsEarlierFile)
{
    InitFile(50);
    EXPECT_EQ(-1, Logger::Initialize(Logger::TYPE_FILE, dir_.File("missing/other.log"), "", 50));
    Logger::LogMsg(Logger::LEVEL_ERROR, "reinit", "[ERROR] i(%d): still here\n", 1);

    EXPECT_NE(std::string::npos, ReadFile(log_).find("still here")) << log_;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], kChildFlag) == 0) {
        return ChildMain(argc, argv);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
