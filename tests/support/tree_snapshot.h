// Trees captured as text, and their difference, for tests that check what a
// run left on disk.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "test_support.h"

namespace testsupport {

// A tree as text, by path relative to root: "dir", "file x|- <content>" (x
// when any execute bit is set) or "link <target>". Empty when root is missing.
using Tree = std::map<std::string, std::string>;

inline Tree Snapshot(const std::string& root)
{
    namespace fs = std::filesystem;
    Tree tree;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        const fs::file_status st = fs::symlink_status(it->path());
        const bool x =
            (st.permissions() & (fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec)) !=
            fs::perms::none;
        tree[it->path().lexically_relative(root).string()] =
            fs::is_symlink(st)     ? "link " + fs::read_symlink(it->path()).string()
            : fs::is_directory(st) ? std::string("dir")
                                   : std::string("file ") + (x ? "x " : "- ") + ReadFile(it->path());
    }
    if (ec && ec != std::errc::no_such_file_or_directory) {
        tree["<error>"] = ec.message();
    }
    return tree;
}

// Success when got is want, else the paths that differ.
inline ::testing::AssertionResult SameTree(const Tree& want, const Tree& got)
{
    std::string diff;
    Tree all = want;
    all.insert(got.begin(), got.end());
    for (const auto& entry : all) {
        const auto w = want.find(entry.first), g = got.find(entry.first);
        if (w == want.end() || g == got.end() || w->second != g->second) {
            diff += "\n  " + entry.first + (g == got.end() ? ": missing" : ": unexpected or changed");
        }
    }
    return diff.empty() ? ::testing::AssertionSuccess()
                        : ::testing::AssertionFailure() << diff.substr(0, 1500);
}

} // namespace testsupport
