// Fixtures shared by the file library's tests: scratch folders, files,
// a child process without root, and the log of the file module.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace filetest {

// A fresh folder made by mkdtemp below base, named by its real path, and
// removed with everything below it (locked folders included) at the end.
class ScratchDir {
public:
    explicit ScratchDir(const std::string& base);
    ~ScratchDir();
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    bool ok() const { return error_.empty(); }
    const std::string& error() const { return error_; }
    const std::string& path() const { return path_; }
    std::string operator[](const std::string& relative) const { return path_ + "/" + relative; }

private:
    std::string path_;
    std::string error_;
};

// Table rows (structs with a name) print as their name when a case fails.
template <typename Row> auto operator<<(std::ostream& os, const Row& row) -> decltype(row.name, os)
{
    return os << row.name;
}

// Each returns an empty string, or what went wrong with errno's text.
std::string WriteFile(const std::string& path, const std::string& content);
std::string MakeDir(const std::string& path, unsigned mode = 0755);
std::string MakeLink(const std::string& target, const std::string& link);

// The file's bytes; "<unreadable>" when it cannot be read.
std::string ReadFile(const std::string& path);
bool Exists(const std::string& path);

// Runs body in a child that has given up root for nobody (uid and gid
// 65534) and returns the child's exit status. A child that could not give up
// root, or died, makes this fail the running test and return -1.
int RunAsNobody(const std::function<int()>& body);

// Tests of the file module: a scratch folder with a fake HOME, and the
// module's log (component file_op_debug at level 7) in a file of its own.
class FileOpTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    std::string operator[](const std::string& relative) const { return (*scratch_)[relative]; }
    const std::string& Root() const { return scratch_->path(); }
    // Whether the log holds the line tag + " file-op(<line>): " + message.
    ::testing::AssertionResult Logged(const std::string& tag, const std::string& message) const;

private:
    std::unique_ptr<ScratchDir> scratch_;
    std::string old_home_;
    bool had_home_ = false;
};

} // namespace filetest
