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
#include <cstdint>
#include <cstdlib>
#include <string>

#include "fuzz_support.h"
#include "launch_services.h"
#include "mac-service.h"

namespace {

using fuzzsupport::Show;

class NoLaunch : public platform::LaunchServices {
public:
    int Unregister(const std::string&) override { return 0; }
    int Open(const std::string&) override { return 0; }
};

class ServiceProbe : public MacService {
public:
    explicit ServiceProbe(platform::LaunchServices& launch) : MacService(launch) {}
    VerInfo& Source() { return source_version; }
    VerInfo& Target() { return target_version; }
};

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

std::string ReadAll(const std::string& path)
{
    std::string out;
    FILE* fp = std::fopen(path.c_str(), "rb");
    if (fp == nullptr) return "<missing>";
    char buf[4096];
    size_t n;
    while ((n = std::fread(buf, 1, sizeof buf, fp)) > 0) out.append(buf, n);
    std::fclose(fp);
    return out;
}

// atoi's reading, in a wider type: false when the number does not fit an
// int, where the reading is left open.
bool BuildNumber(const std::string& text, long long& number)
{
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
    long long n = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        n = n * 10 + (text[i] - '0');
        if (n > (1LL << 32)) return false;
    }
    number = negative ? -n : n;
    return number >= INT_MIN && number <= INT_MAX;
}

// Each input gets homes of its own: QSettings caches a file's contents by
// path and may miss a rewrite of the same size within the same moment.
std::string Bundle(const std::string& home)
{
    return home + "/.Calderix/Calderix.app";
}

std::string MakeHome(const std::string& root, const std::string& name, const std::string& info)
{
    const std::string home = root + "/" + name;
    fuzzsupport::MakeDirs(Bundle(home) + "/Contents/Resources");
    fuzzsupport::WriteFile(Bundle(home) + "/Contents/Resources/INFO", info.data(), info.size());
    return home;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir scratch;
    static unsigned long serial = 0;
    static NoLaunch launch;
    if (size < 2) {
        return 0;
    }
    const bool exe_exists = (data[0] & 1) != 0;
    const std::string rest(reinterpret_cast<const char*>(data) + 2, size - 2);
    const size_t split = rest.size() * data[1] / 256;
    const std::string target_info = rest.substr(0, split);
    const std::string source_info = rest.substr(split);

    const std::string root = scratch.path() + "/" + std::to_string(++serial);
    const std::string package_home = MakeHome(root, "package", target_info);
    const std::string user_home = MakeHome(root, "user", source_info);
    if (exe_exists) {
        fuzzsupport::MakeDirs(Bundle(user_home) + "/Contents/MacOS");
        fuzzsupport::WriteFile(Bundle(user_home) + "/Contents/MacOS/calderix-drive-ui", "#!/bin/sh\n", 10);
    }

    setenv("HOME", user_home.c_str(), 1);
    ServiceProbe service(launch);
    setenv("HOME", package_home.c_str(), 1);
    service.LoadSourceVersion();
    service.Target() = service.Source();
    service.Source() = VerInfo();
    setenv("HOME", user_home.c_str(), 1);
    service.LoadSourceVersion();

    const bool need = service.IsNeedUpgrade();
    long long target = 0;
    long long source = 0;
    const std::string target_build = Text(service.Target().build_version);
    const std::string source_build = Text(service.Source().build_version);
    if (BuildNumber(target_build, target) && BuildNumber(source_build, source)) {
        const bool want = target > source || !exe_exists;
        FUZZ_CHECK(need == want,
                   "IsNeedUpgrade is %d for package build %s, installed build %s, executable %s; expected %d",
                   need, Show(target_build).c_str(), Show(source_build).c_str(), exe_exists ? "present" : "missing",
                   want);
    }
    FUZZ_CHECK(service.PerUserBinPathExist() == exe_exists, "PerUserBinPathExist is %d, the executable is %s",
               service.PerUserBinPathExist(), exe_exists ? "present" : "missing");

    // The version files are only read.
    const std::string after_target = ReadAll(Bundle(package_home) + "/Contents/Resources/INFO");
    const std::string after_source = ReadAll(Bundle(user_home) + "/Contents/Resources/INFO");
    FUZZ_CHECK(after_target == target_info, "the package's INFO changed from %s to %s", Show(target_info).c_str(),
               Show(after_target).c_str());
    FUZZ_CHECK(after_source == source_info, "the installed INFO changed from %s to %s", Show(source_info).c_str(),
               Show(after_source).c_str());

    nftw(root.c_str(), fuzzsupport::RemoveEntry, 16, FTW_DEPTH | FTW_PHYS);
    return 0;
}
