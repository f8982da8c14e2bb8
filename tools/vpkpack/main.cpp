// vpkpack: command line of the package builder.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

#include "vpkpack.h"

namespace {

const char kUsage[] =
    "usage: vpkpack [--format tar.zst|zip|tar.gz|tar.xz] [--info-out FILE] BUNDLE_DIR OUTPUT\n"
    "       vpkpack --check PACKAGE\n"
    "       vpkpack --check-bundle LAUNCHER_BUNDLE\n"
    "       vpkpack --print-build INFO\n";

enum ExitCode { kOk = 0, kFailed = 1, kUsageError = 2 };

int UsageError(const std::string& message)
{
    std::fprintf(stderr, "vpkpack: %s\n%s", message.c_str(), kUsage);
    return kUsageError;
}

int Failed(const vpkpack::Status& status)
{
    std::fprintf(stderr, "vpkpack: %s\n", status.Message().c_str());
    return kFailed;
}

// SOURCE_DATE_EPOCH, the usual way to ask for reproducible times; 0 when
// unset. False for a value that is not a plain non-negative number.
bool EntryTime(time_t* mtime)
{
    const char* text = std::getenv("SOURCE_DATE_EPOCH");
    *mtime = 0;
    if (text == nullptr || *text == '\0') {
        return true;
    }
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(text, &end, 10);
    if (errno != 0 || *end != '\0' || value < 0 || text[0] < '0' || text[0] > '9') {
        return false;
    }
    *mtime = static_cast<time_t>(value);
    return true;
}

// "--name value" or "--name=value"; advances i past what it used.
bool TakeValue(const std::vector<std::string>& args, size_t* i, const std::string& name, std::string* value)
{
    const std::string& arg = args[*i];
    if (arg.compare(0, name.size() + 1, name + "=") == 0) {
        *value = arg.substr(name.size() + 1);
        return true;
    }
    if (arg == name && *i + 1 < args.size()) {
        *value = args[++*i];
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    // Zip stores local times; with UTC they no longer depend on the machine.
    if (setenv("TZ", "UTC0", 1) != 0) {
        std::fprintf(stderr, "vpkpack: cannot set TZ: %s\n", std::strerror(errno));
        return kFailed;
    }
    tzset();

    const std::vector<std::string> args(argv + 1, argv + argc);
    vpkpack::PackOptions options;
    std::string check;
    std::string check_bundle;
    std::string print_build;
    std::vector<std::string> operands;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        std::string value;
        if (arg == "-h" || arg == "--help") {
            std::fputs(kUsage, stdout);
            return kOk;
        }
        if (arg.compare(0, 8, "--format") == 0) {
            if (!TakeValue(args, &i, "--format", &value) || !vpkpack::ParseFormat(value, &options.format)) {
                return UsageError("unknown format: '" + value + "'");
            }
        } else if (arg.compare(0, 10, "--info-out") == 0) {
            if (!TakeValue(args, &i, "--info-out", &value) || value.empty()) {
                return UsageError("--info-out needs a file name");
            }
            options.info_out = value;
        } else if (arg.compare(0, 14, "--check-bundle") == 0) {
            if (!TakeValue(args, &i, "--check-bundle", &value) || value.empty()) {
                return UsageError("--check-bundle needs a launcher bundle");
            }
            check_bundle = value;
        } else if (arg.compare(0, 7, "--check") == 0) {
            if (!TakeValue(args, &i, "--check", &value) || value.empty()) {
                return UsageError("--check needs a package");
            }
            check = value;
        } else if (arg.compare(0, 13, "--print-build") == 0) {
            if (!TakeValue(args, &i, "--print-build", &value) || value.empty()) {
                return UsageError("--print-build needs a version file");
            }
            print_build = value;
        } else if (arg == "--") {
            operands.insert(operands.end(), args.begin() + static_cast<long>(i) + 1, args.end());
            break;
        } else if (arg.size() > 1 && arg[0] == '-') {
            return UsageError("unknown option: '" + arg + "'");
        } else {
            operands.push_back(arg);
        }
    }

    vpkpack::PackageSummary summary;
    if (!print_build.empty()) {
        if (!operands.empty() || !check.empty()) {
            return UsageError("--print-build takes no other operands");
        }
        const vpkpack::Status status = vpkpack::ReadVersionFile(print_build, &summary.version);
        if (!status.ok()) {
            return Failed(status);
        }
        std::printf("%ld\n", summary.version.build);
        return kOk;
    }
    if (!check_bundle.empty()) {
        if (!operands.empty() || !check.empty()) {
            return UsageError("--check-bundle takes no other operands");
        }
        const vpkpack::Status status = vpkpack::CheckBundle(check_bundle, &summary);
        if (!status.ok()) {
            return Failed(status);
        }
        std::printf("vpkpack: '%s' is a valid launcher bundle of build %ld (package of %d entries)\n",
                    check_bundle.c_str(), summary.version.build, summary.entries);
        return kOk;
    }
    if (!check.empty()) {
        if (!operands.empty()) {
            return UsageError("--check takes no other operands");
        }
        const vpkpack::Status status = vpkpack::Check(check, &summary);
        if (!status.ok()) {
            return Failed(status);
        }
        std::printf("vpkpack: '%s' is a valid package of build %ld (%d entries)\n", check.c_str(),
                    summary.version.build, summary.entries);
        return kOk;
    }
    if (operands.size() != 2) {
        return UsageError("expected BUNDLE_DIR and OUTPUT");
    }
    if (!EntryTime(&options.mtime)) {
        return UsageError("SOURCE_DATE_EPOCH is not a number of seconds: '" +
                          std::string(std::getenv("SOURCE_DATE_EPOCH")) + "'");
    }
    const vpkpack::Status status = vpkpack::Pack(operands[0], operands[1], options, &summary);
    if (!status.ok()) {
        return Failed(status);
    }
    std::printf("vpkpack: wrote '%s' (%s, build %ld, %d entries)\n", operands[1].c_str(),
                vpkpack::FormatName(options.format), summary.version.build, summary.entries);
    return kOk;
}
