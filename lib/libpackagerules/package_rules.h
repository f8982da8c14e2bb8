// What makes the entries of a package safe to extract below the user's
// bundle: no hard links, devices or FIFOs, no symbolic link that is
// absolute, leads out of the bundle or has entries below it, no ".." in a
// name, and the bundle's own files where the launcher looks for them.
// vpkpack applies these rules when it packs or checks a package, and the
// launcher's extractor before it writes an entry, so both refuse the same
// things in the same words.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct archive_entry;

namespace pkgrules {

enum class Error {
    None,
    // File-system failures, mapped from errno.
    NotFound,
    PermissionDenied,
    NoSpace,
    IoError,
    // Inputs and outputs that are not what they must be.
    NotAFolder,
    NoOutputFolder,
    NotAPackage,
    OutputInsideBundle,
    ArchiveError,
    ChangedWhilePacking,
    TooLarge,
    // Entries that would be unsafe or useless to extract.
    HardLink,
    AbsoluteSymlink,
    EscapingSymlink,
    SymlinkLoop,
    BelowSymlink,
    DotDotName,
    AbsoluteName,
    UnsupportedType,
    DuplicateEntry,
    // The bundle's own files.
    MissingInfo,
    BadInfo,
    MissingBuildVersion,
    BadBuildVersion,
    BadInfoPlist,
    ForeignUiName,
    MissingUi,
    UiNotExecutable,
    NotRegularFile,
    OutOfOrder,
    // A launcher bundle's own files.
    NotExecutable,
    NoPlatformPlugin,
    BuildMismatch,
};

struct Status {
    Error error = Error::None;
    std::string entry;  // the entry or path the failure concerns
    std::string detail; // system or libarchive text; may be empty

    bool ok() const { return error == Error::None; }
    // "<reason>: '<entry>'", followed by " (<detail>)" when there is one.
    std::string Message() const;
};

// A failed Status for entry, with the system's or libarchive's text.
Status Refuse(Error error, const std::string& entry, const std::string& detail = {});

enum class EntryType { Folder, File, Symlink, Other };

// One entry, whether found on disk or read from a package.
struct Entry {
    std::string name; // relative to the bundle root, no "." parts, no trailing "/"
    EntryType type = EntryType::Other;
    bool executable = false; // any execute bit
    bool hard_link = false;  // a tar hard link, or a file with more than one link
    std::string link_target;
    int64_t size = 0;
    std::string source; // packing only: the path on disk
};

// How a stored name that begins with "/" is taken.
enum class Names {
    Relative,  // refused, as vpkpack writes no such name
    BelowRoot, // taken below the bundle root, where the launcher's extractor writes it
};

// Turns a stored entry name into Entry::name form, refusing absolute names
// (unless names says otherwise) and ".." parts. The bundle root itself
// ("." or "./") becomes "".
Status NormaliseName(const std::string& stored, Names names, std::string* name);

// The entry's stored name as the extractor uses it: the stored bytes, or
// their UTF-8 form when there are none; "" when neither is there.
const char* StoredName(archive_entry* header);

// The entry that a libarchive header describes, its name normalised.
Status EntryFromHeader(archive_entry* header, Names names, Entry* entry);

// Hard links, unsupported types, duplicates, entries below a symbolic link
// and symbolic links that are absolute, leave the bundle or loop. Returns
// the first refusal in the entries' order; with all given, also appends to
// it every entry refused, each once, under the first rule it breaks.
Status CheckEntries(const std::vector<Entry>& entries, std::vector<Status>* all = nullptr);

// The version file must be a regular file, the UI executable (entry name
// ui_entry) an executable one. Returns the first refusal; with all given,
// also appends to it the refusal of each of the two.
Status CheckBundleFiles(const std::vector<Entry>& entries, const std::string& ui_entry,
                        std::vector<Status>* all = nullptr);

} // namespace pkgrules
