#include "extractor.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <regex>
#include <sys/stat.h>
#include <unistd.h>

#include <QSignalSpy>
#include <gtest/gtest.h>

#include "archive_builder.h"
#include "launcher.h"
#include "log.h"
#include "test_rows.h"
#include "test_support.h"

using testsupport::Exists;
using testsupport::ReadFile;

namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

const char kPreparingText[] = "Calderix Drive is initializing...";

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
        extractor_.archive_path = archive_.c_str();
        extractor_.dest_dir = dest_.c_str();
    }
    void TearDown() override { Logger::Destroy(); }

    // Log lines without their time stamp, the source line written "%d".
    Lines LogLines() const
    {
        Lines lines;
        for (const std::string& line : testsupport::Lines(ReadFile(tmp_ / "log")))
            lines.push_back(std::regex_replace(line.substr(std::min<size_t>(16, line.size())),
                                               std::regex("^(\\[\\w+\\] extractor\\()[1-9][0-9]*\\)"),
                                               "$1%d)"));
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

class ExtractorFormatTest : public ExtractorTest, public ::testing::WithParamInterface<const char*> {};

// Entries are reported after they are written; the archive is cut in the
// middle of the third entry's data, and what came before stays.
TEST_P(ExtractorFormatTest, ReportsEveryEntryAfterWritingItAndStopsAtTheDamage)
{
    const std::string big = NoiseBytes(256 * 1024, 7), format = GetParam();
    const ArchiveFormat f = format == "tar"   ? ArchiveFormat::Tar
                            : format == "zip" ? ArchiveFormat::Zip
                                              : ArchiveFormat::TarGz;
    ASSERT_TRUE(WriteArchive(archive_, f, {{"empty/", "", 'd', 0755}, {"a/b/deep", "two"}, {"third", big}}));
    ASSERT_EQ(0, truncate(archive_.c_str(), fs::file_size(archive_) / 2)) << strerror(errno);
    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_TRUE(fs::is_empty(dest_ + "/empty")) << "folder entry not written";
    EXPECT_EQ("two", ReadFile(dest_ + "/a/b/deep")) << "missing parent folders not created";
    EXPECT_NE(big, ReadFile(dest_ + "/third"));
    EXPECT_EQ((Lines{"3/1", "3/2"}), Emitted(progress_));
    EXPECT_EQ(Lines{kPreparingText}, Emitted(text_));
    const Lines lines = LogLines();
    EXPECT_TRUE(
        lines.size() == 2 && lines[0] == Decompress() &&
        std::regex_match(lines[1],
                         std::regex("\\[ERROR\\] extractor\\(%d\\): archive_read_extract2 failed: '.+'")))
        << ::testing::PrintToString(lines);
}

INSTANTIATE_TEST_SUITE_P(Formats, ExtractorFormatTest, ::testing::Values("tar", "tar_gz", "zip"),
                         testsupport::RowName());

// An absolute path into this test's own folder shows whether anything escapes;
// a ".." name refuses the whole archive while counting, before anything is written.
TEST_F(ExtractorTest, EntriesStayInsideTheDestinationAndDotDotRefusesTheArchive)
{
    const std::string outside = tmp_ / "outside/x";
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {{outside, "outside"}, {"after", "after"}}));
    EXPECT_EQ(0, extractor_.Extract());
    EXPECT_EQ("outside", ReadFile(dest_ + outside));
    EXPECT_FALSE(Exists(outside)) << outside << " was written outside the destination";

    ASSERT_TRUE(
        WriteArchive(archive_, ArchiveFormat::Tar, {{"first", "first"}, {"sub/../../escaped", "evil"}}));
    EXPECT_EQ(-1, extractor_.Extract());
    EXPECT_FALSE(Exists(tmp_ / "escaped")) << "an entry left the destination";
    EXPECT_FALSE(Exists(dest_ + "/first")) << "a refused archive was written in part";
    EXPECT_EQ((Lines{"2/1", "2/2"}), Emitted(progress_)) << "only the first archive reports progress";
    EXPECT_EQ((Lines{Decompress(), Decompress(),
                     "[ERROR] extractor(%d): package refused: entry name contains '..': 'sub/../../escaped'",
                     "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: -1"}),
              LogLines());
}

// Owner, permission bits beyond the umask and times of the package are not trusted.
TEST_F(ExtractorTest, RestoresNeitherOwnerNorFullModeNorTime)
{
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar,
                             {{"tool", "#!/bin/sh\n", 'f', 04777, "", 1000000000, 4242}}));
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

// What stands at the entry's place: a file, or a hard or symbolic link to a
// file outside the destination.
class ObstacleTest : public ExtractorTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(ObstacleTest, EntryReplacesWhatIsInItsWay)
{
    const std::string target = dest_ + "/a.txt", outside = tmp_ / "outside.txt", kind = GetParam();
    ASSERT_TRUE(testsupport::WriteFile(outside, "keep")) << strerror(errno);
    ASSERT_TRUE(kind == "file"
                    ? testsupport::WriteFile(target, "old, longer")
                    : (kind == "hard_link_to_outside" ? link : symlink)(outside.c_str(), target.c_str()) == 0)
        << strerror(errno);
    ASSERT_TRUE(WriteArchive(archive_, ArchiveFormat::Tar, {{"a.txt", "new"}}));
    EXPECT_EQ(0, extractor_.Extract());
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target))) << target << " is not a regular file";
    EXPECT_EQ("new", ReadFile(target));
    EXPECT_EQ("keep", ReadFile(outside)) << "the extraction wrote through " << target;
}

INSTANTIATE_TEST_SUITE_P(InTheWay, ObstacleTest,
                         ::testing::Values("file", "hard_link_to_outside", "symlink_to_outside"),
                         testsupport::RowName());

// An archive that cannot be counted: Extract gives up before writing anything.
class UnusableArchiveTest : public ExtractorTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(UnusableArchiveTest, ExtractFailsBeforeWritingAnything)
{
    const std::string row = GetParam();
    ASSERT_TRUE(row == "missing" ||
                (row == "empty" ? bool(WriteArchive(archive_, ArchiveFormat::TarGz, {}))
                                : testsupport::WriteFile(archive_, NoiseBytes(4096, 11))));
    EXPECT_EQ(-1, extractor_.Extract());
    const Lines log = LogLines();
    EXPECT_EQ("[ERROR] extractor(%d): Failed to calculate total file numbers, ret: " +
                  std::string(row == "empty" ? "0" : "-1"),
              log.empty() ? "" : log.back());
    EXPECT_TRUE(Emitted(progress_).empty());
    EXPECT_TRUE(fs::is_empty(dest_)) << "something was written";
}

INSTANTIATE_TEST_SUITE_P(Archives, UnusableArchiveTest,
                         ::testing::Values("missing", "empty", "not_an_archive"), testsupport::RowName());

} // namespace
