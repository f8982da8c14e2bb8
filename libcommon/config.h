// Config: reads key=value files (the log-level file, the UI's pid file)
// into an ordered map. Writes nothing and logs nothing.
#pragma once

#include <map>

#include "ustring.h"

class Config {
public:
    // Adds the file's pairs to entries (last occurrence wins). Returns 0,
    // or -1 for an empty path, an unopenable file (entries unchanged) or a
    // syntax error on any line (entries emptied). A read error ends the
    // reading like the end of the file.
    int read(const ustring& path);
    // Parses one NUL-terminated line in place (writes NULs into it).
    // Returns 0 with key and value set, 1 for a blank or comment line,
    // 2 for a syntax error. len is not consulted.
    int parse(char* line, int len, ustring& key, ustring& value);
    // The value of key read as a decimal int, 0 when it holds none. A
    // missing key is inserted with an empty value.
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
    bool keep_quotes = false;
};
