#include "archive_builder.h"

#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <memory>
#include <ostream>
#include <random>
#include <unistd.h>

namespace {

struct WriterFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};

const char* ErrorText(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "(no message)";
}

// Selects format and filter on a fresh writer; ARCHIVE_OK or the failure.
int Configure(archive* a, ArchiveFormat format)
{
    switch (format) {
    case ArchiveFormat::Tar:
        return archive_write_set_format_pax_restricted(a);
    case ArchiveFormat::TarGz: {
        const int r = archive_write_set_format_pax_restricted(a);
        return r != ARCHIVE_OK ? r : archive_write_add_filter_gzip(a);
    }
    case ArchiveFormat::Zip:
        return archive_write_set_format_zip(a);
    }
    return ARCHIVE_FATAL;
}

} // namespace

std::string FormatName(ArchiveFormat format)
{
    switch (format) {
    case ArchiveFormat::Tar:
        return "tar";
    case ArchiveFormat::TarGz:
        return "tar_gz";
    case ArchiveFormat::Zip:
        return "zip";
    }
    return "unknown";
}

void PrintTo(ArchiveFormat format, std::ostream* os)
{
    *os << FormatName(format);
}

ArchiveItem FileItem(const std::string& path, const std::string& data)
{
    ArchiveItem item;
    item.path = path;
    item.data = data;
    return item;
}

ArchiveItem FolderItem(const std::string& path)
{
    ArchiveItem item;
    item.path = path;
    item.folder = true;
    item.perm = 0755;
    return item;
}

::testing::AssertionResult WriteArchive(const std::string& path, ArchiveFormat format,
                                        const std::vector<ArchiveItem>& items)
{
    std::unique_ptr<archive, WriterFree> writer(archive_write_new());
    if (!writer) {
        return ::testing::AssertionFailure() << "archive_write_new failed";
    }
    if (Configure(writer.get(), format) != ARCHIVE_OK) {
        return ::testing::AssertionFailure()
               << FormatName(format) << " writer setup: " << ErrorText(writer.get());
    }
    if (archive_write_open_filename(writer.get(), path.c_str()) != ARCHIVE_OK) {
        return ::testing::AssertionFailure() << path << ": " << ErrorText(writer.get());
    }
    for (const ArchiveItem& item : items) {
        std::unique_ptr<archive_entry, EntryFree> entry(archive_entry_new());
        archive_entry_set_pathname(entry.get(), item.path.c_str());
        archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), item.perm);
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(item.data.size()));
        archive_entry_set_mtime(entry.get(), item.mtime, 0);
        archive_entry_set_uid(entry.get(), item.uid);
        if (archive_write_header(writer.get(), entry.get()) != ARCHIVE_OK) {
            return ::testing::AssertionFailure()
                   << path << ": header of '" << item.path << "': " << ErrorText(writer.get());
        }
        if (!item.data.empty() && archive_write_data(writer.get(), item.data.data(), item.data.size()) !=
                                      static_cast<la_ssize_t>(item.data.size())) {
            return ::testing::AssertionFailure()
                   << path << ": data of '" << item.path << "': " << ErrorText(writer.get());
        }
    }
    if (archive_write_close(writer.get()) != ARCHIVE_OK) {
        return ::testing::AssertionFailure() << path << ": closing: " << ErrorText(writer.get());
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult TruncateFile(const std::string& path, off_t size)
{
    if (truncate(path.c_str(), size) != 0) {
        const int e = errno;
        return ::testing::AssertionFailure() << "truncate " << path << " to " << size << ": " << strerror(e);
    }
    return ::testing::AssertionSuccess();
}

std::string NoiseBytes(size_t size, unsigned seed)
{
    std::mt19937 engine(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes) {
        c = static_cast<char>(engine() & 0xff);
    }
    return bytes;
}
