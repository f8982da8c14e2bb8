#include "tmp_name_gen.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sys/time.h>

pthread_mutex_t TmpNameGen::m_lock = PTHREAD_MUTEX_INITIALIZER;

namespace {

void Exchange(unsigned char* state, unsigned i, unsigned j)
{
    const unsigned char held = state[i];
    state[i] = state[j];
    state[j] = held;
}

} // namespace

TmpNameGen::TmpNameGen() : state(), key(), out()
{
    get_key(key, sizeof key);
    rc4_init(state, key);
}

TmpNameGen::TmpNameGen(const unsigned char* seed) : state(), key(), out()
{
    memcpy(key, seed, sizeof key);
    rc4_init(state, key);
}

TmpNameGen& TmpNameGen::getInstance()
{
    static TmpNameGen tmp_name;
    return tmp_name;
}

void TmpNameGen::get_key(unsigned char* buf, unsigned long size)
{
    if (size == 0)
        return;
    struct timeval now;
    if (gettimeofday(&now, nullptr) != 0) {
        buf[0] = 0;
        return;
    }
    snprintf(reinterpret_cast<char*>(buf), size, "%lu-%lu", static_cast<unsigned long>(now.tv_sec),
             static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* state, unsigned char* key)
{
    for (unsigned i = 0; i < 256; ++i)
        state[i] = static_cast<unsigned char>(i);
    if (key[0] == 0) {
        srand(static_cast<unsigned>(time(nullptr)));
        for (unsigned k = 0; k < 256; ++k)
            key[k] = static_cast<unsigned char>(rand() & 0xff);
    }
    // All 256 bytes take part as they are: the seed text is not repeated, its
    // NUL and the zeros after it mix in too.
    unsigned j = 0;
    for (unsigned i = 0; i < 256; ++i) {
        j = (j + state[i] + key[i]) & 0xff;
        Exchange(state, i, j);
    }
}

void TmpNameGen::rc4_randomize(unsigned char* state, unsigned char* out, int len)
{
    unsigned i = 0;
    unsigned j = 0;
    for (int n = 0; n < len; ++n) {
        i = (i + 1) & 0xff;
        j = (j + state[i]) & 0xff;
        Exchange(state, i, j);
        out[n] = state[(state[i] + state[j]) & 0xff];
    }
}

ustring TmpNameGen::getTmpName()
{
    static const char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
    char name[9];

    pthread_mutex_lock(&m_lock);
    // Counters start afresh each time; only the permutation carries over.
    unsigned j = 0;
    for (unsigned i = 1; i <= 6; ++i) {
        j = (j + state[i]) & 0xff;
        Exchange(state, i, j);
        out[i - 1] = state[(state[i] + state[j]) & 0xff];
    }
    // Base64's grouping: 6 bits at a time, most significant first.
    for (unsigned block = 0; block < 2; ++block) {
        const unsigned char* b = out + 3 * block;
        char* c = name + 4 * block;
        c[0] = map[b[0] >> 2];
        c[1] = map[((b[0] & 3) << 4) | (b[1] >> 4)];
        c[2] = map[((b[1] & 15) << 2) | (b[2] >> 6)];
        c[3] = map[b[2] & 63];
    }
    pthread_mutex_unlock(&m_lock);

    name[8] = '\0';
    return ustring(name);
}

ustring TmpNameGen::getTmpPath(const ustring& folder)
{
    return folder + "/" + getTmpName();
}
