// Reading, hand-writing and extracting packages for the tool tests, with
// libarchive directly so that nothing here shares code with vpkpack.
#pragma once

#include <ctime>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

#include <gtest/gtest.h>

struct StoredEntry {
    std::string name;
    unsigned type = 0100000; // AE_IFREG
    mode_t perm = 0644;
    std::string data;
    std::string symlink;
    std::string hardlink;
    time_t mtime = 0;
    long long uid = 0;
    long long gid = 0;
    std::string uname;
    bool atime_set = false;
};

StoredEntry StoredFile(const std::string& name, const std::string& data, mode_t perm = 0644);
StoredEntry StoredFolder(const std::string& name);
StoredEntry StoredLink(const std::string& name, const std::string& target);

// Every entry of a package, in stored order.
::testing::AssertionResult ReadPackage(const std::string& path, std::vector<StoredEntry>* entries);
// A pax tar of the entries, in the order given.
::testing::AssertionResult WriteTar(const std::string& path, const std::vector<StoredEntry>& entries);
// Extracts below dest with the launcher's disk-writer options.
::testing::AssertionResult ExtractLikeLauncher(const std::string& package, const std::string& dest);

// A tree as "folder", "file <x|-> <content>" or "link <target>" by name
// relative to root; {"<error>": ...} when it cannot be read.
std::map<std::string, std::string> Snapshot(const std::string& root);
