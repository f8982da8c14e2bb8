// Looking at the file system: records, canonical paths, existence, listing.
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <map>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "file-op.h"
#include "file_test_support.h"

using filetest::Exists;
using filetest::MakeDir;
using filetest::MakeLink;
using filetest::WriteFile;

namespace {

using filetest::operator<<;

const char kNfdName[] = "Cafe\xCC\x81 menu.txt"; // e + combining acute, as macOS stores it
const char kNfcName[] = "Caf\xC3\xA9 menu.txt";

// real/sub dir/{data.txt, NFD name}, real/flink -> "sub dir/data.txt",
// link -> <abs real>, rel -> "real/sub dir", chain -> link.
class TreeTest : public filetest::FileOpTest {
protected:
    void SetUp() override
    {
        FileOpTest::SetUp();
        ASSERT_EQ("", MakeDir((*this)["real"]));
        ASSERT_EQ("", MakeDir((*this)["real/sub dir"]));
        ASSERT_EQ("", WriteFile((*this)["real/sub dir/data.txt"], "12345"));
        ASSERT_EQ("", WriteFile((*this)["real/sub dir/"] + kNfdName, "x"));
        ASSERT_EQ("", MakeLink("sub dir/data.txt", (*this)["real/flink"]));
        ASSERT_EQ("", MakeLink((*this)["real"], (*this)["link"]));
        ASSERT_EQ("", MakeLink("real/sub dir", (*this)["rel"]));
        ASSERT_EQ("", MakeLink("link", (*this)["chain"]));
    }
};

struct CanonicalCase {
    const char* name;
    std::string given;
    std::string canonical;
    int type;
};

class CanonicalPathTest : public TreeTest, public ::testing::WithParamInterface<CanonicalCase> {};

TEST_P(CanonicalPathTest, GetFileInfoResolvesFoldersAndKeepsFinalLink)
{
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo((*this)[GetParam().given], info)) << GetParam().given;
    EXPECT_TRUE(info.exist);
    EXPECT_EQ((*this)[GetParam().canonical], info.path.c_str());
    EXPECT_EQ(FSBaseName(info.path), info.name);
    EXPECT_EQ(GetParam().type, info.type);
    EXPECT_TRUE(
        Logged("[DEBUG]", "FSRefMakePath outTargetPath path = [" + (*this)[GetParam().canonical] + "]."));
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, CanonicalPathTest,
    ::testing::Values(
        CanonicalCase{"Plain", "real/sub dir/data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR},
        CanonicalCase{"LinkedFolder", "link/sub dir/data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR},
        CanonicalCase{"RelativeLink", "rel/data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR},
        CanonicalCase{"LinkChain", "chain/sub dir", "real/sub dir", FS_TYPE_DIR},
        CanonicalCase{"FinalLinkKept", "link/flink", "real/flink", FS_TYPE_SYMLINK},
        CanonicalCase{"FinalFolderLinkKept", "link", "link", FS_TYPE_SYMLINK},
        CanonicalCase{"DotDotAfterLink", "rel/../sub dir/./data.txt", "real/sub dir/data.txt",
                      FS_TYPE_REGULAR},
        CanonicalCase{"DecomposedName", std::string("link/sub dir/") + kNfdName,
                      std::string("real/sub dir/") + kNfcName, FS_TYPE_REGULAR}),
    [](const ::testing::TestParamInfo<CanonicalCase>& row) { return std::string(row.param.name); });

struct ExistCase {
    const char* name;
    std::string path;
    bool exact;
    bool exists;
};

class IsFileExistTest : public TreeTest, public ::testing::WithParamInterface<ExistCase> {};

TEST_P(IsFileExistTest, ExactOnlyForTheRecordedSpelling)
{
    EXPECT_EQ(GetParam().exists, IsFileExist((*this)[GetParam().path], GetParam().exact)) << GetParam().path;
}

INSTANTIATE_TEST_SUITE_P(
    Spellings, IsFileExistTest,
    ::testing::Values(ExistCase{"Recorded", "real/sub dir/data.txt", true, true},
                      ExistCase{"LinkedFolderLoose", "link/sub dir/data.txt", false, true},
                      ExistCase{"LinkedFolderExact", "link/sub dir/data.txt", true, false},
                      ExistCase{"FinalLinkExact", "real/flink", true, true},
                      ExistCase{"FinalSlashLoose", "real/", false, true},
                      ExistCase{"FinalSlashExact", "real/", true, false},
                      ExistCase{"OtherCaseOnCaseSensitiveDisk", "REAL/sub dir/data.txt", false, false},
                      ExistCase{"DecomposedAsStored", std::string("real/sub dir/") + kNfdName, true, true},
                      ExistCase{"ComposedFindsDecomposed", std::string("real/sub dir/") + kNfcName, true,
                                true},
                      ExistCase{"Missing", "real/none", false, false}),
    [](const ::testing::TestParamInfo<ExistCase>& row) { return std::string(row.param.name); });

TEST_F(TreeTest, GetFileInfoFillsEveryFieldFromTheFile)
{
    const std::string path = (*this)["real/sub dir/data.txt"];
    ASSERT_EQ(0, FSUTime(path.c_str(), 1000, 1234567890));
    struct stat st;
    ASSERT_EQ(0, lstat(path.c_str(), &st)) << path << ": " << strerror(errno);
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo(path.c_str(), info));
    EXPECT_EQ(1234567890, info.mtime);
    EXPECT_EQ(5, info.size);
    EXPECT_EQ(st.st_uid, info.uid);
    EXPECT_EQ(st.st_gid, info.gid);
    EXPECT_EQ(st.st_mode, info.mode);
    EXPECT_EQ(static_cast<int64_t>(st.st_dev), info.dev);
    EXPECT_TRUE(Logged("[DEBUG]", "Input file path = [" + path + "]."));
}

TEST_F(TreeTest, GetFileInfoOnMissingPathResetsTheRecord)
{
    _FILE_INFO_tag info;
    info.exist = true;
    info.type = FS_TYPE_DIR;
    info.size = info.mtime = info.uid = info.gid = info.mode = info.dev = 7;
    const std::string path = (*this)["real/gone"];
    ASSERT_EQ(0, GetFileInfo(path.c_str(), info));
    EXPECT_FALSE(info.exist);
    EXPECT_EQ(FS_TYPE_NONE, info.type);
    EXPECT_EQ(path, info.path.c_str());
    EXPECT_STREQ("gone", info.name.c_str());
    EXPECT_EQ(0, info.size + info.mtime + info.uid + info.gid + info.mode + info.dev);

    info.path = "kept";
    EXPECT_EQ(-1, GetFileInfo((*this)["real/sub dir/data.txt/x"].c_str(), info)) << "below a file";
    EXPECT_STREQ("kept", info.path.c_str());
}

TEST_F(TreeTest, FSStatOnMissingPathClearsOnlyExist)
{
    _FILE_INFO_tag info;
    ASSERT_EQ(0, FSStat((*this)["real/sub dir/data.txt"].c_str(), info, true));
    const _FILE_INFO_tag before = info;
    ASSERT_TRUE(before.exist);
    ASSERT_EQ(0, FSStat((*this)["real/none"].c_str(), info, false));
    EXPECT_FALSE(info.exist);
    info.exist = true;
    EXPECT_TRUE(info == before) << "fields other than exist changed";
    EXPECT_EQ(before.mode, info.mode);
    EXPECT_EQ(-1, FSStat("", info, false));
}

TEST_F(TreeTest, FSGetRealPathFollowsTheFinalLink)
{
    ustring path = (*this)["link/flink"].c_str();
    ASSERT_EQ(0, FSGetRealPath(path));
    EXPECT_EQ((*this)["real/sub dir/data.txt"], path.c_str());
    EXPECT_TRUE(Logged("[DEBUG]", " org path [" + (*this)["link/flink"] + "]"));
    EXPECT_TRUE(Logged("[DEBUG]", " get full path [" + (*this)["real/sub dir/data.txt"] + "]"));
    ustring missing = (*this)["link/none"].c_str();
    EXPECT_EQ(-1, FSGetRealPath(missing));
    EXPECT_EQ((*this)["link/none"], missing.c_str());
}

// Which field changes, and whether operator== must then see a difference.
struct EqualityCase {
    const char* name;
    void (*change)(_FILE_INFO_tag&);
    bool equal;
};

class InfoEqualityTest : public ::testing::TestWithParam<EqualityCase> {};

TEST_P(InfoEqualityTest, ComparesOnlyWhatDescribesTheFile)
{
    _FILE_INFO_tag a;
    a.path = "/a/b";
    a.name = "b";
    _FILE_INFO_tag b = a;
    GetParam().change(b);
    EXPECT_EQ(GetParam().equal, a == b);
    EXPECT_EQ(!GetParam().equal, a != b);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, InfoEqualityTest,
    ::testing::Values(EqualityCase{"Exist", [](_FILE_INFO_tag& i) { i.exist = true; }, false},
                      EqualityCase{"Size", [](_FILE_INFO_tag& i) { i.size = 1; }, false},
                      EqualityCase{"Mtime", [](_FILE_INFO_tag& i) { i.mtime = 1; }, false},
                      EqualityCase{"Type", [](_FILE_INFO_tag& i) { i.type = FS_TYPE_DIR; }, false},
                      EqualityCase{"Path", [](_FILE_INFO_tag& i) { i.path = "/a/c"; }, false},
                      EqualityCase{"Name", [](_FILE_INFO_tag& i) { i.name = "c"; }, false},
                      EqualityCase{"Owner", [](_FILE_INFO_tag& i) { i.uid = i.gid = 5; }, true},
                      EqualityCase{"ModeAndDevice", [](_FILE_INFO_tag& i) { i.mode = i.dev = 5; }, true}),
    [](const ::testing::TestParamInfo<EqualityCase>& row) { return std::string(row.param.name); });

TEST_F(TreeTest, FSReadDirListsEveryEntryWithItsType)
{
    DIR_HANDLE handle;
    ASSERT_EQ(0, FSOpenDir((*this)["real"].c_str(), 0, handle));
    std::map<std::string, int> seen;
    DIR_ENTRY entry;
    int result;
    while ((result = FSReadDir(handle, entry)) == 1) {
        seen[entry.name.c_str()] = entry.type;
        EXPECT_EQ(0, entry.mtime + entry.size) << entry.name << " has stat data without FS_DIR_STAT";
    }
    EXPECT_EQ(0, result);
    FSCloseDir(handle);
    EXPECT_EQ(nullptr, handle.dir);
    EXPECT_TRUE(handle.path.empty());
    const std::map<std::string, int> expected = {
        {".", FS_TYPE_DIR}, {"..", FS_TYPE_DIR}, {"sub dir", FS_TYPE_DIR}, {"flink", FS_TYPE_SYMLINK}};
    EXPECT_EQ(expected, seen);
}

TEST_F(TreeTest, FSReadDirWithStatFillsTimesAndZeroesVanishedEntries)
{
    const std::string folder = (*this)["real/sub dir"];
    ASSERT_EQ(0, FSUTime((folder + "/data.txt").c_str(), 0, 1500000000));
    DIR_HANDLE handle;
    ASSERT_EQ(0, FSOpenDir(folder.c_str(), FS_DIR_STAT, handle));
    DIR_ENTRY entry;
    ASSERT_EQ(1, FSReadDir(handle, entry));
    // The stream has buffered the folder; entries removed now still come back.
    const std::string first = entry.name.c_str();
    const bool data_listed_first = first == "data.txt";
    if (!data_listed_first) {
        ASSERT_EQ(0, unlink((folder + "/data.txt").c_str())) << strerror(errno);
    }
    bool found = data_listed_first;
    do {
        if (std::string(entry.name.c_str()) != "data.txt")
            continue;
        found = true;
        EXPECT_EQ(data_listed_first ? 1500000000 : 0, entry.mtime);
        EXPECT_EQ(data_listed_first ? 5 : 0, entry.size);
    } while (FSReadDir(handle, entry) == 1);
    FSCloseDir(handle);
    EXPECT_TRUE(found) << "data.txt never listed";
}

struct LinkTextCase {
    const char* name;
    size_t length;
    int result;
};

class ReadLinkTest : public filetest::FileOpTest, public ::testing::WithParamInterface<LinkTextCase> {};

TEST_P(ReadLinkTest, TextUpTo1023BytesFits)
{
    std::string text;
    while (text.size() < GetParam().length)
        text += text.size() % 100 == 99 ? '/' : 'a';
    const std::string link = (*this)["link"];
    ASSERT_EQ("", MakeLink(text, link));
    ustring out = "unchanged";
    EXPECT_EQ(GetParam().result, FSReadSymbolicLink(link.c_str(), out));
    if (GetParam().result == 0) {
        EXPECT_EQ(text, out.c_str());
    } else {
        EXPECT_TRUE(Logged("[ERROR]", "FSReadSymbolicLink: path of '" + link + "' is more than 1024"));
    }
}

INSTANTIATE_TEST_SUITE_P(Lengths, ReadLinkTest,
                         ::testing::Values(LinkTextCase{"One", 1, 0}, LinkTextCase{"Longest", 1023, 0},
                                           LinkTextCase{"TooLong", 1024, -1},
                                           LinkTextCase{"Longer", 2000, -1}),
                         [](const ::testing::TestParamInfo<LinkTextCase>& row) {
                             return std::string(row.param.name);
                         });

TEST_F(TreeTest, LookupsOnMissingPathsReportTheSystemError)
{
    const std::string missing = (*this)["none"];
    ustring out;
    EXPECT_EQ(-1, FSReadSymbolicLink(missing.c_str(), out));
    DIR_HANDLE handle;
    EXPECT_EQ(-1, FSOpenDir(missing.c_str(), 0, handle));
    EXPECT_TRUE(Logged("[ERROR]",
                       "FSOpenDir: Failed to open directory '" + missing + "'. No such file or directory"));
    EXPECT_TRUE(Logged("[ERROR]", "FSReadSymbolicLink: Failed to read symbolic link '" + missing +
                                      "' (code: 2, msg: No such file or directory)"));
    EXPECT_FALSE(isMountPoint(missing.c_str()));
    EXPECT_TRUE(Logged("[ERROR]", "isMountPoint: Failed to get file system info '" + missing +
                                      "'. No such file or directory"));
    EXPECT_FALSE(IsMSDOS(missing.c_str()));
    EXPECT_TRUE(Logged("[ERROR]", "IsSupportLargeFile: Failed to get file system info '" + missing +
                                      "'. No such file or directory"));
    EXPECT_FALSE(isMountPoint(Root().c_str()));
    EXPECT_FALSE(IsMSDOS(Root().c_str()));
}

TEST_F(TreeTest, AccessTestsTellRefusalFromAbsence)
{
    const std::string secret = (*this)["real/secret"];
    ASSERT_EQ("", WriteFile(secret, "s"));
    ASSERT_EQ(0, chmod(secret.c_str(), 0600)) << strerror(errno);
    const std::string open = (*this)["real/sub dir/data.txt"];
    const std::string missing = (*this)["real/none"];
    // One bit per expectation that failed, so the parent can name it.
    const int failed = filetest::RunAsNobody([&] {
        return (isFileLocked(secret.c_str(), R_OK) ? 0 : 1) |
               (hasFilePermission(secret.c_str(), R_OK) ? 2 : 0) |
               (isFileLocked(open.c_str(), R_OK) ? 4 : 0) | (hasFilePermission(open.c_str(), R_OK) ? 0 : 8) |
               (isFileLocked(missing.c_str(), R_OK) ? 16 : 0) |
               (hasFilePermission(missing.c_str(), R_OK) ? 0 : 32);
    });
    EXPECT_EQ(0, failed) << "bits: 1/2 unreadable file, 4/8 readable file, 16/32 missing file";
}

// Makes folder as an empty folder that ignores case. Returns "" or what failed.
std::string MakeCaseInsensitiveDir(const std::string& folder)
{
    if (mkdir(folder.c_str(), 0755) != 0)
        return "mkdir(" + folder + "): " + strerror(errno);
    const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd < 0)
        return "open(" + folder + "): " + strerror(errno);
    int flags = 0;
    std::string error;
    if (ioctl(fd, FS_IOC_GETFLAGS, &flags) != 0)
        error = "FS_IOC_GETFLAGS(" + folder + "): " + strerror(errno);
    flags |= FS_CASEFOLD_FL;
    if (error.empty() && ioctl(fd, FS_IOC_SETFLAGS, &flags) != 0)
        error = "FS_IOC_SETFLAGS(" + folder + "): " + strerror(errno);
    close(fd);
    return error;
}

// Case-insensitive folders exist on Linux only with a kernel built with
// CONFIG_UNICODE (casefolded tmpfs) and a mount the test may make.
TEST_F(TreeTest, CaseInsensitiveFolderFindsTheStoredSpelling)
{
    const std::string mount_point = (*this)["ci"];
    ASSERT_EQ("", MakeDir(mount_point));
    if (mount("tmpfs", mount_point.c_str(), "tmpfs", 0, "casefold") != 0)
        GTEST_SKIP() << "cannot mount a casefolded tmpfs on " << mount_point << ": " << strerror(errno)
                     << " (needs root and a kernel with CONFIG_UNICODE)";
    const std::string folder = mount_point + "/folder";
    const std::string error = MakeCaseInsensitiveDir(folder);
    if (error.empty() && WriteFile(folder + "/Data", "d").empty()) {
        EXPECT_TRUE(IsFileExist((folder + "/data").c_str(), false));
        EXPECT_FALSE(IsFileExist((folder + "/data").c_str(), true));
        EXPECT_TRUE(IsFileExist((folder + "/Data").c_str(), true));
        ustring real = (folder + "/DATA").c_str();
        EXPECT_EQ(0, FSGetRealPath(real));
        EXPECT_EQ(folder + "/Data", real.c_str());
    }
    ASSERT_EQ(0, umount(mount_point.c_str())) << mount_point << ": " << strerror(errno);
    ASSERT_EQ("", error);
}

} // namespace
