// Temporary names, checked against RC4 vectors worked out from RC4's
// definition alone (published keystreams, and a schedule computed by hand
// over the 256-byte key).
#include <cstring>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "file_test_support.h"
#include "tmp_name_gen.h"

namespace {

using filetest::operator<<;

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

// RC4 with a short key schedules exactly like a 256-byte key that repeats it.
std::string RepeatedKey(const std::string& key)
{
    std::string full;
    while (full.size() < 256)
        full += key;
    return full.substr(0, 256);
}

// A seed text as get_key writes it, followed by zero bytes.
std::string SeedKey(const std::string& text)
{
    return text + std::string(256 - text.size(), '\0');
}

std::string Hex(const unsigned char* bytes, size_t n)
{
    std::string text;
    char pair[3];
    for (size_t i = 0; i < n; ++i) {
        snprintf(pair, sizeof pair, "%02x", bytes[i]);
        text += pair;
    }
    return text;
}

struct KeystreamCase {
    const char* name;
    std::string key;
    std::string keystream;
};

class Rc4Test : public ::testing::TestWithParam<KeystreamCase> {};

TEST_P(Rc4Test, KeystreamMatchesPublishedVector)
{
    unsigned char state[256];
    unsigned char key[256];
    memcpy(key, GetParam().key.data(), sizeof key);
    TmpNameGen::rc4_init(state, key);
    unsigned char out[16] = {0};
    const size_t n = GetParam().keystream.size() / 2;
    TmpNameGen::rc4_randomize(state, out, static_cast<int>(n));
    EXPECT_EQ(GetParam().keystream, Hex(out, n));
}

INSTANTIATE_TEST_SUITE_P(
    Vectors, Rc4Test,
    ::testing::Values(KeystreamCase{"Key", RepeatedKey("Key"), "eb9f7781b734ca72a719"},
                      KeystreamCase{"Wiki", RepeatedKey("Wiki"), "6044db6d41b7"},
                      KeystreamCase{"Secret", RepeatedKey("Secret"), "04d46b053ca87b59"}),
    [](const ::testing::TestParamInfo<KeystreamCase>& row) { return std::string(row.param.name); });

struct NamesCase {
    const char* name;
    std::string key;
    std::vector<std::string> names;
};

class NamesTest : public ::testing::TestWithParam<NamesCase> {};

TEST_P(NamesTest, SameKeyGivesTheKnownSequence)
{
    TmpNameGen first(reinterpret_cast<const unsigned char*>(GetParam().key.data()));
    TmpNameGen second(reinterpret_cast<const unsigned char*>(GetParam().key.data()));
    for (const std::string& expected : GetParam().names) {
        EXPECT_EQ(expected, first.getTmpName().c_str());
        EXPECT_EQ(expected, second.getTmpName().c_str());
    }
}

// The seed text's NUL and trailing zeros take part in the schedule; a
// schedule that repeated the text instead would give other names.
INSTANTIATE_TEST_SUITE_P(
    Keys, NamesTest,
    ::testing::Values(NamesCase{"Repeated", RepeatedKey("Key"), {"WVZTwrsQ", "lnIM_-bL", "FVonc5Qc"}},
                      NamesCase{
                          "SeedText", SeedKey("1700000000-123456"), {"4e-5Metp", "J8x3FAX9", "2SrkJCfK"}}),
    [](const ::testing::TestParamInfo<NamesCase>& row) { return std::string(row.param.name); });

TEST(TmpNameGenTest, NamesAreEightAlphabetCharactersAndDiffer)
{
    TmpNameGen& generator = TmpNameGen::getInstance();
    EXPECT_EQ(&generator, &TmpNameGen::getInstance());
    std::set<std::string> seen;
    std::string previous;
    for (int i = 0; i < 2000; ++i) {
        const std::string name = generator.getTmpName().c_str();
        ASSERT_EQ(8u, name.size()) << name;
        ASSERT_EQ(std::string::npos, name.find_first_not_of(kAlphabet)) << name;
        ASSERT_NE(previous, name);
        previous = name;
        seen.insert(name);
    }
    EXPECT_GT(seen.size(), 1990u) << "names repeat far more often than chance";
}

TEST(TmpNameGenTest, PathsJoinFolderAndName)
{
    TmpNameGen& generator = TmpNameGen::getInstance();
    const std::string path = generator.getTmpPath("/tmp/x").c_str();
    EXPECT_EQ("/tmp/x/", path.substr(0, 7));
    EXPECT_EQ(15u, path.size());
    const std::string bare = generator.getTmpPath("").c_str();
    EXPECT_EQ('/', bare[0]);
    EXPECT_EQ(9u, bare.size());
}

TEST(TmpNameGenTest, SeedTextIsTheTimeCutToTheBuffer)
{
    unsigned char key[8];
    memset(key, 0x7f, sizeof key);
    TmpNameGen::get_key(key, 6);
    const std::string text(reinterpret_cast<const char*>(key));
    EXPECT_EQ(5u, text.size()) << "a 6-byte buffer holds 5 characters and the NUL";
    EXPECT_EQ(std::string::npos, text.find_first_not_of("0123456789")) << text << ": not the seconds' digits";
    EXPECT_EQ(0x7f, key[6]) << "wrote past the buffer";
}

TEST(TmpNameGenTest, EmptyKeyIsFilledAndStillMixesAPermutation)
{
    unsigned char state[256];
    unsigned char key[256] = {0};
    TmpNameGen::rc4_init(state, key);
    EXPECT_NE(std::string(256, '\0'), std::string(reinterpret_cast<const char*>(key), 256))
        << "key not filled";
    EXPECT_EQ(256u, std::set<unsigned char>(state, state + 256).size()) << "state is not a permutation";
    unsigned char out[1] = {0x55};
    TmpNameGen::rc4_randomize(state, out, 0);
    TmpNameGen::rc4_randomize(state, out, -3);
    EXPECT_EQ(0x55, out[0]) << "a count of 0 or less wrote output";
}

} // namespace
