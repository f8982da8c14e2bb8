// The version files and the upgrade decision through the real service: the
// bytes become the INFO files of an installed copy in a scratch home, read
// by the service's own loader, and IsNeedUpgrade decides. No application
// object is needed: the loader that reads the user's copy finds it through
// HOME alone, so the package's version is read through the same loader from
// a second home and moved into place.
//
// Input layout: byte 0 bit 0 says whether the per-user executable exists,
// byte 1 where the rest splits into the package's INFO and the installed
// copy's INFO.
#include <climits>

#include <QDir>

#include "fuzz_support.h"
#include "mac-service.h"

namespace {

class ServiceProbe : public MacService {
public:
    VerInfo& Source() { return source_version; }
    VerInfo& Target() { return target_version; }
};

// A build's number as strtoll reads it; false where atoi's reading is left
// open (outside int).
bool BuildNumber(const ustring& text, long long& number)
{
    errno = 0;
    number = std::strtoll(text.c_str(), nullptr, 10);
    return errno == 0 && number >= INT_MIN && number <= INT_MAX;
}

std::string MakeHome(const std::string& home, const std::string& info, bool executable)
{
    const std::string contents = home + "/.Calderix/Calderix.app/Contents";
    FUZZ_CHECK(QDir().mkpath(QString::fromStdString(contents + "/Resources")) &&
                   QDir().mkpath(QString::fromStdString(contents + "/MacOS")),
               "cannot create %s", contents.c_str());
    fuzzsupport::WriteFile(contents + "/Resources/INFO", info.data(), info.size());
    if (executable) {
        fuzzsupport::WriteFile(contents + "/MacOS/calderix-drive-ui", "#!/bin/sh\n", 10);
    }
    return home;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir scratch;
    static unsigned long serial = 0;
    if (size < 2) {
        return 0;
    }
    const bool exe_exists = (data[0] & 1) != 0;
    const std::string rest(reinterpret_cast<const char*>(data) + 2, size - 2);
    const size_t split = rest.size() * data[1] / 256;

    // Each input gets homes of its own: QSettings caches a file's contents by
    // path and may miss a rewrite of the same size within the same moment.
    const std::string root = scratch.path() + "/" + std::to_string(++serial);
    const std::string package_home = MakeHome(root + "/package", rest.substr(0, split), false);
    const std::string user_home = MakeHome(root + "/user", rest.substr(split), exe_exists);

    setenv("HOME", user_home.c_str(), 1);
    ServiceProbe service;
    setenv("HOME", package_home.c_str(), 1);
    service.LoadSourceVersion();
    service.Target() = service.Source();
    service.Source() = VerInfo();
    setenv("HOME", user_home.c_str(), 1);
    service.LoadSourceVersion();

    const bool need = service.IsNeedUpgrade();
    long long target = 0;
    long long source = 0;
    if (BuildNumber(service.Target().build_version, target) &&
        BuildNumber(service.Source().build_version, source)) {
        FUZZ_CHECK(need == (target > source || !exe_exists),
                   "IsNeedUpgrade is %d for package build %lld, installed build %lld, executable %s", need,
                   target, source, exe_exists ? "present" : "missing");
    }
    FUZZ_CHECK(service.PerUserBinPathExist() == exe_exists,
               "PerUserBinPathExist is wrong, the executable is %s", exe_exists ? "present" : "missing");
    nftw(root.c_str(), fuzzsupport::RemoveEntry, 16, FTW_DEPTH | FTW_PHYS);
    return 0;
}
