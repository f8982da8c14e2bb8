#include "calderix-service.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>

#include "bundle_layout.h"
#include "extractor.h"
#include "file-op.h"
#include "log.h"
#include "regular_file.h"
#include "tree_walk.h"

#define LOG_SOURCE "calderix-service"
#define LOG_COMPONENT log_component
static const ustring log_component("service_debug");

namespace {

// The user's copy in the user installation folder.
const char kUserBundleName[] = "Calderix.app";

// The upgrade tries at most this many backup names before it gives up.
const int kBackupTries = 10;

// Removes the copy at path whatever its folders' modes: a failed extraction
// can leave a folder the user cannot write in the new copy (the disk writer
// applies the package's folder modes when it closes, and other programs of
// the user may change them meanwhile), and FSRemove stops at such a folder,
// which would keep the backup from being renamed back. Results are not
// examined: what cannot be removed stays for the next run.
void RemoveCopy(const ustring& path)
{
    FSMakeRemovable(path);
    FSRemove(path, false);
}

ustring FromQString(const QString& s)
{
    return ustring(s.toUtf8().constData());
}

// The name the old bundle takes on backup try n: path + "_tmp", followed by
// n in decimal from the second try on.
ustring GetAppBackupDir(const ustring& path, int n)
{
    const ustring base = path + "_tmp";
    if (n == 0) {
        return base;
    }
    char suffix[8];
    if (snprintf(suffix, sizeof suffix, "%d", n) < 0) {
        LOG_MSG(ERROR, "snprintf failed (continuing without postfix)");
        suffix[0] = '\0';
    }
    return base + suffix;
}

// Copies the "Version" values of the INI file at path into info, key by key;
// a key the file lacks (or a file that cannot be read) leaves its field as
// it was. Returns false, reading nothing, when the file is no regular file
// of at most a small file's size: the INI reader would wait forever on a
// FIFO and read a device or a huge file to its end. Reads only.
bool ReadVersionFile(const ustring& path, VerInfo& info)
{
    std::string bytes;
    if (platform::ReadRegularFile(path.c_str(), platform::kSmallFileLimit, bytes) != 0) {
        return false;
    }
    // In the order of layout::kVersionKeys.
    static ustring VerInfo::*const fields[] = {&VerInfo::major_version, &VerInfo::minor_version,
                                               &VerInfo::build_version, &VerInfo::icon_overlay_version};
    static_assert(std::size(fields) == std::size(layout::kVersionKeys), "one field per version key");
    QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
    settings.beginGroup(QString::fromLatin1(layout::kVersionSection));
    for (size_t i = 0; i < std::size(fields); ++i) {
        const QString key = QString::fromLatin1(layout::kVersionKeys[i]);
        if (settings.contains(key)) {
            info.*fields[i] = FromQString(settings.value(key).toString());
        }
    }
    settings.endGroup();
    return true;
}

// Whether the extracted copy at bundle can run: its user-interface
// executable a regular file with an execute bit, its "INFO" a regular file
// with a build number. An archive without them extracts fine, and would
// cost the user their working copy once the backup is gone.
bool IsCompleteCopy(const ustring& bundle)
{
    const ustring ui = bundle + "/" + layout::kUiEntry;
    struct stat st;
    if (stat(ui.c_str(), &st) != 0 || !S_ISREG(st.st_mode) || (st.st_mode & 0111) == 0) {
        return false;
    }
    VerInfo info;
    return ReadVersionFile(bundle + "/" + layout::kInfoEntry, info) &&
           layout::BuildNumber(info.build_version.c_str()) > 0;
}

} // namespace

Service::Service() : timeout(0) {}

Service::~Service() = default;

void Service::SetTimeout(int value)
{
    timeout = value;
}

// Returns 0 with the package's entries below the user's bundle folder (which
// it creates, parents included), -1 when that folder cannot be created or
// the extracted copy lacks what it needs to run, or the extractor's result;
// a failed extraction leaves what it wrote.
int Service::ExtractPackage()
{
    const ustring archive_path = GetRootCalderixResourceInstallPath() + "/" + layout::kPackageEntry;
    const ustring destination = GetUserCalderixAppInstallPath();
    if (FSMKDir(destination, true) < 0) {
        LOG_MSG(ERROR, "failed to create folder: '%s'\n", destination.c_str());
        return -1;
    }
    LOG_MSG(INFO, "extract package: '%s' -> '%s'\n", archive_path.c_str(), destination.c_str());
    Extractor extractor;
    extractor.dest_dir = destination;
    extractor.archive_path = archive_path;
    extractor.check_bundle = true;
    const int result = extractor.Extract();
    if (result == 0 && !IsCompleteCopy(destination)) {
        LOG_MSG(ERROR, "extracted copy is incomplete: '%s'\n", destination.c_str());
        return -1;
    }
    return result;
}

// Fills source_version from the installed copy's "INFO"; without that file
// the record keeps its values and only the absence is logged.
void Service::LoadSourceVersion()
{
    const ustring path = GetUserCalderixAppInstallPath() + "/" + layout::kInfoEntry;
    if (!IsFileExist(path, false)) {
        LOG_MSG(INFO, "source does not exist\n");
        return;
    }
    ReadVersionFile(path, source_version);
    LOG_MSG(INFO, "source_version = (%s, %s, %s, %s)\n", source_version.major_version.c_str(),
            source_version.minor_version.c_str(), source_version.build_version.c_str(),
            source_version.icon_overlay_version.c_str());
}

// Fills target_version from the launcher bundle's "INFO". A missing file
// reads as one without keys, so the line is logged in every case.
void Service::LoadTargetVersion()
{
    const ustring path = GetRootCalderixResourceInstallPath() + "/" + layout::kInfoName;
    ReadVersionFile(path, target_version);
    LOG_MSG(INFO, "target_version = (%s, %s, %s, %s)\n", target_version.major_version.c_str(),
            target_version.minor_version.c_str(), target_version.build_version.c_str(),
            target_version.icon_overlay_version.c_str());
}

// Returns 0 with the package extracted into app_path, on disk, and the
// backup names up to the one used removed (all kept when the new copy could
// not be synced to disk); -1 with the old bundle where it was when no
// backup name was free, or moved back after a failed extraction. Without an
// old bundle a failed extraction leaves what it wrote.
int Service::PrepareUserEnv()
{
    const ustring bundle = app_path;
    ustring backup;
    int used = 0;

    if (IsFileExist(bundle, false)) {
        bool moved = false;
        for (used = 0; used < kBackupTries; ++used) {
            backup = GetAppBackupDir(bundle, used);
            if (FSRename(bundle, backup, false) == 0) {
                moved = true;
                break;
            }
            LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'\n", bundle.c_str(), backup.c_str());
        }
        if (!moved) {
            LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting\n", bundle.c_str(),
                    backup.c_str());
            return -1;
        }
    }

    if (ExtractPackage() != 0) {
        if (backup.empty()) {
            LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback\n");
            return -1;
        }
        LOG_MSG(ERROR, "Failed to extract package, rollback to old installation\n");
        // Best effort: if either step fails there is nothing better to put
        // in place, and the backup stays under its name for the next run.
        RemoveCopy(bundle);
        FSRename(backup, bundle, false);
        return -1;
    }

    LOG_MSG(INFO, "user installation is ready, removing backup app\n");
    // Until now the new copy may be in memory only: a power cut after the
    // backup is gone could leave the user with neither. Without that
    // certainty the backup stays, and the next upgrade clears it.
    if (!backup.empty() && FSSyncFileSystem(FSParentPath(bundle)) != 0) {
        LOG_MSG(ERROR, "new installation may not be on disk, keeping backup '%s'\n", backup.c_str());
        return 0;
    }
    for (int j = 0; j <= used; ++j) {
        RemoveCopy(GetAppBackupDir(bundle, j));
    }
    return 0;
}

// Removes the user installation's "app" folder, a leftover of older
// layouts, whether or not it is there; failures are of no consequence.
void Service::RemoveAgedFolders()
{
    const ustring path = GetUserCalderixInstallPath() + "/app";
    LOG_MSG(INFO, "removing aged app folder %s\n", path.c_str());
    FSRemove(path, false);
}

namespace {

// FSCopyPath's copy of a folder tree: each folder is created, then filled
// in listing order; a file (or anything else but a folder) is copied with
// FSCopy. The first failure stops the copy and is reported for the failing
// entry and each folder above it; a folder that cannot be listed stays
// empty and the copy goes on.
class CopyTree : public treewalk::Visitor {
public:
    explicit CopyTree(const ustring& destination) : destination(destination) {}

    treewalk::Next Enter(const treewalk::Entry& entry) override
    {
        const ustring to = To(entry);
        if (!S_ISDIR(entry.st.st_mode)) {
            return FSCopy(entry.path.c_str(), to, false) < 0 ? treewalk::Next::Stop : treewalk::Next::Go;
        }
        if (!entry.relative.empty()) {
            LOG_MSG(DEBUG, "copy from '%s' to '%s'\n", entry.path.c_str(), to.c_str());
        }
        if (FSMKDir(to, true) < 0) {
            LOG_MSG(ERROR, "FSCopyPath: failed to create dest folder '%s'\n", to.c_str());
            return treewalk::Next::Stop;
        }
        return treewalk::Next::Go;
    }
    treewalk::Next Failed(const treewalk::Entry& entry, treewalk::Step step, int error) override
    {
        if (step == treewalk::Step::Stat) {
            LOG_MSG(ERROR, "FSCopyPath: failed to stat source '%s'\n", entry.path.c_str());
            return treewalk::Next::Stop;
        }
        FSReportDirFailure(entry.path.c_str(), step == treewalk::Step::Read, error);
        if (step == treewalk::Step::Open) {
            LOG_MSG(WARNING, "FSCopyPath: failed to create handle  for src '%s' failed\n",
                    entry.path.c_str());
        }
        return treewalk::Next::Go;
    }
    void Stopped(const treewalk::Entry& entry) override
    {
        if (!entry.relative.empty()) {
            LOG_MSG(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'\n", entry.path.c_str(),
                    To(entry).c_str());
        }
    }

private:
    ustring To(const treewalk::Entry& entry) const
    {
        return entry.relative.empty() ? destination : destination + "/" + entry.relative.c_str();
    }

    const ustring& destination;
};

} // namespace

// Copies the file or tree at source to destination, entry by entry in
// listing order. Returns 0, or -1 at the first failure with what was copied
// so far left in place. A folder that cannot be listed gives an empty
// destination folder and 0.
int Service::FSCopyPath(const ustring& source, const ustring& destination)
{
    LOG_MSG(DEBUG, "copy from '%s' to '%s'\n", source.c_str(), destination.c_str());
    _FILE_INFO_tag info;
    if (FSStat(source, info, false) < 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to stat source '%s'\n", source.c_str());
        return -1;
    }
    if (!info.exist) {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' does not exist\n", source.c_str());
        return -1;
    }
    if (info.type != FS_TYPE_DIR) {
        // FSCopy has logged why; the caller still learns that nothing usable
        // arrived.
        return FSCopy(source, destination, false) < 0 ? -1 : 0;
    }
    CopyTree copy(destination);
    return treewalk::Walk(source.c_str(), copy) ? 0 : -1;
}

bool Service::IsInUserBundle(const std::string& path)
{
    const ustring install = GetUserCalderixInstallPath();
    char real[PATH_MAX];
    const ustring folder = realpath(install.c_str(), real) != nullptr ? ustring(real) : install;
    const ustring bundle = folder + "/" + kUserBundleName;
    for (int n = -1; n < kBackupTries; ++n) {
        const ustring prefix = (n < 0 ? bundle : GetAppBackupDir(bundle, n)) + "/";
        if (path.compare(0, prefix.length(), prefix.c_str()) == 0) {
            return true;
        }
    }
    return false;
}

ustring Service::GetUserInstallPath()
{
    return FromQString(QDir::homePath());
}

ustring Service::GetRootCalderixInstallPath()
{
    // The executable lies in <bundle>/Contents/MacOS.
    return FromQString(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../.."));
}

ustring Service::GetRootCalderixResourceInstallPath()
{
    return GetRootCalderixInstallPath() + "/" + layout::kResourcesFolder;
}

ustring Service::GetUserCalderixInstallPath()
{
    return GetUserInstallPath() + "/" + ".Calderix";
}

ustring Service::GetUserCalderixAppInstallPath()
{
    return GetUserCalderixInstallPath() + "/" + kUserBundleName;
}

ustring Service::GetUserCalderixDataInstallPath()
{
    return GetUserCalderixInstallPath() + "/" + "data";
}
