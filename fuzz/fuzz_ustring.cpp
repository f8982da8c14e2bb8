// ustring: both conversions, normalisation and the byte searches. The
// searches are held against std::string's, adjusted where ustring's rules
// differ (a forward search from the end, a backward one from past the end).
//
// Input layout: byte 0 selects the search start, bytes 1 and 2 are a start
// position, byte 3 where the rest splits into the text and the pattern.
#include <cstdint>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz_support.h"
#include "ustring.h"

namespace {

using fuzzsupport::Show;
typedef unsigned long ul;
const ul npos = ustring::npos;

std::string Text(const ustring& s)
{
    return std::string(s.c_str(), s.length());
}

// Well-formed UTF-8 as Unicode defines it: no overlong forms, no
// surrogates, nothing above U+10FFFF.
bool WellFormedUtf8(const std::string& s)
{
    size_t i = 0;
    const size_t n = s.size();
    while (i < n) {
        const unsigned char c = s[i];
        size_t len;
        unsigned char lo = 0x80, hi = 0xBF;
        if (c < 0x80) {
            ++i;
            continue;
        } else if (c >= 0xC2 && c <= 0xDF) {
            len = 2;
        } else if (c >= 0xE0 && c <= 0xEF) {
            len = 3;
            if (c == 0xE0) lo = 0xA0;
            if (c == 0xED) hi = 0x9F;
        } else if (c >= 0xF0 && c <= 0xF4) {
            len = 4;
            if (c == 0xF0) lo = 0x90;
            if (c == 0xF4) hi = 0x8F;
        } else {
            return false;
        }
        if (i + len > n) return false;
        for (size_t k = 1; k < len; ++k) {
            const unsigned char t = s[i + k];
            if (k == 1 ? (t < lo || t > hi) : (t < 0x80 || t > 0xBF)) return false;
        }
        i += len;
    }
    return true;
}

bool WellFormedUtf16(const std::vector<unsigned short>& w)
{
    for (size_t i = 0; i < w.size(); ++i) {
        if (w[i] >= 0xD800 && w[i] <= 0xDBFF) {
            if (i + 1 >= w.size() || w[i + 1] < 0xDC00 || w[i + 1] > 0xDFFF) return false;
            ++i;
        } else if (w[i] >= 0xDC00 && w[i] <= 0xDFFF) {
            return false;
        }
    }
    return true;
}

std::vector<unsigned short> Units(const unsigned short* w)
{
    std::vector<unsigned short> out;
    while (*w != 0) out.push_back(*w++);
    return out;
}

enum Kind { FIND, RFIND, FIRST_OF, FIRST_NOT_OF, LAST_OF, LAST_NOT_OF };
const char* const kKindName[] = {"find", "rfind", "find_first_of", "find_first_not_of", "find_last_of",
                                 "find_last_not_of"};

ul Expected(Kind kind, const std::string& text, const std::string& pat, ul pos)
{
    if (text.empty()) return npos;
    const bool forward = kind == FIND || kind == FIRST_OF || kind == FIRST_NOT_OF;
    if (forward && pos >= text.size()) return npos;
    const ul start = forward ? pos : (pos >= text.size() ? text.size() - 1 : pos);
    switch (kind) {
    case FIND: return text.find(pat, start);
    case RFIND: return text.rfind(pat, start);
    case FIRST_OF: return text.find_first_of(pat, start);
    case FIRST_NOT_OF: return text.find_first_not_of(pat, start);
    case LAST_OF: return text.find_last_of(pat, start);
    case LAST_NOT_OF: return text.find_last_not_of(pat, start);
    }
    return npos;
}

template <typename P> ul Search(Kind kind, const ustring& s, const P& p, ul pos)
{
    switch (kind) {
    case FIND: return s.find(p, pos);
    case RFIND: return s.rfind(p, pos);
    case FIRST_OF: return s.find_first_of(p, pos);
    case FIRST_NOT_OF: return s.find_first_not_of(p, pos);
    case LAST_OF: return s.find_last_of(p, pos);
    case LAST_NOT_OF: return s.find_last_not_of(p, pos);
    }
    return npos;
}

// That the index really is what the kind looks for.
bool Matches(Kind kind, const std::string& text, const std::string& pat, ul at)
{
    switch (kind) {
    case FIND:
    case RFIND: return text.compare(at, pat.size(), pat) == 0;
    case FIRST_OF:
    case LAST_OF: return pat.find(text[at]) != std::string::npos;
    case FIRST_NOT_OF:
    case LAST_NOT_OF: return pat.find(text[at]) == std::string::npos;
    }
    return false;
}

void CheckSearches(const ustring& s, const std::string& pattern_bytes, ul pos)
{
    const std::string text = Text(s);
    const std::string pat = pattern_bytes.substr(0, pattern_bytes.find('\0')); // up to its NUL
    const ustring upat(pat.c_str());
    const char byte = pattern_bytes.empty() ? 'a' : pattern_bytes[0];
    const std::string bpat = byte == '\0' ? std::string() : std::string(1, byte);
    for (int k = FIND; k <= LAST_NOT_OF; ++k) {
        const Kind kind = static_cast<Kind>(k);
        const ul want = Expected(kind, text, pat, pos);
        const ul got[] = {Search(kind, s, pat.c_str(), pos), Search(kind, s, upat, pos),
                          Search(kind, s, pattern_bytes, pos)};
        const char* const form[] = {"const char*", "ustring", "std::string"};
        for (int f = 0; f < 3; ++f) {
            FUZZ_CHECK(got[f] == npos || got[f] < text.size(), "%s(%s) from %lu in %s gave %lu, past the end",
                       kKindName[k], form[f], pos, Show(text).c_str(), got[f]);
            FUZZ_CHECK(got[f] == npos || Matches(kind, text, pat, got[f]),
                       "%s(%s %s) from %lu in %s gave %lu, which does not match", kKindName[k], form[f],
                       Show(pat).c_str(), pos, Show(text).c_str(), got[f]);
            FUZZ_CHECK(got[f] == want, "%s(%s %s) from %lu in %s gave %lu, expected %lu", kKindName[k], form[f],
                       Show(pat).c_str(), pos, Show(text).c_str(), got[f], want);
        }
        const ul bwant = Expected(kind, text, bpat, pos);
        const ul bgot = Search(kind, s, byte, pos);
        FUZZ_CHECK(bgot == bwant, "%s(char %s) from %lu in %s gave %lu, expected %lu", kKindName[k],
                   Show(bpat).c_str(), pos, Show(text).c_str(), bgot, bwant);
    }
}

void CheckUtf8(const std::string& bytes)
{
    const std::string text = bytes.substr(0, bytes.find('\0'));
    const ustring s(text.c_str());
    FUZZ_CHECK(Text(s) == text, "ustring(const char*) holds %s, given %s", Show(Text(s)).c_str(),
               Show(text).c_str());
    const ustring t(bytes); // std::string: stops at an embedded NUL
    FUZZ_CHECK(t == s, "ustring(std::string) holds %s, expected %s", Show(Text(t)).c_str(), Show(text).c_str());

    const bool valid = WellFormedUtf8(text);
    FUZZ_CHECK(ustring::is_valid(s) == valid, "is_valid(%s) is %d, the bytes are %swell-formed UTF-8",
               Show(text).c_str(), ustring::is_valid(s), valid ? "" : "not ");
    const std::vector<unsigned short> units = Units(s.c_str_utf16());
    if (!valid) {
        FUZZ_CHECK(units.empty(), "c_str_utf16 of ill-formed %s gave %zu units", Show(text).c_str(), units.size());
        FUZZ_CHECK(Text(s) == text, "c_str_utf16 changed the UTF-8 bytes of %s", Show(text).c_str());
        FUZZ_CHECK(ustring::normalize(s, ustring::NFC).empty(), "NFC of ill-formed %s is not empty",
                   Show(text).c_str());
        return;
    }
    FUZZ_CHECK(units.empty() == text.empty(), "c_str_utf16 of %s gave %zu units", Show(text).c_str(), units.size());
    FUZZ_CHECK(WellFormedUtf16(units), "c_str_utf16 of %s is not well-formed UTF-16", Show(text).c_str());
    const ustring back(s.c_str_utf16());
    FUZZ_CHECK(Text(back) == text, "UTF-8 %s went through UTF-16 and came back as %s", Show(text).c_str(),
               Show(Text(back)).c_str());

    const ustring nfc = s.normalize(ustring::NFC);
    const ustring nfd = s.normalize(ustring::NFD);
    FUZZ_CHECK(nfc.empty() == text.empty() && nfd.empty() == text.empty(),
               "normalising %s gave an empty result (NFC %zu bytes, NFD %zu bytes)", Show(text).c_str(),
               static_cast<size_t>(nfc.length()), static_cast<size_t>(nfd.length()));
    FUZZ_CHECK(ustring::is_valid(nfc) && ustring::is_valid(nfd), "normalising %s gave ill-formed UTF-8",
               Show(text).c_str());
    const ustring nfc2 = nfc.normalize(ustring::NFC);
    FUZZ_CHECK(nfc2 == nfc, "NFC is not stable for %s: %s then %s", Show(text).c_str(), Show(Text(nfc)).c_str(),
               Show(Text(nfc2)).c_str());
    const ustring nfd2 = nfd.normalize(ustring::NFD);
    FUZZ_CHECK(nfd2 == nfd, "NFD is not stable for %s: %s then %s", Show(text).c_str(), Show(Text(nfd)).c_str(),
               Show(Text(nfd2)).c_str());
    const ustring nfc_of_nfd = nfd.normalize(ustring::NFC);
    FUZZ_CHECK(nfc_of_nfd == nfc, "NFC of NFD of %s is %s, NFC is %s", Show(text).c_str(),
               Show(Text(nfc_of_nfd)).c_str(), Show(Text(nfc)).c_str());
    // The source's cache is filled by normalize; its bytes must not move.
    FUZZ_CHECK(Text(s) == text, "normalize changed its source %s", Show(text).c_str());
}

void CheckUtf16(const std::string& bytes)
{
    std::vector<unsigned short> w;
    for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const unsigned short u = static_cast<unsigned short>(static_cast<unsigned char>(bytes[i]) |
                                                             static_cast<unsigned char>(bytes[i + 1]) << 8);
        if (u == 0) break;
        w.push_back(u);
    }
    std::vector<unsigned short> terminated = w;
    terminated.push_back(0);
    const ustring s(terminated.data());
    if (!WellFormedUtf16(w)) {
        FUZZ_CHECK(s.empty(), "UTF-16 with an unpaired surrogate gave %zu bytes", static_cast<size_t>(s.length()));
        return;
    }
    FUZZ_CHECK(s.empty() == w.empty(), "%zu UTF-16 units gave %zu bytes", w.size(), static_cast<size_t>(s.length()));
    FUZZ_CHECK(ustring::is_valid(s), "UTF-16 input gave ill-formed UTF-8 %s", Show(Text(s)).c_str());
    FUZZ_CHECK(Units(s.c_str_utf16()) == w, "UTF-16 of %s differs from the %zu units it was built from",
               Show(Text(s)).c_str(), w.size());
    const ustring copy(s); // a copy starts without the cache and must rebuild it
    FUZZ_CHECK(Units(copy.c_str_utf16()) == w, "a copy's UTF-16 of %s differs from the original's",
               Show(Text(s)).c_str());

    // UTF-16 append onto a UTF-8 prefix keeps both parts.
    ustring joined("\xC3\xA9-");
    joined.append(terminated.data());
    FUZZ_CHECK(Text(joined) == "\xC3\xA9-" + Text(s), "UTF-16 append gave %s", Show(Text(joined)).c_str());
}

void CheckEditing(const std::string& text, ul pos)
{
    ustring s(text.c_str());
    const std::string t = Text(s);
    bool threw = false;
    try {
        const ustring sub = s.substr(pos, 7);
        FUZZ_CHECK(Text(sub) == t.substr(pos, 7), "substr(%lu, 7) of %s gave %s", pos, Show(t).c_str(),
                   Show(Text(sub)).c_str());
    } catch (const std::out_of_range&) {
        threw = true;
    }
    FUZZ_CHECK(threw == (pos > t.size()), "substr(%lu) of %zu bytes %s", pos, t.size(),
               threw ? "threw" : "did not throw");
    s.append(s.c_str());
    FUZZ_CHECK(Text(s) == t + t, "appending %s to itself gave %s", Show(t).c_str(), Show(Text(s)).c_str());
    s.assign(s.c_str(), pos);
    FUZZ_CHECK(Text(s) == (t + t).substr(0, pos), "assign(own data, %lu) gave %s", pos, Show(Text(s)).c_str());
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
    ul pos = static_cast<ul>(data[1]) | static_cast<ul>(data[2]) << 8;
    switch (data[0] & 3) {
    case 0: break;
    case 1: pos &= 0x1F; break;
    case 2: pos = npos; break;
    case 3: pos = npos - (pos & 3); break;
    }
    const std::string rest(reinterpret_cast<const char*>(data) + 4, size - 4);
    const size_t split = rest.size() * data[3] / 256;
    const std::string text_bytes = rest.substr(0, split);
    const std::string pattern = rest.substr(split);

    CheckUtf8(text_bytes);
    CheckUtf16(rest);
    const ustring s(text_bytes.substr(0, text_bytes.find('\0')).c_str());
    CheckSearches(s, pattern, pos);
    CheckEditing(text_bytes, pos & 0x3F);
    return 0;
}
