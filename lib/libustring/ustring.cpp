#include "libustring/ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>
#include <unicode/utypes.h>

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

// ICU's UChar is char16_t in C++; our buffers hold unsigned short.
UChar* as_uchar(unsigned short* p)
{
    return reinterpret_cast<UChar*>(p);
}

int32_t icu_capacity(size_t cap)
{
    return cap > static_cast<size_t>(INT32_MAX) ? INT32_MAX : static_cast<int32_t>(cap);
}

// ICU trouble goes to standard error, not to the log: the logger is built
// on ustring itself.
void icu_warning(char const* text, UErrorCode status, int line)
{
    std::cerr << text << static_cast<int>(status) << " at line " << line << std::endl;
}

size_t bounded_len(char const* s, size_t n)
{
    size_t len = 0;
    while (len < n && s[len] != '\0')
        ++len;
    return len;
}

size_t bounded_len(unsigned short const* s, size_t n)
{
    size_t len = 0;
    while (len < n && s[len] != 0)
        ++len;
    return len;
}

size_t checked_need(size_t len, size_t extra)
{
    if (extra > static_cast<size_t>(-1) - 1 - len)
        throw std::bad_alloc();
    return len + extra + 1;
}

struct ByteSet {
    bool in[256];
    bool empty;
    explicit ByteSet(char const* set) : in(), empty(true)
    {
        if (set == nullptr)
            return;
        for (unsigned char const* p = reinterpret_cast<unsigned char const*>(set); *p; ++p) {
            in[*p] = true;
            empty = false;
        }
    }
    bool has(char c) const { return in[static_cast<unsigned char>(c)]; }
};

unsigned char fold_ascii(char c)
{
    unsigned char u = static_cast<unsigned char>(c);
    return (u >= 'A' && u <= 'Z') ? static_cast<unsigned char>(u - 'A' + 'a') : u;
}

// A single char as a needle or set: the byte 0 stands for the empty one.
struct CharNeedle {
    char buf[2];
    explicit CharNeedle(char c) : buf{c, '\0'} { }
    char const* str() const { return buf; }
};

}  // namespace

// ---- life cycle ----

ustring::ustring()
{
    init();
}

ustring::ustring(ustring const& s)
{
    init();
    append(s, 0, npos);
}

ustring::ustring(char const* s)
{
    init();
    append(s);
}

ustring::ustring(unsigned short const* s)
{
    init();
    append(s);
}

ustring::ustring(std::string const& s)
{
    init();
    append(s.c_str());
}

ustring::ustring(char c)
{
    init();
    append(c, 1);
}

ustring::~ustring()
{
    free(data);
    data = nullptr;
    free(wdata);
    wdata = nullptr;
}

void ustring::init()
{
    data = nullptr;
    wdata = nullptr;
    data_len = 0;
    data_cap = 0;
    wdata_len = 0;
    wdata_cap = 0;
    data = static_cast<char*>(malloc(4));
    if (data == nullptr)
        throw std::bad_alloc();
    wdata = static_cast<unsigned short*>(malloc(4 * sizeof(unsigned short)));
    if (wdata == nullptr) {
        free(data);
        data = nullptr;
        throw std::bad_alloc();
    }
    data[0] = '\0';
    data_cap = 4;
    wdata[0] = 0;
    wdata_cap = 4;
}

// Keep the buffer while it holds n and is at most twice n; otherwise make
// it exactly n. Growth is deliberately not geometric.
void ustring::realloc_data(size_t n)
{
    if (data_cap >= n && data_cap / 2 <= n)
        return;
    char* p = static_cast<char*>(realloc(data, n));
    if (p == nullptr)
        throw std::bad_alloc();
    data = p;
    data_cap = n;
}

void ustring::realloc_wdata(size_t n) const
{
    if (wdata_cap >= n && wdata_cap / 2 <= n)
        return;
    if (n > static_cast<size_t>(-1) / sizeof(unsigned short))
        throw std::bad_alloc();
    unsigned short* p = static_cast<unsigned short*>(realloc(wdata, n * sizeof(unsigned short)));
    if (p == nullptr)
        throw std::bad_alloc();
    wdata = p;
    wdata_cap = n;
}

int ustring::convert_from_data() const
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    u_strFromUTF8(nullptr, 0, &len, data, -1, &status);
    if (len < 0)
        len = 0;
    realloc_wdata(static_cast<size_t>(len) + 1);
    status = U_ZERO_ERROR;
    u_strFromUTF8(as_uchar(wdata), icu_capacity(wdata_cap), &len, data, -1, &status);
    if (U_FAILURE(status)) {
        icu_warning("Warning: u_strFromUTF8: error code ", status, 921);
        wdata_len = 0;
        wdata[0] = 0;
        return -1;
    }
    wdata_len = static_cast<size_t>(len);
    wdata[wdata_len] = 0;
    return 0;
}

int ustring::convert_from_wdata()
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    u_strToUTF8(nullptr, 0, &len, as_uchar(wdata), -1, &status);
    if (len < 0)
        len = 0;
    realloc_data(static_cast<size_t>(len) + 1);
    status = U_ZERO_ERROR;
    u_strToUTF8(data, icu_capacity(data_cap), &len, as_uchar(wdata), -1, &status);
    if (U_FAILURE(status)) {
        icu_warning("Warning: u_strToUTF8: error code ", status, 888);
        data_len = 0;
        data[0] = '\0';
        wdata_len = 0;
        wdata[0] = 0;
        return -1;
    }
    data_len = static_cast<size_t>(len);
    data[data_len] = '\0';
    return 0;
}

void ustring::mark_wdata_stale() const
{
    wdata_len = 0;
    wdata[0] = 0;
}

void ustring::ensure_wdata() const
{
    if (wdata_len == 0 && data_len != 0)
        convert_from_data();
}

// Appends exactly len bytes. The source may lie in our own buffer: it is
// found again by offset after the buffer has moved.
void ustring::append_bytes(char const* s, size_t len)
{
    size_t need = checked_need(data_len, len);
    std::less<char const*> before;
    bool own = !before(s, data) && before(s, data + data_cap);
    size_t off = own ? static_cast<size_t>(s - data) : 0;
    realloc_data(need);
    if (own)
        s = data + off;
    if (len != 0)
        memmove(data + data_len, s, len);
    data_len += len;
    data[data_len] = '\0';
    mark_wdata_stale();
}

void ustring::append_units(unsigned short const* s, size_t n)
{
    bool own = s == wdata;
    ensure_wdata();
    if (own)
        s = wdata;
    size_t len = bounded_len(s, n);
    size_t need = checked_need(wdata_len, len);
    realloc_wdata(need);
    if (own)
        s = wdata;
    if (len != 0)
        memmove(wdata + wdata_len, s, len * sizeof(unsigned short));
    wdata_len += len;
    wdata[wdata_len] = 0;
    convert_from_wdata();
}

// ---- appending ----

ustring& ustring::append(char const* s)
{
    if (s == nullptr)
        return *this;
    append_bytes(s, strlen(s));
    return *this;
}

ustring& ustring::append(char const* s, size_t n)
{
    if (s == nullptr)
        return *this;
    append_bytes(s, bounded_len(s, n));
    return *this;
}

ustring& ustring::append(unsigned short const* s)
{
    if (s == nullptr)
        return *this;
    append_units(s, npos);
    return *this;
}

ustring& ustring::append(unsigned short const* s, size_t n)
{
    if (s == nullptr)
        return *this;
    append_units(s, n);
    return *this;
}

ustring& ustring::append(char c, size_t n)
{
    realloc_data(checked_need(data_len, n));
    memset(data + data_len, static_cast<unsigned char>(c), n);
    data_len += n;
    data[data_len] = '\0';
    mark_wdata_stale();
    return *this;
}

ustring& ustring::append(unsigned short c, size_t n)
{
    ensure_wdata();
    realloc_wdata(checked_need(wdata_len, n));
    for (size_t i = 0; i < n; ++i)
        wdata[wdata_len + i] = c;
    wdata_len += n;
    wdata[wdata_len] = 0;
    convert_from_wdata();
    return *this;
}

ustring& ustring::append(ustring const& s, size_t pos, size_t n)
{
    if (pos > s.data_len)
        throw std::out_of_range("substr");
    size_t len = s.data_len - pos;
    if (n < len)
        len = n;
    append_bytes(s.data + pos, len);
    return *this;
}

ustring& ustring::append(std::string const& s, size_t pos, size_t n)
{
    std::string part = s.substr(pos, n);
    return append(part.c_str());
}

// ---- assigning ----

ustring& ustring::assign(char const* s)
{
    if (s == data)
        return *this;
    clear();
    return append(s);
}

ustring& ustring::assign(char const* s, size_t n)
{
    if (s == data) {
        if (n < data_len) {
            data_len = n;
            data[n] = '\0';
            mark_wdata_stale();
        }
        return *this;
    }
    clear();
    return append(s, n);
}

ustring& ustring::assign(unsigned short const* s)
{
    if (s == wdata)
        return *this;
    clear();
    return append(s);
}

ustring& ustring::assign(unsigned short const* s, size_t n)
{
    if (s == wdata) {
        if (n < wdata_len) {
            wdata_len = n;
            wdata[n] = 0;
            convert_from_wdata();
        }
        return *this;
    }
    clear();
    return append(s, n);
}

ustring& ustring::assign(char c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(unsigned short c, size_t n)
{
    clear();
    return append(c, n);
}

ustring& ustring::assign(ustring const& s, size_t pos, size_t n)
{
    if (&s == this) {
        ustring part = substr(pos, n);
        return assign(part, 0, npos);
    }
    if (pos > s.data_len)
        throw std::out_of_range("substr");
    clear();
    return append(s, pos, n);
}

ustring& ustring::assign(std::string const& s, size_t pos, size_t n)
{
    std::string part = s.substr(pos, n);
    clear();
    return append(part.c_str());
}

ustring& ustring::operator+=(ustring const& s)
{
    return append(s, 0, npos);
}
ustring& ustring::operator+=(std::string const& s)
{
    return append(s, 0, npos);
}
ustring& ustring::operator+=(char const* s)
{
    return append(s);
}
ustring& ustring::operator+=(unsigned short const* s)
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

ustring& ustring::operator=(ustring const& s)
{
    return assign(s, 0, npos);
}
ustring& ustring::operator=(std::string const& s)
{
    return assign(s, 0, npos);
}
ustring& ustring::operator=(char const* s)
{
    return assign(s);
}
ustring& ustring::operator=(unsigned short const* s)
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

void ustring::clear()
{
    clear_data();
    clear_wdata();
}

void ustring::clear_data()
{
    data_len = 0;
    data[0] = '\0';
}

void ustring::clear_wdata() const
{
    mark_wdata_stale();
}

// ---- access ----

unsigned short const* ustring::c_str_utf16() const
{
    ensure_wdata();
    return wdata;
}

ustring ustring::substr(size_t pos, size_t n) const
{
    if (pos > data_len)
        throw std::out_of_range("substr");
    size_t len = data_len - pos;
    if (n < len)
        len = n;
    ustring r;
    r.append_bytes(data + pos, len);
    return r;
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

// ---- searching ----
// Needles and sets are taken up to their first NUL, and so is the text.

size_t ustring::find(char const* s, size_t pos) const
{
    if (pos >= data_len)
        return npos;
    if (s == nullptr || *s == '\0')
        return pos;
    char const* hit = strstr(data + pos, s);
    return hit ? static_cast<size_t>(hit - data) : npos;
}

size_t ustring::rfind(char const* s, size_t pos) const
{
    if (data_len == 0)
        return npos;
    size_t start = (pos >= data_len) ? data_len - 1 : pos;
    if (s == nullptr || *s == '\0')
        return start;
    size_t text = strlen(data);
    size_t len = strlen(s);
    if (len > text)
        return npos;
    size_t i = text - len;
    if (start < i)
        i = start;
    for (;; --i) {
        if (memcmp(data + i, s, len) == 0)
            return i;
        if (i == 0)
            return npos;
    }
}

size_t ustring::find_first_of(char const* s, size_t pos) const
{
    if (pos >= data_len)
        return npos;
    ByteSet set(s);
    if (set.empty)
        return npos;
    for (size_t i = pos; i < data_len && data[i] != '\0'; ++i)
        if (set.has(data[i]))
            return i;
    return npos;
}

size_t ustring::find_first_not_of(char const* s, size_t pos) const
{
    if (pos >= data_len)
        return npos;
    ByteSet set(s);
    if (set.empty)
        return pos;
    for (size_t i = pos; i < data_len && data[i] != '\0'; ++i)
        if (!set.has(data[i]))
            return i;
    return npos;
}

size_t ustring::find_last_of(char const* s, size_t pos) const
{
    if (data_len == 0)
        return npos;
    ByteSet set(s);
    if (set.empty)
        return npos;
    size_t text = strlen(data);
    if (text == 0)
        return npos;
    size_t i = (pos >= data_len) ? data_len - 1 : pos;
    if (i > text - 1)
        i = text - 1;
    for (;; --i) {
        if (set.has(data[i]))
            return i;
        if (i == 0)
            return npos;
    }
}

size_t ustring::find_last_not_of(char const* s, size_t pos) const
{
    if (data_len == 0)
        return npos;
    size_t start = (pos >= data_len) ? data_len - 1 : pos;
    ByteSet set(s);
    if (set.empty)
        return start;
    size_t text = strlen(data);
    if (text == 0)
        return npos;
    size_t i = start > text - 1 ? text - 1 : start;
    for (;; --i) {
        if (!set.has(data[i]))
            return i;
        if (i == 0)
            return npos;
    }
}

size_t ustring::find(std::string const& s, size_t pos) const
{
    return find(s.c_str(), pos);
}
size_t ustring::find(ustring const& s, size_t pos) const
{
    return find(s.data, pos);
}
size_t ustring::find(char c, size_t pos) const
{
    return find(CharNeedle(c).str(), pos);
}

size_t ustring::rfind(std::string const& s, size_t pos) const
{
    return rfind(s.c_str(), pos);
}
size_t ustring::rfind(ustring const& s, size_t pos) const
{
    return rfind(s.data, pos);
}
size_t ustring::rfind(char c, size_t pos) const
{
    return rfind(CharNeedle(c).str(), pos);
}

size_t ustring::find_first_of(std::string const& s, size_t pos) const
{
    return find_first_of(s.c_str(), pos);
}
size_t ustring::find_first_of(ustring const& s, size_t pos) const
{
    return find_first_of(s.data, pos);
}
size_t ustring::find_first_of(char c, size_t pos) const
{
    return find_first_of(CharNeedle(c).str(), pos);
}

size_t ustring::find_first_not_of(std::string const& s, size_t pos) const
{
    return find_first_not_of(s.c_str(), pos);
}
size_t ustring::find_first_not_of(ustring const& s, size_t pos) const
{
    return find_first_not_of(s.data, pos);
}
size_t ustring::find_first_not_of(char c, size_t pos) const
{
    return find_first_not_of(CharNeedle(c).str(), pos);
}

size_t ustring::find_last_of(std::string const& s, size_t pos) const
{
    return find_last_of(s.c_str(), pos);
}
size_t ustring::find_last_of(ustring const& s, size_t pos) const
{
    return find_last_of(s.data, pos);
}
size_t ustring::find_last_of(char c, size_t pos) const
{
    return find_last_of(CharNeedle(c).str(), pos);
}

size_t ustring::find_last_not_of(std::string const& s, size_t pos) const
{
    return find_last_not_of(s.c_str(), pos);
}
size_t ustring::find_last_not_of(ustring const& s, size_t pos) const
{
    return find_last_not_of(s.data, pos);
}
size_t ustring::find_last_not_of(char c, size_t pos) const
{
    return find_last_not_of(CharNeedle(c).str(), pos);
}

// ---- trimming and replacing ----

void ustring::ltrim(char const* s)
{
    ByteSet set(s);
    if (data_len == 0 || set.empty)
        return;
    size_t i = 0;
    while (i < data_len && set.has(data[i]))
        ++i;
    if (i == 0)
        return;
    memmove(data, data + i, data_len - i + 1);
    data_len -= i;
    mark_wdata_stale();
}

void ustring::rtrim(char const* s)
{
    ByteSet set(s);
    if (data_len == 0 || set.empty)
        return;
    size_t end = data_len;
    while (end > 0 && set.has(data[end - 1]))
        --end;
    if (end == data_len)
        return;
    data_len = end;
    data[end] = '\0';
    mark_wdata_stale();
}

void ustring::trim(char const* s)
{
    rtrim(s);
    ltrim(s);
}

void ustring::ltrim(ustring const& set)
{
    ltrim(set.data);
}
void ustring::rtrim(ustring const& set)
{
    rtrim(set.data);
}
void ustring::trim(ustring const& set)
{
    trim(set.data);
}

void ustring::replace(char from, char to)
{
    for (size_t i = 0; i < data_len; ++i)
        if (data[i] == from)
            data[i] = to;
    mark_wdata_stale();
}

// ---- comparing ----

int ustring::compare(ustring const& b) const
{
    unsigned char const* x = reinterpret_cast<unsigned char const*>(data);
    unsigned char const* y = reinterpret_cast<unsigned char const*>(b.data);
    while (*x != 0 && *x == *y) {
        ++x;
        ++y;
    }
    return static_cast<int>(*x) - static_cast<int>(*y);
}

int ustring::compare(ustring const& b, size_t n) const
{
    unsigned char const* x = reinterpret_cast<unsigned char const*>(data);
    unsigned char const* y = reinterpret_cast<unsigned char const*>(b.data);
    for (size_t i = 0; i < n; ++i) {
        if (x[i] != y[i] || x[i] == 0)
            return static_cast<int>(x[i]) - static_cast<int>(y[i]);
    }
    return 0;
}

int ustring::compare(ustring const& a, ustring const& b, bool ignore_case)
{
    if (!ignore_case)
        return a.compare(b);
    for (size_t i = 0;; ++i) {
        unsigned char x = fold_ascii(a.data[i]);
        unsigned char y = fold_ascii(b.data[i]);
        if (x != y || x == 0)
            return static_cast<int>(x) - static_cast<int>(y);
    }
}

// ---- validation and normalisation ----

bool ustring::is_valid(ustring const& s)
{
    if (s.data_len == 0)
        return true;
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    // Measuring mode: the overflow status it reports is not a verdict.
    u_strFromUTF8(nullptr, 0, &len, s.data, -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

ustring ustring::normalize(ustring const& s, normalization_form f)
{
    ustring r;
    if (s.data_len == 0)
        return r;
    UErrorCode status = U_ZERO_ERROR;
    // "nfc" data serves both forms; the mode picks composition or not.
    UNormalizer2 const* n2 =
        unorm2_getInstance(nullptr, "nfc", f == nfd ? UNORM2_DECOMPOSE : UNORM2_COMPOSE, &status);
    if (n2 == nullptr || U_FAILURE(status)) {
        icu_warning("Warning: unorm2_getInstance: error code ", status, 1014);
        return r;
    }
    s.ensure_wdata();
    status = U_ZERO_ERROR;
    int32_t len = unorm2_normalize(n2, as_uchar(s.wdata), -1, nullptr, 0, &status);
    if (len < 0)
        len = 0;
    r.realloc_wdata(static_cast<size_t>(len) + 1);
    status = U_ZERO_ERROR;
    len = unorm2_normalize(n2, as_uchar(s.wdata), -1, as_uchar(r.wdata), icu_capacity(r.wdata_cap), &status);
    if (U_FAILURE(status)) {
        icu_warning("Warning: unorm2_normalize: error code ", status, 1026);
        r.clear();
        return r;
    }
    r.wdata_len = static_cast<size_t>(len);
    r.wdata[r.wdata_len] = 0;
    r.convert_from_wdata();
    return r;
}

ustring ustring::normalize(normalization_form f) const
{
    return normalize(*this, f);
}

// ---- free operators ----

ustring operator+(ustring const& a, ustring const& b)
{
    ustring r(a);
    r.append(b, 0, ustring::npos);
    return r;
}

ustring operator+(ustring const& a, char const* b)
{
    ustring r(a);
    r.append(b);
    return r;
}

ustring operator+(ustring const& a, char b)
{
    ustring r(a);
    r.append(b, 1);
    return r;
}

ustring operator+(ustring const& a, unsigned short const* b)
{
    ustring r(a);
    r.append(b);
    return r;
}

ustring operator+(ustring const& a, unsigned short b)
{
    ustring r(a);
    r.append(b, 1);
    return r;
}

bool operator==(ustring const& a, ustring const& b)
{
    return a.length() == b.length() && memcmp(a.c_str(), b.c_str(), a.length()) == 0;
}

bool operator!=(ustring const& a, ustring const& b)
{
    return !(a == b);
}
bool operator<(ustring const& a, ustring const& b)
{
    return a.compare(b) < 0;
}
bool operator>(ustring const& a, ustring const& b)
{
    return a.compare(b) > 0;
}
bool operator<=(ustring const& a, ustring const& b)
{
    return a.compare(b) <= 0;
}
bool operator>=(ustring const& a, ustring const& b)
{
    return a.compare(b) >= 0;
}

void swap(ustring& a, ustring& b)
{
    a.swap(b);
}

std::ostream& operator<<(std::ostream& os, ustring const& s)
{
    return os << s.c_str();
}

std::istream& operator>>(std::istream& is, ustring& s)
{
    std::string word;
    if (is >> word)
        s.assign(word, 0, std::string::npos);
    return is;
}
