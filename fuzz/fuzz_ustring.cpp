// ustring: both conversions, normalisation and the byte searches. What is
// well-formed stays ICU's call; the checks are round trips, stable normal
// forms, and searches that agree with std::string's.
//
// Input layout: byte 0 selects the search start, bytes 1 and 2 are a start
// position, byte 3 where the rest splits into the text and the pattern.
#include <algorithm>
#include <iostream>

#include "fuzz_support.h"
#include "ustring.h"

namespace {

typedef unsigned long ul;
const ul npos = ustring::npos;

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

std::u16string Units(const unsigned short* w)
{
    return reinterpret_cast<const char16_t*>(w);
}

const unsigned short* Ptr(const std::u16string& w)
{
    return reinterpret_cast<const unsigned short*>(w.c_str());
}

// Every overload takes the pattern up to its first NUL, and a NUL byte is the
// empty pattern. Where ustring's rules differ from std::string's, a forward
// search from the end finds nothing and a backward one from past the end
// starts at the last byte.
#define CHECK_SEARCH(fn, forward)                                                                            \
    do {                                                                                                     \
        const bool none = t.empty() || ((forward) && pos >= t.size());                                       \
        const ul from = std::min<ul>(pos, t.size() - 1);                                                     \
        const ul want = none ? npos : t.fn(pat, from);                                                       \
        const ul bwant = none ? npos : t.fn(std::string(byte == '\0' ? 0 : 1, byte), from);                  \
        const ul got[] = {s.fn(pat.c_str(), pos), s.fn(ustring(pat.c_str()), pos), s.fn(pattern, pos)};      \
        FUZZ_CHECK(got[0] == want && got[1] == want && got[2] == want && s.fn(byte, pos) == bwant,           \
                   #fn " from %lu gave %lu %lu %lu and %lu for the byte, expected %lu and %lu", pos, got[0], \
                   got[1], got[2], s.fn(byte, pos), want, bwant);                                            \
    } while (0)

void CheckSearches(const ustring& s, const std::string& pattern, ul pos)
{
    const std::string t = Text(s);
    const std::string pat = pattern.substr(0, pattern.find('\0'));
    const char byte = pattern.empty() ? 'a' : pattern[0];
    CHECK_SEARCH(find, true);
    CHECK_SEARCH(rfind, false);
    CHECK_SEARCH(find_first_of, true);
    CHECK_SEARCH(find_first_not_of, true);
    CHECK_SEARCH(find_last_of, false);
    CHECK_SEARCH(find_last_not_of, false);
}

void CheckUtf8(const std::string& bytes)
{
    const std::string text = bytes.substr(0, bytes.find('\0'));
    const ustring s(text.c_str());
    FUZZ_CHECK(Text(s) == text && ustring(bytes) == s, "construction did not keep the bytes up to the NUL");
    const std::u16string units = Units(s.c_str_utf16());
    const ustring nfc = s.normalize(ustring::NFC);
    const ustring nfd = s.normalize(ustring::NFD);
    FUZZ_CHECK(Text(s) == text, "converting or normalising changed the source");
    if (!ustring::is_valid(s)) {
        FUZZ_CHECK(units.empty() && nfc.empty() && nfd.empty(),
                   "ill-formed UTF-8 was converted or normalised");
        return;
    }
    FUZZ_CHECK(units.empty() == text.empty() && Text(ustring(s.c_str_utf16())) == text,
               "valid UTF-8 did not come back from UTF-16 unchanged");
    FUZZ_CHECK(nfc.empty() == text.empty() && nfd.empty() == text.empty() && ustring::is_valid(nfc) &&
                   ustring::is_valid(nfd),
               "normalising valid UTF-8 gave nothing or ill-formed text");
    FUZZ_CHECK(nfc.normalize(ustring::NFC) == nfc && nfd.normalize(ustring::NFD) == nfd &&
                   nfd.normalize(ustring::NFC) == nfc,
               "a normal form is not stable");
}

void CheckUtf16(const std::string& bytes)
{
    std::u16string w(bytes.size() / 2, u'\0'); // little-endian units, up to the first 0
    std::memcpy(&w[0], bytes.data(), w.size() * 2);
    w.resize(std::min(w.find(u'\0'), w.size()));
    const ustring s(Ptr(w));
    const ustring copy(s); // starts without the UTF-16 form and must rebuild it
    ustring joined("\xC3\xA9-");
    joined.append(Ptr(w));
    if (s.empty()) {
        // Only an unpaired surrogate may make the conversion fail.
        FUZZ_CHECK(w.empty() ||
                       std::any_of(w.begin(), w.end(), [](char16_t u) { return u >= 0xD800 && u <= 0xDFFF; }),
                   "%zu UTF-16 units without surrogates gave no text", w.size());
        return;
    }
    FUZZ_CHECK(ustring::is_valid(s) && Units(s.c_str_utf16()) == w && Units(copy.c_str_utf16()) == w,
               "%zu UTF-16 units did not come back from UTF-8 unchanged", w.size());
    FUZZ_CHECK(Text(joined) == "\xC3\xA9-" + Text(s), "UTF-16 appended to UTF-8 lost a part");
}

} // namespace

// ustring reports every failed conversion on std::cerr; thousands of those
// a second would bury libFuzzer's own output. Findings use stderr directly.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    std::cerr.rdbuf(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 4) {
        return 0;
    }
    const ul given = static_cast<ul>(data[1]) | static_cast<ul>(data[2]) << 8;
    const ul starts[] = {given, given & 0x1F, npos, npos - (given & 3)};
    const ul pos = starts[data[0] & 3];
    const std::string rest(reinterpret_cast<const char*>(data) + 4, size - 4);
    const size_t split = rest.size() * data[3] / 256;
    const ustring text(rest.substr(0, split));

    CheckUtf8(rest.substr(0, split));
    CheckUtf16(rest);
    CheckSearches(text, rest.substr(split), pos);
    return 0;
}
