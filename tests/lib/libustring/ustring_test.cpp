#include "ustring.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using U16 = unsigned short;
size_t const npos = ustring::npos;
using Edit = std::function<void(ustring&)>;

unsigned short const* units(char16_t const* s) { return reinterpret_cast<unsigned short const*>(s); }
std::u16string utf16(ustring const& s) { return reinterpret_cast<char16_t const*>(s.c_str_utf16()); }

TEST(Ustring, ConstructorsTakeTheirWholeArgument) {
    ustring original("copy me");
    struct Row { char const* tag; ustring s; char const* utf8; char16_t const* utf16; } const rows[] = {
        {"default", ustring(), "", u""},
        {"two-byte", ustring("\xC3\xA9"), "\xC3\xA9", u"\u00E9"},
        {"astral: four bytes, two units", ustring("\xF0\x9F\x98\x80"), "\xF0\x9F\x98\x80", u"\U0001F600"},
        {"std::string up to its first NUL", ustring(std::string("ab\0cd", 5)), "ab", u"ab"},
        {"char", ustring('x'), "x", u"x"},
        {"UTF-16", ustring(units(u"a\u00E9")), "a\xC3\xA9", u"a\u00E9"},
        {"copy", ustring(original), "copy me", u"copy me"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_STREQ(row.utf8, row.s.c_str());
        EXPECT_EQ(strlen(row.utf8), row.s.length());
        EXPECT_EQ(row.utf16, utf16(row.s));
    }
    EXPECT_NE(original.c_str(), ustring(original).c_str()) << "a copy must not share the buffer";
    ustring fresh;
    EXPECT_EQ(4u, fresh.capacity());
    EXPECT_EQ(4u, fresh.utf16_capacity());
}

// A buffer keeps its size while it holds n = length + 1 and is at most twice n, else becomes exactly n:
// guards against geometric growth and against buffers that never shrink.
TEST(Ustring, CapacityRuleForUtf8Buffer) {
    struct Row { char const* tag; std::string start; Edit edit; size_t capacity; } const rows[] = {
        {"fresh small", "abc", [](ustring&) {}, 4},
        {"fresh tiny: 4 / 2 is not more than 2", "a", [](ustring&) {}, 4},
        {"one byte more", "abc", [](ustring& s) { s += 'b'; }, 5},
        {"one byte more again", "abcd", [](ustring& s) { s += 'c'; }, 6},
        {"fresh large", std::string(99, 'x'), [](ustring&) {}, 100},
        {"shrinks to exactly n", std::string(99, 'x'), [](ustring& s) { s = "a"; }, 2},
        {"7 / 2 <= 4 kept", "abcdef", [](ustring& s) { s = "abc"; }, 7},
        {"7 / 2 <= 3 kept", "abcdef", [](ustring& s) { s = "ab"; }, 7},
        {"7 / 2 > 2 shrinks", "abcdef", [](ustring& s) { s = "a"; }, 2},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s(row.start);
        row.edit(s);
        EXPECT_EQ(row.capacity, s.capacity());
    }
}

TEST(Ustring, CapacityRuleForUtf16Buffer) {
    ustring s("abc");
    s.c_str_utf16();
    EXPECT_EQ(4u, s.utf16_capacity());
    s.append(U16('d'), 1);
    EXPECT_EQ(5u, s.utf16_capacity());
    ustring wide(std::string(40, 'w'));
    wide.c_str_utf16();
    EXPECT_EQ(41u, wide.utf16_capacity());
    wide = "ab";
    EXPECT_EQ(41u, wide.utf16_capacity()) << "a UTF-8 edit keeps the UTF-16 buffer for reuse";
    EXPECT_EQ(u"ab", utf16(wide));
    EXPECT_EQ(3u, wide.utf16_capacity());
}

// A stale UTF-16 copy after a UTF-8 edit would hand ICU-based callers the old text.
TEST(Ustring, Utf8EditsInvalidateTheUtf16Cache) {
    struct Row { char const* tag; Edit edit; char16_t const* expected; } const rows[] = {
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
        {"operator>>", [](ustring& s) { std::istringstream("  word rest") >> s; }, u"word"},
        {"operator[] is documented to leave the cache", [](ustring& s) { s[2] = 'X'; }, u"  ab  "},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s("  ab  ");
        ASSERT_EQ(u"  ab  ", utf16(s));
        row.edit(s);
        EXPECT_EQ(std::u16string(row.expected), utf16(s));
    }
}

// Each row edits a fresh ustring("a"): UTF-16 edits must rebuild the UTF-8 text at once.
TEST(Ustring, Utf16EditsRebuildUtf8AtOnce) {
    struct Row { char const* tag; Edit edit; char const* utf8; } const rows[] = {
        {"+= unit", [](ustring& s) { s += U16(0x00E9); }, "a\xC3\xA9"},
        {"append astral", [](ustring& s) { s.append(units(u"\U0001F600!")); }, "a\xF0\x9F\x98\x80!"},
        {"append n units", [](ustring& s) { s.append(units(u"xyz"), 2); }, "axy"},
        {"append stops at NUL", [](ustring& s) { s.append(units(u"p\0q"), 3); }, "ap"},
        {"assign n units", [](ustring& s) { s.assign(U16(0x4E2D), 2); }, "\xE4\xB8\xAD\xE4\xB8\xAD"},
        {"operator=", [](ustring& s) { s = units(u"\u00FC"); }, "\xC3\xBC"},
        {"operator+", [](ustring& s) { s = s + units(u"\u00E9") + U16('!'); }, "a\xC3\xA9!"},
        // The UTF-16 side starts from the current UTF-8 text, not a stale cache.
        {"after a UTF-8 edit", [](ustring& s) { s.c_str_utf16(); s += 'c'; s += U16('d'); }, "acd"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s("a");
        row.edit(s);
        EXPECT_STREQ(row.utf8, s.c_str());
        EXPECT_EQ(strlen(row.utf8), s.length());
    }
}

TEST(Ustring, LoneSurrogateEmptiesBothFormsWithWarning) {
    ustring s("ok");
    testing::internal::CaptureStderr();
    s.append(U16(0xD800), 1);
    EXPECT_EQ("Warning: u_strToUTF8: error code 10 at line 888\n", testing::internal::GetCapturedStderr());
    EXPECT_STREQ("", s.c_str());
    EXPECT_EQ(0u, s.length());
    EXPECT_EQ(0, s.c_str_utf16()[0]);
}

// Each row edits a string with its own buffers as the source; reading a freed or half-written buffer shows.
TEST(Ustring, AliasingOwnBuffers) {
    std::string const block(1000, 'q');
    struct Row { char const* tag; std::string start; Edit edit; std::string expected; } const rows[] = {
        {"assign own", "abc", [](ustring& s) { s.assign(s.c_str()); }, "abc"},
        {"= own", "abc", [](ustring& s) { s = s.c_str(); }, "abc"},
        {"append own", "abc", [](ustring& s) { s.append(s.c_str()); }, "abcabc"},
        {"append own n", "abc", [](ustring& s) { s.append(s.c_str(), 2); }, "abcab"},
        {"assign own prefix", "abcabc", [](ustring& s) { s.assign(s.c_str(), 4); }, "abca"},
        {"assign own, n too long", "abca", [](ustring& s) { s.assign(s.c_str(), 10); }, "abca"},
        {"self-assignment", "abca", [](ustring& s) { s = s; }, "abca"},
        {"assign own part", "abca", [](ustring& s) { s.assign(s, 1, 2); }, "bc"},
        {"+= self", "bc", [](ustring& s) { s += s; }, "bcbc"},
        {"append own tail", "bcbc", [](ustring& s) { s.append(s, 2, npos); }, "bcbcbc"},
        // Growing far past the buffer moves it: the source must be found again in the new one.
        {"append own, moving", block, [](ustring& s) { s.append(s.c_str()); }, block + block},
        {"append own tail, moving", block + block, [](ustring& s) { s.append(s, 1000, npos); }, block + block + block},
        {"assign own UTF-16", "\xC3\xA9z", [](ustring& s) { s.assign(s.c_str_utf16()); }, "\xC3\xA9z"},
        {"append own UTF-16", "\xC3\xA9z", [](ustring& s) { s.append(s.c_str_utf16()); }, "\xC3\xA9z\xC3\xA9z"},
        {"assign own UTF-16 prefix", "\xC3\xA9z\xC3\xA9z", [](ustring& s) { s.assign(s.c_str_utf16(), 3); },
         "\xC3\xA9z\xC3\xA9"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s(row.start);
        ustring neighbour(std::string(1000, 'n'));
        row.edit(s);
        EXPECT_EQ(row.expected, s.c_str());
        EXPECT_EQ(row.expected.size(), s.length());
        EXPECT_EQ(utf16(ustring(row.expected)), utf16(s));
    }
}

TEST(Ustring, AppendAndAssignParts) {
    struct Row { char const* tag; Edit edit; char const* expected; } const rows[] = {
        {"append ustring part", [](ustring& s) { s.append(ustring("hello"), 1, 3); }, "-ell"},
        {"append std::string tail", [](ustring& s) { s.append(std::string("world"), 3, npos); }, "-ld"},
        {"append n chars", [](ustring& s) { s.append('+', 3); }, "-+++"},
        {"assign std::string part", [](ustring& s) { s.assign(std::string("abcdef"), 2, 2); }, "cd"},
        {"assign n bytes", [](ustring& s) { s.assign("xyz", 2); }, "xy"},
        {"assign n bytes stops at NUL", [](ustring& s) { s.assign("a\0b", 3); }, "a"},
        {"append at the very end is allowed", [](ustring& s) { s.append(ustring("ab"), 2, 1); }, "-"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(row.tag);
        ustring s("-");
        row.edit(s);
        EXPECT_STREQ(row.expected, s.c_str());
        EXPECT_EQ(strlen(row.expected), s.length());
    }
    ustring s;
    EXPECT_THROW(s.append(ustring("ab"), 3, 1), std::out_of_range);
    EXPECT_THROW(s.append(std::string("ab"), 3, 1), std::out_of_range);
}

TEST(Ustring, SubstrBounds) {
    ustring s("abc");
    struct Row { size_t pos, n; char const* expected; } const rows[] = {
        {1, npos, "bc"}, {1, 1, "b"}, {0, 100, "abc"}, {3, npos, ""}, {3, 5, ""}};
    for (Row const& row : rows) {
        ustring sub = s.substr(row.pos, row.n);
        EXPECT_STREQ(row.expected, sub.c_str()) << row.pos << "," << row.n;
        EXPECT_EQ(strlen(row.expected), sub.length()) << row.pos << "," << row.n;
    }
    try {
        s.substr(4, 1);
        ADD_FAILURE() << "substr past the end must throw";
    } catch (std::out_of_range const& e) {
        EXPECT_STREQ("substr", e.what());
    }
}

enum Method { kFind, kRfind, kFirstOf, kFirstNotOf, kLastOf, kLastNotOf };

template <class Needle>
size_t Search(Method m, ustring const& t, Needle n, size_t p) {
    switch (m) {
    case kFind: return t.find(n, p);
    case kRfind: return t.rfind(n, p);
    case kFirstOf: return t.find_first_of(n, p);
    case kFirstNotOf: return t.find_first_not_of(n, p);
    case kLastOf: return t.find_last_of(n, p);
    default: return t.find_last_not_of(n, p);
    }
}

// Each row runs through every argument kind that can express its needle (char only for at most one byte).
TEST(UstringSearch, AllSixSearchesWithEveryArgumentKind) {
    struct Row { Method method; char const *tag, *text, *needle; size_t pos, expected; } const rows[] = {
        {kFind, "empty needle at 0", "abc", "", 0, 0},
        {kFind, "empty needle inside", "abc", "", 2, 2},
        {kFind, "empty needle at length", "abc", "", 3, npos},
        {kFind, "pos past end", "abc", "a", 7, npos},
        {kFind, "empty text", "", "", 0, npos},
        {kFind, "hit after pos", "abcabc", "bc", 2, 4},
        {kFind, "no hit", "abcabc", "cb", 0, npos},
        {kFind, "needle longer than rest", "abc", "bcd", 0, npos},
        {kFind, "multibyte", "a\xC3\xA9z", "\xC3\xA9", 0, 1},
        {kRfind, "empty needle from npos", "abc", "", npos, 2},
        {kRfind, "empty needle from 1", "abc", "", 1, 1},
        {kRfind, "empty needle at length", "abc", "", 3, 2},
        {kRfind, "empty needle past end", "abc", "", 9, 2},
        {kRfind, "empty text", "", "a", npos, npos},
        {kRfind, "empty text empty needle", "", "", npos, npos},
        {kRfind, "last hit", "abcabc", "bc", npos, 4},
        {kRfind, "hit before pos", "abcabc", "bc", 3, 1},
        {kRfind, "hit starting at pos", "abcabc", "bc", 4, 4},
        {kRfind, "needle longer than text", "ab", "abc", npos, npos},
        {kFirstOf, "empty set", "abc", "", 0, npos},
        {kFirstOf, "pos at length", "abc", "c", 3, npos},
        {kFirstOf, "after pos", "hello world", "ow", 5, 6},
        {kFirstOf, "none", "abc", "xyz", 0, npos},
        {kFirstOf, "each byte of a multibyte char is a member", "x\xC3\xA9", "\xA9\xC3", 0, 1},
        {kFirstOf, "lone continuation byte", "x\xC3\xA9", "\xA9", 0, 2},
        {kFirstNotOf, "empty set from 1", "abc", "", 1, 1},
        {kFirstNotOf, "empty set at length", "abc", "", 3, npos},
        {kFirstNotOf, "skip from pos", "ab  cd", " b", 1, 4},
        {kFirstNotOf, "all members", "aaaa", "a", 0, npos},
        {kFirstNotOf, "empty text", "", "a", 0, npos},
        {kLastOf, "empty set", "abc", "", npos, npos},
        {kLastOf, "empty text", "", "a", npos, npos},
        {kLastOf, "last slash", "/a/b/c", "/", npos, 4},
        {kLastOf, "before pos", "/a/b/c", "/", 3, 2},
        {kLastOf, "at pos", "/a/b/c", "/", 2, 2},
        {kLastOf, "at zero", "/a/b/c", "/", 1, 0},
        {kLastOf, "pos past end", "ab", "a", 50, 0},
        {kLastNotOf, "empty set from npos", "abc", "", npos, 2},
        {kLastNotOf, "empty set from 1", "abc", "", 1, 1},
        {kLastNotOf, "empty text", "", "", npos, npos},
        {kLastNotOf, "before pos", "a b c", " c", 3, 2},
        {kLastNotOf, "all members", "   ", " ", npos, npos},
        {kLastNotOf, "first byte only", "x  ", " ", npos, 0},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << "method " << row.method << ": " << row.tag);
        ustring text(row.text);
        EXPECT_EQ(row.expected, Search(row.method, text, std::string(row.needle), row.pos)) << "std::string";
        EXPECT_EQ(row.expected, Search(row.method, text, row.needle, row.pos)) << "char const*";
        EXPECT_EQ(row.expected, Search(row.method, text, ustring(row.needle), row.pos)) << "ustring";
        if (strlen(row.needle) <= 1) {
            EXPECT_EQ(row.expected, Search(row.method, text, row.needle[0], row.pos)) << "char";
        }
    }
}

TEST(UstringSearch, ScanStopsAtFirstNul) {
    ustring s("ab");
    s.append('\0', 1);
    s.append("cd", 2);
    ASSERT_EQ(5u, s.length());
    EXPECT_EQ(npos, s.find("c", 0));
    EXPECT_EQ(npos, s.find_first_of("d", 0));
    EXPECT_EQ(1u, s.find_last_of("ab", npos));
}

TEST(Ustring, Trims) {
    struct Row { char const *text, *set, *both, *left, *right; } const rows[] = {
        {"  a b  ", " ", "a b", "a b  ", "  a b"},   {"    ", " ", "", "", ""},
        {"  a  ", "", "  a  ", "  a  ", "  a  "},    {"", " ", "", "", ""},
        {"abc", " ", "abc", "abc", "abc"},           {"\t\n x\r\n", " \t\r\n", "x", "x\r\n", "\t\n x"},
    };
    for (Row const& row : rows) {
        SCOPED_TRACE(testing::Message() << "[" << row.text << "] less [" << row.set << "]");
        ustring both(row.text), left(row.text), right(row.text);
        both.trim(row.set);
        left.ltrim(ustring(row.set));
        right.rtrim(row.set);
        for (auto const& got : {std::make_pair(&both, row.both), {&left, row.left}, {&right, row.right}}) {
            EXPECT_STREQ(got.second, got.first->c_str());
            EXPECT_EQ(strlen(got.second), got.first->length());
        }
    }
}

TEST(Ustring, Compare) {
    // exact and folded: signs of compare(a, b, false) and compare(a, b, true)
    struct Row { char const *a, *b; int exact, folded; } const rows[] = {
        {"abc", "abc", 0, 0},   {"ABC", "abc", -1, 0},  {"Zeta", "alpha", -1, 1}, {"abc", "abd", -1, -1},
        {"ab", "abc", -1, -1},  {"", "", 0, 0},
        {"\xC3\x84", "\xC3\xA4", -1, -1},  // non-ASCII letters are not folded
        {"\xC3\xA9", "z", 1, 1},           // bytes are unsigned
        {"[", "a", -1, -1},                // '[' lies between 'Z' and 'a': folding goes to lower case
        {"[", "A", 1, -1},
    };
    auto sign = [](int v) { return (v > 0) - (v < 0); };
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
    for (int round = 0; round < 2; ++round) {
        SCOPED_TRACE(round);
        testing::internal::CaptureStderr();
        EXPECT_EQ(0, bad.c_str_utf16()[0]);
        EXPECT_EQ("Warning: u_strFromUTF8: error code 10 at line 921\n", testing::internal::GetCapturedStderr());
        EXPECT_STREQ("\xC3\x28", bad.c_str());
        EXPECT_EQ(2u, bad.length());
    }
}

TEST(Ustring, IsValid) {
    for (char const* text : {"", "plain", "\xC3\xA9", "\xF0\x9F\x98\x80"})
        EXPECT_TRUE(ustring::is_valid(ustring(text))) << text;
    // bad continuation, truncated, overlong '/', encoded surrogate, stray continuation
    for (char const* text : {"\xC3\x28", "ab\xE4\xB8", "\xC0\xAF", "\xED\xA0\x80", "\x80"})
        EXPECT_FALSE(ustring::is_valid(ustring(text))) << text;
}

TEST(Ustring, NormalizeBothForms) {
    ustring nfc = ustring("e\xCC\x81").normalize(ustring::nfc);
    EXPECT_STREQ("\xC3\xA9", nfc.c_str());
    EXPECT_EQ(u"\u00E9", utf16(nfc));
    ustring composed("\xC3\xA9");
    ustring nfd = ustring::normalize(composed, ustring::nfd);
    EXPECT_STREQ("e\xCC\x81", nfd.c_str());
    EXPECT_EQ(u"e\u0301", utf16(nfd));
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
    in >> w1 >> w2 >> w3;
    EXPECT_STREQ("one", w1.c_str());
    EXPECT_STREQ("two", w2.c_str());
    EXPECT_STREQ("kept", w3.c_str()) << "a failed extraction leaves the target alone";
}

}  // namespace
