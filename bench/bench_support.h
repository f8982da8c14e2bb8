// A fresh folder per benchmark, removed with everything in it when the
// benchmark ends, so that runs never see each other's files.
#pragma once

#include <string>

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const { return path_; }
    std::string Join(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// Writes text to path; aborts the run on failure, since every figure after
// it would measure a broken set-up.
void WriteFileOrDie(const std::string& path, const std::string& text);
void MakeFolderOrDie(const std::string& path);
