#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <unistd.h>
#include <vector>

#include "bundle_layout.h"
#include "launcher.h"
#include "log.h"
#include "package_rules.h"
#include "regular_file.h"
#include "strtable.h"

#define LOG_SOURCE "extractor"
#define LOG_COMPONENT log_component
static const ustring log_component("extractor_debug");

namespace {

// The archive is read in blocks of this many bytes, on both passes.
constexpr size_t kBlockSize = 10240;

// Unlink what is in an entry's way, refuse ".." elements and restore the
// platform's extended metadata; ownership, permissions (the umask applies)
// and times are deliberately left to the extracting user.
constexpr int kDiskOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kDiskOptions == 0x2210, "the disk writer's options are part of the package contract");

struct ReadFree {
    void operator()(archive* a) const { archive_read_free(a); }
};
struct WriteFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
using ReadHandle = std::unique_ptr<archive, ReadFree>;
using WriteHandle = std::unique_ptr<archive, WriteFree>;

// A read handle together with the package file it reads; the handle is
// released before the file is closed.
struct PackageReader {
    ReadHandle in;
    int fd = -1;

    PackageReader() = default;
    PackageReader(const PackageReader&) = delete;
    PackageReader& operator=(const PackageReader&) = delete;
    ~PackageReader()
    {
        in.reset();
        if (fd >= 0) {
            close(fd);
        }
    }
};

// Opens the package at path on reader.in. Only a regular file is read: a
// FIFO or a device in the package's place would block the extraction with
// the old copy moved aside. Returns libarchive's result, with the reason on
// the handle when the file itself was refused.
int OpenPackage(PackageReader& reader, const ustring& path)
{
    reader.fd = platform::OpenRegularFile(path.c_str_utf8(), O_RDONLY);
    if (reader.fd < 0) {
        const int error = errno;
        // Worded as libarchive words its own failure to open a file.
        archive_set_error(reader.in.get(), error,
                          error == EINVAL ? "'%s' is not a regular file" : "Failed to open '%s'",
                          path.c_str());
        return ARCHIVE_FATAL;
    }
    return archive_read_open_fd(reader.in.get(), reader.fd, kBlockSize);
}

// The one place where libarchive's results become ours: ARCHIVE_WARN means
// an entry was not restored as stored, which for an installation is as bad
// as not at all. Callers test for ARCHIVE_EOF themselves where it ends a
// loop.
bool Succeeded(la_ssize_t r)
{
    return r == ARCHIVE_OK;
}

// libarchive leaves a handle's error string null until something fails on
// it; printf must never see that null.
const char* ErrorText(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "";
}

// archive_read_extract2 records a failed disk write on the writer, but a
// failure to read the entry's data (a damaged archive) only on the reader,
// so the writer's reason comes first and the reader's fills in.
const char* ExtractErrorText(archive* in, archive* out)
{
    const char* text = archive_error_string(out);
    return text != nullptr ? text : ErrorText(in);
}

// For Count and List: reader.in on path with every filter and format
// enabled, positioned before the first header. False, after logging why,
// when either path is empty, the handle cannot be created or the archive
// cannot be opened.
bool OpenForScan(const ustring& dest_dir, const ustring& path, PackageReader& reader)
{
    if (dest_dir.empty() || path.empty()) {
        LOG_MSG(ERROR, "Invalid argument\n");
        return false;
    }
    reader.in.reset(archive_read_new());
    if (!reader.in) {
        LOG_MSG(ERROR, "Allocate archive failed\n");
        return false;
    }
    // A filter or format this libarchive lacks only makes archives that need
    // it fail to open, which the open below reports.
    archive_read_support_filter_all(reader.in.get());
    archive_read_support_format_all(reader.in.get());
    if (!Succeeded(OpenPackage(reader, path))) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'\n", ErrorText(reader.in.get()));
        return false;
    }
    return true;
}

// Writes the entries of the opened archive in below dest_dir through the
// disk writer out, reporting (total, n) after entry n. 0 at the end of the
// archive, -1 at the first failure; what was written before stays on disk.
int WriteEntries(archive* in, archive* out, const ustring& dest_dir, int total)
{
    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    for (int current = 1;; ++current) {
        archive_entry* entry = nullptr;
        const int r = archive_read_next_header(in, &entry);
        if (r == ARCHIVE_EOF) {
            return 0;
        }
        if (!Succeeded(r)) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'\n", ErrorText(in));
            return -1;
        }

        const char* stored = archive_entry_pathname(entry);
        if (stored == nullptr) {
            LOG_MSG(ERROR, "archive_entry_pathname failed");
            return -1;
        }
        // Prefixing every path, absolute ones included, keeps the entry
        // below dest_dir; ".." elements are the disk writer's to refuse.
        const ustring target = dest_dir + "/" + stored;
        archive_entry_set_pathname(entry, target.c_str_utf8());

        if (!Succeeded(archive_read_extract2(in, entry, out))) {
            LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'\n", ExtractErrorText(in, out));
            return -1;
        }
        relay->UpdateProgress(total, current);
        if (!Succeeded(archive_write_finish_entry(out))) {
            LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'\n", ErrorText(out));
            return -1;
        }
    }
}

} // namespace

int Extractor::Count()
{
    PackageReader reader;
    if (!OpenForScan(dest_dir, archive_path, reader)) {
        return -1;
    }
    archive* in = reader.in.get();
    // A failed skip leaves the reader unable to find the next header, and
    // that failure ends the count like the end of the archive does. Every
    // header passes through here before anything is written, so this is
    // where an entry that could reach outside dest_dir is refused: the disk
    // writer follows links that earlier entries planted and writes hard
    // links and device nodes as stored.
    int count = 0;
    std::vector<pkgrules::Entry> entries;
    archive_entry* header = nullptr;
    while (Succeeded(archive_read_next_header(in, &header))) {
        ++count;
        pkgrules::Entry entry;
        const pkgrules::Status status = pkgrules::EntryFromHeader(header, pkgrules::Names::BelowRoot, &entry);
        if (!status.ok()) {
            LOG_MSG(ERROR, "package refused: %s\n", status.Message().c_str());
            return -1;
        }
        // The root itself ("./") is dest_dir, which exists.
        if (!entry.name.empty()) {
            entries.push_back(entry);
        }
        archive_read_data_skip(in);
    }
    pkgrules::Status status = pkgrules::CheckEntries(entries);
    if (status.ok() && check_bundle) {
        status = pkgrules::CheckBundleFiles(entries, layout::kUiEntry);
    }
    if (!status.ok()) {
        LOG_MSG(ERROR, "package refused: %s\n", status.Message().c_str());
        return -1;
    }
    return count;
}

int Extractor::List()
{
    PackageReader reader;
    if (!OpenForScan(dest_dir, archive_path, reader)) {
        return -1;
    }
    archive* in = reader.in.get();
    // An entry without a path name still gets its line, so that the lines
    // stay in step with the entries.
    archive_entry* entry = nullptr;
    while (Succeeded(archive_read_next_header(in, &entry))) {
        const char* name = archive_entry_pathname(entry);
        std::fputs(name != nullptr ? name : "", stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
        archive_read_data_skip(in);
    }
    archive_read_close(in);
    return 0;
}

int Extractor::Extract()
{
    if (archive_path.empty() || dest_dir.empty()) {
        LOG_MSG(ERROR, "Invalid Argument\n");
        return -1;
    }
    LOG_MSG(DEBUG, "decompress from '%s' to '%s'\n", archive_path.c_str(), dest_dir.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(StrTable::kStrPreparing));

    const int total = Count();
    if (total < 1) {
        LOG_MSG(ERROR, "Failed to calculate total file numbers, ret: %d\n", total);
        return -1;
    }

    // Declared first so that the reader is released before the writer.
    WriteHandle out;
    PackageReader reader;
    reader.in.reset(archive_read_new());
    out.reset(archive_write_disk_new());
    if (!reader.in || !out) {
        LOG_MSG(ERROR, "Allocate extractor failed\n");
        return -1;
    }
    archive* in = reader.in.get();
    // Setting options on a fresh disk writer has nothing that can fail.
    archive_write_disk_set_options(out.get(), kDiskOptions);

    // The older name of archive_read_support_filter_all; a filter this
    // libarchive lacks shows up as a failure to open below.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    archive_read_support_compression_all(in);
#pragma GCC diagnostic pop
    archive_read_support_format_all(in);
    if (!Succeeded(OpenPackage(reader, archive_path))) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')\n", archive_path.c_str(), ErrorText(in));
        return -1;
    }
    return WriteEntries(in, out.get(), dest_dir, total);
}

int Extractor::copy_data(archive* in, archive* out)
{
    if (in == nullptr || out == nullptr) {
        LOG_MSG(ERROR, "Invalid Argument\n");
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int r = archive_read_data_block(in, &buffer, &size, &offset);
        if (r == ARCHIVE_EOF) {
            return 0;
        }
        if (!Succeeded(r)) {
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'\n", ErrorText(in));
            return -1;
        }
        if (!Succeeded(archive_write_data_block(out, buffer, size, offset))) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'\n", ErrorText(out));
            return -1;
        }
    }
}
