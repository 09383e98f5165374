// ustring: one text held as UTF-8 (always current) and as UTF-16 (a cache
// built on demand). Lengths, positions and comparisons count UTF-8 bytes.
#ifndef NIMBULO_USTRING_H
#define NIMBULO_USTRING_H

#include <cstddef>
#include <iosfwd>
#include <string>

class ustring {
public:
    enum normalization_form { nfc = 0, nfd = 1 };

    static const size_t npos = static_cast<size_t>(-1);

    ustring();
    ustring(ustring const& s);
    ustring(char const* s);
    ustring(unsigned short const* s);
    ustring(std::string const& s);
    ustring(char c);
    ~ustring();

    // Appending. The unsigned short forms edit the UTF-16 side and rebuild
    // the UTF-8 text at once; all others edit the UTF-8 side.
    ustring& append(char const* s);
    ustring& append(char const* s, size_t n);
    ustring& append(unsigned short const* s);
    ustring& append(unsigned short const* s, size_t n);
    ustring& append(char c, size_t n);
    ustring& append(unsigned short c, size_t n);
    ustring& append(ustring const& s, size_t pos = 0, size_t n = npos);
    ustring& append(std::string const& s, size_t pos = 0, size_t n = npos);

    // Assigning: empties both forms, then the matching append.
    ustring& assign(char const* s);
    ustring& assign(char const* s, size_t n);
    ustring& assign(unsigned short const* s);
    ustring& assign(unsigned short const* s, size_t n);
    ustring& assign(char c, size_t n);
    ustring& assign(unsigned short c, size_t n);
    ustring& assign(ustring const& s, size_t pos = 0, size_t n = npos);
    ustring& assign(std::string const& s, size_t pos = 0, size_t n = npos);

    ustring& operator+=(ustring const& s);
    ustring& operator+=(std::string const& s);
    ustring& operator+=(char const* s);
    ustring& operator+=(unsigned short const* s);
    ustring& operator+=(char c);
    ustring& operator+=(unsigned short c);

    ustring& operator=(ustring const& s);
    ustring& operator=(std::string const& s);
    ustring& operator=(char const* s);
    ustring& operator=(unsigned short const* s);
    ustring& operator=(char c);
    ustring& operator=(unsigned short c);

    void clear();
    void clear_data();
    void clear_wdata() const;

    char const* c_str() const { return data; }
    char const* c_str_utf8() const { return data; }
    unsigned short const* c_str_utf16() const;
    size_t length() const { return data_len; }
    size_t size() const { return data_len; }
    bool empty() const { return data_len == 0; }

    // Allocated sizes, terminator included: what the capacity rule decides.
    size_t capacity() const { return data_cap; }
    size_t utf16_capacity() const { return wdata_cap; }

    // No bounds check; writing through it leaves the UTF-16 cache alone.
    char& operator[](size_t i) { return data[i]; }
    char const& operator[](size_t i) const { return data[i]; }

    // Throws std::out_of_range("substr") when pos > length().
    ustring substr(size_t pos = 0, size_t n = npos) const;
    void swap(ustring& other);

    size_t find(std::string const& s, size_t pos = 0) const;
    size_t find(char const* s, size_t pos = 0) const;
    size_t find(ustring const& s, size_t pos = 0) const;
    size_t find(char c, size_t pos = 0) const;
    size_t rfind(std::string const& s, size_t pos = npos) const;
    size_t rfind(char const* s, size_t pos = npos) const;
    size_t rfind(ustring const& s, size_t pos = npos) const;
    size_t rfind(char c, size_t pos = npos) const;
    size_t find_first_of(std::string const& s, size_t pos = 0) const;
    size_t find_first_of(char const* s, size_t pos = 0) const;
    size_t find_first_of(ustring const& s, size_t pos = 0) const;
    size_t find_first_of(char c, size_t pos = 0) const;
    size_t find_first_not_of(std::string const& s, size_t pos = 0) const;
    size_t find_first_not_of(char const* s, size_t pos = 0) const;
    size_t find_first_not_of(ustring const& s, size_t pos = 0) const;
    size_t find_first_not_of(char c, size_t pos = 0) const;
    size_t find_last_of(std::string const& s, size_t pos = npos) const;
    size_t find_last_of(char const* s, size_t pos = npos) const;
    size_t find_last_of(ustring const& s, size_t pos = npos) const;
    size_t find_last_of(char c, size_t pos = npos) const;
    size_t find_last_not_of(std::string const& s, size_t pos = npos) const;
    size_t find_last_not_of(char const* s, size_t pos = npos) const;
    size_t find_last_not_of(ustring const& s, size_t pos = npos) const;
    size_t find_last_not_of(char c, size_t pos = npos) const;

    void ltrim(ustring const& set);
    void ltrim(char const* set);
    void rtrim(ustring const& set);
    void rtrim(char const* set);
    void trim(ustring const& set);
    void trim(char const* set);

    void replace(char from, char to);

    int compare(ustring const& b) const;
    int compare(ustring const& b, size_t n) const;
    // ignore_case folds ASCII letters only.
    static int compare(ustring const& a, ustring const& b, bool ignore_case);

    static bool is_valid(ustring const& s);
    static ustring normalize(ustring const& s, normalization_form f);
    ustring normalize(normalization_form f) const;

private:
    void init();
    void realloc_data(size_t n);
    void realloc_wdata(size_t n) const;
    int convert_from_data() const;
    int convert_from_wdata();
    void mark_wdata_stale() const;
    void ensure_wdata() const;
    void append_bytes(char const* s, size_t len);
    void append_units(unsigned short const* s, size_t n);

    char* data;
    size_t data_len;
    size_t data_cap;
    mutable unsigned short* wdata;
    mutable size_t wdata_len;
    mutable size_t wdata_cap;
};

ustring operator+(ustring const& a, ustring const& b);
ustring operator+(ustring const& a, char const* b);
ustring operator+(ustring const& a, char b);
ustring operator+(ustring const& a, unsigned short const* b);
ustring operator+(ustring const& a, unsigned short b);

bool operator==(ustring const& a, ustring const& b);
bool operator!=(ustring const& a, ustring const& b);
bool operator<(ustring const& a, ustring const& b);
bool operator>(ustring const& a, ustring const& b);
bool operator<=(ustring const& a, ustring const& b);
bool operator>=(ustring const& a, ustring const& b);

void swap(ustring& a, ustring& b);

std::ostream& operator<<(std::ostream& os, ustring const& s);
std::istream& operator>>(std::istream& is, ustring& s);

#endif
