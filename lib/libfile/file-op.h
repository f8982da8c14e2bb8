// file-op: the file-system operations of the installation service, as free
// functions on UTF-8 paths. Results: 0 for success, a negative code for a
// failure (as documented per function), or bool for predicates. Nothing
// throws on a file-system error; failures are logged under "file_op_debug".
#pragma once

#include <cstdint>
#include <dirent.h>

#include "ustring.h"

// File type codes, as stored in _FILE_INFO_tag::type and DIR_ENTRY::type.
enum {
    FS_TYPE_NONE = 0, // missing, or a type that is not known
    FS_TYPE_REGULAR = 1,
    FS_TYPE_DIR = 2,
    FS_TYPE_SYMLINK = 3, // the link itself, never its target
    FS_TYPE_DEVICE = 5,  // character or block device
    FS_TYPE_FIFO = 6,
    FS_TYPE_SOCKET = 7,
};

// DIR_HANDLE::flags: FSReadDir also fills each entry's mtime and size.
enum { FS_DIR_STAT = 1 };

typedef struct _FILE_INFO_tag {
    ustring path; // after a successful look-up of an existing file: its canonical path
    ustring name; // last component of path
    int type;
    long mtime; // seconds since 1970
    int64_t size;
    bool exist;
    uint32_t uid;
    uint32_t gid;
    uint32_t mode; // the 16-bit mode word, type and permission bits
    int64_t dev;

    _FILE_INFO_tag();
    // Compares exist, size, mtime, type, path and name; owner, mode and
    // device take no part.
    bool operator==(const _FILE_INFO_tag& other) const;
    bool operator!=(const _FILE_INFO_tag& other) const { return !(*this == other); }
} FILE_INFO;

struct DIR_HANDLE {
    ustring path; // as passed to FSOpenDir
    int flags;
    DIR* dir; // null when closed

    DIR_HANDLE() : flags(0), dir(nullptr) {}
};

struct DIR_ENTRY {
    ustring name;
    int type;     // from the folder entry itself
    long mtime;   // 0 unless FS_DIR_STAT
    int64_t size; // 0 unless FS_DIR_STAT

    DIR_ENTRY() : type(FS_TYPE_NONE), mtime(0), size(0) {}
};

// Path text ---------------------------------------------------------------

// Text before the last "/"; "/" when that is the first byte or there is none.
ustring FSParentPath(const ustring& path);
// Text after the last "/": the whole path without one, empty after a final "/".
ustring FSBaseName(const ustring& path);
// Whether child is parent itself or lies below it (/a is no parent of /ab).
bool FSIsParentFolder(const ustring& parent, const ustring& child);
bool FSTimeEqual(long a, long b);

// Access tests (mode as for access(2)) ---------------------------------------

// True only when access is refused (EACCES or EPERM).
bool isFileLocked(const ustring& path, int mode);
// False only when access is refused; a missing path counts as permitted.
bool hasFilePermission(const ustring& path, int mode);

// Looking --------------------------------------------------------------------

// Fills info from lstat and the canonical path. A missing path gives 0 with
// exist false. -1 on any other failure, with the fields set so far kept.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// Whether the path exists; with exact, only when spelled as the file system
// records it (no other letter case, no linked folder on the way).
bool IsFileExist(const ustring& path, bool exact);
// 0 with info filled; 0 with only exist cleared when the path does not exist
// (see IsFileExist); -1 for an empty path; -2 when the look-up failed.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

// 0 with handle open on the folder, or -1.
int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);
// 1 with entry filled, 0 after the last entry, -1 on error. "." and ".." are
// returned like any other entry.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
// Closes the stream and clears the handle.
void FSCloseDir(DIR_HANDLE& handle);
// Logs why the folder at path could not be opened (or, reading set, listed),
// as FSOpenDir and FSReadDir do, for walks that read folders themselves.
void FSReportDirFailure(const ustring& path, bool reading, int error);

// Whether the path lies on a network file system (NFS, SMB, AFP).
bool isMountPoint(const ustring& path);
// Whether the path lies on an MS-DOS (FAT) file system.
bool IsMSDOS(const ustring& path);
// Replaces path by its canonical path with a final link followed: 0, or -1
// with path unchanged.
int FSGetRealPath(ustring& path);
// 0 with target set to the link's text (at most 1023 bytes), or -1.
int FSReadSymbolicLink(const ustring& link, ustring& target);

// Changing -----------------------------------------------------------------

// Creates path and every missing parent with mode (0xFFFF: 0777 under the
// umask; any other mode applies exactly). force replaces a non-folder in the
// way. 0 or -1; folders made before a failure stay. If end is not null it
// points into path.c_str(): at the end of the path on success, just after the
// failing component otherwise.
int FSMKDirP(const ustring& path, const char** end, bool force, unsigned short mode);
// 0 when path is (now) a folder; -1 when it cannot be examined or is another
// kind of file; -2 when creating it failed.
int FSMKDir(const ustring& path, bool parents);
// Creates target's folders below the existing root one level at a time: 0 or -1.
int FSMKDirFromRoot(const ustring& target, const ustring& root);
// Copies the bytes of source into destination (created or truncated), then
// removes source if asked: 0, -1, or -2 when the destination ran out of space.
// A failed copy leaves the partial destination and always keeps the source.
int FSCopy(const ustring& source, const ustring& destination, bool remove_source);
// Moves a file or folder, across devices too: 0; -1 for an empty path; -2 when
// source does not exist; -3 when the move failed; -100 for an overlong name.
int FSRename(const ustring& source, const ustring& destination, bool exact);
// Removes a file, a link (never its target) or a whole tree: 0 (also for a
// missing path), -1 when the path cannot be examined, -3 when removal failed.
int FSRemove(const ustring& path, bool flag);
// Gives the user back read, write and search permission on every folder of
// the tree at path that they own, without following links, so that FSRemove
// is not stopped by a folder they cannot write. Failures are left for
// FSRemove to meet.
void FSMakeRemovable(const ustring& path);
// Writes everything the file system holding the folder path has in memory to
// disk and waits for it: 0, or -1 after logging why.
int FSSyncFileSystem(const ustring& path);
// Creates an empty file of mode 0644 with a unique name in folder: 0 with out
// set to its path, or -1.
int FSMktemp(const ustring& folder, ustring& out);
// Sets out to an unused-looking path in folder; creates nothing. 0 or -1.
int FSCreateTempPath(const ustring& folder, ustring& out);
// Sets the times of path itself (not a link's target), in whole seconds: 0 or -1.
int FSUTime(const ustring& path, long access_time, long modification_time);
int FSCreateSymbolicLink(const ustring& target, const ustring& link);
// Changes the owner of path itself (not a link's target): 0 or -1.
int FSChown(const ustring& path, unsigned int uid, unsigned int gid);
