// Config::parse on one arbitrary line: it must stay inside the line's bytes
// and agree with the model on the result, the key and the value.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "config.h"
#include "config_model.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    // The first byte chooses keepQuotes; the rest is the line. The buffer is
    // exactly as long as the line and its terminator, so any read or write
    // past it is caught.
    const bool keepQuotes = (data[0] & 1) != 0;
    std::vector<char> line(data + 1, data + size);
    line.push_back('\0');
    const std::string text(line.data());

    Config config;
    config.keepQuotes = keepQuotes;
    ustring key("untouched");
    ustring value("untouched");
    int rc = config.parse(line.data(), static_cast<int>(line.size() - 1), key, value);

    std::string wantKey, wantValue;
    int want = model::Parse(text, keepQuotes, wantKey, wantValue);
    if (rc != want) {
        fprintf(stderr, "parse gave %d, expected %d\n", rc, want);
        abort();
    }
    if (rc == 0 && (wantKey != key.c_str() || wantValue != value.c_str() || key.length() != wantKey.size() ||
                    value.length() != wantValue.size())) {
        fprintf(stderr, "parse gave '%s'='%s', expected '%s'='%s'\n", key.c_str(), value.c_str(), wantKey.c_str(),
                wantValue.c_str());
        abort();
    }
    if (rc != 0 && (key != ustring("untouched") || value != ustring("untouched"))) {
        fprintf(stderr, "parse stored a pair while returning %d\n", rc);
        abort();
    }
    if (!config.table.empty())
        abort();
    return 0;
}
