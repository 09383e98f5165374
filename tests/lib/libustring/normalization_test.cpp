// Conformance of ustring::normalize against the Unicode Consortium's
// NormalizationTest.txt, as Debian's unicode-data package installs it.
#include "ustring.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <set>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

char const* const kPlain = "/usr/share/unicode/NormalizationTest.txt";
char const* const kCompressed = "/usr/share/unicode/NormalizationTest.txt.bz2";

// Decompresses when only the .bz2 is there; an empty result carries the reason in *why.
std::string ReadTestFile(std::string* why) {
    struct stat st;
    bool plain = stat(kPlain, &st) == 0;
    if (!plain && stat(kCompressed, &st) != 0) {
        *why = std::string("neither ") + kPlain + " nor " + kCompressed +
               " exists: install the Debian package unicode-data (apt-get install unicode-data)";
        return "";
    }
    FILE* f = plain ? fopen(kPlain, "r") : popen((std::string("bzip2 -dc ") + kCompressed).c_str(), "r");
    std::string text;
    char buf[65536];
    for (size_t got; f != nullptr && (got = fread(buf, 1, sizeof buf, f)) > 0;)
        text.append(buf, got);
    if (f == nullptr || (plain ? fclose(f) : pclose(f)) != 0) {
        *why = std::string("cannot read ") + (plain ? kPlain : kCompressed) + " (is bzip2 installed?)";
        return "";
    }
    return text;
}

std::string Utf8(unsigned long cp) {
    int n = cp < 0x80 ? 1 : cp < 0x800 ? 2 : cp < 0x10000 ? 3 : 4;
    static unsigned char const lead[] = {0, 0, 0xC0, 0xE0, 0xF0};
    std::string out(1, static_cast<char>(n == 1 ? cp : lead[n] | (cp >> (6 * (n - 1)))));
    for (int i = n - 2; i >= 0; --i)
        out += static_cast<char>(0x80 | ((cp >> (6 * i)) & 0x3F));
    return out;
}

std::string Hex(std::string const& utf8) {
    ustring s(utf8.c_str());
    std::ostringstream out;
    out << std::hex << std::uppercase;
    for (unsigned short const* u = s.c_str_utf16(); *u; ++u)
        out << *u << ' ';
    return out.str();
}

struct TestLine {
    int number;
    std::string c[5];
};

class NormalizationTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        std::istringstream in(ReadTestFile(&load_error_));
        std::string line;
        bool part1 = false;
        for (int number = 1; std::getline(in, line); ++number) {
            std::string body = line.substr(0, line.find('#'));
            if (body.empty() || body[0] == '@') {
                part1 = body.empty() ? part1 : body.compare(0, 6, "@Part1") == 0;
                continue;
            }
            TestLine t{number, {}};
            std::istringstream fields(body);
            std::string field;
            for (int i = 0; i < 5; ++i) {
                std::getline(fields, field, ';');
                std::istringstream points(field);
                std::vector<unsigned long> cps;
                bool ok = true;
                for (std::string hex; points >> hex; t.c[i] += Utf8(cps.back())) {
                    char* end = nullptr;
                    cps.push_back(strtoul(hex.c_str(), &end, 16));
                    ok = ok && *end == '\0' && cps.back() != 0 && cps.back() <= 0x10FFFF;
                }
                if (!ok || cps.empty()) {
                    load_error_ = "malformed line " + std::to_string(number) + ": " + line;
                    return;
                }
                if (i == 0 && part1 && cps.size() == 1)
                    part1_points_.insert(cps[0]);
            }
            lines_.push_back(t);
        }
    }

    void SetUp() override {
        ASSERT_TRUE(load_error_.empty()) << load_error_;
        // The file holds well over ten thousand cases: far fewer means the parser lost them.
        ASSERT_GT(lines_.size(), 10000u);
        ASSERT_GT(part1_points_.size(), 1000u);
    }

    static std::string load_error_;
    static std::vector<TestLine> lines_;
    static std::set<unsigned long> part1_points_;
};

std::string NormalizationTest::load_error_;
std::vector<TestLine> NormalizationTest::lines_;
std::set<unsigned long> NormalizationTest::part1_points_;

// NFC: c2 == NFC(c1..c3), c4 == NFC(c4..c5); NFD: c3 == NFD(c1..c3), c5 == NFD(c4..c5).
TEST_F(NormalizationTest, NfcAndNfdColumns) {
    for (bool nfc : {true, false}) {
        SCOPED_TRACE(nfc ? "NFC" : "NFD");
        int failures = 0;
        for (TestLine const& t : lines_) {
            for (int src = 0; src < 5; ++src) {
                int want = (src < 3 ? 1 : 3) + (nfc ? 0 : 1);
                ustring got = ustring::normalize(ustring(t.c[src].c_str()), nfc ? ustring::nfc : ustring::nfd);
                if (got.c_str() != t.c[want] && ++failures <= 10)
                    ADD_FAILURE() << "line " << t.number << ": c" << src + 1 << " = [" << Hex(t.c[src]) << "] gave ["
                                  << Hex(got.c_str()) << "], want c" << want + 1 << " = [" << Hex(t.c[want]) << "]";
            }
        }
        EXPECT_EQ(0, failures) << "of " << lines_.size() << " lines";
    }
}

// Every code point that the file's @Part1 section does not list is its own NFC and NFD.
TEST_F(NormalizationTest, UnlistedCodePointsAreStable) {
    int failures = 0;
    for (unsigned long cp = 1; cp <= 0x10FFFF; ++cp) {
        if ((cp >= 0xD800 && cp <= 0xDFFF) || part1_points_.count(cp))
            continue;
        std::string utf8 = Utf8(cp);
        for (ustring::normalization_form f : {ustring::nfc, ustring::nfd}) {
            ustring got = ustring::normalize(ustring(utf8.c_str()), f);
            if (got.c_str() != utf8 && ++failures <= 10)
                ADD_FAILURE() << "U+" << std::hex << std::uppercase << cp << (f == ustring::nfc ? " NFC" : " NFD")
                              << " gave [" << Hex(got.c_str()) << "]";
        }
    }
    EXPECT_EQ(0, failures);
}

}  // namespace
