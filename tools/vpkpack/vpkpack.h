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

#include "bundle_layout.h"

namespace vpkpack {

// Entry names of the files the launcher relies on, relative to the bundle.
using layout::kInfoEntry;
using layout::kMacOSFolder;
using layout::kPlistEntry;
using layout::kUiName;

enum class Format { TarZst, Zip, TarGz, TarXz };

enum class Error {
    None,
    // File-system failures, mapped from errno.
    NotFound,
    PermissionDenied,
    NoSpace,
    IoError,
    // Inputs and outputs that are not what they must be.
    NotAFolder,
    OutputInsideBundle,
    ArchiveError,
    ChangedWhilePacking,
    TooLarge,
    // Entries that would be unsafe or useless to extract.
    HardLink,
    AbsoluteSymlink,
    EscapingSymlink,
    SymlinkLoop,
    BelowSymlink,
    DotDotName,
    AbsoluteName,
    UnsupportedType,
    DuplicateEntry,
    // The bundle's own files.
    MissingInfo,
    BadInfo,
    MissingBuildVersion,
    BadBuildVersion,
    BadInfoPlist,
    ForeignUiName,
    MissingUi,
    UiNotExecutable,
    NotRegularFile,
    OutOfOrder,
    // A launcher bundle's own files.
    NotExecutable,
    NoPlatformPlugin,
    BuildMismatch,
};

struct Status {
    Error error = Error::None;
    std::string entry;  // the entry or path the failure concerns
    std::string detail; // system or libarchive text; may be empty

    bool ok() const { return error == Error::None; }
    // "<reason>: '<entry>'", followed by " (<detail>)" when there is one.
    std::string Message() const;
};

// The [Version] values of a version file: the keys present, by name.
struct VersionInfo {
    std::map<std::string, std::string> values;
    long build = 0; // build_version as a number, always above 0 once accepted
};

struct PackOptions {
    Format format = Format::TarZst;
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

// Packs bundle_dir into output. Nothing is written unless every rule holds;
// the package (and the version file of info_out) replace their targets only
// once complete, so a failure leaves what was there before.
Status Pack(const std::string& bundle_dir, const std::string& output, const PackOptions& options,
            PackageSummary* summary = nullptr);

// Reads the whole package, verifying its data, and applies the rules that
// Pack applies plus the order of the last two entries. Touches nothing.
Status Check(const std::string& package, PackageSummary* summary = nullptr);

// Checks a launcher bundle ("Calderix Drive.app"): its property list names
// an executable in Contents/MacOS and carries the build as CFBundleVersion,
// its version file, icon and platform plug-ins are there, its package passes
// Check, and the version file's build is the package's. Touches nothing.
Status CheckBundle(const std::string& bundle, PackageSummary* summary = nullptr);

// The [Version] values of the version file at path, refused as a bundle's
// would be when packing (no build_version, or not a number above 0).
Status ReadVersionFile(const std::string& path, VersionInfo* info);

} // namespace vpkpack
