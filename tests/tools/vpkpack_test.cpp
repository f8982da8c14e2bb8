#include "vpkpack.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <random>
#include <set>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

#include <QSettings>
#include <gtest/gtest.h>

#include "service_fixture.h"
#include "test_support.h"

using testsupport::ReadFile;
using testsupport::WriteFile;
using vpkpack::Error;

namespace {

// --- packages read and hand-written with libarchive directly,
// so that nothing here shares code with vpkpack ---

// Hand-made entries give name, type, perm, data and a symbolic or hard link's target.
struct StoredEntry {
    std::string name{};
    unsigned type = AE_IFREG;
    mode_t perm = 0644;
    std::string data{};
    std::string symlink{};
    std::string hardlink{};
    time_t mtime = 0;
    long long uid = 0;
    long long gid = 0;
    std::string uname{};
    bool atime_set = false;
};

using Handle = std::unique_ptr<archive, int (*)(archive*)>;

::testing::AssertionResult Fail(archive* a, const std::string& what)
{
    const char* text = archive_error_string(a);
    return ::testing::AssertionFailure() << what << ": " << (text != nullptr ? text : "(no message)");
}

std::string Text(const char* text)
{
    return text != nullptr ? text : "";
}

::testing::AssertionResult ReadPackage(const std::string& path, std::vector<StoredEntry>* entries)
{
    Handle reader(archive_read_new(), archive_read_free);
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_filename(reader.get(), path.c_str(), 10240) != ARCHIVE_OK) {
        return Fail(reader.get(), path);
    }
    archive_entry* header = nullptr;
    int r;
    while ((r = archive_read_next_header(reader.get(), &header)) == ARCHIVE_OK) {
        StoredEntry entry{archive_entry_pathname(header),
                          archive_entry_filetype(header),
                          archive_entry_perm(header),
                          "",
                          Text(archive_entry_symlink(header)),
                          Text(archive_entry_hardlink(header)),
                          archive_entry_mtime(header),
                          archive_entry_uid(header),
                          archive_entry_gid(header),
                          Text(archive_entry_uname(header)),
                          archive_entry_atime_is_set(header) != 0};
        char buffer[8192];
        la_ssize_t n;
        while ((n = archive_read_data(reader.get(), buffer, sizeof buffer)) > 0) {
            entry.data.append(buffer, static_cast<size_t>(n));
        }
        if (n < 0) {
            return Fail(reader.get(), path + ": data of " + entry.name);
        }
        entries->push_back(entry);
    }
    return r == ARCHIVE_EOF ? ::testing::AssertionSuccess() : Fail(reader.get(), path);
}

::testing::AssertionResult WriteTar(const std::string& path, const std::vector<StoredEntry>& entries)
{
    Handle writer(archive_write_new(), archive_write_free);
    archive_write_set_format_pax_restricted(writer.get());
    if (archive_write_open_filename(writer.get(), path.c_str()) != ARCHIVE_OK) {
        return Fail(writer.get(), path);
    }
    for (const StoredEntry& item : entries) {
        std::unique_ptr<archive_entry, void (*)(archive_entry*)> header(archive_entry_new(),
                                                                        archive_entry_free);
        archive_entry_set_pathname(header.get(), item.name.c_str());
        archive_entry_set_filetype(header.get(), item.type);
        archive_entry_set_perm(header.get(), item.perm);
        archive_entry_set_size(header.get(), static_cast<la_int64_t>(item.data.size()));
        if (!item.symlink.empty()) {
            archive_entry_set_symlink(header.get(), item.symlink.c_str());
        }
        if (!item.hardlink.empty()) {
            archive_entry_set_hardlink(header.get(), item.hardlink.c_str());
        }
        if (archive_write_header(writer.get(), header.get()) != ARCHIVE_OK ||
            archive_write_data(writer.get(), item.data.data(), item.data.size()) < 0) {
            return Fail(writer.get(), path + ": " + item.name);
        }
    }
    return archive_write_close(writer.get()) == ARCHIVE_OK ? ::testing::AssertionSuccess()
                                                           : Fail(writer.get(), path);
}

const char kInfo[] =
    "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=1201\nicon_overlay_version=5\n";
const char kUi[] = "Contents/MacOS/calderix-drive-ui";
const char kInfoName[] = "Contents/Resources/INFO";
const char kPlistName[] = "Contents/Info.plist";

std::string Plist(const std::string& executable)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>CFBundleName</key>"
           "<string>Calderix Drive</string><key>CFBundleExecutable</key><string>" +
           executable + "</string></dict></plist>\n";
}

std::set<std::string> Names(const std::string& folder)
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

// A bundle as the people who ship the client hand it over, with a framework
// that carries the usual relative links.
class PackTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        Put(kPlistName, Plist("calderix-drive-ui"));
        Put(kUi, "#!/bin/sh\necho ui\n", 0755);
        Put(kInfoName, kInfo);
        Put("Contents/Resources/en.lproj/Localizable.strings", "\"a\" = \"b\";\n");
        Put("Contents/Frameworks/Q.framework/Versions/A/Q", "library", 0755);
        ASSERT_EQ(0, symlink("A", (bundle_ + "/Contents/Frameworks/Q.framework/Versions/Current").c_str()));
        ASSERT_EQ(0, symlink("Versions/Current/Q", (bundle_ + "/Contents/Frameworks/Q.framework/Q").c_str()));
    }

    void Put(const std::string& name, const std::string& data, mode_t mode = 0644)
    {
        const std::string path = bundle_ + "/" + name;
        ASSERT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/'))))
            << path << ": " << std::strerror(errno);
        ASSERT_TRUE(WriteFile(path, data, mode)) << path << ": " << std::strerror(errno);
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
    const char* change; // a shell command run in the bundle
    Error error;
    const char* entry;
};

class PackRefusalTest : public PackTest, public ::testing::WithParamInterface<PackRefusal> {};

TEST_P(PackRefusalTest, RefusesNamingTheEntryAndKeepsTheOldPackage)
{
    const PackRefusal& row = GetParam();
    ASSERT_TRUE(WriteFile(out_, "old package")) << out_ << ": " << std::strerror(errno);
    const testsupport::ProcessResult change =
        testsupport::Run({"/bin/sh", "-ec", std::string("cd \"$0\"; ") + row.change, bundle_});
    ASSERT_EQ(change.exit_code, 0) << row.change << ": " << change.err;

    const vpkpack::Status status = vpkpack::Pack(bundle_, out_, {});
    EXPECT_EQ(static_cast<int>(row.error), static_cast<int>(status.error)) << status.Message();
    EXPECT_EQ(row.entry, status.entry) << status.Message();
    EXPECT_EQ("old package", ReadFile(out_)) << "a refused bundle replaced the package";
    EXPECT_EQ((std::set<std::string>{"Calderix.app", "calderix.vpk"}), Names(tmp_.path()))
        << "temporary files left behind";
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, PackRefusalTest,
    ::testing::Values(
        PackRefusal{"hard_link", "cd Contents/Resources; echo a >a; ln a b", Error::HardLink,
                    "Contents/Resources/a"},
        PackRefusal{"absolute_symlink", "ln -s /etc/passwd Contents/abs", Error::AbsoluteSymlink,
                    "Contents/abs"},
        PackRefusal{"symlink_leaving_bundle", "ln -s ../../x Contents/out", Error::EscapingSymlink,
                    "Contents/out"},
        PackRefusal{"symlink_chain_leaving_bundle",
                    "ln -s .. Contents/up; ln -s ../up/../x Contents/MacOS/out", Error::EscapingSymlink,
                    "Contents/MacOS/out"},
        PackRefusal{"symlink_loop", "ln -s loop Contents/loop", Error::SymlinkLoop, "Contents/loop"},
        PackRefusal{"fifo", "mkfifo Contents/pipe", Error::UnsupportedType, "Contents/pipe"},
        PackRefusal{"missing_info", "rm Contents/Resources/INFO", Error::MissingInfo, kInfoName},
        PackRefusal{"info_without_build_version",
                    "printf '[Other]\\nbuild_version=1\\n' >Contents/Resources/INFO",
                    Error::MissingBuildVersion, kInfoName},
        PackRefusal{"build_version_not_a_number",
                    "printf '[Version]\\nbuild_version=12a\\n' >Contents/Resources/INFO",
                    Error::BadBuildVersion, kInfoName},
        PackRefusal{"build_version_zero", "printf '[Version]\\nbuild_version=0\\n' >Contents/Resources/INFO",
                    Error::BadBuildVersion, kInfoName},
        PackRefusal{"missing_ui", "rm Contents/MacOS/calderix-drive-ui", Error::MissingUi, kUi},
        PackRefusal{"ui_not_executable", "chmod 644 Contents/MacOS/calderix-drive-ui", Error::UiNotExecutable,
                    kUi},
        PackRefusal{"ui_is_a_symlink",
                    "cd Contents/MacOS; mv calderix-drive-ui real; ln -s real calderix-drive-ui",
                    Error::NotRegularFile, kUi},
        PackRefusal{"plist_names_another_executable",
                    "sed -i s/calderix-drive-ui/other-ui/ Contents/Info.plist", Error::ForeignUiName,
                    kPlistName}),
    servicetest::RowName<PackRefusal>);

// Each refusal as "<error number> <entry>", in the order reported.
std::vector<std::string> Listed(const std::vector<vpkpack::Status>& refused)
{
    std::vector<std::string> listed;
    for (const vpkpack::Status& status : refused) {
        listed.push_back(std::to_string(static_cast<int>(status.error)) + " " + status.entry);
    }
    return listed;
}

std::string Row(Error error, const std::string& entry)
{
    return std::to_string(static_cast<int>(error)) + " " + entry;
}

// One run names every entry to mend, rule by rule, on the command line one
// line each.
TEST_F(PackTest, RefusesEveryOffendingEntryInOneRun)
{
    const testsupport::ProcessResult change =
        testsupport::Run({"/bin/sh", "-ec",
                          "cd \"$0\"; ln -s /etc/passwd Contents/abs; mkfifo Contents/pipe; "
                          "chmod 644 Contents/MacOS/calderix-drive-ui; rm Contents/Resources/INFO",
                          bundle_});
    ASSERT_EQ(change.exit_code, 0) << change.err;

    std::vector<vpkpack::Status> refused;
    const vpkpack::Status status = vpkpack::Pack(bundle_, out_, {}, nullptr, &refused);
    EXPECT_EQ(Listed(refused), (std::vector<std::string>{Row(Error::UnsupportedType, "Contents/pipe"),
                                                         Row(Error::AbsoluteSymlink, "Contents/abs"),
                                                         Row(Error::MissingInfo, kInfoName),
                                                         Row(Error::UiNotExecutable, kUi)}));
    EXPECT_EQ(Listed({status}), Listed({refused.front()}));
    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, bundle_, out_});
    EXPECT_EQ(cli.exit_code, 1);
    std::string lines;
    for (const vpkpack::Status& each : refused) {
        lines += "vpkpack: " + each.Message() + "\n";
    }
    EXPECT_EQ(cli.err, lines);
    EXPECT_FALSE(testsupport::Exists(out_)) << out_;
}

// --- refusals of hand-made packages ---

std::vector<StoredEntry> ValidPackage()
{
    return {StoredEntry{"Contents/", AE_IFDIR, 0755},
            StoredEntry{kPlistName, AE_IFREG, 0644, Plist("calderix-drive-ui")},
            StoredEntry{"Contents/MacOS/", AE_IFDIR, 0755},
            StoredEntry{"Contents/Resources/", AE_IFDIR, 0755},
            StoredEntry{kUi, AE_IFREG, 0755, "ui"},
            StoredEntry{kInfoName, AE_IFREG, 0644, kInfo}};
}

struct CheckRefusal {
    const char* name;
    std::vector<StoredEntry> extra;
    Error error;
    const char* entry;
    int from_end = 2; // where extra goes: 2 before the UI executable, 1 before the version file, 0 last
    mode_t ui_perm = 0755;
};

class CheckRefusalTest : public PackTest, public ::testing::WithParamInterface<CheckRefusal> {};

TEST_P(CheckRefusalTest, RefusesNamingTheEntry)
{
    const CheckRefusal& row = GetParam();
    std::vector<StoredEntry> entries = ValidPackage();
    entries[entries.size() - 2].perm = row.ui_perm;
    entries.insert(entries.end() - row.from_end, row.extra.begin(), row.extra.end());
    ASSERT_TRUE(WriteTar(out_, entries));

    const vpkpack::Status status = vpkpack::Check(out_);
    EXPECT_EQ(static_cast<int>(row.error), static_cast<int>(status.error)) << status.Message();
    EXPECT_EQ(row.entry, status.entry) << status.Message();
    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, "--check", out_});
    EXPECT_EQ(1, cli.exit_code) << cli.err;
    EXPECT_EQ("vpkpack: " + status.Message() + "\n", cli.err);
}

const StoredEntry kLate = StoredEntry{"Contents/Resources/late", AE_IFREG, 0644, "x"};

TEST_F(PackTest, CheckRefusesEveryOffendingEntryInOneRun)
{
    std::vector<StoredEntry> entries = ValidPackage();
    entries[entries.size() - 2].perm = 0644;
    entries.insert(entries.begin() + 1, {StoredEntry{"Contents/../../evil", AE_IFREG, 0644, "x"},
                                         StoredEntry{"Contents/abs", AE_IFLNK, 0755, "", "/etc/passwd"},
                                         StoredEntry{"Contents/b", AE_IFREG, 0644, "", "", kPlistName}});
    ASSERT_TRUE(WriteTar(out_, entries));

    std::vector<vpkpack::Status> refused;
    vpkpack::Check(out_, nullptr, &refused);
    EXPECT_EQ(Listed(refused), (std::vector<std::string>{Row(Error::DotDotName, "Contents/../../evil"),
                                                         Row(Error::HardLink, "Contents/b"),
                                                         Row(Error::AbsoluteSymlink, "Contents/abs"),
                                                         Row(Error::UiNotExecutable, kUi)}));
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, CheckRefusalTest,
    ::testing::Values(CheckRefusal{"dotdot_name",
                                   {StoredEntry{"Contents/../../evil", AE_IFREG, 0644, "x"}},
                                   Error::DotDotName,
                                   "Contents/../../evil"},
                      CheckRefusal{"absolute_name",
                                   {StoredEntry{"/tmp/evil", AE_IFREG, 0644, "x"}},
                                   Error::AbsoluteName,
                                   "/tmp/evil"},
                      CheckRefusal{"hard_link",
                                   {StoredEntry{"Contents/Resources/a", AE_IFREG, 0644, "a"},
                                    StoredEntry{"Contents/Resources/b", AE_IFREG, 0644, "", "",
                                                "Contents/Resources/a"}},
                                   Error::HardLink,
                                   "Contents/Resources/b"},
                      CheckRefusal{"entry_below_symlink",
                                   {StoredEntry{"Contents/l", AE_IFLNK, 0755, "", "MacOS"},
                                    StoredEntry{"Contents/l/x", AE_IFREG, 0644, "x"}},
                                   Error::BelowSymlink,
                                   "Contents/l/x"},
                      CheckRefusal{"duplicate_entry",
                                   {StoredEntry{kPlistName, AE_IFREG, 0644, "again"}},
                                   Error::DuplicateEntry,
                                   kPlistName},
                      CheckRefusal{"ui_not_executable", {}, Error::UiNotExecutable, kUi, 2, 0644},
                      CheckRefusal{"info_not_last", {kLate}, Error::OutOfOrder, kInfoName, 0},
                      CheckRefusal{"ui_not_right_before_info", {kLate}, Error::OutOfOrder, kUi, 1}),
    servicetest::RowName<CheckRefusal>);

// --- launcher bundles ---

struct BundleRefusal {
    const char* name;
    const char* change; // a shell command run in the launcher bundle; empty: none
    Error error;
    const char* entry; // "{P}" stands for the package's path
};

class BundleCheckTest : public PackTest, public ::testing::WithParamInterface<BundleRefusal> {};

// A launcher bundle around the fixture's client (build 1201), then changed.
TEST_P(BundleCheckTest, RefusesNamingTheFileOrPasses)
{
    const BundleRefusal& row = GetParam();
    const std::string launcher = tmp_ / "Calderix Drive.app";
    const std::string package = launcher + "/Contents/Resources/package/calderix.vpk";
    vpkpack::PackOptions options;
    options.info_out = launcher + "/Contents/Resources/INFO";
    for (const char* folder : {"/Contents/MacOS", "/Contents/Resources/package", "/Contents/Resources/images",
                               "/Contents/Frameworks/plugins/platforms"}) {
        ASSERT_TRUE(testsupport::MakeDirs(launcher + folder)) << std::strerror(errno);
    }
    ASSERT_TRUE(vpkpack::Pack(bundle_, package, options).ok());
    ASSERT_TRUE(
        WriteFile(launcher + "/Contents/Info.plist",
                  "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict><key>CFBundleExecutable</key>"
                  "<string>launcher</string><key>CFBundleVersion</key><string>1201</string></dict>"
                  "</plist>\n") &&
        WriteFile(launcher + "/Contents/MacOS/launcher", "program", 0755) &&
        WriteFile(launcher + "/Contents/Resources/images/ico_72_calderix.png", "icon") &&
        WriteFile(launcher + "/Contents/Frameworks/plugins/platforms/libqoffscreen.so", "plug-in"))
        << std::strerror(errno);
    const testsupport::ProcessResult build =
        testsupport::Run({VPKPACK_BIN, "--print-build", launcher + "/Contents/Resources/INFO"});
    EXPECT_EQ(build.out, "1201\n") << build.err;
    const testsupport::ProcessResult change =
        testsupport::Run({"/bin/sh", "-ec", std::string("cd \"$0\"; ") + row.change, launcher});
    ASSERT_EQ(change.exit_code, 0) << row.change << ": " << change.err;

    const vpkpack::Status status = vpkpack::CheckBundle(launcher);
    EXPECT_EQ(static_cast<int>(row.error), static_cast<int>(status.error)) << status.Message();
    EXPECT_EQ(std::string(row.entry) == "{P}" ? package : row.entry, status.entry) << status.Message();
    const testsupport::ProcessResult cli = testsupport::Run({VPKPACK_BIN, "--check-bundle", launcher});
    EXPECT_EQ(status.ok() ? 0 : 1, cli.exit_code) << cli.err;
    EXPECT_EQ(status.ok() ? "" : "vpkpack: " + status.Message() + "\n", cli.err);
}

INSTANTIATE_TEST_SUITE_P(
    Bundles, BundleCheckTest,
    ::testing::Values(
        BundleRefusal{"complete", "", Error::None, ""},
        BundleRefusal{"launcher_not_executable", "chmod 644 Contents/MacOS/launcher", Error::NotExecutable,
                      "Contents/MacOS/launcher"},
        BundleRefusal{"plist_names_another_launcher", "sed -i s/launcher/starter/ Contents/Info.plist",
                      Error::NotFound, "Contents/MacOS/starter"},
        BundleRefusal{"plist_with_another_build", "sed -i s/1201/1200/ Contents/Info.plist",
                      Error::BuildMismatch, kPlistName},
        BundleRefusal{"info_with_another_build",
                      "sed -i s/1201/1202/ Contents/Info.plist Contents/Resources/INFO", Error::BuildMismatch,
                      kInfoName},
        BundleRefusal{"no_platform_plugin", "rm Contents/Frameworks/plugins/platforms/*",
                      Error::NoPlatformPlugin, "Contents/Frameworks/plugins/platforms"},
        BundleRefusal{"no_icon", "rm -r Contents/Resources/images", Error::NotFound,
                      "Contents/Resources/images/ico_72_calderix.png"},
        BundleRefusal{"no_package", "rm Contents/Resources/package/calderix.vpk", Error::NotFound, "{P}"},
        BundleRefusal{"package_cut_short", "truncate -s 100 Contents/Resources/package/calderix.vpk",
                      Error::ArchiveError, "{P}"},
        BundleRefusal{
            "package_of_nothing", "mkdir e; bsdtar -cf Contents/Resources/package/calderix.vpk -C e .",
            Error::MissingInfo, "Contents/Resources/package/calderix.vpk: Contents/Resources/INFO"}),
    servicetest::RowName<BundleRefusal>);

// --- what a package holds ---

TEST_F(PackTest, EntriesFollowTheTreeWithUiAndInfoLast)
{
    Put("Contents/Resources/a/x", "x");
    Put("Contents/Resources/a-b", "y");
    Put("Contents/Resources/B", "z");
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, {}).ok());

    std::string names;
    for (const StoredEntry& entry : Packed(out_)) {
        names += entry.name + "\n";
    }
    EXPECT_EQ(names,
              "Contents/\nContents/Frameworks/\nContents/Frameworks/Q.framework/\n"
              "Contents/Frameworks/Q.framework/Q\nContents/Frameworks/Q.framework/Versions/\n"
              "Contents/Frameworks/Q.framework/Versions/A/\nContents/Frameworks/Q.framework/Versions/A/Q\n"
              "Contents/Frameworks/Q.framework/Versions/Current\nContents/Info.plist\nContents/MacOS/\n"
              "Contents/Resources/\nContents/Resources/B\nContents/Resources/a/\nContents/Resources/a/x\n"
              "Contents/Resources/a-b\nContents/Resources/en.lproj/\n"
              "Contents/Resources/en.lproj/Localizable.strings\n"
              "Contents/MacOS/calderix-drive-ui\nContents/Resources/INFO\n");
}

class PackFormatTest : public PackTest, public ::testing::WithParamInterface<vpkpack::Format> {};

TEST_P(PackFormatTest, RoundTripsReproduciblyAndPassesCheck)
{
    vpkpack::PackOptions options;
    options.format = GetParam();
    options.mtime = 1700000000;
    vpkpack::PackageSummary summary;
    const vpkpack::Status packed = vpkpack::Pack(bundle_, out_, options, &summary);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    EXPECT_EQ(1201, summary.version.build);
    servicetest::Tree stored; // as extracting the package would give it
    for (const StoredEntry& e : Packed(out_)) {
        const bool x = e.type != AE_IFREG || (e.perm & 0111) != 0;
        stored[e.name.substr(0, e.name.find_last_not_of('/') + 1)] =
            e.type == AE_IFDIR   ? "dir"
            : e.type == AE_IFLNK ? "link " + e.symlink
                                 : std::string("file ") + (x ? "x " : "- ") + e.data;
        // Nothing of the packing machine or user; the zip reader makes up an atime of its own.
        EXPECT_EQ(std::make_tuple(x ? 0755u : 0644u, 1700000000L, 0LL, 0LL, std::string(),
                                  GetParam() == vpkpack::Format::Zip && e.atime_set),
                  std::make_tuple(static_cast<unsigned>(e.perm), static_cast<long>(e.mtime), e.uid, e.gid,
                                  e.uname, e.atime_set))
            << e.name;
    }
    vpkpack::PackageSummary checked;
    const vpkpack::Status status = vpkpack::Check(out_, &checked);
    EXPECT_TRUE(status.ok()) << status.Message();
    EXPECT_EQ(summary.entries, checked.entries);
    EXPECT_EQ(servicetest::Snapshot(bundle_), stored);

    // Another checkout: other folder name, listing order, times and modes.
    const std::string copy = tmp_ / "copy.app";
    ASSERT_TRUE(testsupport::CopyTree(bundle_, copy)) << copy << ": " << std::strerror(errno);
    const struct timespec times[2] = {{1000, 0}, {2000, 5}};
    for (const char* name : {"Contents", kInfoName, kUi, "Contents/Resources/en.lproj/Localizable.strings"}) {
        const std::string path = copy + "/" + name;
        ASSERT_EQ(0, utimensat(AT_FDCWD, path.c_str(), times, 0)) << path << ": " << std::strerror(errno);
    }
    ASSERT_EQ(0, chmod((copy + "/" + kInfoName).c_str(), 0600)) << std::strerror(errno);
    ASSERT_EQ(0, chmod((copy + "/Contents/Resources").c_str(), 0700)) << std::strerror(errno);
    const std::string second = tmp_ / "second.vpk";
    ASSERT_TRUE(vpkpack::Pack(copy, second, options).ok());
    const std::string first_bytes = ReadFile(out_);
    EXPECT_TRUE(first_bytes == ReadFile(second)) << out_ << " and " << second << " differ";
    if (GetParam() == vpkpack::Format::TarGz) {
        // Two packings in the same second would not show a packing time.
        EXPECT_EQ(std::string(4, '\0'), first_bytes.substr(4, 4)) << "gzip MTIME field is set";
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, PackFormatTest,
                         ::testing::Values(vpkpack::Format::TarZst, vpkpack::Format::Zip,
                                           vpkpack::Format::TarGz, vpkpack::Format::TarXz),
                         [](const ::testing::TestParamInfo<vpkpack::Format>& info) {
                             std::string name = vpkpack::FormatName(info.param);
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });

// Several of zstd's jobs' worth of data, packed by one thread and by more,
// gives one package; the level is the one asked for.
TEST_F(PackTest, ZstdPackageIsTheSameWhateverTheThreads)
{
    std::mt19937 random(11);
    std::string data(6 << 20, '\0');
    for (char& c : data) {
        c = static_cast<char>('a' + random() % 16);
    }
    Put("Contents/Resources/data", data);
    vpkpack::PackOptions options;
    options.level = 1;
    std::string one_thread;
    for (const int threads : {1, 2, 3}) {
        options.threads = threads;
        const vpkpack::Status status = vpkpack::Pack(bundle_, out_, options);
        ASSERT_TRUE(status.ok()) << status.Message();
        one_thread = threads == 1 ? ReadFile(out_) : one_thread;
        EXPECT_TRUE(ReadFile(out_) == one_thread) << threads << " threads wrote another package";
    }
    EXPECT_TRUE(vpkpack::Check(out_).ok());
    options.level = 6;
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, options).ok());
    EXPECT_FALSE(ReadFile(out_) == one_thread) << "level 6 wrote what level 1 wrote";
}

TEST_F(PackTest, InfoOutReplacesTheFileWithTheBundleVersion)
{
    const std::string info = tmp_ / "INFO";
    ASSERT_TRUE(WriteFile(info, "[Other]\nkey=1\n")) << info << ": " << std::strerror(errno);
    vpkpack::PackOptions options;
    options.info_out = info;
    const vpkpack::Status status = vpkpack::Pack(bundle_, out_, options);
    ASSERT_TRUE(status.ok()) << status.Message();

    QSettings settings(QString::fromStdString(info), QSettings::IniFormat);
    QStringList values;
    for (const QString& key : settings.allKeys()) {
        values << key + "=" + settings.value(key).toString();
    }
    values.sort();
    EXPECT_EQ("Version/build_version=1201 Version/icon_overlay_version=5 Version/major_version=3 "
              "Version/minor_version=1",
              values.join(' ').toStdString());
}

TEST_F(PackTest, OutputInsideTheBundleIsRefused)
{
    const std::string inside = bundle_ + "/Contents/Resources/calderix.vpk";
    const vpkpack::Status status = vpkpack::Pack(bundle_, inside, {});
    EXPECT_EQ(static_cast<int>(Error::OutputInsideBundle), static_cast<int>(status.error))
        << status.Message();
    EXPECT_FALSE(testsupport::Exists(inside)) << inside;
}

// The default package carries a checksum of its content: damage anywhere,
// down to one flipped bit, is refused rather than unpacked.
TEST_F(PackTest, CheckRefusesADamagedPackage)
{
    // Incompressible, so that most of the package is literal bytes that no
    // decoder table would notice.
    std::mt19937 random(7);
    std::string noise(300000, '\0');
    for (char& c : noise) {
        c = static_cast<char>(random());
    }
    Put("Contents/Resources/noise", noise);
    ASSERT_TRUE(vpkpack::Pack(bundle_, out_, {}).ok());
    const std::string good = ReadFile(out_);
    for (const size_t at : {good.size() / 4, good.size() / 2, good.size() * 3 / 4, good.size() - 1}) {
        for (const bool cut : {false, true}) {
            std::string bad = good;
            if (cut) {
                bad.resize(at);
            } else {
                bad[at] = static_cast<char>(bad[at] ^ 0x10);
            }
            ASSERT_TRUE(WriteFile(out_, bad)) << out_ << ": " << std::strerror(errno);
            const vpkpack::Status status = vpkpack::Check(out_);
            EXPECT_EQ(static_cast<int>(Error::ArchiveError), static_cast<int>(status.error))
                << (cut ? "cut at " : "bit flipped at ") << at << " of " << good.size() << ": "
                << status.Message();
        }
    }
}

// --- command line ---

struct CommandLine {
    const char* name;
    std::vector<std::string> args; // "{B}" stands for the bundle, "{O}" for the output's name
    const char* source_date_epoch; // null: unset
    int exit_code;
    const char* printed; // part of what it prints on standard output or error
    time_t mtime = 0;    // of every entry of a package written
};

class CommandLineTest : public PackTest, public ::testing::WithParamInterface<CommandLine> {};

TEST_P(CommandLineTest, ExitsWithItsCodeAndMessage)
{
    const CommandLine& row = GetParam();
    std::vector<std::string> argv = {VPKPACK_BIN};
    std::string output; // the output operand, if any
    for (std::string arg : row.args) {
        for (const auto& token : {std::make_pair("{B}", bundle_), std::make_pair("{O}", out_)}) {
            const size_t at = arg.find(token.first);
            if (at != std::string::npos) {
                arg.replace(at, 3, token.second);
                output = token.second == out_ ? arg : output;
            }
        }
        argv.push_back(arg);
    }
    const testsupport::ProcessResult result = testsupport::Run(
        argv, {row.source_date_epoch ? testsupport::Set("SOURCE_DATE_EPOCH", row.source_date_epoch)
                                     : testsupport::Unset("SOURCE_DATE_EPOCH")});
    EXPECT_EQ(row.exit_code, result.exit_code) << result.err;
    EXPECT_NE(std::string::npos, (result.out + result.err).find(row.printed)) << result.out << result.err;
    if (output.empty()) {
        return;
    }
    ASSERT_EQ(row.exit_code == 0, testsupport::Exists(output)) << output;
    for (const StoredEntry& entry : row.exit_code == 0 ? Packed(output) : std::vector<StoredEntry>{}) {
        EXPECT_EQ(row.mtime, entry.mtime) << entry.name;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cli, CommandLineTest,
    ::testing::Values(
        CommandLine{"packs_by_default", {"{B}", "{O}"}, nullptr, 0, ""},
        CommandLine{"times_from_source_date_epoch",
                    {"--format=tar.xz", "{B}", "{O}"},
                    "1234567890",
                    0,
                    "",
                    1234567890},
        CommandLine{"no_operands", {}, nullptr, 2, "usage:"},
        CommandLine{"unknown_format", {"--format", "rar", "{B}", "{O}"}, nullptr, 2, "unknown format: 'rar'"},
        CommandLine{"unknown_option", {"--fast", "{B}", "{O}"}, nullptr, 2, "unknown option: '--fast'"},
        CommandLine{"bad_source_date_epoch", {"{B}", "{O}"}, "yesterday", 2, "SOURCE_DATE_EPOCH"},
        CommandLine{"missing_bundle",
                    {"/nonexistent/Calderix.app", "{O}"},
                    nullptr,
                    1,
                    "vpkpack: no such file or folder: '/nonexistent/Calderix.app'"},
        CommandLine{"missing_output_folder",
                    {"{B}", "/nonexistent/calderix.vpk"},
                    nullptr,
                    1,
                    "vpkpack: output folder does not exist: '/nonexistent'\n"},
        CommandLine{"format_from_output_name", {"{B}", "{O}.zip"}, nullptr, 0, "(zip, build 1201, "},
        CommandLine{"format_against_output_name",
                    {"--format", "tar.xz", "{B}", "{O}.tgz"},
                    nullptr,
                    2,
                    "--format tar.xz does not match the output's name"},
        CommandLine{"level_for_zip", {"--level", "3", "{B}", "{O}.zip"}, nullptr, 2, "apply to tar.zst only"},
        CommandLine{"level_out_of_range", {"--level=23", "{B}", "{O}"}, nullptr, 2, "from 1 to 22: '23'"},
        CommandLine{"check_of_no_package",
                    {"--check", "{B}/Contents/Resources/INFO"},
                    nullptr,
                    1,
                    "not a package (tar.zst, zip, tar.gz or tar.xz): '"},
        CommandLine{"version", {"--version"}, nullptr, 0, "vpkpack 1.0.0 (libarchive "}),
    servicetest::RowName<CommandLine>);

} // namespace
