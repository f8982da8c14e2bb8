// A fake launcher bundle with the service driver in Contents/MacOS, its
// package and version file, and a fake home, all in a fresh temporary
// folder; runs one service operation at a time from inside the bundle.
#pragma once

#include <cerrno>
#include <climits>
#include <csignal>
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

class DriverFixture : public ::testing::Test {
protected:
    static constexpr uid_t kNobody = 65534;

    void SetUp() override
    {
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        bundle_ = root_ + "/Fake.app";
        const std::string macos = bundle_ + "/Contents/MacOS";
        for (const std::string& d : {macos, bundle_ + "/Contents/Resources/package", bundle_ + "/log",
                                     root_ + "/home", root_ + "/tmp", root_ + "/out"}) {
            ASSERT_TRUE(testsupport::MakeDirs(d)) << d << ": " << strerror(errno);
        }
        driver_ = macos + "/service_driver";
        ASSERT_TRUE(testsupport::CopyTree(DRIVER_PATH, driver_)) << DRIVER_PATH << ": " << strerror(errno);
        const std::string levels = bundle_ + "/log/launcher.debug";
        ASSERT_TRUE(testsupport::WriteFile(levels, "service_debug=7\n")) << levels << ": " << strerror(errno);
        standin_ = testsupport::ReadFile(STANDIN_PATH);
        ASSERT_FALSE(standin_.empty()) << STANDIN_PATH << " is empty or unreadable";
        home_ = root_ + "/home";
        install_ = home_ + "/.Calderix";
        app_ = install_ + "/Calderix.app";
        ui_ = app_ + "/Contents/MacOS/calderix-drive-ui";
        package_ = bundle_ + "/Contents/Resources/package/calderix.vpk";
        log_ = root_ + "/out/driver.log";
        trace_ = root_ + "/out/trace";
        launched_pid_ = root_ + "/out/launched.pid";
        launched_info_ = root_ + "/out/launched.info";
    }

    void TearDown() override
    {
        // Whatever a test started from its own copies goes with it.
        for (const std::string& exe : {ui_, root_ + "/watcher"}) {
            servicetest::KillAllRunning(exe);
        }
        for (pid_t child : children_) {
            kill(child, SIGKILL);
            testsupport::Wait(child);
        }
    }

    static std::string VersionFile(const std::string& build)
    {
        return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build +
               "\nicon_overlay_version=7\n";
    }

    static std::string Plist(const std::string& executable)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
               "\t<key>CFBundleExecutable</key>\n\t<string>" +
               executable + "</string>\n</dict>\n</plist>\n";
    }

    // The package of build: a complete user bundle with the stand-in UI.
    std::vector<servicetest::PackageEntry> Package(const std::string& build) const
    {
        using servicetest::FileEntry;
        using servicetest::FolderEntry;
        return {FolderEntry("Contents"),
                FileEntry("Contents/Info.plist", Plist("calderix-drive-ui")),
                FolderEntry("Contents/MacOS"),
                FileEntry("Contents/MacOS/calderix-drive-ui", standin_, 0755),
                FolderEntry("Contents/Resources"),
                FileEntry("Contents/Resources/INFO", VersionFile(build)),
                FolderEntry("Contents/Resources/docs"),
                FileEntry("Contents/Resources/docs/read me.txt", "new copy\n"),
                FolderEntry("Contents/Resources/empty")};
    }

    void WriteBundlePackage(servicetest::PackageFormat format,
                            const std::vector<servicetest::PackageEntry>& entries)
    {
        ASSERT_TRUE(servicetest::WritePackage(package_, format, entries));
    }

    void WriteBundleVersion(const std::string& content)
    {
        const std::string path = bundle_ + "/Contents/Resources/INFO";
        ASSERT_TRUE(testsupport::WriteFile(path, content)) << path << ": " << strerror(errno);
    }

    // An installed copy of build with the stand-in UI and a file that no
    // package carries.
    void InstallOldCopy(const std::string& build)
    {
        for (const std::string& d : {app_ + "/Contents/MacOS", app_ + "/Contents/Resources"}) {
            ASSERT_TRUE(testsupport::MakeDirs(d)) << d << ": " << strerror(errno);
        }
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Info.plist", Plist("calderix-drive-ui")));
        ASSERT_TRUE(testsupport::WriteFile(ui_, standin_, 0755)) << ui_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/INFO", VersionFile(build)));
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/old-only.txt", "old copy\n"));
    }

    // A non-empty folder, which no rename can replace.
    void Block(const std::string& path)
    {
        ASSERT_TRUE(testsupport::MakeDirs(path)) << path << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::WriteFile(path + "/left-over", path)) << path << ": " << strerror(errno);
    }

    std::vector<testsupport::EnvChange> Env() const
    {
        return {testsupport::Set("HOME", home_),
                testsupport::Set("TMPDIR", root_ + "/tmp"),
                testsupport::Set("QT_QPA_PLATFORM", "offscreen"),
                testsupport::Unset("XDG_RUNTIME_DIR"),
                testsupport::Set("LC_ALL", "C"),
                testsupport::Set("SERVICE_TRACE_FILE", trace_),
                testsupport::Set("STANDIN_PID_FILE", launched_pid_),
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

    // A stand-in UI, a child of the test, that announces itself in the
    // user's pid file; mode as for the stand-in. Returns its pid.
    pid_t StartUi(const std::string& exe, const std::string& mode)
    {
        const pid_t pid =
            testsupport::Start({exe}, {testsupport::Set("STANDIN_MODE", mode),
                                       testsupport::Set("STANDIN_PID_FILE", install_ + "/ui.pid"),
                                       testsupport::Unset("STANDIN_INFO")});
        EXPECT_GT(pid, 0) << exe << ": " << strerror(errno);
        if (pid > 0) {
            children_.push_back(pid);
            EXPECT_EQ(servicetest::WaitForPidFile(install_ + "/ui.pid"), pid) << exe << " did not come up";
        }
        return pid;
    }

    // Reaps child on a thread of its own, so that it is gone the moment it
    // ends rather than when the test gets round to it.
    class Reaper {
    public:
        explicit Reaper(pid_t pid) : thread_([this, pid] { status_ = testsupport::Wait(pid); }) {}
        int Join()
        {
            thread_.join();
            return status_;
        }

    private:
        int status_ = -1;
        std::thread thread_;
    };

    // Takes child off the list of those TearDown kills: it has been reaped.
    void Forget(pid_t child)
    {
        for (auto it = children_.begin(); it != children_.end(); ++it) {
            if (*it == child) {
                children_.erase(it);
                return;
            }
        }
    }

    // Lets a driver or stand-in that runs as nobody reach the fixture and
    // write in root_/out (still empty then).
    void OpenToNobody()
    {
        ASSERT_EQ(chmod(root_.c_str(), 0755), 0) << root_ << ": " << strerror(errno);
        const std::string out = root_ + "/out";
        ASSERT_EQ(chown(out.c_str(), kNobody, kNobody), 0) << out << ": " << strerror(errno);
    }

    // Runs one operation as nobody; returns the wait status.
    int DriverAsNobody(const std::string& op)
    {
        const pid_t driver = servicetest::StartAs(kNobody, kNobody, {driver_, op, log_}, Env());
        EXPECT_GT(driver, 0) << strerror(errno);
        return driver > 0 ? testsupport::Wait(driver) : -1;
    }

    std::vector<std::string> Lines() const { return servicetest::ServiceLines(testsupport::ReadFile(log_)); }
    std::vector<std::string> Trace() const { return testsupport::Lines(testsupport::ReadFile(trace_)); }

    // text with <app>, <install> and <vpk> replaced by this fixture's paths.
    std::string Expand(std::string text) const
    {
        const std::pair<std::string, std::string> names[] = {
            {"<app>", app_}, {"<install>", install_}, {"<vpk>", package_}};
        for (const auto& name : names) {
            for (size_t at = text.find(name.first); at != std::string::npos;
                 at = text.find(name.first, at + name.second.size())) {
                text.replace(at, name.first.size(), name.second);
            }
        }
        return text;
    }
    std::vector<std::string> ExpandAll(const std::vector<std::string>& lines) const
    {
        std::vector<std::string> out;
        for (const std::string& line : lines) {
            out.push_back(Expand(line));
        }
        return out;
    }

    testsupport::TempDir dir_{"calderix-service"};
    std::string root_;
    std::string bundle_;
    std::string driver_;
    std::string standin_;
    std::string home_;
    std::string install_;
    std::string app_;
    std::string ui_;
    std::string package_;
    std::string log_;
    std::string trace_;
    std::string launched_pid_;
    std::string launched_info_;
    std::vector<pid_t> children_;
};
