// Temporary names, checked against vectors worked out from RC4's definition.
#include <string>

#include <gtest/gtest.h>

#include "tmp_name_gen.h"

namespace {

TEST(TmpNameGenTest, KnownNamesFromASeed)
{
    // The seed text's NUL and the zeros after it take part in the schedule.
    unsigned char seed[256] = "1700000000-123456";
    TmpNameGen first(seed), second(seed);
    for (const char* expected : {"4e-5Metp", "J8x3FAX9", "2SrkJCfK"}) {
        EXPECT_EQ(expected, std::string(first.getTmpName().c_str()));
        EXPECT_EQ(expected, std::string(second.getTmpName().c_str())) << "same key, other names";
    }
}

// An empty seed is replaced by rand() bytes before the schedule.
TEST(TmpNameGenTest, EmptySeedIsFilled)
{
    unsigned char state[256], key[256] = {0};
    TmpNameGen::rc4_init(state, key);
    EXPECT_NE(std::string(256, '\0'), std::string(reinterpret_cast<const char*>(key), 256))
        << "key not filled";
}

} // namespace
