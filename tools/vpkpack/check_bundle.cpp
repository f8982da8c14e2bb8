// Checking a whole launcher bundle ("Calderix Drive.app") as it is shipped:
// the files the launcher needs at start, the package it installs, and that
// the bundle, its version file and its package all name the same build. A
// version file that disagrees with the package would have the launcher
// install the package again on every start.
#include <string>

#include "vpkpack_p.h"

namespace vpkpack {

namespace {

const Entry* Find(const std::vector<Entry>& entries, const std::string& name)
{
    for (const Entry& entry : entries) {
        if (entry.name == name) {
            return &entry;
        }
    }
    return nullptr;
}

// The regular file name of the bundle, read whole.
Status ReadBundleFile(const std::string& bundle, const std::vector<Entry>& entries, const std::string& name,
                      std::string* data)
{
    const Entry* entry = Find(entries, name);
    if (entry == nullptr) {
        return Refuse(Error::NotFound, name);
    }
    if (entry->type != EntryType::File) {
        return Refuse(Error::NotRegularFile, name);
    }
    return platform::ReadSmallFile(bundle + "/" + name, name, kSmallFileLimit, data);
}

// The executable that the property list names: a plain name, for an
// executable regular file in Contents/MacOS.
Status CheckLauncherExecutable(const std::vector<Entry>& entries, const std::string& plist)
{
    std::string name;
    Status status = ReadPlistString(plist, "CFBundleExecutable", &name);
    if (!status.ok()) {
        return status;
    }
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos) {
        return Refuse(Error::BadInfoPlist, kPlistEntry, "CFBundleExecutable is '" + name + "'");
    }
    const std::string exe = std::string(kMacOSFolder) + "/" + name;
    const Entry* entry = Find(entries, exe);
    if (entry == nullptr) {
        return Refuse(Error::NotFound, exe);
    }
    if (entry->type != EntryType::File) {
        return Refuse(Error::NotRegularFile, exe);
    }
    return entry->executable ? Status() : Refuse(Error::NotExecutable, exe);
}

// At least one file among the platform plug-ins: without one the launcher
// cannot show its dialog, nor even start offscreen.
Status CheckPlatformPlugins(const std::vector<Entry>& entries)
{
    const std::string folder = std::string(layout::kPluginsFolder) + "/platforms";
    for (const Entry& entry : entries) {
        if (entry.type == EntryType::File && entry.name.compare(0, folder.size() + 1, folder + "/") == 0) {
            return {};
        }
    }
    return Refuse(Error::NoPlatformPlugin, folder);
}

} // namespace

Status CheckBundle(const std::string& bundle, PackageSummary* summary)
{
    std::vector<Entry> entries;
    Status status = platform::ScanTree(bundle, &entries);
    std::string plist;
    if (status.ok()) {
        status = ReadBundleFile(bundle, entries, kPlistEntry, &plist);
    }
    if (status.ok()) {
        status = CheckLauncherExecutable(entries, plist);
    }
    std::string info;
    if (status.ok()) {
        status = ReadBundleFile(bundle, entries, kInfoEntry, &info);
    }
    VersionInfo version;
    if (status.ok()) {
        status = ParseVersionFile(info, &version);
    }
    std::string bundle_version;
    if (status.ok()) {
        status = ReadPlistString(plist, "CFBundleVersion", &bundle_version);
    }
    if (status.ok() && bundle_version != std::to_string(version.build)) {
        status =
            Refuse(Error::BuildMismatch, kPlistEntry,
                   "CFBundleVersion is '" + bundle_version + "', INFO says " + std::to_string(version.build));
    }
    const std::string icon = std::string(layout::kResourcesFolder) + "/" + layout::kIconEntry;
    if (status.ok() && Find(entries, icon) == nullptr) {
        status = Refuse(Error::NotFound, icon);
    }
    if (status.ok()) {
        status = CheckPlatformPlugins(entries);
    }
    const std::string package = std::string(layout::kResourcesFolder) + "/" + layout::kPackageEntry;
    PackageSummary found;
    if (status.ok()) {
        status = Check(bundle + "/" + package, &found);
        // The package's own entries are named as inside the package.
        if (!status.ok() && status.entry.compare(0, bundle.size(), bundle) != 0) {
            status.entry = package + ": " + status.entry;
        }
    }
    if (status.ok() && found.version.build != version.build) {
        status = Refuse(Error::BuildMismatch, kInfoEntry,
                        "INFO says " + std::to_string(version.build) + ", the package " +
                            std::to_string(found.version.build));
    }
    if (status.ok() && summary != nullptr) {
        *summary = found;
    }
    return status;
}

} // namespace vpkpack
