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

bool Exists(char const* path) {
    struct stat st;
    return stat(path, &st) == 0 && S_ISREG(st.st_mode);
}

// Reads the whole test file, decompressing when only the .bz2 is there.
// Returns false with a reason in *why.
bool ReadTestFile(std::string* text, std::string* why) {
    FILE* f = nullptr;
    bool piped = false;
    if (Exists(kPlain)) {
        f = fopen(kPlain, "r");
    } else if (Exists(kCompressed)) {
        f = popen((std::string("bzip2 -dc ") + kCompressed).c_str(), "r");
        piped = true;
    } else {
        *why = std::string("neither ") + kPlain + " nor " + kCompressed +
               " exists: install the Debian package unicode-data (apt-get install unicode-data)";
        return false;
    }
    if (f == nullptr) {
        *why = "cannot open the normalisation test data";
        return false;
    }
    char buf[65536];
    size_t got;
    while ((got = fread(buf, 1, sizeof buf, f)) > 0)
        text->append(buf, got);
    int rc = piped ? pclose(f) : fclose(f);
    if (rc != 0) {
        *why = piped ? "bzip2 -dc failed on " + std::string(kCompressed) + " (is bzip2 installed?)"
                     : "reading " + std::string(kPlain) + " failed";
        return false;
    }
    return true;
}

void AppendUtf8(std::string* out, unsigned long cp) {
    if (cp < 0x80) {
        out->push_back(static_cast<char>(cp));
    } else if (cp < 0x800) {
        out->push_back(static_cast<char>(0xC0 | (cp >> 6)));
        out->push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out->push_back(static_cast<char>(0xE0 | (cp >> 12)));
        out->push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out->push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    } else {
        out->push_back(static_cast<char>(0xF0 | (cp >> 18)));
        out->push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
        out->push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
        out->push_back(static_cast<char>(0x80 | (cp & 0x3F)));
    }
}

// One column: code points in hex separated by blanks, returned as UTF-8.
bool ParseColumn(std::string const& column, std::string* utf8, std::vector<unsigned long>* cps) {
    std::istringstream in(column);
    std::string hex;
    bool any = false;
    while (in >> hex) {
        char* end = nullptr;
        unsigned long cp = strtoul(hex.c_str(), &end, 16);
        if (*end != '\0' || cp == 0 || cp > 0x10FFFF)
            return false;
        AppendUtf8(utf8, cp);
        if (cps)
            cps->push_back(cp);
        any = true;
    }
    return any;
}

struct TestLine {
    int number;
    bool part1;
    std::string c[5];
};

class NormalizationTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        std::string why;
        std::string text;
        if (!ReadTestFile(&text, &why)) {
            load_error_ = why;
            return;
        }
        std::istringstream in(text);
        std::string line;
        int number = 0;
        bool in_part1 = false;
        while (std::getline(in, line)) {
            ++number;
            size_t hash = line.find('#');
            std::string body = line.substr(0, hash);
            if (body.empty())
                continue;
            if (body[0] == '@') {
                in_part1 = body.compare(0, 6, "@Part1") == 0;
                continue;
            }
            TestLine t;
            t.number = number;
            t.part1 = in_part1;
            std::istringstream fields(body);
            std::string field;
            for (int i = 0; i < 5; ++i) {
                std::vector<unsigned long> cps;
                if (!std::getline(fields, field, ';') ||
                    !ParseColumn(field, &t.c[i], i == 0 && in_part1 ? &cps : nullptr)) {
                    load_error_ = "malformed line " + std::to_string(number) + ": " + line;
                    return;
                }
                if (i == 0 && in_part1 && cps.size() == 1)
                    part1_points_.insert(cps[0]);
            }
            lines_.push_back(t);
        }
    }

    void SetUp() override {
        ASSERT_TRUE(load_error_.empty()) << load_error_;
        // The file holds well over ten thousand cases; far fewer means the
        // parser lost them, and a near-empty run must not pass.
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

std::string Hex(std::string const& utf8) {
    ustring s(utf8.c_str());
    std::ostringstream out;
    out << std::hex << std::uppercase;
    char const* sep = "";
    for (unsigned short const* u = s.c_str_utf16(); *u; ++u) {
        out << sep << *u;
        sep = " ";
    }
    return out.str();
}

// Checks expected == normalize(column) for the given columns; collects the
// first few failures as readable lines.
struct Tally {
    int failures = 0;
    std::string report;
    void Check(TestLine const& t, char const* form, ustring::normalization_form f, int expected,
               std::initializer_list<int> sources) {
        for (int src : sources) {
            ustring got = ustring::normalize(ustring(t.c[src].c_str()), f);
            if (got.c_str() == t.c[expected])
                continue;
            if (++failures <= 10) {
                report += "line " + std::to_string(t.number) + ": " + form + "(c" + std::to_string(src + 1) +
                          " = " + Hex(t.c[src]) + ") gave [" + Hex(got.c_str()) + "], want c" +
                          std::to_string(expected + 1) + " = [" + Hex(t.c[expected]) + "]\n";
            }
        }
    }
};

}  // namespace

TEST_F(NormalizationTest, NfcColumns) {
    Tally tally;
    for (TestLine const& t : lines_) {
        tally.Check(t, "NFC", ustring::nfc, 1, {0, 1, 2});
        tally.Check(t, "NFC", ustring::nfc, 3, {3, 4});
    }
    EXPECT_EQ(0, tally.failures) << "of " << lines_.size() << " lines; first failures:\n" << tally.report;
}

TEST_F(NormalizationTest, NfdColumns) {
    Tally tally;
    for (TestLine const& t : lines_) {
        tally.Check(t, "NFD", ustring::nfd, 2, {0, 1, 2});
        tally.Check(t, "NFD", ustring::nfd, 4, {3, 4});
    }
    EXPECT_EQ(0, tally.failures) << "of " << lines_.size() << " lines; first failures:\n" << tally.report;
}

// Every code point that the file's @Part1 section does not list is its own NFC and NFD.
TEST_F(NormalizationTest, UnlistedCodePointsAreStable) {
    int failures = 0;
    std::string report;
    for (unsigned long cp = 1; cp <= 0x10FFFF; ++cp) {
        if ((cp >= 0xD800 && cp <= 0xDFFF) || part1_points_.count(cp))
            continue;
        std::string utf8;
        AppendUtf8(&utf8, cp);
        ustring s(utf8.c_str());
        for (ustring::normalization_form f : {ustring::nfc, ustring::nfd}) {
            ustring got = ustring::normalize(s, f);
            if (got.c_str() == utf8)
                continue;
            if (++failures <= 10) {
                std::ostringstream line;
                line << "U+" << std::hex << std::uppercase << cp << (f == ustring::nfc ? " NFC" : " NFD")
                     << " gave [" << Hex(got.c_str()) << "]\n";
                report += line.str();
            }
        }
    }
    EXPECT_EQ(0, failures) << "first failures:\n" << report;
}
