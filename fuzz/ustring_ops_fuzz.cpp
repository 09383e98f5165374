// Sequences of ustring operations checked against std::string: after every
// step the bytes, the length and the terminator agree, searches and compare
// answer as std::string does, and the UTF-16 form (a cache) follows the edits.
#include <cstring>

#include "fuzz.h"
#include "libustring/ustring.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ustring s;
    std::string m;
    for (size_t i = 0, n = 0; i + 2 <= size && m.size() < 4096; i += 2 + n) {
        const size_t op = data[i], pos = data[i + 1] % 32;
        n = std::min<size_t>(op >> 4, size - i - 2);
        std::string arg(reinterpret_cast<const char*>(data) + i + 2, n);
        arg = arg.substr(0, arg.find('\0'));  // a C string ends at its first zero byte
        switch (op % 8) {
        case 0:
            s.append(arg.c_str()), m += arg;
            break;
        case 1:
            s.assign(arg.c_str(), pos), m = arg.substr(0, pos);
            break;
        case 2:
            s += ustring(arg.c_str()) + s, m += arg + m;
            break;
        case 3:
            if (pos <= m.size())
                s = s.substr(pos, n), m = m.substr(pos, n);
            break;
        case 4:
            s.trim(arg.c_str()), m.erase(m.find_last_not_of(arg) + 1), m.erase(0, m.find_first_not_of(arg));
            break;
        case 5:
            FUZZ_CHECK(arg.empty() || pos >= m.size() ||
                       (s.find(arg.c_str(), pos) == m.find(arg, pos) &&
                        s.rfind(arg.c_str(), pos) == m.rfind(arg, pos)));
            break;
        case 6:
            FUZZ_CHECK((s.compare(ustring(arg.c_str())) < 0) == (m.compare(arg) < 0));
            break;
        default:
            FUZZ_CHECK(!ustring::is_valid(s) || ustring(s.c_str_utf16()) == s);
        }
        FUZZ_CHECK(s.length() == m.size() && memcmp(s.c_str(), m.c_str(), m.size() + 1) == 0);
    }
    return 0;
}
