// A fresh folder per test under $TMPDIR (or /tmp), removed with its content.
#pragma once

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <ftw.h>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

class ScratchDir {
public:
    ScratchDir()
    {
        const char* base = std::getenv("TMPDIR");
        std::string pattern =
            std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/calderix-XXXXXX";
        if (mkdtemp(&pattern[0]) == nullptr) {
            ADD_FAILURE() << "mkdtemp " << pattern << ": " << std::strerror(errno);
        }
        path_ = pattern;
    }
    ~ScratchDir()
    {
        auto remove_one = [](const char* p, const struct stat*, int, struct FTW*) { return ::remove(p); };
        if (nftw(path_.c_str(), remove_one, 16, FTW_DEPTH | FTW_PHYS) != 0) {
            ADD_FAILURE() << "cleaning " << path_ << ": " << std::strerror(errno);
        }
    }
    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    const std::string& path() const { return path_; }
    std::string File(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

inline ::testing::AssertionResult WriteFile(const std::string& path, const std::string& bytes)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << bytes;
    out.close();
    if (!out) {
        return ::testing::AssertionFailure() << "writing " << path << ": " << std::strerror(errno);
    }
    return ::testing::AssertionSuccess();
}

// The file's bytes; empty when it cannot be read.
inline std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

inline bool Exists(const std::string& path)
{
    struct stat st;
    return ::lstat(path.c_str(), &st) == 0;
}

// Size in bytes, -1 when the file is missing.
inline long long FileSize(const std::string& path)
{
    struct stat st;
    return ::stat(path.c_str(), &st) == 0 ? static_cast<long long>(st.st_size) : -1;
}
