// Looking at the file system: records, canonical paths, existence, listing.
#include <map>

#include "file-op.h"
#include "file_test_support.h"

namespace {

using namespace filetest;

const char kNfdName[] = "Cafe\xCC\x81 menu.txt"; // e + combining acute, as macOS stores it
const char kNfcName[] = "Caf\xC3\xA9 menu.txt";

// real/sub dir/{data.txt, NFD name, flink -> data.txt}, link -> <abs real>,
// rel -> "real/sub dir", chain -> link.
class TreeTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        ASSERT_TRUE(MakeDirs(P("real/sub dir")) && WriteFile(P("real/sub dir/data.txt"), "12345") &&
                    WriteFile(P("real/sub dir/") + kNfdName, "x") &&
                    MakeLink("data.txt", P("real/sub dir/flink")) && MakeLink(P("real"), P("link")) &&
                    MakeLink("real/sub dir", P("rel")) && MakeLink("link", P("chain")))
            << "tree: " << strerror(errno);
    }
};

// exact: whether IsFileExist with exact set finds the path as given.
struct LookupCase {
    const char* name;
    std::string given;
    std::string canonical; // the given path when missing
    int type;
    bool exact;
};

class LookupTest : public TreeTest, public ::testing::WithParamInterface<LookupCase> {};

TEST_P(LookupTest, ResolvesFoldersKeepsFinalLinkAndFindsExactSpellingsOnly)
{
    const LookupCase& row = GetParam();
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo(P(row.given), info));
    EXPECT_EQ(row.type, info.type);
    EXPECT_EQ(row.type != FS_TYPE_NONE, info.exist);
    EXPECT_EQ(row.type != FS_TYPE_NONE, IsFileExist(P(row.given), false)) << "not exact";
    EXPECT_EQ(row.exact, IsFileExist(P(row.given), true)) << "exact";
    EXPECT_EQ(P(row.canonical), info.path.c_str());
    EXPECT_EQ(FSBaseName(info.path), info.name);
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, LookupTest,
    ::testing::Values(
        LookupCase{"LinkedFolder", "link/sub dir/data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR, false},
        LookupCase{"RelativeLink", "rel/data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR, false},
        LookupCase{"LinkChain", "chain/sub dir", "real/sub dir", FS_TYPE_DIR, false},
        LookupCase{"FinalLinkKept", "real/sub dir/flink", "real/sub dir/flink", FS_TYPE_SYMLINK, true},
        LookupCase{"FinalFolderLinkKept", "link", "link", FS_TYPE_SYMLINK, true},
        LookupCase{"FinalSlash", "real/", "real", FS_TYPE_DIR, false},
        LookupCase{"DotDotAfterLink", "rel/../sub dir/./data.txt", "real/sub dir/data.txt", FS_TYPE_REGULAR,
                   false},
        LookupCase{"DecomposedName", std::string("link/sub dir/") + kNfdName,
                   std::string("real/sub dir/") + kNfcName, FS_TYPE_REGULAR, false},
        LookupCase{"ComposedFindsDecomposed", std::string("real/sub dir/") + kNfcName,
                   std::string("real/sub dir/") + kNfcName, FS_TYPE_REGULAR, true},
        LookupCase{"OtherCaseOnCaseSensitiveDisk", "REAL/sub dir/data.txt", "REAL/sub dir/data.txt",
                   FS_TYPE_NONE, false}),
    RowName());

TEST_F(TreeTest, GetFileInfoAndFSGetRealPath)
{
    const std::string path = P("real/sub dir/data.txt");
    ASSERT_EQ(0, FSUTime(path, 1000, 1234567890));
    struct stat st;
    ASSERT_EQ(0, lstat(path.c_str(), &st)) << strerror(errno);
    _FILE_INFO_tag info;
    ASSERT_EQ(0, GetFileInfo(path, info));
    EXPECT_TRUE(Logged("[DEBUG]", "FSRefMakePath outTargetPath path = [" + path + "]."));
    EXPECT_EQ(std::make_tuple(1234567890L, int64_t{5}, st.st_uid, st.st_gid, st.st_mode, int64_t(st.st_dev)),
              std::make_tuple(info.mtime, info.size, info.uid, info.gid, info.mode, info.dev))
        << "mtime, size, uid, gid, mode, dev";

    ASSERT_EQ(0, GetFileInfo(P("real/gone"), info));
    EXPECT_EQ(std::make_tuple(false, int{FS_TYPE_NONE}, P("real/gone"), std::string("gone")),
              std::make_tuple(info.exist, info.type, std::string(info.path.c_str()),
                              std::string(info.name.c_str())));
    EXPECT_EQ(0, info.size + info.mtime + info.uid + info.gid + info.mode + info.dev) << "fields not reset";
    EXPECT_EQ(-1, GetFileInfo(path + "/x", info)) << "below a file";
    EXPECT_EQ(P("real/gone"), info.path.c_str()) << "a failed look-up changed the record";

    ustring real = P("link/sub dir/flink");
    ASSERT_EQ(0, FSGetRealPath(real)) << "final link followed";
    EXPECT_EQ(path, real.c_str());
    ustring missing = P("link/none");
    EXPECT_EQ(-1, FSGetRealPath(missing));
    EXPECT_EQ(P("link/none"), missing.c_str()) << "a failed look-up changed the path";
}

TEST_F(TreeTest, FSStatOnMissingPathClearsOnlyExist)
{
    _FILE_INFO_tag info;
    ASSERT_EQ(0, FSStat(P("real/sub dir/data.txt"), info, true));
    const _FILE_INFO_tag before = info;
    ASSERT_TRUE(before.exist);
    ASSERT_EQ(0, FSStat(P("real/none"), info, false));
    EXPECT_FALSE(info.exist);
    info.exist = true;
    EXPECT_TRUE(info == before) << "fields other than exist changed";
    EXPECT_EQ(before.mode, info.mode);
    EXPECT_EQ(-1, FSStat("", info, false));
}

TEST(FileInfoTest, EqualityIgnoresOwnerModeAndDevice)
{
    _FILE_INFO_tag a, b[7];
    b[0].exist = true, b[1].size = 1, b[2].mtime = 1, b[3].type = 2, b[4].path = "/c", b[5].name = "c";
    b[6].uid = b[6].gid = b[6].mode = b[6].dev = 5;
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(i == 6, a == b[i]) << "change " << i
                                     << " of exist, size, mtime, type, path, name, uid+gid+mode+dev";
        EXPECT_EQ(i != 6, a != b[i]) << "change " << i;
    }
}

// Types come from the entries themselves; FS_DIR_STAT adds times and sizes,
// and an entry removed after the folder was read comes back with zeros.
TEST_F(TreeTest, FSReadDirListsTypesAndStatData)
{
    const std::string folder = P("real/sub dir");
    ASSERT_EQ(0, FSUTime(folder + "/data.txt", 0, 1500000000));
    ASSERT_EQ(0, FSUTime(folder + "/flink", 0, 1400000000));
    ASSERT_EQ(0, FSUTime(folder + "/" + kNfdName, 0, 1300000000));
    for (const int flags : {0, static_cast<int>(FS_DIR_STAT)}) {
        ASSERT_TRUE(WriteFile(folder + "/gone", "gone"));
        ASSERT_EQ(0, FSUTime(folder + "/gone", 0, 1600000000));
        DIR_HANDLE handle;
        ASSERT_EQ(0, FSOpenDir(folder, flags, handle));
        std::map<std::string, std::string> seen; // name -> "type mtime size"
        std::string first;
        DIR_ENTRY entry;
        int result;
        while ((result = FSReadDir(handle, entry)) == 1) {
            if (first.empty() && (first = entry.name.c_str()) != "gone")
                unlink((folder + "/gone").c_str()); // the stream has already read it
            const bool dot = entry.name == "." || entry.name == "..";
            seen[entry.name.c_str()] =
                std::to_string(entry.type) +
                (dot ? "" : " " + std::to_string(entry.mtime) + " " + std::to_string(entry.size));
        }
        EXPECT_EQ(0, result);
        FSCloseDir(handle);
        EXPECT_EQ(nullptr, handle.dir);
        EXPECT_TRUE(handle.path.empty());
        const auto data = [&](const std::string& stat) { return flags == FS_DIR_STAT ? stat : "0 0"; };
        const std::map<std::string, std::string> expected = {
            {".", "2"},
            {"..", "2"},
            {"data.txt", "1 " + data("1500000000 5")},
            {"flink", "3 " + data("1400000000 8")},
            {kNfdName, "1 " + data("1300000000 1")},
            {"gone", "1 " + (first == "gone" ? data("1600000000 4") : "0 0")}};
        EXPECT_EQ(expected, seen) << "flags " << flags;
    }
}

TEST_F(TreeTest, ReadLinkFitsUpTo1023BytesAndLookupsOnMissingPathsSayWhy)
{
    for (const size_t length : {1023, 1024}) {
        std::string text;
        while (text.size() < length)
            text += text.size() % 100 == 99 ? '/' : 'a';
        const std::string link = P("link" + std::to_string(length));
        ASSERT_TRUE(MakeLink(text, link)) << strerror(errno);
        ustring out;
        EXPECT_EQ(length < 1024 ? 0 : -1, FSReadSymbolicLink(link, out)) << length << " bytes";
        if (length < 1024) {
            EXPECT_EQ(text, out.c_str());
        }
    }
    EXPECT_TRUE(Logged("[ERROR]", "FSReadSymbolicLink: path of '" + P("link1024") + "' is more than 1024"));

    const std::string missing = P("none"), error = "No such file or directory";
    ustring out;
    DIR_HANDLE handle;
    EXPECT_EQ(-1, FSReadSymbolicLink(missing, out));
    EXPECT_EQ(-1, FSOpenDir(missing, 0, handle));
    EXPECT_FALSE(isMountPoint(missing) || IsMSDOS(missing) || isMountPoint(root_) || IsMSDOS(root_));
    EXPECT_TRUE(Logged("[ERROR]", "FSReadSymbolicLink: Failed to read symbolic link '" + missing +
                                      "' (code: 2, msg: " + error + ")"));
    EXPECT_TRUE(Logged("[ERROR]", "FSOpenDir: Failed to open directory '" + missing + "'. " + error));
    EXPECT_TRUE(
        Logged("[ERROR]", "isMountPoint: Failed to get file system info '" + missing + "'. " + error));
    EXPECT_TRUE(
        Logged("[ERROR]", "IsSupportLargeFile: Failed to get file system info '" + missing + "'. " + error));
}

TEST_F(TreeTest, AccessTestsTellRefusalFromAbsence)
{
    const std::string secret = P("real/secret"), open = P("real/sub dir/data.txt"), missing = P("real/none");
    ASSERT_TRUE(WriteFile(secret, "s", 0600));
    // One bit per expectation that failed, so the parent can name it.
    const int failed = RunAsNobody([&] {
        return (isFileLocked(secret, R_OK) ? 0 : 1) | (hasFilePermission(secret, R_OK) ? 2 : 0) |
               (isFileLocked(open, R_OK) ? 4 : 0) | (hasFilePermission(open, R_OK) ? 0 : 8) |
               (isFileLocked(missing, R_OK) ? 16 : 0) | (hasFilePermission(missing, R_OK) ? 0 : 32);
    });
    EXPECT_EQ(0, failed) << "bits: 1/2 unreadable file, 4/8 readable file, 16/32 missing file";
}

} // namespace
