// A private copy of the assembled demo bundle and a fake home in a fresh
// temporary folder, for running the real launcher binary.
#pragma once

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "test_support.h"

class LauncherFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        bundle_ = dir_ / "Calderix Drive.app";
        ASSERT_TRUE(testsupport::CopyTree(DEMO_BUNDLE, bundle_)) << DEMO_BUNDLE << ": " << strerror(errno);
        launcher_ = bundle_ + "/Contents/MacOS/launcher";
        home_ = dir_ / "home";
        tmp_ = dir_ / "tmp";
        ASSERT_TRUE(testsupport::MakeDirs(home_)) << home_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::MakeDirs(tmp_)) << tmp_ << ": " << strerror(errno);
    }

    std::string LogPath() const { return home_ + "/.Calderix/log/launcher.log"; }
    std::string LevelFile() const { return bundle_ + "/log/launcher.debug"; }
    void SetLevels(const std::string& content)
    {
        ASSERT_TRUE(testsupport::MakeDirs(bundle_ + "/log"));
        ASSERT_TRUE(testsupport::WriteFile(LevelFile(), content)) << LevelFile() << ": " << strerror(errno);
    }

    // The environment of one run: this fixture's home and temporary folder,
    // headless, and no runtime folder shared with anything else.
    std::vector<testsupport::EnvChange> Env(const std::string& home) const
    {
        return {testsupport::Set("HOME", home), testsupport::Set("TMPDIR", tmp_),
                testsupport::Set("QT_QPA_PLATFORM", "offscreen"), testsupport::Unset("XDG_RUNTIME_DIR"),
                testsupport::Set("LANG", "C.UTF-8")};
    }

    testsupport::ProcessResult RunLauncher() const { return testsupport::Run({launcher_}, Env(home_)); }

    testsupport::TempDir dir_{"calderix-launcher"};
    std::string bundle_;
    std::string launcher_;
    std::string home_;
    std::string tmp_;
};
