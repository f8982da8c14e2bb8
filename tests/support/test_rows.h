// Names the cases of a parameterised table: a row's name field, or the
// parameter itself when it is a text.
#pragma once

#include <string>

#include <gtest/gtest.h>

namespace testsupport {

struct RowName {
    std::string operator()(const ::testing::TestParamInfo<const char*>& info) const { return info.param; }
    std::string operator()(const ::testing::TestParamInfo<std::string>& info) const { return info.param; }
    template <typename P> std::string operator()(const ::testing::TestParamInfo<P>& info) const
    {
        return info.param.name;
    }
};

} // namespace testsupport
