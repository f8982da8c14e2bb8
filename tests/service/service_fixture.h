// Helpers for the installation-service tests: packages written with
// libarchive, trees captured as text, the service's log lines, and
// processes found by the file they run.
#pragma once

#include <map>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "test_support.h"

namespace servicetest {

// The test name of a table row: its name.
template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

enum class PackageFormat { Tar, TarGz, Zip };

struct PackageEntry {
    std::string path; // relative, folders without a trailing "/"
    std::string data;
    bool folder = false;
    mode_t mode = 0644;
};
PackageEntry FileEntry(const std::string& path, const std::string& data, mode_t mode = 0644);
PackageEntry FolderEntry(const std::string& path);

// Writes entries, in order, as an archive of the given format at path.
::testing::AssertionResult WritePackage(const std::string& path, PackageFormat format,
                                        const std::vector<PackageEntry>& entries);
// size bytes that no compressor shrinks.
std::string NoiseBytes(size_t size);

// A tree as text, by path relative to root: "dir", "file x|- <content>" (x
// when any execute bit is set) or "link <target>". Empty when root is
// missing; a file at root itself is listed under "".
using Tree = std::map<std::string, std::string>;
Tree Snapshot(const std::string& root);
// The tree that extracting entries gives.
Tree TreeOf(const std::vector<PackageEntry>& entries);

// The log's lines from the service's sources ("calderix-service",
// "mac/mac-service") without their timestamps and with the source line
// numbers shown as "%d", as in the formats; each path of names, in order,
// is shown as its name.
std::vector<std::string> ServiceLines(const std::string& log_text,
                                      const std::vector<std::pair<std::string, std::string>>& names = {});

// Waits, up to a generous bound, for path to hold a "pid=<n>" line and
// returns n, or -1.
pid_t WaitForPidFile(const std::string& path);
// The value of key in a key=value text, or "".
std::string ValueOf(const std::string& text, const std::string& key);
// Processes (zombies excluded) that run the file at exe.
std::vector<pid_t> ProcessesRunning(const std::string& exe);
void KillAllRunning(const std::string& exe);

// Starts argv[0] as uid/gid (through setpriv, which execs it in place, so
// the pid is the program's) with the test's environment plus changes.
pid_t StartAs(uid_t uid, gid_t gid, const std::vector<std::string>& argv,
              const std::vector<testsupport::EnvChange>& env);

} // namespace servicetest
