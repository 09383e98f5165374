#include "ustring.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

unsigned short const* units(char16_t const* s) { return reinterpret_cast<unsigned short const*>(s); }

std::u16string utf16(ustring const& s) {
    return std::u16string(reinterpret_cast<char16_t const*>(s.c_str_utf16()));
}

size_t const npos = ustring::npos;

}  // namespace

TEST(Ustring, NewObjectIsEmptyWithFourSlotBuffers) {
    ustring s;
    EXPECT_EQ(0u, s.length());
    EXPECT_TRUE(s.empty());
    EXPECT_STREQ("", s.c_str());
    EXPECT_EQ(4u, s.capacity());
    EXPECT_EQ(4u, s.utf16_capacity());
    EXPECT_EQ(u"", utf16(s));
}

TEST(Ustring, LengthCountsUtf8Bytes) {
    ustring e("\xC3\xA9");
    EXPECT_EQ(2u, e.length());
    EXPECT_EQ(u"\u00E9", utf16(e));

    // Astral characters: four bytes, two units.
    ustring g("\xF0\x9F\x98\x80");
    EXPECT_EQ(4u, g.length());
    EXPECT_EQ(u"\U0001F600", utf16(g));
}

TEST(Ustring, ConstructorsTakeTheirWholeArgument) {
    EXPECT_STREQ("abc", ustring(std::string("abc")).c_str());
    // A std::string is taken up to its first NUL.
    EXPECT_STREQ("ab", ustring(std::string("ab\0cd", 5)).c_str());
    EXPECT_EQ(2u, ustring(std::string("ab\0cd", 5)).length());
    EXPECT_STREQ("x", ustring('x').c_str());
    ustring w(units(u"a\u00E9"));
    EXPECT_STREQ("a\xC3\xA9", w.c_str());
    EXPECT_EQ(3u, w.length());
    ustring original("copy me");
    ustring copy(original);
    EXPECT_STREQ("copy me", copy.c_str());
    EXPECT_NE(original.c_str(), copy.c_str()) << "a copy must not share the buffer";
}

// The buffer keeps its size while it holds n = length + 1 and is at most
// twice n; otherwise it becomes exactly n. Guards against geometric growth
// and against buffers that never shrink.
TEST(Ustring, CapacityRuleForUtf8Buffer) {
    ustring s("abc");
    EXPECT_EQ(4u, s.capacity());
    s += 'b';
    EXPECT_EQ(5u, s.capacity());
    s += 'c';
    EXPECT_EQ(6u, s.capacity()) << "one byte more must mean exactly one byte more room";

    ustring big(std::string(99, 'x'));
    EXPECT_EQ(100u, big.capacity());
    big = "a";
    EXPECT_EQ(2u, big.capacity());
    EXPECT_STREQ("a", big.c_str());

    // Within twice the need: left alone.
    ustring mid("abcdef");  // 7 bytes
    EXPECT_EQ(7u, mid.capacity());
    mid = "abc";  // needs 4, 7 / 2 = 3 <= 4
    EXPECT_EQ(7u, mid.capacity());
    mid = "ab";  // needs 3, 7 / 2 = 3 <= 3
    EXPECT_EQ(7u, mid.capacity());
    mid = "a";  // needs 2, 3 > 2
    EXPECT_EQ(2u, mid.capacity());

    // Building a string does not disturb a fresh buffer that already fits.
    EXPECT_EQ(4u, ustring("ab").capacity());
    EXPECT_EQ(4u, ustring("a").capacity()) << "4 / 2 = 2 is not more than 2";
}

TEST(Ustring, CapacityRuleForUtf16Buffer) {
    ustring s("abc");
    s.c_str_utf16();
    EXPECT_EQ(4u, s.utf16_capacity());
    s.append(static_cast<unsigned short>('d'), 1);
    EXPECT_EQ(5u, s.utf16_capacity());
    EXPECT_STREQ("abcd", s.c_str());

    ustring wide(std::string(40, 'w'));
    wide.c_str_utf16();
    EXPECT_EQ(41u, wide.utf16_capacity());
    wide = "ab";
    EXPECT_EQ(41u, wide.utf16_capacity()) << "a UTF-8 edit keeps the UTF-16 buffer for reuse";
    EXPECT_EQ(u"ab", utf16(wide));
    EXPECT_EQ(3u, wide.utf16_capacity());
}

// Each UTF-8 edit must drop the UTF-16 copy; a stale cache would hand
// ICU-based callers the old text.
TEST(Ustring, Utf8EditsInvalidateTheUtf16Cache) {
    struct Row {
        char const* tag;
        std::function<void(ustring&)> edit;
        char16_t const* expected;
    };
    std::vector<Row> const rows = {
        {"+= char", [](ustring& s) { s += 'x'; }, u"  ab  x"},
        {"append bytes", [](ustring& s) { s.append("yz", 1); }, u"  ab  y"},
        {"append std::string", [](ustring& s) { s.append(std::string("q")); }, u"  ab  q"},
        {"append ustring", [](ustring& s) { s += ustring("\xC3\xA9"); }, u"  ab  \u00E9"},
        {"assign", [](ustring& s) { s = "new"; }, u"new"},
        {"assign n chars", [](ustring& s) { s.assign('z', 3); }, u"zzz"},
        {"trim", [](ustring& s) { s.trim(" "); }, u"ab"},
        {"ltrim", [](ustring& s) { s.ltrim(" "); }, u"ab  "},
        {"rtrim", [](ustring& s) { s.rtrim(ustring(" ")); }, u"  ab"},
        {"replace", [](ustring& s) { s.replace(' ', '_'); }, u"__ab__"},
        {"truncate own data", [](ustring& s) { s.assign(s.c_str(), 3); }, u"  a"},
        {"clear", [](ustring& s) { s.clear(); }, u""},
        {"operator>>",
         [](ustring& s) {
             std::istringstream in("  word rest");
             in >> s;
         },
         u"word"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s("  ab  ");
        ASSERT_EQ(u"  ab  ", utf16(s));
        row.edit(s);
        EXPECT_EQ(std::u16string(row.expected), utf16(s));
    }
}

TEST(Ustring, WritingThroughIndexLeavesTheCacheAlone) {
    ustring s("abc");
    s.c_str_utf16();
    s[0] = 'X';
    EXPECT_STREQ("Xbc", s.c_str());
    EXPECT_EQ(u"abc", utf16(s)) << "operator[] is documented not to touch the cache";
}

TEST(Ustring, Utf16EditsRebuildUtf8AtOnce) {
    ustring s("a");
    s += static_cast<unsigned short>(0x00E9);
    EXPECT_STREQ("a\xC3\xA9", s.c_str());
    EXPECT_EQ(3u, s.length());

    s.append(units(u"\U0001F600!"));
    EXPECT_STREQ("a\xC3\xA9\xF0\x9F\x98\x80!", s.c_str());

    s.append(units(u"xyz"), 2);
    EXPECT_STREQ("a\xC3\xA9\xF0\x9F\x98\x80!xy", s.c_str());

    s.append(units(u"p\0q"), 3);  // stops at the NUL
    EXPECT_STREQ("a\xC3\xA9\xF0\x9F\x98\x80!xyp", s.c_str());

    s.assign(static_cast<unsigned short>(0x4E2D), 2);
    EXPECT_STREQ("\xE4\xB8\xAD\xE4\xB8\xAD", s.c_str());
    EXPECT_EQ(6u, s.length());

    s = units(u"\u00FC");
    EXPECT_STREQ("\xC3\xBC", s.c_str());

    ustring t = ustring("x") + units(u"\u00E9") + static_cast<unsigned short>('!');
    EXPECT_STREQ("x\xC3\xA9!", t.c_str());

    // The UTF-16 side starts from the current UTF-8 text, not a stale cache.
    ustring u("ab");
    u.c_str_utf16();
    u += 'c';
    u += static_cast<unsigned short>('d');
    EXPECT_STREQ("abcd", u.c_str());
}

TEST(Ustring, LoneSurrogateEmptiesBothFormsWithWarning) {
    ustring s("ok");
    testing::internal::CaptureStderr();
    s.append(static_cast<unsigned short>(0xD800), 1);
    std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ("Warning: u_strToUTF8: error code 10 at line 888\n", err);
    EXPECT_EQ(0u, s.length());
    EXPECT_STREQ("", s.c_str());
    EXPECT_EQ(0, s.c_str_utf16()[0]);
}

TEST(Ustring, AliasingOwnBuffers) {
    ustring a("abc");
    a.assign(a.c_str());
    EXPECT_STREQ("abc", a.c_str());
    a = a.c_str();
    EXPECT_STREQ("abc", a.c_str());

    a.append(a.c_str());
    EXPECT_STREQ("abcabc", a.c_str());
    a.append(a.c_str(), 2);
    EXPECT_STREQ("abcabcab", a.c_str());

    a.assign(a.c_str(), 4);
    EXPECT_STREQ("abca", a.c_str());
    EXPECT_EQ(4u, a.length());
    a.assign(a.c_str(), 10);
    EXPECT_STREQ("abca", a.c_str()) << "a longer n leaves the text alone";

    a = a;
    EXPECT_STREQ("abca", a.c_str());
    a.assign(a, 1, 2);
    EXPECT_STREQ("bc", a.c_str());
    a += a;
    EXPECT_STREQ("bcbc", a.c_str());
    a.append(a, 2, npos);
    EXPECT_STREQ("bcbcbc", a.c_str());

    // Growing far past the buffer moves it; the source must be found again
    // in the new buffer, not read from the freed one.
    std::string const block(1000, 'q');
    ustring big(block);
    ustring neighbour(std::string(1000, 'n'));
    big.append(big.c_str());
    EXPECT_EQ(block + block, std::string(big.c_str()));
    big.append(big, 1000, npos);
    EXPECT_EQ(block + block + block, std::string(big.c_str()));

    ustring w(units(u"\u00E9z"));
    w.assign(w.c_str_utf16());
    EXPECT_STREQ("\xC3\xA9z", w.c_str());
    w.append(w.c_str_utf16());
    EXPECT_STREQ("\xC3\xA9z\xC3\xA9z", w.c_str());
    w.assign(w.c_str_utf16(), 3);
    EXPECT_STREQ("\xC3\xA9z\xC3\xA9", w.c_str());
    EXPECT_EQ(u"\u00E9z\u00E9", utf16(w));
}

TEST(Ustring, AppendAndAssignParts) {
    ustring s;
    s.append(ustring("hello"), 1, 3);
    EXPECT_STREQ("ell", s.c_str());
    s.append(std::string("world"), 3, npos);
    EXPECT_STREQ("ellld", s.c_str());
    s.append('-', 3);
    EXPECT_STREQ("ellld---", s.c_str());
    s.assign(std::string("abcdef"), 2, 2);
    EXPECT_STREQ("cd", s.c_str());
    s.assign("xyz", 2);
    EXPECT_STREQ("xy", s.c_str());
    s.assign("a\0b", 3);
    EXPECT_EQ(1u, s.length());

    EXPECT_THROW(s.append(ustring("ab"), 3, 1), std::out_of_range);
    EXPECT_THROW(s.append(std::string("ab"), 3, 1), std::out_of_range);
    EXPECT_NO_THROW(s.append(ustring("ab"), 2, 1));
}

TEST(Ustring, SubstrBounds) {
    ustring s("abc");
    EXPECT_STREQ("bc", s.substr(1, npos).c_str());
    EXPECT_STREQ("b", s.substr(1, 1).c_str());
    EXPECT_STREQ("abc", s.substr(0, 100).c_str());
    EXPECT_STREQ("", s.substr(3, npos).c_str());
    EXPECT_EQ(0u, s.substr(3, 5).length());
    try {
        s.substr(4, 1);
        ADD_FAILURE() << "substr past the end must throw";
    } catch (std::out_of_range const& e) {
        EXPECT_STREQ("substr", e.what());
    }
}

// Searches: each row runs through every argument kind that can express
// its needle (char only for needles of at most one byte, '\0' = empty).
namespace {

struct SearchRow {
    char const* tag;
    char const* text;
    char const* needle;
    size_t pos;
    size_t expected;
};

void CheckSearch(SearchRow const& row,
                 std::function<size_t(ustring const&, std::string const&, size_t)> by_std,
                 std::function<size_t(ustring const&, char const*, size_t)> by_ptr,
                 std::function<size_t(ustring const&, ustring const&, size_t)> by_ustring,
                 std::function<size_t(ustring const&, char, size_t)> by_char) {
    SCOPED_TRACE(row.tag);
    ustring text(row.text);
    EXPECT_EQ(row.expected, by_std(text, std::string(row.needle), row.pos)) << "std::string";
    EXPECT_EQ(row.expected, by_ptr(text, row.needle, row.pos)) << "char const*";
    EXPECT_EQ(row.expected, by_ustring(text, ustring(row.needle), row.pos)) << "ustring";
    if (strlen(row.needle) <= 1) {
        EXPECT_EQ(row.expected, by_char(text, row.needle[0], row.pos)) << "char";
    }
}

}  // namespace

#define RUN_SEARCH(rows, method)                                                                        \
    for (SearchRow const& row : rows)                                                                   \
    CheckSearch(                                                                                        \
        row, [](ustring const& t, std::string const& n, size_t p) { return t.method(n, p); },           \
        [](ustring const& t, char const* n, size_t p) { return t.method(n, p); },                       \
        [](ustring const& t, ustring const& n, size_t p) { return t.method(n, p); },                    \
        [](ustring const& t, char n, size_t p) { return t.method(n, p); })

TEST(UstringSearch, Find) {
    std::vector<SearchRow> const rows = {
        {"empty needle at 0", "abc", "", 0, 0},
        {"empty needle inside", "abc", "", 2, 2},
        {"empty needle at length", "abc", "", 3, npos},
        {"pos past end", "abc", "a", 7, npos},
        {"empty text", "", "", 0, npos},
        {"first hit", "abcabc", "bc", 0, 1},
        {"hit after pos", "abcabc", "bc", 2, 4},
        {"single byte", "abcabc", "c", 3, 5},
        {"no hit", "abcabc", "cb", 0, npos},
        {"needle longer than rest", "abc", "bcd", 0, npos},
        {"multibyte", "a\xC3\xA9z", "\xC3\xA9", 0, 1},
    };
    RUN_SEARCH(rows, find);
}

TEST(UstringSearch, Rfind) {
    std::vector<SearchRow> const rows = {
        {"empty needle from npos", "abc", "", npos, 2},
        {"empty needle from 1", "abc", "", 1, 1},
        {"empty needle past end", "abc", "", 9, 2},
        {"empty text", "", "a", npos, npos},
        {"empty text empty needle", "", "", npos, npos},
        {"last hit", "abcabc", "bc", npos, 4},
        {"hit at start", "abcabc", "ab", npos, 3},
        {"hit before pos", "abcabc", "bc", 3, 1},
        {"hit starting at pos", "abcabc", "bc", 4, 4},
        {"single byte", "abcabc", "a", 2, 0},
        {"no hit", "abcabc", "x", npos, npos},
        {"needle longer than text", "ab", "abc", npos, npos},
    };
    RUN_SEARCH(rows, rfind);
}

TEST(UstringSearch, FindFirstOf) {
    std::vector<SearchRow> const rows = {
        {"empty set", "abc", "", 0, npos},
        {"pos at length", "abc", "c", 3, npos},
        {"first member", "hello world", "ow", 0, 4},
        {"after pos", "hello world", "ow", 5, 6},
        {"single", "a/b/c", "/", 2, 3},
        {"none", "abc", "xyz", 0, npos},
        // Each byte of a multibyte character is a member by itself.
        {"byte of multibyte", "x\xC3\xA9", "\xA9\xC3", 0, 1},
        {"lone continuation byte", "x\xC3\xA9", "\xA9", 0, 2},
    };
    RUN_SEARCH(rows, find_first_of);
}

TEST(UstringSearch, FindFirstNotOf) {
    std::vector<SearchRow> const rows = {
        {"empty set from 1", "abc", "", 1, 1},
        {"empty set at length", "abc", "", 3, npos},
        {"skip blanks", "   x ", " ", 0, 3},
        {"skip from pos", "ab  cd", " b", 1, 4},
        {"all members", "aaaa", "a", 0, npos},
        {"empty text", "", "a", 0, npos},
    };
    RUN_SEARCH(rows, find_first_not_of);
}

TEST(UstringSearch, FindLastOf) {
    std::vector<SearchRow> const rows = {
        {"empty set", "abc", "", npos, npos},
        {"empty text", "", "a", npos, npos},
        {"last slash", "/a/b/c", "/", npos, 4},
        {"at or before pos", "/a/b/c", "/", 3, 2},
        {"at pos", "/a/b/c", "/", 2, 2},
        {"at zero", "/a/b/c", "/", 1, 0},
        {"pos past end", "ab", "a", 50, 0},
        {"none", "abc", "xyz", npos, npos},
    };
    RUN_SEARCH(rows, find_last_of);
}

TEST(UstringSearch, FindLastNotOf) {
    std::vector<SearchRow> const rows = {
        {"empty set from npos", "abc", "", npos, 2},
        {"empty set from 1", "abc", "", 1, 1},
        {"empty text", "", "", npos, npos},
        {"trailing blanks", "ab   ", " ", npos, 1},
        {"before pos", "a b c", " c", 3, 2},
        {"all members", "   ", " ", npos, npos},
        {"first byte only", "x  ", " ", npos, 0},
    };
    RUN_SEARCH(rows, find_last_not_of);
}

TEST(UstringSearch, ScanStopsAtFirstNul) {
    ustring s("ab");
    s.append('\0', 1);
    s.append("cd", 2);  // length 5, a NUL in the middle
    ASSERT_EQ(5u, s.length());
    EXPECT_EQ(npos, s.find("c", 0));
    EXPECT_EQ(npos, s.find_first_of("d", 0));
    EXPECT_EQ(1u, s.find_last_of("ab", npos));
}

TEST(Ustring, Trims) {
    struct Row {
        char const* tag;
        char const* text;
        char const* set;
        char const* trimmed;
        char const* left;
        char const* right;
    };
    std::vector<Row> const rows = {
        {"blanks", "  a b  ", " ", "a b", "a b  ", "  a b"},
        {"blanks only", "    ", " ", "", "", ""},
        {"empty set", "  a  ", "", "  a  ", "  a  ", "  a  "},
        {"empty text", "", " ", "", "", ""},
        {"nothing to trim", "abc", " ", "abc", "abc", "abc"},
        {"several bytes", "\t\n x\r\n", " \t\r\n", "x", "x\r\n", "\t\n x"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring both(row.text), left(row.text), right(row.text);
        both.trim(row.set);
        left.ltrim(ustring(row.set));
        right.rtrim(row.set);
        EXPECT_STREQ(row.trimmed, both.c_str());
        EXPECT_EQ(strlen(row.trimmed), both.length());
        EXPECT_STREQ(row.left, left.c_str());
        EXPECT_EQ(strlen(row.left), left.length());
        EXPECT_STREQ(row.right, right.c_str());
        EXPECT_EQ(strlen(row.right), right.length());
    }
}

TEST(Ustring, ReplaceBytes) {
    ustring s("a/b/c");
    s.replace('/', ':');
    EXPECT_STREQ("a:b:c", s.c_str());
    s.replace('x', 'y');
    EXPECT_STREQ("a:b:c", s.c_str());
}

TEST(Ustring, Compare) {
    struct Row {
        char const* a;
        char const* b;
        int exact;  // sign of compare(a, b, false)
        int folded; // sign of compare(a, b, true)
    };
    auto sign = [](int v) { return (v > 0) - (v < 0); };
    std::vector<Row> const rows = {
        {"abc", "abc", 0, 0},
        {"ABC", "abc", -1, 0},
        {"Zeta", "alpha", -1, 1},
        {"abc", "abd", -1, -1},
        {"ab", "abc", -1, -1},
        {"", "", 0, 0},
        // Non-ASCII letters are not folded: U+00C4 against U+00E4.
        {"\xC3\x84", "\xC3\xA4", -1, -1},
        // Bytes are unsigned: a lead byte sorts after every ASCII byte.
        {"\xC3\xA9", "z", 1, 1},
        {"[", "a", -1, -1},  // '[' lies between 'Z' and 'a'
        {"[", "A", 1, -1},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(std::string(row.a) + " vs " + row.b);
        ustring a(row.a), b(row.b);
        EXPECT_EQ(row.exact, sign(a.compare(b)));
        EXPECT_EQ(row.exact, sign(ustring::compare(a, b, false)));
        EXPECT_EQ(row.folded, sign(ustring::compare(a, b, true)));
        EXPECT_EQ(-row.folded, sign(ustring::compare(b, a, true)));
        EXPECT_EQ(row.exact == 0, a == b);
        EXPECT_EQ(row.exact != 0, a != b);
        EXPECT_EQ(row.exact < 0, a < b);
        EXPECT_EQ(row.exact > 0, a > b);
    }
    EXPECT_EQ('c' - 'd', ustring("abc").compare(ustring("abd")));
    EXPECT_EQ(0xC3 - 'z', ustring("\xC3\xA9").compare(ustring("z")));
    EXPECT_EQ(0, ustring("abcX").compare(ustring("abcY"), 3));
    EXPECT_NE(0, ustring("abcX").compare(ustring("abcY"), 4));
    EXPECT_EQ(0, ustring("x").compare(ustring("y"), 0));
    EXPECT_NE(0, ustring("ab").compare(ustring("abc"), 5));
}

TEST(Ustring, InvalidUtf8KeepsBytesAndWarnsOnEveryRequest) {
    ustring bad("\xC3\x28");
    EXPECT_FALSE(ustring::is_valid(bad));
    for (int round = 0; round < 2; ++round) {
        SCOPED_TRACE(round);
        testing::internal::CaptureStderr();
        unsigned short const* w = bad.c_str_utf16();
        std::string err = testing::internal::GetCapturedStderr();
        EXPECT_EQ(0, w[0]);
        EXPECT_EQ("Warning: u_strFromUTF8: error code 10 at line 921\n", err);
        EXPECT_STREQ("\xC3\x28", bad.c_str());
        EXPECT_EQ(2u, bad.length());
    }
}

TEST(Ustring, IsValid) {
    struct Row {
        char const* tag;
        char const* text;
        bool valid;
    };
    std::vector<Row> const rows = {
        {"empty", "", true},
        {"ascii", "plain", true},
        {"two-byte", "\xC3\xA9", true},
        {"astral", "\xF0\x9F\x98\x80", true},
        {"bad continuation", "\xC3\x28", false},
        {"truncated", "ab\xE4\xB8", false},
        {"overlong slash", "\xC0\xAF", false},
        {"encoded surrogate", "\xED\xA0\x80", false},
        {"stray continuation", "\x80", false},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(row.valid, ustring::is_valid(ustring(row.text)));
    }
}

TEST(Ustring, NormalizeBothForms) {
    ustring decomposed("e\xCC\x81");
    ustring nfc = decomposed.normalize(ustring::nfc);
    EXPECT_STREQ("\xC3\xA9", nfc.c_str());
    EXPECT_EQ(u"\u00E9", utf16(nfc));

    ustring composed("\xC3\xA9");
    ustring nfd = ustring::normalize(composed, ustring::nfd);
    EXPECT_EQ(u"e\u0301", utf16(nfd));
    EXPECT_STREQ("e\xCC\x81", nfd.c_str());
    EXPECT_STREQ("\xC3\xA9", composed.c_str()) << "the source is left alone";

    EXPECT_TRUE(ustring::normalize(ustring(), ustring::nfc).empty());
}

TEST(Ustring, SwapAndStreams) {
    ustring a("first"), b("second");
    char const* a_buf = a.c_str();
    swap(a, b);
    EXPECT_STREQ("second", a.c_str());
    EXPECT_STREQ("first", b.c_str());
    EXPECT_EQ(a_buf, b.c_str()) << "swap exchanges buffers, it does not copy";

    std::ostringstream out;
    out << ustring("x\xC3\xA9") << '|';
    EXPECT_EQ("x\xC3\xA9|", out.str());

    std::istringstream in("  one two");
    ustring w1, w2, w3("kept");
    in >> w1 >> w2;
    EXPECT_STREQ("one", w1.c_str());
    EXPECT_STREQ("two", w2.c_str());
    in >> w3;
    EXPECT_STREQ("kept", w3.c_str()) << "a failed extraction leaves the target alone";
}
