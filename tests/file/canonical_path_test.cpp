// The Linux canonical path: stored spellings, and listings only where needed.
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "canonical_path_linux.h"
#include "file_test_support.h"

using filetest::MakeDir;
using filetest::MakeLink;
using filetest::WriteFile;
using platform::NameCase;

namespace {

using filetest::operator<<;

class ResolverTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        scratch_.reset(new filetest::ScratchDir("/tmp"));
        ASSERT_TRUE(scratch_->ok()) << scratch_->error();
        // "Data" and "\xC3\x84rger" ("Ärger"), the latter stored decomposed.
        ASSERT_EQ("", MakeDir(Path("sub")));
        ASSERT_EQ("", WriteFile(Path("sub/Data"), "d"));
        ASSERT_EQ("", WriteFile(Path("sub/A\xCC\x88rger"), "a"));
    }
    std::string Path(const std::string& relative) const { return (*scratch_)[relative]; }

    std::unique_ptr<filetest::ScratchDir> scratch_;
};

struct SpellingCase {
    const char* name;
    std::string given;
    NameCase rule;
    int error;
    std::string stored;
};

class StoredNameTest : public ResolverTest, public ::testing::WithParamInterface<SpellingCase> {};

TEST_P(StoredNameTest, FindsTheSpellingOnDisk)
{
    if (GetParam().name == std::string("ExactWinsOverFolded")) {
        ASSERT_EQ("", WriteFile(Path("sub/data"), "lower"));
    }
    std::string stored = "untouched";
    EXPECT_EQ(GetParam().error, platform::StoredName(Path("sub"), GetParam().given, GetParam().rule, stored))
        << strerror(GetParam().error);
    EXPECT_EQ(GetParam().error == 0 ? GetParam().stored : "untouched", stored);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, StoredNameTest,
    ::testing::Values(
        SpellingCase{"Exact", "Data", NameCase::Sensitive, 0, "Data"},
        SpellingCase{"OtherCaseSensitive", "data", NameCase::Sensitive, ENOENT, ""},
        SpellingCase{"OtherCaseInsensitive", "dATA", NameCase::Insensitive, 0, "Data"},
        SpellingCase{"ExactWinsOverFolded", "data", NameCase::Insensitive, 0, "data"},
        SpellingCase{"ComposedFindsDecomposed", "\xC3\x84rger", NameCase::Sensitive, 0, "A\xCC\x88rger"},
        SpellingCase{"NonAsciiCaseFolded", "\xC3\xA4RGER", NameCase::Insensitive, 0, "A\xCC\x88rger"},
        SpellingCase{"NonAsciiOtherCaseSensitive", "\xC3\xA4rger", NameCase::Detect, ENOENT, ""},
        SpellingCase{"Missing", "none", NameCase::Insensitive, ENOENT, ""}),
    [](const ::testing::TestParamInfo<SpellingCase>& row) { return std::string(row.param.name); });

TEST_F(ResolverTest, InsensitiveRuleRespellsEveryComponent)
{
    ASSERT_EQ("", MakeLink("sub", Path("Link")));
    std::string out;
    ASSERT_EQ(
        0, platform::ResolvePath(Path("LINK/DATA"), platform::FinalLink::Keep, NameCase::Insensitive, out));
    EXPECT_EQ(Path("sub/Data"), out);
    ASSERT_EQ(0, platform::ResolvePath(Path("link"), platform::FinalLink::Keep, NameCase::Insensitive, out));
    EXPECT_EQ(Path("Link"), out);
    EXPECT_EQ(NameCase::Sensitive, platform::FolderNameCase(Path("sub")))
        << "ordinary folder taken as casefolded";
}

struct ErrorCase {
    const char* name;
    std::string path;
    platform::FinalLink final_link;
    int error;
};

class ResolveErrorTest : public ResolverTest, public ::testing::WithParamInterface<ErrorCase> {};

TEST_P(ResolveErrorTest, FailsLikeTheKernelWould)
{
    ASSERT_EQ("", MakeLink("loop", Path("loop")));
    std::string out = "untouched";
    EXPECT_EQ(GetParam().error, platform::CanonicalPath(Path(GetParam().path), GetParam().final_link, out))
        << "got " << out;
    if (GetParam().error != 0) {
        EXPECT_EQ("untouched", out);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ResolveErrorTest,
    ::testing::Values(ErrorCase{"MissingMiddle", "none/Data", platform::FinalLink::Keep, ENOENT},
                      ErrorCase{"FileAsFolder", "sub/Data/x", platform::FinalLink::Keep, ENOTDIR},
                      ErrorCase{"FileWithFinalSlash", "sub/Data/", platform::FinalLink::Keep, ENOTDIR},
                      ErrorCase{"LoopFollowed", "loop", platform::FinalLink::Follow, ELOOP},
                      ErrorCase{"LoopKept", "loop", platform::FinalLink::Keep, 0}),
    [](const ::testing::TestParamInfo<ErrorCase>& row) { return std::string(row.param.name); });

// In a folder nobody may pass but not list, the look-up must not list it.
TEST_F(ResolverTest, CaseSensitiveFolderIsNeverListed)
{
    ASSERT_EQ(0, chmod(Path("sub").c_str(), 0711)) << strerror(errno);
    const std::string path = Path("sub/Data");
    const int failed = filetest::RunAsNobody([&] {
        std::string out;
        const int detected = platform::CanonicalPath(path, platform::FinalLink::Keep, out);
        const int listed = platform::ResolvePath(path, platform::FinalLink::Keep, NameCase::Insensitive, out);
        return (detected == 0 ? 0 : 1) | (listed == EACCES ? 0 : 2);
    });
    EXPECT_EQ(0, failed) << "1: exact look-up listed the folder; 2: the listing was not refused";
}

} // namespace
