// Sequences of ustring operations on two strings, each checked against a
// model: std::string for the bytes, ICU called directly for the UTF-16 form
// and normalisation. After every step both strings must equal their models
// byte for byte and stay NUL-terminated.
//
// The models never hold a zero byte: the operations that would put one into
// a text (a zero fill byte, a zero replacement) are not generated, because
// searches and the UTF-16 form stop at the first zero byte by design.
#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

#include "ustring.h"

namespace {

const size_t kMaxText = 1 << 14;

struct Input {
    const uint8_t* p;
    size_t n;
    bool empty() const { return n == 0; }
    uint8_t Byte()
    {
        if (n == 0)
            return 0;
        --n;
        return *p++;
    }
    size_t Size(size_t max)  // 0..max, with a chance of npos-like values
    {
        uint8_t b = Byte();
        if (b == 0xff)
            return ustring::npos;
        return max == 0 ? 0 : b % (max + 1);
    }
    std::string Bytes(size_t max)
    {
        size_t len = Byte() % (max + 1);
        len = len < n ? len : n;
        std::string s(reinterpret_cast<const char*>(p), len);
        p += len;
        n -= len;
        return s;
    }
    std::string NonZeroBytes(size_t max)
    {
        std::string s = Bytes(max);
        for (char& c : s)
            if (c == '\0')
                c = 'a';
        return s;
    }
    std::u16string Units(size_t max)
    {
        size_t len = Byte() % (max + 1);
        std::u16string u;
        for (size_t i = 0; i < len && n >= 2; ++i) {
            char16_t c = static_cast<char16_t>(Byte() | (Byte() << 8));
            u.push_back(c == 0 ? u'x' : c);
        }
        return u;
    }
};

[[noreturn]] void Fail(const char* what, const std::string& detail = "")
{
    fprintf(stderr, "ustring differs from its model: %s %s\n", what, detail.c_str());
    abort();
}

// The UTF-16 form of a model text; ok false when ICU finds it invalid.
std::u16string Utf16(const std::string& s, bool& ok)
{
    ok = true;
    if (s.empty())
        return std::u16string();
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    u_strFromUTF8(nullptr, 0, &len, s.c_str(), -1, &status);
    std::u16string out(static_cast<size_t>(len) + 1, u'\0');
    status = U_ZERO_ERROR;
    u_strFromUTF8(reinterpret_cast<UChar*>(&out[0]), len + 1, &len, s.c_str(), -1, &status);
    if (U_FAILURE(status)) {
        ok = false;
        return std::u16string();
    }
    out.resize(static_cast<size_t>(len));
    return out;
}

std::string Utf8(const std::u16string& u, bool& ok)
{
    ok = true;
    if (u.empty())
        return std::string();
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    u_strToUTF8(nullptr, 0, &len, reinterpret_cast<const UChar*>(u.c_str()), -1, &status);
    std::string out(static_cast<size_t>(len) + 1, '\0');
    status = U_ZERO_ERROR;
    u_strToUTF8(&out[0], len + 1, &len, reinterpret_cast<const UChar*>(u.c_str()), -1, &status);
    if (U_FAILURE(status)) {
        ok = false;
        return std::string();
    }
    out.resize(static_cast<size_t>(len));
    return out;
}

bool ModelValid(const std::string& s)
{
    if (s.empty())
        return true;
    UErrorCode status = U_ZERO_ERROR;
    int32_t len = 0;
    u_strFromUTF8(nullptr, 0, &len, s.c_str(), -1, &status);
    return status != U_INVALID_CHAR_FOUND;
}

std::string ModelNormalize(const std::string& s, bool nfd)
{
    bool ok;
    std::u16string u = Utf16(s, ok);
    if (!ok || u.empty())
        return std::string();
    UErrorCode status = U_ZERO_ERROR;
    const UNormalizer2* norm = unorm2_getInstance(nullptr, "nfc", nfd ? UNORM2_DECOMPOSE : UNORM2_COMPOSE, &status);
    if (U_FAILURE(status))
        abort();
    int32_t len = unorm2_normalize(norm, reinterpret_cast<const UChar*>(u.c_str()), -1, nullptr, 0, &status);
    std::u16string out(static_cast<size_t>(len) + 1, u'\0');
    status = U_ZERO_ERROR;
    len = unorm2_normalize(norm, reinterpret_cast<const UChar*>(u.c_str()), -1, reinterpret_cast<UChar*>(&out[0]),
                           len + 1, &status);
    if (U_FAILURE(status))
        return std::string();
    out.resize(static_cast<size_t>(len));
    return Utf8(out, ok);
}

// A UTF-16 edit: the existing text's UTF-16 form (empty when it is not valid
// UTF-8), the new units after it, and the UTF-8 side rebuilt from that; a
// failed rebuild empties the text.
std::string ModelAppendUnits(const std::string& before, const std::u16string& units)
{
    bool ok;
    std::u16string all = Utf16(before, ok);
    all += units;
    std::string out = Utf8(all, ok);
    return ok ? out : std::string();
}

// Searches, from the rules of the string type rather than std::string's.
size_t Find(const std::string& t, const std::string& needle, size_t pos)
{
    if (pos >= t.size())
        return ustring::npos;
    if (needle.empty())
        return pos;
    size_t r = t.find(needle, pos);
    return r == std::string::npos ? ustring::npos : r;
}

size_t Start(const std::string& t, size_t pos)
{
    return (pos == ustring::npos || pos >= t.size()) ? t.size() - 1 : pos;
}

size_t RFind(const std::string& t, const std::string& needle, size_t pos)
{
    if (t.empty())
        return ustring::npos;
    size_t start = Start(t, pos);
    if (needle.empty())
        return start;
    size_t r = t.rfind(needle, start);
    return r == std::string::npos ? ustring::npos : r;
}

size_t FindFirstOf(const std::string& t, const std::string& set, bool in, size_t pos)
{
    if (pos >= t.size())
        return ustring::npos;
    if (set.empty())
        return in ? ustring::npos : pos;
    for (size_t i = pos; i < t.size(); ++i)
        if ((set.find(t[i]) != std::string::npos) == in)
            return i;
    return ustring::npos;
}

size_t FindLastOf(const std::string& t, const std::string& set, bool in, size_t pos)
{
    if (t.empty())
        return ustring::npos;
    size_t start = Start(t, pos);
    if (set.empty())
        return in ? ustring::npos : start;
    for (size_t i = start + 1; i-- > 0;)
        if ((set.find(t[i]) != std::string::npos) == in)
            return i;
    return ustring::npos;
}

int Sign(int v)
{
    return v < 0 ? -1 : (v > 0 ? 1 : 0);
}

int ModelCompare(const std::string& a, const std::string& b, size_t n, bool fold)
{
    for (size_t i = 0; i < n; ++i) {
        unsigned char x = i < a.size() ? static_cast<unsigned char>(a[i]) : 0;
        unsigned char y = i < b.size() ? static_cast<unsigned char>(b[i]) : 0;
        if (fold) {
            if (x >= 'A' && x <= 'Z')
                x = static_cast<unsigned char>(x - 'A' + 'a');
            if (y >= 'A' && y <= 'Z')
                y = static_cast<unsigned char>(y - 'A' + 'a');
        }
        if (x != y)
            return x < y ? -1 : 1;
        if (x == 0)
            return 0;
    }
    return 0;
}

void Check(const ustring& s, const std::string& m, const char* step)
{
    if (s.length() != m.size() || s.size() != m.size() || s.empty() != m.empty())
        Fail(step, "length " + std::to_string(s.length()) + " != " + std::to_string(m.size()));
    if (memcmp(s.c_str(), m.data(), m.size()) != 0 || s.c_str()[m.size()] != '\0' || s.c_str() != s.c_str_utf8())
        Fail(step, "bytes");
    if (s.capacity() < m.size() + 1)
        Fail(step, "capacity");
}

void CheckUtf16(const ustring& s, const std::string& m)
{
    bool ok;
    std::u16string want = Utf16(m, ok);
    const unsigned short* got = s.c_str_utf16();
    size_t len = 0;
    while (got[len] != 0)
        ++len;
    if (len != want.size() || memcmp(got, want.data(), len * 2) != 0)
        Fail("c_str_utf16", m);
}

void CheckSearches(Input& in, const ustring& s, const std::string& m)
{
    std::string needle = in.NonZeroBytes(6);
    size_t pos = in.Size(m.size() + 2);
    char c = static_cast<char>(in.Byte());
    std::string cs = c == '\0' ? std::string() : std::string(1, c);
    ustring un(needle.c_str());
    std::string sn(needle);
    size_t want;

    want = Find(m, needle, pos);
    if (s.find(needle.c_str(), pos) != want || s.find(sn, pos) != want || s.find(un, pos) != want)
        Fail("find");
    if (s.find(c, pos) != Find(m, cs, pos))
        Fail("find(char)");
    want = RFind(m, needle, pos);
    if (s.rfind(needle.c_str(), pos) != want || s.rfind(sn, pos) != want || s.rfind(un, pos) != want)
        Fail("rfind");
    if (s.rfind(c, pos) != RFind(m, cs, pos))
        Fail("rfind(char)");
    want = FindFirstOf(m, needle, true, pos);
    if (s.find_first_of(needle.c_str(), pos) != want || s.find_first_of(sn, pos) != want ||
        s.find_first_of(un, pos) != want || s.find_first_of(c, pos) != FindFirstOf(m, cs, true, pos))
        Fail("find_first_of");
    want = FindFirstOf(m, needle, false, pos);
    if (s.find_first_not_of(needle.c_str(), pos) != want || s.find_first_not_of(sn, pos) != want ||
        s.find_first_not_of(un, pos) != want || s.find_first_not_of(c, pos) != FindFirstOf(m, cs, false, pos))
        Fail("find_first_not_of");
    want = FindLastOf(m, needle, true, pos);
    if (s.find_last_of(needle.c_str(), pos) != want || s.find_last_of(sn, pos) != want ||
        s.find_last_of(un, pos) != want || s.find_last_of(c, pos) != FindLastOf(m, cs, true, pos))
        Fail("find_last_of");
    want = FindLastOf(m, needle, false, pos);
    if (s.find_last_not_of(needle.c_str(), pos) != want || s.find_last_not_of(sn, pos) != want ||
        s.find_last_not_of(un, pos) != want || s.find_last_not_of(c, pos) != FindLastOf(m, cs, false, pos))
        Fail("find_last_not_of");
}

void Trim(std::string& m, const std::string& set, bool left, bool right)
{
    if (set.empty())
        return;
    if (right) {
        size_t end = m.find_last_not_of(set);
        m.erase(end == std::string::npos ? 0 : end + 1);
    }
    if (left) {
        size_t begin = m.find_first_not_of(set);
        m.erase(0, begin == std::string::npos ? m.size() : begin);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Input in{data, size};
    ustring s[2];
    std::string m[2];
    int steps = 0;
    while (!in.empty() && steps++ < 64) {
        const uint8_t op = in.Byte();
        const int x = op & 1;  // the string operated on
        ustring& a = s[x];
        std::string& ma = m[x];
        ustring& b = s[1 - x];
        std::string& mb = m[1 - x];
        const bool room = ma.size() < kMaxText && mb.size() < kMaxText;
        switch ((op >> 1) % 24) {
        case 0: {  // append(char const*), possibly with a zero byte inside
            std::string t = in.Bytes(16);
            if (!room)
                break;
            a.append(t.c_str());
            ma += t.substr(0, strlen(t.c_str()));
            break;
        }
        case 1: {  // append(char const*, n)
            std::string t = in.Bytes(16);
            size_t n = in.Size(20);
            if (!room)
                break;
            a.append(t.c_str(), n);
            ma += t.substr(0, std::min(n, strlen(t.c_str())));
            break;
        }
        case 2: {  // append(char, n) and operator+=(char)
            char c = static_cast<char>(in.Byte() | 1);
            size_t n = in.Byte() % 40;
            if (!room)
                break;
            a.append(c, n);
            a += c;
            ma.append(n + 1, c);
            break;
        }
        case 3: {  // assign(char const*), assign(char const*, n), operator=
            std::string t = in.NonZeroBytes(24);
            size_t n = in.Size(30);
            uint8_t how = in.Byte() % 3;
            if (how == 0) {
                a.assign(t.c_str());
                ma = t;
            } else if (how == 1) {
                a.assign(t.c_str(), n);
                ma = t.substr(0, std::min(n, t.size()));
            } else {
                a = t.c_str();
                ma = t;
            }
            break;
        }
        case 4:  // copy
            if (in.Byte() & 1) {
                a = b;
            } else {
                ustring copy(b);
                a = copy;
            }
            ma = mb;
            break;
        case 5: {  // append(ustring, pos, n), throwing past the end
            size_t pos = in.Size(mb.size() + 2);
            size_t n = in.Size(mb.size() + 2);
            if (!room)
                break;
            bool threw = false;
            try {
                a.append(b, pos, n);
            } catch (const std::out_of_range&) {
                threw = true;
            }
            if (threw != (pos > mb.size()))
                Fail("append(ustring, pos, n) range");
            if (!threw)
                ma += mb.substr(pos, n);
            break;
        }
        case 6: {  // append(std::string, pos, n): stops at the first zero byte
            std::string t = in.Bytes(16);
            size_t pos = in.Size(t.size() + 2);
            size_t n = in.Size(t.size() + 2);
            if (!room)
                break;
            bool threw = false;
            try {
                a.append(t, pos, n);
            } catch (const std::out_of_range&) {
                threw = true;
            }
            if (threw != (pos > t.size()))
                Fail("append(std::string, pos, n) range");
            if (!threw) {
                std::string part = t.substr(pos, n);
                ma += part.substr(0, part.find('\0'));
            }
            break;
        }
        case 7: {  // substr
            size_t pos = in.Size(ma.size() + 2);
            size_t n = in.Size(ma.size() + 2);
            bool threw = false;
            ustring part;
            try {
                part = a.substr(pos, n);
            } catch (const std::out_of_range& e) {
                threw = true;
                if (strcmp(e.what(), "substr") != 0)
                    Fail("substr message");
            }
            if (threw != (pos > ma.size()))
                Fail("substr range");
            if (!threw)
                Check(part, ma.substr(pos, n), "substr");
            break;
        }
        case 8:
            CheckSearches(in, a, ma);
            break;
        case 9: {  // trims
            std::string set = in.NonZeroBytes(4);
            uint8_t how = in.Byte() % 6;
            ustring uset(set.c_str());
            switch (how) {
            case 0: a.ltrim(set.c_str()); break;
            case 1: a.rtrim(set.c_str()); break;
            case 2: a.trim(set.c_str()); break;
            case 3: a.ltrim(uset); break;
            case 4: a.rtrim(uset); break;
            default: a.trim(uset); break;
            }
            Trim(ma, set, how % 3 != 1, how % 3 != 0);
            break;
        }
        case 10: {  // replace
            char from = static_cast<char>(in.Byte());
            char to = static_cast<char>(in.Byte() | 0x40);
            a.replace(from, to);
            for (char& ch : ma)
                if (ch == from)
                    ch = to;
            break;
        }
        case 11: {  // comparisons
            size_t n = in.Size(ma.size() + 2);
            size_t whole = std::max(ma.size(), mb.size()) + 1;
            if (Sign(a.compare(b)) != ModelCompare(ma, mb, whole, false) ||
                Sign(a.compare(b, n)) != ModelCompare(ma, mb, n, false) ||
                Sign(ustring::compare(a, b, false)) != ModelCompare(ma, mb, whole, false) ||
                Sign(ustring::compare(a, b, true)) != ModelCompare(ma, mb, whole, true))
                Fail("compare");
            if ((a == b) != (ma == mb) || (a != b) != (ma != mb) || (a < b) != (ma < mb) || (a > b) != (ma > mb))
                Fail("operators");
            break;
        }
        case 12:
            CheckUtf16(a, ma);
            break;
        case 13: {  // append(unsigned short const*) and append(units, n)
            std::u16string u = in.Units(8);
            size_t n = in.Size(10);
            if (!room)
                break;
            if (n == ustring::npos || (in.Byte() & 1)) {
                a.append(reinterpret_cast<const unsigned short*>(u.c_str()));
                ma = ModelAppendUnits(ma, u);
            } else {
                a.append(reinterpret_cast<const unsigned short*>(u.c_str()), n);
                ma = ModelAppendUnits(ma, u.substr(0, n));
            }
            CheckUtf16(a, ma);
            break;
        }
        case 14: {  // assign(units), operator=(units), operator+=(unit)
            std::u16string u = in.Units(8);
            char16_t c = static_cast<char16_t>(in.Byte() | 0x100);
            if (in.Byte() & 1) {
                a.assign(reinterpret_cast<const unsigned short*>(u.c_str()));
            } else {
                a = reinterpret_cast<const unsigned short*>(u.c_str());
            }
            ma = ModelAppendUnits(std::string(), u);
            a += static_cast<unsigned short>(c);
            ma = ModelAppendUnits(ma, std::u16string(1, c));
            break;
        }
        case 15: {  // append(unit, n)
            char16_t c = static_cast<char16_t>(in.Byte() | (in.Byte() << 8) | 1);
            size_t n = in.Byte() % 8;
            if (!room)
                break;
            a.append(static_cast<unsigned short>(c), n);
            ma = ModelAppendUnits(ma, std::u16string(n, c));
            break;
        }
        case 16: {  // appending the text to itself
            size_t n = in.Size(ma.size() + 2);
            if (!room)
                break;
            if (in.Byte() & 1) {
                a.append(a.c_str());
                ma += ma;
            } else {
                a.append(a.c_str(), n);
                ma += ma.substr(0, n);
            }
            break;
        }
        case 17: {  // assigning from itself
            size_t pos = in.Size(ma.size() + 2);
            size_t n = in.Size(ma.size() + 2);
            uint8_t how = in.Byte() % 3;
            if (how == 0) {
                a.assign(a.c_str());
            } else if (how == 1) {
                a.assign(a.c_str(), n);
                if (n < ma.size())
                    ma.resize(n);
            } else {
                bool threw = false;
                try {
                    a.assign(a, pos, n);
                } catch (const std::out_of_range&) {
                    threw = true;
                }
                if (threw != (pos > ma.size()))
                    Fail("assign(self, pos, n) range");
                if (!threw)
                    ma = ma.substr(pos, n);
            }
            break;
        }
        case 18: {  // normalisation
            bool nfd = in.Byte() & 1;
            ustring out = nfd ? a.normalize(ustring::nfd) : ustring::normalize(a, ustring::nfc);
            Check(out, ModelNormalize(ma, nfd), "normalize");
            break;
        }
        case 19:
            if (in.Byte() & 1)
                a.swap(b);
            else
                swap(a, b);
            ma.swap(mb);
            break;
        case 20: {  // concatenation
            if (!room)
                break;
            ustring sum = a + b;
            Check(sum, ma + mb, "operator+");
            std::string t = in.NonZeroBytes(8);
            Check(a + t.c_str(), ma + t, "operator+(char const*)");
            a += b;
            ma += mb;
            a += std::string(t);
            ma += t;
            break;
        }
        case 21:
            if (in.Byte() & 1) {
                a.clear();
            } else {
                a.clear_wdata();
                Check(a, ma, "clear_wdata");
                a.clear_data();
            }
            ma.clear();
            break;
        case 22:
            if (ustring::is_valid(a) != ModelValid(ma))
                Fail("is_valid", ma);
            break;
        default: {  // std::string forms
            std::string t = in.Bytes(12);
            if (in.Byte() & 1) {
                a = t;
                ma = t.substr(0, t.find('\0'));
            } else {
                ustring fresh(t);
                a = fresh;
                ma = t.substr(0, t.find('\0'));
            }
            break;
        }
        }
        Check(s[0], m[0], "after step");
        Check(s[1], m[1], "after step");
    }
    if (ModelValid(m[0]))
        CheckUtf16(s[0], m[0]);
    return 0;
}
