#include "archive_builder.h"

#include <archive.h>
#include <archive_entry.h>
#include <cstring>
#include <memory>
#include <random>
#include <sys/sysmacros.h>

namespace {

using Handle = std::unique_ptr<archive, int (*)(archive*)>;

::testing::AssertionResult Failure(archive* a, const std::string& what)
{
    const char* text = archive_error_string(a);
    return ::testing::AssertionFailure() << what << ": " << (text != nullptr ? text : "(no message)");
}

} // namespace

::testing::AssertionResult WriteArchive(const std::string& path, ArchiveFormat format,
                                        const std::vector<ArchiveItem>& items)
{
    const Handle writer(archive_write_new(), archive_write_free);
    archive* a = writer.get();
    if ((format == ArchiveFormat::Zip ? archive_write_set_format_zip(a)
                                      : archive_write_set_format_pax_restricted(a)) != ARCHIVE_OK ||
        (format == ArchiveFormat::TarGz && archive_write_add_filter_gzip(a) != ARCHIVE_OK) ||
        archive_write_open_filename(a, path.c_str()) != ARCHIVE_OK)
        return Failure(a, path + ": opening");
    for (const ArchiveItem& item : items) {
        const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(),
                                                                             archive_entry_free);
        archive_entry* e = entry.get();
        archive_entry_set_pathname(e, item.path.c_str());
        // The kinds in the order of their types; any other kind is a file.
        const char* const kinds = "dlpc";
        const unsigned types[] = {AE_IFDIR, AE_IFLNK, AE_IFIFO, AE_IFCHR, AE_IFREG};
        archive_entry_set_filetype(e, types[strchrnul(kinds, item.kind) - kinds]);
        archive_entry_set_rdev(e, item.kind == 'c' ? makedev(1, 5) : 0);
        archive_entry_set_perm(e, item.perm);
        archive_entry_set_size(e, static_cast<la_int64_t>(item.data.size()));
        archive_entry_set_mtime(e, item.mtime, 0);
        archive_entry_set_uid(e, item.uid);
        (item.kind == 'h' ? archive_entry_set_hardlink
                          : archive_entry_set_symlink)(e, item.link.empty() ? nullptr : item.link.c_str());
        if (archive_write_header(a, e) != ARCHIVE_OK ||
            archive_write_data(a, item.data.data(), item.data.size()) < 0)
            return Failure(a, path + ": " + item.path);
    }
    return archive_write_close(a) == ARCHIVE_OK ? ::testing::AssertionSuccess() : Failure(a, path);
}

::testing::AssertionResult ReadArchive(const std::string& path, std::vector<ArchiveItem>* items)
{
    const Handle reader(archive_read_new(), archive_read_free);
    archive* a = reader.get();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    if (archive_read_open_filename(a, path.c_str(), 10240) != ARCHIVE_OK)
        return Failure(a, path);
    archive_entry* e = nullptr;
    int r;
    while ((r = archive_read_next_header(a, &e)) == ARCHIVE_OK) {
        const auto text = [](const char* t) { return std::string(t != nullptr ? t : ""); };
        const unsigned type = archive_entry_filetype(e);
        const bool hard = archive_entry_hardlink(e) != nullptr;
        const char kind = hard ? 'h' : type == AE_IFDIR ? 'd' : type == AE_IFLNK ? 'l' : 'f';
        items->push_back({archive_entry_pathname(e), "", kind, archive_entry_perm(e),
                          text(hard ? archive_entry_hardlink(e) : archive_entry_symlink(e)),
                          archive_entry_mtime(e), archive_entry_uid(e), archive_entry_gid(e),
                          text(archive_entry_uname(e))});
        char buffer[8192];
        la_ssize_t n;
        while ((n = archive_read_data(a, buffer, sizeof buffer)) > 0)
            items->back().data.append(buffer, static_cast<size_t>(n));
        if (n < 0)
            return Failure(a, path + ": data of " + items->back().path);
    }
    return r == ARCHIVE_EOF ? ::testing::AssertionSuccess() : Failure(a, path);
}

std::string NoiseBytes(size_t size, unsigned seed)
{
    std::mt19937 engine(seed);
    std::string bytes(size, '\0');
    for (char& c : bytes)
        c = static_cast<char>(engine() & 0xff);
    return bytes;
}
