// Changing the file system: folders, copies, moves, removal, temporary files.
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

#include "file-op.h"
#include "file_test_support.h"

using filetest::Exists;
using filetest::MakeDir;
using filetest::MakeLink;
using filetest::ReadFile;
using filetest::WriteFile;

namespace {

using filetest::operator<<;

const char kNfdName[] = "Cafe\xCC\x81 menu.txt";

bool IsFolder(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

unsigned ModeOf(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0 ? st.st_mode & 07777 : 0xFFFFFFFFu;
}

// Every path below folder, relative to it, as "name" or "name/" for folders.
std::set<std::string> Listing(const std::string& folder, const std::string& prefix = "")
{
    std::set<std::string> names;
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr)
        return {"<cannot list " + folder + ": " + strerror(errno) + ">"};
    while (const dirent* entry = readdir(dir)) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        const std::string path = folder + "/" + name;
        names.insert(prefix + name + (IsFolder(path) ? "/" : ""));
        if (IsFolder(path))
            names.merge(Listing(path, prefix + name + "/"));
    }
    closedir(dir);
    return names;
}

// <root>/tree: "a b/", "a b/one" (1 byte), "a b/deep/", "a b/deep/two", NFD name, "empty/".
std::string MakeTree(const std::string& root)
{
    const std::string tree = root + "/tree";
    for (const std::string& error : {MakeDir(tree), MakeDir(tree + "/a b"), WriteFile(tree + "/a b/one", "1"),
                                     MakeDir(tree + "/a b/deep"), WriteFile(tree + "/a b/deep/two", "22"),
                                     WriteFile(tree + "/" + kNfdName, "nfd"), MakeDir(tree + "/empty")}) {
        if (!error.empty())
            return error;
    }
    return "";
}

const std::set<std::string> kTreeListing = {"a b/",         "a b/one", "a b/deep/",
                                            "a b/deep/two", kNfdName,  "empty/"};

using ChangeTest = filetest::FileOpTest;

// A row builds its layout, makes one FSMKDir call and names the outcome.
struct MkdirCase {
    const char* name;
    const char* path;
    bool parents;
    int result;
    const char* log_tag;  // null: nothing to look for
    const char* log_text; // after the path: "<text>" with %s replaced by the full path
};

class MkdirTest : public ChangeTest, public ::testing::WithParamInterface<MkdirCase> {};

TEST_P(MkdirTest, CreatesFoldersOnlyWhereNothingElseIs)
{
    ASSERT_EQ("", MakeDir((*this)["dir"]));
    ASSERT_EQ("", WriteFile((*this)["file"], "f"));
    ASSERT_EQ("", MakeLink((*this)["dir"], (*this)["dirlink"]));
    const std::string path = (*this)[GetParam().path];
    EXPECT_EQ(GetParam().result, FSMKDir(path.c_str(), GetParam().parents));
    EXPECT_EQ(GetParam().result == 0, IsFolder(path)) << path;
    if (GetParam().log_tag != nullptr) {
        std::string text = GetParam().log_text;
        text.replace(text.find("%s"), 2, path);
        EXPECT_TRUE(Logged(GetParam().log_tag, text));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, MkdirTest,
    ::testing::Values(MkdirCase{"New", "new", false, 0, nullptr, nullptr},
                      MkdirCase{"WithParents", "p/q/r", true, 0, nullptr, nullptr},
                      MkdirCase{"ExistingFolder", "dir", false, 0, nullptr, nullptr},
                      MkdirCase{"MissingParent", "p/q/r", false, -2, "[ERROR]",
                                "path = %s errno : No such file or directory"},
                      MkdirCase{"ExistingFile", "file", true, -1, "[ERROR]",
                                "FSMKDir: Create a folder but local file system is not directory '%s' (1)"},
                      MkdirCase{"LinkToFolder", "dirlink", true, -1, "[ERROR]",
                                "FSMKDir: Create a folder but local file system is not directory '%s' (3)"},
                      MkdirCase{"BelowAFile", "file/sub", true, -1, "[ERROR]",
                                "FSMKDir: Failed to to file info '%s'"}),
    [](const ::testing::TestParamInfo<MkdirCase>& row) { return std::string(row.param.name); });

struct ModeCase {
    const char* name;
    mode_t umask_value;
    unsigned short mode;
    unsigned expected;
};

class MkdirModeTest : public ChangeTest, public ::testing::WithParamInterface<ModeCase> {};

TEST_P(MkdirModeTest, GivenModeAppliesExactlyAndUmaskSurvives)
{
    const mode_t original = umask(GetParam().umask_value);
    const std::string path = (*this)["a/b"];
    const int result = FSMKDirP(path.c_str(), nullptr, false, GetParam().mode);
    const mode_t after = umask(original);
    ASSERT_EQ(0, result) << path;
    EXPECT_EQ(GetParam().expected, ModeOf((*this)["a"])) << std::oct << "parent of " << path;
    EXPECT_EQ(GetParam().expected, ModeOf(path)) << std::oct << path;
    EXPECT_EQ(GetParam().umask_value, after) << "umask not restored";
}

INSTANTIATE_TEST_SUITE_P(Umasks, MkdirModeTest,
                         ::testing::Values(ModeCase{"Exact0700", 0277, 0700, 0700},
                                           ModeCase{"Exact0777", 0022, 0777, 0777},
                                           ModeCase{"FromUmask", 0027, 0xFFFF, 0750}),
                         [](const ::testing::TestParamInfo<ModeCase>& row) {
                             return std::string(row.param.name);
                         });

TEST_F(ChangeTest, FSMKDirPPointsAtWhereItStopped)
{
    ASSERT_EQ("", WriteFile((*this)["file"], "f"));
    const char* end = nullptr;
    const ustring made = ((*this)["x/y/"]).c_str();
    EXPECT_EQ(0, FSMKDirP(made, &end, false, 0xFFFF));
    EXPECT_EQ(made.length() - 1, static_cast<unsigned long>(end - made.c_str())) << "not at the final /";

    const ustring blocked = ((*this)["file/b/c"]).c_str();
    EXPECT_EQ(-1, FSMKDirP(blocked, &end, false, 0xFFFF));
    EXPECT_EQ((*this)["file/b"].size(), static_cast<size_t>(end - blocked.c_str())) << "not after file/b";
    EXPECT_TRUE(
        Logged("[INFO]", "FSMKDirP: path: " + (*this)["file"] + " is symbolic link pointed to folder"));

    errno = 0;
    EXPECT_EQ(-1, FSMKDirP((*this)["file"].c_str(), &end, false, 0xFFFF));
    EXPECT_EQ(EEXIST, errno);
    EXPECT_TRUE(Logged("[INFO]", "FSMKDirP: path: " + (*this)["file"] +
                                     " is existing file or symbolic link pointed to file"));

    EXPECT_EQ(0, FSMKDirP((*this)["file"].c_str(), nullptr, true, 0xFFFF)) << "force must replace the file";
    EXPECT_TRUE(IsFolder((*this)["file"]));
    EXPECT_EQ(-1, FSMKDirP("", nullptr, false, 0xFFFF));
}

TEST_F(ChangeTest, FSMKDirFromRootCreatesOneLevelAtATime)
{
    const std::string root = (*this)["base"];
    ASSERT_EQ("", MakeDir(root));
    EXPECT_EQ(0, FSMKDirFromRoot((root + "/a/b").c_str(), root.c_str()));
    EXPECT_TRUE(IsFolder(root + "/a/b"));
    EXPECT_TRUE(Logged("[DEBUG]", "FSMKDirFromRoot: create /a"));
    EXPECT_TRUE(Logged("[DEBUG]", "FSMKDirFromRoot: create /a/b"));
    EXPECT_EQ(0, FSMKDirFromRoot(root.c_str(), root.c_str()));

    EXPECT_EQ(-1, FSMKDirFromRoot((root + "x/y").c_str(), root.c_str()));
    EXPECT_TRUE(Logged("[ERROR]", "root '" + root + "' is not a parent folder of target '" + root + "x/y'"));
    EXPECT_FALSE(Exists(root + "x"));
    EXPECT_EQ(-1, FSMKDirFromRoot(Root().c_str(), root.c_str()));
    EXPECT_TRUE(Logged("[ERROR]", "Giving a root '" + root + "' whose length is larger then target's '" +
                                      Root() + "'."));
}

TEST_F(ChangeTest, FSCopyCopiesEveryByte)
{
    ASSERT_EQ("", WriteFile((*this)["empty"], ""));
    EXPECT_EQ(0, FSCopy((*this)["empty"].c_str(), (*this)["empty.copy"].c_str(), false));
    EXPECT_TRUE(Exists((*this)["empty.copy"]));
    EXPECT_EQ("", ReadFile((*this)["empty.copy"]));

    // One byte more than a 32 MiB block, with a pattern that shows misplaced blocks.
    std::string big(33554432 + 1, '\0');
    for (size_t i = 0; i < big.size(); ++i)
        big[i] = static_cast<char>(i / 4093);
    ASSERT_EQ("", WriteFile((*this)["big"], big));
    ASSERT_EQ("", WriteFile((*this)["big.copy"], std::string(40000000, 'x')));
    EXPECT_EQ(0, FSCopy((*this)["big"].c_str(), (*this)["big.copy"].c_str(), true));
    EXPECT_TRUE(big == ReadFile((*this)["big.copy"])) << "copy differs from the 32 MiB + 1 source";
    EXPECT_FALSE(Exists((*this)["big"])) << "source not removed";
}

// A failing copy: the result, the message, and the source always kept.
struct CopyFailure {
    const char* name;
    const char* source;
    const char* destination; // relative to the scratch folder, or absolute
    int result;
    const char* message; // %s: the path the message names
    bool names_destination;
};

class CopyFailureTest : public ChangeTest, public ::testing::WithParamInterface<CopyFailure> {};

TEST_P(CopyFailureTest, KeepsTheSourceAndSaysWhy)
{
    ASSERT_EQ("", WriteFile((*this)["src"], "payload"));
    const std::string source = (*this)[GetParam().source];
    const std::string destination =
        GetParam().destination[0] == '/' ? GetParam().destination : (*this)[GetParam().destination];
    EXPECT_EQ(GetParam().result, FSCopy(source.c_str(), destination.c_str(), true));
    EXPECT_EQ("payload", ReadFile((*this)["src"]));
    std::string message = GetParam().message;
    const size_t at = message.find("%s");
    if (at != std::string::npos)
        message.replace(at, 2, GetParam().names_destination ? destination : source);
    EXPECT_TRUE(Logged("[ERROR]", message));
}

INSTANTIATE_TEST_SUITE_P(
    Failures, CopyFailureTest,
    ::testing::Values(CopyFailure{"OntoFullDevice", "src", "/dev/full", -2,
                                  "CopyFile: write: No space left on device (28)", true},
                      CopyFailure{"MissingSource", "none", "dst", -1,
                                  "CopyFile: open(%s): No such file or directory (2)", false},
                      CopyFailure{"MissingFolder", "src", "none/dst", -1,
                                  "CopyFile: open(%s): No such file or directory (2)", true},
                      CopyFailure{"OntoItself", "src", "src", -1, "CopyFile: open(%s): Invalid argument (22)",
                                  true}),
    [](const ::testing::TestParamInfo<CopyFailure>& row) { return std::string(row.param.name); });

TEST_F(ChangeTest, FSRenameWithinOneDevice)
{
    ASSERT_EQ("", MakeTree(Root()));
    ASSERT_EQ("", MakeLink((*this)["tree"], (*this)["link"]));
    EXPECT_EQ(-2, FSRename((*this)["link/a b"].c_str(), (*this)["moved"].c_str(), true))
        << "linked folder, exact";
    EXPECT_EQ(0, FSRename((*this)["link/a b"].c_str(), (*this)["moved"].c_str(), false));
    EXPECT_TRUE(Exists((*this)["moved/deep/two"]));
    EXPECT_EQ(-1, FSRename("", (*this)["x"].c_str(), false));
    EXPECT_EQ(-1, FSRename((*this)["tree"].c_str(), "", false));
    EXPECT_EQ(-2, FSRename((*this)["none"].c_str(), (*this)["x"].c_str(), false));
    EXPECT_EQ(-100, FSRename((*this)["tree"].c_str(), (*this)[std::string(300, 'n')].c_str(), false));
    EXPECT_EQ(-3, FSRename((*this)["tree"].c_str(), (*this)["tree/empty/inside"].c_str(), false));
    EXPECT_EQ((std::set<std::string>{kNfdName, "empty/"}), Listing((*this)["tree"]))
        << "failed moves changed the tree";
}

// A second scratch folder on another device than the fixture's.
class CrossDeviceTest : public ChangeTest {
protected:
    void SetUp() override
    {
        ChangeTest::SetUp();
        other_.reset(new filetest::ScratchDir("/dev/shm"));
        ASSERT_TRUE(other_->ok()) << other_->error();
        struct stat here;
        struct stat there;
        ASSERT_EQ(0, stat(Root().c_str(), &here)) << strerror(errno);
        ASSERT_EQ(0, stat(other_->path().c_str(), &there)) << strerror(errno);
        if (here.st_dev == there.st_dev)
            GTEST_SKIP() << Root() << " and " << other_->path() << " are on the same device";
    }
    void TearDown() override
    {
        other_.reset();
        ChangeTest::TearDown();
    }
    std::string Other(const std::string& relative) const { return (*other_)[relative]; }

private:
    std::unique_ptr<filetest::ScratchDir> other_;
};

TEST_F(CrossDeviceTest, FSRenameMovesAFileByCopying)
{
    ASSERT_EQ("", WriteFile((*this)["file"], "content"));
    EXPECT_EQ(0, FSRename((*this)["file"].c_str(), Other("file").c_str(), true));
    EXPECT_EQ("content", ReadFile(Other("file")));
    EXPECT_FALSE(Exists((*this)["file"]));
}

TEST_F(CrossDeviceTest, FSRenameMovesATreeEntryByEntry)
{
    ASSERT_EQ("", MakeTree(Root()));
    EXPECT_EQ(0, FSRename((*this)["tree"].c_str(), Other("tree").c_str(), false));
    EXPECT_EQ(kTreeListing, Listing(Other("tree")));
    EXPECT_EQ("22", ReadFile(Other("tree/a b/deep/two")));
    EXPECT_FALSE(Exists((*this)["tree"])) << "source folder left behind";
}

TEST_F(CrossDeviceTest, FSRenameLeavesLinksAndTheirFolderBehind)
{
    ASSERT_EQ("", MakeTree(Root()));
    ASSERT_EQ("", MakeLink("a b/one", (*this)["tree/z-link"]));
    EXPECT_EQ(-3, FSRename((*this)["tree"].c_str(), Other("tree").c_str(), false));
    EXPECT_TRUE(Exists((*this)["tree/z-link"]));
    const std::set<std::string> moved = Listing(Other("tree"));
    const std::set<std::string> left = Listing((*this)["tree"]);
    for (const std::string& entry : kTreeListing)
        EXPECT_TRUE(moved.count(entry) + left.count(entry) == 1) << entry << " lost or duplicated";
}

TEST_F(ChangeTest, FSRemoveRemovesTreesAndLinksButNeverLinkTargets)
{
    ASSERT_EQ("", MakeTree(Root()));
    ASSERT_EQ("", MakeDir((*this)["kept"]));
    ASSERT_EQ("", WriteFile((*this)["kept/file"], "k"));
    ASSERT_EQ("", MakeLink((*this)["kept"], (*this)["tree/a b/to-kept"]));
    ASSERT_EQ("", MakeLink((*this)["kept"], (*this)["link"]));

    EXPECT_EQ(0, FSRemove((*this)["link"].c_str(), false));
    EXPECT_FALSE(Exists((*this)["link"]));
    EXPECT_EQ(0, FSRemove((*this)["tree"].c_str(), false));
    EXPECT_FALSE(Exists((*this)["tree"]));
    EXPECT_EQ("k", ReadFile((*this)["kept/file"])) << "removal followed a link";
    EXPECT_EQ(0, FSRemove((*this)["none"].c_str(), false));
    EXPECT_EQ(-1, FSRemove("", false));
    EXPECT_EQ(-1, FSRemove((*this)["kept/file/x"].c_str(), false));
}

TEST_F(ChangeTest, FSRemoveWithoutRootStopsAtWhatItMayNotRemove)
{
    // nobody owns "tree" but not "tree/a b", whose entries it may not remove.
    ASSERT_EQ("", MakeTree(Root()));
    ASSERT_EQ("", MakeDir((*this)["closed"], 0700));
    ASSERT_EQ(0, chown((*this)["tree"].c_str(), 65534, 65534)) << strerror(errno);
    const int removed = filetest::RunAsNobody([&] { return -FSRemove((*this)["tree"].c_str(), false); });
    EXPECT_EQ(3, removed) << "FSRemove as nobody returned -" << removed;
    EXPECT_EQ("1", ReadFile((*this)["tree/a b/one"]));
    const int closed = filetest::RunAsNobody([&] { return -FSRemove((*this)["closed"].c_str(), false); });
    EXPECT_EQ(0, closed) << "a folder that cannot be listed is left in place with result 0";
    EXPECT_TRUE(IsFolder((*this)["closed"]));
}

TEST_F(ChangeTest, TemporaryFilesAndNames)
{
    const mode_t original = umask(077);
    ustring first;
    ustring second;
    const int made_first = FSMktemp(Root().c_str(), first);
    const int made_second = FSMktemp(Root().c_str(), second);
    umask(original);
    ASSERT_EQ(0, made_first);
    ASSERT_EQ(0, made_second);
    EXPECT_NE(first, second);
    EXPECT_EQ(Root(), FSParentPath(first).c_str());
    EXPECT_EQ(0644u, ModeOf(first.c_str()));
    EXPECT_EQ("", ReadFile(first.c_str()));

    ustring out;
    EXPECT_EQ(-1, FSMktemp((*this)["none"].c_str(), out));
    EXPECT_TRUE(Logged("[ERROR]", "mkstemp(" + (*this)["none/XXXXXX"] + "): No such file or directory"));

    ASSERT_EQ(0, FSCreateTempPath(Root().c_str(), out));
    EXPECT_EQ(Root() + "/", std::string(out.c_str()).substr(0, Root().size() + 1));
    EXPECT_EQ(Root().size() + 9, out.length());
    EXPECT_FALSE(Exists(out.c_str())) << "a temporary path must not be created";
}

TEST_F(ChangeTest, TimesLinksAndOwnersOfTheLinkItself)
{
    ASSERT_EQ("", WriteFile((*this)["target"], "t"));
    ASSERT_EQ(0, FSCreateSymbolicLink("target", (*this)["link"].c_str()));
    EXPECT_EQ(-1, FSCreateSymbolicLink("target", (*this)["link"].c_str()));
    EXPECT_TRUE(Logged("[ERROR]", "FSCreateSymbolicLink: Failed to create symbolic link 'target' -> '" +
                                      (*this)["link"] + "' (code: 17, msg: File exists)"));

    ASSERT_EQ(0, FSUTime((*this)["link"].c_str(), 100, 200));
    ASSERT_EQ(0, FSChown((*this)["link"].c_str(), 65534, 65534));
    struct stat link;
    struct stat target;
    ASSERT_EQ(0, lstat((*this)["link"].c_str(), &link)) << strerror(errno);
    ASSERT_EQ(0, lstat((*this)["target"].c_str(), &target)) << strerror(errno);
    EXPECT_EQ(200, link.st_mtime);
    EXPECT_EQ(65534u, link.st_uid);
    EXPECT_NE(200, target.st_mtime) << "times went to the link's target";
    EXPECT_EQ(0u, target.st_uid) << "owner went to the link's target";

    EXPECT_EQ(-1, FSUTime((*this)["none"].c_str(), 1, 1));
    EXPECT_EQ(-1, FSChown((*this)["none"].c_str(), 1, 1));
    EXPECT_TRUE(Logged("[ERROR]", "FSChown: Failed to chown '" + (*this)["none"] +
                                      "' (code: 2, msg: No such file or directory)"));
}

} // namespace
