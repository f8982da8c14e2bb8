// Changing the file system: folders, copies, moves, removal, temporary files.
#include <filesystem>
#include <set>
#include <vector>

#include "file-op.h"
#include "file_test_support.h"

namespace {

using namespace filetest;
namespace fs = std::filesystem;

bool IsFolder(const std::string& path)
{
    return fs::is_directory(fs::symlink_status(path));
}

unsigned ModeOf(const std::string& path)
{
    return static_cast<unsigned>(fs::symlink_status(path).permissions());
}

// Every path below folder, relative to it, folders with a final "/".
std::set<std::string> Listing(const std::string& folder)
{
    std::set<std::string> names;
    std::error_code error;
    for (fs::recursive_directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        names.insert(it->path().lexically_relative(folder).string() + (IsFolder(it->path()) ? "/" : ""));
    if (error)
        names.insert("<cannot list " + folder + ": " + error.message() + ">");
    return names;
}

// <root>/tree: "a b/one" (1), "a b/deep/two" (22), an NFD name, "empty/".
bool MakeTree(const std::string& root)
{
    return MakeDirs(root + "/tree/a b/deep") && MakeDirs(root + "/tree/empty") &&
           WriteFile(root + "/tree/a b/one", "1") && WriteFile(root + "/tree/a b/deep/two", "22") &&
           WriteFile(root + "/tree/Cafe\xCC\x81", "nfd");
}

struct MkdirCase {
    const char* name;
    const char* path;
    bool parents;
    int result;
};

class MkdirTest : public FileTest, public ::testing::WithParamInterface<MkdirCase> {};

TEST_P(MkdirTest, CreatesFoldersOnlyWhereNothingElseIs)
{
    ASSERT_TRUE(MakeDirs(P("dir")) && WriteFile(P("file"), "f") && MakeLink(P("dir"), P("dirlink")));
    const std::string path = P(GetParam().path);
    EXPECT_EQ(GetParam().result, FSMKDir(path, GetParam().parents));
    EXPECT_EQ(GetParam().result == 0, IsFolder(path)) << path;
}

const MkdirCase kLayouts[] = {
    {"WithParents", "p/q/r", true, 0},     {"ExistingFolder", "dir", false, 0},
    {"MissingParent", "p/q/r", false, -2}, {"ExistingFile", "file", true, -1},
    {"LinkToFolder", "dirlink", true, -1},
};
INSTANTIATE_TEST_SUITE_P(Layouts, MkdirTest, ::testing::ValuesIn(kLayouts), RowName());

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

TEST_F(FileTest, FSMKDirPReplacesAFileOnlyWhenForcedAndFromRootStaysBelowIt)
{
    ASSERT_TRUE(WriteFile(P("file"), "f") && MakeDirs(P("base")));
    EXPECT_EQ(-1, FSMKDirP(P("file"), nullptr, false, 0xFFFF));
    EXPECT_EQ(0, FSMKDirP(P("file"), nullptr, true, 0xFFFF)) << "force must replace the file";
    EXPECT_TRUE(IsFolder(P("file")));
    EXPECT_EQ(0, FSMKDirFromRoot(P("base/a/b"), P("base")));
    EXPECT_TRUE(IsFolder(P("base/a/b")));
    EXPECT_EQ(-1, FSMKDirFromRoot(P("basex/y"), P("base"))) << "a prefix taken for the parent";
    EXPECT_FALSE(Exists(P("basex")));
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

struct CopyFailure {
    const char* name;
    const char* source;
    const char* destination; // relative to the scratch folder, or absolute
    int result;
};

class CopyFailureTest : public FileTest, public ::testing::WithParamInterface<CopyFailure> {};

TEST_P(CopyFailureTest, KeepsTheSource)
{
    const CopyFailure& row = GetParam();
    ASSERT_TRUE(WriteFile(P("src"), "payload"));
    const std::string destination = *row.destination == '/' ? row.destination : P(row.destination);
    EXPECT_EQ(row.result, FSCopy(P(row.source), destination, true));
    EXPECT_EQ("payload", ReadFile(P("src"))) << "the source was harmed";
}

const CopyFailure kFailures[] = {
    {"OntoFullDevice", "src", "/dev/full", -2},
    {"MissingSource", "none", "dst", -1},
    {"MissingFolder", "src", "none/dst", -1},
    {"OntoItself", "src", "src", -1},
};
INSTANTIATE_TEST_SUITE_P(Failures, CopyFailureTest, ::testing::ValuesIn(kFailures), RowName());

TEST_F(FileTest, FSRenameWithinOneDevice)
{
    ASSERT_TRUE(MakeTree(root_) && MakeLink(P("tree"), P("link")));
    EXPECT_EQ(-2, FSRename(P("link/a b"), P("moved"), true)) << "linked folder, exact";
    EXPECT_EQ(0, FSRename(P("link/a b"), P("moved"), false));
    EXPECT_EQ("22", ReadFile(P("moved/deep/two")));
    EXPECT_EQ(-1, FSRename("", P("x"), false));
    EXPECT_EQ(-2, FSRename(P("none"), P("x"), false));
    EXPECT_EQ(-100, FSRename(P("tree"), P(std::string(300, 'n')), false));
    EXPECT_EQ(-3, FSRename(P("tree"), P("tree/empty/inside"), false));
    EXPECT_EQ((std::set<std::string>{"Cafe\xCC\x81", "empty/"}), Listing(P("tree")))
        << "failed moves changed the tree";
}

// other_: a scratch folder on another device than the fixture's.
class CrossDeviceTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        char other[] = "/dev/shm/calderix-file-XXXXXX";
        if (mkdtemp(other) == nullptr)
            GTEST_SKIP() << "no folder on /dev/shm for a second device: " << strerror(errno);
        other_ = other;
        struct stat here, there;
        ASSERT_TRUE(stat(root_.c_str(), &here) == 0 && stat(other, &there) == 0) << strerror(errno);
        if (here.st_dev == there.st_dev)
            GTEST_SKIP() << root_ << " and " << other_ << " are on the same device";
        ASSERT_TRUE(MakeTree(root_));
    }
    void TearDown() override
    {
        EXPECT_TRUE(other_.empty() || testsupport::RemoveTree(other_)) << other_;
        FileTest::TearDown();
    }
    std::string other_;
};

TEST_F(CrossDeviceTest, FSRenameMovesEveryEntryOrLosesNoneWhenStopped)
{
    EXPECT_EQ(0, FSRename(P("tree/a b/one"), other_ + "/one", true));
    EXPECT_EQ("1", ReadFile(other_ + "/one"));
    EXPECT_FALSE(Exists(P("tree/a b/one")));
    std::set<std::string> before = Listing(P("tree"));
    EXPECT_EQ(0, FSRename(P("tree"), other_ + "/tree", false));
    EXPECT_EQ(before, Listing(other_ + "/tree"));
    EXPECT_EQ("22", ReadFile(other_ + "/tree/a b/deep/two"));
    EXPECT_FALSE(Exists(P("tree"))) << "source folder left behind";

    // A link does not cross devices, so its folder cannot be removed.
    ASSERT_TRUE(MakeLink("a b/deep/two", other_ + "/tree/z-link"));
    before = Listing(other_ + "/tree");
    EXPECT_EQ(-3, FSRename(other_ + "/tree", P("back"), false));
    EXPECT_TRUE(Exists(other_ + "/tree/z-link"));
    const std::set<std::string> moved = Listing(P("back")), left = Listing(other_ + "/tree");
    for (const std::string& entry : before)
        EXPECT_EQ(1u, moved.count(entry) + left.count(entry)) << entry << " lost or duplicated";
}

TEST_F(FileTest, FSRemoveRemovesTreesAndLinksButNeverLinkTargetsAndStopsWhereRefused)
{
    ASSERT_TRUE(MakeTree(root_) && MakeDirs(P("kept")) && WriteFile(P("kept/file"), "k"));
    ASSERT_TRUE(MakeLink(P("kept"), P("tree/a b/to-kept")) && MakeLink(P("kept"), P("link")));
    EXPECT_EQ(0, FSRemove(P("link"), false));
    EXPECT_EQ(0, FSRemove(P("tree"), false));
    EXPECT_FALSE(Exists(P("tree")) || Exists(P("link")));
    EXPECT_EQ("k", ReadFile(P("kept/file"))) << "removal followed a link";
    EXPECT_EQ(0, FSRemove(P("none"), false));
    EXPECT_EQ(-1, FSRemove(P("kept/file/x"), false));

    // nobody owns "tree" but not "tree/a b", whose entries it may not remove.
    ASSERT_TRUE(MakeTree(root_) && MakeDirs(P("closed"), 0700));
    ASSERT_EQ(0, chown(P("tree").c_str(), 65534, 65534)) << strerror(errno);
    EXPECT_EQ(3, RunAsNobody([&] { return -FSRemove(P("tree"), false); })) << "result other than -3";
    EXPECT_EQ("1", ReadFile(P("tree/a b/one")));
    EXPECT_EQ(0, RunAsNobody([&] { return -FSRemove(P("closed"), false); })) << "unlistable folder not 0";
    EXPECT_TRUE(IsFolder(P("closed")));
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
