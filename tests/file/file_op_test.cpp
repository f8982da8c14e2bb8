// The file module: looking at the file system (records, canonical paths,
// existence, listings) and changing it (folders, copies, moves, removal,
// temporary files).
#include <filesystem>
#include <functional>
#include <vector>

#include "file-op.h"
#include "file_test_support.h"
#include "tree_snapshot.h"

namespace {

using namespace filetest;
namespace fs = std::filesystem;

const auto IsFolder = [](const std::string& path) { return fs::is_directory(fs::symlink_status(path)); };
const auto ModeOf = [](const std::string& path) { return unsigned(fs::symlink_status(path).permissions()); };

// <root>/tree: "a b/one" (1), "a b/deep/two" (22), an NFD name, "empty/".
bool MakeTree(const std::string& root)
{
    return MakeDirs(root + "/tree/a b/deep") && MakeDirs(root + "/tree/empty") &&
           WriteFile(root + "/tree/a b/one", "1") && WriteFile(root + "/tree/a b/deep/two", "22") &&
           WriteFile(root + "/tree/Cafe\xCC\x81", "nfd");
}

const std::string kNfd = "Cafe\xCC\x81", kNfc = "Caf\xC3\xA9"; // e + combining acute, as macOS stores it
constexpr int kFile = FS_TYPE_REGULAR, kDir = FS_TYPE_DIR, kLink = FS_TYPE_SYMLINK, kNone = FS_TYPE_NONE;

// real/sub dir/{data.txt, NFD name, flink -> data.txt}, link -> <abs real>,
// rel -> "real/sub dir", chain -> link, file ("f") and src ("payload").
class TreeTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        ASSERT_TRUE(MakeDirs(P("real/sub dir")) && WriteFile(P("real/sub dir/data.txt"), "12345") &&
                    WriteFile(P("real/sub dir/") + kNfd, "x") &&
                    MakeLink("data.txt", P("real/sub dir/flink")) && MakeLink(P("real"), P("link")) &&
                    MakeLink("real/sub dir", P("rel")) && MakeLink("link", P("chain")) &&
                    WriteFile(P("file"), "f") && WriteFile(P("src"), "payload"))
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

TEST_F(FileTest, ReadLinkFitsUpTo1023Bytes)
{
    const std::string text(1024, 'x');
    ustring out;
    ASSERT_TRUE(MakeLink(text.substr(0, 1023), P("fits")) && MakeLink(text.substr(0, 1024), P("over")));
    EXPECT_EQ(0, FSReadSymbolicLink(P("fits"), out));
    EXPECT_EQ(text.substr(0, 1023), out.c_str());
    EXPECT_EQ(-1, FSReadSymbolicLink(P("over"), out)) << "1024 bytes do not fit";
}

// One call on a fresh tree. A failure changes no name in the folder and never
// harms src. A call that must make something adds 1 to its result when it
// did not.
using In = const std::function<std::string(const std::string&)>&;
struct CallCase {
    const char* name;
    std::function<int(In)> call;
    int result;
};

class CallTest : public TreeTest, public ::testing::WithParamInterface<CallCase> {};

TEST_P(CallTest, ReturnsItsCodeAndFailsCleanly)
{
    const Tree before = Snapshot(root_);
    EXPECT_EQ(GetParam().result,
              GetParam().call([this](const std::string& relative) { return P(relative); }));
    EXPECT_EQ("payload", ReadFile(P("src"))) << "the source was harmed";
    if (GetParam().result != 0) {
        EXPECT_TRUE(SameTree(before, Snapshot(root_))) << "a failed call changed the folder";
    }
}

const CallCase kCalls[] = {
    {"MkdirParents", [](In p) { return FSMKDir(p("p/q/r"), true) + !IsFolder(p("p/q/r")); }, 0},
    {"MkdirExisting", [](In p) { return FSMKDir(p("real"), false); }, 0},
    {"MkdirMissingParent", [](In p) { return FSMKDir(p("p/q/r"), false); }, -2},
    {"MkdirOnFile", [](In p) { return FSMKDir(p("file"), true); }, -1},
    {"MkdirOnLinkToFolder", [](In p) { return FSMKDir(p("link"), true); }, -1},
    {"MkdirPOnFileUnforced", [](In p) { return FSMKDirP(p("file"), nullptr, false, 0xFFFF); }, -1},
    {"MkdirPForced", [](In p) { return FSMKDirP(p("file"), nullptr, true, 0xFFFF) + !IsFolder(p("file")); },
     0},
    {"FromRoot", [](In p) { return FSMKDirFromRoot(p("real/a/b"), p("real")) + !IsFolder(p("real/a/b")); },
     0},
    {"FromRootPrefixIsNoParent", [](In p) { return FSMKDirFromRoot(p("realx/y"), p("real")); }, -1},
    {"CopyOntoFullDevice", [](In p) { return FSCopy(p("src"), "/dev/full", true); }, -2},
    {"CopyMissingSource", [](In p) { return FSCopy(p("none"), p("dst"), true); }, -1},
    {"CopyIntoMissingFolder", [](In p) { return FSCopy(p("src"), p("none/dst"), true); }, -1},
    {"CopyOntoItself", [](In p) { return FSCopy(p("src"), p("src"), true); }, -1},
    {"RenameViaLink",
     [](In p) { return FSRename(p("link/sub dir/data.txt"), p("m"), false) + !Exists(p("m")); }, 0},
    {"RenameViaLinkExact", [](In p) { return FSRename(p("link/sub dir/data.txt"), p("moved"), true); }, -2},
    {"RenameEmptyPath", [](In p) { return FSRename("", p("x"), false); }, -1},
    {"RenameMissing", [](In p) { return FSRename(p("none"), p("x"), false); }, -2},
    {"RenameLongName", [](In p) { return FSRename(p("src"), p(std::string(300, 'n')), false); }, -100},
    {"RenameIntoItself", [](In p) { return FSRename(p("real"), p("real/inside"), false); }, -3},
    {"RemoveMissing", [](In p) { return FSRemove(p("none"), false); }, 0},
    {"RemoveBelowFile", [](In p) { return FSRemove(p("file/x"), false); }, -1},
};
INSTANTIATE_TEST_SUITE_P(Calls, CallTest, ::testing::ValuesIn(kCalls), RowName());

// A given mode applies exactly, 0xFFFF means 0777 under the umask, and the
// umask survives.
TEST_F(FileTest, FSMKDirPModes)
{
    const mode_t original = umask(0277);
    const int result = FSMKDirP(P("a/b"), nullptr, false, 0770) + FSMKDirP(P("c"), nullptr, false, 0xFFFF);
    const mode_t after = umask(original);
    ASSERT_EQ(0, result);
    EXPECT_EQ((std::vector<unsigned>{0770, 0770, 0500, 0277}),
              (std::vector<unsigned>{ModeOf(P("a")), ModeOf(P("a/b")), ModeOf(P("c")), after}))
        << "modes of a parent, its folder, a folder under the umask, and the umask";
}

TEST_F(FileTest, FSCopyCopiesEveryByte)
{
    // One byte more than a 32 MiB block, in a pattern that shows misplaced blocks,
    // over a longer file that must be cut.
    std::string big(33554432 + 1, '\0');
    for (size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>(i / 4093);
    ASSERT_TRUE(WriteFile(P("big"), big) && WriteFile(P("big.copy"), std::string(40000000, 'x')));
    EXPECT_EQ(0, FSCopy(P("big"), P("big.copy"), true));
    EXPECT_TRUE(big == ReadFile(P("big.copy"))) << "copy differs from the 32 MiB + 1 source";
    EXPECT_FALSE(Exists(P("big"))) << "source not removed";
}

// other_: a scratch folder on another device than the fixture's.
class CrossDeviceTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        struct stat here, there;
        ASSERT_TRUE(stat(root_.c_str(), &here) == 0 && stat(other_.path().c_str(), &there) == 0);
        if (here.st_dev == there.st_dev)
            GTEST_SKIP() << root_ << " and " << other_.path() << " are on the same device";
        ASSERT_TRUE(MakeTree(root_));
    }
    TempDir other_{"calderix-file", "/dev/shm"};
};

TEST_F(CrossDeviceTest, FSRenameMovesEveryEntryOrLosesNoneWhenStopped)
{
    EXPECT_EQ(0, FSRename(P("tree/a b/one"), other_ / "one", true));
    EXPECT_TRUE(ReadFile(other_ / "one") == "1" && !Exists(P("tree/a b/one"))) << "file not moved";
    Tree before = Snapshot(P("tree"));
    EXPECT_EQ(0, FSRename(P("tree"), other_ / "tree", false));
    EXPECT_TRUE(SameTree(before, Snapshot(other_ / "tree")));
    EXPECT_FALSE(Exists(P("tree"))) << "source folder left behind";

    // A link does not cross devices, so its folder cannot be removed.
    ASSERT_TRUE(MakeLink("a b/deep/two", other_ / "tree/z-link"));
    before = Snapshot(other_ / "tree");
    EXPECT_EQ(-3, FSRename(other_ / "tree", P("back"), false));
    const Tree moved = Snapshot(P("back")), left = Snapshot(other_ / "tree");
    for (const auto& entry : before)
        EXPECT_EQ(1u, moved.count(entry.first) + left.count(entry.first))
            << entry.first << " lost or duplicated";

    // A file that cannot be copied (a folder holds its name) stops the move at
    // once. tmpfs lists entries in the order they were made (or its reverse),
    // so of the files made just before and after it, one stays behind.
    ASSERT_TRUE(MakeDirs(other_ / "t") && WriteFile(other_ / "t/A", "a") && WriteFile(other_ / "t/S", "s") &&
                WriteFile(other_ / "t/B", "b") && MakeDirs(P("t/S")));
    EXPECT_EQ(-3, FSRename(other_ / "t", P("t"), false));
    EXPECT_NE(Exists(other_ / "t/A"), Exists(other_ / "t/B")) << "the move went on after a failed entry";
}

TEST_F(TreeTest, FSRemoveRemovesTreesAndLinksButNeverLinkTargetsAndStopsWhereRefused)
{
    // nobody owns "real" but not "real/sub dir", whose entries it may not remove.
    ASSERT_EQ(0, chown(P("real").c_str(), 65534, 65534)) << strerror(errno);
    const pid_t child = fork();
    if (child == 0)
        _exit(setgid(65534) != 0 || setuid(65534) != 0 ? 99 : -FSRemove(P("real"), false));
    const int status = Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 3) << "not -3 as nobody: wait status " << status;

    ASSERT_TRUE(MakeTree(root_) && MakeLink(P("real"), P("tree/a b/to-real")));
    EXPECT_EQ(0, FSRemove(P("link"), false));
    EXPECT_EQ(0, FSRemove(P("tree"), false));
    EXPECT_FALSE(Exists(P("tree")) || Exists(P("link")));
    EXPECT_EQ("12345", ReadFile(P("real/sub dir/data.txt")))
        << "a refused removal or a followed link took it";
}

TEST_F(FileTest, TemporaryFilesAndParents)
{
    const mode_t original = umask(077);
    ustring first, second, out;
    const int made = FSMktemp(root_, first) + FSMktemp(root_, second);
    umask(original);
    ASSERT_EQ(0, made);
    EXPECT_NE(first, second);
    EXPECT_EQ(root_, FSParentPath(first).c_str());
    EXPECT_EQ("/", FSParentPath("/top")) << "parent of a top-level path";
    EXPECT_EQ(0644u, ModeOf(first.c_str())) << "mode of the empty file";
    EXPECT_EQ(-1, FSMktemp(P("none"), out));
    ASSERT_EQ(0, FSCreateTempPath(root_, out));
    EXPECT_EQ(root_ + "/", std::string(out.c_str()).substr(0, root_.size() + 1)) << out;
    EXPECT_FALSE(Exists(out.c_str())) << "a temporary path must not be created";
}

} // namespace
