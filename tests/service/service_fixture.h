// What the service's and the tools' tests share: table rows named by their
// name, and trees captured as text.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "test_support.h"

namespace servicetest {

template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

// A tree as text, by path relative to root: "dir", "file x|- <content>" (x
// when any execute bit is set) or "link <target>". Empty when root is missing.
using Tree = std::map<std::string, std::string>;

inline Tree Snapshot(const std::string& root)
{
    namespace fs = std::filesystem;
    const auto describe = [](const fs::path& path) {
        const fs::file_status st = fs::symlink_status(path);
        if (fs::is_symlink(st)) {
            return "link " + fs::read_symlink(path).string();
        }
        if (fs::is_directory(st)) {
            return std::string("dir");
        }
        const bool x =
            (st.permissions() & (fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec)) !=
            fs::perms::none;
        return std::string("file ") + (x ? "x " : "- ") + testsupport::ReadFile(path);
    };
    Tree tree;
    std::error_code ec;
    for (fs::recursive_directory_iterator it(root, ec), end; !ec && it != end; it.increment(ec)) {
        tree[it->path().lexically_relative(root).string()] = describe(it->path());
    }
    if (ec && ec != std::errc::no_such_file_or_directory) {
        tree["<error>"] = ec.message();
    }
    return tree;
}

} // namespace servicetest
