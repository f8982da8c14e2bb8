#include "file_test_support.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <ftw.h>
#include <grp.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "log.h"

namespace filetest {

namespace {

const uid_t kNobody = 65534;

std::string Failure(const std::string& what, const std::string& path)
{
    return what + "(" + path + "): " + strerror(errno);
}

// Folders left without permissions by a test must not stop the clean-up.
int Unlock(const char* path, const struct stat* st, int type, struct FTW*)
{
    if (type == FTW_D || type == FTW_DNR)
        chmod(path, (st->st_mode & 07777) | 0700);
    return 0;
}

int RemoveEntry(const char* path, const struct stat*, int, struct FTW*)
{
    return remove(path) == 0 || errno == ENOENT ? 0 : -1;
}

} // namespace

ScratchDir::ScratchDir(const std::string& base)
{
    std::string pattern = base + "/calderix-file-XXXXXX";
    if (mkdtemp(&pattern[0]) == nullptr) {
        error_ = Failure("mkdtemp", pattern);
        return;
    }
    char real[PATH_MAX];
    if (realpath(pattern.c_str(), real) == nullptr) {
        error_ = Failure("realpath", pattern);
        rmdir(pattern.c_str());
        return;
    }
    path_ = real;
    // Children that run as nobody must be able to reach what lies inside.
    if (chmod(path_.c_str(), 0755) != 0)
        error_ = Failure("chmod", path_);
}

ScratchDir::~ScratchDir()
{
    if (path_.empty())
        return;
    nftw(path_.c_str(), Unlock, 16, FTW_PHYS);
    if (nftw(path_.c_str(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS) != 0)
        ADD_FAILURE() << "cannot remove scratch folder " << path_ << ": " << strerror(errno);
}

std::string WriteFile(const std::string& path, const std::string& content)
{
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (fd < 0)
        return Failure("open", path);
    const ssize_t written = write(fd, content.data(), content.size());
    const std::string error = written != static_cast<ssize_t>(content.size()) ? Failure("write", path) : "";
    close(fd);
    return error;
}

std::string MakeDir(const std::string& path, unsigned mode)
{
    return mkdir(path.c_str(), mode) == 0 ? "" : Failure("mkdir", path);
}

std::string MakeLink(const std::string& target, const std::string& link)
{
    return symlink(target.c_str(), link.c_str()) == 0 ? "" : Failure("symlink", link);
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return "<unreadable>";
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

int RunAsNobody(const std::function<int()>& body)
{
    const pid_t child = fork();
    if (child < 0) {
        ADD_FAILURE() << "fork: " << strerror(errno);
        return -1;
    }
    if (child == 0) {
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0 ||
            geteuid() != kNobody)
            _exit(250);
        _exit(body() & 0xff);
    }
    int status = 0;
    if (waitpid(child, &status, 0) != child) {
        ADD_FAILURE() << "waitpid: " << strerror(errno);
        return -1;
    }
    if (!WIFEXITED(status)) {
        ADD_FAILURE() << "child as nobody died with signal " << WTERMSIG(status);
        return -1;
    }
    if (WEXITSTATUS(status) == 250) {
        ADD_FAILURE() << "child could not drop root for uid/gid " << kNobody;
        return -1;
    }
    return WEXITSTATUS(status);
}

void FileOpTest::SetUp()
{
    scratch_.reset(new ScratchDir("/tmp"));
    ASSERT_TRUE(scratch_->ok()) << scratch_->error();
    const char* home = getenv("HOME");
    had_home_ = home != nullptr;
    old_home_ = home != nullptr ? home : "";
    ASSERT_EQ("", MakeDir((*this)["home"]));
    setenv("HOME", (*this)["home"].c_str(), 1);
    ASSERT_EQ("", WriteFile((*this)["levels"], "file_op_debug=7\n"));
    ASSERT_EQ(
        0, Logger::Initialize(Logger::TYPE_FILE, (*this)["test.log"].c_str(), (*this)["levels"].c_str(), 50))
        << "cannot log to " << (*this)["test.log"];
}

void FileOpTest::TearDown()
{
    Logger::Destroy();
    if (had_home_)
        setenv("HOME", old_home_.c_str(), 1);
    else
        unsetenv("HOME");
    scratch_.reset();
}

::testing::AssertionResult FileOpTest::Logged(const std::string& tag, const std::string& message) const
{
    const std::string log = ReadFile((*this)["test.log"]);
    std::istringstream lines(log);
    std::string line;
    const std::string head = tag + " file-op(";
    while (std::getline(lines, line)) {
        // The logger puts "Mmm dd hh:mm:ss " in front of every line.
        const size_t start = line.find(head);
        if (start == std::string::npos)
            continue;
        size_t digits = start + head.size();
        const size_t first_digit = digits;
        while (digits < line.size() && isdigit(static_cast<unsigned char>(line[digits])))
            ++digits;
        if (digits > first_digit && line.compare(digits, std::string::npos, "): " + message) == 0)
            return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "no log line \"" << tag << " file-op(N): " << message << "\" in:\n"
           << log;
}

} // namespace filetest
