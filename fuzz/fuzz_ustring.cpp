// ustring: both conversions, normalisation and the byte searches. What is
// well-formed stays ICU's call; the checks are round trips, stable normal
// forms, and searches that agree with std::string's.
//
// Input layout: byte 0 selects the search start, bytes 1 and 2 are a start
// position, byte 3 where the rest splits into the text and the pattern; the
// whole rest is also read as little-endian UTF-16 up to its first 0 unit.
#include <iostream>

#include "fuzz_support.h"
#include "ustring.h"

namespace {

typedef unsigned long ul;

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

std::u16string Units(const ustring& s)
{
    return reinterpret_cast<const char16_t*>(s.c_str_utf16());
}

// Every overload takes the pattern up to its first NUL, and a NUL byte is the
// empty pattern. Where ustring's rules differ from std::string's, a forward
// search from the end finds nothing and a backward one from past the end
// starts at the last byte.
#define CHECK_SEARCH(fn, forward)                                                                            \
    do {                                                                                                     \
        const bool none = t.empty() || ((forward) && pos >= t.size());                                       \
        const ul from = std::min<ul>(pos, t.size() - 1), got = s.fn(pattern, pos), bgot = s.fn(byte, pos);   \
        const ul want = none ? ustring::npos : t.fn(pattern.c_str(), from);                                  \
        const ul bwant = none ? ustring::npos : t.fn(std::string(byte == '\0' ? 0 : 1, byte), from);         \
        FUZZ_CHECK(got == want && bgot == bwant,                                                             \
                   #fn " from %lu gave %lu and %lu for the byte, expected %lu and %lu", pos, got, bgot,      \
                   want, bwant);                                                                             \
    } while (0)

void CheckSearches(const ustring& s, const std::string& pattern, ul pos)
{
    const std::string t = Text(s);
    const char byte = pattern.empty() ? 'a' : pattern[0];
    CHECK_SEARCH(find, true);
    CHECK_SEARCH(rfind, false);
    CHECK_SEARCH(find_first_of, true);
    CHECK_SEARCH(find_first_not_of, true);
    CHECK_SEARCH(find_last_of, false);
    CHECK_SEARCH(find_last_not_of, false);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // ustring reports every failed conversion on std::cerr; thousands of those
    // a second would bury libFuzzer's own output. Findings use stderr directly.
    [[maybe_unused]] static std::streambuf* const silenced = std::cerr.rdbuf(nullptr);
    if (size < 4) {
        return 0;
    }
    const ul given = data[1] | data[2] << 8;
    const ul starts[] = {given, given & 0x1F, ustring::npos, ustring::npos - (given & 3)};
    const std::string rest(reinterpret_cast<const char*>(data) + 4, size - 4);
    const std::string bytes = rest.substr(0, rest.size() * data[3] / 256),
                      text = bytes.substr(0, bytes.find('\0'));
    const ustring s(bytes);
    CheckSearches(s, rest.substr(bytes.size()), starts[data[0] & 3]);

    const ustring nfc = s.normalize(ustring::NFC), nfd = s.normalize(ustring::NFD);
    const bool valid = ustring::is_valid(s), none = text.empty() || !valid;
    FUZZ_CHECK(Text(s) == text && ustring(text.c_str()) == s && Units(s).empty() == none &&
                   nfc.empty() == none && nfd.empty() == none &&
                   (!valid || Text(ustring(s.c_str_utf16())) == text),
               "the text is not its bytes up to the first NUL, or %s UTF-8 did not convert as it should",
               valid ? "valid" : "ill-formed");
    FUZZ_CHECK(!valid || (ustring::is_valid(nfc) && nfc.normalize(ustring::NFC) == nfc &&
                          nfd.normalize(ustring::NFD) == nfd && nfd.normalize(ustring::NFC) == nfc),
               "a normal form is ill-formed or not stable");

    std::u16string w(rest.size() / 2, u'\0');
    std::memcpy(&w[0], rest.data(), w.size() * 2);
    w.resize(std::min(w.find(u'\0'), w.size()));
    const auto* units = reinterpret_cast<const unsigned short*>(w.c_str());
    const ustring u(units);
    // Only an unpaired surrogate may make the conversion fail.
    FUZZ_CHECK(u.empty() ? w.empty() || std::any_of(w.begin(), w.end(),
                                                    [](char16_t c) { return c >= 0xD800 && c <= 0xDFFF; })
                         : ustring::is_valid(u) && Units(u) == w,
               "%zu UTF-16 units did not come back from UTF-8 unchanged", w.size());
    return 0;
}
