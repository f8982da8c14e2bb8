// The Linux canonical path: stored spellings, and listings only where needed.
#include "canonical_path_linux.h"
#include "file_test_support.h"

namespace {

using namespace filetest;
using platform::FinalLink;
using platform::NameCase;
const NameCase kDetect = NameCase::Detect, kSensitive = NameCase::Sensitive, kFold = NameCase::Insensitive;

// sub/{Data, note, NOTE, NoTe, "Ärger" stored decomposed}, loop -> loop, and a
// chain of twenty links l20 -> ... -> l1 -> sub.
class ResolverTest : public FileTest {
protected:
    void SetUp() override
    {
        FileTest::SetUp();
        ASSERT_TRUE(MakeDirs(P("sub")) && WriteFile(P("sub/Data"), "d") && WriteFile(P("sub/note"), "n") &&
                    WriteFile(P("sub/NOTE"), "N") && WriteFile(P("sub/NoTe"), "t") &&
                    WriteFile(P("sub/A\xCC\x88rger"), "a") && MakeLink("loop", P("loop")));
        for (int i = 1; i <= 20; ++i)
            ASSERT_TRUE(MakeLink(i == 1 ? "sub" : "l" + std::to_string(i - 1), P("l" + std::to_string(i))));
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

const SpellingCase kRules[] = {
    {"Exact", "Data", kSensitive, 0, "Data"},
    {"OtherCaseSensitive", "data", kSensitive, ENOENT, ""},
    {"OtherCaseDetected", "data", kDetect, ENOENT, ""},
    {"OtherCaseInsensitive", "dATA", kFold, 0, "Data"},
    {"ExactWinsOverFolded", "note", kFold, 0, "note"},
    {"SmallestOfFolded", "Note", kFold, 0, "NOTE"},
    {"Decomposed", "\xC3\x84rger", kSensitive, 0, "A\xCC\x88rger"},
    {"NonAsciiFolded", "\xC3\xA4RGER", kFold, 0, "A\xCC\x88rger"},
    {"Missing", "none", kFold, ENOENT, ""},
};
INSTANTIATE_TEST_SUITE_P(Rules, StoredNameTest, ::testing::ValuesIn(kRules), RowName());

struct PathCase {
    const char* name;
    std::string path;
    FinalLink final_link;
    NameCase rule;
    int error;
    std::string canonical;
};

class ResolveTest : public ResolverTest, public ::testing::WithParamInterface<PathCase> {};

// Resolves as the kernel would, respelling every component where case is
// ignored; a failure leaves out alone.
TEST_P(ResolveTest, ResolvesOrFailsLikeTheKernel)
{
    const PathCase& row = GetParam();
    std::string out = "untouched";
    EXPECT_EQ(row.error, platform::ResolvePath(P(row.path), row.final_link, row.rule, out)) << "got " << out;
    EXPECT_EQ(row.error == 0 ? P(row.canonical) : "untouched", out);
}

const PathCase kPaths[] = {
    {"MissingMiddle", "none/Data", FinalLink::Keep, kDetect, ENOENT, ""},
    {"FileAsFolder", "sub/Data/x", FinalLink::Keep, kDetect, ENOTDIR, ""},
    {"FinalSlash", "sub/Data/", FinalLink::Keep, kDetect, ENOTDIR, ""},
    {"LoopFollowed", "loop", FinalLink::Follow, kDetect, ELOOP, ""},
    {"LoopKept", "loop", FinalLink::Keep, kDetect, 0, "loop"},
    {"TwentyLinks", "l20/Data", FinalLink::Keep, kDetect, 0, "sub/Data"},
    {"FoldedViaLink", "L1/DATA", FinalLink::Keep, kFold, 0, "sub/Data"},
    {"FoldedFinalLink", "L20", FinalLink::Keep, kFold, 0, "l20"},
};
INSTANTIATE_TEST_SUITE_P(Paths, ResolveTest, ::testing::ValuesIn(kPaths), RowName());

} // namespace
