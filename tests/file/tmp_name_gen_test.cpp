// Temporary names, checked against vectors worked out from RC4's definition.
#include <cstring>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tmp_name_gen.h"

namespace {

const char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

TEST(TmpNameGenTest, KnownAnswers)
{
    // A short key schedules like a 256-byte key that repeats it: the published keystream of "Key".
    unsigned char state[256], key[256], out[10];
    for (int i = 0; i < 256; ++i)
        key[i] = "Key"[i % 3];
    TmpNameGen::rc4_init(state, key);
    TmpNameGen::rc4_randomize(state, out, 10);
    EXPECT_EQ(0, memcmp(out, "\xeb\x9f\x77\x81\xb7\x34\xca\x72\xa7\x19", 10))
        << "not RC4's keystream for Key";

    // The seed text's NUL and the zeros after it take part in the schedule.
    unsigned char seed[256] = "1700000000-123456";
    TmpNameGen first(seed), second(seed);
    for (const char* expected : {"4e-5Metp", "J8x3FAX9", "2SrkJCfK"}) {
        EXPECT_STREQ(expected, first.getTmpName().c_str());
        EXPECT_STREQ(expected, second.getTmpName().c_str()) << "same key, other names";
    }
}

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
        seen.insert(previous = name);
    }
    EXPECT_GT(seen.size(), 1990u) << "names repeat far more often than chance";
    const std::string path = generator.getTmpPath("/tmp/x").c_str(), bare = generator.getTmpPath("").c_str();
    EXPECT_EQ(15u, path.size()) << path;
    EXPECT_EQ(0u, path.find("/tmp/x/")) << path;
    EXPECT_EQ(9u, bare.size()) << bare;
    EXPECT_EQ('/', bare[0]) << bare;
}

// The seed text is cut to its buffer; an empty one is replaced by rand() bytes.
TEST(TmpNameGenTest, SeedEdgeCases)
{
    unsigned char text[8], state[256], key[256] = {0}, out[1] = {0x55};
    memset(text, 0x7f, sizeof text);
    TmpNameGen::get_key(text, 6);
    EXPECT_EQ(5u, strlen(reinterpret_cast<const char*>(text)))
        << "a 6-byte buffer holds 5 characters and the NUL";
    EXPECT_EQ(std::string::npos,
              std::string(reinterpret_cast<const char*>(text)).find_first_not_of("0123456789"))
        << "not the seconds' digits";
    EXPECT_EQ(0x7f, text[6]) << "wrote past the buffer";

    TmpNameGen::rc4_init(state, key);
    EXPECT_NE(std::string(256, '\0'), std::string(reinterpret_cast<const char*>(key), 256))
        << "key not filled";
    EXPECT_EQ(256u, std::set<unsigned char>(state, state + 256).size()) << "state is not a permutation";
    TmpNameGen::rc4_randomize(state, out, 0);
    TmpNameGen::rc4_randomize(state, out, -3);
    EXPECT_EQ(0x55, out[0]) << "a count of 0 or less wrote output";
}

} // namespace
