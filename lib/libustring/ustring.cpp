#include "ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <climits>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <new>
#include <stdexcept>

namespace {

const unsigned long kInitialUnits = 4;

// ICU takes capacities and lengths as int32_t; anything larger is clamped so
// that ICU reports an overflow instead of seeing a negative capacity.
int32_t icu_capacity(unsigned long units)
{
    return units > static_cast<unsigned long>(INT32_MAX) ? INT32_MAX : static_cast<int32_t>(units);
}

UChar* icu_units(unsigned short* p)
{
    return reinterpret_cast<UChar*>(p);
}

// The one place where ICU failures become text: conversion and normalisation
// never throw, so standard error is the only trace a caller gets.
void report_icu_failure(const char* function, UErrorCode code, int line)
{
    std::cerr << "Warning: " << function << ": error code " << static_cast<int>(code) << " at line " << line
              << std::endl;
}

// Length of s, looking at no more than max units.
unsigned long bounded_length(const unsigned short* s, unsigned long max)
{
    unsigned long n = 0;
    while (n < max && s[n] != 0)
        ++n;
    return n;
}

// Returns old + extra + 1 (room for the terminator); throws std::bad_alloc
// when that cannot be represented, as no allocation could satisfy it.
unsigned long need_for(unsigned long old, unsigned long extra)
{
    if (extra > ULONG_MAX - 1 - old)
        throw std::bad_alloc();
    return old + extra + 1;
}

// Membership table of the bytes of a NUL-terminated set.
struct ByteSet {
    bool has[256] = {};
    bool empty = true;
    explicit ByteSet(const char* set, unsigned long len)
    {
        for (unsigned long i = 0; i < len; ++i)
            has[static_cast<unsigned char>(set[i])] = true;
        empty = len == 0;
    }
    bool operator()(char c) const { return has[static_cast<unsigned char>(c)]; }
};

// Backward searches start at pos, or at the last byte when pos is past it.
unsigned long backward_start(unsigned long len, unsigned long pos)
{
    return pos >= len ? len - 1 : pos;
}

unsigned long find_bytes(const char* hay, unsigned long len, const char* pat, unsigned long plen,
                         unsigned long pos)
{
    if (pos >= len)
        return ustring::npos;
    if (plen == 0)
        return pos;
    if (plen > len)
        return ustring::npos;
    for (unsigned long i = pos; i <= len - plen; ++i) {
        if (std::memcmp(hay + i, pat, plen) == 0)
            return i;
    }
    return ustring::npos;
}

unsigned long rfind_bytes(const char* hay, unsigned long len, const char* pat, unsigned long plen,
                          unsigned long pos)
{
    if (len == 0)
        return ustring::npos;
    const unsigned long start = backward_start(len, pos);
    if (plen == 0)
        return start;
    for (unsigned long i = start + 1; i-- > 0;) {
        if (plen <= len - i && std::memcmp(hay + i, pat, plen) == 0)
            return i;
    }
    return ustring::npos;
}

// Forward scan for the first byte whose membership in set equals wanted.
unsigned long scan_forward(const char* hay, unsigned long len, const char* set, unsigned long slen,
                           unsigned long pos, bool wanted)
{
    if (pos >= len)
        return ustring::npos;
    const ByteSet in(set, slen);
    if (in.empty)
        return wanted ? ustring::npos : pos;
    for (unsigned long i = pos; i < len; ++i) {
        if (in(hay[i]) == wanted)
            return i;
    }
    return ustring::npos;
}

unsigned long scan_backward(const char* hay, unsigned long len, const char* set, unsigned long slen,
                            unsigned long pos, bool wanted)
{
    if (len == 0)
        return ustring::npos;
    const unsigned long start = backward_start(len, pos);
    const ByteSet in(set, slen);
    if (in.empty)
        return wanted ? ustring::npos : start;
    for (unsigned long i = start + 1; i-- > 0;) {
        if (in(hay[i]) == wanted)
            return i;
    }
    return ustring::npos;
}

// A byte argument of 0 stands for the empty pattern.
unsigned long byte_len(char c)
{
    return c == 0 ? 0 : 1;
}

struct FoldTable {
    unsigned char map[256];
    FoldTable()
    {
        for (int i = 0; i < 256; ++i)
            map[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    }
};

const FoldTable kAsciiFold;

// Unsigned byte difference at the first mismatch within max bytes, both
// texts read up to their terminators.
int compare_bytes(const char* a, const char* b, unsigned long max, bool fold)
{
    for (unsigned long i = 0; i < max; ++i) {
        unsigned char x = static_cast<unsigned char>(a[i]);
        unsigned char y = static_cast<unsigned char>(b[i]);
        if (fold) {
            x = kAsciiFold.map[x];
            y = kAsciiFold.map[y];
        }
        if (x != y)
            return static_cast<int>(x) - static_cast<int>(y);
        if (x == 0)
            return 0;
    }
    return 0;
}

} // namespace

const unsigned long ustring::npos;

// Leaves both buffers allocated at their initial size and empty; throws
// std::bad_alloc with nothing allocated.
void ustring::init()
{
    data = static_cast<char*>(std::malloc(kInitialUnits));
    if (data == nullptr)
        throw std::bad_alloc();
    wdata = static_cast<unsigned short*>(std::malloc(kInitialUnits * sizeof(unsigned short)));
    if (wdata == nullptr) {
        std::free(data);
        throw std::bad_alloc();
    }
    data_cap = kInitialUnits;
    wdata_cap = kInitialUnits;
    data_len = 0;
    wdata_len = 0;
    data[0] = 0;
    wdata[0] = 0;
}

ustring::ustring()
{
    init();
}

// A constructor that throws never reaches the destructor, so each one holds
// this guard over the buffers from init() until its assignment has succeeded.
namespace {
struct InitGuard {
    char*& data;
    unsigned short*& wdata;
    bool armed = true;
    ~InitGuard()
    {
        if (armed) {
            std::free(data);
            std::free(wdata);
        }
    }
};
} // namespace

ustring::ustring(const ustring& s)
{
    init();
    InitGuard guard{data, wdata};
    assign(s, 0, npos);
    guard.armed = false;
}

ustring::ustring(const char* s)
{
    init();
    InitGuard guard{data, wdata};
    assign(s);
    guard.armed = false;
}

ustring::ustring(const unsigned short* s)
{
    init();
    InitGuard guard{data, wdata};
    assign(s);
    guard.armed = false;
}

ustring::ustring(const std::string& s)
{
    init();
    InitGuard guard{data, wdata};
    assign(s, 0, npos);
    guard.armed = false;
}

ustring::ustring(char c)
{
    init();
    InitGuard guard{data, wdata};
    assign(c, 1);
    guard.armed = false;
}

ustring::~ustring()
{
    std::free(data);
    std::free(wdata);
}

void ustring::clear_data()
{
    data_len = 0;
    data[0] = 0;
}

void ustring::clear_wdata() const
{
    wdata_len = 0;
    wdata[0] = 0;
}

// Applies the capacity rule to the UTF-8 buffer for need bytes (terminator
// included). Throws std::bad_alloc and keeps the old buffer on failure.
void ustring::realloc_data(unsigned long need)
{
    if (need <= data_cap && data_cap / 2 <= need)
        return;
    void* p = std::realloc(data, need);
    if (p == nullptr)
        throw std::bad_alloc();
    data = static_cast<char*>(p);
    data_cap = need;
}

// As realloc_data, for need UTF-16 units.
void ustring::realloc_wdata(unsigned long need) const
{
    if (need <= wdata_cap && wdata_cap / 2 <= need)
        return;
    if (need > ULONG_MAX / sizeof(unsigned short))
        throw std::bad_alloc();
    void* p = std::realloc(wdata, need * sizeof(unsigned short));
    if (p == nullptr)
        throw std::bad_alloc();
    wdata = static_cast<unsigned short*>(p);
    wdata_cap = need;
}

// Builds the UTF-16 cache from the UTF-8 bytes. Returns 0, or -1 with a
// warning and an empty cache when the bytes are not well-formed UTF-8.
int ustring::convert_from_data() const
{
    UErrorCode err = U_ZERO_ERROR;
    int32_t len = 0;
    u_strFromUTF8(nullptr, 0, &len, data, -1, &err);
    err = U_ZERO_ERROR;
    realloc_wdata(static_cast<unsigned long>(len) + 1);
    u_strFromUTF8(icu_units(wdata), icu_capacity(wdata_cap), &len, data, -1, &err);
    if (U_FAILURE(err)) {
        report_icu_failure("u_strFromUTF8", err, __LINE__);
        clear_wdata();
        return -1;
    }
    wdata_len = static_cast<unsigned long>(len);
    wdata[wdata_len] = 0;
    return 0;
}

// Rebuilds the UTF-8 bytes from the UTF-16 form. Returns 0, or -1 with a
// warning and the whole string emptied when the units are ill-formed. If the
// UTF-8 buffer cannot grow, std::bad_alloc leaves the old bytes and no cache,
// since the UTF-16 form already holds text the bytes do not.
int ustring::convert_from_wdata()
{
    UErrorCode err = U_ZERO_ERROR;
    int32_t len = 0;
    u_strToUTF8(nullptr, 0, &len, icu_units(wdata), -1, &err);
    err = U_ZERO_ERROR;
    try {
        realloc_data(static_cast<unsigned long>(len) + 1);
    } catch (const std::bad_alloc&) {
        clear_wdata();
        throw;
    }
    u_strToUTF8(data, icu_capacity(data_cap), &len, icu_units(wdata), -1, &err);
    if (U_FAILURE(err)) {
        report_icu_failure("u_strToUTF8", err, __LINE__);
        clear_data();
        clear_wdata();
        return -1;
    }
    data_len = static_cast<unsigned long>(len);
    data[data_len] = 0;
    return 0;
}

ustring& ustring::assign(const ustring& s, unsigned long pos, unsigned long n)
{
    if (&s == this) {
        const ustring copy = substr(pos, n);
        return assign(copy, 0, npos);
    }
    clear_data();
    clear_wdata();
    return append(s, pos, n);
}

ustring& ustring::assign(const char* s)
{
    if (s == data)
        return *this;
    clear_data();
    clear_wdata();
    return append(s);
}

ustring& ustring::assign(const char* s, unsigned long n)
{
    if (s == data) {
        if (n < data_len) {
            data_len = n;
            data[n] = 0;
            clear_wdata();
        }
        return *this;
    }
    clear_data();
    clear_wdata();
    return append(s, n);
}

ustring& ustring::assign(const unsigned short* s)
{
    if (s == wdata)
        return *this;
    clear_data();
    clear_wdata();
    return append(s);
}

ustring& ustring::assign(const unsigned short* s, unsigned long n)
{
    if (s == wdata) {
        if (n < wdata_len) {
            wdata_len = n;
            wdata[n] = 0;
        }
        convert_from_wdata();
        return *this;
    }
    clear_data();
    clear_wdata();
    return append(s, n);
}

ustring& ustring::assign(const std::string& s, unsigned long pos, unsigned long n)
{
    clear_data();
    clear_wdata();
    return append(s, pos, n);
}

ustring& ustring::assign(char c, unsigned long n)
{
    clear_data();
    clear_wdata();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, unsigned long n)
{
    clear_data();
    clear_wdata();
    return append(c, n);
}

ustring& ustring::operator=(const ustring& s)
{
    return assign(s, 0, npos);
}
ustring& ustring::operator=(const std::string& s)
{
    return assign(s, 0, npos);
}
ustring& ustring::operator=(const char* s)
{
    return assign(s);
}
ustring& ustring::operator=(const unsigned short* s)
{
    return assign(s);
}
ustring& ustring::operator=(char c)
{
    return assign(c, 1);
}
ustring& ustring::operator=(unsigned short c)
{
    return assign(c, 1);
}

ustring& ustring::append(const char* s)
{
    return append(s, npos);
}

// Appends at most n bytes of s, fewer if s ends first. When s is this
// string's own buffer the count is taken before the buffer may move and the
// bytes are read from wherever it ends up. Appending nothing still fits the
// buffer to the need, as every append does.
ustring& ustring::append(const char* s, unsigned long n)
{
    const bool own = s == data;
    const unsigned long count = own ? (n < data_len ? n : data_len) : strnlen(s, n);
    realloc_data(need_for(data_len, count));
    std::memcpy(data + data_len, own ? data : s, count);
    data_len += count;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(const ustring& s, unsigned long pos, unsigned long n)
{
    if (&s == this) {
        const ustring copy = substr(pos, n);
        return append(copy.data, copy.data_len);
    }
    if (pos > s.data_len)
        throw std::out_of_range("substr");
    return append(s.data + pos, n);
}

ustring& ustring::append(const std::string& s, unsigned long pos, unsigned long n)
{
    const std::string part = s.substr(pos, n);
    return append(part.c_str(), part.size());
}

// Appends n copies of c; a NUL byte would end the text early, so it adds
// nothing (the buffer is still fitted to the need).
ustring& ustring::append(char c, unsigned long n)
{
    if (c == 0)
        n = 0;
    realloc_data(need_for(data_len, n));
    std::memset(data + data_len, c, n);
    data_len += n;
    data[data_len] = 0;
    clear_wdata();
    return *this;
}

ustring& ustring::append(const unsigned short* s)
{
    return append(s, npos);
}

// Appends at most n units of s to the UTF-16 form (built first if stale) and
// rebuilds the UTF-8 bytes from it. A string whose bytes cannot be converted
// keeps only the appended text.
ustring& ustring::append(const unsigned short* s, unsigned long n)
{
    const bool own = s == wdata;
    const unsigned long own_count = n < wdata_len ? n : wdata_len;
    if (data_len != 0 && wdata_len == 0)
        convert_from_data();
    const unsigned long count = own ? own_count : bounded_length(s, n);
    realloc_wdata(need_for(wdata_len, count));
    std::memcpy(wdata + wdata_len, own ? wdata : s, count * sizeof(unsigned short));
    wdata_len += count;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

// As append(W, n) with n copies of c; a NUL unit adds nothing.
ustring& ustring::append(unsigned short c, unsigned long n)
{
    if (c == 0)
        n = 0;
    if (data_len != 0 && wdata_len == 0)
        convert_from_data();
    realloc_wdata(need_for(wdata_len, n));
    for (unsigned long i = 0; i < n; ++i)
        wdata[wdata_len + i] = c;
    wdata_len += n;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::operator+=(const ustring& s)
{
    return append(s, 0, npos);
}
ustring& ustring::operator+=(const std::string& s)
{
    return append(s, 0, npos);
}
ustring& ustring::operator+=(const char* s)
{
    return append(s);
}
ustring& ustring::operator+=(const unsigned short* s)
{
    return append(s);
}
ustring& ustring::operator+=(char c)
{
    return append(c, 1);
}
ustring& ustring::operator+=(unsigned short c)
{
    return append(c, 1);
}

void ustring::clear()
{
    clear_data();
    clear_wdata();
}

void ustring::swap(ustring& other)
{
    std::swap(data, other.data);
    std::swap(data_len, other.data_len);
    std::swap(data_cap, other.data_cap);
    std::swap(wdata, other.wdata);
    std::swap(wdata_len, other.wdata_len);
    std::swap(wdata_cap, other.wdata_cap);
}

// Returns the UTF-16 form, building it when stale; on ill-formed UTF-8 it is
// empty and the warning is repeated on every call.
const unsigned short* ustring::c_str_utf16() const
{
    if (wdata_len == 0 && data_len != 0)
        convert_from_data();
    return wdata;
}

ustring ustring::substr(unsigned long pos, unsigned long n) const
{
    if (pos > data_len)
        throw std::out_of_range("substr");
    ustring r;
    const unsigned long rest = data_len - pos;
    r.append(data + pos, n < rest ? n : rest);
    return r;
}

void ustring::replace(char from, char to)
{
    if (to == 0)
        return;
    bool changed = false;
    for (unsigned long i = 0; i < data_len; ++i) {
        if (data[i] == from) {
            data[i] = to;
            changed = true;
        }
    }
    if (changed)
        clear_wdata();
}

unsigned long ustring::find(const std::string& s, unsigned long pos) const
{
    return find(s.c_str(), pos);
}
unsigned long ustring::find(const char* s, unsigned long pos) const
{
    return find_bytes(data, data_len, s, std::strlen(s), pos);
}
unsigned long ustring::find(const ustring& s, unsigned long pos) const
{
    return find(s.data, pos);
}
unsigned long ustring::find(char c, unsigned long pos) const
{
    return find_bytes(data, data_len, &c, byte_len(c), pos);
}

unsigned long ustring::rfind(const std::string& s, unsigned long pos) const
{
    return rfind(s.c_str(), pos);
}
unsigned long ustring::rfind(const char* s, unsigned long pos) const
{
    return rfind_bytes(data, data_len, s, std::strlen(s), pos);
}
unsigned long ustring::rfind(const ustring& s, unsigned long pos) const
{
    return rfind(s.data, pos);
}
unsigned long ustring::rfind(char c, unsigned long pos) const
{
    return rfind_bytes(data, data_len, &c, byte_len(c), pos);
}

unsigned long ustring::find_first_of(const std::string& s, unsigned long pos) const
{
    return find_first_of(s.c_str(), pos);
}
unsigned long ustring::find_first_of(const char* s, unsigned long pos) const
{
    return scan_forward(data, data_len, s, std::strlen(s), pos, true);
}
unsigned long ustring::find_first_of(const ustring& s, unsigned long pos) const
{
    return find_first_of(s.data, pos);
}
unsigned long ustring::find_first_of(char c, unsigned long pos) const
{
    return scan_forward(data, data_len, &c, byte_len(c), pos, true);
}

unsigned long ustring::find_first_not_of(const std::string& s, unsigned long pos) const
{
    return find_first_not_of(s.c_str(), pos);
}
unsigned long ustring::find_first_not_of(const char* s, unsigned long pos) const
{
    return scan_forward(data, data_len, s, std::strlen(s), pos, false);
}
unsigned long ustring::find_first_not_of(const ustring& s, unsigned long pos) const
{
    return find_first_not_of(s.data, pos);
}
unsigned long ustring::find_first_not_of(char c, unsigned long pos) const
{
    return scan_forward(data, data_len, &c, byte_len(c), pos, false);
}

unsigned long ustring::find_last_of(const std::string& s, unsigned long pos) const
{
    return find_last_of(s.c_str(), pos);
}
unsigned long ustring::find_last_of(const char* s, unsigned long pos) const
{
    return scan_backward(data, data_len, s, std::strlen(s), pos, true);
}
unsigned long ustring::find_last_of(const ustring& s, unsigned long pos) const
{
    return find_last_of(s.data, pos);
}
unsigned long ustring::find_last_of(char c, unsigned long pos) const
{
    return scan_backward(data, data_len, &c, byte_len(c), pos, true);
}

unsigned long ustring::find_last_not_of(const std::string& s, unsigned long pos) const
{
    return find_last_not_of(s.c_str(), pos);
}
unsigned long ustring::find_last_not_of(const char* s, unsigned long pos) const
{
    return scan_backward(data, data_len, s, std::strlen(s), pos, false);
}
unsigned long ustring::find_last_not_of(const ustring& s, unsigned long pos) const
{
    return find_last_not_of(s.data, pos);
}
unsigned long ustring::find_last_not_of(char c, unsigned long pos) const
{
    return scan_backward(data, data_len, &c, byte_len(c), pos, false);
}

void ustring::ltrim(const ustring& set)
{
    ltrim(set.data);
}

// Drops the leading bytes found in set, moving the rest (and its terminator)
// to the front; the capacity is kept.
void ustring::ltrim(const char* set)
{
    const ByteSet in(set, std::strlen(set));
    unsigned long k = 0;
    while (k < data_len && in(data[k]))
        ++k;
    if (k == 0)
        return;
    std::memmove(data, data + k, data_len - k + 1);
    data_len -= k;
    clear_wdata();
}

void ustring::rtrim(const ustring& set)
{
    rtrim(set.data);
}

void ustring::rtrim(const char* set)
{
    const ByteSet in(set, std::strlen(set));
    unsigned long len = data_len;
    while (len > 0 && in(data[len - 1]))
        --len;
    if (len == data_len)
        return;
    data_len = len;
    data[len] = 0;
    clear_wdata();
}

void ustring::trim(const ustring& set)
{
    trim(set.data);
}

void ustring::trim(const char* set)
{
    ltrim(set);
    rtrim(set);
}

int ustring::compare(const ustring& s) const
{
    return compare_bytes(data, s.data, ULONG_MAX, false);
}
int ustring::compare(const ustring& s, unsigned long n) const
{
    return compare_bytes(data, s.data, n, false);
}
int ustring::compare(const ustring& a, const ustring& b, bool ignore_case)
{
    return compare_bytes(a.data, b.data, ULONG_MAX, ignore_case);
}

// True unless ICU finds an ill-formed sequence while measuring the UTF-16
// length; other ICU outcomes do not make the bytes invalid.
bool ustring::is_valid(const ustring& s)
{
    if (s.data_len == 0)
        return true;
    UErrorCode err = U_ZERO_ERROR;
    int32_t len = 0;
    u_strFromUTF8(nullptr, 0, &len, s.data, -1, &err);
    return err != U_INVALID_CHAR_FOUND;
}

// Returns src in normal form f; empty (after a warning on standard error)
// when src is not valid UTF-8 or ICU cannot normalise it.
ustring ustring::normalize(const ustring& src, normalization_form f)
{
    static const UNormalization2Mode kModes[2] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
    ustring r;
    if (src.data_len == 0)
        return r;
    UErrorCode err = U_ZERO_ERROR;
    const UNormalizer2* norm = unorm2_getInstance(nullptr, "nfc", kModes[f == NFD ? 1 : 0], &err);
    if (U_FAILURE(err) || norm == nullptr) {
        report_icu_failure("unorm2_getInstance", err, __LINE__);
        return r;
    }
    if (src.wdata_len == 0)
        src.convert_from_data();
    int32_t len = unorm2_normalize(norm, icu_units(src.wdata), -1, nullptr, 0, &err);
    r.realloc_wdata(static_cast<unsigned long>(len) + 1);
    err = U_ZERO_ERROR;
    if (src.wdata_len == 0)
        src.convert_from_data();
    len =
        unorm2_normalize(norm, icu_units(src.wdata), -1, icu_units(r.wdata), icu_capacity(r.wdata_cap), &err);
    if (U_FAILURE(err)) {
        report_icu_failure("unorm2_normalize", err, __LINE__);
        r.clear();
        return r;
    }
    r.wdata_len = static_cast<unsigned long>(len);
    r.wdata[r.wdata_len] = 0;
    r.convert_from_wdata();
    return r;
}

ustring ustring::normalize(normalization_form f) const
{
    return normalize(*this, f);
}

ustring operator+(const ustring& a, const ustring& b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, const char* b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, char b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, const unsigned short* b)
{
    ustring r(a);
    r += b;
    return r;
}

ustring operator+(const ustring& a, unsigned short b)
{
    ustring r(a);
    r += b;
    return r;
}

bool operator<(const ustring& a, const ustring& b)
{
    return a.compare(b) < 0;
}
bool operator>(const ustring& a, const ustring& b)
{
    return a.compare(b) > 0;
}
bool operator<=(const ustring& a, const ustring& b)
{
    return a.compare(b) <= 0;
}
bool operator>=(const ustring& a, const ustring& b)
{
    return a.compare(b) >= 0;
}
bool operator==(const ustring& a, const ustring& b)
{
    return a.compare(b) == 0;
}
bool operator!=(const ustring& a, const ustring& b)
{
    return a.compare(b) != 0;
}

void swap(ustring& a, ustring& b)
{
    a.swap(b);
}

std::ostream& operator<<(std::ostream& os, const ustring& s)
{
    return os << s.c_str();
}

// Leaves s untouched when no word could be read.
std::istream& operator>>(std::istream& is, ustring& s)
{
    std::string word;
    if (is >> word)
        s.assign(word, 0, ustring::npos);
    return is;
}
