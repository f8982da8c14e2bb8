// The layout of a client bundle ("Calderix.app") as the launcher's bundle
// carries it packed and the user's copy holds it unpacked, the version file
// inside it, and the launcher's own bundle around it. vpkpack writes and
// checks what the launcher reads, so both take these names from here.
#pragma once

#include <string>

// The resources folder, relative to a bundle's root. A macro so that the
// longer names below are composed at compile time.
#define CALDERIX_BUNDLE_RESOURCES "Contents/Resources"
#define CALDERIX_BUNDLE_MACOS "Contents/MacOS"

namespace layout {

// Relative to a bundle's root.
inline constexpr char kResourcesFolder[] = CALDERIX_BUNDLE_RESOURCES;
inline constexpr char kMacOSFolder[] = CALDERIX_BUNDLE_MACOS;
inline constexpr char kInfoEntry[] = CALDERIX_BUNDLE_RESOURCES "/INFO";
inline constexpr char kPlistEntry[] = "Contents/Info.plist";
inline constexpr char kUiName[] = "calderix-drive-ui";
inline constexpr char kUiEntry[] = CALDERIX_BUNDLE_MACOS "/calderix-drive-ui";

// Relative to the resources folder.
inline constexpr char kInfoName[] = "INFO";
inline constexpr char kPackageEntry[] = "package/calderix.vpk";

// The launcher's own bundle ("Calderix Drive.app") carries the client's
// package and its version file in its resources folder, as named above, and:
inline constexpr char kIconEntry[] = "images/ico_72_calderix.png";      // relative to the resources folder
inline constexpr char kPluginsFolder[] = "Contents/Frameworks/plugins"; // the only Qt plug-ins it loads
inline constexpr char kLevelFileEntry[] = "log/launcher.debug";         // its log levels

// The version file is INI text: one section, four keys, all optional.
inline constexpr char kVersionSection[] = "Version";
inline constexpr char kBuildKey[] = "build_version";
inline constexpr const char* kVersionKeys[] = {"major_version", "minor_version", kBuildKey,
                                               "icon_overlay_version"};

// The build number that the upgrade decision compares: the text read as
// atoi reads it (leading blanks and a sign, then digits up to the first
// other character; so "12b" is 12), 0 for empty text or no digits. Values
// beyond int saturate at its limits.
int BuildNumber(const std::string& text);

// False when text begins with a number beyond int, which BuildNumber
// clamps: the version file holds something no build ever had.
bool IsBuildNumberInRange(const std::string& text);

// True when text is nothing but a build number that BuildNumber reads as
// itself and that is above 0: plain decimal digits, at most INT_MAX. Sets
// *build then; leaves it alone otherwise.
bool IsPlainBuildNumber(const std::string& text, int* build);

} // namespace layout
