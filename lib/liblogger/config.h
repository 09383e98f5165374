// Config: a strict reader of key=value files into an ordered table.
#ifndef NIMBULO_CONFIG_H
#define NIMBULO_CONFIG_H

#include <map>

#include "libustring/ustring.h"

class Config {
public:
    Config();

    // 0 when the whole file was read (an empty file too); -1 when the path is
    // empty, the file cannot be opened or any line is ill-formed, in which
    // case the whole table is emptied.
    int read(const ustring& path);

    // Scans one line in place (zero bytes are written into it). 0: a pair was
    // stored in key and value; 1: blank or comment; 2: syntax error.
    int parse(char* line, int length, ustring& key, ustring& value);

    // The value of key read as a decimal int (0 when none); adds an absent key
    // with an empty value.
    int get_int(const ustring& key);

    // The pairs read so far, open to the owner: table["pid"].
    std::map<ustring, ustring> table;
    bool keepQuotes;
};

#endif
