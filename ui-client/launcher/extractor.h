// Extractor: unpacks the package archive below a destination folder with
// libarchive, reporting each written entry through Notify_Adapter.
#pragma once

#include "ustring.h"

struct archive;

class Extractor {
public:
    // Number of entries in archive_path (0 or more), or -1 when either path
    // is empty, the archive cannot be opened or an entry is refused: a hard
    // link, a device or FIFO, a symbolic link that is absolute or leads out
    // of dest_dir, an entry below a symbolic link of the archive, a name
    // with "..", and with check_bundle an archive without the client
    // bundle's UI executable or version file. Writes nothing to disk.
    int Count();

    // Prints every entry's path name on a line of its own to standard
    // output. 0, or -1 when either path is empty or the archive cannot be
    // opened.
    int List();

    // Writes every entry of archive_path below dest_dir, whatever path it
    // carries, and reports (total, n) after entry n. 0 when every entry was
    // written; -1 at the first failure, leaving the entries already written
    // on disk.
    int Extract();

    // Copies the data of the entry that in is positioned on to the entry
    // that out has open. 0 at the end of the data, -1 on a null handle or
    // on the first read or write failure.
    int copy_data(archive* in, archive* out);

    ustring dest_dir;
    ustring archive_path;
    // Whether the archive must hold a client bundle (see Count).
    bool check_bundle = false;
};
