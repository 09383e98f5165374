// TmpNameGen: RC4-drawn temporary names.
#include "libtmpname/tmp_name_gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstring>

TmpNameGen& TmpNameGen::getInstance()
{
    // Never destroyed: names may still be drawn while statics are torn down.
    static TmpNameGen& tmp_name = *new TmpNameGen();
    return tmp_name;
}

TmpNameGen::TmpNameGen() : TmpNameGen("/dev/urandom") { }

TmpNameGen::TmpNameGen(const char* random_device) : random_device(random_device)
{
    pthread_mutex_init(&mutex, nullptr);
    memset(state, 0, sizeof(state));
    memset(key, 0, sizeof(key));
    memset(out, 0, sizeof(out));
    get_key(key, sizeof(key));
    rc4_init(state, key);
}

TmpNameGen::~TmpNameGen()
{
    pthread_mutex_destroy(&mutex);
}

ustring TmpNameGen::getTmpName()
{
    static const char map[64] = {
        '0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'a', 'b', 'c', 'd', 'e', 'f',
        'g', 'h', 'i', 'j', 'k', 'l', 'm', 'n', 'o', 'p', 'q', 'r', 's', 't', 'u', 'v',
        'w', 'x', 'y', 'z', 'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H', 'I', 'J', 'K', 'L',
        'M', 'N', 'O', 'P', 'Q', 'R', 'S', 'T', 'U', 'V', 'W', 'X', 'Y', 'Z', '-', '_',
    };
    char name[9];
    lock();
    rc4_randomize(state, out, 6);
    // Each group of 3 bytes gives 4 six-bit indexes, high bits first.
    for (int g = 0; g < 2; ++g) {
        const unsigned char* b = out + 3 * g;
        name[4 * g + 0] = map[b[0] >> 2];
        name[4 * g + 1] = map[((b[0] & 0x03) << 4) | (b[1] >> 4)];
        name[4 * g + 2] = map[((b[1] & 0x0f) << 2) | (b[2] >> 6)];
        name[4 * g + 3] = map[b[2] & 0x3f];
    }
    unlock();
    name[8] = '\0';
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(ustring const& dir)
{
    return dir + "/" + getTmpName();
}

int TmpNameGen::lock()
{
    return pthread_mutex_lock(&mutex);
}

int TmpNameGen::unlock()
{
    return pthread_mutex_unlock(&mutex);
}

void TmpNameGen::get_key(unsigned char* key, unsigned long size)
{
    FILE* fp = fopen(random_device.c_str_utf8(), "rbe");
    if (fp != nullptr) {
        size_t got = fread(key, 1, size, fp);
        fclose(fp);
        if (got == size) {
            return;
        }
    }
    // Weak, but names only need to differ, not to be secret.
    struct timeval now;
    gettimeofday(&now, nullptr);
    snprintf(reinterpret_cast<char*>(key), size, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
             static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key)
{
    for (int i = 0; i < 256; ++i) {
        state[i] = static_cast<unsigned char>(i);
    }
    unsigned int j = 0;
    for (int i = 0; i < 256; ++i) {
        j = (j + key[i] + state[i]) & 0xff;
        unsigned char t = state[i];
        state[i] = state[j];
        state[j] = t;
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int n)
{
    unsigned int i = 0;
    unsigned int j = 0;
    for (int k = 0; k < n; ++k) {
        i = (i + 1) & 0xff;
        j = (j + state[i]) & 0xff;
        unsigned char t = state[i];
        state[i] = state[j];
        state[j] = t;
        out[k] = state[(state[i] + state[j]) & 0xff];
    }
}
