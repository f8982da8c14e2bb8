// Archives for the extractor tests, written with libarchive's own writer so
// that every fixture is built inside the test's temporary folder.
#pragma once

#include <ctime>
#include <string>
#include <sys/types.h>
#include <vector>

#include <gtest/gtest.h>

enum class ArchiveFormat { Tar, TarGz, Zip };

// gtest row name of a format: "tar", "tar_gz", "zip".
std::string FormatName(ArchiveFormat format);

// A file, or a folder when folder is set: {"a/", "", true, 0755}.
struct ArchiveItem {
    std::string path;
    std::string data;
    bool folder = false;
    mode_t perm = 0644;
    time_t mtime = 1500000000;
    uid_t uid = 0;
};

// Writes items, in order, as an archive of the given format at path.
::testing::AssertionResult WriteArchive(const std::string& path, ArchiveFormat format,
                                        const std::vector<ArchiveItem>& items);

// size bytes that no compressor shrinks, the same for the same seed.
std::string NoiseBytes(size_t size, unsigned seed);
