#include "bench_support.h"

#include <cstdio>
#include <cstdlib>
#include <ftw.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

[[noreturn]] void Die(const char* what, const std::string& path)
{
    std::perror((std::string(what) + " " + path).c_str());
    std::exit(1);
}

int RemoveEntry(const char* path, const struct stat*, int, struct FTW*)
{
    return ::remove(path);
}

} // namespace

TempFolder::TempFolder()
{
    const char* base = std::getenv("TMPDIR");
    std::string pattern =
        std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/calderix-bench.XXXXXX";
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back('\0');
    if (::mkdtemp(buffer.data()) == nullptr) {
        Die("mkdtemp", pattern);
    }
    path_ = buffer.data();
}

TempFolder::~TempFolder()
{
    ::nftw(path_.c_str(), RemoveEntry, 16, FTW_DEPTH | FTW_PHYS);
}

void WriteFileOrDie(const std::string& path, const std::string& text)
{
    FILE* fp = std::fopen(path.c_str(), "w");
    if (fp == nullptr) {
        Die("fopen", path);
    }
    const bool ok = std::fwrite(text.data(), 1, text.size(), fp) == text.size();
    if (std::fclose(fp) != 0 || !ok) {
        Die("write", path);
    }
}

void MakeFolderOrDie(const std::string& path)
{
    if (::mkdir(path.c_str(), 0755) != 0) {
        Die("mkdir", path);
    }
}
