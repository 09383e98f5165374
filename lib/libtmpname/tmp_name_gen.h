// TmpNameGen: short random names for temporary paths. One process-wide RC4
// keystream, keyed once from the system's random device, turns 6 bytes into
// 8 characters of a 64-character alphabet. Nothing is created on disk and
// names are not checked for uniqueness.
#ifndef NIMBULO_TMP_NAME_GEN_H
#define NIMBULO_TMP_NAME_GEN_H

#include <pthread.h>

#include "libustring/ustring.h"

class TmpNameGen {
public:
    // The process-wide generator, keyed from "/dev/urandom" on first use.
    static TmpNameGen& getInstance();

    // A generator keyed from another random source. Only tests make these:
    // a short or missing source exercises the time-of-day key.
    explicit TmpNameGen(const char* random_device);
    ~TmpNameGen();

    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    // Eight characters from [0-9a-zA-Z-_]; takes the mutex itself.
    ustring getTmpName();
    // dir + "/" + getTmpName(), dir taken as given: "/tmp/" gives "/tmp//...".
    ustring getTmpPath(ustring const& dir);

    // The same non-recursive mutex getTmpName takes: no getTmpName in between.
    int lock();
    int unlock();

    // Fills size bytes from the random source; when fewer arrive, writes the
    // time of day as "%lu-%lu" (seconds-microseconds) with its terminator and
    // leaves the bytes after it alone.
    void get_key(unsigned char* key, unsigned long size);
    // RC4 key schedule over all 256 key bytes.
    void rc4_init(unsigned char* state, unsigned char* key);
    // n keystream bytes; i and j restart at 0, the permutation carries over.
    void rc4_randomize(unsigned char* state, unsigned char* out, int n);

private:
    TmpNameGen();

    pthread_mutex_t mutex;
    unsigned char state[256];
    unsigned char key[256];
    unsigned char out[6];
    ustring random_device;  // a copy: callers may pass a temporary
};

#endif
