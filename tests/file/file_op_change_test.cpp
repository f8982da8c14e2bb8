// Changing the file system: folders, copies, moves, removal, temporary files.
#include <filesystem>
#include <functional>
#include <set>
#include <vector>

#include "file-op.h"
#include "file_test_support.h"

namespace {

using namespace filetest;
namespace fs = std::filesystem;

const auto IsFolder = [](const std::string& path) { return fs::is_directory(fs::symlink_status(path)); };
const auto ModeOf = [](const std::string& path) { return unsigned(fs::symlink_status(path).permissions()); };

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

// One call on a fresh layout: dir/in, file, dirlink -> dir, src ("payload").
// A failure changes no name in the folder and never harms src. A call that
// must make something adds 1 to its result when it did not.
using In = const std::function<std::string(const std::string&)>&;
struct CallCase {
    const char* name;
    std::function<int(In)> call;
    int result;
};

class CallTest : public FileTest, public ::testing::WithParamInterface<CallCase> {};

TEST_P(CallTest, ReturnsItsCodeAndFailsCleanly)
{
    ASSERT_TRUE(MakeDirs(P("dir")) && WriteFile(P("dir/in"), "i") && WriteFile(P("file"), "f") &&
                MakeLink(P("dir"), P("dirlink")) && WriteFile(P("src"), "payload"));
    const std::set<std::string> before = Listing(root_);
    EXPECT_EQ(GetParam().result,
              GetParam().call([this](const std::string& relative) { return P(relative); }));
    EXPECT_EQ("payload", ReadFile(P("src"))) << "the source was harmed";
    if (GetParam().result != 0) {
        EXPECT_EQ(before, Listing(root_)) << "a failed call changed the folder";
    }
}

const CallCase kCalls[] = {
    {"MkdirParents", [](In p) { return FSMKDir(p("p/q/r"), true) + !IsFolder(p("p/q/r")); }, 0},
    {"MkdirExisting", [](In p) { return FSMKDir(p("dir"), false); }, 0},
    {"MkdirMissingParent", [](In p) { return FSMKDir(p("p/q/r"), false); }, -2},
    {"MkdirOnFile", [](In p) { return FSMKDir(p("file"), true); }, -1},
    {"MkdirOnLinkToFolder", [](In p) { return FSMKDir(p("dirlink"), true); }, -1},
    {"MkdirPOnFileUnforced", [](In p) { return FSMKDirP(p("file"), nullptr, false, 0xFFFF); }, -1},
    {"MkdirPForced", [](In p) { return FSMKDirP(p("file"), nullptr, true, 0xFFFF) + !IsFolder(p("file")); },
     0},
    {"FromRoot", [](In p) { return FSMKDirFromRoot(p("dir/a/b"), p("dir")) + !IsFolder(p("dir/a/b")); }, 0},
    {"FromRootPrefixIsNoParent", [](In p) { return FSMKDirFromRoot(p("dirx/y"), p("dir")); }, -1},
    {"CopyOntoFullDevice", [](In p) { return FSCopy(p("src"), "/dev/full", true); }, -2},
    {"CopyMissingSource", [](In p) { return FSCopy(p("none"), p("dst"), true); }, -1},
    {"CopyIntoMissingFolder", [](In p) { return FSCopy(p("src"), p("none/dst"), true); }, -1},
    {"CopyOntoItself", [](In p) { return FSCopy(p("src"), p("src"), true); }, -1},
    {"RenameViaLink", [](In p) { return FSRename(p("dirlink/in"), p("m"), false) + !Exists(p("m")); }, 0},
    {"RenameViaLinkExact", [](In p) { return FSRename(p("dirlink/in"), p("moved"), true); }, -2},
    {"RenameEmptyPath", [](In p) { return FSRename("", p("x"), false); }, -1},
    {"RenameMissing", [](In p) { return FSRename(p("none"), p("x"), false); }, -2},
    {"RenameLongName", [](In p) { return FSRename(p("src"), p(std::string(300, 'n')), false); }, -100},
    {"RenameIntoItself", [](In p) { return FSRename(p("dir"), p("dir/inside"), false); }, -3},
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
    std::set<std::string> before = Listing(P("tree"));
    EXPECT_EQ(0, FSRename(P("tree"), other_ / "tree", false));
    EXPECT_EQ(before, Listing(other_ / "tree"));
    EXPECT_FALSE(Exists(P("tree"))) << "source folder left behind";

    // A link does not cross devices, so its folder cannot be removed.
    ASSERT_TRUE(MakeLink("a b/deep/two", other_ / "tree/z-link"));
    before = Listing(other_ / "tree");
    EXPECT_EQ(-3, FSRename(other_ / "tree", P("back"), false));
    const std::set<std::string> moved = Listing(P("back")), left = Listing(other_ / "tree");
    for (const std::string& entry : before)
        EXPECT_EQ(1u, moved.count(entry) + left.count(entry)) << entry << " lost or duplicated";

    // A file that cannot be copied (a folder holds its name) stops the move at
    // once. tmpfs lists entries in the order they were made (or its reverse),
    // so of the files made just before and after it, one stays behind.
    ASSERT_TRUE(MakeDirs(other_ / "t") && WriteFile(other_ / "t/A", "a") && WriteFile(other_ / "t/S", "s") &&
                WriteFile(other_ / "t/B", "b") && MakeDirs(P("t/S")));
    EXPECT_EQ(-3, FSRename(other_ / "t", P("t"), false));
    EXPECT_NE(Exists(other_ / "t/A"), Exists(other_ / "t/B")) << "the move went on after a failed entry";
}

TEST_F(FileTest, FSRemoveRemovesTreesAndLinksButNeverLinkTargetsAndStopsWhereRefused)
{
    ASSERT_TRUE(MakeTree(root_) && MakeDirs(P("kept")) && WriteFile(P("kept/file"), "k"));
    ASSERT_TRUE(MakeLink(P("kept"), P("tree/a b/to-kept")) && MakeLink(P("kept"), P("link")));
    EXPECT_EQ(0, FSRemove(P("link"), false));
    EXPECT_EQ(0, FSRemove(P("tree"), false));
    EXPECT_FALSE(Exists(P("tree")) || Exists(P("link")));
    EXPECT_EQ("k", ReadFile(P("kept/file"))) << "removal followed a link";

    // nobody owns "tree" but not "tree/a b", whose entries it may not remove.
    ASSERT_TRUE(MakeTree(root_));
    ASSERT_EQ(0, chown(P("tree").c_str(), 65534, 65534)) << strerror(errno);
    const pid_t child = fork();
    if (child == 0)
        _exit(setgid(65534) != 0 || setuid(65534) != 0 ? 99 : -FSRemove(P("tree"), false));
    const int status = Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 3) << "not -3 as nobody: wait status " << status;
    EXPECT_EQ("1", ReadFile(P("tree/a b/one")));
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
