// Extractor: unpacks the package archive below a destination folder with
// libarchive, reporting each written entry through Notify_Adapter.
#pragma once

#include "ustring.h"

struct archive;

class Extractor {
public:
    // Number of entries in archive_path (0 or more), or -1 when either path
    // is empty or the archive cannot be opened. Writes nothing to disk.
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
};
