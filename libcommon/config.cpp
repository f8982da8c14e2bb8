#include "config.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "regular_file.h"

namespace {

// One fgets buffer: a longer line is consumed, and parsed, in pieces of
// sizeof - 1 bytes.
const int kLineBufferSize = 8192;

enum ParseResult { PARSE_PAIR = 0, PARSE_NOTHING = 1, PARSE_SYNTAX_ERROR = 2 };

bool IsBlank(unsigned char c)
{
    return c == ' ' || (c >= 0x09 && c <= 0x0D);
}

bool IsKeyChar(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

// Bytes that may not appear inside a value, quoted or not: C0 controls
// (TAB and LF among them, and the terminating NUL) and DEL.
bool IsControl(unsigned char c)
{
    return c < 0x20 || c == 0x7F;
}

unsigned char* SkipBlanks(unsigned char* p)
{
    while (IsBlank(*p)) {
        ++p;
    }
    return p;
}

} // namespace

// Returns 0 with the file's pairs merged into entries; -1 for an empty path
// or a file that cannot be opened, is no regular file or is larger than a
// small file (entries untouched), for a read error or more bytes than a
// small file holds (pairs read before it are kept) and for a syntax error
// (entries emptied).
int Config::read(const ustring& path)
{
    if (path.empty()) {
        return -1;
    }
    // A FIFO or a device in the file's place would block or never end; it
    // reads as a file that cannot be opened, and so does one too large to
    // be a file of this kind.
    const int fd = platform::OpenRegularFile(path.c_str_utf8(), O_RDONLY);
    struct stat st;
    if (fd < 0 && errno == EINVAL && stat(path.c_str_utf8(), &st) == 0 && S_ISDIR(st.st_mode)) {
        // A folder would open, and its first read would fail, which ends the
        // reading like the end of the file: it holds no pairs.
        return 0;
    }
    if (fd >= 0 &&
        (fstat(fd, &st) != 0 || static_cast<unsigned long long>(st.st_size) > platform::kSmallFileLimit)) {
        close(fd);
        return -1;
    }
    FILE* fp = fd < 0 ? nullptr : fdopen(fd, "r");
    if (fp == nullptr) {
        if (fd >= 0) {
            close(fd);
        }
        return -1;
    }

    int result = 0;
    size_t consumed = 0;
    char line[kLineBufferSize];
    while (std::fgets(line, sizeof line, fp) != nullptr) {
        // A file whose size says nothing (one of /proc) is cut off like one
        // that says too much.
        consumed += std::strlen(line);
        if (consumed > platform::kSmallFileLimit) {
            result = -1;
            break;
        }
        ustring key;
        ustring value;
        int rc = parse(line, static_cast<int>(std::strlen(line)), key, value);
        if (rc == PARSE_PAIR) {
            entries[key] = value;
        } else if (rc == PARSE_SYNTAX_ERROR) {
            entries.clear();
            result = -1;
            break;
        }
    }
    // A read error ends the reading like the end of the file.
    std::fclose(fp);
    return result;
}

// Single left-to-right pass over the NUL-terminated line. Returns 0 with key
// and value set (and NULs written behind both in the line), 1 for a blank or
// comment line, 2 for a syntax error (key and value untouched).
int Config::parse(char* line, [[maybe_unused]] int len, ustring& key, ustring& value)
{
    unsigned char* p = SkipBlanks(reinterpret_cast<unsigned char*>(line));

    unsigned char* key_begin = p;
    while (IsKeyChar(*p)) {
        ++p;
    }
    unsigned char* key_end = p;
    if (*p == '\0' || *p == '#') {
        return PARSE_NOTHING;
    }

    p = SkipBlanks(p);
    if (*p != '=') {
        return PARSE_SYNTAX_ERROR;
    }
    p = SkipBlanks(p + 1);
    if (*p == '\0') {
        return PARSE_SYNTAX_ERROR;
    }

    unsigned char* value_begin;
    unsigned char* value_end;
    const bool quoted = *p == '"' || *p == '\'';
    if (quoted) {
        const unsigned char quote = *p;
        value_begin = ++p;
        while (*p != quote) {
            if (IsControl(*p)) {
                return PARSE_SYNTAX_ERROR;
            }
            ++p;
        }
        value_end = p++;
    } else {
        value_begin = p;
        while (*p != ' ' && !IsControl(*p)) {
            ++p;
        }
        value_end = p;
    }

    p = SkipBlanks(p);
    if (*p != '\0' && *p != '#') {
        return PARSE_SYNTAX_ERROR;
    }

    if (quoted && keep_quotes) {
        --value_begin;
        ++value_end;
    }
    *key_end = '\0';
    *value_end = '\0';
    key = reinterpret_cast<const char*>(key_begin);
    value = reinterpret_cast<const char*>(value_begin);
    return PARSE_PAIR;
}

// Decimal int at the start of the value; 0 when none is there. Out-of-range
// numbers come back clamped to INT_MIN/INT_MAX, which is what the stream
// stores on overflow. Inserts a missing key with an empty value.
int Config::get_int(const ustring& key)
{
    const ustring& text = entries[key];
    std::stringstream stream(std::string(text.c_str_utf8(), text.length()),
                             std::ios_base::in | std::ios_base::out);
    int number = 0;
    stream >> std::dec >> number;
    return number;
}
