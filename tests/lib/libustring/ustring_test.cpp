// ustring: byte searches, trims, compare, the capacity rule, and the UTF-16
// copy kept current across every kind of edit.
#include "libustring/ustring.h"

#include "../lib_test.h"

using U16 = unsigned short;
const size_t npos = ustring::npos;
std::u16string utf16(const ustring& s)
{
    return reinterpret_cast<const char16_t*>(s.c_str_utf16());
}

enum Method { kFind, kRfind, kFirstOf, kFirstNotOf, kLastOf, kLastNotOf };
template<class Needle> size_t Search(Method m, const ustring& t, Needle n, size_t p)
{
    return m == kFind         ? t.find(n, p)
           : m == kRfind      ? t.rfind(n, p)
           : m == kFirstOf    ? t.find_first_of(n, p)
           : m == kFirstNotOf ? t.find_first_not_of(n, p)
           : m == kLastOf     ? t.find_last_of(n, p)
                              : t.find_last_not_of(n, p);
}

// Each row runs with every argument kind that can hold its needle (a char only for at most one byte).
TEST(Ustring, Searches)
{
    struct Row {
        Method m;
        const char *text, *needle;
        size_t pos, expected;
    } const rows[] = {{kFind, "abc", "", 2, 2},
                      {kFind, "abc", "", 3, npos},
                      {kFind, "abcabc", "bc", 2, 4},
                      {kFind, "abc", "bcd", 0, npos},
                      {kRfind, "abc", "", npos, 2},
                      {kRfind, "abcabc", "bc", npos, 4},
                      {kRfind, "abcabc", "bc", 1, 1},
                      {kRfind, "abcabc", "bc", 4, 4},
                      {kRfind, "ab", "abc", npos, npos},
                      {kFirstOf, "abc", "", 0, npos},
                      {kFirstOf, "hello world", "ow", 5, 6},
                      {kFirstOf, "x\xC3\xA9", "\xA9", 0, 2},
                      {kFirstNotOf, "abc", "", 1, 1},
                      {kFirstNotOf, "abc", "", 3, npos},
                      {kFirstNotOf, "ab  cd", " b", 1, 4},
                      {kLastOf, "abc", "", npos, npos},
                      {kLastOf, "/a/b/", "/", npos, 4},
                      {kLastOf, "/a/b/c", "/", 3, 2},
                      {kLastOf, "/a/b/c", "/", 2, 2},
                      {kLastOf, "/a/b/c", "/", 1, 0},
                      {kLastNotOf, "abc", "", npos, 2},
                      {kLastNotOf, "a b c", " c", 3, 2},
                      {kLastNotOf, "   ", " ", npos, npos},
                      {kLastNotOf, "x  ", " ", npos, 0}};
    for (const Row& row : rows) {
        ustring t(row.text);
        size_t byChar = strlen(row.needle) > 1 ? row.expected : Search(row.m, t, row.needle[0], row.pos);
        EXPECT_EQ(std::make_tuple(row.expected, row.expected, row.expected, row.expected),
                  std::make_tuple(Search(row.m, t, std::string(row.needle), row.pos),
                                  Search(row.m, t, row.needle, row.pos),
                                  Search(row.m, t, ustring(row.needle), row.pos), byChar))
            << "method " << row.m << " on '" << row.text << "' for '" << row.needle << "' from " << row.pos;
    }
}

// The UTF-16 copy is built before each edit: a copy that an edit leaves stale shows in the last check.
TEST(Ustring, TrimsAndEditsKeepBothFormsCurrent)
{
    const std::string block(1000, 'q');
    struct Row {
        const char* tag;
        std::string start;
        std::function<void(ustring&)> edit;
        std::string expected;
    } const rows[] = {
        {"trim", "  a b  ", [](ustring& s) { s.trim(" "); }, "a b"},
        {"ltrim", "\t\n x\r\n", [](ustring& s) { s.ltrim(ustring(" \t\r\n")); }, "x\r\n"},
        {"ltrim to nothing", " \t ", [](ustring& s) { s.ltrim(" \t"); }, ""},
        {"rtrim to nothing", " \t ", [](ustring& s) { s.rtrim(ustring(" \t")); }, ""},
        {"append ustring part", "ab", [](ustring& s) { s.append(ustring("hello"), 1, 3); }, "abell"},
        {"replace", "a b", [](ustring& s) { s.replace(' ', '_'); }, "a_b"},
        {"truncate own", "abcabc", [](ustring& s) { s.assign(s.c_str(), 4); }, "abca"},
        {"+= unit", "a", [](ustring& s) { s += U16(0xE9); }, "a\xC3\xA9"},
        {"unit after a byte", "a",
         [](ustring& s) {
             s += 'c';
             s += U16('d');
         },
         "acd"},
        {"append own n", "abc", [](ustring& s) { s.append(s.c_str(), 2); }, "abcab"},
        {"assign own part", "abca", [](ustring& s) { s.assign(s, 1, 2); }, "bc"},
        {"append own, buffer moves", block, [](ustring& s) { s.append(s.c_str()); }, block + block},
        {"append own UTF-16", "\xC3\xA9z", [](ustring& s) { s.append(s.c_str_utf16()); },
         "\xC3\xA9z\xC3\xA9z"},
        {"= units, += units", "ab",
         [](ustring& s) { (s = ustring("x\xC3\xA9").c_str_utf16()) += ustring("y").c_str_utf16(); },
         "x\xC3\xA9y"},
        {"assign n units, then own units cut", "ab",
         [](ustring& s) { s.assign(ustring("xyz").c_str_utf16(), 2).assign(s.c_str_utf16(), 1); }, "x"},
        {"= unit", "ab", [](ustring& s) { s = U16(0xE9); }, "\xC3\xA9"},
        {"= char, n chars", "ab", [](ustring& s) { (s = 'c').append('d', 2); }, "cdd"},
        {"= string, += string", "ab", [](ustring& s) { (s = std::string("xy")) += std::string("z"); }, "xyz"},
        {"+= text, = own text", "ab",
         [](ustring& s) {
             s += "cd";
             s = s.c_str();
         },
         "abcd"},
        {"+ each kind", "ab", [](ustring& s) { s = s + U16(0xE9) + '-' + ustring("d").c_str_utf16() + "e"; },
         "ab\xC3\xA9-de"},
        {"read a word", "ab", [](ustring& s) { std::istringstream(" w1 w2") >> s; }, "w1"},
        {"a lone surrogate empties both", "ab", [](ustring& s) { s += U16(0xD800); }, ""}};
    for (const Row& row : rows) {
        ustring s(row.start);
        ASSERT_EQ(utf16(ustring(row.start)), utf16(s)) << row.tag;
        row.edit(s);
        EXPECT_EQ(row.expected, std::string(s.c_str(), s.length())) << row.tag;
        EXPECT_EQ(utf16(ustring(row.expected)), utf16(s)) << row.tag;
    }
}

// A buffer keeps its size while it holds n = length + 1 and is at most twice n, else becomes exactly n; a UTF-8
// edit keeps the UTF-16 buffer for reuse.
TEST(Ustring, CapacityRule)
{
    struct Row {
        std::string start, assigned;
        size_t capacity;
    } const rows[] = {{"a", "a", 4},        {"abc", "abcb", 5},
                      {"abcd", "abcde", 6}, {std::string(99, 'x'), "a", 2},
                      {"abcdef", "ab", 7},  {"abcdef", "a", 2}};
    for (const Row& row : rows) {
        ustring s(row.start);
        s.c_str_utf16(), s = row.assigned.c_str();
        EXPECT_EQ(std::make_pair(row.capacity, std::max<size_t>(4, row.start.size() + 1)),
                  std::make_pair(s.capacity(), s.utf16_capacity()))
            << row.start << " then " << row.assigned;
    }
}

TEST(Ustring, Compare)
{
    struct Row {
        const char *a, *b;
        int exact, folded;
    } const rows[] = {
        {"abc", "abc", 0, 0},
        {"ABC", "abc", -1, 0},
        {"Zeta", "alpha", -1, 1},
        {"ab", "abc", -1, -1},
        {"\xC3\x84", "\xC3\xA4", -1, -1},
        {"\xC3\xA9", "z", 1, 1},
        {"[", "A", 1, -1},  // only ASCII folds, to lower case
    };
    auto sign = [](int v) { return (v > 0) - (v < 0); };
    for (const Row& row : rows) {
        ustring a(row.a), b(row.b);
        EXPECT_EQ(std::make_tuple(row.exact, row.folded, row.exact == 0, row.exact<0, row.exact> 0),
                  std::make_tuple(sign(ustring::compare(a, b, false)), sign(ustring::compare(a, b, true)),
                                  a == b, a<b, a> b))
            << row.a << " vs " << row.b;
    }
    EXPECT_TRUE(ustring("abX").compare(ustring("abY"), 2) == 0 &&
                ustring("abX").compare(ustring("abY"), 3) < 0);
}

TEST(Ustring, SubstrNormalisationAndIcuWarnings)
{
    EXPECT_THROW(ustring("abc").substr(4, 1), std::out_of_range);
    EXPECT_STREQ("\xC3\xA9", ustring("e\xCC\x81").normalize(ustring::nfc).c_str());
    EXPECT_EQ(u"e\u0301", utf16(ustring::normalize(ustring("\xC3\xA9"), ustring::nfd)));
    EXPECT_TRUE(ustring::is_valid(ustring("\xC3\xA9")) && !ustring::is_valid(ustring("\xC3\x28")));
    ustring bad("\xC3\x28");
    const std::string warning = "Warning: u_strFromUTF8: error code 10 at line 921\n";
    testing::internal::CaptureStderr();
    EXPECT_TRUE(bad.c_str_utf16()[0] == 0 && bad.c_str_utf16()[0] == 0 && bad == ustring("\xC3\x28"));
    EXPECT_EQ(warning + warning, testing::internal::GetCapturedStderr()) << "every request warns";
}
