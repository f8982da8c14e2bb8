// TmpNameGen: short random names for temporary files and folders, drawn from
// an RC4 permutation seeded from the time of day. It only makes names: it
// creates nothing and does not check whether a name is taken.
#pragma once

#include <pthread.h>

#include "ustring.h"

class TmpNameGen {
public:
    // Seeds the permutation from the time of day.
    TmpNameGen();
    // Seeds the permutation from a caller's 256-byte key, so that the
    // sequence of names is reproducible.
    explicit TmpNameGen(const unsigned char* key);
    ~TmpNameGen() {}
    TmpNameGen(const TmpNameGen&) = delete;
    TmpNameGen& operator=(const TmpNameGen&) = delete;

    // The process-wide generator, made on first use.
    static TmpNameGen& getInstance();

    // Eight characters from [0-9a-zA-Z_-]; every call stirs the permutation,
    // so successive names differ. Safe from any thread.
    ustring getTmpName();
    // folder + "/" + getTmpName().
    ustring getTmpPath(const ustring& folder);

    // Writes "<seconds>-<microseconds>" of the time of day into buf, cut to
    // size bytes including its NUL; an empty text if the clock cannot be read.
    static void get_key(unsigned char* buf, unsigned long size);
    // RC4 key schedule over all 256 key bytes. An empty key (key[0] == 0) is
    // first filled from rand() seeded with the time.
    static void rc4_init(unsigned char* state, unsigned char* key);
    // The next len bytes of RC4 output from state, counters starting at 0.
    // Takes no lock.
    static void rc4_randomize(unsigned char* state, unsigned char* out, int len);

private:
    unsigned char state[256];
    unsigned char key[256];
    unsigned char out[6];

    static pthread_mutex_t m_lock;
};
