// The parts of the service that need no launcher bundle, called in-process:
// the recursive copy, the launch through an injected Launch Services, and
// the Linux Launch Services themselves.
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launch_services.h"
#include "log.h"
#include "mac/mac-service.h"
#include "service_fixture.h"
#include "test_support.h"

using servicetest::Snapshot;
using ::testing::ElementsAreArray;
using ::testing::Return;
using ::testing::UnorderedElementsAreArray;

namespace {

const uid_t kNobody = 65534;

template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

std::string Replace(std::string text, const std::string& from, const std::string& to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

// A fake home and a log with the service's messages at every level.
class ServiceUnit : public ::testing::Test {
protected:
    void SetUp() override
    {
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        home_ = root_ + "/home";
        ASSERT_TRUE(testsupport::MakeDirs(home_)) << home_ << ": " << strerror(errno);
        const std::string levels = root_ + "/levels";
        ASSERT_TRUE(testsupport::WriteFile(levels, "service_debug=7\n")) << levels << ": " << strerror(errno);
        const char* home = getenv("HOME");
        saved_home_ = home != nullptr ? home : "";
        setenv("HOME", home_.c_str(), 1);
        log_ = root_ + "/service.log";
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log_.c_str(), levels.c_str(), 50), 0) << log_;
    }

    void TearDown() override
    {
        Logger::Destroy();
        setenv("HOME", saved_home_.c_str(), 1);
    }

    std::vector<std::string> Lines() const { return servicetest::ServiceLines(testsupport::ReadFile(log_)); }

    testsupport::TempDir dir_{"calderix-service-unit"};
    std::string root_;
    std::string home_;
    std::string log_;
    std::string saved_home_;
};

} // namespace

// ------------------------------------------------------------------ FSCopyPath

TEST_F(ServiceUnit, CopyPathReproducesTheTree)
{
    const std::string src = root_ + "/src";
    const std::string dst = root_ + "/dst";
    for (const std::string& d : {src + "/sub/deeper", src + "/empty"}) {
        ASSERT_TRUE(testsupport::MakeDirs(d)) << d << ": " << strerror(errno);
    }
    ASSERT_TRUE(testsupport::WriteFile(src + "/a.txt", "alpha"));
    ASSERT_TRUE(testsupport::WriteFile(src + "/.hidden", "dot file"));
    ASSERT_TRUE(testsupport::WriteFile(src + "/sub/b.txt", ""));
    ASSERT_TRUE(testsupport::WriteFile(src + "/sub/deeper/c.bin", servicetest::NoiseBytes(100000)));

    MacService service;
    EXPECT_EQ(service.FSCopyPath(src, dst), 0);
    const servicetest::Tree copied = Snapshot(dst);
    for (const auto& entry : Snapshot(src)) {
        const auto it = copied.find(entry.first);
        ASSERT_NE(it, copied.end()) << entry.first << " was not copied";
        if (entry.second == "dir") {
            EXPECT_EQ(it->second, "dir") << entry.first;
        } else {
            // Only the bytes travel; the mode is the copy's own.
            EXPECT_EQ(it->second.substr(7), entry.second.substr(7)) << entry.first;
        }
    }
    EXPECT_EQ(copied.size(), Snapshot(src).size()) << "something besides the tree arrived";
    const char* folders[] = {"", "/sub", "/sub/deeper", "/empty"};
    std::vector<std::string> expected;
    for (const char* f : folders) {
        expected.push_back("[DEBUG] calderix-service(%d): copy from '" + src + f + "' to '" + dst + f + "'");
    }
    EXPECT_THAT(Lines(), UnorderedElementsAreArray(expected));
}

TEST_F(ServiceUnit, CopyPathOfASingleFile)
{
    const std::string src = root_ + "/file.txt";
    ASSERT_TRUE(testsupport::WriteFile(src, "content"));
    MacService service;
    EXPECT_EQ(service.FSCopyPath(src, root_ + "/copy.txt"), 0);
    EXPECT_EQ(testsupport::ReadFile(root_ + "/copy.txt"), "content");
}

struct CopyFailureCase {
    const char* name;
    // Builds the fixture below root and returns the source path; the
    // destination is root + "/dst".
    std::string (*setup)(const std::string& root);
    std::vector<std::string> lines; // <src> and <dst> stand for the paths
};
void PrintTo(const CopyFailureCase& c, std::ostream* os)
{
    *os << c.name;
}

class CopyPathFailure : public ServiceUnit, public ::testing::WithParamInterface<CopyFailureCase> {};

TEST_P(CopyPathFailure, ReturnsMinusOneAndSaysWhere)
{
    const CopyFailureCase& c = GetParam();
    const std::string src = c.setup(root_);
    ASSERT_FALSE(HasFatalFailure());
    const std::string dst = root_ + "/dst";
    MacService service;
    EXPECT_EQ(service.FSCopyPath(src, dst), -1);
    std::vector<std::string> expected;
    for (const std::string& line : c.lines) {
        expected.push_back(Replace(Replace(line, "<src>", src), "<dst>", dst));
    }
    EXPECT_THAT(Lines(), ElementsAreArray(expected));
}

INSTANTIATE_TEST_SUITE_P(
    Sources, CopyPathFailure,
    ::testing::Values(
        CopyFailureCase{"MissingSource",
                        [](const std::string& root) { return root + "/none"; },
                        {"[DEBUG] calderix-service(%d): copy from '<src>' to '<dst>'",
                         "[ERROR] calderix-service(%d): FSCopyPath: source path '<src>' does not exist"}},
        CopyFailureCase{"EmptySourcePath",
                        [](const std::string&) { return std::string(); },
                        {"[DEBUG] calderix-service(%d): copy from '' to '<dst>'",
                         "[ERROR] calderix-service(%d): FSCopyPath: failed to stat source ''"}},
        CopyFailureCase{"DestinationIsAFile",
                        [](const std::string& root) {
                            EXPECT_TRUE(testsupport::MakeDirs(root + "/src"));
                            EXPECT_TRUE(testsupport::WriteFile(root + "/dst", "in the way"));
                            return root + "/src";
                        },
                        {"[DEBUG] calderix-service(%d): copy from '<src>' to '<dst>'",
                         "[ERROR] calderix-service(%d): FSCopyPath: failed to create dest folder '<dst>'"}},
        // A folder where the file has to go fails the copy for root too;
        // each level on the way up says which of its entries failed.
        CopyFailureCase{
            "EntryDeepInTheTree",
            [](const std::string& root) {
                EXPECT_TRUE(testsupport::MakeDirs(root + "/src/sub"));
                EXPECT_TRUE(testsupport::WriteFile(root + "/src/sub/f", "data"));
                EXPECT_TRUE(testsupport::MakeDirs(root + "/dst/sub/f"));
                return root + "/src";
            },
            {"[DEBUG] calderix-service(%d): copy from '<src>' to '<dst>'",
             "[DEBUG] calderix-service(%d): copy from '<src>/sub' to '<dst>/sub'",
             "[ERROR] calderix-service(%d): FSCopyPath: failed to copy from '<src>/sub/f' to '<dst>/sub/f'",
             "[ERROR] calderix-service(%d): FSCopyPath: failed to copy from '<src>/sub' to '<dst>/sub'"}},
        CopyFailureCase{"SingleFileThatCannotBeWritten",
                        [](const std::string& root) {
                            EXPECT_TRUE(testsupport::WriteFile(root + "/src", "data"));
                            EXPECT_TRUE(testsupport::MakeDirs(root + "/dst"));
                            return root + "/src";
                        },
                        {"[DEBUG] calderix-service(%d): copy from '<src>' to '<dst>'"}}),
    RowName<CopyFailureCase>);

// A folder that nobody may list (run as nobody in a child, since root may
// list anything): a warning, an empty destination and success.
TEST_F(ServiceUnit, CopyPathOfAnUnlistableFolderGivesAnEmptyCopy)
{
    const std::string src = root_ + "/locked";
    const std::string out = root_ + "/out";
    const std::string dst = out + "/dst";
    ASSERT_TRUE(testsupport::MakeDirs(src));
    ASSERT_TRUE(testsupport::WriteFile(src + "/secret", "x"));
    ASSERT_EQ(chmod(src.c_str(), 0), 0) << src << ": " << strerror(errno);
    ASSERT_EQ(chmod(root_.c_str(), 0755), 0) << root_ << ": " << strerror(errno);
    ASSERT_TRUE(testsupport::MakeDirs(out));
    ASSERT_EQ(chown(out.c_str(), kNobody, kNobody), 0) << out << ": " << strerror(errno);

    const pid_t child = fork();
    ASSERT_GE(child, 0) << strerror(errno);
    if (child == 0) {
        if (setgid(kNobody) != 0 || setuid(kNobody) != 0) {
            _exit(126);
        }
        MacService service;
        _exit(service.FSCopyPath(src, dst) == 0 ? 0 : 1);
    }
    const int status = testsupport::Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "child wait status " << status;
    EXPECT_THAT(
        Lines(),
        ElementsAreArray({"[DEBUG] calderix-service(%d): copy from '" + src + "' to '" + dst + "'",
                          "[WARNING] calderix-service(%d): FSCopyPath: failed to create handle  for src '" +
                              src + "' failed"}));
    EXPECT_EQ(Snapshot(dst), servicetest::Tree{}) << "the copy must be an empty folder";
    struct stat st;
    EXPECT_TRUE(stat(dst.c_str(), &st) == 0 && S_ISDIR(st.st_mode)) << dst << " is no folder";
}

// ------------------------------------------------------------------ launch through a fake

namespace {

class FakeLaunchServices : public platform::LaunchServices {
public:
    MOCK_METHOD(int, Unregister, (const std::string& bundle), (override));
    MOCK_METHOD(int, Open, (const std::string& bundle), (override));
};

} // namespace

struct LaunchCase {
    const char* name;
    int unregister;
    int open;
    int result;
    const char* log; // the whole log, timestamps removed; <bundle> stands for the path
};
void PrintTo(const LaunchCase& c, std::ostream* os)
{
    *os << c.name;
}

class LaunchThroughFake : public ServiceUnit, public ::testing::WithParamInterface<LaunchCase> {};

TEST_P(LaunchThroughFake, UnregistersThenOpensTheUsersBundle)
{
    const LaunchCase& c = GetParam();
    const std::string bundle = home_ + "/.Calderix/Calderix.app";
    FakeLaunchServices fake;
    {
        ::testing::InSequence order;
        EXPECT_CALL(fake, Unregister(bundle)).WillOnce(Return(c.unregister));
        EXPECT_CALL(fake, Open(bundle)).WillOnce(Return(c.open));
    }
    MacService service(fake);
    EXPECT_EQ(service.LaunchPerUserBin(), c.result);
    const std::string log = testsupport::ReadFile(log_);
    if (*c.log == '\0') {
        EXPECT_EQ(log, "");
    } else {
        EXPECT_THAT(servicetest::ServiceLines(log), ElementsAreArray({Replace(c.log, "<bundle>", bundle)}));
        EXPECT_NE(log.back(), '\n') << "the unregistration message has no line feed of its own";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Results, LaunchThroughFake,
    ::testing::Values(LaunchCase{"BothSucceed", 0, 0, 0, ""},
                      LaunchCase{"UnregisterFailsOpenStillTried", 1, 0, 0,
                                 "[ERROR] mac/mac-service(%d): Cannot unregister bundle, <bundle>"},
                      LaunchCase{"ToolCannotStart", -2, 0, 0,
                                 "[ERROR] mac/mac-service(%d): Cannot unregister bundle, <bundle>"},
                      LaunchCase{"OpenFails", 0, ENOENT, -1, ""}),
    RowName<LaunchCase>);

// ------------------------------------------------------------------ Linux Launch Services

namespace {

struct BundleFile {
    const char* name;
    mode_t mode;         // 0: a folder
    const char* content; // null: the stand-in UI
};

std::string Plist(const char* executable)
{
    const std::string key = executable != nullptr && *executable != '\0'
                                ? "\t<key>CFBundleExecutable</key>\n\t<!-- the program -->\n\t<string>" +
                                      std::string(executable) + "</string>\n"
                                : "\t<key>CFBundleName</key>\n\t<string>User</string>\n";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n" + key +
           "</dict>\n</plist>\n";
}

// A user bundle in a fresh folder; whatever a test starts from it is
// killed at the end.
class LinuxLaunch : public ::testing::Test {
protected:
    void SetUp() override
    {
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        bundle_ = root_ + "/User.app";
        macos_ = bundle_ + "/Contents/MacOS";
        info_ = root_ + "/started.info";
        standin_ = testsupport::ReadFile(STANDIN_PATH);
        ASSERT_FALSE(standin_.empty()) << STANDIN_PATH;
        // What the layer starts inherits this environment.
        setenv("STANDIN_INFO", info_.c_str(), 1);
        unsetenv("STANDIN_MODE");
        unsetenv("STANDIN_PID_FILE");
    }

    void TearDown() override
    {
        unsetenv("STANDIN_INFO");
        for (const auto& entry : Snapshot(macos_)) {
            servicetest::KillAllRunning(macos_ + "/" + entry.first);
        }
    }

    // plist: null for no Info.plist, "" for one without the executable key.
    void MakeBundle(const char* plist, const std::vector<BundleFile>& files)
    {
        ASSERT_TRUE(testsupport::MakeDirs(macos_)) << macos_ << ": " << strerror(errno);
        if (plist != nullptr) {
            ASSERT_TRUE(testsupport::WriteFile(bundle_ + "/Contents/Info.plist", Plist(plist)));
        }
        for (const BundleFile& f : files) {
            const std::string path = macos_ + "/" + f.name;
            if (f.mode == 0) {
                ASSERT_TRUE(testsupport::MakeDirs(path)) << path << ": " << strerror(errno);
            } else {
                ASSERT_TRUE(testsupport::WriteFile(path, f.content != nullptr ? f.content : standin_, f.mode))
                    << path << ": " << strerror(errno);
            }
        }
    }

    testsupport::TempDir dir_{"calderix-launch"};
    std::string root_;
    std::string bundle_;
    std::string macos_;
    std::string info_;
    std::string standin_;
};

} // namespace

TEST_F(LinuxLaunch, UnregisterSucceedsAndTouchesNothing)
{
    MakeBundle("ui", {{"ui", 0755, nullptr}});
    const auto before = Snapshot(root_);
    EXPECT_EQ(platform::SystemLaunchServices().Unregister(bundle_), 0);
    EXPECT_EQ(Snapshot(root_), before);
}

TEST_F(LinuxLaunch, OpenStartsOneDetachedCopy)
{
    MakeBundle("calderix-drive-ui", {{"calderix-drive-ui", 0755, nullptr}});
    platform::LaunchServices& services = platform::SystemLaunchServices();

    ASSERT_EQ(services.Open(bundle_), 0);
    const pid_t ui = servicetest::WaitForPidFile(info_);
    ASSERT_GT(ui, 0) << "the program did not come up";
    EXPECT_EQ(services.Open(bundle_), 0) << "a running copy counts as opened";
    EXPECT_EQ(servicetest::ProcessesRunning(macos_ + "/calderix-drive-ui"), std::vector<pid_t>{ui})
        << "exactly one copy runs";
    const std::string text = testsupport::ReadFile(info_);
    EXPECT_EQ(servicetest::ValueOf(text, "cwd"), macos_);
    EXPECT_NE(servicetest::ValueOf(text, "sid"), std::to_string(getsid(0))) << "not in a session of its own";
}

struct OpenCase {
    const char* name;
    const char* plist;
    std::vector<BundleFile> files;
    const char* started; // the file that runs afterwards
};
void PrintTo(const OpenCase& c, std::ostream* os)
{
    *os << c.name;
}

class OpenChooses : public LinuxLaunch, public ::testing::WithParamInterface<OpenCase> {};

TEST_P(OpenChooses, TheBundlesExecutable)
{
    const OpenCase& c = GetParam();
    MakeBundle(c.plist, c.files);
    ASSERT_EQ(platform::SystemLaunchServices().Open(bundle_), 0);
    const pid_t ui = servicetest::WaitForPidFile(info_);
    ASSERT_GT(ui, 0) << "nothing came up";
    EXPECT_EQ(servicetest::ProcessesRunning(macos_ + "/" + c.started), std::vector<pid_t>{ui});
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, OpenChooses,
    ::testing::Values(
        OpenCase{
            "PlistNamesIt", "ui-main", {{"ui-main", 0755, nullptr}, {"helper", 0755, nullptr}}, "ui-main"},
        OpenCase{"NoPlistOnlyExecutable", nullptr, {{"ui", 0755, nullptr}, {"notes.txt", 0644, "x"}}, "ui"},
        OpenCase{"PlistWithoutTheKey", "", {{"only", 0755, nullptr}, {"lib", 0, nullptr}}, "only"},
        OpenCase{"EscapedName", "a&amp;b", {{"a&b", 0755, nullptr}, {"helper", 0755, nullptr}}, "a&b"},
        OpenCase{"HiddenFilesIgnored", nullptr, {{".helper", 0755, nullptr}, {"ui", 0755, nullptr}}, "ui"}),
    RowName<OpenCase>);

struct OpenFailureCase {
    const char* name;
    bool bundle;
    const char* plist;
    std::vector<BundleFile> files;
    int error;
};
void PrintTo(const OpenFailureCase& c, std::ostream* os)
{
    *os << c.name;
}

class OpenFails : public LinuxLaunch, public ::testing::WithParamInterface<OpenFailureCase> {};

TEST_P(OpenFails, WithoutAStartableExecutable)
{
    const OpenFailureCase& c = GetParam();
    if (c.bundle) {
        MakeBundle(c.plist, c.files);
    }
    const int r = platform::SystemLaunchServices().Open(bundle_);
    EXPECT_EQ(r, c.error) << "got " << strerror(r) << ", want " << strerror(c.error);
    EXPECT_FALSE(testsupport::Exists(info_)) << "something was started";
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, OpenFails,
    ::testing::Values(
        OpenFailureCase{"NoBundle", false, nullptr, {}, ENOENT},
        OpenFailureCase{"NoPlistNoExecutable", true, nullptr, {{"notes.txt", 0644, "x"}}, ENOENT},
        OpenFailureCase{
            "NoPlistTwoExecutables", true, nullptr, {{"a", 0755, nullptr}, {"b", 0755, nullptr}}, ENOENT},
        OpenFailureCase{
            "PlistNamesMissingFile", true, "calderix-drive-ui", {{"other", 0755, nullptr}}, ENOENT},
        OpenFailureCase{"PlistNamesPlainFile", true, "ui", {{"ui", 0644, nullptr}}, EACCES},
        OpenFailureCase{"PlistNamesFolder", true, "ui", {{"ui", 0, nullptr}}, EACCES},
        OpenFailureCase{"NameLeavesTheFolder", true, "../ui", {{"ui", 0755, nullptr}}, EINVAL},
        // Only the exec itself can tell: the child has to report it.
        OpenFailureCase{"NotAProgram", true, "ui", {{"ui", 0755, "neither ELF nor script\n"}}, ENOEXEC}),
    RowName<OpenFailureCase>);
