// One test per input file: the file's bytes go through the fuzz target's
// entry point, whose checks abort with a message naming what went wrong.
// Each case runs in a child process (a death test in reverse), so that a
// finding fails its own case with the target's message and the rest still
// run.
#include <cstdint>
#include <dirent.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

std::vector<std::string> InputFiles()
{
    std::vector<std::string> files;
    const std::string dirs = REPLAY_DIRS;
    size_t start = 0;
    while (start <= dirs.size()) {
        const size_t colon = dirs.find(':', start);
        const std::string dir = dirs.substr(start, colon == std::string::npos ? std::string::npos : colon - start);
        if (DIR* d = opendir(dir.c_str())) {
            while (const dirent* e = readdir(d)) {
                if (e->d_name[0] != '.' && std::string(e->d_name) != "README") {
                    files.push_back(dir + "/" + e->d_name);
                }
            }
            closedir(d);
        }
        if (colon == std::string::npos) break;
        start = colon + 1;
    }
    return files;
}

std::string Name(const ::testing::TestParamInfo<std::string>& info)
{
    const std::string& path = info.param;
    const size_t slash = path.rfind('/');
    const size_t parent = path.rfind('/', slash - 1);
    std::string name = path.substr(parent + 1);
    for (char& c : name) {
        if (!isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

class Replay : public ::testing::TestWithParam<std::string> {};

TEST_P(Replay, PassesTheTargetsChecks)
{
    std::ifstream in(GetParam(), std::ios::binary);
    ASSERT_TRUE(in) << "cannot read " << GetParam();
    const std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    const pid_t child = fork();
    ASSERT_GE(child, 0) << "fork failed";
    if (child == 0) {
        if (LLVMFuzzerInitialize != nullptr) {
            int argc = 0;
            char** argv = nullptr;
            LLVMFuzzerInitialize(&argc, &argv);
        }
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
        std::exit(0); // runs the targets' scratch-folder clean-up
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << REPLAY_TARGET << " failed on " << GetParam() << " (status 0x" << std::hex << status
        << "); its message is in the output above";
}

INSTANTIATE_TEST_SUITE_P(Inputs, Replay, ::testing::ValuesIn(InputFiles()), Name);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Replay);

} // namespace
