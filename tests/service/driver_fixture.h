// A fake launcher bundle with the service driver in Contents/MacOS, its
// package and version file, and a fake home, all in a fresh temporary
// folder; runs one service operation at a time from inside the bundle.
#pragma once

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "service_fixture.h"
#include "test_support.h"

inline std::string VersionFile(const std::string& build)
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build +
           "\nicon_overlay_version=7\n";
}

class DriverFixture : public ::testing::Test {
protected:
    static constexpr uid_t kNobody = 65534;

    void SetUp() override
    {
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        bundle_ = root_ + "/Fake.app";
        home_ = root_ + "/home";
        install_ = home_ + "/.Calderix";
        app_ = install_ + "/Calderix.app";
        ui_ = app_ + "/Contents/MacOS/calderix-drive-ui";
        package_ = bundle_ + "/Contents/Resources/package/calderix.vpk";
        driver_ = bundle_ + "/Contents/MacOS/service_driver";
        for (const std::string& d : {bundle_ + "/Contents/MacOS", bundle_ + "/Contents/Resources/package",
                                     bundle_ + "/log", home_, root_ + "/tmp", root_ + "/out"}) {
            ASSERT_TRUE(testsupport::MakeDirs(d)) << d << ": " << strerror(errno);
        }
        // A driver or stand-in that runs as nobody reaches the fixture and writes in out.
        ASSERT_EQ(chmod(root_.c_str(), 0755), 0) << root_ << ": " << strerror(errno);
        ASSERT_EQ(chown((root_ + "/out").c_str(), kNobody, kNobody), 0) << strerror(errno);
        ASSERT_TRUE(testsupport::CopyTree(DRIVER_PATH, driver_)) << DRIVER_PATH << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(bundle_ + "/log/launcher.debug", "service_debug=7\n"));
        standin_ = testsupport::ReadFile(STANDIN_PATH);
        ASSERT_FALSE(standin_.empty()) << STANDIN_PATH << " is empty or unreadable";
    }

    // Whatever a test started from its own copies goes with it.
    void TearDown() override
    {
        servicetest::KillAllRunning(ui_);
        servicetest::KillAllRunning(root_ + "/watcher");
    }

    // The package of build: a complete user bundle with the stand-in UI.
    std::vector<servicetest::PackageEntry> Package(const std::string& build) const
    {
        using servicetest::FileEntry;
        using servicetest::FolderEntry;
        return {FolderEntry("Contents"), FileEntry("Contents/MacOS/calderix-drive-ui", standin_, 0755),
                FileEntry("Contents/Resources/INFO", VersionFile(build)),
                FileEntry("Contents/Resources/docs/read me.txt", "new copy\n"),
                FolderEntry("Contents/Resources/empty")};
    }

    // An installed copy of build with the stand-in UI and a file that no
    // package carries.
    void InstallOldCopy(const std::string& build)
    {
        ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/MacOS"));
        ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/Resources"));
        ASSERT_TRUE(testsupport::WriteFile(ui_, standin_, 0755)) << ui_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/INFO", VersionFile(build)));
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/old-only.txt", "old copy\n"));
    }

    // A non-empty folder, which no rename can replace.
    void Block(const std::string& path)
    {
        ASSERT_TRUE(testsupport::MakeDirs(path)) << path << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(path + "/left-over", "kept"));
    }

    std::vector<testsupport::EnvChange> Env() const
    {
        return {testsupport::Set("HOME", home_),
                testsupport::Set("TMPDIR", root_ + "/tmp"),
                testsupport::Set("QT_QPA_PLATFORM", "offscreen"),
                testsupport::Unset("XDG_RUNTIME_DIR"),
                testsupport::Set("LC_ALL", "C"),
                testsupport::Set("SERVICE_TRACE_FILE", root_ + "/out/trace"),
                testsupport::Set("STANDIN_PID_FILE", launched_),
                testsupport::Set("STANDIN_INFO", launched_info_),
                testsupport::Unset("STANDIN_MODE")};
    }

    // Runs one operation and returns what it printed; a driver that did not
    // run to its end fails the test.
    std::string Driver(const std::string& op)
    {
        const testsupport::ProcessResult r = testsupport::Run({driver_, op, log_}, Env());
        EXPECT_TRUE(r.exited && r.exit_code == 0)
            << op << ": exit " << r.exit_code << ", signal " << r.term_signal << ", stderr: " << r.err;
        return r.out;
    }

    // Runs one operation as nobody; returns the wait status.
    int DriverAsNobody(const std::string& op)
    {
        const pid_t driver = servicetest::StartAs(kNobody, kNobody, {driver_, op, log_}, Env());
        EXPECT_GT(driver, 0) << strerror(errno);
        return driver > 0 ? testsupport::Wait(driver) : -1;
    }

    // A stand-in UI, a child of the test, that announces itself in the
    // user's pid file; mode as for the stand-in. Returns its pid.
    pid_t StartUi(const std::string& mode)
    {
        const pid_t pid =
            testsupport::Start({ui_}, {testsupport::Set("STANDIN_MODE", mode),
                                       testsupport::Set("STANDIN_PID_FILE", install_ + "/ui.pid"),
                                       testsupport::Unset("STANDIN_INFO")});
        EXPECT_GT(pid, 0) << ui_ << ": " << strerror(errno);
        if (pid > 0) {
            EXPECT_EQ(servicetest::WaitForPidFile(install_ + "/ui.pid"), pid) << ui_ << " did not come up";
        }
        return pid;
    }

    // Reaps a child on a thread of its own, so that it is gone the moment it
    // ends and a probe with signal 0 no longer finds it.
    struct Reaper {
        int status = -1;
        std::thread thread;
        explicit Reaper(pid_t pid) : thread([this, pid] { status = testsupport::Wait(pid); }) {}
        int Join()
        {
            thread.join();
            return status;
        }
    };

    std::vector<std::string> Lines() const
    {
        return servicetest::ServiceLines(testsupport::ReadFile(log_),
                                         {{package_, "<vpk>"}, {app_, "<app>"}, {install_, "<install>"}});
    }
    std::vector<std::string> Trace() const
    {
        return testsupport::Lines(testsupport::ReadFile(root_ + "/out/trace"));
    }

    testsupport::TempDir dir_{"calderix-service"};
    std::string root_, bundle_, home_, install_, app_, ui_, package_, driver_, standin_;
    std::string log_ = dir_ / "out/driver.log";
    std::string launched_ = dir_ / "out/launched.pid";
    std::string launched_info_ = dir_ / "out/launched.info";
};
