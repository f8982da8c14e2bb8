#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <QSignalSpy>
#include <gtest/gtest.h>

#include "archive_builder.h"
#include "launcher.h"
#include "log.h"
#include "test_support.h"

using testsupport::Exists;
using testsupport::ReadFile;

namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

const char kPreparingText[] = "Calderix Drive is initializing...";

const char* Why(archive* a)
{
    return a != nullptr && archive_error_string(a) != nullptr ? archive_error_string(a) : "(no reason)";
}

// Names a table's cases by format, by their text or by their rows' name field.
struct RowName {
    std::string operator()(const ::testing::TestParamInfo<ArchiveFormat>& info) const
    {
        return FormatName(info.param);
    }
    std::string operator()(const ::testing::TestParamInfo<const char*>& info) const { return info.param; }
    template <typename P> std::string operator()(const ::testing::TestParamInfo<P>& info) const
    {
        return info.param.name;
    }
};

bool IsEmptyFolder(const std::string& path)
{
    std::error_code error;
    return fs::is_empty(path, error) && !error;
}

// A fresh folder with the archive, an empty destination and the log, to which
// the extractor writes its debug lines; spies record what the relay emits.
class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(testsupport::MakeDirs(dest_)) << dest_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(tmp_ / "levels", "extractor_debug=7\n")) << strerror(errno);
        ASSERT_EQ(
            0, Logger::Initialize(Logger::TYPE_FILE, (tmp_ / "log").c_str(), (tmp_ / "levels").c_str(), 50));
        ASSERT_TRUE(progress_.isValid() && text_.isValid());
        extractor_.archive_path = archive_.c_str();
        extractor_.dest_dir = dest_.c_str();
    }
    void TearDown() override { Logger::Destroy(); }

    // Log lines without their "%b %d %H:%M:%S " stamp, and with the source
    // line in "extractor(<line>)" written as in the format: "extractor(%d)".
    Lines LogLines() const
    {
        Lines lines;
        for (const std::string& line : testsupport::Lines(ReadFile(tmp_ / "log"))) {
            const size_t open = line.find("] extractor(");
            const size_t digits = open == std::string::npos ? line.size() : open + 12;
            const size_t close = line.find_first_not_of("0123456789", digits);
            const bool ok = line.size() > 16 && line[16] == '[' && close != std::string::npos &&
                            close > digits && line[close] == ')' && line[digits] != '0';
            lines.push_back(ok ? line.substr(16, digits - 16) + "%d" + line.substr(close)
                               : "<bad: " + line + ">");
        }
        return lines;
    }
    // Each emission of a spied signal as its arguments joined by "/".
    static Lines Emitted(const QSignalSpy& spy)
    {
        Lines emitted;
        for (const QList<QVariant>& args : spy)
            emitted.push_back(args.size() == 2 ? (args[0].toString() + "/" + args[1].toString()).toStdString()
                                               : args[0].toString().toStdString());
        return emitted;
    }
    std::string Decompress() const
    {
        return "[DEBUG] extractor(%d): decompress from '" + archive_ + "' to '" + dest_ + "'";
    }

    testsupport::TempDir tmp_{"calderix-extractor"};
    const std::string dest_ = tmp_ / "dest", archive_ = tmp_ / "calderix.vpk";
    Extractor extractor_;
    QSignalSpy progress_{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress};
    QSignalSpy text_{Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText};
};

class ExtractorFormatTest : public ExtractorTest, public ::testing::WithParamInterface<ArchiveFormat> {};

TEST_P(ExtractorFormatTest, ReportsEveryEntryAfterWritingIt)
{
    ASSERT_TRUE(WriteArchive(archive_, GetParam(),
                             {{"empty/", "", true, 0755}, {"one.txt", "first"}, {"a/b/deep.txt", "deep"}}));
    EXPECT_EQ(0, extractor_.Extract());
    EXPECT_EQ((Lines{"3/1", "3/2", "3/3"}), Emitted(progress_));
    EXPECT_EQ(Lines{kPreparingText}, Emitted(text_));
    EXPECT_TRUE(IsEmptyFolder(dest_ + "/empty")) << "folder entry not written";
    EXPECT_EQ("first", ReadFile(dest_ + "/one.txt"));
    EXPECT_EQ("deep", ReadFile(dest_ + "/a/b/deep.txt")) << "missing parent folders not created";
    EXPECT_EQ(Lines{Decompress()}, LogLines());
}

// The archive is cut in the middle of the third entry's data.
TEST_P(ExtractorFormatTest, TruncatedArchiveKeepsEntriesBeforeTheDamage)
{
    const std::string big = NoiseBytes(256 * 1024, 7);
    ASSERT_TRUE(
        WriteArchive(archive_, GetParam(), {{"first.txt", "one"}, {"second.txt", "two"}, {"third", big}}));
    ASSERT_EQ(0, truncate(archive_.c_str(), fs::file_size(archive_) / 2)) << strerror(errno);
    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_EQ("one", ReadFile(dest_ + "/first.txt"));
    EXPECT_EQ("two", ReadFile(dest_ + "/second.txt"));
    EXPECT_NE(big, ReadFile(dest_ + "/third"));
    EXPECT_EQ((Lines{"3/1", "3/2"}), Emitted(progress_));
    const Lines lines = LogLines();
    const std::string failed = "[ERROR] extractor(%d): archive_read_extract2 failed: '";
    ASSERT_EQ(2u, lines.size()) << ::testing::PrintToString(lines);
    EXPECT_EQ(Decompress(), lines[0]);
    EXPECT_TRUE(lines[1].size() > failed.size() + 1 && lines[1].compare(0, failed.size(), failed) == 0 &&
                lines[1].back() == '\'')
        << "not " << failed << "<reason>': " << lines[1];
}

INSTANTIATE_TEST_SUITE_P(Formats, ExtractorFormatTest,
                         ::testing::Values(ArchiveFormat::Tar, ArchiveFormat::TarGz, ArchiveFormat::Zip),
                         RowName());

// An absolute path into this test's own folder shows whether anything escapes.
TEST_F(ExtractorTest, EntriesStayInsideTheDestinationAndDotDotRefusesTheArchive)
{
    const std::string outside = tmp_ / "outside/x";
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {{outside, "outside"}, {"after.txt", "after"}}));
    EXPECT_EQ(0, extractor_.Extract());
    EXPECT_EQ("outside", ReadFile(dest_ + outside));
    EXPECT_FALSE(Exists(outside)) << outside << " was written outside the destination";

    // Refused while counting, before anything is written.
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar,
                             {{"first.txt", "first"}, {"sub/../../escaped.txt", "evil"}}));
    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_FALSE(Exists(tmp_ / "escaped.txt")) << "an entry left the destination";
    EXPECT_FALSE(Exists(dest_ + "/first.txt")) << "a refused archive was written in part";
    EXPECT_EQ((Lines{"2/1", "2/2"}), Emitted(progress_)) << "only the first archive reports progress";
    EXPECT_EQ(
        (Lines{Decompress(), Decompress(),
               "[ERROR] extractor(%d): package refused: entry name contains '..': 'sub/../../escaped.txt'",
               "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: -1"}),
        LogLines());
}

// Owner, permission bits beyond the umask and times of the package are not trusted.
TEST_F(ExtractorTest, RestoresNeitherOwnerNorFullModeNorTime)
{
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar,
                             {{"tool", "#!/bin/sh\n", false, 04777, 1000000000, 4242}}));
    const mode_t old_mask = umask(027);
    const int result = extractor_.Extract();
    umask(old_mask);
    ASSERT_EQ(0, result);
    struct stat st;
    ASSERT_EQ(0, lstat((dest_ + "/tool").c_str(), &st)) << strerror(errno);
    EXPECT_EQ(0750u, st.st_mode & 07777) << std::oct << "mode 0" << (st.st_mode & 07777);
    EXPECT_EQ(geteuid(), st.st_uid);
    EXPECT_NE(1000000000, st.st_mtime) << "the archived time was restored";
}

TEST_F(ExtractorTest, CountAndListWriteNothing)
{
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Zip,
                             {{"d/", "", true, 0755}, {"d/one.txt", "1"}, {"two.txt", "2"}}));
    EXPECT_EQ(3, extractor_.Count());
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(0, extractor_.List());
    EXPECT_EQ("d/\nd/one.txt\ntwo.txt\n", ::testing::internal::GetCapturedStdout());
    EXPECT_TRUE(IsEmptyFolder(dest_)) << "something was written";
    EXPECT_TRUE(Emitted(progress_).empty());
    EXPECT_EQ(Lines{}, LogLines());
}

// copy_data from the archive's first entry into a disk writer opened on target.
TEST_F(ExtractorTest, CopyDataCopiesTheCurrentEntryAndRefusesNullHandles)
{
    const std::string payload = NoiseBytes(50000, 3), target = dest_ + "/payload.bin";
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::TarGz, {{"payload.bin", payload}}));
    const std::unique_ptr<archive, int (*)(archive*)> in(archive_read_new(), archive_read_free),
        out(archive_write_disk_new(), archive_write_free);
    archive_entry* entry = nullptr;
    ASSERT_TRUE(in && out && archive_read_support_filter_all(in.get()) == ARCHIVE_OK &&
                archive_read_support_format_all(in.get()) == ARCHIVE_OK &&
                archive_read_open_filename(in.get(), archive_.c_str(), 10240) == ARCHIVE_OK &&
                archive_read_next_header(in.get(), &entry) == ARCHIVE_OK)
        << archive_ << ": " << Why(in.get());
    archive_entry_set_pathname(entry, target.c_str());
    ASSERT_EQ(ARCHIVE_OK, archive_write_header(out.get(), entry)) << Why(out.get());
    EXPECT_EQ(0, extractor_.copy_data(in.get(), out.get()));
    EXPECT_EQ(ARCHIVE_OK, archive_write_finish_entry(out.get()));
    EXPECT_TRUE(payload == ReadFile(target)) << target << " differs from the archived data";

    EXPECT_EQ(-1, extractor_.copy_data(nullptr, out.get()));
    EXPECT_EQ(-1, extractor_.copy_data(in.get(), nullptr));
    const std::string invalid = "[ERROR] extractor(%d): Invalid Argument";
    EXPECT_EQ((Lines{invalid, invalid}), LogLines());
}

struct ObstacleRow {
    const char* name;
    int (*make)(const char* outside, const char* target);
};

class ObstacleTest : public ExtractorTest, public ::testing::WithParamInterface<ObstacleRow> {};

TEST_P(ObstacleTest, EntryReplacesWhatIsInItsWay)
{
    const std::string target = dest_ + "/a.txt", outside = tmp_ / "outside.txt";
    ASSERT_TRUE(testsupport::WriteFile(outside, "keep")) << strerror(errno);
    ASSERT_EQ(0, GetParam().make(outside.c_str(), target.c_str())) << strerror(errno);
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {{"a.txt", "new"}}));
    EXPECT_EQ(0, extractor_.Extract());
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target))) << target << " is not a regular file";
    EXPECT_EQ("new", ReadFile(target));
    EXPECT_EQ("keep", ReadFile(outside)) << "the extraction wrote through " << target;
    EXPECT_EQ((Lines{"1/1"}), Emitted(progress_));
}

int MakeLongerFile(const char*, const char* target)
{
    return testsupport::WriteFile(target, "old and longer") ? 0 : -1;
}

INSTANTIATE_TEST_SUITE_P(InTheWay, ObstacleTest,
                         ::testing::Values(ObstacleRow{"file", MakeLongerFile},
                                           ObstacleRow{"hard_link_to_outside", link},
                                           ObstacleRow{"symlink_to_outside", symlink}),
                         RowName());

// An archive that cannot be counted: Extract gives up before writing anything.
struct UnusableRow {
    const char* name;
    bool (*make)(const std::string& archive);
    int count;
    const char* count_line; // what Count logs first, if anything; %s: the archive
};

class UnusableArchiveTest : public ExtractorTest, public ::testing::WithParamInterface<UnusableRow> {};

TEST_P(UnusableArchiveTest, ExtractFailsBeforeWritingAnything)
{
    const UnusableRow& row = GetParam();
    ASSERT_TRUE(row.make(archive_)) << archive_ << ": " << strerror(errno);
    EXPECT_EQ(-1, extractor_.Extract());
    Lines expected{Decompress()};
    if (row.count_line != nullptr) {
        std::string line = row.count_line;
        const size_t at = line.find("%s");
        expected.push_back(at == std::string::npos ? line : line.replace(at, 2, archive_));
    }
    expected.push_back("[ERROR] extractor(%d): Failed to calculate total file numbers, ret: " +
                       std::to_string(row.count));
    EXPECT_EQ(expected, LogLines());
    EXPECT_TRUE(Emitted(progress_).empty());
    EXPECT_EQ(Lines{kPreparingText}, Emitted(text_));
    EXPECT_TRUE(IsEmptyFolder(dest_)) << "something was written";
    EXPECT_EQ(row.count, extractor_.Count());
}

INSTANTIATE_TEST_SUITE_P(
    Archives, UnusableArchiveTest,
    ::testing::Values(
        UnusableRow{"missing", [](const std::string&) { return true; }, -1,
                    "[ERROR] extractor(%d): archive_read_open_filename failed: 'Failed to open '%s''"},
        UnusableRow{"empty",
                    [](const std::string& p) { return bool(WriteArchive(p, ArchiveFormat::TarGz, {})); }, 0,
                    nullptr},
        UnusableRow{
            "not_an_archive",
            [](const std::string& p) { return testsupport::WriteFile(p, NoiseBytes(4096, 11)); }, -1,
            "[ERROR] extractor(%d): archive_read_open_filename failed: 'Unrecognized archive format'"}),
    RowName());

class MissingPathTest : public ExtractorTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(MissingPathTest, EveryOperationRefusesAndReportsNothing)
{
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {{"one.txt", "1"}}));
    (GetParam() == std::string("archive_path") ? extractor_.archive_path : extractor_.dest_dir).clear();
    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_EQ(-1, extractor_.Count());
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(-1, extractor_.List());
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
    EXPECT_EQ((Lines{"[ERROR] extractor(%d): Invalid Argument", "[ERROR] extractor(%d): Invalid argument",
                     "[ERROR] extractor(%d): Invalid argument"}),
              LogLines());
    EXPECT_TRUE(Emitted(progress_).empty());
    EXPECT_TRUE(Emitted(text_).empty()) << "the label changed although nothing was extracted";
    EXPECT_TRUE(IsEmptyFolder(dest_)) << "something was written";
}

INSTANTIATE_TEST_SUITE_P(Paths, MissingPathTest, ::testing::Values("archive_path", "dest_dir"), RowName());

} // namespace
