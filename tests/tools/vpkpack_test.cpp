#include "vpkpack.h"

#include <algorithm>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <ostream>
#include <set>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QSettings>
#include <gtest/gtest.h>

#include "package_util.h"
#include "test_support.h"

using testsupport::ReadFile;
using testsupport::WriteFile;
using vpkpack::Error;

namespace {

const char kInfo[] =
    "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=1201\nicon_overlay_version=5\n";
const char kUi[] = "Contents/MacOS/calderix-drive-ui";
const char kInfoName[] = "Contents/Resources/INFO";
const char kPlistName[] = "Contents/Info.plist";

std::string Plist(const std::string& executable)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\"><dict><key>CFBundleName</key><string>Calderix Drive</string>"
           "<key>CFBundleExecutable</key><string>" +
           executable + "</string></dict></plist>\n";
}

std::string ErrnoText()
{
    return std::strerror(errno);
}

std::set<std::string> FolderNames(const std::string& path)
{
    std::set<std::string> names;
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        return {"<" + path + ": " + ErrnoText() + ">"};
    }
    while (const struct dirent* e = readdir(dir)) {
        if (std::strcmp(e->d_name, ".") != 0 && std::strcmp(e->d_name, "..") != 0) {
            names.insert(e->d_name);
        }
    }
    closedir(dir);
    return names;
}

// A bundle as the people who ship the client hand it over, with a framework
// that carries the usual relative links.
class PackTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        // Readable by the unprivileged child of the permission test.
        ASSERT_EQ(0, chmod(tmp_.path().c_str(), 0755)) << tmp_.path() << ": " << ErrnoText();
        Put(kPlistName, Plist("calderix-drive-ui"));
        Put(kUi, "#!/bin/sh\necho ui\n", 0755);
        Put(kInfoName, kInfo);
        Put("Contents/Resources/en.lproj/Localizable.strings", "\"a\" = \"b\";\n");
        Put("Contents/Frameworks/Q.framework/Versions/A/Q", "library", 0755);
        Link("Contents/Frameworks/Q.framework/Versions/Current", "A");
        Link("Contents/Frameworks/Q.framework/Q", "Versions/Current/Q");
    }

    void Put(const std::string& name, const std::string& data, mode_t mode = 0644)
    {
        const std::string path = bundle_ + "/" + name;
        ASSERT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/')))) << path << ": " << ErrnoText();
        ASSERT_TRUE(WriteFile(path, data, mode)) << path << ": " << ErrnoText();
    }

    void Link(const std::string& name, const std::string& target)
    {
        ASSERT_EQ(0, symlink(target.c_str(), (bundle_ + "/" + name).c_str())) << name << ": " << ErrnoText();
    }

    std::vector<StoredEntry> Packed(const std::string& package)
    {
        std::vector<StoredEntry> entries;
        EXPECT_TRUE(ReadPackage(package, &entries));
        return entries;
    }

    testsupport::TempDir tmp_{"vpkpack-test"};
    const std::string bundle_ = tmp_ / "Calderix.app";
    const std::string out_ = tmp_ / "calderix.vpk";
};

// --- refusals while packing ---

struct PackRefusal {
    const char* name;
    std::function<bool(const std::string& bundle)> change; // false with errno set
    Error error;
    const char* entry;
};

void PrintTo(const PackRefusal& row, std::ostream* os)
{
    *os << row.name;
}

class PackRefusalTest : public PackTest, public ::testing::WithParamInterface<PackRefusal> {};

TEST_P(PackRefusalTest, RefusesNamingTheEntryAndKeepsTheOldPackage)
{
    const PackRefusal& row = GetParam();
    ASSERT_TRUE(WriteFile(out_, "old package")) << out_ << ": " << ErrnoText();
    ASSERT_TRUE(row.change(bundle_)) << row.name << ": " << ErrnoText();

    const vpkpack::Status status = vpkpack::Pack(bundle_, out_, {});
    EXPECT_EQ(static_cast<int>(row.error), static_cast<int>(status.error)) << status.Message();
    EXPECT_EQ(row.entry, status.entry) << status.Message();
    EXPECT_EQ("old package", ReadFile(out_)) << "a refused bundle replaced the package";

    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, bundle_, out_});
    EXPECT_EQ(1, cli.exit_code) << cli.err;
    EXPECT_EQ("vpkpack: " + status.Message() + "\n", cli.err);
    EXPECT_EQ((std::set<std::string>{"Calderix.app", "calderix.vpk"}), FolderNames(tmp_.path()))
        << "temporary files left behind";
}

bool Replace(const std::string& path, const std::string& data)
{
    return WriteFile(path, data, 0644);
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, PackRefusalTest,
    ::testing::Values(
        PackRefusal{"hard_link",
                    [](const std::string& b) {
                        const std::string a = b + "/Contents/Resources/a.txt";
                        return WriteFile(a, "a") &&
                               link(a.c_str(), (b + "/Contents/Resources/b.txt").c_str()) == 0;
                    },
                    Error::HardLink, "Contents/Resources/a.txt"},
        PackRefusal{
            "absolute_symlink",
            [](const std::string& b) { return symlink("/etc/passwd", (b + "/Contents/abs").c_str()) == 0; },
            Error::AbsoluteSymlink, "Contents/abs"},
        PackRefusal{
            "symlink_leaving_bundle",
            [](const std::string& b) { return symlink("../../x", (b + "/Contents/escape").c_str()) == 0; },
            Error::EscapingSymlink, "Contents/escape"},
        PackRefusal{"symlink_chain_leaving_bundle",
                    [](const std::string& b) {
                        return symlink("..", (b + "/Contents/up").c_str()) == 0 &&
                               symlink("../up/../x", (b + "/Contents/MacOS/out").c_str()) == 0;
                    },
                    Error::EscapingSymlink, "Contents/MacOS/out"},
        PackRefusal{"symlink_loop",
                    [](const std::string& b) { return symlink("loop", (b + "/Contents/loop").c_str()) == 0; },
                    Error::SymlinkLoop, "Contents/loop"},
        PackRefusal{
            "fifo",
            [](const std::string& b) { return mkfifo((b + "/Contents/Resources/pipe").c_str(), 0644) == 0; },
            Error::UnsupportedType, "Contents/Resources/pipe"},
        PackRefusal{"missing_info",
                    [](const std::string& b) { return unlink((b + "/" + kInfoName).c_str()) == 0; },
                    Error::MissingInfo, kInfoName},
        PackRefusal{
            "info_without_build_version",
            [](const std::string& b) { return Replace(b + "/" + kInfoName, "[Version]\nmajor_version=3\n"); },
            Error::MissingBuildVersion, kInfoName},
        PackRefusal{"build_version_outside_version_section",
                    [](const std::string& b) {
                        return Replace(b + "/" + kInfoName, "[Other]\nbuild_version=1201\n");
                    },
                    Error::MissingBuildVersion, kInfoName},
        PackRefusal{"build_version_not_a_number",
                    [](const std::string& b) {
                        return Replace(b + "/" + kInfoName, "[Version]\nbuild_version=12a\n");
                    },
                    Error::BadBuildVersion, kInfoName},
        PackRefusal{
            "build_version_zero",
            [](const std::string& b) { return Replace(b + "/" + kInfoName, "[Version]\nbuild_version=0\n"); },
            Error::BadBuildVersion, kInfoName},
        PackRefusal{"missing_ui", [](const std::string& b) { return unlink((b + "/" + kUi).c_str()) == 0; },
                    Error::MissingUi, kUi},
        PackRefusal{"ui_not_executable",
                    [](const std::string& b) { return chmod((b + "/" + kUi).c_str(), 0644) == 0; },
                    Error::UiNotExecutable, kUi},
        PackRefusal{"ui_is_a_symlink",
                    [](const std::string& b) {
                        return rename((b + "/" + kUi).c_str(), (b + "/Contents/MacOS/real").c_str()) == 0 &&
                               symlink("real", (b + "/" + kUi).c_str()) == 0;
                    },
                    Error::NotRegularFile, kUi},
        PackRefusal{"plist_names_another_executable",
                    [](const std::string& b) { return Replace(b + "/" + kPlistName, Plist("other-ui")); },
                    Error::ForeignUiName, kPlistName},
        PackRefusal{"binary_plist",
                    [](const std::string& b) { return Replace(b + "/" + kPlistName, "bplist00\x01\x02"); },
                    Error::BadInfoPlist, kPlistName},
        PackRefusal{"truncated_plist",
                    [](const std::string& b) {
                        return Replace(b + "/" + kPlistName, "<plist><dict><key>CFBundleExecutable</key>");
                    },
                    Error::BadInfoPlist, kPlistName}),
    [](const ::testing::TestParamInfo<PackRefusal>& info) { return std::string(info.param.name); });

// --- refusals of hand-made packages ---

std::vector<StoredEntry> ValidPackage()
{
    return {StoredFolder("Contents/"),       StoredFile(kPlistName, Plist("calderix-drive-ui")),
            StoredFolder("Contents/MacOS/"), StoredFolder("Contents/Resources/"),
            StoredFile(kUi, "ui", 0755),     StoredFile(kInfoName, kInfo)};
}

// Inserts entries right before the UI executable, keeping the last two in place.
std::function<void(std::vector<StoredEntry>&)> Insert(std::vector<StoredEntry> extra)
{
    return [extra](std::vector<StoredEntry>& p) { p.insert(p.end() - 2, extra.begin(), extra.end()); };
}

struct CheckRefusal {
    const char* name;
    std::function<void(std::vector<StoredEntry>&)> change;
    Error error;
    const char* entry;
};

void PrintTo(const CheckRefusal& row, std::ostream* os)
{
    *os << row.name;
}

class CheckRefusalTest : public PackTest, public ::testing::WithParamInterface<CheckRefusal> {};

TEST_P(CheckRefusalTest, RefusesNamingTheEntry)
{
    const CheckRefusal& row = GetParam();
    std::vector<StoredEntry> entries = ValidPackage();
    row.change(entries);
    ASSERT_TRUE(WriteTar(out_, entries));

    const vpkpack::Status status = vpkpack::Check(out_);
    EXPECT_EQ(static_cast<int>(row.error), static_cast<int>(status.error)) << status.Message();
    EXPECT_EQ(row.entry, status.entry) << status.Message();

    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, "--check", out_});
    EXPECT_EQ(1, cli.exit_code) << cli.err;
    EXPECT_EQ("vpkpack: " + status.Message() + "\n", cli.err);
}

StoredEntry HardLinkTo(const std::string& name, const std::string& target)
{
    StoredEntry entry = StoredFile(name, "");
    entry.hardlink = target;
    return entry;
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, CheckRefusalTest,
    ::testing::Values(
        CheckRefusal{"dotdot_name", Insert({StoredFile("Contents/../../evil", "x")}), Error::DotDotName,
                     "Contents/../../evil"},
        CheckRefusal{"absolute_name", Insert({StoredFile("/tmp/evil", "x")}), Error::AbsoluteName,
                     "/tmp/evil"},
        CheckRefusal{"hard_link",
                     Insert({StoredFile("Contents/Resources/a", "a"),
                             HardLinkTo("Contents/Resources/b", "Contents/Resources/a")}),
                     Error::HardLink, "Contents/Resources/b"},
        CheckRefusal{"absolute_symlink", Insert({StoredLink("Contents/abs", "/etc")}), Error::AbsoluteSymlink,
                     "Contents/abs"},
        CheckRefusal{"symlink_leaving_bundle", Insert({StoredLink("Contents/escape", "../../x")}),
                     Error::EscapingSymlink, "Contents/escape"},
        CheckRefusal{"entry_below_symlink",
                     Insert({StoredLink("Contents/l", "MacOS"), StoredFile("Contents/l/x", "x")}),
                     Error::BelowSymlink, "Contents/l/x"},
        CheckRefusal{"duplicate_entry", Insert({StoredFile(kPlistName, "again")}), Error::DuplicateEntry,
                     kPlistName},
        CheckRefusal{"missing_info", [](std::vector<StoredEntry>& p) { p.pop_back(); }, Error::MissingInfo,
                     kInfoName},
        CheckRefusal{"info_without_build_version",
                     [](std::vector<StoredEntry>& p) { p.back().data = "[Version]\nmajor_version=3\n"; },
                     Error::MissingBuildVersion, kInfoName},
        CheckRefusal{"missing_ui", [](std::vector<StoredEntry>& p) { p.erase(p.end() - 2); },
                     Error::MissingUi, kUi},
        CheckRefusal{"ui_not_executable", [](std::vector<StoredEntry>& p) { p[p.size() - 2].perm = 0644; },
                     Error::UiNotExecutable, kUi},
        CheckRefusal{
            "info_not_last",
            [](std::vector<StoredEntry>& p) { p.push_back(StoredFile("Contents/Resources/late", "x")); },
            Error::OutOfOrder, kInfoName},
        CheckRefusal{"ui_not_right_before_info",
                     [](std::vector<StoredEntry>& p) {
                         p.insert(p.end() - 1, StoredFile("Contents/Resources/late", "x"));
                     },
                     Error::OutOfOrder, kUi}),
    [](const ::testing::TestParamInfo<CheckRefusal>& info) { return std::string(info.param.name); });

// --- what a package holds ---

TEST_F(PackTest, EntriesFollowTheTreeWithUiAndInfoLast)
{
    Put("Contents/Resources/a/x", "x");
    Put("Contents/Resources/a-b", "y");
    Put("Contents/Resources/B", "z");
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, {}).ok());

    std::vector<std::string> names;
    for (const StoredEntry& entry : Packed(out_)) {
        names.push_back(entry.name);
    }
    const std::vector<std::string> expected = {
        "Contents/",
        "Contents/Frameworks/",
        "Contents/Frameworks/Q.framework/",
        "Contents/Frameworks/Q.framework/Q",
        "Contents/Frameworks/Q.framework/Versions/",
        "Contents/Frameworks/Q.framework/Versions/A/",
        "Contents/Frameworks/Q.framework/Versions/A/Q",
        "Contents/Frameworks/Q.framework/Versions/Current",
        "Contents/Info.plist",
        "Contents/MacOS/",
        "Contents/Resources/",
        "Contents/Resources/B",
        "Contents/Resources/a/",
        "Contents/Resources/a/x",
        "Contents/Resources/a-b",
        "Contents/Resources/en.lproj/",
        "Contents/Resources/en.lproj/Localizable.strings",
        kUi,
        kInfoName,
    };
    EXPECT_EQ(expected, names);
}

class PackFormatTest : public PackTest, public ::testing::WithParamInterface<vpkpack::Format> {};

TEST_P(PackFormatTest, RoundTripsWithFixedMetadataAndPassesCheck)
{
    vpkpack::PackOptions options;
    options.format = GetParam();
    options.mtime = 1700000000;
    vpkpack::PackageSummary summary;
    const vpkpack::Status packed = vpkpack::Pack(bundle_, out_, options, &summary);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    EXPECT_EQ(1201, summary.version.build);

    for (const StoredEntry& entry : Packed(out_)) {
        const bool executable = entry.type == AE_IFDIR || entry.type == AE_IFLNK || entry.name == kUi ||
                                entry.name == "Contents/Frameworks/Q.framework/Versions/A/Q";
        EXPECT_EQ(executable ? 0755u : 0644u, static_cast<unsigned>(entry.perm)) << entry.name;
        EXPECT_EQ(1700000000, entry.mtime) << entry.name;
        EXPECT_EQ(0, entry.uid) << entry.name;
        EXPECT_EQ(0, entry.gid) << entry.name;
        EXPECT_EQ("", entry.uname) << entry.name;
        // The zip reader makes up an atime of its own; tar shows what was stored.
        EXPECT_TRUE(GetParam() == vpkpack::Format::Zip || !entry.atime_set) << entry.name;
    }
    vpkpack::PackageSummary checked;
    const vpkpack::Status status = vpkpack::Check(out_, &checked);
    EXPECT_TRUE(status.ok()) << status.Message();
    EXPECT_EQ(summary.entries, checked.entries);

    const std::string dest = tmp_ / "extracted";
    ASSERT_TRUE(testsupport::MakeDirs(dest)) << dest << ": " << ErrnoText();
    ASSERT_TRUE(ExtractLikeLauncher(out_, dest));
    EXPECT_EQ(Snapshot(bundle_), Snapshot(dest));
}

TEST_P(PackFormatTest, SameTreeGivesTheSameBytes)
{
    vpkpack::PackOptions options;
    options.format = GetParam();
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, options).ok());

    // Another checkout: other folder name, listing order, times and modes.
    const std::string copy = tmp_ / "copy.app";
    ASSERT_TRUE(testsupport::CopyTree(bundle_, copy)) << copy << ": " << ErrnoText();
    const struct timespec times[2] = {{1000, 0}, {2000, 5}};
    for (const char* name : {"Contents", kInfoName, kUi, "Contents/Resources/en.lproj/Localizable.strings"}) {
        const std::string path = copy + "/" + name;
        ASSERT_EQ(0, utimensat(AT_FDCWD, path.c_str(), times, 0)) << path << ": " << ErrnoText();
    }
    ASSERT_EQ(0, chmod((copy + "/" + kInfoName).c_str(), 0600)) << ErrnoText();
    ASSERT_EQ(0, chmod((copy + "/Contents/Resources").c_str(), 0700)) << ErrnoText();
    const std::string second = tmp_ / "second.vpk";
    ASSERT_TRUE(vpkpack::Pack(copy, second, options).ok());

    const std::string first_bytes = ReadFile(out_);
    ASSERT_FALSE(first_bytes.empty()) << out_;
    EXPECT_TRUE(first_bytes == ReadFile(second)) << out_ << " and " << second << " differ";
}

INSTANTIATE_TEST_SUITE_P(Formats, PackFormatTest,
                         ::testing::Values(vpkpack::Format::TarZst, vpkpack::Format::Zip,
                                           vpkpack::Format::TarGz, vpkpack::Format::TarXz),
                         [](const ::testing::TestParamInfo<vpkpack::Format>& info) {
                             std::string name = vpkpack::FormatName(info.param);
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });

TEST_F(PackTest, GzipHeaderCarriesNoPackingTime)
{
    vpkpack::PackOptions options;
    options.format = vpkpack::Format::TarGz;
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, options).ok());
    const std::string bytes = ReadFile(out_);
    ASSERT_GE(bytes.size(), 8u) << out_;
    EXPECT_EQ(std::string(4, '\0'), bytes.substr(4, 4)) << "gzip MTIME field is set";
}

TEST_F(PackTest, InfoOutReplacesTheFileWithTheBundleVersion)
{
    const std::string info = tmp_ / "INFO";
    ASSERT_TRUE(WriteFile(info, "[Other]\nkey=1\n")) << info << ": " << ErrnoText();
    vpkpack::PackOptions options;
    options.info_out = info;
    const vpkpack::Status status = vpkpack::Pack(bundle_, out_, options);
    ASSERT_TRUE(status.ok()) << status.Message();

    QSettings settings(QString::fromStdString(info), QSettings::IniFormat);
    EXPECT_EQ(QStringList{"Version"}, settings.childGroups());
    EXPECT_EQ("3", settings.value("Version/major_version").toString());
    EXPECT_EQ("1", settings.value("Version/minor_version").toString());
    EXPECT_EQ("1201", settings.value("Version/build_version").toString());
    EXPECT_EQ("5", settings.value("Version/icon_overlay_version").toString());
}

TEST_F(PackTest, OutputInsideTheBundleIsRefused)
{
    const std::string inside = bundle_ + "/Contents/Resources/calderix.vpk";
    const vpkpack::Status status = vpkpack::Pack(bundle_, inside, {});
    EXPECT_EQ(static_cast<int>(Error::OutputInsideBundle), static_cast<int>(status.error))
        << status.Message();
    EXPECT_FALSE(testsupport::Exists(inside)) << inside;
}

TEST_F(PackTest, UnwritableOutputFolderIsReportedAndLeavesNothing)
{
    const std::string locked = tmp_ / "locked";
    ASSERT_TRUE(testsupport::MakeDirs(locked, 0755)) << locked << ": " << ErrnoText();
    const pid_t child = fork();
    ASSERT_GE(child, 0) << "fork: " << ErrnoText();
    if (child == 0) {
        if (setgid(65534) != 0 || setuid(65534) != 0) {
            _exit(100);
        }
        _exit(static_cast<int>(vpkpack::Pack(bundle_, locked + "/calderix.vpk", {}).error));
    }
    const int status = testsupport::Wait(child);
    ASSERT_TRUE(WIFEXITED(status)) << "child status " << status;
    ASSERT_NE(100, WEXITSTATUS(status)) << "could not drop privileges to 65534";
    EXPECT_EQ(static_cast<int>(Error::PermissionDenied), WEXITSTATUS(status));
    EXPECT_EQ(std::set<std::string>{}, FolderNames(locked));
}

TEST_F(PackTest, CheckAcceptsDotSlashNamesAndRefusesATruncatedPackage)
{
    std::vector<StoredEntry> entries = ValidPackage();
    for (StoredEntry& entry : entries) {
        entry.name = "./" + entry.name;
    }
    entries.insert(entries.begin(), StoredFolder("./"));
    ASSERT_TRUE(WriteTar(out_, entries));
    const vpkpack::Status dotted = vpkpack::Check(out_);
    EXPECT_TRUE(dotted.ok()) << dotted.Message();

    Put("Contents/Resources/noise", std::string(300000, 'n') + std::to_string(getpid()));
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, {}).ok());
    ASSERT_EQ(0, truncate(out_.c_str(), static_cast<off_t>(ReadFile(out_).size() / 2))) << ErrnoText();
    const vpkpack::Status cut = vpkpack::Check(out_);
    EXPECT_EQ(static_cast<int>(Error::ArchiveError), static_cast<int>(cut.error)) << cut.Message();
}

// --- command line ---

struct CommandLine {
    const char* name;
    std::vector<std::string> args; // {B}: the bundle, {O}: the output
    std::vector<testsupport::EnvChange> env;
    int exit_code;
    const char* stderr_part;
};

void PrintTo(const CommandLine& row, std::ostream* os)
{
    *os << row.name;
}

class CommandLineTest : public PackTest, public ::testing::WithParamInterface<CommandLine> {};

TEST_P(CommandLineTest, ExitsWithItsCodeAndMessage)
{
    std::vector<std::string> argv = {VPKPACK_BIN};
    for (const std::string& arg : GetParam().args) {
        argv.push_back(arg == "{B}" ? bundle_ : arg == "{O}" ? out_ : arg);
    }
    const testsupport::ProcessResult result = testsupport::Run(argv, GetParam().env);
    EXPECT_EQ(GetParam().exit_code, result.exit_code) << result.err;
    EXPECT_NE(std::string::npos, result.err.find(GetParam().stderr_part)) << result.err;
    EXPECT_EQ(GetParam().exit_code == 0, testsupport::Exists(out_)) << out_;
}

INSTANTIATE_TEST_SUITE_P(
    Cli, CommandLineTest,
    ::testing::Values(
        CommandLine{"packs_by_default", {"{B}", "{O}"}, {}, 0, ""},
        CommandLine{"packs_with_format_equals", {"--format=zip", "{B}", "{O}"}, {}, 0, ""},
        CommandLine{"no_operands", {}, {}, 2, "usage:"},
        CommandLine{"unknown_format", {"--format", "rar", "{B}", "{O}"}, {}, 2, "unknown format: 'rar'"},
        CommandLine{"unknown_option", {"--fast", "{B}", "{O}"}, {}, 2, "unknown option: '--fast'"},
        CommandLine{"bad_source_date_epoch",
                    {"{B}", "{O}"},
                    {testsupport::Set("SOURCE_DATE_EPOCH", "yesterday")},
                    2,
                    "SOURCE_DATE_EPOCH"},
        CommandLine{"missing_bundle",
                    {"/nonexistent/Calderix.app", "{O}"},
                    {},
                    1,
                    "vpkpack: no such file or folder: '/nonexistent/Calderix.app'"},
        CommandLine{"check_missing_package",
                    {"--check", "/nonexistent.vpk"},
                    {},
                    1,
                    "vpkpack: no such file or folder: '/nonexistent.vpk'"}),
    [](const ::testing::TestParamInfo<CommandLine>& info) { return std::string(info.param.name); });

TEST_F(PackTest, CommandLineTakesEntryTimesFromSourceDateEpoch)
{
    const testsupport::ProcessResult result =
        testsupport::Run({VPKPACK_BIN, "--format", "tar.xz", bundle_, out_},
                         {testsupport::Set("SOURCE_DATE_EPOCH", "1234567890")});
    ASSERT_EQ(0, result.exit_code) << result.err;
    for (const StoredEntry& entry : Packed(out_)) {
        EXPECT_EQ(1234567890, entry.mtime) << entry.name;
    }
}

} // namespace
