// The parts of the service that need no launcher bundle, called in-process:
// the recursive copy, the launch through an injected Launch Services, and
// the Linux Launch Services themselves.
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launch_services.h"
#include "log.h"
#include "mac/mac-service.h"
#include "service_fixture.h"
#include "test_support.h"

using servicetest::Snapshot;
using ::testing::Return;
using Strings = std::vector<std::string>;

namespace {

// A fake home and a log with the service's messages at every level.
class ServiceUnit : public ::testing::Test {
protected:
    void SetUp() override
    {
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        ASSERT_TRUE(testsupport::MakeDirs(root_ + "/home"));
        ASSERT_TRUE(testsupport::WriteFile(root_ + "/levels", "service_debug=7\n"));
        const char* home = getenv("HOME");
        saved_home_ = home != nullptr ? home : "";
        setenv("HOME", (root_ + "/home").c_str(), 1);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log_.c_str(), (root_ + "/levels").c_str(), 50), 0);
    }

    void TearDown() override
    {
        Logger::Destroy();
        setenv("HOME", saved_home_.c_str(), 1);
    }

    Strings Lines() const
    {
        return servicetest::ServiceLines(testsupport::ReadFile(log_), {{root_, "<root>"}});
    }

    testsupport::TempDir dir_{"calderix-service-unit"};
    std::string root_, saved_home_;
    std::string log_ = dir_ / "service.log";
};

} // namespace

// ------------------------------------------------------------------ FSCopyPath

TEST_F(ServiceUnit, CopyPathReproducesTheTree)
{
    const std::string src = root_ + "/src";
    ASSERT_TRUE(testsupport::MakeDirs(src + "/sub/deeper"));
    ASSERT_TRUE(testsupport::MakeDirs(src + "/empty"));
    ASSERT_TRUE(testsupport::WriteFile(src + "/.hidden", "dot file"));
    ASSERT_TRUE(testsupport::WriteFile(src + "/sub/b.txt", ""));
    ASSERT_TRUE(testsupport::WriteFile(src + "/sub/deeper/c.bin", servicetest::NoiseBytes(100000)));

    MacService service;
    EXPECT_EQ(service.FSCopyPath(src, root_ + "/dst"), 0);
    EXPECT_EQ(Snapshot(root_ + "/dst"), Snapshot(src));
    Strings lines = Lines();
    std::sort(lines.begin(), lines.end()); // in the order of the folder listing
    EXPECT_EQ(lines,
              (Strings{"[DEBUG] calderix-service(%d): copy from '<root>/src' to '<root>/dst'",
                       "[DEBUG] calderix-service(%d): copy from '<root>/src/empty' to '<root>/dst/empty'",
                       "[DEBUG] calderix-service(%d): copy from '<root>/src/sub' to '<root>/dst/sub'",
                       "[DEBUG] calderix-service(%d): copy from '<root>/src/sub/deeper' to "
                       "'<root>/dst/sub/deeper'"}));
}

// ------------------------------------------------------------------ launch through a fake

class FakeLaunchServices : public platform::LaunchServices {
public:
    MOCK_METHOD(int, Unregister, (const std::string& bundle), (override));
    MOCK_METHOD(int, Open, (const std::string& bundle), (override));
};

// The Linux layer never fails to unregister, so only a fake shows that the
// failure is logged (without a line feed) and the bundle is opened all the same.
TEST_F(ServiceUnit, LaunchOpensTheBundleAlsoWhenUnregisteringFails)
{
    const std::string bundle = root_ + "/home/.Calderix/Calderix.app";
    FakeLaunchServices fake;
    ::testing::InSequence order;
    EXPECT_CALL(fake, Unregister(bundle)).WillOnce(Return(1));
    EXPECT_CALL(fake, Open(bundle)).WillOnce(Return(0));
    MacService service(fake);
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    const std::string log = testsupport::ReadFile(log_);
    EXPECT_TRUE(!log.empty() && log.back() != '\n') << "the message has no line feed of its own: " << log;
    EXPECT_EQ(
        Lines(),
        Strings{"[ERROR] mac/mac-service(%d): Cannot unregister bundle, <root>/home/.Calderix/Calderix.app"});
}

// ------------------------------------------------------------------ Linux Launch Services

struct OpenCase {
    const char* name;
    const char* plist;   // CFBundleExecutable; null: no Info.plist
    Strings files;       // in Contents/MacOS: "x*" the stand-in UI, "x!" an executable that is no
                         // program, "x/" a folder, "x" a plain file
    const char* started; // the file that runs afterwards; null: none
    int error;
};

// A user bundle in a fresh folder; whatever a test starts from it is
// killed at the end.
class LinuxOpen : public ServiceUnit, public ::testing::WithParamInterface<OpenCase> {
protected:
    void TearDown() override
    {
        unsetenv("STANDIN_INFO");
        for (const auto& entry : Snapshot(macos_)) {
            servicetest::KillAllRunning(macos_ + "/" + entry.first);
        }
        ServiceUnit::TearDown();
    }

    std::string macos_ = dir_ / "User.app/Contents/MacOS";
};

TEST_P(LinuxOpen, StartsTheBundlesExecutableOrSaysWhyNot)
{
    const OpenCase& c = GetParam();
    const std::string standin = testsupport::ReadFile(STANDIN_PATH), info = dir_ / "started.info";
    ASSERT_FALSE(standin.empty()) << STANDIN_PATH;
    ASSERT_TRUE(testsupport::MakeDirs(macos_)) << macos_ << ": " << strerror(errno);
    if (c.plist != nullptr) {
        ASSERT_TRUE(testsupport::WriteFile(
            dir_ / "User.app/Contents/Info.plist",
            "<plist version=\"1.0\">\n<dict>\n\t<key>CFBundleName</key><string>U</string>\n"
            "\t<key>CFBundleExecutable</key>\n\t<!-- the program -->\n\t<string>" +
                std::string(c.plist) + "</string>\n</dict>\n</plist>\n"));
    }
    for (const std::string& f : c.files) {
        const std::string path = macos_ + "/" + f.substr(0, f.find_first_of("*!/"));
        ASSERT_TRUE(f.back() == '/' ? testsupport::MakeDirs(path)
                    : f.back() == '*'
                        ? testsupport::WriteFile(path, standin, 0755)
                        : testsupport::WriteFile(path, "not a program\n", f.back() == '!' ? 0755 : 0644))
            << path << ": " << strerror(errno);
    }
    setenv("STANDIN_INFO", info.c_str(), 1); // the started program inherits it
    unsetenv("STANDIN_PID_FILE");

    const int r = platform::SystemLaunchServices().Open(dir_ / "User.app");
    EXPECT_EQ(r, c.error) << "got " << strerror(r) << ", want " << strerror(c.error);
    if (c.started == nullptr) {
        EXPECT_FALSE(testsupport::Exists(info)) << "something was started";
        return;
    }
    const pid_t ui = servicetest::WaitForPidFile(info);
    ASSERT_GT(ui, 0) << "nothing came up";
    EXPECT_EQ(servicetest::ProcessesRunning(macos_ + "/" + c.started), std::vector<pid_t>{ui});
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, LinuxOpen,
    ::testing::Values(
        OpenCase{"PlistNamesIt", "ui-main", {"ui-main*", "helper*"}, "ui-main", 0},
        OpenCase{"NoPlistOnlyExecutable", nullptr, {"ui*", "notes.txt", ".hidden*", "lib/"}, "ui", 0},
        OpenCase{"NoPlistTwoExecutables", nullptr, {"a*", "b*"}, nullptr, ENOENT},
        OpenCase{"PlistNamesMissingFile", "calderix-drive-ui", {"other*"}, nullptr, ENOENT},
        OpenCase{"PlistNamesPlainFile", "ui", {"ui"}, nullptr, EACCES},
        OpenCase{"NameLeavesTheFolder", "../ui", {"ui*"}, nullptr, EINVAL},
        // Only the exec itself can tell: the child has to report it.
        OpenCase{"NotAProgram", "ui", {"ui!"}, nullptr, ENOEXEC}),
    servicetest::RowName<OpenCase>);
