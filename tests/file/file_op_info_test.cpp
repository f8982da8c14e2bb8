// Looking at the file system: records, canonical paths, existence, listing.
#include <map>

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
    ASSERT_EQ(0, FSUTime(folder + "/data.txt", 0, 1500000000));
    ASSERT_EQ(0, FSUTime(folder + "/flink", 0, 1400000000));
    for (const int flags : {0, static_cast<int>(FS_DIR_STAT)}) {
        DIR_HANDLE handle;
        ASSERT_EQ(0, FSOpenDir(folder, flags, handle));
        std::map<std::string, std::string> seen; // name -> "type mtime size"
        DIR_ENTRY entry;
        int result;
        while ((result = FSReadDir(handle, entry)) == 1)
            if (entry.name != "." && entry.name != ".." && entry.name != kNfd.c_str())
                seen[entry.name.c_str()] = std::to_string(entry.type) + " " + std::to_string(entry.mtime) +
                                           " " + std::to_string(entry.size);
        EXPECT_EQ(0, result);
        FSCloseDir(handle);
        EXPECT_EQ(nullptr, handle.dir);
        const std::map<std::string, std::string> expected = {{"data.txt", flags ? "1 1500000000 5" : "1 0 0"},
                                                             {"flink", flags ? "3 1400000000 8" : "3 0 0"}};
        EXPECT_EQ(expected, seen) << "flags " << flags;
    }
}

TEST_F(TreeTest, ReadLinkFitsUpTo1023Bytes)
{
    for (const size_t length : {1023, 1024}) {
        std::string text;
        while (text.size() < length)
            text += text.size() % 100 == 99 ? '/' : 'a';
        const std::string link = P("link" + std::to_string(length));
        ASSERT_TRUE(MakeLink(text, link)) << strerror(errno);
        ustring out;
        EXPECT_EQ(length < 1024 ? 0 : -1, FSReadSymbolicLink(link, out)) << length << " bytes";
        EXPECT_EQ(length < 1024 ? text : "", out.c_str()) << length << " bytes";
    }
}

} // namespace
