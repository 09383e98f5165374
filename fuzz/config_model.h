// An independent reading of the key=value syntax, written from the file
// format's rules rather than from the reader's code, so the fuzz targets can
// compare the two byte for byte.
#ifndef NIMBULO_FUZZ_CONFIG_MODEL_H
#define NIMBULO_FUZZ_CONFIG_MODEL_H

#include <climits>
#include <cstdlib>
#include <map>
#include <string>

namespace model {

inline bool IsBlank(unsigned char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

inline bool IsKeyByte(unsigned char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '-' ||
           c == '.';
}

// line holds no zero byte: it is what the reader sees up to the first one.
inline int Parse(const std::string& line, bool keepQuotes, std::string& key, std::string& value)
{
    const size_t n = line.size();
    auto at = [&](size_t i) -> unsigned char { return i < n ? static_cast<unsigned char>(line[i]) : 0; };
    size_t i = 0;
    while (IsBlank(at(i)))
        ++i;
    const size_t keyBegin = i;
    while (IsKeyByte(at(i)))
        ++i;
    const size_t keyEnd = i;
    if (at(i) == 0 || at(i) == '#')
        return 1;
    while (IsBlank(at(i)))
        ++i;
    if (at(i) != '=')
        return 2;
    ++i;
    while (IsBlank(at(i)))
        ++i;
    unsigned char quote = 0;
    if (at(i) == '"' || at(i) == '\'') {
        quote = at(i);
        ++i;
    } else if (at(i) == 0) {
        return 2;
    }
    const unsigned char stop = quote != 0 ? quote : ' ';
    const size_t valueBegin = i;
    while (at(i) != stop && at(i) >= 0x20 && at(i) != 0x7f)
        ++i;
    const size_t valueEnd = i;
    if (quote != 0) {
        if (at(i) != quote)
            return 2;
        ++i;
    }
    while (IsBlank(at(i)))
        ++i;
    if (at(i) != 0 && at(i) != '#')
        return 2;
    key = line.substr(keyBegin, keyEnd - keyBegin);
    value = line.substr(valueBegin, valueEnd - valueBegin);
    if (keepQuotes && quote != 0)
        value = std::string(1, static_cast<char>(quote)) + value + std::string(1, static_cast<char>(quote));
    return 0;
}

// The reader takes at most 8,191 bytes at a time, a line feed ending a piece.
// Returns 0 or -1 and updates table as the reader must.
inline int Read(const std::string& file, std::map<std::string, std::string>& table)
{
    const size_t kPiece = 8191;
    size_t pos = 0;
    while (pos < file.size()) {
        size_t end = pos;
        while (end < file.size() && end - pos < kPiece) {
            if (file[end++] == '\n')
                break;
        }
        std::string piece = file.substr(pos, end - pos);
        pos = end;
        piece = piece.substr(0, piece.find('\0'));
        std::string key, value;
        int rc = Parse(piece, false, key, value);
        if (rc == 0) {
            table[key] = value;
        } else if (rc == 2) {
            table.clear();
            return -1;
        }
    }
    return 0;
}

// Decimal stream extraction into an int: blanks, sign, digits; 0 when none,
// the nearest limit when out of range.
inline int GetInt(const std::string& text)
{
    size_t i = 0;
    while (i < text.size() && IsBlank(static_cast<unsigned char>(text[i])))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    long long v = 0;
    bool digits = false;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        digits = true;
        if (v <= static_cast<long long>(INT_MAX) + 1)
            v = v * 10 + (text[i] - '0');
        ++i;
    }
    if (!digits)
        return 0;
    if (negative)
        v = -v;
    if (v > INT_MAX)
        return INT_MAX;
    if (v < INT_MIN)
        return INT_MIN;
    return static_cast<int>(v);
}

}  // namespace model

#endif
