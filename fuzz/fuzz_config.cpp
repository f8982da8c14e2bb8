// Config::parse and Config::read against a plain reading of the format: a
// line is blanks, a key of [A-Za-z0-9_.-], blanks, '=', blanks, a value
// (quoted: up to the same quote, without control bytes; else up to a space
// or a control byte), blanks, and then its end or a comment. read must hold
// what that reading gives for the pieces that read's fgets hands it.
#include <map>
#include <vector>

#include "config.h"
#include "fuzz_support.h"

namespace {

const char kBlanks[] = " \t\n\v\f\r";

// A line's outcome as "0 key=value" for a pair, "1" for nothing, "2" for a
// syntax error; the line ends at its first NUL.
std::string Reference(const char* s, bool keep_quotes)
{
    const size_t key = std::strspn(s, kBlanks);
    const size_t key_end =
        key + std::strspn(s + key, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-.");
    const size_t eq = key_end + std::strspn(s + key_end, kBlanks);
    if (s[key_end] == '\0' || s[key_end] == '#' || s[eq] != '=') {
        return s[key_end] == '\0' || s[key_end] == '#' ? "1" : "2";
    }
    const size_t v = eq + 1 + std::strspn(s + eq + 1, kBlanks);
    const bool quoted = s[v] == '"' || s[v] == '\'';
    const char stop = quoted ? s[v] : ' ';
    const size_t end = std::find_if(s + v + quoted, s + std::strlen(s),
                                    [stop](unsigned char c) { return c == stop || c < 0x20 || c == 0x7F; }) -
                       s;
    const size_t after = end + (quoted && s[end] == s[v]); // past the closing quote
    const size_t rest = after + std::strspn(s + after, kBlanks);
    if (s[v] == '\0' || (quoted && s[end] != s[v]) || (s[rest] != '\0' && s[rest] != '#')) {
        return "2";
    }
    const size_t strip = quoted && !keep_quotes;
    return "0 " + std::string(s + key, key_end - key) + "=" +
           std::string(s + v + strip, after - strip - v - strip);
}

std::string Parse(const std::string& piece, bool keep_quotes)
{
    std::vector<char> line(piece.begin(), piece.end()); // exact size: a read past the end is caught
    line.push_back('\0');
    Config config;
    config.keep_quotes = keep_quotes;
    ustring key, value;
    const int rc = config.parse(line.data(), static_cast<int>(piece.size()), key, value);
    return rc == 0 ? "0 " + std::string(key.c_str()) + "=" + value.c_str()
                   : std::to_string(rc) + key.c_str() + value.c_str(); // and nothing set
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    std::map<ustring, ustring> want = {{ustring("zz-earlier"), ustring("kept")}}; // from an earlier read
    int want_rc = 0;
    // read's fgets hands over up to 8191 bytes at a time.
    for (size_t start = 0, end = 0; start < bytes.size() && want_rc == 0; start = end) {
        end = std::min(std::min(bytes.find('\n', start), bytes.size() - 1) + 1, start + 8191);
        const std::string piece = bytes.substr(start, end - start);
        for (bool keep_quotes : {true, false}) {
            const std::string got = Parse(piece, keep_quotes), ref = Reference(piece.c_str(), keep_quotes);
            FUZZ_CHECK(got == ref, "parse gave \"%s\" for a line that reads \"%s\"", got.c_str(),
                       ref.c_str());
        }
        const std::string pair = Reference(piece.c_str(), false);
        want_rc = pair[0] == '2' ? -1 : 0;
        if (pair[0] == '0') {
            want[ustring(pair.substr(2, pair.find('=') - 2))] = ustring(pair.substr(pair.find('=') + 1));
        }
    }
    const std::string path = fuzzsupport::Scratch() / "input.conf";
    fuzzsupport::WriteFile(path, bytes);
    Config config;
    config.entries[ustring("zz-earlier")] = ustring("kept");
    const int rc = config.read(ustring(path.c_str()));
    FUZZ_CHECK(rc == want_rc && config.entries == (rc < 0 ? decltype(want)() : want),
               "read returned %d with %zu entries, its lines give %d with %zu", rc, config.entries.size(),
               want_rc, want.size());
    return 0;
}
