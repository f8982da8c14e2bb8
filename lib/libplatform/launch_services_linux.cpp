#include "launch_services.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "regular_file.h"

namespace platform {

namespace {

// The one place where a failed call becomes a result: its errno, and never
// 0, so that a call that failed without setting errno cannot read as success.
int LastError()
{
    return errno != 0 ? errno : EIO;
}

// The character data of an XML text node with the five predefined entities
// replaced; anything else starting with "&" is kept as it stands.
std::string DecodeXmlText(const std::string& text)
{
    static const struct {
        const char* entity;
        char c;
    } entities[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
    std::string out;
    for (size_t i = 0; i < text.size();) {
        bool replaced = false;
        if (text[i] == '&') {
            for (const auto& e : entities) {
                const size_t len = strlen(e.entity);
                if (text.compare(i, len, e.entity) == 0) {
                    out += e.c;
                    i += len;
                    replaced = true;
                    break;
                }
            }
        }
        if (!replaced) {
            out += text[i++];
        }
    }
    return out;
}

// The string value of key in an XML property list: the text of the
// <string> element that follows <key>key</key>, past blanks and comments.
// Empty when the key is missing or holds another kind of value.
std::string PlistString(const std::string& plist, const std::string& key)
{
    const std::string tag = "<key>" + key + "</key>";
    size_t pos = plist.find(tag);
    if (pos == std::string::npos) {
        return {};
    }
    pos += tag.size();
    for (;;) {
        pos = plist.find_first_not_of(" \t\r\n", pos);
        if (pos == std::string::npos) {
            return {};
        }
        if (plist.compare(pos, 4, "<!--") != 0) {
            break;
        }
        pos = plist.find("-->", pos + 4);
        if (pos == std::string::npos) {
            return {};
        }
        pos += 3;
    }
    static const std::string open = "<string>";
    if (plist.compare(pos, open.size(), open) != 0) {
        return {};
    }
    pos += open.size();
    const size_t end = plist.find("</string>", pos);
    if (end == std::string::npos) {
        return {};
    }
    return DecodeXmlText(plist.substr(pos, end - pos));
}

bool IsExecutableFile(const struct stat& st)
{
    return S_ISREG(st.st_mode) && (st.st_mode & 0111) != 0;
}

// The name of the only executable regular file directly in folder (links
// followed, hidden names skipped). Returns 0 with name set, ENOENT when
// there is none or more than one, or the errno of a failed listing.
int OnlyExecutable(const std::string& folder, std::string& name)
{
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr) {
        return LastError();
    }
    int found = 0;
    int result = 0;
    for (;;) {
        errno = 0;
        const struct dirent* e = readdir(dir);
        if (e == nullptr) {
            result = errno;
            break;
        }
        if (e->d_name[0] == '.') {
            continue;
        }
        struct stat st;
        if (stat((folder + "/" + e->d_name).c_str(), &st) == 0 && IsExecutableFile(st)) {
            name = e->d_name;
            ++found;
        }
    }
    closedir(dir);
    if (result != 0) {
        return result;
    }
    return found == 1 ? 0 : ENOENT;
}

// The path of the executable that opening the bundle starts: the one that
// Contents/Info.plist names, or, when the bundle has no Info.plist or it
// names none, the only executable in Contents/MacOS. Returns 0 with exe
// set, or an errno value (EINVAL for a name that leaves that folder).
int BundleExecutable(const std::string& bundle, std::string& exe)
{
    const std::string folder = bundle + "/Contents/MacOS";
    std::string plist;
    std::string name;
    const int r = ReadRegularFile(bundle + "/Contents/Info.plist", kSmallFileLimit, plist);
    if (r == 0) {
        name = PlistString(plist, "CFBundleExecutable");
    } else if (r != ENOENT) {
        return r;
    }
    if (name.empty()) {
        const int found = OnlyExecutable(folder, name);
        if (found != 0) {
            return found;
        }
    }
    if (name == "." || name == ".." || name.find('/') != std::string::npos) {
        return EINVAL;
    }
    exe = folder + "/" + name;
    return 0;
}

// Whether a process whose effective user is ours runs the file exe (the
// same file, whatever path it was started by). Zombies run nothing. When
// the process table cannot be read nothing is seen running.
bool RunsForUser(const struct stat& exe)
{
    DIR* proc = opendir("/proc");
    if (proc == nullptr) {
        return false;
    }
    const uid_t uid = geteuid();
    bool found = false;
    while (!found) {
        const struct dirent* e = readdir(proc);
        if (e == nullptr) {
            break;
        }
        if (e->d_name[0] < '1' || e->d_name[0] > '9' ||
            strspn(e->d_name, "0123456789") != strlen(e->d_name)) {
            continue;
        }
        const std::string base = std::string("/proc/") + e->d_name;
        struct stat owner;
        struct stat target;
        // A process that ended since the listing fails these and is skipped.
        if (stat(base.c_str(), &owner) != 0 || owner.st_uid != uid ||
            stat((base + "/exe").c_str(), &target) != 0) {
            continue;
        }
        found = target.st_dev == exe.st_dev && target.st_ino == exe.st_ino;
    }
    closedir(proc);
    return found;
}

// A fresh file at path for a program's output: 0600, a descriptor of 3 or
// above, closed on exec. Whatever was at path is removed first rather than
// cut short, since a program that still holds it would go on writing at
// its old offset. Returns the descriptor, or -1 when the file cannot be made.
int CreateOutput(const std::string& path)
{
    if (path.empty() || (unlink(path.c_str()) != 0 && errno != ENOENT)) {
        return -1;
    }
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0 || fd > 2) {
        return fd;
    }
    // The child's 0 to 2 are rearranged from ours, so it must not be one of them.
    const int high = fcntl(fd, F_DUPFD_CLOEXEC, 3);
    close(fd);
    return high;
}

// The platform hook: starts exe in folder, detached in a session of its
// own, with a clean slate of signals, /dev/null as input, output to the
// descriptor out (to /dev/null when it is -1) and nothing else of ours
// open. Returns 0 once exe has replaced the child, or the errno value of
// the step that failed.
//
// posix_spawn rather than fork: the child borrows our address space until
// it execs instead of copying the page tables of every library a Qt
// process maps, which made the start of the user interface cost the
// launcher milliseconds. The program stays our child only until we quit a
// moment later; then it belongs to the system like any other started one.
int SpawnDetached(const std::string& exe, const std::string& folder, int out)
{
    posix_spawnattr_t attr;
    posix_spawn_file_actions_t actions;
    int error = posix_spawnattr_init(&attr);
    if (error != 0) {
        return error;
    }
    error = posix_spawn_file_actions_init(&actions);
    if (error != 0) {
        posix_spawnattr_destroy(&attr);
        return error;
    }
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    const short flags = POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
    // The first step that fails gives the result.
    error = posix_spawnattr_setflags(&attr, flags);
    error = error != 0 ? error : posix_spawnattr_setsigmask(&attr, &none);
    error = error != 0 ? error : posix_spawnattr_setsigdefault(&attr, &all);
    error = error != 0 ? error : posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
    error = error != 0 ? error : posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDWR, 0);
    error = error != 0 ? error : posix_spawn_file_actions_adddup2(&actions, out >= 0 ? out : 0, 1);
    error = error != 0 ? error : posix_spawn_file_actions_adddup2(&actions, out >= 0 ? out : 0, 2);
    error = error != 0 ? error : posix_spawn_file_actions_addclosefrom_np(&actions, 3);
    if (error == 0) {
        std::vector<char> arg0(exe.begin(), exe.end());
        arg0.push_back('\0');
        char* const argv[] = {arg0.data(), nullptr};
        pid_t child = 0;
        error = posix_spawn(&child, exe.c_str(), &actions, &attr, argv, environ);
    }
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attr);
    return error;
}

// Linux keeps no record of bundles, so there is nothing to forget; opening
// runs the bundle's executable the way the desktop would on macOS.
class LinuxLaunchServices : public LaunchServices {
public:
    int Unregister(const std::string&) override { return 0; }

    int Open(const std::string& bundle, const std::string& output) override
    {
        std::string exe;
        const int r = BundleExecutable(bundle, exe);
        if (r != 0) {
            return r;
        }
        struct stat st;
        if (stat(exe.c_str(), &st) != 0) {
            return LastError();
        }
        if (!S_ISREG(st.st_mode)) {
            return EACCES;
        }
        if (access(exe.c_str(), X_OK) != 0) {
            return LastError();
        }
        if (RunsForUser(st)) {
            return 0;
        }
        const int out = CreateOutput(output);
        const int spawned = SpawnDetached(exe, bundle + "/Contents/MacOS", out);
        if (out >= 0) {
            close(out);
        }
        return spawned;
    }
};

} // namespace

LaunchServices& SystemLaunchServices()
{
    static LinuxLaunchServices services;
    return services;
}

} // namespace platform
