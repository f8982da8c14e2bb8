// Fixture helpers shared by the tests: fresh temporary folders, file and
// tree copies, and child processes run with a chosen environment.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <sys/types.h>
#include <vector>

namespace testsupport {

// A fresh folder under base (by default $TMPDIR or /tmp), removed with
// everything in it when the object goes away.
class TempDir {
public:
    explicit TempDir(const std::string& prefix = "calderix-test", std::string base = {});
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// Removes a file, a link or a whole tree; true when nothing is left.
bool RemoveTree(const std::string& path);
// Copies a tree: folders, regular files (with their modes) and symbolic
// links as links. Returns false, with errno set, on the first failure.
bool CopyTree(const std::string& from, const std::string& to);
bool MakeDirs(const std::string& path, mode_t mode = 0755);
bool WriteFile(const std::string& path, const std::string& content, mode_t mode = 0644);
// The whole file; empty when it cannot be read.
std::string ReadFile(const std::string& path);
bool Exists(const std::string& path);

// One change to a child's environment: Set() a variable or Unset() it.
struct EnvChange {
    std::string name, value;
    bool unset = false;
};
inline EnvChange Set(const std::string& name, const std::string& value)
{
    return EnvChange{name, value};
}
inline EnvChange Unset(const std::string& name)
{
    return EnvChange{name, {}, true};
}

struct ProcessResult {
    bool exited = false; // ended by exit() rather than a signal
    int exit_code = -1;  // valid when exited
    int term_signal = 0; // valid when !exited
    // What it wrote to standard output and standard error.
    std::string out, err;
};

// Runs argv[0] with the given environment changes, waits for it and returns
// what it printed. stdin is /dev/null. before_exec runs in the child right
// before the exec, for what only the child itself can set up (limits,
// credentials, namespaces); it reports its own failures and _exit()s.
ProcessResult Run(const std::vector<std::string>& argv, const std::vector<EnvChange>& env = {},
                  const std::function<void()>& before_exec = {});

// Starts argv[0] in the background with stdout/stderr to the given files
// (empty: /dev/null); returns its pid or -1.
pid_t Start(const std::vector<std::string>& argv, const std::vector<EnvChange>& env = {},
            const std::string& out_file = {}, const std::string& err_file = {});
// Waits for a child started with Start(); returns the raw wait status or -1.
int Wait(pid_t pid);

// For a child about to exec: moves it into a new user namespace (with the
// further namespaces of clone_flags) in which it is root, mapped to the
// user it was. On failure reports why and _exit()s.
void EnterUserNamespace(int clone_flags);

// Lines of a text, without their line feeds.
std::vector<std::string> Lines(const std::string& text);

} // namespace testsupport
