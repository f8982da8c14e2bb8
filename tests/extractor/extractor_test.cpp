#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <QSignalSpy>
#include <gtest/gtest.h>

#include "archive_builder.h"
#include "launcher.h"
#include "log.h"
#include "test_support.h"

using testsupport::Exists;
using testsupport::ReadFile;

namespace {

using Report = std::pair<int, int>;
using Reports = std::vector<Report>;
using Lines = std::vector<std::string>;

const char kPreparingText[] = "Calderix Drive is initializing...";
// "%b %d %H:%M:%S " in the C locale.
constexpr size_t kTimestampLength = 16;

// Names in a folder, without "." and "..", or {"<error>"} when unreadable.
std::vector<std::string> FolderNames(const std::string& path)
{
    std::vector<std::string> names;
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        return {"<" + path + ": " + std::strerror(errno) + ">"};
    }
    while (struct dirent* e = readdir(dir)) {
        if (std::strcmp(e->d_name, ".") != 0 && std::strcmp(e->d_name, "..") != 0) {
            names.push_back(e->d_name);
        }
    }
    closedir(dir);
    return names;
}

bool IsFolder(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool IsRegularFile(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

// "[TAG] extractor(<positive number>): rest" becomes "[TAG] extractor(%d): rest";
// anything else is marked so that it compares unequal.
std::string WithoutSourceLine(const std::string& text)
{
    const std::string module = "] extractor(";
    const size_t open = text.find(module);
    const size_t digits = open == std::string::npos ? open : open + module.size();
    const size_t close = digits == std::string::npos ? digits : text.find(')', digits);
    if (text.empty() || text[0] != '[' || close == std::string::npos || close == digits ||
        text.find_first_not_of("0123456789", digits) != close || std::stoi(text.substr(digits)) <= 0) {
        return "<no source line: " + text + ">";
    }
    return text.substr(0, digits) + "%d" + text.substr(close);
}

// Whether line is prefix, a non-empty reason and the closing quote.
::testing::AssertionResult HasReason(const std::string& line, const std::string& prefix)
{
    if (line.size() > prefix.size() + 1 && line.compare(0, prefix.size(), prefix) == 0 &&
        line.back() == '\'') {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "expected " << prefix << "<reason>', got: " << line;
}

// A handle's error text for a failure message; libarchive may have none.
std::string Reason(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "(no reason given)";
}

// Every case starts from a fresh folder holding the log, its level file,
// the archive and an empty destination; the logger writes debug lines of
// the extractor to that log, and spies record what the relay emits.
class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(testsupport::MakeDirs(dest_)) << dest_ << ": " << std::strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(level_file_, "extractor_debug=7\n"))
            << level_file_ << ": " << std::strerror(errno);
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, log_file_.c_str(), level_file_.c_str(), 50))
            << "logging to " << log_file_;
        ASSERT_TRUE(progress_.isValid());
        ASSERT_TRUE(text_.isValid());
        extractor_.archive_path = archive_.c_str();
        extractor_.dest_dir = dest_.c_str();
    }

    void TearDown() override { Logger::Destroy(); }

    // Log lines without their timestamps, each "extractor(<line>)" turned
    // into "extractor(%d)" so that they compare with the format strings.
    Lines LogLines() const
    {
        Lines lines;
        for (const std::string& raw : testsupport::Lines(ReadFile(log_file_))) {
            lines.push_back(raw.size() < kTimestampLength ? "<short line: " + raw + ">"
                                                          : WithoutSourceLine(raw.substr(kTimestampLength)));
        }
        return lines;
    }

    Reports ProgressReports() const
    {
        Reports reports;
        for (const QList<QVariant>& args : progress_) {
            reports.emplace_back(args.at(0).toInt(), args.at(1).toInt());
        }
        return reports;
    }

    std::vector<std::string> LabelTexts() const
    {
        std::vector<std::string> texts;
        for (const QList<QVariant>& args : text_) {
            texts.push_back(args.at(0).toString().toStdString());
        }
        return texts;
    }

    // Runs copy_data from the archive's first entry to a disk writer that
    // has that entry open at target. Its result, or -2 after a failure
    // message when the handles could not be set up.
    int CopyFirstEntry(const std::string& target)
    {
        archive* in = archive_read_new();
        archive* out = archive_write_disk_new();
        archive_entry* entry = nullptr;
        int result = -2;
        if (in == nullptr || out == nullptr) {
            ADD_FAILURE() << "libarchive handles could not be allocated";
        } else if (archive_read_support_filter_all(in) != ARCHIVE_OK ||
                   archive_read_support_format_all(in) != ARCHIVE_OK ||
                   archive_read_open_filename(in, archive_.c_str(), 10240) != ARCHIVE_OK ||
                   archive_read_next_header(in, &entry) != ARCHIVE_OK) {
            ADD_FAILURE() << archive_ << ": " << Reason(in);
        } else {
            archive_entry_set_pathname(entry, target.c_str());
            if (archive_write_header(out, entry) != ARCHIVE_OK) {
                ADD_FAILURE() << target << ": " << Reason(out);
            } else {
                result = extractor_.copy_data(in, out);
                archive_write_finish_entry(out);
            }
        }
        archive_read_free(in);
        archive_write_free(out);
        return result;
    }

    std::string DecompressLine() const
    {
        return "[DEBUG] extractor(%d): decompress from '" + archive_ + "' to '" + dest_ + "'";
    }

    testsupport::TempDir tmp_{"calderix-extractor"};
    const std::string dest_ = tmp_ / "dest";
    const std::string archive_ = tmp_ / "calderix.vpk";
    const std::string log_file_ = tmp_ / "launcher.log";
    const std::string level_file_ = tmp_ / "launcher.debug";
    Extractor extractor_;
    QSignalSpy progress_{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress};
    QSignalSpy text_{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText};
};

class ExtractorFormatTest : public ExtractorTest, public ::testing::WithParamInterface<ArchiveFormat> {
protected:
    ::testing::AssertionResult Write(const std::vector<ArchiveItem>& items)
    {
        return WriteArchive(archive_, GetParam(), items);
    }
};

std::string FormatRowName(const ::testing::TestParamInfo<ArchiveFormat>& info)
{
    return FormatName(info.param);
}

TEST_P(ExtractorFormatTest, ReportsEveryEntryAfterWritingIt)
{
    ASSERT_TRUE(
        Write({FileItem("one.txt", "first"), FileItem("two.txt", "second"), FileItem("three.txt", "third")}));

    EXPECT_EQ(0, extractor_.Extract());

    EXPECT_EQ((Reports{{3, 1}, {3, 2}, {3, 3}}), ProgressReports());
    EXPECT_EQ((std::vector<std::string>{kPreparingText}), LabelTexts());
    EXPECT_EQ("first", ReadFile(dest_ + "/one.txt"));
    EXPECT_EQ("second", ReadFile(dest_ + "/two.txt"));
    EXPECT_EQ("third", ReadFile(dest_ + "/three.txt"));
    EXPECT_EQ(Lines{DecompressLine()}, LogLines());
}

TEST_P(ExtractorFormatTest, FoldersCountAsEntries)
{
    ASSERT_TRUE(Write({FolderItem("app/"), FolderItem("app/Contents/"), FileItem("app/Contents/INFO", "x"),
                       FolderItem("app/empty/")}));

    EXPECT_EQ(4, extractor_.Count());
    EXPECT_EQ(0, extractor_.Extract());

    EXPECT_EQ((Reports{{4, 1}, {4, 2}, {4, 3}, {4, 4}}), ProgressReports());
    EXPECT_TRUE(IsFolder(dest_ + "/app/Contents")) << dest_ << "/app/Contents";
    EXPECT_TRUE(IsFolder(dest_ + "/app/empty")) << dest_ << "/app/empty";
    EXPECT_EQ("x", ReadFile(dest_ + "/app/Contents/INFO"));
}

TEST_P(ExtractorFormatTest, MissingParentFoldersAreCreated)
{
    ASSERT_TRUE(Write({FileItem("a/b/c/deep.txt", "deep")}));

    EXPECT_EQ(0, extractor_.Extract());

    EXPECT_EQ("deep", ReadFile(dest_ + "/a/b/c/deep.txt"));
    EXPECT_EQ((Reports{{1, 1}}), ProgressReports());
}

TEST_P(ExtractorFormatTest, ArchiveWithoutEntriesFails)
{
    ASSERT_TRUE(Write({}));

    EXPECT_EQ(0, extractor_.Count());
    EXPECT_EQ(-1, extractor_.Extract());

    EXPECT_EQ(
        (Lines{DecompressLine(), "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: 0"}),
        LogLines());
    EXPECT_TRUE(ProgressReports().empty());
    EXPECT_EQ(std::vector<std::string>{}, FolderNames(dest_));
}

// The third entry is large and the archive is cut in the middle of its
// data, so the first two must arrive whole and the third must fail.
TEST_P(ExtractorFormatTest, TruncatedArchiveKeepsEntriesBeforeTheDamage)
{
    const std::string big = NoiseBytes(256 * 1024, 7);
    ASSERT_TRUE(
        Write({FileItem("first.txt", "one"), FileItem("second.txt", "two"), FileItem("third.bin", big)}));
    struct stat st;
    ASSERT_EQ(0, stat(archive_.c_str(), &st)) << archive_ << ": " << std::strerror(errno);
    ASSERT_TRUE(TruncateFile(archive_, st.st_size / 2));

    EXPECT_EQ(-1, extractor_.Extract());

    EXPECT_EQ("one", ReadFile(dest_ + "/first.txt"));
    EXPECT_EQ("two", ReadFile(dest_ + "/second.txt"));
    EXPECT_NE(big, ReadFile(dest_ + "/third.bin"));
    EXPECT_EQ((Reports{{3, 1}, {3, 2}}), ProgressReports());
    const Lines lines = LogLines();
    ASSERT_EQ(2u, lines.size()) << ::testing::PrintToString(lines);
    EXPECT_EQ(DecompressLine(), lines[0]);
    EXPECT_TRUE(HasReason(lines[1], "[ERROR] extractor(%d): archive_read_extract2 failed: '"));
}

TEST_P(ExtractorFormatTest, DotDotEntryIsRefusedAndStopsTheExtraction)
{
    ASSERT_TRUE(Write({FileItem("ok.txt", "ok"), FileItem("sub/../../escaped.txt", "evil"),
                       FileItem("after.txt", "after")}));

    EXPECT_EQ(-1, extractor_.Extract());

    EXPECT_FALSE(Exists(tmp_ / "escaped.txt")) << "an entry left the destination";
    EXPECT_EQ("ok", ReadFile(dest_ + "/ok.txt"));
    EXPECT_FALSE(Exists(dest_ + "/after.txt")) << "extraction went on after the refused entry";
    EXPECT_EQ((Reports{{3, 1}}), ProgressReports());
    EXPECT_EQ((Lines{DecompressLine(),
                     "[ERROR] extractor(%d): archive_read_extract2 failed: 'Path contains '..''"}),
              LogLines());
}

TEST_P(ExtractorFormatTest, AbsoluteEntriesLandInsideTheDestination)
{
    // An absolute path into this test's own folder shows whether anything
    // escapes; /etc/x is the classic case.
    const std::string outside = tmp_ / "outside/x";
    const bool etc_x_existed = Exists("/etc/x");
    ASSERT_TRUE(Write({FileItem("/etc/x", "etc"), FileItem(outside, "outside")}));

    EXPECT_EQ(0, extractor_.Extract());

    EXPECT_EQ("etc", ReadFile(dest_ + "/etc/x"));
    EXPECT_EQ("outside", ReadFile(dest_ + outside));
    EXPECT_FALSE(Exists(outside)) << outside << " was written outside the destination";
    if (!etc_x_existed) {
        EXPECT_FALSE(Exists("/etc/x")) << "/etc/x was written outside the destination";
    }
    EXPECT_EQ((Reports{{2, 1}, {2, 2}}), ProgressReports());
}

// Ownership, permission bits beyond the umask and times stay those of the
// extracting user: the package's are not trusted.
TEST_P(ExtractorFormatTest, RestoresNeitherOwnerNorFullModeNorTime)
{
    ArchiveItem item = FileItem("tool", "#!/bin/sh\n");
    item.perm = 0777;
    item.mtime = 1000000000;
    item.uid = 4242;
    ASSERT_TRUE(Write({item}));

    const mode_t old_mask = umask(027);
    const int result = extractor_.Extract();
    umask(old_mask);

    ASSERT_EQ(0, result);
    struct stat st;
    ASSERT_EQ(0, lstat((dest_ + "/tool").c_str(), &st)) << dest_ << "/tool: " << std::strerror(errno);
    EXPECT_EQ(0750u, st.st_mode & 07777) << std::oct << "mode 0" << (st.st_mode & 07777);
    EXPECT_EQ(geteuid(), st.st_uid);
    EXPECT_NE(1000000000, st.st_mtime) << "the archived time was restored";
}

TEST_P(ExtractorFormatTest, CountAndListWriteNothing)
{
    ASSERT_TRUE(Write({FolderItem("d/"), FileItem("d/one.txt", "1"), FileItem("two.txt", "2")}));

    EXPECT_EQ(3, extractor_.Count());
    ::testing::internal::CaptureStdout();
    const int listed = extractor_.List();
    const std::string printed = ::testing::internal::GetCapturedStdout();

    EXPECT_EQ(0, listed);
    EXPECT_EQ("d/\nd/one.txt\ntwo.txt\n", printed);
    EXPECT_EQ(std::vector<std::string>{}, FolderNames(dest_));
    EXPECT_TRUE(ProgressReports().empty());
    EXPECT_TRUE(LogLines().empty()) << ::testing::PrintToString(LogLines());
}

TEST_P(ExtractorFormatTest, CopyDataCopiesTheCurrentEntry)
{
    const std::string payload = NoiseBytes(50000, 3);
    ASSERT_TRUE(Write({FileItem("payload.bin", payload)}));
    const std::string target = dest_ + "/payload.bin";

    EXPECT_EQ(0, CopyFirstEntry(target));

    EXPECT_TRUE(payload == ReadFile(target)) << target << " differs from the archived data";
    EXPECT_TRUE(LogLines().empty()) << ::testing::PrintToString(LogLines());
}

TEST_P(ExtractorFormatTest, CopyDataReportsDataCutShort)
{
    ASSERT_TRUE(Write({FileItem("payload.bin", NoiseBytes(256 * 1024, 5))}));
    struct stat st;
    ASSERT_EQ(0, stat(archive_.c_str(), &st)) << archive_ << ": " << std::strerror(errno);
    ASSERT_TRUE(TruncateFile(archive_, st.st_size / 2));

    EXPECT_EQ(-1, CopyFirstEntry(dest_ + "/payload.bin"));

    const Lines lines = LogLines();
    ASSERT_EQ(1u, lines.size()) << ::testing::PrintToString(lines);
    EXPECT_TRUE(HasReason(lines[0], "[ERROR] extractor(%d): archive_read_data_block failed: '"));
}

INSTANTIATE_TEST_SUITE_P(Formats, ExtractorFormatTest,
                         ::testing::Values(ArchiveFormat::Tar, ArchiveFormat::TarGz, ArchiveFormat::Zip),
                         FormatRowName);

// What may stand at an entry's place before the extraction.
enum class Obstacle { File, ReadOnlyFile, HardLinkToOutside, SymlinkToOutside, EmptyFolder };

struct ObstacleRow {
    Obstacle obstacle;
    const char* name;
};

void PrintTo(const ObstacleRow& row, std::ostream* os)
{
    *os << row.name;
}

class ObstacleTest : public ExtractorTest,
                     public ::testing::WithParamInterface<std::tuple<ArchiveFormat, ObstacleRow>> {};

TEST_P(ObstacleTest, EntryReplacesWhatIsInItsWay)
{
    const ArchiveFormat format = std::get<0>(GetParam());
    const Obstacle obstacle = std::get<1>(GetParam()).obstacle;
    const std::string target = dest_ + "/a.txt";
    const std::string outside = tmp_ / "outside.txt";
    ASSERT_TRUE(testsupport::WriteFile(outside, "keep")) << outside << ": " << std::strerror(errno);
    switch (obstacle) {
    case Obstacle::File:
        ASSERT_TRUE(testsupport::WriteFile(target, "old content that is longer")) << std::strerror(errno);
        break;
    case Obstacle::ReadOnlyFile:
        ASSERT_TRUE(testsupport::WriteFile(target, "old", 0444)) << std::strerror(errno);
        break;
    case Obstacle::HardLinkToOutside:
        ASSERT_EQ(0, link(outside.c_str(), target.c_str())) << target << ": " << std::strerror(errno);
        break;
    case Obstacle::SymlinkToOutside:
        ASSERT_EQ(0, symlink(outside.c_str(), target.c_str())) << target << ": " << std::strerror(errno);
        break;
    case Obstacle::EmptyFolder:
        ASSERT_EQ(0, mkdir(target.c_str(), 0755)) << target << ": " << std::strerror(errno);
        break;
    }
    ASSERT_TRUE(WriteArchive(archive_, format, {FileItem("a.txt", "new")}));

    EXPECT_EQ(0, extractor_.Extract());

    EXPECT_TRUE(IsRegularFile(target)) << target << " is not a regular file";
    EXPECT_EQ("new", ReadFile(target));
    EXPECT_EQ("keep", ReadFile(outside)) << "the extraction wrote through " << target;
    EXPECT_EQ((Reports{{1, 1}}), ProgressReports());
}

INSTANTIATE_TEST_SUITE_P(
    InTheWay, ObstacleTest,
    ::testing::Combine(::testing::Values(ArchiveFormat::Tar, ArchiveFormat::TarGz, ArchiveFormat::Zip),
                       ::testing::Values(ObstacleRow{Obstacle::File, "file"},
                                         ObstacleRow{Obstacle::ReadOnlyFile, "read_only_file"},
                                         ObstacleRow{Obstacle::HardLinkToOutside, "hard_link_to_outside"},
                                         ObstacleRow{Obstacle::SymlinkToOutside, "symlink_to_outside"},
                                         ObstacleRow{Obstacle::EmptyFolder, "empty_folder"})),
    [](const ::testing::TestParamInfo<std::tuple<ArchiveFormat, ObstacleRow>>& info) {
        return FormatName(std::get<0>(info.param)) + "_" + std::get<1>(info.param).name;
    });

// An archive that cannot be counted: Extract gives up before writing and
// names the count it got.
struct UnusableRow {
    const char* name;
    // Makes the archive path unusable in this way.
    bool (*make)(const std::string& path);
    int count;
    // The line Count logs before giving up, empty when it logs none.
    std::string (*count_line)(const std::string& path);
};

void PrintTo(const UnusableRow& row, std::ostream* os)
{
    *os << row.name;
}

class UnusableArchiveTest : public ExtractorTest, public ::testing::WithParamInterface<UnusableRow> {};

TEST_P(UnusableArchiveTest, ExtractFailsBeforeWritingAnything)
{
    const UnusableRow& row = GetParam();
    ASSERT_TRUE(row.make(archive_)) << archive_ << ": " << std::strerror(errno);

    EXPECT_EQ(-1, extractor_.Extract());

    Lines expected{DecompressLine()};
    const std::string count_line = row.count_line(archive_);
    if (!count_line.empty()) {
        expected.push_back(count_line);
    }
    expected.push_back("[ERROR] extractor(%d): Failed to calculate total file numbers, ret: " +
                       std::to_string(row.count));
    EXPECT_EQ(expected, LogLines());
    EXPECT_TRUE(ProgressReports().empty());
    EXPECT_EQ((std::vector<std::string>{kPreparingText}), LabelTexts());
    EXPECT_EQ(std::vector<std::string>{}, FolderNames(dest_));
    EXPECT_EQ(row.count, extractor_.Count());
}

std::string OpenFailure(const std::string& path)
{
    return "[ERROR] extractor(%d): archive_read_open_filename failed: 'Failed to open '" + path + "''";
}

std::string ReadFailure(const std::string& path)
{
    return "[ERROR] extractor(%d): archive_read_open_filename failed: 'Error reading '" + path + "''";
}

std::string UnrecognisedFormat(const std::string&)
{
    return "[ERROR] extractor(%d): archive_read_open_filename failed: 'Unrecognized archive format'";
}

std::string NoLine(const std::string&)
{
    return {};
}

INSTANTIATE_TEST_SUITE_P(
    Archives, UnusableArchiveTest,
    ::testing::Values(
        UnusableRow{"missing", [](const std::string&) { return true; }, -1, OpenFailure},
        UnusableRow{"folder", [](const std::string& p) { return mkdir(p.c_str(), 0755) == 0; }, -1,
                    ReadFailure},
        UnusableRow{"zero_bytes", [](const std::string& p) { return testsupport::WriteFile(p, ""); }, 0,
                    NoLine},
        UnusableRow{"not_an_archive",
                    [](const std::string& p) { return testsupport::WriteFile(p, NoiseBytes(4096, 11)); }, -1,
                    UnrecognisedFormat}),
    [](const ::testing::TestParamInfo<UnusableRow>& info) { return std::string(info.param.name); });

// Which of the two paths is left empty.
struct MissingPathRow {
    const char* name;
    bool archive_path;
    bool dest_dir;
};

void PrintTo(const MissingPathRow& row, std::ostream* os)
{
    *os << row.name;
}

class MissingPathTest : public ExtractorTest, public ::testing::WithParamInterface<MissingPathRow> {};

TEST_P(MissingPathTest, EveryOperationRefusesAndReportsNothing)
{
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {FileItem("one.txt", "1")}));
    if (GetParam().archive_path) {
        extractor_.archive_path.clear();
    }
    if (GetParam().dest_dir) {
        extractor_.dest_dir.clear();
    }

    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_EQ(-1, extractor_.Count());
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(-1, extractor_.List());
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());

    EXPECT_EQ((Lines{"[ERROR] extractor(%d): Invalid Argument", "[ERROR] extractor(%d): Invalid argument",
                     "[ERROR] extractor(%d): Invalid argument"}),
              LogLines());
    EXPECT_TRUE(ProgressReports().empty());
    EXPECT_TRUE(LabelTexts().empty()) << "the label changed although nothing was extracted";
    EXPECT_EQ(std::vector<std::string>{}, FolderNames(dest_));
}

INSTANTIATE_TEST_SUITE_P(Paths, MissingPathTest,
                         ::testing::Values(MissingPathRow{"archive_path", true, false},
                                           MissingPathRow{"dest_dir", false, true},
                                           MissingPathRow{"both", true, true}),
                         [](const ::testing::TestParamInfo<MissingPathRow>& info) {
                             return std::string(info.param.name);
                         });

struct NullHandleRow {
    const char* name;
    bool null_in;
    bool null_out;
};

void PrintTo(const NullHandleRow& row, std::ostream* os)
{
    *os << row.name;
}

class CopyDataNullTest : public ExtractorTest, public ::testing::WithParamInterface<NullHandleRow> {};

TEST_P(CopyDataNullTest, RefusesAMissingHandle)
{
    archive* in = archive_read_new();
    archive* out = archive_write_disk_new();
    ASSERT_NE(nullptr, in);
    ASSERT_NE(nullptr, out);

    const int result =
        extractor_.copy_data(GetParam().null_in ? nullptr : in, GetParam().null_out ? nullptr : out);
    archive_read_free(in);
    archive_write_free(out);

    EXPECT_EQ(-1, result);
    EXPECT_EQ(Lines{"[ERROR] extractor(%d): Invalid Argument"}, LogLines());
}

INSTANTIATE_TEST_SUITE_P(Handles, CopyDataNullTest,
                         ::testing::Values(NullHandleRow{"in", true, false},
                                           NullHandleRow{"out", false, true},
                                           NullHandleRow{"both", true, true}),
                         [](const ::testing::TestParamInfo<NullHandleRow>& info) {
                             return std::string(info.param.name);
                         });

} // namespace
