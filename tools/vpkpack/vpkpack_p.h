// Internals of vpkpack shared by packing, checking and the platform layer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

struct archive;
struct ZSTD_CCtx_s;

#include "vpkpack.h"

namespace vpkpack {

using pkgrules::CheckBundleFiles;
using pkgrules::CheckEntries;
using pkgrules::Entry;
using pkgrules::EntryType;
using pkgrules::Refuse;

// Version file and property list are read whole; larger ones are refused.
constexpr size_t kSmallFileLimit = 1 << 20;

// --- layout in the package (rules.cpp; the safety rules are package_rules) ---

// The UI executable's entry name, from the property list's bytes (empty:
// no property list); refuses a list naming another executable than kUiName.
Status UiEntryFromPlist(const std::string& plist, bool present, std::string* ui_entry);

// Entries sorted as a tree walk (byte order, a folder right before its
// contents), then the UI executable, then the version file.
void SortForPackage(std::vector<Entry>* entries, const std::string& ui_entry);

// The UI executable second to last and the version file last.
Status CheckOrder(const std::vector<Entry>& entries, const std::string& ui_entry);

// --- version file (version_file.cpp, Qt) ---

// Reads the [Version] values from an INI text as the launcher reads it.
Status ParseVersionFile(const std::string& data, VersionInfo* info);
// An INI text with the [Version] values of info, as QSettings writes it.
Status FormatVersionFile(const VersionInfo& info, std::string* data);
// The <string> value of key in an XML property list; empty when the key is
// absent. Refused when the list is not XML or the value is no string or empty.
Status ReadPlistString(const std::string& plist, const char* key, std::string* value);

// --- platform hooks (platform_unix.cpp) ---

namespace platform {

// The one place where an errno becomes a result.
Status FromErrno(int e, const std::string& entry);

// The processors this process may run on; at least 1.
int ProcessorCount();

// Every entry below root (root excluded), in no particular order.
Status ScanTree(const std::string& root, std::vector<Entry>* entries);

// The whole file at path, refused with TooLarge beyond limit bytes.
Status ReadSmallFile(const std::string& path, const std::string& entry, size_t limit, std::string* data);

// NoOutputFolder unless the folder that path names a file in is there.
Status CheckOutputFolder(const std::string& path);

// Whether path would lie inside folder once both are resolved.
Status IsInside(const std::string& folder, const std::string& path, bool* inside);

// A regular file read in chunks; refuses anything that is no longer one.
class InputFile {
public:
    InputFile() = default;
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    Status Open(const std::string& path, const std::string& entry);
    // *got is 0 at the end of the file.
    Status Read(char* buffer, size_t size, size_t* got);

private:
    int fd_ = -1;
    std::string entry_;
};

// A temporary file next to its final path, which Commit syncs and renames
// into place; dropped without Commit it is removed.
class OutputFile {
public:
    OutputFile() = default;
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    Status Create(const std::string& final_path);
    int fd() const { return fd_; }
    Status Write(const std::string& data);
    Status Commit();

private:
    int fd_ = -1;
    std::string temp_path_;
    std::string final_path_;
};

} // namespace platform

// Opens a writer on fd through a zstd stream whose frame carries a content
// checksum. The sink must outlive the writer's close, which ends the frame.
class ZstdSink {
public:
    ZstdSink() = default;
    ZstdSink(const ZstdSink&) = delete;
    ZstdSink& operator=(const ZstdSink&) = delete;
    ~ZstdSink();

    // archive_write_open on a, compressing at level with threads workers
    // (at least 1); false with the archive's error set.
    bool Open(archive* a, int fd, int level, int threads);
    // The errno of the last failed write to the file, 0 when none failed.
    // libarchive ignores what the close callback returns, and the frame's
    // last blocks are written there, so the writer must ask.
    int WriteError() const { return write_error_; }

private:
    bool Compress(archive* a, const void* data, size_t size, bool end);
    static ssize_t WriteCallback(archive* a, void* self, const void* buffer, size_t size);
    static int CloseCallback(archive* a, void* self);

    int fd_ = -1;
    int write_error_ = 0;
    ZSTD_CCtx_s* cctx_ = nullptr;
    std::vector<char> out_;
};

} // namespace vpkpack
