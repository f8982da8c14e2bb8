// Looking at the file system: records, canonical paths, existence, listing.
#include <set>

#include "file-op.h"
#include "file_test_support.h"

namespace {

using namespace filetest;

const std::string kNfd = "Cafe\xCC\x81", kNfc = "Caf\xC3\xA9"; // e + combining acute, as macOS stores it
constexpr int kFile = FS_TYPE_REGULAR, kDir = FS_TYPE_DIR, kLink = FS_TYPE_SYMLINK, kNone = FS_TYPE_NONE;

// real/sub dir/{data.txt, NFD name, flink -> data.txt}, link -> <abs real>,
// rel -> "real/sub dir", chain -> link.
class TreeTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        ASSERT_TRUE(MakeDirs(P("real/sub dir")) && WriteFile(P("real/sub dir/data.txt"), "12345") &&
                    WriteFile(P("real/sub dir/") + kNfd, "x") &&
                    MakeLink("data.txt", P("real/sub dir/flink")) && MakeLink(P("real"), P("link")) &&
                    MakeLink("real/sub dir", P("rel")) && MakeLink("link", P("chain")))
            << "tree: " << strerror(errno);
    }
};

// exact: whether IsFileExist with exact set finds the path as given.
struct LookupCase {
    const char* name;
    std::string given, canonical; // canonical: the given path when missing
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
    EXPECT_EQ(row.type != FS_TYPE_NONE, IsFileExist(P(row.given), false)) << "not exact";
    EXPECT_EQ(row.exact, IsFileExist(P(row.given), true)) << "exact";
    EXPECT_EQ(P(row.canonical), info.path.c_str());
}

const LookupCase kLayouts[] = {
    {"LinkedFolder", "link/sub dir/data.txt", "real/sub dir/data.txt", kFile, false},
    {"RelativeLink", "rel/data.txt", "real/sub dir/data.txt", kFile, false},
    {"LinkChain", "chain/sub dir", "real/sub dir", kDir, false},
    {"FinalLinkKept", "real/sub dir/flink", "real/sub dir/flink", kLink, true},
    {"FinalSlash", "real/", "real", kDir, false},
    {"DotDotAfterLink", "rel/../sub dir/./data.txt", "real/sub dir/data.txt", kFile, false},
    {"DecomposedName", "link/sub dir/" + kNfd, "real/sub dir/" + kNfc, kFile, false},
    {"ComposedFindsDecomposed", "real/sub dir/" + kNfc, "real/sub dir/" + kNfc, kFile, true},
    {"OtherCase", "REAL/sub dir/data.txt", "REAL/sub dir/data.txt", kNone, false},
};
INSTANTIATE_TEST_SUITE_P(Layouts, LookupTest, ::testing::ValuesIn(kLayouts), RowName());

// Types come from the entries themselves; FS_DIR_STAT adds times and sizes.
TEST_F(TreeTest, FSReadDirListsTypesAndStatData)
{
    const std::string folder = P("real/sub dir");
    ASSERT_TRUE(FSUTime(folder + "/flink", 0, 1400000000) == 0 &&
                FSUTime(folder + "/data.txt", 0, 1500000000) == 0);
    for (const int flags : {0, int{FS_DIR_STAT}}) {
        DIR_HANDLE handle;
        ASSERT_EQ(0, FSOpenDir(folder, flags, handle));
        std::set<std::string> seen; // "name type mtime size"
        DIR_ENTRY entry;
        int result;
        while ((result = FSReadDir(handle, entry)) == 1)
            seen.insert(std::string(entry.name.c_str()) + " " + std::to_string(entry.type) + " " +
                        std::to_string(entry.mtime) + " " + std::to_string(entry.size));
        FSCloseDir(handle);
        EXPECT_EQ(0, result);
        EXPECT_EQ(1u, seen.count(flags ? "flink 3 1400000000 8" : "flink 3 0 0")) << "flags " << flags;
        EXPECT_EQ(1u, seen.count(flags ? "data.txt 1 1500000000 5" : "data.txt 1 0 0")) << "flags " << flags;
    }
}

TEST_F(TreeTest, ReadLinkFitsUpTo1023Bytes)
{
    std::string text;
    while (text.size() < 1024)
        text += "123456789/";
    ustring out;
    ASSERT_TRUE(MakeLink(text.substr(0, 1023), P("fits")) && MakeLink(text.substr(0, 1024), P("over")));
    EXPECT_EQ(0, FSReadSymbolicLink(P("fits"), out));
    EXPECT_EQ(text.substr(0, 1023), out.c_str());
    EXPECT_EQ(-1, FSReadSymbolicLink(P("over"), out)) << "1024 bytes do not fit";
}

} // namespace
