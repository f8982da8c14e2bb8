// ustring: the string type of every non-user-interface module.
//
// The text is held as NUL-terminated UTF-8 (the master form) with a lazily
// built UTF-16 copy beside it for normalisation and UTF-16 input/output.
// Positions, lengths, searches and comparisons all work on UTF-8 bytes.
#pragma once

#include <iosfwd>
#include <string>

class ustring {
public:
    enum normalization_form { NFC = 0, NFD = 1 };

    static const unsigned long npos = static_cast<unsigned long>(-1);

    ustring();
    ustring(const ustring& s);
    ustring(const char* s);
    ustring(const unsigned short* s);
    ustring(const std::string& s);
    explicit ustring(char c);
    ~ustring();

    // assign() empties both forms and then appends, so a throwing append
    // leaves the target empty (except self-assignment, which copies first).
    ustring& assign(const ustring& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& assign(const char* s);
    ustring& assign(const char* s, unsigned long n);
    ustring& assign(const unsigned short* s);
    ustring& assign(const unsigned short* s, unsigned long n);
    ustring& assign(const std::string& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& assign(char c, unsigned long n);
    ustring& assign(unsigned short c, unsigned long n);

    ustring& operator=(const ustring& s);
    ustring& operator=(const std::string& s);
    ustring& operator=(const char* s);
    ustring& operator=(const unsigned short* s);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    ustring& append(const char* s);
    ustring& append(const char* s, unsigned long n);
    ustring& append(const ustring& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& append(const std::string& s, unsigned long pos = 0, unsigned long n = npos);
    ustring& append(char c, unsigned long n);
    ustring& append(const unsigned short* s);
    ustring& append(const unsigned short* s, unsigned long n);
    ustring& append(unsigned short c, unsigned long n);

    ustring& operator+=(const ustring& s);
    ustring& operator+=(const std::string& s);
    ustring& operator+=(const char* s);
    ustring& operator+=(const unsigned short* s);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    void clear();
    void swap(ustring& other);

    const char* c_str() const { return data; }
    const char* c_str_utf8() const { return data; }
    const unsigned short* c_str_utf16() const;
    unsigned long length() const { return data_len; }
    unsigned long size() const { return data_len; }
    bool empty() const { return data_len == 0; }
    // Bytes allocated for the UTF-8 form, terminator included.
    unsigned long capacity() const { return data_cap; }

    char& operator[](unsigned long i) { return data[i]; }
    const char& operator[](unsigned long i) const { return data[i]; }

    // Throws std::out_of_range("substr") when pos > length().
    ustring substr(unsigned long pos = 0, unsigned long n = npos) const;
    void replace(char from, char to);

    unsigned long find(const std::string& s, unsigned long pos = 0) const;
    unsigned long find(const char* s, unsigned long pos = 0) const;
    unsigned long find(const ustring& s, unsigned long pos = 0) const;
    unsigned long find(char c, unsigned long pos = 0) const;
    unsigned long rfind(const std::string& s, unsigned long pos = npos) const;
    unsigned long rfind(const char* s, unsigned long pos = npos) const;
    unsigned long rfind(const ustring& s, unsigned long pos = npos) const;
    unsigned long rfind(char c, unsigned long pos = npos) const;
    unsigned long find_first_of(const std::string& s, unsigned long pos = 0) const;
    unsigned long find_first_of(const char* s, unsigned long pos = 0) const;
    unsigned long find_first_of(const ustring& s, unsigned long pos = 0) const;
    unsigned long find_first_of(char c, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const std::string& s, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const char* s, unsigned long pos = 0) const;
    unsigned long find_first_not_of(const ustring& s, unsigned long pos = 0) const;
    unsigned long find_first_not_of(char c, unsigned long pos = 0) const;
    unsigned long find_last_of(const std::string& s, unsigned long pos = npos) const;
    unsigned long find_last_of(const char* s, unsigned long pos = npos) const;
    unsigned long find_last_of(const ustring& s, unsigned long pos = npos) const;
    unsigned long find_last_of(char c, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const std::string& s, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const char* s, unsigned long pos = npos) const;
    unsigned long find_last_not_of(const ustring& s, unsigned long pos = npos) const;
    unsigned long find_last_not_of(char c, unsigned long pos = npos) const;

    void ltrim(const ustring& set);
    void ltrim(const char* set);
    void rtrim(const ustring& set);
    void rtrim(const char* set);
    void trim(const ustring& set);
    void trim(const char* set);

    int compare(const ustring& s) const;
    int compare(const ustring& s, unsigned long n) const;
    static int compare(const ustring& a, const ustring& b, bool ignore_case);

    static bool is_valid(const ustring& s);
    static ustring normalize(const ustring& src, normalization_form f);
    ustring normalize(normalization_form f) const;

private:
    void init();
    void clear_data();
    void clear_wdata() const;
    void realloc_data(unsigned long need);
    void realloc_wdata(unsigned long need) const;
    int convert_from_data() const;
    int convert_from_wdata();

    char* data;
    unsigned long data_len;
    unsigned long data_cap;
    mutable unsigned short* wdata;
    mutable unsigned long wdata_len;
    mutable unsigned long wdata_cap;
};

ustring operator+(const ustring& a, const ustring& b);
ustring operator+(const ustring& a, const char* b);
ustring operator+(const ustring& a, char b);
ustring operator+(const ustring& a, const unsigned short* b);
ustring operator+(const ustring& a, unsigned short b);

bool operator<(const ustring& a, const ustring& b);
bool operator>(const ustring& a, const ustring& b);
bool operator<=(const ustring& a, const ustring& b);
bool operator>=(const ustring& a, const ustring& b);
bool operator==(const ustring& a, const ustring& b);
bool operator!=(const ustring& a, const ustring& b);

void swap(ustring& a, ustring& b);

std::ostream& operator<<(std::ostream& os, const ustring& s);
std::istream& operator>>(std::istream& is, ustring& s);
