#include "test_support.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace testsupport {

TempDir::TempDir(const std::string& prefix, std::string base)
{
    const char* tmpdir = getenv("TMPDIR");
    if (base.empty())
        base = tmpdir && *tmpdir ? tmpdir : "/tmp";
    path_ = base + "/" + prefix + "-XXXXXX";
    if (mkdtemp(&path_[0]) == nullptr) {
        fprintf(stderr, "mkdtemp(%s): %s\n", path_.c_str(), strerror(errno));
        abort();
    }
}

TempDir::~TempDir()
{
    RemoveTree(path_);
}

// Sets errno from ec; returns whether ec held no error.
static bool Ok(const std::error_code& ec)
{
    if (ec)
        errno = ec.value();
    return !ec;
}

bool RemoveTree(const std::string& path)
{
    // Tests may leave folders without write or search permission behind:
    // open up each folder before its entries are listed.
    std::error_code ec, ignored;
    const auto open_up = [&ignored](const fs::path& dir) {
        if (fs::is_directory(fs::symlink_status(dir, ignored)))
            fs::permissions(dir, fs::perms::owner_all, fs::perm_options::add, ignored);
    };
    open_up(path);
    for (fs::recursive_directory_iterator it(path, ec), end; !ec && it != end; it.increment(ec))
        open_up(it->path());
    fs::remove_all(path, ec);
    return Ok(ec) && !Exists(path);
}

bool CopyTree(const std::string& from, const std::string& to)
{
    std::error_code ec;
    fs::copy(from, to,
             fs::copy_options::recursive | fs::copy_options::copy_symlinks |
                 fs::copy_options::overwrite_existing,
             ec);
    return Ok(ec);
}

bool MakeDirs(const std::string& path, mode_t mode)
{
    std::error_code ec;
    const bool made = fs::create_directories(path, ec);
    return Ok(ec) && (!made || chmod(path.c_str(), mode) == 0);
}

bool WriteFile(const std::string& path, const std::string& content, mode_t mode)
{
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0)
        return false;
    const bool ok = write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    return close(fd) == 0 && ok && chmod(path.c_str(), mode) == 0;
}

std::string ReadFile(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

namespace {

// Starts argv with this process's environment changed as `changes` say and
// fds 0-2 wired to /dev/null, out_fd and err_fd (-1: /dev/null); runs
// before_exec in the child. Returns the pid, -1 when fork fails.
pid_t Spawn(const std::vector<std::string>& argv, const std::vector<EnvChange>& changes, int out_fd,
            int err_fd, const std::function<void()>& before_exec = {})
{
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    for (const EnvChange& c : changes)
        c.unset ? unsetenv(c.name.c_str()) : setenv(c.name.c_str(), c.value.c_str(), 1);
    const int null_fd = open("/dev/null", O_RDWR);
    dup2(null_fd, 0);
    dup2(out_fd >= 0 ? out_fd : null_fd, 1);
    dup2(err_fd >= 0 ? err_fd : null_fd, 2);
    if (before_exec)
        before_exec();
    std::vector<char*> args;
    for (const std::string& s : argv)
        args.push_back(const_cast<char*>(s.c_str()));
    args.push_back(nullptr);
    execv(args[0], args.data());
    dprintf(2, "execv(%s): %s\n", args[0], strerror(errno));
    _exit(127);
}

// Appends everything readable from fd to text, then closes fd.
void Drain(int fd, std::string* text)
{
    char buf[8192];
    for (ssize_t n; (n = read(fd, buf, sizeof buf)) != 0;) {
        if (n > 0)
            text->append(buf, n);
        else if (errno != EINTR)
            break;
    }
    close(fd);
}

} // namespace

ProcessResult Run(const std::vector<std::string>& argv, const std::vector<EnvChange>& env,
                  const std::function<void()>& before_exec)
{
    ProcessResult result;
    int out[2], err[2];
    if (pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0) {
        result.err = std::string("pipe: ") + strerror(errno);
        return result;
    }
    const pid_t pid = Spawn(argv, env, out[1], err[1], before_exec);
    close(out[1]);
    close(err[1]);
    // Both pipes are read at once so that neither can fill up and stall the child.
    std::thread err_reader(Drain, err[0], &result.err);
    Drain(out[0], &result.out);
    err_reader.join();
    const int status = pid < 0 ? -1 : Wait(pid);
    result.exited = status >= 0 && WIFEXITED(status);
    result.exit_code = result.exited ? WEXITSTATUS(status) : -1;
    result.term_signal = status >= 0 && WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return result;
}

pid_t Start(const std::vector<std::string>& argv, const std::vector<EnvChange>& env,
            const std::string& out_file, const std::string& err_file)
{
    const auto open_out = [](const std::string& file) {
        return file.empty() ? -1 : open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    };
    const int out_fd = open_out(out_file), err_fd = open_out(err_file);
    const pid_t pid = Spawn(argv, env, out_fd, err_fd);
    for (int fd : {out_fd, err_fd})
        if (fd >= 0)
            close(fd);
    return pid;
}

int Wait(pid_t pid)
{
    int status = 0;
    while (waitpid(pid, &status, 0) != pid)
        if (errno != EINTR)
            return -1;
    return status;
}

void EnterUserNamespace(int clone_flags)
{
    const std::string uid = std::to_string(geteuid()), gid = std::to_string(getegid());
    const std::pair<const char*, std::string> maps[] = {{"/proc/self/setgroups", "deny"},
                                                        {"/proc/self/uid_map", "0 " + uid + " 1"},
                                                        {"/proc/self/gid_map", "0 " + gid + " 1"}};
    bool ok = unshare(CLONE_NEWUSER | clone_flags) == 0;
    for (const auto& [file, text] : maps) {
        const int fd = ok ? open(file, O_WRONLY | O_CLOEXEC) : -1;
        ok = fd >= 0 && write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
             close(fd) == 0;
    }
    if (!ok) {
        perror("entering a user namespace");
        _exit(127);
    }
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

} // namespace testsupport
