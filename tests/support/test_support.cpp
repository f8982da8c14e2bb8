#include "test_support.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sched.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace testsupport {

TempDir::TempDir(const std::string& prefix)
{
    const char* base = getenv("TMPDIR");
    std::string tmpl = std::string(base && *base ? base : "/tmp") + "/" + prefix + "-XXXXXX";
    std::vector<char> buf(tmpl.begin(), tmpl.end());
    buf.push_back('\0');
    if (mkdtemp(buf.data()) == nullptr) {
        fprintf(stderr, "mkdtemp(%s): %s\n", tmpl.c_str(), strerror(errno));
        abort();
    }
    path_ = buf.data();
}

TempDir::~TempDir()
{
    // Tests may leave read-only folders behind; make them writable first.
    RemoveTree(path_);
}

bool RemoveTree(const std::string& path)
{
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        return errno == ENOENT;
    }
    if (!S_ISDIR(st.st_mode)) {
        return unlink(path.c_str()) == 0;
    }
    chmod(path.c_str(), 0700);
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr) {
        return false;
    }
    bool ok = true;
    while (struct dirent* e = readdir(dir)) {
        if (strcmp(e->d_name, ".") == 0 || strcmp(e->d_name, "..") == 0) {
            continue;
        }
        ok = RemoveTree(path + "/" + e->d_name) && ok;
    }
    closedir(dir);
    return rmdir(path.c_str()) == 0 && ok;
}

bool CopyTree(const std::string& from, const std::string& to)
{
    struct stat st;
    if (lstat(from.c_str(), &st) != 0) {
        return false;
    }
    if (S_ISLNK(st.st_mode)) {
        std::vector<char> target(st.st_size + 1, '\0');
        if (readlink(from.c_str(), target.data(), target.size()) < 0) {
            return false;
        }
        return symlink(target.data(), to.c_str()) == 0;
    }
    if (S_ISDIR(st.st_mode)) {
        if (mkdir(to.c_str(), st.st_mode & 07777) != 0 && errno != EEXIST) {
            return false;
        }
        DIR* dir = opendir(from.c_str());
        if (dir == nullptr) {
            return false;
        }
        bool ok = true;
        while (struct dirent* e = readdir(dir)) {
            if (strcmp(e->d_name, ".") == 0 || strcmp(e->d_name, "..") == 0) {
                continue;
            }
            if (!CopyTree(from + "/" + e->d_name, to + "/" + e->d_name)) {
                ok = false;
                break;
            }
        }
        const int saved = errno;
        closedir(dir);
        errno = saved;
        return ok;
    }
    const int in = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) {
        return false;
    }
    const int out = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, st.st_mode & 07777);
    if (out < 0) {
        close(in);
        return false;
    }
    char buf[65536];
    bool ok = true;
    for (;;) {
        const ssize_t n = read(in, buf, sizeof buf);
        if (n == 0) {
            break;
        }
        if (n < 0 || write(out, buf, n) != n) {
            ok = false;
            break;
        }
    }
    close(in);
    if (close(out) != 0) {
        ok = false;
    }
    return ok && chmod(to.c_str(), st.st_mode & 07777) == 0;
}

bool MakeDirs(const std::string& path, mode_t mode)
{
    for (size_t pos = 1; pos <= path.size(); ++pos) {
        if (pos == path.size() || path[pos] == '/') {
            const std::string prefix = path.substr(0, pos);
            if (mkdir(prefix.c_str(), mode) != 0 && errno != EEXIST) {
                return false;
            }
        }
    }
    return true;
}

bool WriteFile(const std::string& path, const std::string& content, mode_t mode)
{
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0) {
        return false;
    }
    const bool ok = write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    return close(fd) == 0 && ok && chmod(path.c_str(), mode) == 0;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

EnvChange Set(const std::string& name, const std::string& value)
{
    return EnvChange{name, value, false};
}

EnvChange Unset(const std::string& name)
{
    return EnvChange{name, {}, true};
}

namespace {

std::vector<std::string> BuildEnv(const std::vector<EnvChange>& changes)
{
    std::map<std::string, std::string> env;
    for (char** e = environ; *e != nullptr; ++e) {
        const std::string entry(*e);
        const size_t eq = entry.find('=');
        if (eq != std::string::npos) {
            env[entry.substr(0, eq)] = entry.substr(eq + 1);
        }
    }
    for (const EnvChange& c : changes) {
        if (c.unset) {
            env.erase(c.name);
        } else {
            env[c.name] = c.value;
        }
    }
    std::vector<std::string> out;
    for (const auto& kv : env) {
        out.push_back(kv.first + "=" + kv.second);
    }
    return out;
}

std::vector<char*> Pointers(std::vector<std::string>& strings)
{
    std::vector<char*> ptrs;
    for (std::string& s : strings) {
        ptrs.push_back(&s[0]);
    }
    ptrs.push_back(nullptr);
    return ptrs;
}

// In the child: wires fds 0-2, runs before_exec and execs; never returns.
[[noreturn]] void ExecChild(std::vector<std::string> argv, std::vector<std::string> env, int out_fd,
                            int err_fd, const std::function<void()>& before_exec = {})
{
    const int null_fd = open("/dev/null", O_RDWR);
    dup2(null_fd, 0);
    dup2(out_fd >= 0 ? out_fd : null_fd, 1);
    dup2(err_fd >= 0 ? err_fd : null_fd, 2);
    if (before_exec) {
        before_exec();
    }
    std::vector<char*> args = Pointers(argv);
    std::vector<char*> envp = Pointers(env);
    execve(args[0], args.data(), envp.data());
    dprintf(2, "execve(%s): %s\n", args[0], strerror(errno));
    _exit(127);
}

} // namespace

ProcessResult Run(const std::vector<std::string>& argv, const std::vector<EnvChange>& env,
                  const std::function<void()>& before_exec)
{
    ProcessResult result;
    int out_pipe[2];
    int err_pipe[2];
    if (pipe2(out_pipe, O_CLOEXEC) != 0 || pipe2(err_pipe, O_CLOEXEC) != 0) {
        result.err = std::string("pipe: ") + strerror(errno);
        return result;
    }
    std::vector<std::string> envs = BuildEnv(env);
    const pid_t pid = fork();
    if (pid == 0) {
        ExecChild(argv, envs, out_pipe[1], err_pipe[1], before_exec);
    }
    close(out_pipe[1]);
    close(err_pipe[1]);
    if (pid < 0) {
        close(out_pipe[0]);
        close(err_pipe[0]);
        result.err = std::string("fork: ") + strerror(errno);
        return result;
    }
    // Read both pipes together so that neither can fill up and stall the child.
    struct pollfd fds[2] = {{out_pipe[0], POLLIN, 0}, {err_pipe[0], POLLIN, 0}};
    std::string* sinks[2] = {&result.out, &result.err};
    int open_fds = 2;
    while (open_fds > 0) {
        if (poll(fds, 2, -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            break;
        }
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || fds[i].revents == 0) {
                continue;
            }
            char buf[8192];
            const ssize_t n = read(fds[i].fd, buf, sizeof buf);
            if (n > 0) {
                sinks[i]->append(buf, n);
            } else if (n == 0 || errno != EINTR) {
                close(fds[i].fd);
                fds[i].fd = -1;
                --open_fds;
            }
        }
    }
    const int status = Wait(pid);
    if (status >= 0 && WIFEXITED(status)) {
        result.exited = true;
        result.exit_code = WEXITSTATUS(status);
    } else if (status >= 0 && WIFSIGNALED(status)) {
        result.term_signal = WTERMSIG(status);
    }
    return result;
}

pid_t Start(const std::vector<std::string>& argv, const std::vector<EnvChange>& env,
            const std::string& out_file, const std::string& err_file)
{
    std::vector<std::string> envs = BuildEnv(env);
    const int out_fd =
        out_file.empty() ? -1 : open(out_file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const int err_fd =
        err_file.empty() ? -1 : open(err_file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const pid_t pid = fork();
    if (pid == 0) {
        ExecChild(argv, envs, out_fd, err_fd);
    }
    if (out_fd >= 0) {
        close(out_fd);
    }
    if (err_fd >= 0) {
        close(err_fd);
    }
    return pid;
}

int Wait(pid_t pid)
{
    int status = 0;
    pid_t r;
    do {
        r = waitpid(pid, &status, 0);
    } while (r < 0 && errno == EINTR);
    return r == pid ? status : -1;
}

void EnterUserNamespace(int clone_flags)
{
    const std::string uid = std::to_string(geteuid());
    const std::string gid = std::to_string(getegid());
    if (unshare(CLONE_NEWUSER | clone_flags) != 0) {
        perror("unshare");
        _exit(127);
    }
    const std::pair<const char*, std::string> maps[] = {{"/proc/self/setgroups", "deny"},
                                                        {"/proc/self/uid_map", "0 " + uid + " 1"},
                                                        {"/proc/self/gid_map", "0 " + gid + " 1"}};
    for (const auto& [file, text] : maps) {
        const int fd = open(file, O_WRONLY | O_CLOEXEC);
        if (fd < 0 || write(fd, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
            perror(file);
            _exit(127);
        }
        close(fd);
    }
}

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream in(text);
    std::string line;
    while (std::getline(in, line)) {
        lines.push_back(line);
    }
    return lines;
}

} // namespace testsupport
