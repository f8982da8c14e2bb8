// The parts of the service that need no launcher run, called in-process
// with the fixture's home: the recursive copy, the launch through an
// injected Launch Services, and the Linux Launch Services.
#include <algorithm>

#include <gmock/gmock.h>

#include "calderix-service.h"
#include "launch_services.h"
#include "launcher_fixture.h"
#include "log.h"
#include "mac/mac-service.h"
#include "tree_snapshot.h"

using namespace testsupport;
using Strings = std::vector<std::string>;

namespace {

// The fixture's home for this process, and a log with the service's
// messages at every level.
class ServiceUnit : public LauncherFixture {
protected:
    void SetUp() override
    {
        LauncherFixture::SetUp();
        UseFixtureEnvironment();
        ASSERT_TRUE(WriteFile(root_ + "/levels", "service_debug=7\n")) << strerror(errno);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, Log().c_str(), (root_ + "/levels").c_str(), 50), 0);
    }

    void TearDown() override
    {
        Logger::Destroy();
        LauncherFixture::TearDown();
    }

    std::string Log() const { return root_ + "/unit.log"; }
};

// The copy reproduces the tree; into a destination that cannot take it, the
// first failure ends the copy and each level on the way out names its own
// entry.
TEST_F(ServiceUnit, CopyPathReproducesTheTreeOrStopsAtTheFirstFailure)
{
    const std::string src = root_ + "/src", dst = root_ + "/dst", bad = root_ + "/bad",
                      file = "/sub/deeper/c.bin";
    ASSERT_TRUE(MakeDirs(src + "/sub/deeper") && MakeDirs(src + "/empty") &&
                WriteFile(src + "/.hidden", "dot") && WriteFile(src + "/sub/b.txt", "") &&
                WriteFile(src + file, std::string(100000, 'c')) && MakeDirs(bad + file))
        << strerror(errno);
    const auto line = [&](const std::string& to, const std::string& rel) {
        return (to == dst ? "[DEBUG] calderix-service(%d): "
                          : "[ERROR] calderix-service(%d): FSCopyPath: failed to ") +
               std::string("copy from '") + src + rel + "' to '" + to + rel + "'";
    };

    MacService service;
    EXPECT_EQ(service.FSCopyPath(src, dst), 0);
    EXPECT_EQ(Snapshot(dst), Snapshot(src));
    Strings lines = launchertest::LogLines(ReadFile(Log()));
    std::sort(lines.begin(), lines.end()); // in the order of the folder listing
    EXPECT_EQ(lines,
              (Strings{line(dst, ""), line(dst, "/empty"), line(dst, "/sub"), line(dst, "/sub/deeper")}));

    EXPECT_EQ(service.FSCopyPath(src, bad), -1);
    lines = launchertest::LogLines(ReadFile(Log()));
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const std::string& l) { return l.find("failed to copy") == l.npos; }),
                lines.end());
    EXPECT_EQ(lines, (Strings{line(bad, file), line(bad, "/sub/deeper"), line(bad, "/sub")}));
}

class FakeLaunchServices : public platform::LaunchServices {
public:
    MOCK_METHOD(int, Unregister, (const std::string& bundle), (override));
    MOCK_METHOD(int, Open, (const std::string& bundle, const std::string& output), (override));
};

// The Linux layer never fails to unregister, so only a fake shows that the
// failure is logged (without a line feed) and the bundle is opened all the same.
TEST_F(ServiceUnit, LaunchOpensTheBundleAlsoWhenUnregisteringFails)
{
    FakeLaunchServices fake;
    ::testing::InSequence order;
    EXPECT_CALL(fake, Unregister(app_)).WillOnce(::testing::Return(1));
    EXPECT_CALL(fake, Open(app_, install_ + "/log/ui.log")).WillOnce(::testing::Return(0));
    MacService service(fake);
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    const std::string log = ReadFile(Log());
    EXPECT_TRUE(!log.empty() && log.back() != '\n') << "the message has no line feed of its own: " << log;
    EXPECT_EQ(launchertest::LogLines(log),
              Strings{"[ERROR] mac/mac-service(%d): Cannot unregister bundle, " + app_});
}

struct OpenCase {
    const char* name;
    const char* plist;   // CFBundleExecutable; null: no Info.plist
    Strings files;       // in Contents/MacOS: "x*" the demo user interface, "x!" an executable that
                         // is no program, "x>" a program that writes a line to each output and
                         // fails, "x/" a folder, "x" a plain file
    const char* started; // the file that runs afterwards; null: none
    int error;
    const char* output = nullptr; // the output file once the program has ended; null: not looked at
};

class LinuxOpen : public ServiceUnit, public ::testing::WithParamInterface<OpenCase> {};

// The user's bundle; a program started from it announces itself in ui.pid.
TEST_P(LinuxOpen, StartsTheBundlesExecutableOnceOrSaysWhyNot)
{
    const OpenCase& c = GetParam();
    const std::string macos = app_ + "/Contents/MacOS";
    ASSERT_TRUE(MakeDirs(macos)) << macos << ": " << strerror(errno);
    if (c.plist != nullptr) {
        ASSERT_TRUE(WriteFile(app_ + "/Contents/Info.plist",
                              "<plist version=\"1.0\">\n<dict>\n\t<key>CFBundleName</key><string>U</string>\n"
                              "\t<key>CFBundleExecutable</key>\n\t<!-- the program -->\n\t<string>" +
                                  std::string(c.plist) + "</string>\n</dict>\n</plist>\n"));
    }
    for (const std::string& f : c.files) {
        const std::string path = macos + "/" + f.substr(0, f.find_first_of("*!/>"));
        ASSERT_TRUE(f.back() == '/'   ? MakeDirs(path)
                    : f.back() == '*' ? CopyTree(DEMO_UI_PATH, path)
                    : f.back() == '>'
                        ? WriteFile(path, "#!/bin/sh\necho out\necho no display >&2\nexit 1\n", 0755)
                        : WriteFile(path, "not a program\n", f.back() == '!' ? 0755 : 0644))
            << path << ": " << strerror(errno);
    }
    // The output file is made afresh, never written through what lies there.
    const std::string output = root_ + "/ui.log", planted = root_ + "/planted";
    ASSERT_TRUE(WriteFile(planted, "someone's file\n") && symlink(planted.c_str(), output.c_str()) == 0)
        << strerror(errno);

    const int r = platform::SystemLaunchServices().Open(app_, output);
    EXPECT_EQ(r, c.error) << "got " << strerror(r) << ", want " << strerror(c.error);
    for (int i = 0; c.output != nullptr && i < 1000 && ReadFile(output) != c.output; ++i) {
        usleep(10000);
    }
    if (c.output != nullptr) {
        EXPECT_EQ(ReadFile(output), c.output);
    }
    EXPECT_EQ(ReadFile(planted), "someone's file\n") << "written through the link at the output's place";
    if (c.started == nullptr) {
        EXPECT_TRUE(launchertest::ProcessesBelow(root_).empty()) << "something was started";
        return;
    }
    const pid_t ui = WaitForUi();
    ASSERT_GT(ui, 0) << "nothing came up";
    EXPECT_EQ(platform::SystemLaunchServices().Open(app_, output), 0) << "opened again";
    EXPECT_EQ(launchertest::ProcessesBelow(root_),
              (std::vector<std::pair<pid_t, std::string>>{{ui, macos + "/" + c.started}}))
        << "not started exactly once";
    EXPECT_NE(getsid(ui), getsid(0)) << "not detached from our session";
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
        OpenCase{"NotAProgram", "ui", {"ui!"}, nullptr, ENOEXEC},
        OpenCase{"ProgramFailsAtOnce", "ui", {"ui>"}, nullptr, 0, "out\nno display\n"}),
    RowName());

} // namespace
