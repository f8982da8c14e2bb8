// Service: the per-user installation service the launcher's worker drives.
//
// It owns the state of one run (the user's bundle path and the two versions
// the upgrade decision compares) and implements the platform-neutral steps;
// the platform subclass supplies stopping and launching the user interface,
// the decision and the upgrade sequence.
#pragma once

#include <string>

#include "ustring.h"

// The four values of a bundle's "INFO" file, as text.
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;
    ustring icon_overlay_version;
};

class Service {
public:
    Service();
    virtual ~Service();
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    virtual void StopService() = 0;
    virtual void SetTimeout(int value);
    // 0 when the user's installation is ready, anything else on failure.
    virtual int HandlePackageUpgrade() = 0;
    virtual void PostUpgrade() = 0;
    virtual void PreUpgrade() = 0;
    virtual bool IsNeedUpgrade() = 0;
    // Extracts the bundle's package into app_path: 0, or negative.
    virtual int ExtractPackage();
    virtual void LoadSourceVersion();
    virtual void LoadTargetVersion();
    // Backs up the old bundle, extracts, rolls back on failure: 0 or -1.
    virtual int PrepareUserEnv();

    void RemoveAgedFolders();
    int FSCopyPath(const ustring& source, const ustring& destination);

    // Paths of the launcher's bundle (read only) and of the user's
    // installation. Each call composes its path afresh; the bundle paths
    // need the application object.
    static ustring GetUserInstallPath();
    static ustring GetRootCalderixInstallPath();
    static ustring GetRootCalderixResourceInstallPath();
    static ustring GetUserCalderixInstallPath();
    static ustring GetUserCalderixAppInstallPath();
    static ustring GetUserCalderixDataInstallPath();

    // Whether path, as the system reports a running executable's path (every
    // link resolved), lies below the user's bundle or one of its backup
    // names.
    static bool IsInUserBundle(const std::string& path);

protected:
    int timeout;
    ustring app_path;
    VerInfo target_version;
    VerInfo source_version;
};
