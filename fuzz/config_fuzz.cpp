// Config on arbitrary input, the first byte choosing keepQuotes. parse, on the
// rest as one line, must stay inside its bytes and give a key and a value
// only when it succeeds; read, on the whole as a file, gives 0, or -1 with
// the table emptied.
#include <vector>

#include "fuzz.h"
#include "liblogger/config.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Config config;
    config.keepQuotes = size > 0 && (data[0] & 1);
    // Exactly as long as the line and its terminator, so an overrun is seen.
    std::vector<char> line(data + (size > 0), data + size);
    line.push_back('\0');
    ustring key("k"), value("v");
    const int rc = config.parse(line.data(), static_cast<int>(line.size() - 1), key, value);
    FUZZ_CHECK((rc == 0 || (rc <= 2 && key == ustring("k") && value == ustring("v"))) &&
               key.find_first_of(" \t\r\n=#") == ustring::npos);
    FuzzFile file(data, size);
    config.table[ustring("earlier")] = ustring("42");
    const int read = config.read(file.path.c_str());
    FUZZ_CHECK(read == 0 || (read == -1 && config.table.empty()));
    for (const auto& pair : std::map<ustring, ustring>(config.table))
        config.get_int(pair.first);
    return 0;
}
