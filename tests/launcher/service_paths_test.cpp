// The service's paths, composed by the real code running inside a bundle.
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "test_support.h"

using namespace testsupport;

namespace {

std::map<std::string, std::string> ProbePaths(const std::string& probe, const std::string& home)
{
    const ProcessResult r = Run({probe}, {Set("HOME", home)});
    EXPECT_TRUE(r.exited && r.exit_code == 0) << probe << " failed: " << r.err;
    std::map<std::string, std::string> paths;
    for (const std::string& line : Lines(r.out)) {
        const size_t eq = line.find('=');
        if (eq != std::string::npos) {
            paths[line.substr(0, eq)] = line.substr(eq + 1);
        }
    }
    return paths;
}

class ServicePaths : public ::testing::Test {
protected:
    void SetUp() override
    {
        bundle_ = dir_ / "A.app";
        const std::string macos = bundle_ + "/Contents/MacOS";
        ASSERT_TRUE(MakeDirs(macos)) << macos << ": " << strerror(errno);
        probe_ = macos + "/probe";
        ASSERT_TRUE(CopyTree(PROBE_PATH, probe_)) << PROBE_PATH << ": " << strerror(errno);
    }

    TempDir dir_;
    std::string bundle_;
    std::string probe_;
};

TEST_F(ServicePaths, BundlePathsLeaveContentsMacOS)
{
    const auto paths = ProbePaths(probe_, "/Users/user1");
    EXPECT_EQ(paths.at("root"), bundle_);
    EXPECT_EQ(paths.at("resources"), bundle_ + "/Contents/Resources");
}

struct HomeCase {
    const char* name;
    const char* home;
    const char* install;
    const char* app;
    const char* data;
};

class ServiceUserPaths : public ServicePaths, public ::testing::WithParamInterface<HomeCase> {};

TEST_P(ServiceUserPaths, ComposedFromHome)
{
    const HomeCase& c = GetParam();
    const auto paths = ProbePaths(probe_, c.home);
    EXPECT_EQ(paths.at("install"), c.install) << "HOME=" << c.home;
    EXPECT_EQ(paths.at("app"), c.app) << "HOME=" << c.home;
    EXPECT_EQ(paths.at("data"), c.data) << "HOME=" << c.home;
}

// The user paths are joined, not normalised: a home of "/" keeps its slash.
INSTANTIATE_TEST_SUITE_P(
    Homes, ServiceUserPaths,
    ::testing::Values(HomeCase{"Plain", "/Users/user1", "/Users/user1/.Calderix",
                               "/Users/user1/.Calderix/Calderix.app", "/Users/user1/.Calderix/data"},
                      HomeCase{"TrailingSlash", "/Users/user1/", "/Users/user1/.Calderix",
                               "/Users/user1/.Calderix/Calderix.app", "/Users/user1/.Calderix/data"},
                      HomeCase{"Root", "/", "//.Calderix", "//.Calderix/Calderix.app", "//.Calderix/data"},
                      HomeCase{"SpaceAndAccent", "/home/Zo\xc3\xab Smith", "/home/Zo\xc3\xab Smith/.Calderix",
                               "/home/Zo\xc3\xab Smith/.Calderix/Calderix.app",
                               "/home/Zo\xc3\xab Smith/.Calderix/data"}),
    [](const ::testing::TestParamInfo<HomeCase>& info) { return std::string(info.param.name); });

} // namespace
