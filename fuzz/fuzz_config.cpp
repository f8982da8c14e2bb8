// Config::parse and Config::read. A pair that parse accepts must stand in its
// line as key, '=', value and at most a comment, and must read back the same
// when written out again; read of a file must hold what parse gives for the
// pieces that read's fgets hands it.
#include <algorithm>
#include <map>
#include <vector>

#include "config.h"
#include "fuzz_support.h"

namespace {

const size_t npos = std::string::npos;
const size_t kPiece = 8191; // read's fgets buffer less its terminator
const char kBlanks[] = " \t\n\v\f\r";
const char kKeyChars[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-.";

struct Pair {
    int rc;
    std::string key;
    std::string value;
};

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

Pair Parse(const std::string& line, bool keep_quotes)
{
    // An exact-size copy, so that a read past the terminator is caught.
    std::vector<char> buffer(line.begin(), line.end());
    buffer.push_back('\0');
    Config config;
    config.keep_quotes = keep_quotes;
    ustring key("untouched");
    ustring value("untouched");
    const int rc = config.parse(buffer.data(), static_cast<int>(line.size()), key, value);
    FUZZ_CHECK(rc == 0 || ((rc == 1 || rc == 2) && Text(key) == "untouched" && Text(value) == "untouched"),
               "parse returned %d, or set the pair and did not return 0", rc);
    return {rc, Text(key), Text(value)};
}

Pair CheckLine(const std::string& piece)
{
    const std::string line = piece.substr(0, piece.find('\0'));
    const Pair raw = Parse(piece, true);
    const Pair plain = Parse(piece, false);
    FUZZ_CHECK(raw.rc == plain.rc && raw.key == plain.key, "keep_quotes changed the result or the key");
    const size_t key_at = line.find_first_not_of(kBlanks);
    if (raw.rc == 1) {
        const size_t rest = line.find_first_not_of(kKeyChars, std::min(key_at, line.size()));
        FUZZ_CHECK(rest == npos || line[rest] == '#', "a line that is not blank or a comment was ignored");
    }
    if (raw.rc != 0) {
        return plain;
    }
    const std::string& v = raw.value;
    const size_t eq = line.find_first_not_of(kBlanks, key_at + raw.key.size());
    const size_t at = line.find_first_not_of(kBlanks, eq + 1);
    const size_t after = line.find_first_not_of(kBlanks, at + v.size());
    FUZZ_CHECK(raw.key.find_first_not_of(kKeyChars) == npos &&
                   line.compare(key_at, raw.key.size(), raw.key) == 0 && eq < line.size() &&
                   line[eq] == '=' && at != npos && line.compare(at, v.size(), v) == 0 &&
                   (after == npos || line[after] == '#'),
               "the pair is not key '=' value and at most a comment in its line");
    const bool quoted = v[0] == '"' || v[0] == '\'';
    const std::string inner = quoted ? v.substr(1, v.size() - 2) : v;
    FUZZ_CHECK(
        plain.value == inner &&
            std::none_of(inner.begin(), inner.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }) &&
            (quoted ? v.size() >= 2 && v.back() == v[0] && inner.find(v[0]) == npos
                    : inner.find(' ') == npos && line[at + v.size()] != '#'),
        "the value holds a control byte, kept its quotes or does not end where it should");
    const Pair again = Parse(" \t" + raw.key + " = " + v + " \t# comment\n", true);
    FUZZ_CHECK(again.rc == 0 && again.key == raw.key && again.value == v,
               "the pair written out again reads back %d", again.rc);
    return plain;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir scratch;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::map<std::string, std::string> want = {{"zz-earlier", "kept"}}; // from an earlier read
    int want_rc = 0;
    for (size_t start = 0, end = 0; start < bytes.size() && want_rc == 0; start = end) {
        end = std::min(std::min(bytes.find('\n', start), bytes.size() - 1) + 1, start + kPiece);
        const Pair p = CheckLine(bytes.substr(start, end - start));
        if (p.rc == 2) {
            want.clear();
            want_rc = -1;
        } else if (p.rc == 0) {
            want[p.key] = p.value;
        }
    }

    const std::string path = scratch.path() + "/input.conf";
    fuzzsupport::WriteFile(path, data, size);
    Config config;
    config.entries[ustring("zz-earlier")] = ustring("kept");
    const int rc = config.read(ustring(path.c_str()));
    std::map<std::string, std::string> got;
    for (const auto& entry : config.entries) {
        got[Text(entry.first)] = Text(entry.second);
    }
    FUZZ_CHECK(rc == want_rc && got == want,
               "read returned %d with %zu entries, its lines' pairs are %d with %zu", rc, got.size(), want_rc,
               want.size());
    return 0;
}
