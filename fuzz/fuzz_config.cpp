// Config::parse and Config::read against a straightforward model of the
// key=value grammar: the same bytes go through read (as a file) and, split
// the way read's fgets splits them, through parse line by line.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "config.h"
#include "fuzz_support.h"

namespace {

using fuzzsupport::Show;

const size_t kPiece = 8191; // read's fgets buffer less its terminator

bool Blank(unsigned char c)
{
    return c == ' ' || (c >= 0x09 && c <= 0x0D);
}

bool KeyChar(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
           c == '.';
}

bool Control(unsigned char c)
{
    return c < 0x20 || c == 0x7F;
}

struct Parsed {
    int rc = 1;
    std::string key;
    std::string value;
};

// The grammar, written for clarity rather than speed; a line ends at its
// first NUL.
Parsed Model(const std::string& raw, bool keep_quotes)
{
    const std::string s = raw.substr(0, raw.find('\0'));
    const size_t n = s.size();
    auto at = [&](size_t i) -> unsigned char { return i < n ? static_cast<unsigned char>(s[i]) : 0; };
    Parsed out;
    size_t i = 0;
    while (Blank(at(i))) ++i;
    const size_t key_begin = i;
    while (KeyChar(at(i))) ++i;
    const size_t key_end = i;
    if (i == n || at(i) == '#') {
        out.rc = 1;
        return out;
    }
    while (Blank(at(i))) ++i;
    if (at(i) != '=') {
        out.rc = 2;
        return out;
    }
    ++i;
    while (Blank(at(i))) ++i;
    if (i == n) {
        out.rc = 2;
        return out;
    }
    std::string value;
    if (at(i) == '"' || at(i) == '\'') {
        const unsigned char quote = at(i++);
        const size_t begin = i;
        while (at(i) != quote) {
            if (Control(at(i))) { // the end of the line (0) is a control byte too
                out.rc = 2;
                return out;
            }
            ++i;
        }
        value = s.substr(begin, i - begin);
        if (keep_quotes) {
            value = std::string(1, static_cast<char>(quote)) + value + static_cast<char>(quote);
        }
        ++i;
    } else {
        const size_t begin = i;
        while (i < n && at(i) != ' ' && !Control(at(i))) ++i;
        value = s.substr(begin, i - begin);
    }
    while (Blank(at(i))) ++i;
    if (i != n && at(i) != '#') {
        out.rc = 2;
        return out;
    }
    out.rc = 0;
    out.key = s.substr(key_begin, key_end - key_begin);
    out.value = value;
    return out;
}

// The pieces read's fgets loop hands to parse.
std::vector<std::string> Pieces(const std::string& bytes)
{
    std::vector<std::string> pieces;
    size_t start = 0;
    while (start < bytes.size()) {
        size_t end = start;
        while (end < bytes.size() && end - start < kPiece) {
            if (bytes[end++] == '\n') break;
        }
        pieces.push_back(bytes.substr(start, end - start));
        start = end;
    }
    return pieces;
}

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

// What get_int must give for a value, or false when the value's number is
// outside int (left open).
bool ModelInt(const std::string& value, int& number)
{
    size_t i = 0;
    while (i < value.size() && Blank(static_cast<unsigned char>(value[i]))) ++i;
    bool negative = false;
    if (i < value.size() && (value[i] == '+' || value[i] == '-')) negative = value[i++] == '-';
    long long n = 0;
    size_t digits = 0;
    for (; i < value.size() && value[i] >= '0' && value[i] <= '9'; ++i, ++digits) {
        n = n * 10 + (value[i] - '0');
        if (n > (1LL << 32)) return false;
    }
    if (negative) n = -n;
    if (n > INT32_MAX || n < INT32_MIN) return false;
    number = digits == 0 ? 0 : static_cast<int>(n);
    return true;
}

void CheckParse(const std::string& piece, bool keep_quotes)
{
    // An exact-size copy, so that a read past the terminator is caught.
    std::vector<char> buffer(piece.begin(), piece.end());
    buffer.push_back('\0');
    Config config;
    config.keep_quotes = keep_quotes;
    ustring key("untouched-key");
    ustring value("untouched-value");
    const int rc = config.parse(buffer.data(), static_cast<int>(piece.size()), key, value);
    FUZZ_CHECK(rc == 0 || rc == 1 || rc == 2, "parse returned %d for line %s", rc, Show(piece).c_str());
    const Parsed want = Model(piece, keep_quotes);
    FUZZ_CHECK(rc == want.rc, "parse returned %d, expected %d, for line %s (keep_quotes %d)", rc, want.rc,
               Show(piece).c_str(), keep_quotes);
    if (rc != 0) {
        return;
    }
    for (size_t i = 0; i < key.length(); ++i) {
        FUZZ_CHECK(KeyChar(static_cast<unsigned char>(key[i])), "key %s holds a non-key byte, line %s",
                   Show(Text(key)).c_str(), Show(piece).c_str());
    }
    FUZZ_CHECK(Text(key) == want.key && Text(value) == want.value,
               "parse gave key %s value %s, expected key %s value %s, for line %s (keep_quotes %d)",
               Show(Text(key)).c_str(), Show(Text(value)).c_str(), Show(want.key).c_str(),
               Show(want.value).c_str(), Show(piece).c_str(), keep_quotes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir scratch;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string> pieces = Pieces(bytes);

    std::map<std::string, std::string> want;
    want["zz-earlier"] = "kept"; // an entry from an earlier read
    int want_rc = 0;
    for (const std::string& piece : pieces) {
        CheckParse(piece, false);
        CheckParse(piece, true);
        const Parsed p = Model(piece, false);
        if (p.rc == 2) {
            want.clear();
            want_rc = -1;
            break;
        }
        if (p.rc == 0) {
            want[p.key] = p.value;
        }
    }

    const std::string path = scratch.path() + "/input.conf";
    fuzzsupport::WriteFile(path, data, size);
    Config config;
    config.entries[ustring("zz-earlier")] = ustring("kept");
    const int rc = config.read(ustring(path.c_str()));
    FUZZ_CHECK(rc == 0 || rc == -1, "read returned %d", rc);
    FUZZ_CHECK(rc == want_rc, "read returned %d, expected %d", rc, want_rc);
    if (rc == -1) {
        FUZZ_CHECK(config.entries.empty(), "read failed on a syntax error but left %zu entries",
                   config.entries.size());
    }
    std::map<std::string, std::string> got;
    for (const auto& entry : config.entries) {
        got[Text(entry.first)] = Text(entry.second);
    }
    if (got != want) {
        std::string diff;
        for (const auto& e : want) {
            auto it = got.find(e.first);
            if (it == got.end()) diff += " missing " + Show(e.first) + ";";
            else if (it->second != e.second)
                diff += " " + Show(e.first) + " is " + Show(it->second) + " not " + Show(e.second) + ";";
        }
        for (const auto& e : got) {
            if (want.count(e.first) == 0) diff += " extra " + Show(e.first) + ";";
        }
        FUZZ_CHECK(false, "read's entries differ from the lines' pairs:%s", diff.c_str());
    }
    for (const auto& e : want) {
        int number = 0;
        if (ModelInt(e.second, number)) {
            const int value = config.get_int(ustring(e.first.c_str()));
            FUZZ_CHECK(value == number, "get_int(%s) of value %s gave %d, expected %d", Show(e.first).c_str(),
                       Show(e.second).c_str(), value, number);
        }
    }
    return 0;
}
