// Packing a bundle and checking a package, over libarchive.
//
// Every entry is written with fixed owner, times and permissions so that
// the same folder always gives the same bytes, and the UI executable and
// the version file go last: an extraction that stops early leaves one of
// them missing, which the launcher takes for an incomplete installation.
#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <cerrno>
#include <cstring>
#include <memory>
#include <zstd.h>

#include "vpkpack_p.h"

namespace vpkpack {

namespace {

// Same block size as the launcher's reader.
constexpr size_t kBlockSize = 10240;
constexpr size_t kCopyChunk = 65536;
// The errno libarchive sets for data that is no archive it knows (its own
// name for it, ARCHIVE_ERRNO_FILE_FORMAT, is private to it).
constexpr int kUnknownFormat = EILSEQ;

struct WriterFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
struct ReaderFree {
    void operator()(archive* a) const { archive_read_free(a); }
};
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};
using Writer = std::unique_ptr<archive, WriterFree>;
using Reader = std::unique_ptr<archive, ReaderFree>;
using ArchiveEntry = std::unique_ptr<archive_entry, EntryFree>;

Status ArchiveFailure(archive* a, const std::string& entry)
{
    const char* text = archive_error_string(a);
    return Refuse(Error::ArchiveError, entry, text != nullptr ? text : "unknown libarchive error");
}

// The threads that compress a tar.zst package: as many as asked for, else
// one per processor; past eight, zstd's jobs on a bundle of a few hundred
// megabytes are too few to keep more busy, and each costs memory.
int Threads(const PackOptions& options)
{
    return options.threads > 0 ? options.threads : std::min(platform::ProcessorCount(), 8);
}

// The first of a run's refusals, handing all of them to refused if given.
Status Refused(const std::vector<Status>& refusals, std::vector<Status>* refused)
{
    if (refused != nullptr) {
        *refused = refusals;
    }
    return refusals.front();
}

// Format, filter and their options on a fresh writer; nothing is written.
Status ConfigureWriter(archive* a, Format format, const std::string& output)
{
    int r = ARCHIVE_OK;
    if (format == Format::Zip) {
        r = archive_write_set_format_zip(a);
        if (r == ARCHIVE_OK) {
            r = archive_write_zip_set_compression_deflate(a);
        }
        if (r == ARCHIVE_OK) {
            r = archive_write_set_format_option(a, "zip", "compression-level", "9");
        }
        return r == ARCHIVE_OK ? Status() : ArchiveFailure(a, output);
    }
    // Restricted pax is plain ustar unless a name needs more. Names are
    // stored as the bytes they are on disk (UTF-8 on the Mac) and flagged
    // binary, so that no reader, whatever its locale, tries to convert them.
    r = archive_write_set_format_pax_restricted(a);
    if (r == ARCHIVE_OK) {
        r = archive_write_set_format_option(a, "pax", "hdrcharset", "BINARY");
    }
    if (r == ARCHIVE_OK) {
        switch (format) {
        case Format::TarZst:
            // Compressed by ZstdSink when the writer is opened.
            break;
        case Format::TarGz:
            r = archive_write_add_filter_gzip(a);
            if (r == ARCHIVE_OK) {
                r = archive_write_set_filter_option(a, "gzip", "compression-level", "9");
            }
            // Without this the gzip header carries the time of packing.
            if (r == ARCHIVE_OK) {
                r = archive_write_set_filter_option(a, "gzip", "timestamp", nullptr);
            }
            break;
        case Format::TarXz:
            r = archive_write_add_filter_xz(a);
            break;
        case Format::Zip:
            break;
        }
    }
    if (r == ARCHIVE_OK) {
        r = archive_write_set_bytes_per_block(a, static_cast<int>(kBlockSize));
    }
    return r == ARCHIVE_OK ? Status() : ArchiveFailure(a, output);
}

// The header of one entry, with everything that varies between machines
// and checkouts (owners, times, umask) fixed.
ArchiveEntry MakeHeader(const Entry& entry, int64_t size, time_t mtime)
{
    ArchiveEntry header(archive_entry_new());
    if (!header) {
        return header;
    }
    archive_entry_set_pathname(header.get(), entry.name.c_str());
    switch (entry.type) {
    case EntryType::Folder:
        archive_entry_set_filetype(header.get(), AE_IFDIR);
        archive_entry_set_perm(header.get(), 0755);
        break;
    case EntryType::Symlink:
        archive_entry_set_filetype(header.get(), AE_IFLNK);
        archive_entry_set_perm(header.get(), 0755);
        archive_entry_set_symlink(header.get(), entry.link_target.c_str());
        break;
    case EntryType::File:
    case EntryType::Other:
        archive_entry_set_filetype(header.get(), AE_IFREG);
        archive_entry_set_perm(header.get(), entry.executable ? 0755 : 0644);
        archive_entry_set_size(header.get(), size);
        break;
    }
    archive_entry_set_uid(header.get(), 0);
    archive_entry_set_gid(header.get(), 0);
    archive_entry_set_mtime(header.get(), mtime, 0);
    return header;
}

Status WriteData(archive* a, const char* data, size_t size, const std::string& entry)
{
    const la_ssize_t written = archive_write_data(a, data, size);
    if (written < 0 || static_cast<size_t>(written) != size) {
        return ArchiveFailure(a, entry);
    }
    return {};
}

// Streams a file into the current entry; a file that grew or shrank since
// its header was written would leave a corrupt entry, so it is refused.
Status CopyFileData(archive* a, const Entry& entry)
{
    platform::InputFile file;
    Status status = file.Open(entry.source, entry.name);
    std::unique_ptr<char[]> buffer(new char[kCopyChunk]);
    int64_t total = 0;
    while (status.ok()) {
        size_t got = 0;
        status = file.Read(buffer.get(), kCopyChunk, &got);
        if (!status.ok() || got == 0) {
            break;
        }
        total += static_cast<int64_t>(got);
        if (total > entry.size) {
            return Refuse(Error::ChangedWhilePacking, entry.name);
        }
        status = WriteData(a, buffer.get(), got, entry.name);
    }
    if (status.ok() && total != entry.size) {
        return Refuse(Error::ChangedWhilePacking, entry.name);
    }
    return status;
}

// Writes the entries, in order, as a package on fd. The version file's
// bytes are the ones already validated, not a second read from disk.
Status WritePackage(int fd, const std::string& output, const std::vector<Entry>& entries,
                    const std::string& info_data, const PackOptions& options)
{
    // Before the writer: freeing a writer that was not closed closes it,
    // which still ends the zstd frame.
    ZstdSink zstd;
    Writer writer(archive_write_new());
    if (!writer) {
        return Refuse(Error::ArchiveError, output, "cannot allocate an archive writer");
    }
    Status status = ConfigureWriter(writer.get(), options.format, output);
    if (!status.ok()) {
        return status;
    }
    const bool opened = options.format == Format::TarZst
                            ? zstd.Open(writer.get(), fd, options.level, Threads(options))
                            : archive_write_open_fd(writer.get(), fd) == ARCHIVE_OK;
    if (!opened) {
        return ArchiveFailure(writer.get(), output);
    }
    // A failed write of the package itself (a full disk, say) is told as
    // such, not as whatever libarchive was doing at the time.
    const auto failed = [&zstd, &output](const Status& status) {
        return zstd.WriteError() != 0 ? platform::FromErrno(zstd.WriteError(), output) : status;
    };
    for (const Entry& entry : entries) {
        const bool is_info = entry.name == kInfoEntry;
        const int64_t size = is_info ? static_cast<int64_t>(info_data.size()) : entry.size;
        ArchiveEntry header = MakeHeader(entry, size, options.mtime);
        if (!header) {
            return Refuse(Error::ArchiveError, entry.name, "cannot allocate an entry");
        }
        if (archive_write_header(writer.get(), header.get()) != ARCHIVE_OK) {
            return failed(ArchiveFailure(writer.get(), entry.name));
        }
        if (entry.type == EntryType::File) {
            status = is_info ? WriteData(writer.get(), info_data.data(), info_data.size(), entry.name)
                             : CopyFileData(writer.get(), entry);
            if (!status.ok()) {
                return failed(status);
            }
        }
        if (archive_write_finish_entry(writer.get()) != ARCHIVE_OK) {
            return failed(ArchiveFailure(writer.get(), entry.name));
        }
    }
    const bool closed = archive_write_close(writer.get()) == ARCHIVE_OK;
    return failed(closed ? Status() : ArchiveFailure(writer.get(), output));
}

// OutputInsideBundle when path would be written somewhere below bundle_dir.
Status RefuseInside(const std::string& bundle_dir, const std::string& path)
{
    bool inside = false;
    Status status = platform::IsInside(bundle_dir, path, &inside);
    if (status.ok() && inside) {
        return Refuse(Error::OutputInsideBundle, path);
    }
    return status;
}

const Entry* Find(const std::vector<Entry>& entries, const std::string& name)
{
    for (const Entry& entry : entries) {
        if (entry.name == name) {
            return &entry;
        }
    }
    return nullptr;
}

// Reads the current entry's data whole (up to kSmallFileLimit) when keep
// is given, else only reads through it, which still verifies checksums.
Status ReadEntryData(archive* a, const std::string& name, std::string* keep)
{
    const void* block = nullptr;
    size_t size = 0;
    la_int64_t offset = 0;
    for (;;) {
        const int r = archive_read_data_block(a, &block, &size, &offset);
        if (r == ARCHIVE_EOF) {
            return {};
        }
        if (r != ARCHIVE_OK) {
            return ArchiveFailure(a, name);
        }
        if (keep == nullptr) {
            continue;
        }
        if (offset < 0 || static_cast<uint64_t>(offset) + size > kSmallFileLimit) {
            return Refuse(Error::TooLarge, name);
        }
        if (keep->size() < static_cast<size_t>(offset) + size) {
            keep->resize(static_cast<size_t>(offset) + size, '\0');
        }
        keep->replace(static_cast<size_t>(offset), size, static_cast<const char*>(block), size);
    }
}

// A file that libarchive recognises no archive in.
Status NotAPackage(archive* a, const std::string& package)
{
    const char* text = archive_error_string(a);
    return Refuse(Error::NotAPackage, package, text != nullptr ? text : "");
}

// Every entry of the package, in stored order, with the data of the
// version file and of the property list kept aside.
Status ReadEntries(const std::string& package, std::vector<Entry>* entries, int* headers,
                   std::string* info_data, std::string* plist_data, bool* plist_present,
                   std::vector<Status>* refusals)
{
    Reader reader(archive_read_new());
    if (!reader) {
        return Refuse(Error::ArchiveError, package, "cannot allocate an archive reader");
    }
    if (archive_read_support_filter_all(reader.get()) != ARCHIVE_OK ||
        archive_read_support_format_all(reader.get()) != ARCHIVE_OK) {
        return ArchiveFailure(reader.get(), package);
    }
    if (archive_read_open_filename(reader.get(), package.c_str(), kBlockSize) != ARCHIVE_OK) {
        const int e = archive_errno(reader.get());
        if (e == EISDIR) {
            return Refuse(Error::NotAPackage, package, "a folder");
        }
        // A package cut short or damaged near its start fails here too,
        // with another error.
        if (e == kUnknownFormat) {
            return NotAPackage(reader.get(), package);
        }
        return e > 0 ? platform::FromErrno(e, package) : ArchiveFailure(reader.get(), package);
    }
    std::string last = package;
    for (;;) {
        archive_entry* header = nullptr;
        const int r = archive_read_next_header(reader.get(), &header);
        if (r == ARCHIVE_EOF) {
            break;
        }
        // The launcher stops at warnings too.
        if (r != ARCHIVE_OK) {
            return *headers == 0 && archive_errno(reader.get()) == kUnknownFormat
                       ? NotAPackage(reader.get(), package)
                       : ArchiveFailure(reader.get(), last);
        }
        ++*headers;
        // An entry whose name is refused is left out of the other rules.
        Entry entry;
        Status status = pkgrules::EntryFromHeader(header, pkgrules::Names::Relative, &entry);
        if (!status.ok()) {
            refusals->push_back(status);
        }
        last = entry.name.empty() ? pkgrules::StoredName(header) : entry.name;
        // A second entry of the same name is refused as a duplicate; its
        // data is not taken for the first one's.
        const bool again =
            (entry.name == kInfoEntry || entry.name == kPlistEntry) && Find(*entries, entry.name) != nullptr;
        std::string* keep = nullptr;
        if (status.ok() && !again && entry.type == EntryType::File && entry.name == kInfoEntry) {
            keep = info_data;
        } else if (status.ok() && !again && entry.type == EntryType::File && entry.name == kPlistEntry) {
            keep = plist_data;
            *plist_present = true;
        } else if (status.ok() && !again && entry.name == kPlistEntry) {
            refusals->push_back(Refuse(Error::NotRegularFile, kPlistEntry));
        }
        const Status read = ReadEntryData(reader.get(), last, keep);
        if (!read.ok()) {
            return read;
        }
        // The bundle root itself ("./") is just the destination folder.
        if (status.ok() && !entry.name.empty()) {
            entries->push_back(entry);
        }
    }
    if (archive_read_close(reader.get()) != ARCHIVE_OK) {
        return ArchiveFailure(reader.get(), package);
    }
    return *headers == 0 ? Refuse(Error::NotAPackage, package, "no entries") : Status();
}

} // namespace

const char* FormatName(Format format)
{
    switch (format) {
    case Format::TarZst:
        return "tar.zst";
    case Format::Zip:
        return "zip";
    case Format::TarGz:
        return "tar.gz";
    case Format::TarXz:
        return "tar.xz";
    }
    return "unknown";
}

bool ParseFormat(const std::string& name, Format* format)
{
    for (Format candidate : {Format::TarZst, Format::Zip, Format::TarGz, Format::TarXz}) {
        if (name == FormatName(candidate)) {
            *format = candidate;
            return true;
        }
    }
    return false;
}

bool FormatOfName(const std::string& path, Format* format)
{
    static const struct {
        const char* ending;
        Format format;
    } endings[] = {{".tar.zst", Format::TarZst}, {".tzst", Format::TarZst}, {".zip", Format::Zip},
                   {".tar.gz", Format::TarGz},   {".tgz", Format::TarGz},   {".tar.xz", Format::TarXz},
                   {".txz", Format::TarXz}};
    for (const auto& e : endings) {
        const size_t n = std::strlen(e.ending);
        if (path.size() > n && path.compare(path.size() - n, n, e.ending) == 0) {
            *format = e.format;
            return true;
        }
    }
    return false;
}

std::string VersionText()
{
    return std::string(VPKPACK_VERSION) + " (" + archive_version_string() + ", zstd " + ZSTD_versionString() +
           ")";
}

Status Pack(const std::string& bundle_dir, const std::string& output, const PackOptions& options,
            PackageSummary* summary, std::vector<Status>* refused)
{
    // A mistyped output folder is named as such before anything is read.
    Status status = platform::CheckOutputFolder(output);
    if (status.ok() && !options.info_out.empty()) {
        status = platform::CheckOutputFolder(options.info_out);
    }
    // A package written into the bundle would end up inside the next one.
    if (status.ok()) {
        status = RefuseInside(bundle_dir, output);
    }
    if (status.ok() && !options.info_out.empty()) {
        status = RefuseInside(bundle_dir, options.info_out);
    }
    std::vector<Entry> entries;
    if (status.ok()) {
        status = platform::ScanTree(bundle_dir, &entries);
    }
    if (!status.ok()) {
        return status;
    }

    // Every rule is applied before any refusal is reported, so that one run
    // names every entry to mend.
    std::vector<Status> refusals;
    std::string plist;
    const Entry* plist_entry = Find(entries, kPlistEntry);
    if (plist_entry != nullptr && plist_entry->type != EntryType::File) {
        refusals.push_back(Refuse(Error::NotRegularFile, kPlistEntry));
    } else if (plist_entry != nullptr) {
        status = platform::ReadSmallFile(plist_entry->source, kPlistEntry, kSmallFileLimit, &plist);
        if (!status.ok()) {
            return status;
        }
    }
    std::string ui_entry = layout::kUiEntry;
    status =
        UiEntryFromPlist(plist, plist_entry != nullptr && plist_entry->type == EntryType::File, &ui_entry);
    if (!status.ok()) {
        refusals.push_back(status);
    }
    SortForPackage(&entries, ui_entry);
    CheckEntries(entries, &refusals);
    CheckBundleFiles(entries, ui_entry, &refusals);
    std::string info_data;
    PackageSummary found;
    const Entry* info = Find(entries, kInfoEntry);
    if (info != nullptr && info->type == EntryType::File) {
        status = platform::ReadSmallFile(info->source, kInfoEntry, kSmallFileLimit, &info_data);
        if (!status.ok()) {
            return status;
        }
        status = ParseVersionFile(info_data, &found.version);
        if (!status.ok()) {
            refusals.push_back(status);
        }
    }
    if (!refusals.empty()) {
        return Refused(refusals, refused);
    }
    found.entries = static_cast<int>(entries.size());

    platform::OutputFile package;
    status = package.Create(output);
    if (status.ok()) {
        status = WritePackage(package.fd(), output, entries, info_data, options);
    }
    platform::OutputFile launcher_info;
    if (status.ok() && !options.info_out.empty()) {
        std::string text;
        status = FormatVersionFile(found.version, &text);
        if (status.ok()) {
            status = launcher_info.Create(options.info_out);
        }
        if (status.ok()) {
            status = launcher_info.Write(text);
        }
    }
    if (status.ok()) {
        status = package.Commit();
    }
    if (status.ok() && !options.info_out.empty()) {
        status = launcher_info.Commit();
    }
    if (status.ok() && summary != nullptr) {
        *summary = found;
    }
    return status;
}

Status Check(const std::string& package, PackageSummary* summary, std::vector<Status>* refused)
{
    std::vector<Entry> entries;
    int headers = 0;
    std::string info_data;
    std::string plist;
    bool plist_present = false;
    std::vector<Status> refusals;
    Status status = ReadEntries(package, &entries, &headers, &info_data, &plist, &plist_present, &refusals);
    if (!status.ok()) {
        return status;
    }
    CheckEntries(entries, &refusals);
    std::string ui_entry = layout::kUiEntry;
    status = UiEntryFromPlist(plist, plist_present, &ui_entry);
    if (!status.ok()) {
        refusals.push_back(status);
    }
    const size_t before = refusals.size();
    CheckBundleFiles(entries, ui_entry, &refusals);
    PackageSummary found;
    const Entry* info = Find(entries, kInfoEntry);
    if (info != nullptr && info->type == EntryType::File) {
        status = ParseVersionFile(info_data, &found.version);
        if (!status.ok()) {
            refusals.push_back(status);
        }
    }
    // Where the two files are missing, their place says nothing more.
    if (refusals.size() == before) {
        status = CheckOrder(entries, ui_entry);
        if (!status.ok()) {
            refusals.push_back(status);
        }
    }
    if (!refusals.empty()) {
        return Refused(refusals, refused);
    }
    if (summary != nullptr) {
        found.entries = headers;
        *summary = found;
    }
    return {};
}

Status ReadVersionFile(const std::string& path, VersionInfo* info)
{
    std::string data;
    Status status = platform::ReadSmallFile(path, path, kSmallFileLimit, &data);
    if (status.ok()) {
        status = ParseVersionFile(data, info);
        status.entry = path;
    }
    return status;
}

} // namespace vpkpack
