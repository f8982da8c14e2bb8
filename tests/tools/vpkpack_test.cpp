#include "vpkpack.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sched.h>
#include <sys/mount.h>
#include <tuple>

#include <gtest/gtest.h>

#include "archive_builder.h"
#include "test_rows.h"
#include "test_support.h"
#include "tree_snapshot.h"

using testsupport::ReadFile;
using testsupport::WriteFile;
using E = vpkpack::Error;
using vpkpack::Status;

namespace {

namespace fs = std::filesystem;
using Refusals = std::vector<std::pair<E, std::string>>;

const char kUi[] = "Contents/MacOS/calderix-drive-ui";
const char kInfoName[] = "Contents/Resources/INFO";
const char kPlistName[] = "Contents/Info.plist";
const char kInfo[] =
    "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=2147483647\nicon_overlay_version=5\n";
const char kPlist[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
                      "<key>CFBundleName</key><string>Calderix Drive</string><key>CFBundleExecutable</key>"
                      "<string>calderix-drive-ui</string></dict></plist>\n";

// Runs command in folder, where $I names the version file, $U the UI
// executable, $L, $K, $C and $P a launcher bundle's executable, package, icon
// and platform plug-in, and V SECTION BUILD writes a version file with just
// that build.
::testing::AssertionResult Shell(const std::string& folder, const std::string& command)
{
    const testsupport::ProcessResult r = testsupport::Run(
        {"/bin/sh", "-ec",
         "cd \"$0\"; I=Contents/Resources/INFO; U=Contents/MacOS/calderix-drive-ui; "
         "V() { printf '[%s]\\nbuild_version=%s\\n' $1 $2 >$I; }; L=Contents/MacOS/launcher; "
         "K=Contents/Resources/package/calderix.vpk; P=Contents/Frameworks/plugins/platforms/q.so; "
         "C=Contents/Resources/images/ico_72_calderix.png; " +
             command,
         folder});
    return r.exit_code == 0 ? ::testing::AssertionSuccess()
                            : ::testing::AssertionFailure() << command << ": " << r.err;
}

// Refusals one a line as "vpkpack: <reason>: '<entry>'", without the
// system's detail.
std::string Lines(const std::vector<Status>& refused)
{
    std::string lines;
    for (const Status& status : refused)
        lines += "vpkpack: " + pkgrules::Refuse(status.error, status.entry).Message() + "\n";
    return lines;
}

std::string Lines(const Refusals& refusals)
{
    std::vector<Status> refused;
    for (const auto& [error, entry] : refusals)
        refused.push_back(pkgrules::Refuse(error, entry));
    return Lines(refused);
}

// A bundle as the people who ship the client hand it over, with a framework
// that carries the usual relative links.
class PackTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Put(kPlistName, kPlist);
        Put(kInfoName, kInfo);
        Put(kUi, "#!/bin/sh\necho ui\n", 0755);
        ASSERT_TRUE(Shell(
            bundle_,
            "cd Contents; mkdir -p Resources/en.lproj Resources/a Frameworks/Q.framework/Versions/A; "
            "echo x >Resources/a/x; echo y >Resources/a-b; echo z >Resources/B; cd Frameworks/Q.framework; "
            "echo '\"a\" = \"b\";' >../../Resources/en.lproj/Localizable.strings; echo lib >Versions/A/Q; "
            "chmod 755 Versions/A/Q; ln -s A Versions/Current; ln -s Versions/Current/Q Q"));
    }

    void Put(const std::string& name, const std::string& data, mode_t mode = 0644)
    {
        const std::string path = bundle_ + "/" + name;
        ASSERT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/'))) && WriteFile(path, data, mode))
            << path << ": " << std::strerror(errno);
    }

    testsupport::TempDir tmp_{"vpkpack-test"};
    const std::string bundle_ = tmp_ / "Calderix.app";
    const std::string out_ = tmp_ / "calderix.vpk";
};

// A bundle changed by a shell command is refused by Pack, which keeps the
// package already there; a hand-made package, the valid entries with extra
// ones before the last from_end, is refused by Check. Every offending entry
// is named, on the command line one line each.
struct Refusal {
    const char* name;
    const char* change;             // for Pack: a shell command run in the bundle
    std::vector<ArchiveItem> extra; // for Check
    Refusals refused;
    int from_end = 2; // 2: before the UI executable, 1: before the version file, 0: last
};

class RefusalTest : public PackTest, public ::testing::WithParamInterface<Refusal> {};

TEST_P(RefusalTest, NamesEveryOffendingEntryAndKeepsTheOldPackage)
{
    const Refusal& row = GetParam();
    std::vector<ArchiveItem> entries{{kPlistName, kPlist}, {kUi, "ui", 'f', 0755}, {kInfoName, kInfo}};
    entries.insert(entries.end() - row.from_end, row.extra.begin(), row.extra.end());
    ASSERT_TRUE(row.change ? WriteFile(out_, "old package") && Shell(bundle_, row.change)
                           : bool(WriteArchive(out_, ArchiveFormat::Tar, entries)));
    std::vector<Status> refused;
    const Status first = row.change ? vpkpack::Pack(bundle_, out_, {}, nullptr, &refused)
                                    : vpkpack::Check(out_, nullptr, &refused);
    EXPECT_TRUE(!row.change || ReadFile(out_) == "old package") << "a refused bundle replaced the package";
    EXPECT_EQ(2, std::distance(fs::directory_iterator(tmp_.path()), fs::directory_iterator{}))
        << "temporary files left behind";
    EXPECT_EQ(Lines(row.refused), Lines(refused));
    EXPECT_EQ(Lines({row.refused.front()}), Lines({first})) << "not the first refusal returned";
    const testsupport::ProcessResult cli =
        testsupport::Run(row.change ? std::vector<std::string>{VPKPACK_BIN, bundle_, out_}
                                    : std::vector<std::string>{VPKPACK_BIN, "--check", out_});
    std::string printed;
    for (const Status& each : refused)
        printed += "vpkpack: " + each.Message() + "\n";
    EXPECT_EQ(1, cli.exit_code) << cli.err;
    EXPECT_EQ(printed, cli.err);
}

const ArchiveItem kLate{"Contents/late", "x"};
const std::string kPackage = "Contents/Resources/package/calderix.vpk";

// clang-format off
INSTANTIATE_TEST_SUITE_P(Refusals, RefusalTest, ::testing::ValuesIn(std::vector<Refusal>{
    {"hard_link", "echo h >Contents/h; ln Contents/h Contents/k", {}, {{E::HardLink, "Contents/h"}, {E::HardLink, "Contents/k"}}},
    {"symlink_leaving_bundle", "ln -s ../../x Contents/out", {}, {{E::EscapingSymlink, "Contents/out"}}},
    {"symlink_chain_out", "ln -s .. Contents/u; ln -s u/../.. Contents/o", {}, {{E::EscapingSymlink, "Contents/o"}}},
    {"symlink_loop", "ln -s loop Contents/loop", {}, {{E::SymlinkLoop, "Contents/loop"}}},
    {"no_build_version", "V Other 1", {}, {{E::MissingBuildVersion, kInfoName}}},
    {"build_version_not_a_number", "V Version 12a", {}, {{E::BadBuildVersion, kInfoName}}},
    {"build_version_zero", "V Version 0", {}, {{E::BadBuildVersion, kInfoName}}},
    {"missing_ui", "rm $U", {}, {{E::MissingUi, kUi}}},
    {"ui_is_a_symlink", "mv $U Contents/real; ln -s ../real $U", {}, {{E::NotRegularFile, kUi}}},
    {"plist_names_another_ui", "sed -i s/drive-ui/x/ Contents/Info.plist", {}, {{E::ForeignUiName, kPlistName}}},
    {"every_offence_at_once", "ln -s /etc/passwd Contents/abs; mkfifo Contents/pipe; chmod 644 $U; rm $I", {},
     {{E::UnsupportedType, "Contents/pipe"}, {E::AbsoluteSymlink, "Contents/abs"}, {E::MissingInfo, kInfoName},
      {E::UiNotExecutable, kUi}}},
    {"package_dotdot_name", nullptr, {{"Contents/../../evil", "x"}}, {{E::DotDotName, "Contents/../../evil"}}},
    {"package_absolute_name", nullptr, {{"/tmp/evil", "x"}}, {{E::AbsoluteName, "/tmp/evil"}}},
    {"package_hard_link", nullptr, {{"Contents/a", "a"}, {"Contents/b", "", 'h', 0644, "Contents/a"}}, {{E::HardLink, "Contents/b"}}},
    {"package_below_symlink", nullptr, {{"Contents/l", "", 'l', 0755, "MacOS"}, {"Contents/l/x"}}, {{E::BelowSymlink, "Contents/l/x"}}},
    {"package_duplicate_entry", nullptr, {{kPlistName, "again"}}, {{E::DuplicateEntry, kPlistName}}},
    {"package_info_not_last", nullptr, {kLate}, {{E::OutOfOrder, kInfoName}}, 0},
    {"package_ui_not_right_before_info", nullptr, {kLate}, {{E::OutOfOrder, kUi}}, 1},
}), testsupport::RowName());
// clang-format on

struct BundleRefusal {
    const char* name;
    std::string change; // a shell command run in the launcher bundle
    E error;
    std::string entry; // "{K}": the package's path
};

class BundleCheckTest : public PackTest, public ::testing::WithParamInterface<BundleRefusal> {};

// A launcher bundle around the fixture's client, its version file written
// over an older one by packing, then changed.
TEST_P(BundleCheckTest, RefusesNamingTheFileOrPasses)
{
    const std::string launcher = tmp_ / "Calderix Drive.app";
    ASSERT_TRUE(testsupport::MakeDirs(launcher)) << std::strerror(errno);
    ASSERT_TRUE(Shell(launcher,
                      "mkdir -p Contents/MacOS ${K%/*} ${C%/*} ${P%/*}; printf '[Other]\\nkey=1\\n' >$I; "
                      "echo >$C; echo >$P; echo >$L; chmod 755 $L; echo '<plist version=\"1.0\"><dict>"
                      "<key>CFBundleExecutable</key><string>launcher</string><key>CFBundleVersion</key>"
                      "<string>2147483647</string></dict></plist>' >Contents/Info.plist"));
    vpkpack::PackOptions options;
    options.info_out = launcher + "/" + kInfoName;
    const Status packed = vpkpack::Pack(bundle_, launcher + "/" + kPackage, options);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    EXPECT_EQ(
        "[Version]\nbuild_version=2147483647\nicon_overlay_version=5\nmajor_version=3\nminor_version=1\n",
        ReadFile(options.info_out));
    ASSERT_TRUE(Shell(launcher, GetParam().change));

    const Status status = vpkpack::CheckBundle(launcher);
    const std::string entry = GetParam().entry == "{K}" ? launcher + "/" + kPackage : GetParam().entry;
    EXPECT_EQ(Lines(Refusals{{GetParam().error, entry}}), Lines({status})) << status.Message();
    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, "--check-bundle", launcher});
    EXPECT_EQ(status.ok() ? 0 : 1, cli.exit_code) << cli.err;
    EXPECT_EQ(status.ok() ? "" : "vpkpack: " + status.Message() + "\n", cli.err);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Bundles, BundleCheckTest, ::testing::ValuesIn(std::vector<BundleRefusal>{
    {"complete", "", E::None, ""},
    {"launcher_not_executable", "chmod 644 $L", E::NotExecutable, "Contents/MacOS/launcher"},
    {"plist_names_another_launcher", "sed -i s/launcher/x/ Contents/Info.plist", E::NotFound, "Contents/MacOS/x"},
    {"plist_with_another_build", "sed -i s/2147483647/2147483646/ Contents/Info.plist", E::BuildMismatch, kPlistName},
    {"info_with_another_build", "sed -i s/2147483647/2147483646/ Contents/Info.plist $I", E::BuildMismatch, kInfoName},
    {"no_platform_plugin", "rm $P", E::NoPlatformPlugin, "Contents/Frameworks/plugins/platforms"},
    {"no_icon", "rm $C", E::NotFound, "Contents/Resources/images/ico_72_calderix.png"},
    {"no_package", "rm $K", E::NotFound, "{K}"},
    {"package_cut_short", "truncate -s 100 $K", E::ArchiveError, "{K}"},
    {"package_of_nothing", "mkdir e; bsdtar -cf $K -C e .", E::MissingInfo, kPackage + ": " + kInfoName},
}), testsupport::RowName());
// clang-format on

class PackFormatTest : public PackTest, public ::testing::WithParamInterface<const char*> {};

// The package holds the bundle as it is, in tree order with the UI and the
// version file last, and nothing of the packing machine or user; another
// checkout (other folder name, times and modes) gives the same bytes.
TEST_P(PackFormatTest, RoundTripsReproduciblyAndPassesCheck)
{
    vpkpack::PackOptions options;
    std::string name = GetParam();
    std::replace(name.begin(), name.end(), '_', '.');
    ASSERT_TRUE(vpkpack::ParseFormat(name, &options.format)) << name;
    options.mtime = 1700000000;
    vpkpack::PackageSummary summary, checked;
    const Status packed = vpkpack::Pack(bundle_, out_, options, &summary);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    const Status status = vpkpack::Check(out_, &checked);
    EXPECT_TRUE(status.ok()) << status.Message();
    EXPECT_EQ(std::make_pair(2147483647L, summary.entries),
              std::make_pair(summary.version.build, checked.entries));
    std::vector<ArchiveItem> items;
    ASSERT_TRUE(ReadArchive(out_, &items));
    testsupport::Tree stored;
    std::string order;
    for (const ArchiveItem& e : items) {
        const bool x = e.kind != 'f' || (e.perm & 0111) != 0;
        stored[e.path.substr(0, e.path.find_last_not_of('/') + 1)] =
            e.kind == 'd'   ? "dir"
            : e.kind == 'l' ? "link " + e.link
                            : std::string("file ") + (x ? "x " : "- ") + e.data;
        order += e.path.substr(std::min<size_t>(e.path.size(), 9)) + " ";
        EXPECT_EQ(std::make_tuple(x ? 0755u : 0644u, 1700000000L, 0LL, 0LL, std::string()),
                  std::make_tuple(unsigned(e.perm), long(e.mtime), e.uid, e.gid, e.uname))
            << e.path << ": mode, time, owner, group or user name";
    }
    EXPECT_TRUE(testsupport::SameTree(testsupport::Snapshot(bundle_), stored)) << "what the package holds";
    EXPECT_EQ(
        " Frameworks/ Frameworks/Q.framework/ Frameworks/Q.framework/Q Frameworks/Q.framework/Versions/ "
        "Frameworks/Q.framework/Versions/A/ Frameworks/Q.framework/Versions/A/Q Frameworks/Q.framework/"
        "Versions/Current Info.plist MacOS/ Resources/ Resources/B Resources/a/ Resources/a/x Resources/a-b "
        "Resources/en.lproj/ Resources/en.lproj/Localizable.strings MacOS/calderix-drive-ui Resources/INFO ",
        order);

    const std::string copy = tmp_ / "copy.app", second = tmp_ / "second.vpk";
    ASSERT_TRUE(testsupport::CopyTree(bundle_, copy)) << copy << ": " << std::strerror(errno);
    ASSERT_TRUE(Shell(
        copy,
        "touch -d @1000 Contents $I $U Contents/Resources/B; chmod 600 $I; chmod 700 Contents/Resources"));
    ASSERT_TRUE(vpkpack::Pack(copy, second, options).ok());
    const std::string first_bytes = ReadFile(out_);
    EXPECT_TRUE(first_bytes == ReadFile(second)) << out_ << " and " << second << " differ";
    EXPECT_TRUE(options.format != vpkpack::Format::TarGz || first_bytes.substr(4, 4) == std::string(4, '\0'))
        << "the gzip header holds the packing time";
}

INSTANTIATE_TEST_SUITE_P(Formats, PackFormatTest, ::testing::Values("tar_zst", "zip", "tar_gz", "tar_xz"),
                         testsupport::RowName());

// Several of zstd's jobs' worth of data give one package whatever the
// threads; the level is the one asked for.
TEST_F(PackTest, ZstdPackageIsTheSameWhateverTheThreads)
{
    std::string data = NoiseBytes(6 << 20, 11);
    for (char& c : data)
        c = static_cast<char>('a' + (c & 15));
    Put("Contents/Resources/data", data);
    vpkpack::PackOptions options;
    options.level = 1;
    std::string one_thread;
    for (const int threads : {1, 2, 3}) {
        options.threads = threads;
        const Status status = vpkpack::Pack(bundle_, out_, options);
        ASSERT_TRUE(status.ok()) << status.Message();
        one_thread = threads == 1 ? ReadFile(out_) : one_thread;
        EXPECT_TRUE(ReadFile(out_) == one_thread) << threads << " threads wrote another package";
    }
    options.level = 6;
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, options).ok());
    EXPECT_FALSE(ReadFile(out_) == one_thread) << "level 6 wrote what level 1 wrote";
}

// Packing onto a full disk says so: the output folder is a 64 KiB tmpfs of
// the child's own, in a user and mount namespace, and the package does not fit.
TEST_F(PackTest, FullDiskIsReportedAsSuch)
{
    Put("Contents/Resources/noise", NoiseBytes(256 << 10, 5));
    const std::string full = tmp_ / "full";
    ASSERT_TRUE(testsupport::MakeDirs(full)) << full << ": " << std::strerror(errno);
    const testsupport::ProcessResult cli =
        testsupport::Run({VPKPACK_BIN, bundle_, full + "/calderix.vpk"}, {}, [&full] {
            testsupport::EnterUserNamespace(CLONE_NEWNS);
            if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                mount("tmpfs", full.c_str(), "tmpfs", 0, "size=64k") != 0) {
                perror("small tmpfs");
                _exit(127);
            }
        });
    EXPECT_EQ(1, cli.exit_code) << cli.err;
    EXPECT_NE(std::string::npos, cli.err.find("vpkpack: no space left on device")) << cli.err;
}

// The default package carries a checksum: damage anywhere, down to one
// flipped bit in incompressible data, is refused rather than unpacked.
TEST_F(PackTest, CheckRefusesADamagedPackage)
{
    Put("Contents/Resources/noise", NoiseBytes(300000, 7));
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, {}).ok());
    const std::string good = ReadFile(out_);
    for (const size_t at : {good.size() / 4, good.size() / 2, good.size() * 3 / 4, good.size() - 1}) {
        for (const bool cut : {false, true}) {
            std::string bad = good;
            cut ? bad.resize(at) : void(bad[at] ^= 0x10);
            ASSERT_TRUE(WriteFile(out_, bad)) << out_ << ": " << std::strerror(errno);
            const Status status = vpkpack::Check(out_);
            EXPECT_EQ(int(E::ArchiveError), int(status.error))
                << (cut ? "cut at " : "bit flipped at ") << at << " of " << good.size() << ": "
                << status.Message();
        }
    }
}

// Arguments: "{B}" stands for the bundle, "{O}" for the output; leading
// NAME=VALUE ones set the environment, from which SOURCE_DATE_EPOCH is
// otherwise removed and whose value is every written entry's time.
struct CommandLine {
    const char* name;
    std::vector<std::string> args;
    int exit_code;
    const char* printed; // part of what it prints
};

class CommandLineTest : public PackTest, public ::testing::WithParamInterface<CommandLine> {};

TEST_P(CommandLineTest, ExitsWithItsCodeAndMessage)
{
    std::vector<std::string> argv = {"/usr/bin/env", "-u", "SOURCE_DATE_EPOCH", VPKPACK_BIN};
    long mtime = 0;
    for (std::string arg : GetParam().args) {
        for (const auto& [token, value] : {std::make_pair("{B}", bundle_), std::make_pair("{O}", out_)})
            if (arg.find(token) != std::string::npos)
                arg.replace(arg.find(token), 3, value);
        const bool env = arg.rfind("SOURCE_DATE_EPOCH=", 0) == 0;
        mtime = env ? std::atol(arg.c_str() + 18) : mtime;
        argv.insert(env ? argv.end() - 1 : argv.end(), arg);
    }
    const testsupport::ProcessResult result = testsupport::Run(argv);
    EXPECT_EQ(GetParam().exit_code, result.exit_code) << result.err;
    EXPECT_NE(std::string::npos, (result.out + result.err).find(GetParam().printed))
        << result.out << result.err;
    std::vector<ArchiveItem> items;
    EXPECT_TRUE(argv.back().find(".vpk") == std::string::npos ||
                (result.exit_code == 0) == bool(ReadArchive(argv.back(), &items)))
        << argv.back() << " is not there, or not alone, after exit code " << result.exit_code;
    for (const ArchiveItem& item : items)
        EXPECT_EQ(mtime, item.mtime) << item.path;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cli, CommandLineTest, ::testing::ValuesIn(std::vector<CommandLine>{
    {"packs_by_default", {"{B}", "{O}"}, 0, ""},
    {"times_from_source_date_epoch", {"SOURCE_DATE_EPOCH=1234567890", "--format=tar.xz", "{B}", "{O}"}, 0, ""},
    {"bad_source_date_epoch", {"SOURCE_DATE_EPOCH=yesterday", "{B}", "{O}"}, 2, "SOURCE_DATE_EPOCH"},
    {"no_operands", {}, 2, "usage:"},
    {"unknown_format", {"--format", "rar", "{B}", "{O}"}, 2, "unknown format: 'rar'"},
    {"unknown_option", {"--fast", "{B}", "{O}"}, 2, "unknown option: '--fast'"},
    {"missing_bundle", {"/nonexistent/a.app", "{O}"}, 1, "vpkpack: no such file or folder: '/nonexistent/a.app'"},
    {"missing_output_folder", {"{B}", "/no/a.vpk"}, 1, "vpkpack: output folder does not exist: '/no'\n"},
    {"output_inside_bundle", {"{B}", "{B}/Contents/a.vpk"}, 1, "output would lie inside the bundle"},
    {"format_from_output_name", {"{B}", "{O}.zip"}, 0, "(zip, build 2147483647, "},
    {"format_against_output_name", {"--format", "tar.xz", "{B}", "{O}.tgz"}, 2, "tar.xz does not match the output's"},
    {"level_for_zip", {"--level", "3", "{B}", "{O}.zip"}, 2, "apply to tar.zst only"},
    {"level_out_of_range", {"--level=23", "{B}", "{O}"}, 2, "from 1 to 22: '23'"},
    {"check_of_no_package", {"--check", "{B}/Contents/Resources/INFO"}, 1, "not a package (tar.zst, zip, tar.gz"},
    {"print_build", {"--print-build", "{B}/Contents/Resources/INFO"}, 0, "2147483647\n"},
}), testsupport::RowName());
// clang-format on

} // namespace
