#include "archive_builder.h"

#include <archive.h>
#include <archive_entry.h>
#include <memory>
#include <random>

std::string FormatName(ArchiveFormat format)
{
    return format == ArchiveFormat::Tar ? "tar" : format == ArchiveFormat::TarGz ? "tar_gz" : "zip";
}

::testing::AssertionResult WriteArchive(const std::string& path, ArchiveFormat format,
                                        const std::vector<ArchiveItem>& items)
{
    const std::unique_ptr<archive, int (*)(archive*)> writer(archive_write_new(), archive_write_free);
    archive* a = writer.get();
    if (a == nullptr)
        return ::testing::AssertionFailure() << "archive_write_new failed";
    const auto failure = [&](const std::string& what) {
        const char* text = archive_error_string(a);
        return ::testing::AssertionFailure()
               << path << ": " << what << ": " << (text ? text : "(no message)");
    };
    const int setup = format == ArchiveFormat::Zip ? archive_write_set_format_zip(a)
                                                   : archive_write_set_format_pax_restricted(a);
    if (setup != ARCHIVE_OK ||
        (format == ArchiveFormat::TarGz && archive_write_add_filter_gzip(a) != ARCHIVE_OK))
        return failure(FormatName(format) + " writer setup");
    if (archive_write_open_filename(a, path.c_str()) != ARCHIVE_OK)
        return failure("open");
    for (const ArchiveItem& item : items) {
        const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(),
                                                                             archive_entry_free);
        archive_entry_set_pathname(entry.get(), item.path.c_str());
        archive_entry_set_filetype(entry.get(), item.folder ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry.get(), item.perm);
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(item.data.size()));
        archive_entry_set_mtime(entry.get(), item.mtime, 0);
        archive_entry_set_uid(entry.get(), item.uid);
        if (archive_write_header(a, entry.get()) != ARCHIVE_OK)
            return failure("header of '" + item.path + "'");
        if (!item.data.empty() && archive_write_data(a, item.data.data(), item.data.size()) !=
                                      static_cast<la_ssize_t>(item.data.size()))
            return failure("data of '" + item.path + "'");
    }
    return archive_write_close(a) == ARCHIVE_OK ? ::testing::AssertionSuccess() : failure("closing");
}

std::string NoiseBytes(size_t size, unsigned seed)
{
    std::mt19937 engine(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(engine() & 0xff);
    return bytes;
}
