// The Linux canonical path: stored spellings, and listings only where needed.
#include "canonical_path_linux.h"
#include "file_test_support.h"

namespace {

using namespace filetest;
using platform::FinalLink;
using platform::NameCase;

// sub/{Data, note, NOTE, "Ärger" stored decomposed}, loop -> loop, and a
// chain of twenty links l20 -> ... -> l1 -> sub.
class ResolverTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        ASSERT_TRUE(MakeDirs(P("sub")) && WriteFile(P("sub/Data"), "d") && WriteFile(P("sub/note"), "n") &&
                    WriteFile(P("sub/NOTE"), "N") && WriteFile(P("sub/A\xCC\x88rger"), "a") &&
                    MakeLink("loop", P("loop")) && MakeLink("sub", P("l1")));
        for (int i = 2; i <= 20; ++i)
            ASSERT_TRUE(MakeLink("l" + std::to_string(i - 1), P("l" + std::to_string(i))));
    }
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
    const SpellingCase& row = GetParam();
    std::string stored = "untouched";
    EXPECT_EQ(row.error, platform::StoredName(P("sub"), row.given, row.rule, stored)) << strerror(row.error);
    EXPECT_EQ(row.error == 0 ? row.stored : "untouched", stored);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, StoredNameTest,
    ::testing::Values(
        SpellingCase{"Exact", "Data", NameCase::Sensitive, 0, "Data"},
        SpellingCase{"OtherCaseSensitive", "data", NameCase::Sensitive, ENOENT, ""},
        SpellingCase{"OtherCaseDetectedSensitive", "data", NameCase::Detect, ENOENT, ""},
        SpellingCase{"OtherCaseInsensitive", "dATA", NameCase::Insensitive, 0, "Data"},
        SpellingCase{"ExactWinsOverFolded", "note", NameCase::Insensitive, 0, "note"},
        SpellingCase{"SmallestOfFolded", "Note", NameCase::Insensitive, 0, "NOTE"},
        SpellingCase{"ComposedFindsDecomposed", "\xC3\x84rger", NameCase::Sensitive, 0, "A\xCC\x88rger"},
        SpellingCase{"NonAsciiFolded", "\xC3\xA4RGER", NameCase::Insensitive, 0, "A\xCC\x88rger"},
        SpellingCase{"Missing", "none", NameCase::Insensitive, ENOENT, ""}),
    RowName());

TEST_F(ResolverTest, InsensitiveRuleRespellsEveryComponent)
{
    ASSERT_TRUE(MakeLink("sub", P("Link")));
    std::string out;
    ASSERT_EQ(0, platform::ResolvePath(P("LINK/DATA"), FinalLink::Keep, NameCase::Insensitive, out));
    EXPECT_EQ(P("sub/Data"), out);
    ASSERT_EQ(0, platform::ResolvePath(P("link"), FinalLink::Keep, NameCase::Insensitive, out));
    EXPECT_EQ(P("Link"), out);
}

struct ErrorCase {
    const char* name;
    std::string path;
    FinalLink final_link;
    int error;
    std::string canonical;
};

class ResolveErrorTest : public ResolverTest, public ::testing::WithParamInterface<ErrorCase> {};

TEST_P(ResolveErrorTest, FailsLikeTheKernelWould)
{
    std::string out = "untouched";
    EXPECT_EQ(GetParam().error, platform::CanonicalPath(P(GetParam().path), GetParam().final_link, out))
        << "got " << out;
    EXPECT_EQ(GetParam().error == 0 ? P(GetParam().canonical) : "untouched", out);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ResolveErrorTest,
    ::testing::Values(ErrorCase{"MissingMiddle", "none/Data", FinalLink::Keep, ENOENT, ""},
                      ErrorCase{"FileAsFolder", "sub/Data/x", FinalLink::Keep, ENOTDIR, ""},
                      ErrorCase{"FileWithFinalSlash", "sub/Data/", FinalLink::Keep, ENOTDIR, ""},
                      ErrorCase{"LoopFollowed", "loop", FinalLink::Follow, ELOOP, ""},
                      ErrorCase{"LoopKept", "loop", FinalLink::Keep, 0, "loop"},
                      ErrorCase{"TwentyLinks", "l20/Data", FinalLink::Keep, 0, "sub/Data"}),
    RowName());

} // namespace
