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
    "usage: vpkpack [--format tar.zst|zip|tar.gz|tar.xz] [--level N] [--threads N] [--info-out FILE]\n"
    "               BUNDLE_DIR OUTPUT\n"
    "       vpkpack --check PACKAGE\n"
    "       vpkpack --check-bundle LAUNCHER_BUNDLE\n"
    "       vpkpack --print-build INFO\n"
    "       vpkpack --version\n";

enum ExitCode { kOk = 0, kFailed = 1, kUsageError = 2 };

int UsageError(const std::string& message)
{
    std::fprintf(stderr, "vpkpack: %s\n%s", message.c_str(), kUsage);
    return kUsageError;
}

// One line for the failure, or one per refusal when the rules refused.
int Failed(const vpkpack::Status& status, const std::vector<vpkpack::Status>& refused)
{
    for (const vpkpack::Status& each : refused.empty() ? std::vector<vpkpack::Status>{status} : refused) {
        std::fprintf(stderr, "vpkpack: %s\n", each.Message().c_str());
    }
    return kFailed;
}

// A decimal number from min to max, and nothing else.
bool ParseNumber(const std::string& text, long min, long max, long* number)
{
    if (text.empty() || text[0] < '0' || text[0] > '9') {
        return false;
    }
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text.c_str(), &end, 10);
    if (errno != 0 || *end != '\0' || value < min || value > max) {
        return false;
    }
    *number = value;
    return true;
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

// The options that take a value, given as "--name value" or "--name=value".
struct Arguments {
    std::string format;
    std::string level;
    std::string threads;
    std::string info_out;
    std::string check;
    std::string check_bundle;
    std::string print_build;
    std::vector<std::string> operands;
};

// Fills *parsed from args. Returns kOk, or the exit code of a usage error
// it has reported; -1 after printing what --help or --version asks for.
int ParseArguments(const std::vector<std::string>& args, Arguments* parsed)
{
    const struct {
        const char* name;
        std::string Arguments::*value;
        const char* needs; // what the value is, for the message when it is missing
    } options[] = {
        {"--format", &Arguments::format, "a format"},
        {"--level", &Arguments::level, "a number"},
        {"--threads", &Arguments::threads, "a number"},
        {"--info-out", &Arguments::info_out, "a file name"},
        {"--check", &Arguments::check, "a package"},
        {"--check-bundle", &Arguments::check_bundle, "a launcher bundle"},
        {"--print-build", &Arguments::print_build, "a version file"},
    };
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == "-h" || arg == "--help") {
            std::fputs(kUsage, stdout);
            return -1;
        }
        if (arg == "--version") {
            std::printf("vpkpack %s\n", vpkpack::VersionText().c_str());
            return -1;
        }
        if (arg == "--") {
            parsed->operands.insert(parsed->operands.end(), args.begin() + static_cast<long>(i) + 1,
                                    args.end());
            break;
        }
        if (arg.size() < 2 || arg[0] != '-') {
            parsed->operands.push_back(arg);
            continue;
        }
        const std::string name = arg.substr(0, arg.find('='));
        bool known = false;
        for (const auto& option : options) {
            if (name != option.name) {
                continue;
            }
            known = true;
            std::string& value = parsed->*option.value;
            if (name.size() < arg.size()) {
                value = arg.substr(name.size() + 1);
            } else if (i + 1 < args.size()) {
                value = args[++i];
            } else {
                value.clear();
            }
            if (value.empty()) {
                return UsageError(name + " needs " + option.needs);
            }
        }
        if (!known) {
            return UsageError("unknown option: '" + arg + "'");
        }
    }
    return kOk;
}

// The packing options the arguments ask for. The format comes from
// --format, else from the output's name, else it is tar.zst; a --format
// that the output's name contradicts is refused, since the file would be
// read for what its name says. Returns kOk or a reported usage error.
int PackOptionsFrom(const Arguments& args, const std::string& output, vpkpack::PackOptions* options)
{
    vpkpack::Format named = vpkpack::Format::TarZst;
    const bool has_named = vpkpack::FormatOfName(output, &named);
    if (!args.format.empty()) {
        if (!vpkpack::ParseFormat(args.format, &options->format)) {
            return UsageError("unknown format: '" + args.format + "'");
        }
        if (has_named && named != options->format) {
            return UsageError(std::string("--format ") + vpkpack::FormatName(options->format) +
                              " does not match the output's name '" + output + "' (" +
                              vpkpack::FormatName(named) + ")");
        }
    } else if (has_named) {
        options->format = named;
    }
    long number = 0;
    if (!args.level.empty() || !args.threads.empty()) {
        if (options->format != vpkpack::Format::TarZst) {
            return UsageError("--level and --threads apply to tar.zst only");
        }
    }
    if (!args.level.empty()) {
        if (!ParseNumber(args.level, vpkpack::kMinZstdLevel, vpkpack::kMaxZstdLevel, &number)) {
            return UsageError("--level must be a number from " + std::to_string(vpkpack::kMinZstdLevel) +
                              " to " + std::to_string(vpkpack::kMaxZstdLevel) + ": '" + args.level + "'");
        }
        options->level = static_cast<int>(number);
    }
    if (!args.threads.empty()) {
        if (!ParseNumber(args.threads, 1, 256, &number)) {
            return UsageError("--threads must be a number from 1 to 256: '" + args.threads + "'");
        }
        options->threads = static_cast<int>(number);
    }
    options->info_out = args.info_out;
    if (!EntryTime(&options->mtime)) {
        return UsageError("SOURCE_DATE_EPOCH is not a number of seconds: '" +
                          std::string(std::getenv("SOURCE_DATE_EPOCH")) + "'");
    }
    return kOk;
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

    Arguments args;
    const int parsed = ParseArguments(std::vector<std::string>(argv + 1, argv + argc), &args);
    if (parsed != kOk) {
        return parsed < 0 ? kOk : parsed;
    }
    const int modes = !args.check.empty() + !args.check_bundle.empty() + !args.print_build.empty();
    if (modes > 1 || (modes == 1 && !args.operands.empty())) {
        return UsageError("--check, --check-bundle and --print-build each take one operand and nothing else");
    }

    vpkpack::PackageSummary summary;
    vpkpack::Status status;
    std::vector<vpkpack::Status> refused;
    if (!args.print_build.empty()) {
        status = vpkpack::ReadVersionFile(args.print_build, &summary.version);
        if (status.ok()) {
            std::printf("%ld\n", summary.version.build);
        }
    } else if (!args.check_bundle.empty()) {
        status = vpkpack::CheckBundle(args.check_bundle, &summary);
        if (status.ok()) {
            std::printf("vpkpack: '%s' is a valid launcher bundle of build %ld (package of %d entries)\n",
                        args.check_bundle.c_str(), summary.version.build, summary.entries);
        }
    } else if (!args.check.empty()) {
        status = vpkpack::Check(args.check, &summary, &refused);
        if (status.ok()) {
            std::printf("vpkpack: '%s' is a valid package of build %ld (%d entries)\n", args.check.c_str(),
                        summary.version.build, summary.entries);
        }
    } else {
        if (args.operands.size() != 2) {
            return UsageError("expected BUNDLE_DIR and OUTPUT");
        }
        vpkpack::PackOptions options;
        const int usable = PackOptionsFrom(args, args.operands[1], &options);
        if (usable != kOk) {
            return usable;
        }
        status = vpkpack::Pack(args.operands[0], args.operands[1], options, &summary, &refused);
        if (status.ok()) {
            std::printf("vpkpack: wrote '%s' (%s, build %ld, %d entries)\n", args.operands[1].c_str(),
                        vpkpack::FormatName(options.format), summary.version.build, summary.entries);
        }
    }
    return status.ok() ? kOk : Failed(status, refused);
}
