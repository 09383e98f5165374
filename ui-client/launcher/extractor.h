// Extractor: writes every entry of the package archive below a folder,
// reporting one progress step per entry written.
#ifndef NIMBULO_EXTRACTOR_H
#define NIMBULO_EXTRACTOR_H

#include "libustring/ustring.h"

struct archive;

// A value object: set both paths, call Extract() once, discard. No libarchive
// handle outlives a call. Not to be used by two threads at once.
class Extractor {
public:
    // Folder below which the entries are written.
    ustring destination;
    // The archive file to read; any format and compression libarchive reads.
    ustring archivePath;

    // Writes every entry below destination. 0 when all were written without
    // any warning and the end of the archive was reached, else -1. What was
    // written before a failure stays on disk.
    int Extract();
    // Number of entries readable before the end or the first damage, or -1.
    int Count();
    // Prints one entry path name per line to standard output; an entry
    // without a path name prints an empty line. 0, or -1.
    int List();
    // Copies the current entry's data from ar to aw. 0, or -1.
    int copy_data(archive* ar, archive* aw);
};

#endif
