// Archives written and read with libarchive alone, so that a test's
// fixture shares no code with the packer or the extractor under test.
#pragma once

#include <ctime>
#include <string>
#include <sys/types.h>
#include <vector>

#include <gtest/gtest.h>

enum class ArchiveFormat { Tar, TarGz, Zip };

// One entry; kind 'f' file, 'd' folder, 'l' symbolic link or 'h' hard link
// (both to link), 'p' FIFO or 'c' character device (as /dev/zero).
// {"a/", "", 'd', 0755} is a folder.
struct ArchiveItem {
    std::string path;
    std::string data{};
    char kind = 'f';
    mode_t perm = 0644;
    std::string link{};
    time_t mtime = 1500000000;
    long long uid = 0;
    long long gid = 0;
    std::string uname{};
};

// Writes items, in order, as an archive of the given format at path.
::testing::AssertionResult WriteArchive(const std::string& path, ArchiveFormat format,
                                        const std::vector<ArchiveItem>& items);
// Every entry of the archive at path, in order, with its data.
::testing::AssertionResult ReadArchive(const std::string& path, std::vector<ArchiveItem>* items);

// size bytes that no compressor shrinks, the same for the same seed.
std::string NoiseBytes(size_t size, unsigned seed);
