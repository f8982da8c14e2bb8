// vpkpack: builds the client package that the launcher's bundle carries
// (Contents/Resources/package/calderix.vpk) from a Calderix.app folder, and
// checks an existing package against the same rules.
//
// A package that passes is safe to extract below ~/.Calderix/Calderix.app
// and always looks incomplete when its extraction is cut short: the UI
// executable and the version file are its last two entries.
#pragma once

#include <ctime>
#include <map>
#include <string>
#include <vector>

#include "bundle_layout.h"
#include "package_rules.h"

namespace vpkpack {

// Entry names of the files the launcher relies on, relative to the bundle.
using layout::kInfoEntry;
using layout::kMacOSFolder;
using layout::kPlistEntry;
using layout::kUiName;

enum class Format { TarZst, Zip, TarGz, TarXz };

// What a refusal says; shared with the launcher's extractor, which applies
// the same rules to the package before it writes anything.
using Error = pkgrules::Error;
using Status = pkgrules::Status;

// The [Version] values of a version file: the keys present, by name.
struct VersionInfo {
    std::map<std::string, std::string> values;
    long build = 0; // build_version as a number, always above 0 once accepted
};

// zstd's compression levels, for PackOptions::level.
constexpr int kMinZstdLevel = 1;
constexpr int kMaxZstdLevel = 22;
constexpr int kDefaultZstdLevel = 19;

struct PackOptions {
    Format format = Format::TarZst;
    // tar.zst only: the zstd level, and the threads that compress; 0 threads
    // is one per processor, up to 8. The package is the same whatever the
    // number of threads.
    int level = kDefaultZstdLevel;
    int threads = 0;
    // Modification time of every entry, in seconds since 1970.
    time_t mtime = 0;
    // Where to write the version file for the launcher's bundle; none if empty.
    std::string info_out;
};

// What a successful Pack or Check found.
struct PackageSummary {
    int entries = 0;
    VersionInfo version;
};

// "tar.zst", "zip", "tar.gz" or "tar.xz".
const char* FormatName(Format format);
// False, leaving *format alone, for a name FormatName does not return.
bool ParseFormat(const std::string& name, Format* format);
// The format that a file name's ending names (".tar.zst" or ".tzst",
// ".zip", ".tar.gz" or ".tgz", ".tar.xz" or ".txz"); false, leaving *format
// alone, for any other name.
bool FormatOfName(const std::string& path, Format* format);

// vpkpack's version and those of the libraries that write its packages.
std::string VersionText();

// Packs bundle_dir into output. Nothing is written unless every rule holds;
// the package (and the version file of info_out) replace their targets only
// once complete, so a failure leaves what was there before. A bundle that
// breaks the rules is refused as a whole: the first refusal is returned,
// and refused, when given, receives all of them, one per offending entry.
Status Pack(const std::string& bundle_dir, const std::string& output, const PackOptions& options,
            PackageSummary* summary = nullptr, std::vector<Status>* refused = nullptr);

// Reads the whole package, verifying its data, and applies the rules that
// Pack applies plus the order of the last two entries, reporting as Pack
// does. Touches nothing.
Status Check(const std::string& package, PackageSummary* summary = nullptr,
             std::vector<Status>* refused = nullptr);

// Checks a launcher bundle ("Calderix Drive.app"): its property list names
// an executable in Contents/MacOS and carries the build as CFBundleVersion,
// its version file, icon and platform plug-ins are there, its package passes
// Check, and the version file's build is the package's. Touches nothing.
Status CheckBundle(const std::string& bundle, PackageSummary* summary = nullptr);

// The [Version] values of the version file at path, refused as a bundle's
// would be when packing (no build_version, or not a number above 0).
Status ReadVersionFile(const std::string& path, VersionInfo* info);

} // namespace vpkpack
