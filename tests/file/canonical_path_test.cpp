// The Linux canonical path: stored spellings, and listings only where needed.
#include <csignal>
#include <sys/stat.h>

#include "canonical_path_linux.h"
#include "file_test_support.h"
#include "process_info.h"
#include "regular_file.h"

namespace {

using namespace filetest;
using platform::FinalLink;
using platform::NameCase;
const NameCase kDetect = NameCase::Detect, kSensitive = NameCase::Sensitive, kFold = NameCase::Insensitive;

struct PathCase {
    const char* name;
    std::string path;
    FinalLink final_link;
    NameCase rule;
    int error;
    std::string canonical;
};

// sub/{Data, note, NOTE, NoTe, "Ärger" stored decomposed}, loop -> loop, and a
// chain of twenty links l20 -> ... -> l1 -> sub.
class ResolveTest : public FileTest, public ::testing::WithParamInterface<PathCase> {
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

// Resolves as the kernel would, finding the spelling each component has on
// disk (respelt where case is ignored); a failure leaves out alone.
TEST_P(ResolveTest, ResolvesOrFailsLikeTheKernel)
{
    const PathCase& row = GetParam();
    std::string out = "untouched";
    EXPECT_EQ(row.error, platform::ResolvePath(P(row.path), row.final_link, row.rule, out)) << "got " << out;
    EXPECT_EQ(row.error == 0 ? P(row.canonical) : "untouched", out);
}

const PathCase kPaths[] = {
    {"OtherCaseSensitive", "sub/data", FinalLink::Keep, kSensitive, ENOENT, ""},
    {"OtherCaseDetected", "sub/data", FinalLink::Keep, kDetect, ENOENT, ""},
    {"OtherCaseInsensitive", "sub/dATA", FinalLink::Keep, kFold, 0, "sub/Data"},
    {"ExactWinsOverFolded", "sub/note", FinalLink::Keep, kFold, 0, "sub/note"},
    {"SmallestOfFolded", "sub/Note", FinalLink::Keep, kFold, 0, "sub/NOTE"},
    {"Decomposed", "sub/\xC3\x84rger", FinalLink::Keep, kSensitive, 0, "sub/A\xCC\x88rger"},
    {"NonAsciiFolded", "sub/\xC3\xA4RGER", FinalLink::Keep, kFold, 0, "sub/A\xCC\x88rger"},
    {"Missing", "sub/none", FinalLink::Keep, kFold, ENOENT, ""},
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

// A small file is read whole up to 1 MiB and refused one byte beyond, data
// untouched; a FIFO is refused without waiting for a writer.
TEST_F(FileTest, SmallFilesUpToOneMebibyteAndNothingButRegularFiles)
{
    const size_t mib = 1 << 20;
    ASSERT_TRUE(WriteFile(P("full"), std::string(mib, 'a')) &&
                WriteFile(P("over"), std::string(mib + 1, 'a')) && mkfifo(P("fifo").c_str(), 0600) == 0)
        << strerror(errno);
    std::string data = "untouched";
    EXPECT_EQ(platform::ReadRegularFile(P("over"), platform::kSmallFileLimit, data), EFBIG);
    EXPECT_EQ(platform::ReadRegularFile(P("fifo"), platform::kSmallFileLimit, data), EINVAL);
    EXPECT_EQ(data, "untouched") << "a refused file changed the data";
    EXPECT_EQ(platform::ReadRegularFile(P("full"), platform::kSmallFileLimit, data), 0);
    EXPECT_EQ(data.size(), mib);
}

// A process keeps the path its executable had when that file is removed.
TEST_F(FileTest, ProcessOfARemovedExecutableKeepsItsPath)
{
    ASSERT_TRUE(CopyTree("/bin/sleep", P("sleeper"))) << strerror(errno);
    const pid_t pid = Start({P("sleeper"), "60"});
    std::string exe;
    for (int i = 0; i < 500 && (platform::UserProcessExecutable(pid, exe) != 0 || exe != P("sleeper")); ++i) {
        usleep(10000);
    }
    ASSERT_EQ(remove(P("sleeper").c_str()), 0) << strerror(errno);
    EXPECT_EQ(platform::UserProcessExecutable(pid, exe), 0);
    EXPECT_EQ(exe, P("sleeper"));
    kill(pid, SIGKILL);
    Wait(pid);
}

} // namespace
