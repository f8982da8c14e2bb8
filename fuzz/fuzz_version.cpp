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

#include "fuzz_support.h"
#include "mac-service.h"

namespace {

struct ServiceProbe : MacService {
    using MacService::source_version;
    using MacService::target_version;
};

// A build's number as strtoll reads it; false where atoi's reading is left
// open (outside int).
bool BuildNumber(const ustring& text, long long& number)
{
    errno = 0;
    number = std::strtoll(text.c_str(), nullptr, 10);
    return errno == 0 && number >= INT_MIN && number <= INT_MAX;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2) {
        return 0;
    }
    const bool exe_exists = (data[0] & 1) != 0;
    const std::string rest(reinterpret_cast<const char*>(data) + 2, size - 2);
    const size_t split = rest.size() * data[1] / 256;
    // Each input gets homes of its own: QSettings caches a file's contents by
    // path and may miss a rewrite of the same size within the same moment.
    const testsupport::TempDir root("calderix-fuzz-version");
    const auto enter_home = [&root](const char* name, const std::string& info, bool executable) {
        const std::string contents = root.path() + name + "/.Calderix/Calderix.app/Contents";
        fuzzsupport::WriteFile(contents + "/Resources/INFO", info);
        if (executable) {
            fuzzsupport::WriteFile(contents + "/MacOS/calderix-drive-ui", "#!/bin/sh\n");
        }
        FUZZ_CHECK(setenv("HOME", (root.path() + name).c_str(), 1) == 0, "cannot set HOME");
    };
    enter_home("/user", rest.substr(split), exe_exists);
    ServiceProbe service;
    enter_home("/package", rest.substr(0, split), false);
    service.LoadSourceVersion();
    service.target_version = service.source_version;
    service.source_version = VerInfo();
    setenv("HOME", (root / "user").c_str(), 1);
    service.LoadSourceVersion();

    const bool need = service.IsNeedUpgrade(), exe_found = service.PerUserBinPathExist();
    long long target = 0, source = 0;
    FUZZ_CHECK(exe_found == exe_exists && (!BuildNumber(service.target_version.build_version, target) ||
                                           !BuildNumber(service.source_version.build_version, source) ||
                                           need == (target > source || !exe_exists)),
               "IsNeedUpgrade is %d and PerUserBinPathExist %d for package build %lld, installed build %lld, "
               "executable %s",
               need, exe_found, target, source, exe_exists ? "present" : "missing");
    return 0;
}
